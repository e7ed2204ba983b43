"""If nothing can be shown, the program says why."""
import subprocess
import sys
import unittest

from lib.session import Session
from lib.waiting import PATIENCE

BARE_COMPOSITOR = sys.argv.pop(2)
PROBE = sys.argv.pop(1)


class Refused(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)

    def complaint(self, **variables):
        done = subprocess.run([PROBE], env=self.session.environment | variables, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=PATIENCE)
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        return done.stderr

    def test_without_any_display(self):
        for variables in ({}, {"DISPLAY": ":4711"}, {"WAYLAND_DISPLAY": "wayland-none"}, {"QT_QPA_PLATFORM": "wayland"},
                          {"QT_QPA_PLATFORM": "xcb"}):
            self.assertEqual(self.complaint(**variables),
                             "no display: neither a Wayland compositor nor an X server answers\n")

    def test_on_a_platform_that_is_no_session(self):
        self.assertEqual(self.complaint(QT_QPA_PLATFORM="offscreen"),
                         "a session needs X11 or Wayland, and QT_QPA_PLATFORM is offscreen\n")

    def test_a_compositor_without_layer_shell(self):
        socket = self.session.lines_of(BARE_COMPOSITOR).next("the compositor's socket")
        complaint = self.complaint(WAYLAND_DISPLAY=socket)
        for part in ("zwlr_layer_shell_v1", "X11", "sway"):
            self.assertIn(part, complaint)
        self.assertEqual(complaint.count("\n"), 1)


if __name__ == "__main__":
    unittest.main(verbosity=2)
