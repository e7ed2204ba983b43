#!/usr/bin/env python3
"""kill_test.py WRITER: kills a program 200 times while it writes its settings; every start reads a whole file."""
import json, os, pathlib, random, signal, subprocess, sys, tempfile, unittest

WRITER = sys.argv.pop()
ROUNDS = 200


class KillTest(unittest.TestCase):
    def run_and_kill(self, path, lines):
        """The count that the program found at its start, and the last one that it told of."""
        with subprocess.Popen([WRITER, str(path)], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True) as writer:
            told = [writer.stdout.readline() for _ in range(lines)]
            writer.send_signal(signal.SIGKILL)
            rest, errors = writer.stdout.read(), writer.stderr.read()
        self.assertEqual((errors, writer.returncode), ("", -signal.SIGKILL))
        return int(told[0]), int((told + rest.split())[-1])

    def test_every_start_reads_a_whole_file(self):
        chance = random.Random(1)
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "settings.json"
            path.write_text('{"foreign": [1, {"kept": null}], "count": 0}')
            stored = 0
            for _ in range(ROUNDS):
                found, told = self.run_and_kill(path, chance.randint(1, 60))
                self.assertEqual(found, stored)
                content = json.loads(path.read_text())
                self.assertGreaterEqual(content["count"], stored)
                self.assertLessEqual(content["count"], told + 20)
                self.assertEqual(content["foreign"], [1, {"kept": None}])
                stored = content["count"]
            self.assertGreater(stored, 0, "it never got to write")
            # No damaged file, and no more left over than what the last process was writing.
            others = [name for name in os.listdir(folder) if name != path.name]
            self.assertTrue(len(others) <= 1 and all(name.endswith(".new") for name in others), others)


if __name__ == "__main__":
    unittest.main()
