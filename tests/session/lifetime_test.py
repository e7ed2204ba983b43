#!/usr/bin/env python3
"""lifetime_test.py PROGRAM: what Brimshade survives in real sessions, and how it ends: on request, with the display, or
because it hangs while it has the keyboard."""
import json
import os
import signal
import subprocess
import sys
import unittest

from lib.brimshade import Brimshade
from lib.sway import Sway
from lib.waiting import PATIENCE
from lib.x11 import X11

PROGRAM = sys.argv.pop(1)
LONGER_THAN_THE_WATCHDOG_WAITS = 4  # seconds


class Lifetime:
    """Each test has a session of its own, with a terminal in it."""

    def setUp(self):
        self.session = self.make_session()
        self.addCleanup(self.session.close)
        self.session.start_bus()
        self.brimshade = Brimshade(self.session, PROGRAM, settings={"onboardingDone": True, "foreign": ["kept"] * 1000})
        self.brimshade.until("the bar", lambda state: state["statusItem"])
        self.hands = self.session.hands()  # before the terminal, which would have to learn of a new keyboard
        self.terminal = self.session.terminal()
        x, y, width, height = self.session.rect("terminal")
        self.hands.click(x + width // 4, y + height - 20)  # X11 briefly gives the keys to what is under the pointer

    def request(self, word):
        done = subprocess.run([PROGRAM, word], env=self.session.environment, capture_output=True, text=True,
                              timeout=PATIENCE)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    def open_panel(self):
        self.request("--toggle")
        self.brimshade.until("the open panel", lambda s: s["model"]["isOpen"] and s["keys"] == "panel")

    def tell(self, **command):
        """Sends a command without waiting for the answer."""
        self.brimshade.process.stdin.write(json.dumps(command).encode() + b"\n")
        self.brimshade.process.stdin.flush()

    def assert_ends(self, status, *words):
        """All lines on standard error are Brimshade's own, and the last one has these words."""
        ended = self.session.wait_for_end(self.brimshade.process, "the end of Brimshade")
        self.assertEqual(ended, status, self.session.errors("brimshade"))
        # If the tests run as root, sway runs as another user, about which Qt complains.
        lines = [line for line in self.session.errors("brimshade").splitlines() if "is not owned by UID 0" not in line]
        self.assertTrue(all(line.startswith("brimshade: ") for line in lines), lines)
        for word in words:
            self.assertIn(word, lines[-1])

    def assert_terminal_has_keys(self):
        self.hands.type("typed\n")
        self.assertEqual(self.terminal.line(), "typed")

    def test_it_ends_with_the_display_and_its_settings_are_whole(self):
        self.open_panel()
        self.session.kill_display()
        self.assert_ends(1)
        self.assertEqual(json.loads((self.session.home / "settings.json").read_text())["foreign"], ["kept"] * 1000)

    def test_as_a_unit_of_systemd_it_says_that_the_display_has_gone(self):
        self.request("--quit")
        self.assert_ends(0)
        unit = self.session.home / "unit"
        unit.write_text(f'#!/bin/sh\nexport SYSTEMD_EXEC_PID=$$\nexec "{PROGRAM}" "$@"\n')
        unit.chmod(0o755)
        self.brimshade = Brimshade(self.session, unit)
        self.brimshade.until("the bar", lambda state: state["statusItem"])
        self.session.kill_display()
        self.assert_ends(3)

    def test_a_hang_with_the_keyboard_ends_it_and_the_keys_are_the_users(self):
        self.open_panel()
        self.tell(do="stick", seconds=60)
        self.assert_ends(1, "hung", "brimshade --session")
        self.assert_terminal_has_keys()

    def test_a_hang_without_the_keyboard_is_borne(self):
        self.brimshade.do("stick", seconds=LONGER_THAN_THE_WATCHDOG_WAITS)
        self.open_panel()

    def test_a_process_that_was_stopped_lives_on(self):
        self.open_panel()
        self.brimshade.process.send_signal(signal.SIGSTOP)
        os.waitpid(self.brimshade.process.pid, os.WUNTRACED)
        self.session.output_of("sleep", LONGER_THAN_THE_WATCHDOG_WAITS)  # this time itself is what is tested
        self.brimshade.process.send_signal(signal.SIGCONT)
        self.brimshade.do("advance", seconds=1)  # the watchdog has looked a few times
        self.assertTrue(self.brimshade.do("state")["shown"])
        self.hands.key("Escape")
        self.brimshade.until("the closed panel", lambda s: not s["panel"]["onScreen"])
        self.assert_terminal_has_keys()

    def test_it_says_nothing_when_it_makes_its_panel_ahead(self):
        self.brimshade.do("advance", seconds=1.2)  # in its own time: it does so a second after its launch
        self.request("--quit")
        self.assert_ends(0)

    def test_it_ends_when_it_is_told_to_whatever_it_shows(self):
        self.open_panel()
        self.request("--quit")
        self.assert_ends(0)
        self.assert_terminal_has_keys()


class OnSway(Lifetime, unittest.TestCase):
    def make_session(self):
        return Sway()


class OnX11(Lifetime, unittest.TestCase):
    def make_session(self):
        return X11()


if __name__ == "__main__":
    unittest.main(verbosity=2)
