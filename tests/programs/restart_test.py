"""What was tucked away is tucked away again, whichever program was restarted. Usage: restart_test.py PROGRAM
[ARGUMENT…]: the arguments with which the program is started instead of by a script on a desktop of its own, say
--session --script - --real-time."""
import itertools
import json
import pathlib
import signal
import subprocess
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
from program import PATIENCE, SUPPORT, Program, Session  # noqa: E402

COMMAND = sys.argv[1:]
del sys.argv[1:]
ROUNDS = 10
AT_REST = 1.6  # seconds: one after the last item came, the divider measures again, which takes 0.3, and settles in 0.1
DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [663, 849]}],
    "applications": [{"pid": 401, "bundleIdentifier": "com.apple.MenuBarAgent",
                      "extras": [{"identifier": "com.example.menuextra.clock", "width": 132}]}],
}
NAMES = ["Relay", "Vault", "Quill"]
DOCKED = ["Vault"] if "--session" in COMMAND else []  # its item is a window in the X server's tray
OWN = "BrimshadeButton"


class Restarts(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)
        self.session.write("desktop.json", json.dumps(DESKTOP))
        self.session.write("settings.json", json.dumps({"onboardingDone": True}))
        self.programs = {}

    def start_brimshade(self):
        command = COMMAND if len(COMMAND) > 1 else [
            *COMMAND, "--script", "-", "--real-time", "--tray", "--desktop", self.session.home / "desktop.json"]
        self.brimshade = self.session.converse("brimshade", *command, "--defaults", self.session.home / "settings.json",
                                               "--state", self.session.home / "bar.json", kind=Program)

    def end_brimshade(self, killed):
        if killed:
            self.brimshade.process.send_signal(signal.SIGKILL)
        status = self.brimshade.end()
        self.assertEqual(status, -signal.SIGKILL if killed else 0)

    def start(self, names):
        for name in names:
            if name in DOCKED:
                self.programs[name] = self.session.start("/usr/bin/python3", SUPPORT / "mock_docker.py",
                                                         json.dumps({"name": name}), stdin=subprocess.PIPE)
            else:
                self.programs[name] = self.session.start_item({"properties": {"Id": name, "Title": name}})

    def end(self, names):
        for name in names:
            program = self.programs.pop(name)
            program.terminate()
            program.wait(PATIENCE)

    @staticmethod
    def items(state):
        """The programs' items and Brimshade's own, left to right."""
        return [item for item in state["menuBar"] if item["identifier"] in [*NAMES, "Pigment", OWN]]

    def order(self, state):
        return [item["identifier"] for item in self.items(state)]

    def until_order(self, order, when=""):
        self.came = self.brimshade.until(f"{when}the order {order}", lambda s: self.order(s) == order and s)["time"]

    def open_panel(self, names, hidden, when=""):
        """Waits until the bar is at rest, because a scan sees only the present state."""
        drawn = {OWN: True} | {name: name not in hidden for name in names}
        self.brimshade.until(f"{when}{drawn} in the bar", lambda s: s["time"] >= self.came + AT_REST
                             and s["divider"]["isExpanded"]
                             and drawn == {item["identifier"]: item["drawn"] for item in self.items(s)})
        self.brimshade.open_panel()
        self.brimshade.until("all tiles", lambda s: len(self.hidden(s)) == len(names))

    @staticmethod
    def hidden(state):
        return {e["name"]: e["isHidden"] for e in state["model"]["extras"] if e["name"] in [*NAMES, "Pigment"]}

    def tuck_away(self, name):
        self.open_panel(NAMES, hidden=[])
        x, y, width, height = self.brimshade.until(f"tile of {name}", lambda s: self.brimshade.found(
            name, window="panel", role="Button"))[0]["frame"]
        self.brimshade.do("menu", at=[x + width / 2, y + height / 2])
        self.brimshade.do("choose", title="Hide from Menu Bar")
        self.brimshade.until(f"{name} tucked away", lambda s: not s["model"]["movingID"] and self.hidden(s)[name])

    def expect_only_vault_hidden(self, names, when=""):
        self.open_panel(names, ["Vault"], when)
        self.brimshade.until(f"{when}vault alone hidden",
                             lambda s: self.hidden(s) == {name: name == "Vault" for name in names})
        self.brimshade.close_panel()

    def restart(self, number, names):
        killed = number % 2 == 1
        kind = number % 5
        if kind == 0:  # only Brimshade
            self.end_brimshade(killed)
            self.start_brimshade()
        elif kind == 1:  # only the programs
            self.end(names)
            self.start(names)
        elif kind == 2:  # both, the programs first
            self.end(names)
            self.end_brimshade(killed)
            self.start(names)
            self.start_brimshade()
        elif kind == 3:  # both, Brimshade first
            self.end_brimshade(killed)
            self.end(names)
            self.start_brimshade()
            self.start(names)
        else:  # Brimshade between the programs
            self.end_brimshade(killed)
            self.end(names)
            self.start(names[:1])
            self.start_brimshade()
            self.start(names[1:])

    def test_the_same_item_is_hidden_after_every_restart(self):
        self.start_brimshade()
        self.start(NAMES)
        self.came = self.brimshade.until("three items", lambda s: len(self.order(s)) == 4 and s)["time"]
        self.tuck_away("Vault")
        order = self.order(self.brimshade.state())
        self.assertEqual(order[:2], ["Vault", OWN])
        self.expect_only_vault_hidden(NAMES)
        permutations = itertools.cycle(itertools.permutations(NAMES))
        for number in range(ROUNDS):
            self.restart(number, next(permutations))
            self.until_order(order, f"restart {number}: ")
            self.expect_only_vault_hidden(NAMES, f"restart {number}: ")
        self.start(["Pigment"])
        self.until_order([*order[:2], "Pigment", *order[2:]])
        self.expect_only_vault_hidden([*NAMES, "Pigment"])
        self.end_brimshade(False)


if __name__ == "__main__":
    unittest.main(verbosity=2)
