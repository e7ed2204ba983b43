#!/usr/bin/env python3
"""installed_test.py PROGRAM: Brimshade as installed by a package, PREFIX/bin/brimshade with everything that belongs to
it, in a sway session without a screen."""
import json
import pathlib
import subprocess
import sys
import unittest

from lib.sway import Sway
from lib.waiting import PATIENCE

PROGRAM = pathlib.Path(sys.argv.pop(1)).resolve()
SERVICE = PROGRAM.parents[1] / "share/dbus-1/services/org.brimshade.Brimshade.service"
BELOW_THE_NOTCH = [(x, y) for x in range(540, 640) for y in range(60, 150)]  # the panel's first tile


class Installed(unittest.TestCase):
    def setUp(self):
        self.session = Sway()
        self.addCleanup(self.session.close)
        settings = self.session.home / ".config/brimshade/settings.json"
        settings.parent.mkdir(parents=True)
        settings.write_text(json.dumps({"onboardingDone": True}))
        self.install_service()
        self.session.start_bus()
        self.desktop = self.below_the_notch(self.session.picture())

    def install_service(self):
        """Makes the bus start this program, wherever the package has been unpacked, and not one installed on the
        machine."""
        lines = [f"Exec={PROGRAM} --session" if line.startswith("Exec=") else line
                 for line in SERVICE.read_text().splitlines()]
        data = self.session.home / "data"
        (data / "dbus-1/services").mkdir(parents=True)
        (data / "dbus-1/services" / SERVICE.name).write_text("\n".join(lines) + "\n")
        self.session.environment["XDG_DATA_HOME"] = str(data)

    def tell(self, word):
        done = subprocess.run([PROGRAM, word], env=self.session.environment, capture_output=True, text=True,
                              timeout=PATIENCE)
        self.assertEqual((done.returncode, done.stderr), (0, ""))

    @staticmethod
    def below_the_notch(picture):
        return [picture[point] for point in BELOW_THE_NOTCH]

    def until_panel(self, is_open):
        """The desktop may be as black as the panel, but has no tiles."""
        self.session.until_picture(f"the panel open: {is_open}",
                                   lambda picture: (self.below_the_notch(picture) != self.desktop) == is_open)

    def test_it_is_the_menu_bar_and_its_panel_opens(self):
        before = self.session.picture()[3, 3]
        brimshade = self.session.start(PROGRAM, "--session")
        self.session.until_picture("the bar", lambda picture: picture[3, 3] != before)
        for is_open in (True, False):
            self.tell("--toggle")
            self.until_panel(is_open)
        self.tell("--quit")
        self.assertEqual(self.session.wait_for_end(brimshade, "the end of Brimshade"), 0)

    def test_whoever_activates_it_on_the_bus_starts_it_with_its_panel_open(self):
        self.session.output_of("gapplication", "launch", "org.brimshade.Brimshade")
        self.until_panel(True)
        self.tell("--quit")


if __name__ == "__main__":
    unittest.main(verbosity=2)
