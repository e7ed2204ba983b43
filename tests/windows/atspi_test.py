#!/usr/bin/env python3
"""The program as an assistive program sees it: a client of the AT-SPI bus, on a display, a window manager and a
message bus of their own, reads the settings window, flips a switch, picks a shortcut and presses a tile.
Usage: atspi_test.py BRIMSHADE"""
import os
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import Session  # noqa: E402

DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": [0, 0, 1280, 800], "menuBarHeight": 37, "notch": [540, 740]}],
    "applications": [
        {"pid": 401, "name": "Control Center", "bundleIdentifier": "com.apple.MenuBarAgent",
         "extras": [{"identifier": "com.example.menuextra.clock", "description": "Clock", "width": 90}]},
        {"pid": 812, "name": "Relay", "bundleIdentifier": "app.relay", "bundlePath": "/Applications/Relay.app",
         "icon": "#3b82f6", "extras": [{"title": "Relay", "identifier": "relay.main", "menu": ["Open Relay", "Quit"]}]},
    ],
    "displayNames": {"/Applications/Relay.app": "Relay"},
    "defaults": {"onboardingDone": True},
}


class Client:
    """Reads and presses what the accessibility bus shows of one application."""

    def __init__(self, program):
        import pyatspi
        self._pyatspi = pyatspi
        self._application = program.until("the application on the bus", lambda _: self._find_application())

    def _find_application(self):
        desktop = self._pyatspi.Registry.getDesktop(0)
        return next((each for each in desktop if each and "brimshade" in each.name.lower()), None)

    def elements(self):
        """(role, name) → element, for everything that shows, in reading order."""
        found = []

        def visit(element):
            if element is None:
                return
            states = element.getState()
            if element.name and states.contains(self._pyatspi.STATE_SHOWING):
                found.append(element)
            for child in element:
                visit(child)

        visit(self._application)
        return found

    def names(self):
        return [(element.getRoleName(), element.name) for element in self.elements()]

    def find(self, role, name):
        return next((e for e in self.elements() if e.getRoleName() == role and e.name == name), None)

    def is_checked(self, element):
        return element.getState().contains(self._pyatspi.STATE_CHECKED)

    @staticmethod
    def _press_action(element):
        actions = element.get_action_iface()
        names = [actions.get_action_name(i) for i in range(actions.get_n_actions())] if actions else []
        return names.index("Press") if "Press" in names else None

    def find_pressable(self, role, name):
        return next((e for e in self.elements() if e.getRoleName() == role and e.name == name
                     and self._press_action(e) is not None), None)

    def press(self, element):
        index = self._press_action(element)
        assert index is not None, f"{element} cannot be pressed"
        assert element.get_action_iface().do_action(index)


class AccessibilityBus(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = Session()
        cls.session.environment.pop("NO_AT_BRIDGE", None)
        cls.session.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        os.environ.clear()
        os.environ.update(cls.session.environment)
        cls.session.start_window_manager()
        cls.program = cls.session.start_program(BINARY, DESKTOP, "--window")
        cls.client = Client(cls.program)

    @classmethod
    def tearDownClass(cls):
        cls.session.close()

    def wait_for(self, role, name):
        return self.program.until(f"{role} {name}", lambda _: self.client.find(role, name))

    def open_settings(self):
        self.program.do("menu", at=self.program.icon())
        self.program.do("choose", title="Settings…")
        self.wait_for("heading", "Opening")

    def test_1_lists_the_settings_in_reading_order(self):
        self.open_settings()
        self.wait_for("check box", "Visible")
        names = self.client.names()
        expected = [
            ("heading", "Menu bar items"), ("check box", "Tuck away items left of Brimshade"), ("label", "Relay"),
            ("check box", "Visible"), ("label", "Clock"), ("label", "Pinned by macOS"), ("heading", "Opening"),
            ("check box", "Open when the pointer rests on the notch"), ("combo box", "Keyboard shortcut"),
            ("heading", "Panel"), ("check box", "Also show items already in the menu bar"),
        ]
        start = names.index(expected[0])
        listed = [each for each in names[start:] if each in expected]
        self.assertEqual(listed[:len(expected)], expected, names)

    def test_2_flips_a_switch(self):
        switch = self.wait_for("check box", "Open when the pointer rests on the notch")
        self.assertFalse(self.client.is_checked(switch))
        self.client.press(switch)
        self.program.until("the setting", lambda s: s["model"]["hoverToOpen"])
        self.program.until("the switch's new state", lambda _: self.client.is_checked(switch))

    def test_3_picks_a_shortcut(self):
        picker = self.wait_for("combo box", "Keyboard shortcut")
        self.client.press(picker)
        self.client.press(self.wait_for("list item", "⌃⌥Space"))
        self.program.until("the shortcut", lambda s: s["model"]["shortcut"] == "controlOptionSpace")
        self.program.until("the picker's new value", lambda _: "⌃⌥Space" in picker.description)

    def test_4_presses_a_tile(self):
        self.program.do("click", at=self.program.icon())
        self.program.until("the panel", lambda s: s["shown"])
        # The item in the menu bar has the same name; it is part of the desktop and takes no action.
        tile = self.program.until("the tile", lambda _: self.client.find_pressable("push button", "Relay"))
        self.client.press(tile)
        self.program.until("Relay's menu", lambda s: "Open Relay" in (s["menu"] or []))


if __name__ == "__main__":
    BINARY = sys.argv.pop(1)
    unittest.main(verbosity=2, warnings="ignore")  # the bindings cause some
