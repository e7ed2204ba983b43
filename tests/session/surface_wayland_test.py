"""Bar, panel and outside click as layer surfaces, in sway."""
import sys
import unittest

from lib.sway import Sway
from surface_cases import BAR, HEIGHT, PANEL, PROBE, WIDTH, SurfaceCases, until_active

PROBE.append(sys.argv.pop(1))


class OneOutput(SurfaceCases, unittest.TestCase):
    @staticmethod
    def make_display():
        return Sway([f"{WIDTH}x{HEIGHT}"], "focus_follows_mouse no")

    def test_its_zone_is_kept_free(self):
        for zone in (37, 0, 64):
            self.show("bar", geometry=[0, 0, 0, 37], zone=zone)
            self.assertEqual(self.display.rect("right")[1::2], [zone, HEIGHT - zone])
            self.probe.do("hide", surface="bar")
            self.assertEqual(self.display.rect("right")[1::2], [0, HEIGHT])
        self.show("bar", **BAR)
        self.probe.do("place", surface="bar", zone=20)
        self.assertEqual(self.display.rect("right")[1], 20)

    def test_a_press_outside_goes_nowhere_else(self):
        self.open_panel_with_keys()
        self.probe.do("watch", on=True)
        self.hands.click(*self.middle_of("left"))
        self.probe.event("outside")
        self.probe.do("watch", on=False)
        self.probe.do("hide", surface="panel")
        self.assert_types("not left", self.right)

    def test_a_panel_moves_and_grows_while_it_is_shown(self):
        self.open_panel()
        self.probe.do("place", surface="panel", geometry=[300, 100, 300, 200])
        self.probe.event("configured", surface="panel", width=300, height=200)
        picture = self.display.until_picture("the panel at its new place", lambda p: p[599, 299] == (0, 0, 200)
                                             and p[PANEL[0], 0] != (0, 0, 200))
        self.assertNotEqual(picture[600, 299], (0, 0, 200))
        self.assertNotEqual(picture[599, 300], (0, 0, 200))

    def test_a_full_screen_window_of_another_workspace_covers_nothing(self):
        self.display.set_full_screen("right", True)
        self.probe.until("a covered screen", lambda s: s["covered"] == ["HEADLESS-1"])
        self.display.command("workspace 2")
        self.probe.until("no covered screen", lambda s: s["covered"] == [])
        self.display.command("workspace 1")
        self.probe.until("a covered screen", lambda s: s["covered"] == ["HEADLESS-1"])
        self.display.set_full_screen("right", False)


class Outputs(unittest.TestCase):
    def setUp(self):
        self.display = Sway(["1512x982"])
        self.addCleanup(self.display.close)
        self.probe = self.display.converse("probe", PROBE[0])
        self.probe.event("ready")

    def show_bar(self, screen):
        self.probe.do("show", surface="bar", screen=screen, **BAR)
        self.probe.event("frame", surface="bar")

    def until_screens(self, *names):
        self.probe.until(f"screens {names}", lambda s: s["screens"] == list(names))

    def test_it_moves_to_a_second_output(self):
        self.show_bar("HEADLESS-1")
        self.display.command("create_output")
        self.until_screens("HEADLESS-1", "HEADLESS-2")
        self.probe.do("place", surface="bar", screen="HEADLESS-2")
        self.assertEqual(self.probe.event("configured", surface="bar")["width"], self.display.output("HEADLESS-2")["rect"]["width"])
        self.probe.event("frame", surface="bar")
        self.assertTrue(self.probe.do("state")["surfaces"]["bar"]["shown"])
        self.display.until_picture("no bar on the first", lambda p: p[1000, 20] != (200, 0, 0))
        picture = self.display.picture("HEADLESS-2")
        self.assertEqual([picture[0, 0], picture[picture.width - 1, 36]], [(200, 0, 0)] * 2)

    def test_a_press_on_another_output_is_outside(self):
        self.display.command("create_output")
        self.until_screens("HEADLESS-1", "HEADLESS-2")
        self.probe.do("show", surface="panel", screen="HEADLESS-1", geometry=PANEL)
        self.probe.event("frame", surface="panel")
        self.probe.do("watch", on=True)
        self.display.command("create_output")
        self.until_screens("HEADLESS-1", "HEADLESS-2", "HEADLESS-3")
        self.probe.do("state")
        hands = self.display.hands()
        for output in ("HEADLESS-2", "HEADLESS-3"):
            rect = self.display.output(output)["rect"]
            hands.click(rect["x"] + PANEL[0] + 10, rect["y"] + 10)
            self.probe.event("outside")

    def test_it_follows_the_outputs_size_and_scale(self):
        self.show_bar("HEADLESS-1")
        self.display.command("output HEADLESS-1 resolution 1200x700")
        self.probe.event("configured", surface="bar", width=1200, height=37)
        self.display.command("output HEADLESS-1 resolution 3024x1964 scale 2")
        self.probe.event("configured", surface="bar", width=1512, height=37)
        bar = self.probe.until("a scale of 2", lambda s: s["surfaces"]["bar"]["scale"] == 2 and s["surfaces"]["bar"])
        self.assertTrue(bar["shown"])
        picture = self.display.until_picture("the bar", lambda p: p.width == 3024 and p[3023, 73] == (200, 0, 0))
        self.assertNotEqual(picture[3023, 74], (200, 0, 0))

    def test_at_a_fractional_scale_nothing_is_left_out(self):
        self.display.command("output HEADLESS-1 resolution 1920x1200 scale 1.5")
        self.until_screens("HEADLESS-1")
        self.show_bar("HEADLESS-1")
        self.assertEqual(self.probe.do("state")["surfaces"]["bar"]["width"], 1280)
        self.display.until_picture("the bar", lambda p: p[0, 0] == p[1919, 54] == (200, 0, 0))

    def test_a_seat_may_be_without_a_pointer_and_get_one(self):
        keyboard = self.display.hands("keyboard")
        self.show_bar("HEADLESS-1")
        self.probe.do("watch", on=True)
        self.probe.do("show", surface="panel", geometry=PANEL, keyboard=True)
        until_active(self.probe, "panel")
        keyboard.type("k")
        self.probe.until("the key", lambda s: s["surfaces"]["panel"]["text"] == "k")
        for _ in range(2):
            pointer = self.display.hands("pointer")
            pointer.click(1000, 600)
            self.probe.event("outside")
            pointer.end()
        keyboard.type("l")
        self.probe.until("the next key", lambda s: s["surfaces"]["panel"]["text"] == "kl")
        self.assertEqual(self.display.errors("probe"), "")


class UnpluggedOutput(unittest.TestCase):
    def setUp(self):
        outer = Sway()
        self.addCleanup(outer.close)
        self.display = Sway(inside=outer)
        self.addCleanup(self.display.close)
        self.hands = self.display.hands()
        self.probe = self.display.converse("probe", PROBE[0])
        self.probe.event("ready")

    def show_all(self):
        self.probe.do("show", surface="bar", **BAR)
        self.probe.event("frame", surface="bar")
        self.probe.do("show", surface="panel", geometry=PANEL, keyboard=True)
        until_active(self.probe, "panel")

    def until_screens(self, *names):
        return self.probe.until(f"screens {names}", lambda s: s["screens"] == list(names) and s)

    def assert_nothing_is_shown(self, state):
        for surface in ("bar", "panel"):
            self.assertFalse(state["surfaces"][surface]["shown"] or state["surfaces"][surface]["visible"])

    def test_all_goes_with_the_only_output_and_comes_back_with_another(self):
        self.show_all()
        self.probe.do("watch", on=True)
        self.display.unplug("WL-1")
        self.probe.event("closed", surface="bar")
        self.assert_nothing_is_shown(self.until_screens())
        self.probe.do("show", surface="bar", **BAR)  # there is nowhere to show it, so nothing happens
        self.display.command("create_output")
        self.until_screens("WL-2")
        self.show_all()
        self.hands.click(PANEL[0] - 10, 500)
        self.probe.event("outside")
        self.assertEqual(self.display.errors("probe"), "")

    def test_what_was_on_an_output_can_be_shown_on_the_one_that_is_left(self):
        self.display.command("create_output")
        self.until_screens("WL-1", "WL-2")
        self.show_all()
        self.display.unplug("WL-1")
        self.assert_nothing_is_shown(self.until_screens("WL-2"))
        self.show_all()
        self.assertEqual(self.probe.do("state")["surfaces"]["bar"]["screen"], "WL-2")
        self.assertEqual(self.display.errors("probe"), "")


if __name__ == "__main__":
    unittest.main(verbosity=2)
