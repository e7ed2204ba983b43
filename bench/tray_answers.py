#!/usr/bin/env python3
"""bench/tray_answers.py PROGRAM: how long a script waits for an answer while a tray item's icons are looked for.

The item names a folder as large as /usr for its icon, or /usr/share for 200 icons of its menu that do not exist. No
answer may take longer than a tenth of a second; the reference is the same wait before the item appears."""
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))
from program import Session  # noqa: E402

LIMIT = 0.1  # seconds
CASES = {
    "icon below /usr": {"properties": {"IconThemePath": "/usr", "IconName": "no-theme-has-this-icon"}},
    "200 menu icons below /usr/share": {
        "properties": {"IconThemePath": "/usr/share", "IconName": "no-theme-has-this-icon"},
        "menu": [[f"Entry {i}", f"nowhere{i}"] for i in range(200)]},
}


def longest_answer(brimshade, seconds):
    longest, end = 0.0, time.monotonic() + seconds
    while time.monotonic() < end:
        start = time.monotonic()
        brimshade.state()
        longest = max(longest, time.monotonic() - start)
        time.sleep(0.005)
    return longest


def measure(program, wanted):
    session = Session()
    try:
        brimshade = session.start_host(program)
        before = longest_answer(brimshade, 2)
        item = session.start_item(wanted, stdout=subprocess.PIPE)
        item.stdout.readline()
        registered = time.monotonic()
        during, shown = 0.0, None
        while time.monotonic() < registered + 5:
            during = max(during, longest_answer(brimshade, 0.02))
            if shown is None and len(brimshade.state()["menuBar"]) == 2:
                shown = time.monotonic() - registered
        return before, during, shown
    finally:
        session.close()


if __name__ == "__main__":
    for name, wanted in CASES.items():
        before, during, shown = measure(sys.argv[1], wanted)
        print(f"{name:32} longest answer {during * 1000:6.1f} ms (limit {LIMIT * 1000:.0f}), "
              f"before the item {before * 1000:6.1f} ms; "
              f"the item shows after {'never' if shown is None else f'{shown * 1000:.0f} ms'}")
