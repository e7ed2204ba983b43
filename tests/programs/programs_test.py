"""Tray programs that this project did not write: found by the scan, opened by name, an entry of their menu chosen."""
import json
import subprocess
import sys
import unittest

from session import Session

PROGRAM = sys.argv.pop(1)
RETURN, ESCAPE = 36, 53
DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [663, 849]}],
    "applications": [], "defaults": {"onboardingDone": True},
}


class Brimshade:
    """The whole program in real time, by its script."""

    def __init__(self, session):
        session.write("desktop.json", json.dumps(DESKTOP))
        self._process = session.start(PROGRAM, "--script", "-", "--tray", "--real-time", "--desktop",
                                      str(session.home / "desktop.json"), stdin=subprocess.PIPE,
                                      stdout=subprocess.PIPE, stderr=None, text=True)

    def do(self, command, **fields):
        self._process.stdin.write(json.dumps({"do": command, **fields}) + "\n")
        self._process.stdin.flush()
        answer = json.loads(self._process.stdout.readline())
        if not answer["ok"]:
            raise AssertionError(f"{command} {fields}: {answer['error']}")
        return answer

    def wait_for(self, what, condition):
        """Time passes in the program until its state satisfies the condition, which is then returned."""
        for _ in range(600):
            state = self.do("state")
            result = condition(state)
            if result:
                return result
            self.do("advance", seconds=0.05)
        raise AssertionError(f"no {what}; the last state: {json.dumps(state)[:4000]}")

    def toggle_panel(self):
        x, y, width, height = self.do("state")["statusItem"]["frame"]
        self.do("click", at=[x + width / 2, y + height / 2])

    def open_menu(self, typed):
        """Opens the panel, types part of a name, Return; answers with the titles of the menu that opens."""
        self.toggle_panel()
        self.wait_for("open panel", lambda s: s["model"]["isOpen"] and s["panel"]["isKey"])
        self.do("type", text=typed)
        self.wait_for(f"one match of {typed}", lambda s: len(matches(s)) == 1)
        self.do("key", code=RETURN)
        return self.wait_for("menu", lambda s: s["menu"])


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
        cls.brimshade = Brimshade(cls.session)
        # Programs look for a watcher once, when they start.
        cls.brimshade.wait_for("watcher", lambda s: "WatcherRegistered" in cls.watcher_state())
        cls.redshift = cls.session.start("redshift-gtk", "-l", "50:10", "-m", "dummy")
        cls.keepassxc = cls.session.start("keepassxc")
        cls.brimshade.wait_for("two items in the bar", lambda s: len(s["menuBar"]) == 3)

    @classmethod
    def watcher_state(cls):
        reply = cls.session.output_of("dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
                                      "org.freedesktop.DBus.NameHasOwner", "string:org.kde.StatusNotifierWatcher")
        return "WatcherRegistered" if "boolean true" in reply else ""

    def item_of(self, part):
        return next((owner, path) for owner, path in self.session.items()
                    if part in self.session.property_of_item(owner, path, "Id"))

    def icon_of(self, part):
        return self.session.property_of_item(*self.item_of(part), "IconName")

    def windows(self):
        return self.session.output_of("xdotool", "search", "--onlyvisible", "--name", "KeePassXC").split()

    def test_1_the_scan_finds_them_under_their_names(self):
        self.brimshade.toggle_panel()
        self.brimshade.wait_for("both names", lambda s: {"Redshift", "KeePassXC"} <= names(s))
        icons = {e["name"]: e["hasIcon"] for e in self.brimshade.do("state")["model"]["extras"]}
        self.assertEqual(icons, {"Redshift": True, "KeePassXC": True})
        self.brimshade.do("key", code=ESCAPE)
        self.brimshade.wait_for("closed panel", lambda s: not s["panel"]["onScreen"])

    def test_2_an_indicator_is_switched_off_and_on_by_its_menu(self):
        self.assertIn("redshift-status-on", self.icon_of("redshift"))
        for expected in ("redshift-status-off", "redshift-status-on"):
            titles = self.brimshade.open_menu("redsh")
            self.assertEqual(titles, ["Enabled", "Suspend for", "Autostart", "Info", "Quit"])
            self.brimshade.do("choose", title="Enabled")
            self.brimshade.wait_for(expected, lambda s, icon=expected: icon in self.icon_of("redshift"))

    def test_3_a_program_of_another_toolkit_shows_and_hides_its_window(self):
        shown = bool(self.windows())
        for _ in range(2):
            self.assertIn("Toggle window", self.brimshade.open_menu("keep"))
            self.brimshade.do("choose", title="Toggle window")
            shown = not shown
            self.brimshade.wait_for(f"window shown: {shown}", lambda s, now=shown: bool(self.windows()) == now)

    def test_4_programs_that_are_told_to_quit_are_gone_from_the_bar(self):
        for typed, process in (("redsh", self.redshift), ("keep", self.keepassxc)):
            self.assertEqual(self.brimshade.open_menu(typed)[-1], "Quit")
            self.brimshade.do("choose", title="Quit")
            self.brimshade.wait_for(f"end of {typed}", lambda s, p=process: p.poll() is not None)
        self.brimshade.wait_for("empty bar", lambda s: len(s["menuBar"]) == 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
