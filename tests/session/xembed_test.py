#!/usr/bin/env python3
"""xembed_test.py PROGRAM: what programs dock into an X server's tray, as items of Brimshade: real programs, and one of
our own that does what the real ones do not."""
import json
import os
import pathlib
import subprocess
import sys
import unittest

from lib.brimshade import Brimshade, middle
from lib.desk import Desk
from lib.waiting import PATIENCE, Lines
from lib.x11 import X11

PROGRAM = sys.argv.pop(1)
MOCK_DOCKER = pathlib.Path(__file__).resolve().parent.parent / "support/mock_docker.py"
BAR_HEIGHT, ITEM_WIDTH = 37, 34
MOST_WINDOWS = 64
ELSEWHERE = (300, 700)
# One listens to core events and opens its menu at the pointer, wherever that is; the other reads the devices and opens
# its menu at its window.
REAL = {"parcellite": "pointer", "volumeicon": "item"}


class Docker:
    """A program that docks what it is told to, and reports what happens to it."""

    def __init__(self, session, **wanted):
        self._process = session.start("/usr/bin/python3", MOCK_DOCKER, json.dumps(wanted), stdin=subprocess.PIPE,
                                      stdout=subprocess.PIPE)
        self._lines = session.own(Lines(os.dup(self._process.stdout.fileno())))
        self.until_docked()

    def until_docked(self):
        assert self._lines.next("a docked window") == "docked"

    def press(self):
        return json.loads(self._lines.next("a press"))

    def tell(self, line):
        self._process.stdin.write(line.encode() + b"\n")
        self._process.stdin.flush()

    def kill(self):
        self._process.kill()
        self._process.wait()


class Docked:
    composited = False

    def setUp(self):
        self.session = X11(composited=self.composited)
        self.addCleanup(self.session.close)
        self.session.start_bus()
        self.desk = Desk(self.session)
        self.start_brimshade()
        self.hands = self.session.hands()

    def start_brimshade(self):
        self.order = self.session.home / "bar.json"
        self.brimshade = Brimshade(self.session, PROGRAM, "--state", self.order)
        self.brimshade.until("the bar", lambda s: s["statusItem"])
        self.until_owned()

    def until_owned(self):
        self.brimshade.until("an owner of the tray", lambda s: self.desk.tray_owner())

    def request(self, *words):
        answer = subprocess.run([PROGRAM, *words], env=self.session.environment, capture_output=True, text=True,
                                timeout=PATIENCE)
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))

    def frame(self, identifier):
        return self.brimshade.until(f"{identifier} in the bar", lambda s: next(
            (item["frame"] for item in s["menuBar"] if item["identifier"] == identifier and item["drawn"]), None))

    def until_gone(self, identifier):
        self.brimshade.until(f"the bar without {identifier}",
                             lambda s: identifier not in [item["identifier"] for item in s["menuBar"]])

    def until_pictured(self, identifier, colour=None):
        """Waits until more than the bar's own colour is seen at its place."""
        x, y, width, height = map(int, self.frame(identifier))
        self.session.until_picture(identifier, lambda picture: colour in (seen := {
            picture[column, row] for column in range(x, x + width) for row in range(y, y + height)})
            or (colour is None and len(seen) > 4))

    def assert_at(self, window, place):
        """Checks that it touches the place or covers a part of it."""
        for start, length, at, size in zip(window[:2], window[2:], place[:2], place[2:]):
            self.assertLessEqual(start, at + size + 1, (window, place))
            self.assertGreaterEqual(start + length, at - 1, (window, place))


class RealPrograms(Docked, unittest.TestCase):
    def test_they_are_shown_and_open_their_menus_at_their_items(self):
        for name, place in REAL.items():
            with self.subTest(name):
                process = self.session.start(name)
                self.until_pictured(name)
                self.hands.click(*middle(self.frame(name)), "right")
                self.expect_menu(name, "by a click", self.frame(name))
                self.hands.move(*ELSEWHERE)
                self.request("--open", name)
                at = [*ELSEWHERE, 1, 1] if place == "pointer" else self.frame(name)
                self.expect_menu(name, "from elsewhere", at)
                self.assertEqual(self.desk.pointer(), ELSEWHERE)
                process.terminate()
                self.until_gone(name)

    def expect_menu(self, name, how, at):
        found = self.brimshade.until(f"the menu of {name} {how}", lambda s: self.desk.opened(name))
        self.assert_at(found[0], at)
        self.hands.key("Escape")
        self.brimshade.until(f"no menu of {name}", lambda s: not self.desk.opened(name))


class CompositedRealPrograms(RealPrograms):
    composited = True


class MockPrograms(Docked, unittest.TestCase):
    def test_every_button_and_the_wheel_reach_the_window_at_its_item(self):
        docker = Docker(self.session, visual="argb", colour=0x20d060)
        self.until_pictured("docker", (0x20, 0xd0, 0x60))
        x, y, width, height = self.frame("docker")
        self.assertEqual((width, height), (ITEM_WIDTH, BAR_HEIGHT))
        for name, button in (("left", 1), ("middle", 2), ("right", 3)):
            self.hands.click(*middle(self.frame("docker")), name)
            pressed, at_x, at_y = docker.press()
            self.assertEqual(pressed, button)
            self.assertTrue(x <= at_x <= x + width and y <= at_y <= y + height, (at_x, at_y))
        self.hands.turn_wheel()
        self.assertEqual(docker.press()[0], 4)

    def test_a_click_waits_until_the_button_is_up(self):
        """While it is held, no menu of another program can get the pointer."""
        docker = Docker(self.session)
        self.hands.move(*middle(self.frame("docker")))
        self.hands.press("right")
        self.brimshade.do("advance", seconds=0.2)
        self.hands.turn_wheel()  # a click made too early would come before this
        self.hands.release("right")
        self.assertEqual([docker.press()[0], docker.press()[0]], [3, 4])

    def test_what_never_wants_to_be_seen_is_not(self):
        docker = Docker(self.session, name="shy", mapped=False)
        Docker(self.session, name="bold")
        self.frame("bold")
        self.until_gone("shy")
        docker.tell("show")
        self.frame("shy")
        docker.tell("hide")
        self.until_gone("shy")

    def test_what_is_huge_stays_small_and_what_draws_all_the_time_is_followed(self):
        Docker(self.session, name="huge", side=5000)
        self.until_pictured("huge", (0x33, 0x77, 0xcc))
        self.assertEqual(self.frame("huge")[2], ITEM_WIDTH)
        Docker(self.session, name="flood", draws=2000, colour=0x101010)
        x, y = middle(self.frame("flood"))
        before = self.session.picture()[x, y]
        self.session.until_picture("another picture", lambda picture: picture[x, y] != before)
        self.request("--toggle")
        self.brimshade.until("the open panel", lambda s: s["model"]["isOpen"])

    def test_windows_and_programs_that_die_leave_nothing(self):
        docker = Docker(self.session, name="window", count=2)
        self.frame("window0")
        self.frame("window1")
        docker.tell("destroy")
        self.until_gone("window0")
        self.frame("window1")
        docker.kill()
        self.until_gone("window1")

    def test_no_more_than_so_many_are_shown(self):
        Docker(self.session, name="many", count=MOST_WINDOWS + 6)
        shown = lambda s: sum((item["identifier"] or "").startswith("many") for item in s["menuBar"])  # noqa: E731
        self.brimshade.until("all that are shown", lambda s: shown(s) == MOST_WINDOWS)
        self.assertEqual(self.session.errors("brimshade").count("too many icons are docked"), 1)

    def test_another_tray_has_the_icons_as_long_as_it_is_there(self):
        docker = Docker(self.session)
        self.frame("docker")
        ours, other = self.desk.tray_owner(), Desk(self.session)
        other.take_tray()
        self.until_gone("docker")
        docker.until_docked()  # into the other tray
        self.assertNotEqual(self.desk.tray_owner(), ours)
        other.close()
        self.until_owned()
        docker.until_docked()
        self.frame("docker")

    def test_after_the_end_the_tray_is_free_and_its_places_are_known(self):
        docker = Docker(self.session)
        self.frame("docker")
        self.request("--quit")
        self.assertEqual(self.session.wait_for_end(self.brimshade.process, "the end of Brimshade"), 0)
        self.assertEqual(self.desk.tray_owner(), 0)
        order = json.loads(self.order.read_text())
        self.assertEqual([item["id"] for item in order["rightOfBrimshade"]], ["docker"])
        self.start_brimshade()
        docker.until_docked()
        self.frame("docker")


if __name__ == "__main__":
    unittest.main(verbosity=2)
