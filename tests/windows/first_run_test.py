#!/usr/bin/env python3
"""Whole first runs as a user has them, by script and in virtual time, from the welcome to the arrangement they asked
for. Usage: first_run_test.py BRIMSHADE"""
import json
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "session"))
from lib.brimshade import Program  # noqa: E402
from lib.session import Session  # noqa: E402


def application(pid, name, *extras):
    return {"pid": pid, "name": name, "bundleIdentifier": f"app.{name.lower()}",
            "bundlePath": f"/Applications/{name}.app", "icon": "#3b82f6", "extras": list(extras)}


def item(identifier):
    return {"title": identifier.capitalize(), "identifier": identifier, "width": 66}


# The notch covers the last two of the six items.
DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": [0, 0, 1000, 700], "menuBarHeight": 37, "notch": [400, 560]}],
    "applications": [
        {"pid": 401, "name": "Control Center", "bundleIdentifier": "com.apple.MenuBarAgent",
         "extras": [{"identifier": "com.example.menuextra.clock", "description": "Clock", "width": 90}]},
        *[application(800 + i, name, item(name.lower()))
          for i, name in enumerate(["Atlas", "Beacon", "Cedar", "Dune", "Ember", "Fjord"])],
    ],
    "trusted": False,
}


class Person(Program):
    def press(self, name, **more):
        self.do("press-element", name=name, **more)
        self.wait(1.2)

    def sees(self, text):
        return any(text in (e["name"], e["description"]) for e in self.found(text))

    def windows(self):
        return [w["name"] for w in self.state()["windows"] if w["visible"]]

    def hidden(self):
        return sorted(e["name"] for e in self.state()["model"]["extras"] if e["isHidden"])


class FirstRun(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)
        self.program = self.start()

    def start(self, **changes):
        desktop = self.session.write("desktop.json", json.dumps({**DESKTOP, **changes}))
        return self.session.converse("brimshade", BINARY, "--script", "-", "--desktop", desktop, "--defaults",
                                     desktop.with_name("settings.json"), kind=Person)

    def tearDown(self):
        self.assertEqual(self.program.end(), 0)

    def test_from_welcome_to_the_new_arrangement(self):
        program = self.program
        program.wait(1)
        self.assertEqual(program.windows(), ["setup"])
        self.assertFalse(program.sees("Back"))
        program.press("Get started")
        self.assertTrue(program.sees("Waiting for access…"))
        program.press("Open Accessibility Settings")
        self.assertEqual(program.state()["prompts"], 1)
        self.assertEqual(program.state()["requests"], 0)
        program.do("press-element", name="Allow Brimshade")
        program.wait(1)
        scanned = program.state()["requests"]
        self.assertGreater(scanned, 0)
        self.assertTrue(program.sees("Access granted"))
        self.assertFalse(program.sees("Skip for now"))
        program.wait(5)
        self.assertEqual(program.state()["requests"], scanned, "exactly one scan")

        before = program.hidden()
        self.assertEqual(before, ["Ember", "Fjord"])
        program.press("Continue")
        self.assertTrue(program.sees("5 in the menu bar  ·  2 in the notch"))
        for name in ("Atlas", "Beacon", "Ember", "Clock"):
            program.press(name, role="Button")
        self.assertTrue(program.sees("4 in the menu bar  ·  3 in the notch"), "the clock is pinned")
        program.press("Continue")
        program.press("Hover the notch")
        self.assertTrue(program.state()["defaults"]["hoverToOpen"])
        program.press("Continue")
        self.assertTrue(program.sees("Finishing moves 3 items for you. Your pointer will jump for a few seconds, "
                                     "so hands off the mouse."))
        program.press("Finish")
        self.assertEqual(program.state()["model"]["movingID"], "onboarding")
        program.wait(15)
        state = program.state()
        self.assertIsNone(state["model"]["movingID"])
        self.assertIsNone(state["model"]["message"])
        self.assertTrue(state["shown"], "the panel shows the new arrangement")
        self.assertTrue(state["divider"]["isEnabled"])
        self.assertEqual(program.hidden(), ["Atlas", "Beacon", "Fjord"])

        self.assertEqual(program.end(), 0)
        self.program = self.start(trusted=True)
        self.program.wait(2)
        self.assertNotIn("setup", self.program.windows())

    def test_without_the_permission(self):
        program = self.program
        program.wait(1)
        program.press("Get started")
        program.press("Skip for now")
        self.assertTrue(program.sees("Allow Accessibility first to see your items."))
        for _ in range(2):
            program.press("Continue")
        self.assertFalse(program.found("Finishing moves"))
        program.press("Finish")
        state = program.state()
        self.assertTrue(state["defaults"]["onboardingDone"])
        self.assertTrue(state["shown"])
        self.assertEqual(state["requests"], 0)

    def test_closing_and_reopening_keeps_step_and_choices(self):
        program = self.program
        program.do("trust", granted=True)
        program.wait(1)
        for name in ("Get started", "Continue"):
            program.press(name)
        program.press("Atlas", role="Button")
        self.assertTrue(program.sees("4 in the menu bar  ·  3 in the notch"))
        program.press("Continue")
        program.press("Back")
        program.press("Close")
        self.assertEqual(program.windows(), [])
        program.do("launch", application=application(900, "Glacier", item("glacier")))
        program.do("menu", at=program.icon())
        program.do("choose", title="Setup Guide…")
        program.wait(2)
        self.assertTrue(program.sees("What stays in the menu bar?"))
        self.assertTrue(program.sees("4 in the menu bar  ·  4 in the notch"), "the new item is seeded, nothing else changes")


if __name__ == "__main__":
    BINARY = sys.argv.pop(1)
    unittest.main(verbosity=2)
