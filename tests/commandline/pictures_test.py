"""The program's pictures: the same on any display, and text as heavy as another program draws it."""
import io
import json
import pathlib
import subprocess
import sys
import unittest

from PIL import Image, ImageDraw, ImageFont

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import Session  # noqa: E402

PROGRAM = sys.argv.pop(1)
NAME = "Pigment"
DESKTOP = {"screens": [{"name": "Built-in Display", "frame": [0, 0, 1280, 800], "menuBarHeight": 37, "notch": [560, 720]}],
           "applications": [{"pid": 10, "name": NAME, "extras": [{"identifier": "a", "width": 40, "menu": ["Open"]}]}],
           "defaults": {"onboardingDone": True}}
COLOURED_EDGES = """<?xml version="1.0"?><fontconfig><include>/etc/fonts/fonts.conf</include>
  <match target="pattern"><edit name="rgba" mode="assign"><const>rgb</const></edit></match></fontconfig>"""

NAME_IN_TILE = (0, 61, 64, 74)  # left, top, right, bottom; points
NAME_SIZE = 10  # points


def ink(image):
    """How many pixels the text on black would fill, taking its most covered pixel as fully covered."""
    values = [max(pixel) for pixel in image.getdata()]
    return sum(values) / max(values)


def ink_of_another_program(size):
    file = subprocess.run(["fc-match", "--format=%{file}", "Inter:medium"], capture_output=True, text=True, check=True).stdout
    image = Image.new("RGB", (20 * size, 4 * size))
    ImageDraw.Draw(image).text((size, size), NAME, font=ImageFont.truetype(file, size))
    return ink(image)


class Pictures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = Session()
        cls.addClassCleanup(cls.session.close)
        cls.file = cls.session.home / "picture.png"

    def start(self, *arguments, without=()):
        program = self.session.start_program(PROGRAM, DESKTOP, *arguments, without=without)
        self.addCleanup(program.end)
        return program

    def picture(self, program, of="desktop"):
        program.do("picture", file=str(self.file), of=of)
        return self.file.read_bytes()

    def open_panel(self, program):
        """Opens the panel and returns its tile's frame once nothing moves any more."""
        program.do("click", at=program.icon())
        program.wait(0.1)
        before = None
        for _ in range(100):
            now = self.picture(program)
            if now == before:
                return program.found(NAME, role="Button")[0]["frame"]
            before = now
            program.wait(0.1)
        self.fail("the panel never came to rest")

    def name_in(self, picture, tile, origin=(0, 0), scale=1):
        left, top = tile[0] - origin[0], tile[1] - origin[1]
        box = [round((place + offset) * scale) for place, offset in zip((left, top, left, top), NAME_IN_TILE)]
        return Image.open(io.BytesIO(picture)).convert("RGB").crop(box)

    def test_are_the_same_with_and_without_a_display(self):
        pictures = []
        for without in [(), ("DISPLAY",)]:
            program = self.start(without=without)
            self.open_panel(program)
            pictures.append([self.picture(program, of) for of in ("desktop", "panel")])
        self.assertEqual(pictures[0], pictures[1])
        self.assertGreater(len(Image.open(io.BytesIO(pictures[0][0])).getcolors(1 << 24)), 1000)

    def test_have_text_as_heavy_as_another_program_draws_it(self):
        for scale in (1, 2):
            with self.subTest(scale=scale):
                program = self.start("--scale", str(scale))
                tile = self.open_panel(program)
                drawn = ink(self.name_in(self.picture(program), tile, scale=scale))
                true = ink_of_another_program(NAME_SIZE * scale)
                self.assertAlmostEqual(drawn, true, delta=0.03 * true)

    def test_of_one_window_are_its_part_of_a_window_and_text_has_no_coloured_edges_there(self):
        self.session.write("fonts.conf", COLOURED_EDGES)
        self.session.environment["FONTCONFIG_FILE"] = str(self.session.home / "fonts.conf")
        program = self.start("--window")
        tile = self.open_panel(program)
        x, bottom, width, height = program.state()["panel"]["frame"]
        top = DESKTOP["screens"][0]["frame"][3] - bottom - height
        whole = Image.open(io.BytesIO(self.picture(program)))
        panel = self.picture(program, of="panel")
        part = whole.crop((x, top, x + width, top + height))
        self.assertEqual(Image.open(io.BytesIO(panel)).tobytes(), part.tobytes())
        name = self.name_in(panel, tile, origin=(x, top))
        true = ink_of_another_program(NAME_SIZE)
        self.assertAlmostEqual(ink(name), true, delta=0.03 * true)
        self.assertEqual([pixel for pixel in name.getdata() if len(set(pixel)) > 1], [])


if __name__ == "__main__":
    unittest.main()
