#!/usr/bin/env python3
"""bench/idle.py PROGRAM [SECONDS]: what the program costs while its panel is closed and nothing happens.

The reference is a cat process that waits for input during the same time: nothing ever wakes it."""
import subprocess
import sys
import time

from display import private_display
from usage import cpu_seconds, wakeups, wakeups_between

SETTLE = 5  # seconds for startup: launch, first frames, the divider's measurements


def main(program, seconds=60.0):
    with private_display() as environment:
        ours = subprocess.Popen([program, "--script", "-", "--window"], stdin=subprocess.PIPE, env=environment)
        reference = subprocess.Popen(["cat"], stdin=subprocess.PIPE)
        time.sleep(SETTLE)
        before = [(wakeups(p.pid), cpu_seconds(p.pid)) for p in (ours, reference)]
        time.sleep(seconds)
        after = [(wakeups(p.pid), cpu_seconds(p.pid)) for p in (ours, reference)]
        for process in (ours, reference):
            process.terminate()
            process.wait()
    for name, (w0, c0), (w1, c1) in zip(("brimshade", "cat"), before, after):
        print(f"{name:10} {wakeups_between(w0, w1) / seconds:6.2f} wakeups/s  {(c1 - c0) * 1000:6.0f} ms CPU in {seconds:.0f} s")


if __name__ == "__main__":
    main(sys.argv[1], *map(float, sys.argv[2:3]))
