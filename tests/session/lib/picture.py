"""Pictures of screens, pixel by pixel."""
import struct


class Picture:
    def __init__(self, width, height, pixel):
        self.width, self.height = width, height
        self._pixel = pixel

    def __getitem__(self, at):
        """(red, green, blue) at (x, y)."""
        x, y = at
        assert 0 <= x < self.width and 0 <= y < self.height, f"({x}, {y}) is not in {self.width} x {self.height}"
        return self._pixel(x, y)


def from_ppm(data):
    magic, width, height, largest, pixels = data.split(maxsplit=4) if data[:2] == b"P6" else (None,) * 5
    assert magic == b"P6" and largest == b"255", "not a PPM picture"
    width, height = int(width), int(height)
    pixels = data[len(data) - 3 * width * height:]
    return Picture(width, height, lambda x, y: tuple(pixels[3 * (y * width + x):][:3]))


def from_xwd(data):
    """The picture must be of a true-colour display with 24 or 32 bits."""
    header = struct.unpack(">25I", data[:100])
    size, width, height, order, bits, stride = (header[i] for i in (0, 4, 5, 7, 11, 12))
    step = bits // 8
    pixels = data[size + 12 * header[19]:]

    def pixel(x, y):
        at = pixels[y * stride + step * x:][:step]
        blue, green, red = at[:3] if order == 0 else at[:-4:-1]
        return red, green, blue
    return Picture(width, height, pixel)
