#!/usr/bin/env python3
"""outputs_test.py PROGRAM: Brimshade on outputs that come, go, and change their size and scale, and on a seat without a
pointer."""
import json
import pathlib
import subprocess
import sys
import unittest

from lib.brimshade import Brimshade
from lib.sway import Sway
from lib.waiting import PATIENCE

PROGRAM = sys.argv.pop(1)
BAR_HEIGHT = 37
NOTCH_WIDTH = 180  # drawn, in the middle of the bar
ITEM_WIDTH = 34  # an item's without a label
NAME_MARGIN = 18  # at each side of the focused application's name
CORNER = 20  # more than the width of the notch's corners
BLACK = (0, 0, 0)
MOCK_ITEM = pathlib.Path(__file__).resolve().parent.parent / "support/mock_item.py"


class Outputs(unittest.TestCase):
    def live_on(self, session, *arguments, hands=()):
        """Starts Brimshade with those devices on the seat, by default both."""
        self.session = session
        self.addCleanup(session.close)
        self.hands = session.hands(*hands)
        session.start_bus()
        self.brimshade = Brimshade(session, PROGRAM, *arguments)
        self.brimshade.until("the bar", lambda s: s["statusItem"])

    def until_size(self, *size):
        self.brimshade.until(f"a bar on {size}", lambda s: s["screens"][0]["frame"][2:] == list(size) and s["statusItem"])

    def until_widths(self, *widths):
        self.brimshade.until(f"screens as wide as {widths}",
                             lambda s: [screen["frame"][2] for screen in s["screens"]] == list(widths))

    def toggle(self):
        done = subprocess.run([PROGRAM, "--toggle"], env=self.session.environment, capture_output=True, text=True,
                              timeout=PATIENCE)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def open_panel(self):
        self.toggle()
        return self.brimshade.until("the open panel", lambda s: s["model"]["isOpen"] and s["keys"] == "panel" and s["panel"])

    def close_panel(self):
        self.toggle()
        self.brimshade.until("the closed panel", lambda s: not s["panel"]["onScreen"])

    def until_reserved(self, output, height):
        """Waits until that many points at the output's top are kept free."""
        def workspace():
            nodes = [node for node in self.session.ask("get_workspaces") if node["output"] == output]
            return nodes and nodes[0]["rect"]["y"] - self.session.output(output)["rect"]["y"] == height
        self.session.until(f"{height} points kept free on {output}", workspace)

    def until_notch(self, output, scale):
        """Exact to the pixel: it must be drawn at the output's own resolution."""
        width = self.session.output(output)["rect"]["width"]
        left, right = (round((width + side * NOTCH_WIDTH) / 2 * scale) for side in (-1, 1))
        bottom = int(BAR_HEIGHT * scale)

        def drawn(picture):
            inside = [picture[x, 2] for x in (left + CORNER, right - 1 - CORNER)]
            middle = [picture[(left + right) // 2, y] for y in (0, bottom - 2)]
            beside = [picture[x, bottom - 2] for x in (left - 3, right + 2)]
            return set(inside + middle) == {BLACK} and BLACK not in beside
        self.session.until_picture(f"the notch at scale {scale}", drawn, output)

    def test_the_bar_follows_size_and_scale_and_is_sharp(self):
        self.live_on(Sway())
        self.until_notch("HEADLESS-1", 1)
        for mode, scale, size in (("3024x1964", 2, (1512, 982)), ("1920x1200", 1.5, (1280, 800)), ("1366x768", 1, (1366, 768))):
            with self.subTest(mode=mode, scale=scale):
                self.open_panel()  # and an open panel does no harm
                self.session.command(f"output HEADLESS-1 resolution {mode} scale {scale}")
                self.until_size(*size)
                self.until_reserved("HEADLESS-1", BAR_HEIGHT)
                if self.brimshade.do("state")["shown"]:
                    self.close_panel()
                self.until_notch("HEADLESS-1", scale)
                x, _, width, _ = self.open_panel()["frame"]
                self.assertAlmostEqual(x + width / 2, size[0] / 2, delta=1)
                self.close_panel()

    def test_one_of_two_outputs_has_the_bar(self):
        self.live_on(Sway(outputs=("1512x982", "1280x800")), "--screen", "HEADLESS-2")
        self.until_reserved("HEADLESS-1", 0)
        self.until_reserved("HEADLESS-2", BAR_HEIGHT)
        self.until_notch("HEADLESS-2", 1)
        self.assertEqual([screen["frame"][0] for screen in self.brimshade.do("state")["screens"]], [0, -1512])

    def test_without_a_notch_items_stop_at_the_applications_name(self):
        self.live_on(Sway(), "--notch", "none")
        self.session.start("/usr/bin/python3", MOCK_ITEM, json.dumps({"count": 60}), stdin=subprocess.PIPE)

        def leftmost(shown):
            return min((item["frame"][0] for item in shown["menuBar"] if item["drawn"]), default=None)
        self.brimshade.until("a bar full of items", lambda s: 0 <= leftmost(s) < ITEM_WIDTH)
        self.session.terminal()
        named = self.brimshade.until("room for a name", lambda s: leftmost(s) > ITEM_WIDTH and s)
        [name] = [each for each in self.brimshade.do("find", text="terminal")["elements"] if each["name"] == "terminal"]
        gap = leftmost(named) - name["frame"][0] - name["frame"][2]
        self.assertTrue(NAME_MARGIN <= gap < NAME_MARGIN + ITEM_WIDTH, (gap, name))

    def test_outputs_are_unplugged_and_plugged_in(self):
        outer = Sway()
        self.addCleanup(outer.close)
        self.live_on(Sway(inside=outer))
        self.session.command("create_output")
        self.until_widths(756, 756)  # windows of the other sway, side by side
        for gone, left in (("WL-1", [1512]), ("WL-2", [])):
            self.open_panel()
            self.session.unplug(gone)
            self.until_widths(*left)
            self.brimshade.until("the closed panel", lambda s: not s["shown"])
            if left:
                self.until_reserved("WL-2", BAR_HEIGHT)
        self.session.command("create_output")
        self.until_reserved("WL-3", BAR_HEIGHT)
        self.until_widths(1512)
        self.open_panel()
        self.hands.key("Escape")
        self.brimshade.until("the closed panel", lambda s: not s["shown"])

    def test_a_seat_may_be_without_a_pointer(self):
        self.live_on(Sway(), hands=["keyboard"])
        self.session.start("redshift-gtk", "-l", "50:10", "-m", "dummy")
        self.brimshade.until("the item", lambda s: any(item["identifier"] == "redshift" for item in s["menuBar"]))
        self.open_panel()
        self.hands.type("redsh")
        self.brimshade.until("a selected match", lambda s: s["model"]["query"] == "redsh" and s["model"]["selectedID"])
        self.hands.key("Return")
        self.brimshade.until("its menu", lambda s: s["menu"] and s["keys"] == "menu")
        self.hands.key("Escape")
        self.brimshade.until("no menu", lambda s: not s["menu"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
