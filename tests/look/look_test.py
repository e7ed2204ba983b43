"""Measures pictures: positions within half a point, colours within two levels, no text cut off and as much ink in it as
the font has, at every scale and language; at rest and at moments of opening, closing, fading and dragging.
Usage: look_test.py PROGRAM"""
import json
import math
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

from PIL import Image, ImageChops, ImageFont

PROGRAM = sys.argv.pop(1)
SCREEN = [0, 0, 1512, 982]
NOTCH = (663, 849)
BAR = 37
HIDDEN, SHOWN = 6, 5
DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": SCREEN, "menuBarHeight": BAR, "notch": list(NOTCH)}],
    "applications": [{"pid": 10 + i, "name": f"Oo{i}", "icon": "#2060c0", "bundlePath": f"/Applications/Oo{i}.app",
                      "extras": [{"identifier": "a", "title": f"Oo{i}", "width": 40 if i < SHOWN else 400}]}
                     for i in range(SHOWN + HIDDEN)],
    "defaults": {"onboardingDone": True}}
CONTENT = 22  # its padding on each side, in points
FLARES, CORNERS = (6, 14), (10, 32)  # closed, open
OPENING, CLOSING = (0.46, 0.74), (0.32, 0.92)  # response, damping fraction
MOMENTS = (50, 100, 150, 200)  # milliseconds
ESCAPE, RETURN = 53, 36
BLACK = 3  # the lightest value that looks black


def sprung(start, end, spring, seconds):
    """A damped oscillator released at rest."""
    response, damping = spring
    frequency = 2 * math.pi / response
    damped = frequency * math.sqrt(1 - damping ** 2)
    decay = damping * frequency
    return end + (start - end) * math.exp(-decay * seconds) * (
        math.cos(damped * seconds) + decay / damped * math.sin(damped * seconds))


def ink_of(text, style, size, tracking=0):
    """The ink of a text as drawn by another program: the number of square points that are fully covered."""
    finely = 16  # so that neither pixels nor hinting matter
    file = subprocess.run(["fc-match", "-f", "%{file}", f"Inter:style={style}"], capture_output=True, check=True).stdout
    font = ImageFont.truetype(file, round(size * finely))
    mask = font.getmask(text)
    return sum(value * count for value, count in enumerate(Image.frombytes("L", mask.size, bytes(mask)).histogram())
               ) / 255 / finely ** 2


class Picture:
    """A picture that is read in points, whatever its scale."""

    def __init__(self, file, scale):
        with Image.open(file) as picture:
            self.image = picture.convert("RGB")
        self.scale = scale

    def color(self, x, y):
        return self.image.getpixel((int(x * self.scale), int(y * self.scale)))

    def light(self, left, top, right, bottom):
        """A part of it in black and white: the lightest component of each pixel."""
        box = [round(place * self.scale) for place in (left, top, right, bottom)]
        red, green, blue = self.image.crop(box).split()
        return ImageChops.lighter(ImageChops.lighter(red, green), blue)

    def covered(self, left, top, right, bottom, white):
        """How many square points are as light as white, on black; half as light counts half."""
        histogram = self.light(left, top, right, bottom).histogram()
        return sum(value * count for value, count in enumerate(histogram)) / white / self.scale ** 2

    def steepest(self, left, top, right, bottom):
        """The largest difference between two adjacent pixels in the part."""
        part = self.light(left, top, right, bottom)
        return ImageChops.difference(part.crop((1, 0, part.width, part.height)),
                                     part.crop((0, 0, part.width - 1, part.height))).getextrema()[1]

    def ink(self, left, top, right, bottom, above=BLACK):
        """The box around what is lighter than above in the part, in points; None if there is nothing."""
        box = self.light(left, top, right, bottom).point(lambda value: 255 if value > above else 0).getbbox()
        return box and [place / self.scale + (left, top)[i % 2] for i, place in enumerate(box)]


class Look:
    """desktop: what differs from the usual one, or None for the built-in one."""

    def __init__(self, scale, language, desktop):
        self.scale = scale
        self.folder = tempfile.TemporaryDirectory(prefix="brimshade-look-")
        arguments = []
        if desktop is not None:
            file = pathlib.Path(self.folder.name) / "desktop.json"
            file.write_text(json.dumps({**DESKTOP, **desktop}))
            arguments = ["--desktop", file]
        self.process = subprocess.Popen(
            [PROGRAM, "--script", "-", "--scale", str(scale), *arguments], text=True, stdin=subprocess.PIPE,
            stdout=subprocess.PIPE, env={**os.environ, "LC_ALL": language, "LANGUAGE": ""})
        self.icon = self.middle(self.do("state")["statusItem"]["frame"])

    @staticmethod
    def middle(frame):
        return [frame[0] + frame[2] / 2, frame[1] + frame[3] / 2]

    def do(self, command, **fields):
        self.process.stdin.write(json.dumps({"do": command, **fields}) + "\n")
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline())
        assert answer["ok"], (command, fields, answer)
        return answer

    def wait(self, seconds):
        self.do("advance", seconds=seconds)

    def picture(self, of="desktop"):
        file = pathlib.Path(self.folder.name) / "picture.png"
        self.do("picture", file=str(file), of=of)
        return Picture(file, self.scale)

    def toggle(self):
        self.do("click", at=self.icon)

    def open_panel(self):
        self.toggle()
        self.wait(3)

    def frames(self, text, role):
        return [e["frame"] for e in self.do("find", text=text)["elements"] if e["role"] == role]

    def panel_size(self):
        return self.do("state")["model"]["panelSize"]

    def end(self):
        self.process.stdin.close()
        self.process.wait(timeout=60)
        self.process.stdout.close()
        self.folder.cleanup()


class LookCase(unittest.TestCase):
    scale, language = 1, "C.UTF-8"
    desktop = {}

    def setUp(self):
        self.look = Look(self.scale, self.language, self.desktop)
        self.addCleanup(self.look.end)

    def assert_color(self, seen, wanted, what):
        self.assertLessEqual(max(abs(a - b) for a, b in zip(seen, wanted)), 2, f"{what}: {seen}, not {wanted}")

    def assert_at(self, seen, wanted, what):
        self.assertAlmostEqual(seen, wanted, delta=0.5, msg=what)

    def assert_ink(self, picture, box, opacity, text, *font):
        left, top, right, bottom = box
        seen, wanted = picture.covered(left - 2, top - 2, right + 2, bottom + 2, 255 * opacity), ink_of(text, *font)
        self.assertAlmostEqual(seen / wanted, 1, delta=0.03, msg=f"the ink of “{text}”")

    def tab(self, shown):
        """The body's left, right and lower edge when the tab is open that far."""
        width, height = self.look.panel_size()
        closed = NOTCH[1] - NOTCH[0] + 2 * FLARES[0]
        flare = FLARES[0] + (FLARES[1] - FLARES[0]) * shown
        body = closed + (width - closed) * shown - 2 * flare
        return SCREEN[2] / 2 - body / 2, SCREEN[2] / 2 + body / 2, BAR + (height - BAR) * shown

    def assert_tab(self, picture, shown, what):
        """Checks that its edges are where they should be, and that its content ends before them."""
        left, right, bottom = self.tab(shown)
        middle = (BAR + bottom) / 2 if shown > 0.2 else BAR / 2 + 8
        # Searches from outside for the first place as dark as the tab, whose outline is lighter than black.
        start, top = math.floor(left - 30), math.floor(bottom - 20)
        row = picture.light(start, middle, right + 30, middle + 1 / self.scale)
        dark = [x for x in range(row.width) if row.getpixel((x, 0)) <= 40]
        self.assert_at(start + dark[0] / self.scale, left, f"{what}: the left edge")
        self.assert_at(start + (dark[-1] + 1) / self.scale, right, f"{what}: the right edge")
        column = picture.light(SCREEN[2] / 2, top, SCREEN[2] / 2 + 1 / self.scale, bottom + 20)
        lowest = max(y for y in range(column.height) if column.getpixel((0, y)) <= 40)
        self.assert_at(top + (lowest + 1) / self.scale, bottom, f"{what}: the lower edge")
        for inner, outer in ((left + 1.5, left + 5), (right - 5, right - 1.5)):
            strip = picture.light(inner, BAR, outer, max(BAR + 1, bottom - CORNERS[1] - 2))
            self.assertLessEqual(strip.getextrema()[1], BLACK + 12, f"{what}: something is cut at a side")


class AtRest(LookCase):
    def test_the_open_panel(self):
        self.look.open_panel()
        picture = self.look.picture()
        width, height = self.look.panel_size()
        left, _, _ = self.tab(1)
        self.assert_tab(picture, 1, "open")
        self.assert_color(picture.color(left + 60, height - 30), (0, 0, 0), "the tab")
        tiles = {e["name"]: e["frame"] for e in self.look.do("state")["model"]["extras"]}
        hidden = {e["name"]: e["isHidden"] for e in self.look.do("state")["model"]["extras"]}
        self.assertEqual(set(hidden.values()), {True, False})
        for name in tiles:
            tile = self.look.frames(name, "Button")[-1]
            fill = 255 * (0.06 if hidden[name] else 0.035)
            self.assert_color(picture.color(tile[0] + 5 + 4, tile[1] + 27), [fill] * 3, f"the face of {name}")
            face = picture.ink(tile[0], tile[1] + 20, tile[0] + 64, tile[1] + 30, above=fill / 2)
            self.assert_at(face[0], tile[0] + 5, f"the face of {name}")
            self.assert_at(face[2], tile[0] + 59, f"the face of {name}")
            text = picture.ink(tile[0], tile[1] + 61, tile[0] + 64, tile[1] + 76, above=20)
            self.assert_at((text[0] + text[2]) / 2, tile[0] + 32, f"the name of {name}")
            self.assertGreater(text[0], tile[0], f"the name of {name} is cut")
            self.assertLess(text[2], tile[0] + 64, f"the name of {name} is cut")
            self.assert_ink(picture, text, 0.62 if hidden[name] else 0.45, name, "Medium", 10)
            if hidden[name]:
                self.assert_color(picture.color(tile[0] + 32 + 19, tile[1] + 27 - 19), (255, 158, 51), "the marker")

    def test_the_texts_of_the_panel(self):
        self.look.open_panel()
        picture = self.look.picture()
        width, height = self.look.panel_size()
        left = (SCREEN[2] - width) / 2 + FLARES[1] + CONTENT
        right = SCREEN[2] - left
        title = picture.ink(left - 10, BAR + 10, left + 200, BAR + 31)
        self.assert_at(title[0], left + 0.4, "the first section's title")  # slightly to the right, as letters are
        hint = picture.ink(left - 10, height - 22, right + 10, height - 8)
        self.assert_at((hint[0] + hint[2]) / 2, SCREEN[2] / 2, "the hint")
        self.assertGreater(hint[0], left, "the hint is cut")
        if self.scale == 2:  # here strokes are wide enough to cover pixels fully
            for part, opacity in ((title, 0.32), (hint, 0.28)):
                lightest = picture.light(*part).getextrema()[1]
                self.assertAlmostEqual(lightest, 255 * opacity, delta=2)
        texts = {e["frame"][1]: e["name"] for e in self.look.do("find", text="")["elements"]
                 if e["window"] == "panel" and e["role"] == "StaticText"}
        self.assert_ink(picture, hint, 0.28, texts[max(texts)], "Medium", 11)
        self.assert_ink(picture, title, 0.32, texts[sorted(texts)[1]], "Bold", 9.5)

    def test_the_form_of_the_settings(self):
        self.look.do("menu", at=self.look.icon)
        self.look.do("choose", title=self.look.do("state")["menu"][0])
        self.look.wait(1)
        picture = self.look.picture("settings")
        # The first row's line is 0.5 points of black at 12 % on white: the same ink at each scale.
        middle = picture.image.width // 2
        column = [255 - picture.image.getpixel((middle, row))[1] for row in range(int(110 * self.scale), int(118 * self.scale))]
        darkness = sum(column) / self.scale
        self.assertAlmostEqual(darkness, 0.5 * 0.12 * 255, delta=2)


class TheStage(LookCase):
    """The built-in desktop."""
    desktop = None

    def setUp(self):
        super().setUp()
        for _ in range(2):  # closes the setup guide
            self.look.do("key", code=53, characters="\x1b")

    def test_nothing_small_is_seen_through_bar_and_dock(self):
        picture = self.look.picture()
        items = {e["name"]: e["frame"] for e in self.look.do("find", text="")["elements"] if e["role"] == "ButtonMenu"}
        self.assertGreater(len(items), 10)
        for part in ((420, 2, NOTCH[0] - 2, BAR - 2), (450, SCREEN[3] - 72 + 3, 1060, SCREEN[3] - 72 + 9)):
            self.assertLessEqual(picture.steepest(*part), 2, f"in {part}")

    def test_the_icons_of_the_bar_are_of_one_kind(self):
        picture = self.look.picture()
        for item in self.look.do("find", text="")["elements"]:
            if item["role"] != "ButtonMenu" or item["frame"][2] > 40:
                continue
            left, top, width, height = item["frame"]
            white = picture.ink(left, top + 2, left + width, top + height - 2, above=180)
            self.assertTrue(8.5 <= max(white[2] - white[0], white[3] - white[1]) <= 18, (item["name"], white))
            self.assertAlmostEqual((white[0] + white[2]) / 2, left + width / 2, delta=1.5, msg=item["name"])
            box = [round(place * self.scale) for place in (left, top + 2, left + width, top + height - 2)]
            for red, green, blue in picture.image.crop(box).getdata():
                self.assertFalse(max(red, green, blue) > 180 and max(red, green, blue) - min(red, green, blue) > 40,
                                 f"{item['name']} has colours")


class TheSetup(LookCase):
    desktop = {"trusted": False, "defaults": {}}

    def button(self):
        """The frame of the button that Return presses."""
        return next(e["frame"] for e in self.look.do("find", text="")["elements"]
                    if e["window"] == "setup" and e["role"] == "Button" and e["frame"][2] > 40)

    def test_every_step_comes_as_the_one_before_goes(self):
        self.look.do("trust", granted=True)
        for step in range(4):
            self.look.wait(2)
            self.look.do("key", code=RETURN, characters="\r")
            self.look.wait(0.1)
            shares = {round(e["opacity"], 2) for e in self.look.do("find", text="")["elements"]
                      if e["window"] == "setup" and e["role"] == "StaticText"}
            self.assertEqual(len(shares), 2, f"step {step}: {shares}")
            self.assertAlmostEqual(sum(shares), 1, delta=0.02)

    def test_a_button_fades_as_one(self):
        self.look.wait(1)
        left, top, width, height = self.button()
        box = [round(place * self.scale) for place in (left + 1, top + 1, left + width - 1, top + height - 1)]
        cut = lambda: list(self.look.picture().image.crop(box).getdata())  # noqa: E731
        shown = cut()
        self.look.do("key", code=RETURN, characters="\r")
        moments = []
        for _ in range(3):
            self.look.wait(0.06)
            moments.append(cut())
        self.look.wait(2)
        gone = cut()
        backdrop = gone[0]
        # What replaces the button lies over a part of it.
        places = [i for i, after in enumerate(gone) if max(abs(a - b) for a, b in zip(after, backdrop)) <= 4]
        self.assertLess(min(min(shown[i]) for i in places), 20, "its title is there")
        white = [i for i in places if shown[i] == (255, 255, 255)]
        for moment in moments:
            share = sum((moment[i][1] - gone[i][1]) / (255 - gone[i][1]) for i in white) / len(white)
            self.assertTrue(0.02 < share < 0.98, share)
            for i in places:
                for before, now, after in zip(shown[i], moment[i], gone[i]):
                    self.assertAlmostEqual(now, share * before + (1 - share) * after, delta=4)

    def test_the_border_of_the_illustration_runs_all_around(self):
        self.look.wait(0.6 + 2)
        picture = self.look.picture()
        setup = next(w for w in self.look.do("state")["windows"] if w["name"] == "setup")
        left = setup["frame"][0] + setup["frame"][2] / 2 - 180
        column = picture.light(left + 34, 0, left + 34 + 1 / self.scale, SCREEN[3])  # beside the icons
        black = [y for y in range(column.height) if column.getpixel((0, y)) == 0]
        top = next(y for y in black if y + 100 * self.scale in black) / self.scale - 1
        line = [255 * 0.12] * 3
        for x in (left + 20, left + 180, left + 340):
            self.assert_color(picture.color(x, top + 0.25), line, "the border above")
        for x in (left + 40, left + 180, left + 320):
            self.assert_color(picture.color(x, top + 149.25), line, "the border below")
        for x in (left + 0.25, left + 359.25):
            self.assert_color(picture.color(x, top + 60), line, "the border at a side")


class InMotion(LookCase):
    def test_nothing_is_cut_while_it_opens_and_closes(self):
        self.look.open_panel()
        self.look.toggle()
        self.look.wait(2)
        for motion, (start, end, spring) in {"opening": (0, 1, OPENING), "closing": (1, 0, CLOSING)}.items():
            now = 0
            self.look.toggle() if motion == "opening" else self.look.do("key", code=ESCAPE, characters="\x1b")
            for moment in MOMENTS:
                self.look.wait((moment - now) / 1000)
                now = moment
                self.assert_tab(self.look.picture(), sprung(start, end, spring, moment / 1000), f"{motion}, {moment} ms")
            self.look.wait(3)

    def test_the_first_items_stand_where_they_are_going_to_stand(self):
        self.look.toggle()
        self.look.wait(0.1)
        tops = []
        for _ in range(6):
            self.look.wait(0.1)
            width, height = self.look.panel_size()
            left = (SCREEN[2] - width) / 2 + FLARES[1] + CONTENT
            picture, part = self.look.picture(), (left, BAR + 10, left + 120, BAR + 20)
            lightest = picture.light(*part).getextrema()[1]
            if lightest > 20:
                tops.append(picture.ink(*part, above=0.4 * lightest)[1])
        self.assertGreater(len(tops), 3)
        self.assertLessEqual(max(tops) - min(tops), 0.5, "the title moves")


class Dragging(LookCase):
    def icons(self):
        """The middles of the narrow items' icons, which are blue squares, from left to right."""
        picture, scale = self.look.picture(), self.scale
        y, start = round(BAR / 2 * scale) - round(7 * scale), NOTCH[1] * scale
        row = [picture.image.getpixel((x, y)) for x in range(start, SCREEN[2] * scale)]
        blue = [start + i for i, (red, _, b) in enumerate(row) if b - red > 80]
        ends = [x for x in blue if x + 1 not in blue]
        starts = [x for x in blue if x - 1 not in blue]
        return [(a + b + 1) / 2 / scale for a, b in zip(starts, ends)][1:]  # the first belongs to a wide item

    def test_a_neighbour_makes_way_and_both_glide(self):
        self.look.wait(1)
        at_first = self.icons()
        self.assertEqual(len(at_first), SHOWN)
        grip = [at_first[2], BAR / 2]
        self.look.do("move", to=grip)
        self.look.do("press", at=grip, modifiers=["command"])
        for by, seconds, held, neighbour in (
                (-4, 0.05, -4, (-40, -40)), (-58, 0.1, -58, (-36, -4)), (-58, 1, -58, (0, 0)), (-18, 1, -18, (-40, -40))):
            self.look.do("move", to=[grip[0] + by, grip[1]])
            self.look.wait(seconds)
            seen = sorted(x - at_first[2] for x in self.icons())
            self.assertTrue(any(abs(x - held) <= 0.5 for x in seen), (by, held, seen))
            self.assertTrue(any(neighbour[0] - 0.5 <= x <= neighbour[1] + 0.5 for x in seen if abs(x - held) > 1),
                            (by, seen))
        self.look.do("move", to=[grip[0] - 58, grip[1]])
        self.look.do("release", at=[grip[0] - 58, grip[1]], modifiers=["command"])
        self.look.wait(1)
        for seen, wanted in zip(self.icons(), at_first):
            self.assert_at(seen, wanted, "an icon after the drop")


def load_tests(loader, _, __):
    suite = unittest.TestSuite()
    for scale in (1, 2):
        for case, language in ((AtRest, "C.UTF-8"), (AtRest, "de_DE.UTF-8"), (InMotion, "C.UTF-8"),
                               (TheStage, "C.UTF-8"), (TheSetup, "C.UTF-8"), (Dragging, "C.UTF-8")):
            name = f"{case.__name__}_{language[:2]}_{scale}"
            suite.addTests(loader.loadTestsFromTestCase(type(name, (case,), {"scale": scale, "language": language})))
    return suite


if __name__ == "__main__":
    unittest.main()
