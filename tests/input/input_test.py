"""Real pointer and keys: the program's window on a private X display with a window manager, driven by xdotool.

A script on standard input only looks (state) and lets time pass (advance) until what the hands did has taken effect."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import PATIENCE, Session  # noqa: E402

PROGRAM = sys.argv.pop(1)

APPLICATIONS = [
    {"pid": 700, "name": "Menu Agent", "bundleIdentifier": "com.apple.MenuBarAgent",
     "extras": [{"identifier": "x.clock", "description": "Clock", "width": 90}]},
    *[{"pid": 800 + n, "name": name, "bundlePath": f"/Applications/{name}.app", "icon": "#3b82f6",
       "extras": [{"identifier": f"{name}.main", "title": name, "menu": [f"Open {name}", "-", f"Quit {name}"]}]}
      for n, name in enumerate(["Relay", "Harbor", "Quill", "Kiln", "Relish"])]]
DESKTOP = {"screens": [{"name": "Built-in Display", "frame": [0, 0, 1280, 800], "menuBarHeight": 37,
                        "notch": [560, 720]}], "applications": APPLICATIONS, "defaults": {"onboardingDone": True}}


class RealInput(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = Session()
        cls.addClassCleanup(cls.session.close)
        cls.session.start_window_manager()

    def setUp(self):
        self.start(DESKTOP)

    def start(self, description):
        self.program = self.session.start_program(PROGRAM, description, "--window")
        self.addCleanup(self.program.end)
        self.program.wait(0.1)
        self.window = self.xdotool("search", "--sync", "--onlyvisible", "--pid", self.program.pid).split()[-1]
        self.xdotool("windowactivate", self.window)
        self.until("the icon stands in the bar", lambda s: s["statusItem"] and s["statusItem"]["drawn"])

    def xdotool(self, *arguments):
        return self.session.xdotool(*arguments)

    def until(self, what, holds):
        """Waits for a state in which it holds, and returns that."""
        return self.program.until(what, lambda state: holds(state) and state)

    def focus_another_program(self):
        other = self.session.start("xev", "-geometry", "200x100+20+750")
        self.addCleanup(other.wait, PATIENCE)
        self.addCleanup(other.terminate)
        window = self.xdotool("search", "--sync", "--onlyvisible", "--name", "Event Tester").split()[-1]
        self.xdotool("windowactivate", "--sync", window)

    def tile(self, name):
        """The tile of that name, once it has appeared."""
        def tiles(_):
            return [e for e in self.program.found(name, role="Button", window="panel") if e["opacity"] > 0.9]
        return self.program.until(f"a tile {name}", tiles)[0]

    def point(self, x, y):
        """Moves the real pointer to a point of the display, which is centred and scaled in the window."""
        lines = self.xdotool("getwindowgeometry", "--shell", self.window).splitlines()
        window = {key: int(value) for key, value in (line.split("=") for line in lines)}
        width, height = DESKTOP["screens"][0]["frame"][2:]
        scale = min(window["WIDTH"] / width, window["HEIGHT"] / height)
        left, top = (window["WIDTH"] - width * scale) / 2, (window["HEIGHT"] - height * scale) / 2
        self.xdotool("mousemove", "--window", self.window, round(left + x * scale), round(top + y * scale))
        self.until("the pointer follows", lambda s: abs(s["pointer"][0] - x) < 2 and abs(s["pointer"][1] - y) < 2)

    def click(self, frame, button=1):
        self.point(frame[0] + frame[2] / 2, frame[1] + frame[3] / 2)
        self.xdotool("click", button)

    def press_key(self, *keys):
        self.xdotool("key", *keys)

    def open_panel(self):
        self.click(self.program.state()["statusItem"]["frame"])
        return self.until("the panel is open with its tiles",
                          lambda s: s["model"]["isOpen"] and len(s["model"]["extras"]) == 6 and s["panel"]["isKey"])

    def test_a_click_typing_arrows_and_return_open_an_items_menu(self):
        self.open_panel()
        self.xdotool("type", "rel")
        state = self.until("two items match", lambda s: s["model"]["query"] == "rel")
        matches = state["model"]["hiddenMatches"] + state["model"]["visibleMatches"]
        names = {extra["id"]: extra["name"] for extra in state["model"]["extras"]}
        self.assertEqual(sorted(names[i] for i in matches), ["Relay", "Relish"])
        self.assertEqual(state["model"]["selectedID"], matches[0])

        self.press_key("Right")
        self.until("the arrow selects the second", lambda s: s["model"]["selectedID"] == matches[1])
        self.press_key("Return")
        chosen = names[matches[1]]
        self.until("its real menu opens", lambda s: s["menu"] == [f"Open {chosen}", "-", f"Quit {chosen}"])

    def test_escape_clears_the_search_then_closes(self):
        self.open_panel()
        self.xdotool("type", "k")
        self.until("it searches", lambda s: s["model"]["query"] == "k")
        self.press_key("Escape")
        self.assertTrue(self.until("the search is cleared", lambda s: s["model"]["query"] == "")["shown"])
        self.press_key("Escape")
        self.until("the panel is gone", lambda s: not s["shown"] and not s["panel"]["onScreen"])

    def test_a_click_on_a_tile_opens_it_and_a_click_outside_closes(self):
        self.open_panel()
        self.click(self.tile("Quill")["frame"])
        self.until("its menu opens", lambda s: s["menu"] == ["Open Quill", "-", "Quit Quill"])
        self.press_key("Escape")
        self.until("the menu is gone", lambda s: s["menu"] is None)

        self.open_panel()
        self.click([100, 760, 0, 0])
        self.until("the panel is closed", lambda s: not s["shown"])

    def test_a_right_click_opens_the_programs_menu_and_leaves_the_panel(self):
        self.open_panel()
        self.click(self.program.state()["statusItem"]["frame"], button=3)
        state = self.until("the menu is open", lambda s: s["menu"])
        self.assertEqual(state["menu"], ["Settings…", "Setup Guide…", "Refresh", "-", "Quit Brimshade"])
        self.assertTrue(state["shown"])

    def test_the_shortcut_toggles_the_panel_from_another_focused_program(self):
        self.program.end()
        self.start({**DESKTOP, "defaults": {"onboardingDone": True, "shortcut": "controlOptionSpace"}})
        self.focus_another_program()
        self.press_key("ctrl+alt+space")
        self.until("the panel is shown", lambda s: s["shown"])
        self.until("its window has the keys of the session",
                   lambda _: self.xdotool("getwindowfocus").strip() == self.window)
        self.xdotool("type", "rel")
        self.until("what is typed is searched for", lambda s: s["model"]["query"] == "rel")
        self.press_key("ctrl+alt+space")
        self.until("and closed again", lambda s: not s["shown"])

    def test_without_a_shortcut_the_keys_go_to_the_focused_program(self):
        self.focus_another_program()
        self.press_key("ctrl+alt+space")
        self.program.wait(0.5)
        self.assertFalse(self.program.state()["shown"])

    def test_a_hand_drags_an_item_across_the_divider(self):
        self.program.end()
        self.start({**DESKTOP, "defaults": {"onboardingDone": True, "dividerEnabled": True}})
        state = self.until("the divider is wide", lambda s: s["divider"]["isExpanded"] and s["statusItem"]["frame"][2] > 100)
        tucked = max((i for i in state["menuBar"] if 800 <= i["pid"] and i["frame"][0] < state["statusItem"]["frame"][0]),
                     key=lambda item: item["frame"][0])
        clock = next(i for i in state["menuBar"] if i["pid"] == 700)
        self.point(tucked["frame"][0] + 15, 18)
        self.xdotool("keydown", "super", "mousedown", 1)
        self.point(clock["frame"][0] - 2, 18)
        self.xdotool("mouseup", 1, "keyup", "super")
        moved = self.until("it stands right of the icon", lambda s: s["statusItem"]["drawn"] and next(
            i for i in s["menuBar"] if i["pid"] == tucked["pid"])["frame"][0] > s["statusItem"]["frame"][0])
        self.assertFalse(moved["model"]["scanned"])
        self.click([moved["statusItem"]["frame"][0] + moved["statusItem"]["frame"][2] - 14, 18, 0, 0])
        self.until("the next scan shows it on its new side",
                   lambda s: any(e["id"].startswith(f"{tucked['pid']}-") and not e["isHidden"] for e in s["model"]["extras"]))

    def test_hiding_from_a_tiles_menu_moves_the_item_behind_the_notch(self):
        self.open_panel()
        extra = next(e for e in self.program.state()["model"]["extras"] if e["name"] == "Relay")
        self.assertFalse(extra["isHidden"])
        self.click(self.tile("Relay")["frame"], button=3)
        self.until("the tile's menu is open", lambda s: s["menu"] == ["Open", "Hide from Menu Bar", "-", "Set Shortcut…"])
        self.press_key("Down", "Down", "Return")
        self.until("the move begins", lambda s: s["model"]["movingID"] == extra["id"])
        state = self.until("and ends with the item hidden",
                           lambda s: s["model"]["movingID"] is None
                           and next(e for e in s["model"]["extras"] if e["name"] == "Relay")["isHidden"])
        self.assertIsNone(state["model"]["message"])
        self.assertTrue(state["model"]["dividerEnabled"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
