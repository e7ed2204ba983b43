#!/usr/bin/env python3
"""bench/open_latency.py BUILD: from the click to the first frame with the tiles of 60 items, beside rofi.

The reference is `rofi -dmenu` with 60 lines, from its start to its mapped window, on the same display. Each is measured
several times, in turns. The first opening after a launch is reported separately."""
import pathlib
import statistics
import subprocess
import sys
import time

from display import private_display

ROUNDS = 7
LINES = "".join(f"Application {n}\n" for n in range(60))


def ours(build, environment):
    """Milliseconds of the first opening of one run, and the median of the others, as the benchmark program prints them."""
    done = subprocess.run([build / "bench" / "open_latency", "--openings", "20"], env=environment, capture_output=True,
                          text=True, check=True)
    first, *others = map(float, done.stdout.split())
    return first, statistics.median(others)


def rofi(environment):
    watcher = subprocess.Popen(["xev", "-root", "-event", "substructure"], env=environment, stdout=subprocess.PIPE, text=True)
    time.sleep(0.3)
    start = time.monotonic()
    menu = subprocess.Popen(["rofi", "-dmenu"], env=environment, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                            stderr=subprocess.DEVNULL, text=True)
    menu.stdin.write(LINES)
    menu.stdin.close()
    for line in watcher.stdout:
        if line.startswith("MapNotify"):
            break
    taken = (time.monotonic() - start) * 1000
    for process in (menu, watcher):
        process.terminate()
        process.wait()
    return taken


def main(build):
    with private_display() as environment:
        rounds = [(*ours(build, environment), rofi(environment)) for _ in range(ROUNDS)]
    first, mine, reference = (statistics.median(column) for column in zip(*rounds))
    print(f"open latency, 60 items: {mine:.2f} ms; first after a launch {first:.2f} ms; rofi -dmenu, 60 lines: {reference:.1f} ms; "
          f"ratio {mine / reference:.3f}; one 60 Hz frame is 16.67 ms")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
