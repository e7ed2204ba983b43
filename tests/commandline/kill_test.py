"""Kills the program 40 times while it writes its settings as fast as it can; every start must read a whole file.
Usage: kill_test.py PROGRAM"""
import json
import os
import pathlib
import random
import signal
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "session"))
from lib.session import Session  # noqa: E402
from lib.waiting import PATIENCE, Lines  # noqa: E402

PROGRAM = sys.argv.pop(1)
ROUNDS = 40
TOGGLES = 300  # more than the program gets through in one round

OPEN_SETTINGS = [{"do": "advance", "seconds": 1}, {"do": "menu", "at": [1490, 18]}, {"do": "choose", "title": "Settings…"},
                 {"do": "advance", "seconds": 1}]
TOGGLE = {"do": "press-element", "name": "Also show items already in the menu bar", "role": "CheckBox"}
SCRIPT = "".join(json.dumps(command) + "\n" for command in [{"do": "state"}, *OPEN_SETTINGS, *[TOGGLE] * TOGGLES]).encode()
FOREIGN = ["x" * 20_000, {"kept": None}]  # long enough that a torn write shows


class KillTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.store = self.folder / "settings.json"
        self.store.write_text(json.dumps({"foreign": FOREIGN, "onboardingDone": True}))
        self.desktop = self.folder / "desktop.json"
        self.desktop.write_text(json.dumps({"screens": [{"frame": [0, 0, 1512, 982], "menuBarHeight": 37}]}))

    def run_and_kill(self, toggles):
        """The settings that the program found at its start; it is killed after about that many changes."""
        with Session() as session:
            program = session.talk("brimshade", PROGRAM, "--script", "-", "--desktop", self.desktop, "--defaults", self.store)
            program.stdin.write(SCRIPT)
            program.stdin.flush()
            lines = session.own(Lines(os.dup(program.stdout.fileno())))
            answers = [json.loads(lines.next("an answer")) for _ in range(1 + len(OPEN_SETTINGS) + toggles)]
            program.kill()
            self.assertEqual((program.wait(PATIENCE), session.errors("brimshade")), (-signal.SIGKILL, ""))
        self.assertTrue(all(answer["ok"] for answer in answers), answers[1:])
        return answers[0]["defaults"]

    def test_every_start_reads_a_whole_file(self):
        chance = random.Random(1)
        stored, seen = None, set()
        for _ in range(ROUNDS):
            found = self.run_and_kill(chance.randint(1, 40))
            self.assertEqual(found.get("showVisibleItems"), stored)
            content = json.loads(self.store.read_text())
            self.assertEqual(content["foreign"], FOREIGN)
            stored = content.get("showVisibleItems")  # missing until the first write is done
            seen.add(stored)
        self.assertLessEqual({False, True}, seen, "it was never killed between two writes")
        # No damaged file, and nothing left over but what the last process was writing.
        others = [p.name for p in self.folder.iterdir() if p.is_file() and p not in (self.store, self.desktop)]
        self.assertTrue(len(others) <= 1 and all(name.endswith(".new") for name in others), others)


if __name__ == "__main__":
    unittest.main()
