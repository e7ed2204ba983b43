"""Kills the program 60 times while it writes the order of the tray items as fast as it can; every start reads a whole
file. Usage: state_kill_test.py PROGRAM"""
import datetime
import json
import pathlib
import random
import signal
import subprocess
import sys
import unittest

SUPPORT = pathlib.Path(__file__).resolve().parent.parent / "support"
sys.path.insert(0, str(SUPPORT))
from program import Program, Session  # noqa: E402

PROGRAM = sys.argv.pop(1)
ROUNDS = 60
DESKTOP = {"screens": [{"frame": [0, 0, 1512, 982], "menuBarHeight": 37}], "applications": []}
SIDES = ("rightOfBrimshade", "leftOfBrimshade")


def absent(side):  # long enough that a torn write shows
    today = datetime.datetime.now(datetime.timezone.utc).date().isoformat()
    return [{"program": f"{side}-{i}", "id": "x" * 100, "seen": today} for i in range(250)]


class KillTest(unittest.TestCase):
    def setUp(self):
        self.session = Session()
        self.addCleanup(self.session.close)
        self.store = self.session.home / "state" / "bar.json"
        self.session.write("state/bar.json", json.dumps({"version": 1, **{side: absent(side) for side in SIDES}}))
        self.session.write("desktop.json", json.dumps(DESKTOP))
        self.session.start("/usr/bin/python3", SUPPORT / "tray_item.py", "Restless", "--restless")

    def run_and_kill(self, states):
        process = self.session.start(
            PROGRAM, "--script", "-", "--real-time", "--tray", "--desktop", self.session.home / "desktop.json",
            "--state", self.store, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
        brimshade = Program(process)
        brimshade.until("the item", lambda s: len(s["menuBar"]) == 2)
        for _ in range(states):
            brimshade.wait(0.01)
        process.send_signal(signal.SIGKILL)
        errors = process.stderr.read()
        process.stderr.close()
        self.assertEqual((errors, brimshade.end()), ("", -signal.SIGKILL))

    def test_every_start_reads_a_whole_file(self):
        chance = random.Random(1)
        seen = set()
        for _ in range(ROUNDS):
            self.run_and_kill(chance.randint(1, 20))
            content = json.loads(self.store.read_text())
            for side in SIDES:
                self.assertEqual([i for i in content[side] if i["id"] == "x" * 100], absent(side))
            seen |= {item["id"] for side in SIDES for item in content[side] if item["id"].startswith("restless")}
        self.assertGreater(len(seen), ROUNDS / 2, "it was hardly ever killed between two writes")
        # No damaged file, and no more left over than what the last process was writing.
        others = [p.name for p in self.store.parent.iterdir() if p != self.store]
        self.assertTrue(len(others) <= 1 and all(name.endswith(".new") for name in others), others)


if __name__ == "__main__":
    unittest.main(verbosity=2)
