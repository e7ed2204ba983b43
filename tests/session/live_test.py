#!/usr/bin/env python3
"""live_test.py PROGRAM: Brimshade as the menu bar of real sessions without a screen: a compositor or an X server, real tray
programs, a real terminal, real pointer and keys."""
import json
import pathlib
import re
import subprocess
import sys
import unittest

from lib.brimshade import Brimshade, matches
from lib.sway import Sway
from lib.waiting import PATIENCE
from lib.x11 import X11

PROGRAM = sys.argv.pop(1)
BAR_HEIGHT = 37
SCREEN_MIDDLE = 756
MOCK_ITEM = pathlib.Path(__file__).resolve().parent.parent / "support/mock_item.py"
BLACK = (0, 0, 0)


class Living:
    """What holds in every session; each subclass provides a session of its own."""

    @classmethod
    def setUpClass(cls):
        cls.session = cls.make_session()
        cls.addClassCleanup(cls.session.close)
        cls.session.start_bus()
        keepass = cls.session.home / ".config/keepassxc/keepassxc.ini"
        keepass.parent.mkdir(parents=True)
        keepass.write_text(
            "[General]\nUpdateCheckMessageShown=true\n[GUI]\nShowTrayIcon=true\nMinimizeToTray=true\n")
        cls.brimshade = Brimshade(cls.session, PROGRAM)
        cls.brimshade.until("the bar", lambda state: state["statusItem"])
        cls.redshift = cls.session.start("redshift-gtk", "-l", "50:10", "-m", "dummy")
        cls.keepassxc = cls.session.start("keepassxc")
        cls.brimshade.until("both items", lambda state: {"redshift", "KeePassXC"} <= bar_items(state))
        cls.hands = cls.session.hands()  # before the terminal, which would have to learn of a new keyboard
        cls.terminal = cls.session.terminal()

    def setUp(self):
        self.click_terminal()
        self.session.until_focused("terminal")

    def click_terminal(self):
        """Clicks below everything that opens out of the bar."""
        x, y, width, height = self.session.rect("terminal")
        self.hands.click(x + width // 4, y + height - 20)

    def tearDown(self):
        """Each test leaves the session as it found it: nothing open, the terminal in front."""
        self.close_panel()

    def close_panel(self):
        for _ in range(3):
            state = self.brimshade.do("state")
            if not (state["shown"] or state["menu"]):
                break
            self.hands.key("Escape")
            self.brimshade.do("advance", seconds=0.3)
        self.brimshade.until("the closed panel", lambda s: not s["panel"]["onScreen"] and not s["menu"])

    def request(self, *words):
        return subprocess.run([PROGRAM, *words], env=self.session.environment, capture_output=True, text=True,
                              timeout=PATIENCE)

    def open_panel(self):
        self.assertEqual(self.request("--toggle").returncode, 0)
        self.brimshade.until("the open panel", lambda s: s["keys"] == "panel" and s["outside"])

    def search(self, text):
        self.hands.type(text)
        return self.brimshade.until(f"one match of {text}", lambda s: s["model"]["query"] == text and len(matches(s)) == 1
                                    and s["model"]["selectedID"])

    def open_menu(self, text):
        self.open_panel()
        self.search(text)
        self.hands.key("Return")
        return self.brimshade.until(f"the menu of {text}", lambda s: s["keys"] == "menu" and s["menu"])

    def assert_terminal_has_keys(self, text):
        self.hands.type(text + "\n")
        self.assertEqual(self.terminal.line(), text)

    def redshift_icon(self):
        reply = self.session.output_of(
            "dbus-send", "--session", "--print-reply", "--dest=org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher",
            "org.freedesktop.DBus.Properties.Get", "string:org.kde.StatusNotifierWatcher",
            "string:RegisteredStatusNotifierItems").decode()
        for owner, path in re.findall(r'string "([^"/]+)(/[^"]+)"', reply):
            def of(name):
                return self.session.output_of(
                    "dbus-send", "--session", "--print-reply=literal", f"--dest={owner}", path,
                    "org.freedesktop.DBus.Properties.Get", "string:org.kde.StatusNotifierItem", f"string:{name}").decode()
            if "redshift" in of("Id"):
                return of("IconName").split()[-1]
        return ""

    # The tests, in the order of their names

    def test_1_the_terminal_stands_below_the_bar_and_keeps_its_keys(self):
        self.assert_below_the_bar()
        self.assert_terminal_has_keys("before")

    def test_2_a_search_opens_a_real_menu_and_keys_choose_from_it(self):
        self.assertIn("redshift-status-on", self.redshift_icon())
        for expected in ("redshift-status-off", "redshift-status-on"):
            self.assertEqual(self.open_menu("redsh")[0], "Enabled")
            self.hands.key("Down")
            self.hands.key("Return")
            self.brimshade.until(f"the icon {expected}", lambda s, icon=expected: icon in self.redshift_icon())
        self.assert_terminal_has_keys("afterkeys")

    def test_2b_commands_list_the_items_and_open_the_menu_of_one(self):
        listed = json.loads(self.request("--list", "--json").stdout)
        self.assertLessEqual({("redshift-gtk", "Redshift", "visible"), ("KeePassXC", "KeePassXC", "visible")},
                             {(item["name"], item["program"], item["side"]) for item in listed})
        opened = self.request("--open", "keepassxc")
        self.assertEqual((opened.returncode, opened.stderr), (0, ""))
        self.brimshade.until("its menu", lambda s: s["keys"] == "menu" and "Toggle window" in s["menu"])
        self.hands.key("Escape")
        self.brimshade.until("no menu", lambda s: not s["menu"])
        self.assert_terminal_has_keys("afteropen")
        missed = self.request("--open", "nothing")
        self.assertEqual((missed.returncode, missed.stderr), (1, 'brimshade: no item is named "nothing"\n'))

    def test_3_the_pointer_chooses_from_a_menu(self):
        shown = self.has_keepass_window()
        for _ in range(2):
            self.open_menu("keep")
            row = self.brimshade.row("Toggle window")
            self.hands.click(*row)
            shown = not shown
            self.session.until(f"KeePassXC's window shown: {shown}", lambda now=shown: self.has_keepass_window() == now)

    def test_3b_a_program_gets_a_token_for_its_windows_before_what_is_chosen(self):
        calls = self.session.lines_of("/usr/bin/python3", MOCK_ITEM, json.dumps({"properties": {"Title": "Token"}}),
                                      stdin=subprocess.PIPE)
        self.brimshade.until("the item", lambda s: "mock" in bar_items(s))
        self.assertEqual(self.request("--open", "Token").returncode, 0)
        self.brimshade.until("its menu", lambda s: s["menu"] == ["Open"] and s["keys"] == "menu")
        self.hands.key("Down")
        self.hands.key("Return")
        before = []
        while (line := calls.next(f"the choice after {before}")) and "clicked" not in line:
            before.append(line)
        tokens = [json.loads(line)[1] for line in before if "ProvideXdgActivationToken" in line]
        self.assertEqual(len(tokens), 1, before)
        self.assertTrue(tokens[0])

    def test_4_a_click_elsewhere_and_escape_close(self):
        self.open_panel()
        self.click_terminal()
        self.brimshade.until("the panel closed by a click elsewhere", lambda s: not s["shown"])
        self.assert_terminal_has_keys("afterclick")
        self.open_panel()
        self.hands.key("Escape")
        self.brimshade.until("the panel closed by Escape", lambda s: not s["shown"])
        self.assert_terminal_has_keys("afterescape")

    def test_5_the_bar_takes_clicks_as_a_menu_bar_does(self):
        self.hands.click(*self.brimshade.icon(), "right")
        menu = self.brimshade.until("Brimshade's own menu", lambda s: s["outside"] and s["menu"])
        self.assertEqual(menu[0], "Settings…")
        self.click_terminal()
        self.brimshade.until("no menu", lambda s: not s["menu"])
        self.hands.click(*self.brimshade.icon())
        self.brimshade.until("the panel opened by its icon", lambda s: s["shown"])

    def test_6_a_full_screen_window_covers_the_bar_and_not_the_panel(self):
        self.session.set_full_screen("terminal", True)
        self.session.until_picture("a covered bar", lambda picture: picture[3, 3] == picture[3, 200])
        self.open_panel()
        self.session.until_picture("the panel over it", lambda picture: picture[SCREEN_MIDDLE, 4] == BLACK)
        self.close_panel()
        self.session.set_full_screen("terminal", False)
        self.brimshade.until("the bar again", lambda s: s["statusItem"]["drawn"])

    def test_7_a_second_one_opens_the_first_ones_panel_and_ends(self):
        second = subprocess.run([PROGRAM, "--session"], env=self.session.environment, capture_output=True, text=True,
                                timeout=PATIENCE)
        self.assertEqual(second.returncode, 0, second.stderr)
        self.brimshade.until("the open panel", lambda s: s["shown"])

    def test_8_it_ends_when_it_is_told_to(self):
        self.assertEqual(self.request("--settings").returncode, 0)
        self.brimshade.until("the settings", lambda s: any(w["name"] == "settings" and w["visible"] for w in s["windows"]))
        self.session.until("the settings window with its icon", self.has_settings_with_icon)
        self.assertEqual(self.request("--quit").returncode, 0)
        self.assertEqual(self.session.wait_for_end(self.brimshade.process, "the end of Brimshade"), 0)
        gone = self.request("--toggle")
        self.assertEqual(gone.returncode, 1)
        self.assertIn("--session", gone.stderr)
        type(self).brimshade = Brimshade(self.session, PROGRAM)  # for the tests that follow
        self.brimshade.until("the bar", lambda state: state["statusItem"])


def bar_items(state):
    return {item["identifier"] for item in state["menuBar"]}


class OnSway(Living, unittest.TestCase):
    @classmethod
    def make_session(cls):
        session = Sway()
        session.environment["QT_QPA_PLATFORM"] = "wayland"
        return session

    def assert_below_the_bar(self):
        self.assertEqual(self.session.rect("terminal")[1], BAR_HEIGHT)
        self.assertEqual(self.session.output()["rect"]["height"] - self.session.rect("terminal")[3], BAR_HEIGHT)

    def has_settings_with_icon(self):
        """A compositor finds the icon in the desktop entry of that name."""
        return any(window["app_id"] == "org.brimshade.Brimshade" for window in self.session.windows())

    def has_keepass_window(self):
        return any("keepassxc" in window["app_id"].lower() for window in self.session.windows())


class OnX11(Living, unittest.TestCase):
    composited = False

    @classmethod
    def make_session(cls):
        return X11(composited=cls.composited)

    def assert_below_the_bar(self):
        self.assertEqual(self.session.work_area(), [0, BAR_HEIGHT, 1512, 982 - BAR_HEIGHT])

    def has_settings_with_icon(self):
        window = self.session.window("brimshade")
        return window and "Icon (" in self.session.output_of("xprop", "-id", str(window), "_NET_WM_ICON").decode()

    def has_keepass_window(self):
        return bool(self.session.window("keepassxc"))


class OnCompositedX11(OnX11):
    composited = True


if __name__ == "__main__":
    unittest.main(verbosity=2)
