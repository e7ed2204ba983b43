#!/usr/bin/env python3
"""shortcut_test.py PROGRAM: a person gives a tray item a shortcut of its own, using only keys, and uses it, in real
sessions without a screen."""
import json
import pathlib
import subprocess
import sys
import unittest

from lib.brimshade import Brimshade, matches
from lib.sway import Sway
from lib.waiting import PATIENCE
from lib.x11 import X11

PROGRAM = sys.argv.pop(1)
MOCK_ITEM = pathlib.Path(__file__).resolve().parent.parent / "support/mock_item.py"
KEYS = ("Control", "Alt", "k")


class Living:
    def setUp(self):
        self.session = self.make_session()
        self.addCleanup(self.session.close)
        self.session.start_bus()
        self.start_brimshade()
        self.clip = self.start_item("Clip")
        self.hands = self.session.hands()
        self.terminal = self.session.terminal()

    def start_brimshade(self):
        self.brimshade = Brimshade(self.session, PROGRAM)
        self.brimshade.until("the bar", lambda s: s["statusItem"])

    def end_brimshade(self):
        self.request("--quit")
        self.session.wait_for_end(self.brimshade.process, "the end of Brimshade")

    def start_item(self, name):
        item = {"properties": {"Id": name.lower(), "Title": name}, "menu": [[f"Open {name}", ""]]}
        calls = self.session.lines_of("/usr/bin/python3", MOCK_ITEM, json.dumps(item), stdin=subprocess.PIPE)
        self.program = self.session._processes[-1]
        self.brimshade.until(f"the item {name}", lambda s: name.lower() in [i["identifier"] for i in s["menuBar"]])
        return calls

    def request(self, *words):
        answer = subprocess.run([PROGRAM, *words], env=self.session.environment, capture_output=True, text=True,
                                timeout=PATIENCE)
        self.assertEqual(answer.returncode, 0, answer.stderr)

    def tile_menu(self, text, *entries):
        """Opens, by keys, the menu of the one tile that is found."""
        self.request("--toggle")
        self.brimshade.until("the open panel", lambda s: s["model"]["isOpen"] and s["keys"] == "panel")
        self.hands.type(text)
        self.brimshade.until(f"one match of {text}", lambda s: s["model"]["query"] == text and len(matches(s)) == 1)
        self.hands.key("Shift", "F10")
        self.brimshade.until(f"{entries} in its menu", lambda s: s["keys"] == "menu" and s["menu"] and
                             [e for e in s["menu"] if "Shortcut" in e] == list(entries))
        x, _, width, _ = self.brimshade.do("find", text="Open")["elements"][0]["frame"]
        self.assertLess(abs(x + width / 2 - 756), 400, "it opens where its tile is")

    def begin_to_record(self, text):
        self.tile_menu(text, "Set Shortcut…")
        self.hands.key("Up")
        self.hands.key("Return")
        self.brimshade.until("the recorder", lambda s: s["model"]["isRecording"] and s["keys"] == "panel")

    def close_panel(self):
        while self.brimshade.do("state")["shown"]:
            self.hands.key("Escape")
            self.brimshade.do("advance", seconds=0.2)
        self.brimshade.until("the closed panel", lambda s: not s["panel"]["onScreen"] and not s["keys"])

    def expect_sentence(self, text):
        self.brimshade.until(f"the sentence {text!r}",
                             lambda _: any(e["name"] == text for e in self.brimshade.do("find", text=text)["elements"]))

    def expect_menu(self, calls, name):
        """Expects the program's real menu and chooses from it by keys."""
        self.brimshade.until(f"the menu of {name}", lambda s: s["menu"] == [f"Open {name}"] and s["keys"] == "menu")
        self.hands.key("Down")
        self.hands.key("Return")
        heard = []
        while (line := calls.next(f"the choice after {heard}")) and "clicked" not in line:
            heard.append(line)
        self.brimshade.until("no menu", lambda s: not s["menu"] and not s["keys"])

    def assert_terminal_has_keys(self, text):
        self.hands.type(text + "\n")
        self.assertEqual(self.terminal.line(), text)


class OnX11(Living, unittest.TestCase):
    @staticmethod
    def make_session():
        return X11()

    def record(self, text, *keys):
        self.begin_to_record(text)
        self.hands.key(*keys)
        self.brimshade.until("the shortcut", lambda s: s["model"]["itemShortcuts"] and not s["model"]["isRecording"])
        self.close_panel()

    def test_it_opens_the_programs_menu_from_anywhere_and_after_restarts(self):
        self.record("clip", *KEYS)
        self.assert_terminal_has_keys("recorded")
        self.hands.key(*KEYS)
        self.expect_menu(self.clip, "Clip")
        self.assert_terminal_has_keys("chosen")

        self.end_brimshade()
        self.start_brimshade()
        self.brimshade.until("the item again", lambda s: "clip" in [i["identifier"] for i in s["menuBar"]])
        self.hands.key(*KEYS)
        self.expect_menu(self.clip, "Clip")

        self.program.terminate()
        self.brimshade.until("no item", lambda s: "clip" not in [i["identifier"] for i in s["menuBar"]])
        self.hands.key(*KEYS)
        self.brimshade.until("the message", lambda s: s["messages"] == ["Clip: It is not running."])
        again = self.start_item("Clip")
        self.hands.key(*KEYS)
        self.expect_menu(again, "Clip")

        self.tile_menu("clip", "Change Shortcut…", "Remove Shortcut")
        self.assertTrue(self.brimshade.do("find", text="Ctrl+Alt+K")["elements"], "its keys stand in the menu")
        self.hands.key("Up")
        self.hands.key("Return")
        self.brimshade.until("no shortcut", lambda s: not s["model"]["itemShortcuts"] and not s["hotkeys"])

    def test_keys_that_another_has_are_refused_with_a_sentence(self):
        self.start_item("Paste")
        self.record("paste", *KEYS)
        self.begin_to_record("clip")
        self.hands.key(*KEYS)
        self.expect_sentence("Ctrl+Alt+K already opens the menu of Paste.")
        self.hands.key("Super", "d")  # the window manager's own shortcut
        self.expect_sentence("Super+D already belongs to another program.")
        self.hands.key("k")
        self.expect_sentence("That can't be a shortcut. Hold Ctrl, Alt or Super and press a key.")
        self.hands.key("Escape")
        self.brimshade.until("no recorder", lambda s: s["shown"] and not s["model"]["isRecording"])
        self.close_panel()
        self.assert_terminal_has_keys("afterwards")


class OnSway(Living, unittest.TestCase):
    @staticmethod
    def make_session():
        session = Sway()
        session.environment["QT_QPA_PLATFORM"] = "wayland"
        return session

    def test_the_recorder_says_what_to_bind_and_that_works(self):
        self.start_item("It's paste")
        self.begin_to_record("paste")
        command = r"brimshade --open 'It'\''s paste'"
        self.expect_sentence(f"Here no program may take a shortcut by itself. Bind a key to “{command}”; in sway:\n"
                             f"bindsym Mod4+m exec {command}")
        self.hands.key("Escape")
        self.close_panel()
        # The way a key binding would run it; this sway runs as another user and has no bus.
        self.session.output_of("sh", "-c", command.replace("brimshade", PROGRAM, 1))
        self.brimshade.until("its menu", lambda s: s["menu"] == ["Open It's paste"] and s["keys"] == "menu")


if __name__ == "__main__":
    unittest.main(verbosity=2)
