"""Tray programs that this project did not write: found by the scan, opened by name, an entry of their menu chosen."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import Session  # noqa: E402

PROGRAM = sys.argv.pop(1)
RETURN, ESCAPE = 36, 53
DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [663, 849]}],
    "applications": [], "defaults": {"onboardingDone": True},
}


def matches(state):
    return state["model"]["hiddenMatches"] + state["model"]["visibleMatches"]


def names(state):
    return {extra["name"] for extra in state["model"]["extras"]}


class RealPrograms(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = Session()
        cls.addClassCleanup(cls.session.close)
        cls.session.write(".config/keepassxc/keepassxc.ini",
                          "[General]\nUpdateCheckMessageShown=true\n[GUI]\nShowTrayIcon=true\nMinimizeToTray=true\n")
        cls.brimshade = cls.session.start_program(PROGRAM, DESKTOP, "--tray", "--real-time")
        # Programs look for a watcher once, when they start.
        cls.brimshade.until("watcher", lambda s: cls.has_watcher())
        cls.redshift = cls.session.start("redshift-gtk", "-l", "50:10", "-m", "dummy")
        cls.keepassxc = cls.session.start("keepassxc")
        cls.brimshade.until("two items in the bar", lambda s: len(s["menuBar"]) == 3)

    def toggle_panel(self):
        self.brimshade.do("click", at=self.brimshade.status_item())

    def open_menu(self, typed):
        """Opens the panel, types part of a name, Return; answers with the titles of the menu that opens."""
        self.toggle_panel()
        self.brimshade.until("open panel", lambda s: s["model"]["isOpen"] and s["panel"]["isKey"])
        self.brimshade.do("type", text=typed)
        self.brimshade.until(f"one match of {typed}", lambda s: len(matches(s)) == 1)
        self.brimshade.do("key", code=RETURN)
        return self.brimshade.until("menu", lambda s: s["menu"])

    @classmethod
    def has_watcher(cls):
        reply = cls.session.output_of("dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                                      "org.freedesktop.DBus.NameHasOwner", "string:org.kde.StatusNotifierWatcher")
        return "boolean true" in reply

    def property_of_item(self, owner, path, name):
        """A property of a tray item as its program tells it, read past Brimshade."""
        return self.session.output_of("dbus-send", "--session", "--print-reply=literal", f"--dest={owner}", path,
                                      "org.freedesktop.DBus.Properties.Get", "string:org.kde.StatusNotifierItem",
                                      f"string:{name}").strip()

    def icon_of(self, part):
        reply = self.session.output_of("dbus-send", "--session", "--print-reply", "--dest=org.kde.StatusNotifierWatcher",
                                       "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get",
                                       "string:org.kde.StatusNotifierWatcher", "string:RegisteredStatusNotifierItems")
        for word in (line.split('"')[1] for line in reply.splitlines() if '"' in line):
            owner, path = word.split("/", 1)
            if part in self.property_of_item(owner, "/" + path, "Id"):
                return self.property_of_item(owner, "/" + path, "IconName")

    def windows(self):
        return self.session.output_of("xdotool", "search", "--onlyvisible", "--name", "KeePassXC").split()

    def test_1_the_scan_finds_them_under_their_names(self):
        self.toggle_panel()
        self.brimshade.until("both names", lambda s: {"Redshift", "KeePassXC"} <= names(s))
        icons = {e["name"]: e["hasIcon"] for e in self.brimshade.do("state")["model"]["extras"]}
        self.assertEqual(icons, {"Redshift": True, "KeePassXC": True})
        self.brimshade.do("key", code=ESCAPE)
        self.brimshade.until("closed panel", lambda s: not s["panel"]["onScreen"])
        # Places are not kept here: what appears later stands at the left end.
        self.assertEqual(self.brimshade.state()["menuBar"][-1]["identifier"], "BrimshadeButton")

    def test_2_an_indicator_is_switched_off_and_on_by_its_menu(self):
        self.assertIn("redshift-status-on", self.icon_of("redshift"))
        for expected in ("redshift-status-off", "redshift-status-on"):
            titles = self.open_menu("redsh")
            self.assertEqual(titles, ["Enabled", "Suspend for", "Autostart", "Info", "Quit"])
            self.brimshade.do("choose", title="Enabled")
            self.brimshade.until(expected, lambda s, icon=expected: icon in self.icon_of("redshift"))

    def test_3_a_program_of_another_toolkit_shows_and_hides_its_window(self):
        shown = bool(self.windows())
        for _ in range(2):
            self.assertIn("Toggle window", self.open_menu("keep"))
            self.brimshade.do("choose", title="Toggle window")
            shown = not shown
            self.brimshade.until(f"window shown: {shown}", lambda s, now=shown: bool(self.windows()) == now)

    def test_4_programs_that_are_told_to_quit_are_gone_from_the_bar(self):
        for typed, process in (("redsh", self.redshift), ("keep", self.keepassxc)):
            self.assertEqual(self.open_menu(typed)[-1], "Quit")
            self.brimshade.do("choose", title="Quit")
            self.brimshade.until(f"end of {typed}", lambda s, p=process: p.poll() is not None)
        self.brimshade.until("empty bar", lambda s: len(s["menuBar"]) == 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
