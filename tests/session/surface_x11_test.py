"""Bar, panel and outside click as X11 windows, under openbox with and without picom."""
import sys
import unittest

from lib.x11 import X11
from surface_cases import BAR, HEIGHT, PANEL, PROBE, WIDTH, SurfaceCases, until_active

PROBE.append(sys.argv.pop(1))
BLUE, BLACK = (0, 0, 200), (0, 0, 0)


class Plain(SurfaceCases, unittest.TestCase):
    @staticmethod
    def make_display():
        return X11((WIDTH, HEIGHT))

    def test_its_zone_is_kept_free(self):
        self.show("bar", **BAR)
        self.display.until("the zone", lambda: self.display.work_area() == [0, 37, WIDTH, HEIGHT - 37])
        self.probe.do("place", surface="bar", zone=0)
        self.display.until("no zone", lambda: self.display.work_area() == [0, 0, WIDTH, HEIGHT])
        self.probe.do("place", surface="bar", zone=64)
        self.display.until("another zone", lambda: self.display.work_area()[1] == 64)
        self.probe.do("hide", surface="bar")
        self.display.until("no bar", lambda: self.display.work_area()[1] == 0)

    def test_a_press_outside_arrives_where_it_was_aimed(self):
        self.open_panel_with_keys()
        self.probe.do("watch", on=True)
        self.hands.click(*self.middle_of("left"))
        self.probe.event("outside")
        self.probe.do("hide", surface="panel")
        self.display.until_focused("left")
        self.assert_types("here I am", self.left)

    def test_a_turned_wheel_is_no_press(self):
        self.open_panel()
        self.probe.do("watch", on=True)
        self.hands.move(*self.middle_of("left"))
        self.hands.turn_wheel()
        self.hands.press()
        self.hands.release()
        self.probe.event("outside")
        self.assertNotIn("outside", self.names_of_events())

    def test_the_keys_of_a_window_that_is_gone_meanwhile_go_to_none(self):
        third = self.display.terminal("third")
        self.open_panel_with_keys()
        third.process.terminate()
        self.display.until("the end of the third", lambda: not self.display.window("third"))
        self.hands.type("x")
        self.text_of("panel", "x")
        self.probe.do("hide", surface="panel")
        self.focus("left")
        self.assert_types("all well", self.left)

    def test_the_window_is_cut_where_nothing_mixes_windows(self):
        self.open_panel(drawn=[[0, 0, 300, 400]])
        picture = self.display.until_picture("half a panel", lambda p: p[PANEL[0] + 299, 399] == BLUE)
        self.assertNotEqual(picture[PANEL[0] + 300, 399], BLUE)
        self.display.start_compositing_manager()
        self.probe.until("compositing", lambda s: s["composited"])
        self.display.until_picture("a whole panel", lambda p: p[PANEL[0] + 599, 399] == BLUE)
        self.display.end_compositing_manager()
        self.probe.until("no compositing", lambda s: not s["composited"])
        self.display.until_picture("half a panel", lambda p: p[PANEL[0] + 300, 399] != BLUE)


class Composited(Plain):
    @staticmethod
    def make_display():
        return X11((WIDTH, HEIGHT), composited=True)

    def test_the_window_is_cut_where_nothing_mixes_windows(self):
        self.assertTrue(self.probe.do("state")["composited"])
        self.open_panel(drawn=[[0, 0, 300, 400]])
        self.display.until_picture("a whole panel", lambda p: p[PANEL[0] + 599, 399] == BLUE)


class TwoScreens(unittest.TestCase):
    def setUp(self):
        self.display = X11((WIDTH, HEIGHT))
        self.addCleanup(self.display.close)
        half = WIDTH // 2
        self.display.output_of("xrandr", "--setmonitor", "left", f"{half}/200x{HEIGHT}/260+0+0", "screen")
        self.display.output_of("xrandr", "--setmonitor", "right", f"{half}/200x{HEIGHT}/260+{half}+0", "none")
        self.half = half

    def probe_with(self, **variables):
        self.display.environment |= variables
        probe = self.display.converse("probe", PROBE[0])
        probe.event("ready")
        return probe

    def test_the_bar_of_the_right_one_reserves_there_only(self):
        probe = self.probe_with()
        self.assertEqual(probe.do("state")["screens"], ["left", "right"])
        probe.do("show", surface="bar", screen="right", **BAR)
        probe.event("frame", surface="bar")
        window = self.display.window("surface_probe")
        self.assertEqual(self.display.numbers("_NET_WM_STRUT", window), [0, 0, 37, 0])
        self.assertEqual(self.display.numbers("_NET_WM_STRUT_PARTIAL", window),
                         [0, 0, 37, 0, 0, 0, 0, 0, self.half, WIDTH - 1, 0, 0])
        self.assertEqual(self.display.geometry(window), [self.half, 0, self.half, 37])

    def test_what_is_shown_moves_to_the_other_one(self):
        probe = self.probe_with()
        hands = self.display.hands()
        probe.do("show", surface="bar", screen="right", **BAR)
        probe.do("show", surface="panel", screen="right", geometry=[0, 37, 200, 200], keyboard=True)
        until_active(probe, "panel")
        for surface in ("bar", "panel"):
            probe.do("place", surface=surface, screen="left")
        self.display.until_picture("the panel on the left", lambda p: p[0, 37] == p[199, 236] == BLUE)
        hands.type("x")
        state = probe.until("the key", lambda s: s["surfaces"]["panel"]["text"] == "x" and s)
        self.assertTrue(state["surfaces"]["bar"]["shown"] and state["surfaces"]["panel"]["shown"])
        window = self.display.window("surface_probe")
        self.assertEqual(self.display.numbers("_NET_WM_STRUT_PARTIAL", window)[8:10], [0, self.half - 1])

    def test_at_scale_2_all_lengths_are_in_pixels(self):
        probe = self.probe_with(QT_SCALE_FACTOR="2")
        probe.do("show", surface="bar", screen="right", **BAR)
        probe.event("frame", surface="bar")
        window = self.display.window("surface_probe")
        self.assertEqual(self.display.numbers("_NET_WM_STRUT_PARTIAL", window),
                         [0, 0, 74, 0, 0, 0, 0, 0, self.half, WIDTH - 1, 0, 0])
        self.assertEqual(self.display.geometry(window), [self.half, 0, self.half, 74])
        probe.do("show", surface="panel", screen="right", geometry=[50, 50, 100, 100], input=[[0, 0, 50, 100]],
                 drawn=[[0, 0, 50, 100]])
        picture = self.display.until_picture("half a panel", lambda p: p[self.half + 199, 299] == BLUE)
        self.assertNotEqual(picture[self.half + 200, 299], BLUE)
        probe.do("watch", on=True)
        hands = self.display.hands()
        hands.click(self.half + 199, 299)
        probe.event("press", surface="panel")
        hands.click(self.half + 200, 299)
        probe.event("outside")


if __name__ == "__main__":
    unittest.main(verbosity=2)
