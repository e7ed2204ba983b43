#!/usr/bin/env python3
"""session_contract_test.py PROGRAM: what every implementation of the platform must do, in real sessions."""
import subprocess
import sys
import unittest

from lib.sway import Sway
from lib.x11 import X11

PROGRAM = sys.argv.pop(1)
LIMIT = 120  # seconds


class Contract(unittest.TestCase):
    def assert_kept(self, session):
        self.addCleanup(session.close)
        session.start_bus()
        done = subprocess.run([PROGRAM], env=session.environment, capture_output=True, text=True, timeout=LIMIT)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_on_sway(self):
        self.assert_kept(Sway())

    def test_on_x11(self):
        self.assert_kept(X11())


if __name__ == "__main__":
    unittest.main(verbosity=2)
