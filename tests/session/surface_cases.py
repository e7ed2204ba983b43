"""What a bar and a panel do on any desktop."""

PROBE = []  # the program under test, from the test's command line
BAR = {"geometry": [0, 0, 0, 37], "zone": 37}
PANEL = [200, 0, 600, 400]  # the middle of its left edge lies over the left terminal
WIDTH, HEIGHT = 1512, 982


def until_active(probe, surface):
    """Asks for the state, because a window may not report that keys left it and returned at once."""
    probe.until(f"the {surface} with the keys", lambda s: s["surfaces"][surface]["active"])


class SurfaceCases:
    """Over two terminals side by side, of which the right one has the keys. A class that mixes this in makes the
    display."""

    @classmethod
    def setUpClass(cls):
        cls.display = cls.make_display()
        cls.addClassCleanup(cls.display.close)
        cls.hands = cls.display.hands()
        cls.left = cls.display.terminal("left")
        cls.right = cls.display.terminal("right")

    def setUp(self):
        self.focus("right")
        self.probe = self.display.converse("probe", PROBE[0])
        self.addCleanup(self.end_probe)
        self.probe.event("ready")

    def end_probe(self):
        self.probe.process.stdin.close()
        self.assertEqual(self.display.wait_for_end(self.probe.process, "the probe's end"), 0)
        self.assertEqual(self.display.errors("probe"), "")

    def show(self, surface, **how):
        self.probe.do("show", surface=surface, **how)
        self.probe.event("frame", surface=surface)
        self.probe.do("state")

    def open_panel(self, **how):
        self.show("panel", geometry=PANEL, **how)

    def open_panel_with_keys(self):
        self.probe.do("show", surface="panel", geometry=PANEL, keyboard=True)
        until_active(self.probe, "panel")

    def focus(self, terminal):
        self.hands.click(*self.middle_of(terminal))
        self.display.until_focused(terminal)

    def middle_of(self, terminal):
        """The middle of its lower half, which nothing of ours covers."""
        x, y, width, height = self.display.rect(terminal)
        return x + width // 2, y + height * 3 // 4

    def assert_types(self, text, where):
        """A whole line, so that anything typed into it earlier would show in front."""
        self.hands.type(text + "\n")
        self.assertEqual(where.line(), text)

    def text_of(self, surface, text):
        self.probe.until(f"{text} in the {surface}", lambda s: s["surfaces"][surface]["text"] == text)

    def names_of_events(self):
        """All up to now: everything that was asked of the display has been done."""
        self.probe.do("state")
        return [event["event"] for event in self.probe.events()]

    def test_the_panel_takes_all_keys_and_gives_them_back(self):
        self.assert_types("before", self.right)
        for typed in ("abc", "abcdef"):
            self.open_panel_with_keys()
            self.hands.type(typed[-3:])
            self.text_of("panel", typed)
            self.probe.do("hide", surface="panel")
            self.display.until_focused("right")
            self.assert_types("after", self.right)

    def test_without_keys_it_leaves_them_where_they_are(self):
        self.open_panel()
        self.assert_types("still mine", self.right)
        self.probe.do("place", surface="panel", keyboard=True)
        until_active(self.probe, "panel")
        self.hands.type("x")
        self.text_of("panel", "x")
        self.probe.do("place", surface="panel", keyboard=False)
        self.probe.until("the panel without the keys", lambda s: not s["surfaces"]["panel"]["active"])
        self.assert_types("mine again", self.right)

    def test_a_menu_over_the_panel_has_the_keys_and_the_panel_may_go_first(self):
        self.open_panel_with_keys()
        self.probe.do("show", surface="menu", geometry=[300, 100, 200, 300], keyboard=True)
        until_active(self.probe, "menu")
        self.hands.type("m")
        self.text_of("menu", "m")
        self.probe.do("hide", surface="panel")
        self.hands.type("n")
        self.text_of("menu", "mn")
        self.probe.do("hide", surface="menu")
        self.assert_types("after both", self.right)

    def test_the_keys_return_to_the_panel_when_its_menu_goes(self):
        self.open_panel_with_keys()
        self.probe.do("show", surface="menu", geometry=[300, 100, 200, 300], keyboard=True)
        until_active(self.probe, "menu")
        self.probe.do("hide", surface="menu")
        until_active(self.probe, "panel")
        self.hands.type("p")
        self.text_of("panel", "p")

    def test_a_panel_that_is_destroyed_gives_the_keys_back(self):
        self.open_panel_with_keys()
        self.probe.do("destroy", surface="panel")
        self.assert_types("after", self.right)

    def test_a_window_that_somebody_else_hides_counts_as_closed_and_may_be_shown_again(self):
        self.open_panel_with_keys()
        self.probe.do("hide-window", surface="panel")
        self.probe.do("place", surface="panel", geometry=[100, 100, 300, 300])
        self.probe.event("closed", surface="panel")
        self.assert_types("after", self.right)
        self.open_panel(keyboard=True)
        self.hands.type("again")
        self.text_of("panel", "again")

    def test_clicks_go_through_outside_the_input_region(self):
        self.open_panel(input=[[300, 0, 300, 400]])
        self.hands.click(PANEL[0] + 310, 200)
        self.assertEqual(self.probe.event("press", surface="panel")["x"], 310)
        self.hands.click(PANEL[0] + 290, 200)
        self.display.until_focused("left")
        self.probe.do("place", surface="panel", input=[])
        self.probe.events()
        self.hands.click(PANEL[0] + 290, 200)
        self.assertEqual(self.probe.event("press", surface="panel")["x"], 290)

    def test_a_press_outside_is_told_and_one_inside_is_not(self):
        self.show("bar", **BAR)
        self.open_panel(input=[[0, 0, 600, 300]])
        self.probe.do("watch", on=True)
        for x, y, surface in ((20, 10, "bar"), (PANEL[0] + 300, 100, "panel")):
            self.hands.click(x, y)
            self.probe.event("press", surface=surface)
        self.assertNotIn("outside", self.names_of_events())
        for x, y, button in ((PANEL[0] + 300, 350, "left"), (WIDTH - 10, HEIGHT - 10, "right")):
            self.hands.click(x, y, button)
            self.probe.event("outside")
        # The watched region follows changes.
        self.probe.do("hide", surface="panel")
        self.hands.click(PANEL[0] + 300, 100)
        self.probe.event("outside")
        self.probe.do("watch", on=False)
        self.probe.events()
        self.focus("left")
        self.assertEqual([e for e in self.names_of_events() if e in ("outside", "press")], [])

    def test_the_focused_application_is_named_and_stays_so_under_the_panel(self):
        self.probe.until("the right one", lambda s: s["application"] == "right")
        self.probe.events()
        self.focus("left")
        self.assertEqual(self.probe.event("application")["id"], "left")
        self.open_panel_with_keys()
        self.assertEqual(self.probe.do("state")["application"], "left")
        self.probe.do("hide", surface="panel")
        self.focus("right")
        self.probe.until("the right one again", lambda s: s["application"] == "right")

    def test_a_full_screen_window_lies_over_the_bar_and_under_the_panel(self):
        self.show("bar", **BAR)
        self.display.until_picture("the bar", lambda p: p[1000, 20] == (200, 0, 0))
        self.display.set_full_screen("right", True)
        self.probe.until("a covered screen", lambda s: s["covered"] == s["screens"])
        self.display.until_picture("no bar", lambda p: p[1000, 20] != (200, 0, 0))
        self.open_panel_with_keys()
        self.display.until_picture("the panel", lambda p: p[PANEL[0] + 300, 200] == (0, 0, 200))
        self.assertEqual(self.probe.do("state")["covered"], self.probe.do("state")["screens"])
        self.probe.do("hide", surface="panel")
        self.display.set_full_screen("right", False)
        self.probe.until("no covered screen", lambda s: s["covered"] == [])
        self.display.until_picture("the bar again", lambda p: p[1000, 20] == (200, 0, 0))

    def test_when_the_display_dies_the_program_ends_with_a_word(self):
        with self.make_display() as other:
            probe = other.converse("orphan", PROBE[0])
            probe.event("ready")
            probe.do("show", surface="bar", **BAR)
            probe.do("show", surface="panel", geometry=PANEL, keyboard=True)
            probe.event("frame", surface="panel")
            other.kill_display()
            self.assertEqual(other.wait_for_end(probe.process, "the program's end"), 1)
            self.assertEqual(other.errors("orphan"), "brimshade: the connection to the display is gone\n")

