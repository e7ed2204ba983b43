"""Real pointer and keys: the window on a private X display with a window manager, driven by xdotool.

A script on standard input only looks (state) and lets time pass (advance) until what a hand did has taken effect."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv.pop(1)
PATIENCE = 100  # looks, 0.1 s of the program's time apart, before a thing that should happen has not

APPLICATIONS = [
    {"pid": 700, "name": "Menu Agent", "bundleIdentifier": "com.apple.MenuBarAgent",
     "extras": [{"identifier": "x.clock", "description": "Clock", "width": 90}]},
    *[{"pid": 800 + n, "name": name, "bundlePath": f"/Applications/{name}.app", "icon": "#3b82f6",
       "extras": [{"identifier": f"{name}.main", "title": name, "menu": [f"Open {name}", "-", f"Quit {name}"]}]}
      for n, name in enumerate(["Relay", "Harbor", "Quill", "Kiln", "Relish"])]]
DESKTOP = {"screens": [{"name": "Built-in Display", "frame": [0, 0, 1280, 800], "menuBarHeight": 37,
                        "notch": [560, 720]}], "applications": APPLICATIONS, "defaults": {"onboardingDone": True}}


class Display:
    """Xvfb with openbox on it."""

    def __init__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1400x900x24", "-nolisten", "tcp"],
                                       pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            self.environment = {**os.environ, "DISPLAY": ":" + numbers.readline().strip(), "QT_QUICK_BACKEND": "software",
                                "QT_QPA_PLATFORM": "xcb"}
        self.environment.pop("WAYLAND_DISPLAY", None)
        with tempfile.TemporaryDirectory() as folder:
            ready = os.path.join(folder, "ready")
            os.mkfifo(ready)  # opening it waits for the window manager to write
            self.manager = subprocess.Popen(["openbox", "--startup", f"sh -c 'echo > {ready}'"], env=self.environment,
                                            stderr=subprocess.DEVNULL)
            pathlib.Path(ready).read_text()

    def close(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, capture_output=True, text=True,
                              check=True).stdout


class RealInput(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.display = Display()
        cls.addClassCleanup(cls.display.close)

    def setUp(self):
        self.start(DESKTOP)

    def start(self, description):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        desktop = pathlib.Path(folder.name) / "desktop.json"
        desktop.write_text(json.dumps(description))
        self.program = subprocess.Popen([PROGRAM, "--script", "-", "--window", "--desktop", str(desktop)],
                                        env=self.display.environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.end, self.program)
        self.do("advance", seconds=0.1)
        self.window = self.display.xdotool("search", "--sync", "--onlyvisible", "--pid", self.program.pid).split()[-1]
        self.display.xdotool("windowactivate", self.window)
        self.until("the icon stands in the bar", lambda s: s["statusItem"] and s["statusItem"]["drawn"])

    def end(self, program):
        if program.stdin.closed:
            return
        program.stdin.close()
        program.wait()
        program.stdout.close()

    def focus_another_program(self):
        other = subprocess.Popen(["xev", "-geometry", "200x100+20+750"], env=self.display.environment,
                                 stdout=subprocess.DEVNULL)
        self.addCleanup(other.wait)
        self.addCleanup(other.terminate)
        window = self.display.xdotool("search", "--sync", "--onlyvisible", "--name", "Event Tester").split()[-1]
        self.display.xdotool("windowactivate", "--sync", window)

    def do(self, command, **fields):
        self.program.stdin.write(json.dumps({"do": command, **fields}) + "\n")
        self.program.stdin.flush()
        answer = json.loads(self.program.stdout.readline())
        self.assertTrue(answer["ok"], answer)
        return answer

    def until(self, what, holds):
        for _ in range(PATIENCE):
            state = self.do("state")
            if holds(state):
                return state
            self.do("advance", seconds=0.1)
        self.fail(f"{what}: not so in {state}")

    def tile(self, name):
        """The tile of that name once it has come in."""
        for _ in range(PATIENCE):
            for element in self.do("find", text=name)["elements"]:
                if element["role"] == "Button" and element["window"] == "panel" and element["opacity"] > 0.9:
                    return element
            self.do("advance", seconds=0.1)
        self.fail(f"no tile {name}")

    def point(self, x, y):
        """Moves the hand's pointer to a point of the display, which lies centred and scaled in the window."""
        lines = self.display.xdotool("getwindowgeometry", "--shell", self.window).splitlines()
        window = {key: int(value) for key, value in (line.split("=") for line in lines)}
        width, height = DESKTOP["screens"][0]["frame"][2:]
        scale = min(window["WIDTH"] / width, window["HEIGHT"] / height)
        left, top = (window["WIDTH"] - width * scale) / 2, (window["HEIGHT"] - height * scale) / 2
        self.display.xdotool("mousemove", "--window", self.window, round(left + x * scale), round(top + y * scale))
        self.until("the pointer follows", lambda s: abs(s["pointer"][0] - x) < 2 and abs(s["pointer"][1] - y) < 2)

    def click(self, frame, button=1):
        self.point(frame[0] + frame[2] / 2, frame[1] + frame[3] / 2)
        self.display.xdotool("click", button)

    def press_key(self, *keys):
        self.display.xdotool("key", *keys)

    def open_panel(self):
        self.click(self.do("state")["statusItem"]["frame"])
        return self.until("the panel is open with its tiles",
                          lambda s: s["model"]["isOpen"] and len(s["model"]["extras"]) == 6 and s["panel"]["isKey"])

    def test_a_click_typing_arrows_and_return_open_an_items_menu(self):
        self.open_panel()
        self.display.xdotool("type", "rel")
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
        self.display.xdotool("type", "k")
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
        self.click(self.do("state")["statusItem"]["frame"], button=3)
        state = self.until("the menu is open", lambda s: s["menu"])
        self.assertEqual(state["menu"], ["Settings…", "Setup Guide…", "Refresh", "-", "Quit Brimshade"])
        self.assertTrue(state["shown"])

    def test_the_shortcut_toggles_the_panel_from_another_focused_program(self):
        self.end(self.program)
        self.start({**DESKTOP, "defaults": {"onboardingDone": True, "shortcut": "controlOptionSpace"}})
        self.focus_another_program()
        self.press_key("ctrl+alt+space")
        self.until("the panel is shown", lambda s: s["shown"])
        self.until("its window has the keys of the session",
                   lambda _: self.display.xdotool("getwindowfocus").strip() == self.window)
        self.display.xdotool("type", "rel")
        self.until("what is typed is searched for", lambda s: s["model"]["query"] == "rel")
        self.press_key("ctrl+alt+space")
        self.until("and closed again", lambda s: not s["shown"])

    def test_without_a_shortcut_the_keys_go_to_the_focused_program(self):
        self.focus_another_program()
        self.press_key("ctrl+alt+space")
        self.do("advance", seconds=0.5)
        self.assertFalse(self.do("state")["shown"])

    def test_a_hand_drags_an_item_across_the_divider(self):
        self.end(self.program)
        self.start({**DESKTOP, "defaults": {"onboardingDone": True, "dividerEnabled": True}})
        state = self.until("the divider is wide", lambda s: s["divider"]["isExpanded"] and s["statusItem"]["frame"][2] > 100)
        tucked = max((i for i in state["menuBar"] if 800 <= i["pid"] and i["frame"][0] < state["statusItem"]["frame"][0]),
                     key=lambda item: item["frame"][0])
        clock = next(i for i in state["menuBar"] if i["pid"] == 700)
        self.point(tucked["frame"][0] + 15, 18)
        self.display.xdotool("keydown", "super", "mousedown", 1)
        self.point(clock["frame"][0] - 2, 18)
        self.display.xdotool("mouseup", 1, "keyup", "super")
        moved = self.until("it stands right of the icon", lambda s: s["statusItem"]["drawn"] and next(
            i for i in s["menuBar"] if i["pid"] == tucked["pid"])["frame"][0] > s["statusItem"]["frame"][0])
        self.assertFalse(moved["model"]["scanned"])
        self.click([moved["statusItem"]["frame"][0] + moved["statusItem"]["frame"][2] - 14, 18, 0, 0])
        self.until("the next scan shows it on its new side",
                   lambda s: any(e["id"].startswith(f"{tucked['pid']}-") and not e["isHidden"] for e in s["model"]["extras"]))

    def test_hiding_from_a_tiles_menu_moves_the_item_behind_the_notch(self):
        self.open_panel()
        extra = next(e for e in self.do("state")["model"]["extras"] if e["name"] == "Relay")
        self.assertFalse(extra["isHidden"])
        self.click(self.tile("Relay")["frame"], button=3)
        self.until("the tile's menu is open", lambda s: s["menu"] == ["Open", "Hide from Menu Bar"])
        self.press_key("Down", "Down", "Return")
        self.until("the move begins", lambda s: s["model"]["movingID"] == extra["id"])
        state = self.until("and ends with the item hidden",
                           lambda s: s["model"]["movingID"] is None
                           and next(e for e in s["model"]["extras"] if e["name"] == "Relay")["isHidden"])
        self.assertIsNone(state["model"]["message"])
        self.assertTrue(state["model"]["dividerEnabled"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
