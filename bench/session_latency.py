#!/usr/bin/env python3
"""bench/session_latency.py BUILD [ROUNDS]: from the D-Bus call to the first frame of the display that shows the panel,
with 60 tray items: under sway at 240 Hz beside fuzzel and tofi, under openbox beside rofi.

All are measured in turns, the references from their start to the first frame that shows them, with 60 lines to choose
from. The first opening after a launch is reported separately."""
import contextlib
import json
import os
import pathlib
import statistics
import subprocess
import sys

root = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(root / "tests" / "session"))
from lib.brimshade import Brimshade
from lib.sway import Sway
from lib.waiting import Lines
from lib.x11 import X11

ITEMS = 60
LAUNCHES = 5
MODE = "1512x982@240Hz"  # so fast that the frame clock is not what is measured


def start(session, *command, **options):
    """The process, and the lines that it writes."""
    process = session.start(*command, stdout=subprocess.PIPE, **options)
    return process, session.own(Lines(os.dup(process.stdout.fileno())))


class Meter:
    def __init__(self, session, build):
        choices = session.home / "choices"
        choices.write_text("".join(f"Application {number}\n" for number in range(ITEMS)))
        self._process, self._answers = start(session, build / "bench" / "open_meter", stdin=subprocess.PIPE, stderr=None,
                                             env={**session.environment, "METER_INPUT": str(choices)})

    def __call__(self, command):
        """Milliseconds."""
        self._process.stdin.write(f"{command}\n".encode())
        self._process.stdin.flush()
        answer = self._answers.next(f"the meter's answer to {command}")
        if answer == "never":
            sys.exit(f"{command}: nothing was seen")
        return float(answer)


@contextlib.contextmanager
def living(session, build, count=ITEMS):
    """Runs Brimshade with that many items in its bar, and ends it afterwards."""
    brimshade = Brimshade(session, build / "bin" / "brimshade")
    brimshade.until("the bar", lambda state: state["statusItem"])
    items, lines = start(session, "/usr/bin/python3", root / "tests/support/mock_item.py", json.dumps({"count": count}),
                         stdin=subprocess.PIPE)
    lines.next("the items")
    brimshade.until("all items", lambda state: len(state["menuBar"]) >= count + 1)
    brimshade.do("advance", seconds=2)  # no person would open it sooner
    yield brimshade
    brimshade.process.stdin.close()
    session.wait_for_end(brimshade.process, "the end of Brimshade")
    items.terminate()
    items.wait()


def measure(session, build, references, rounds):
    meter = Meter(session, build)
    first, mine, others = [], [], {name: [] for name in references}
    for launch in range(LAUNCHES):
        with living(session, build):
            first.append(meter("call toggle"))
            meter("call toggle")
            for _ in range(rounds if launch == 0 else 0):
                mine.append(meter("call toggle"))
                meter("call toggle")
                for name, command in references.items():
                    others[name].append(meter(f"exec {command}"))
    print(f"  brimshade  {describe(mine)}; first after a launch {describe(first)}")
    for name, values in others.items():
        print(f"  {name:9}  {describe(values)}; ratio {statistics.median(mine) / statistics.median(values):.3f}, "
              f"first {statistics.median(first) / statistics.median(values):.3f}")


def describe(values):
    return f"median {statistics.median(values):.1f} ms ({min(values):.1f} to {max(values):.1f}, n = {len(values)})"


def main(build, rounds=20):
    for name, make, references in (
            ("sway, 240 Hz", lambda: Sway(outputs=(MODE,)), {"fuzzel": "fuzzel --dmenu", "tofi": "tofi"}),
            ("openbox", X11, {"rofi": "rofi -dmenu"}),
            ("openbox and picom", lambda: X11(composited=True), {"rofi": "rofi -dmenu"})):
        print(f"{name}, {ITEMS} items")
        session = make()
        try:
            session.start_bus()
            measure(session, build, references, rounds)
        finally:
            session.close()


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve(), *map(int, sys.argv[2:3]))
