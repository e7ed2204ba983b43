#!/usr/bin/env python3
"""bench/tray_load.py PROGRAM: what busy tray items cost a session's bar whose panel is closed, and what 200 openings of
a tray item's menu leave in memory.

Ten items of our own draw a new icon ten times a second each: items of the bus, then windows docked into the X server's
tray. The reference is the same program with ten items at rest and, for the memory, the process after its twentieth
opening."""
import json
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "support"))
from program import ESCAPE, SUPPORT, Session  # noqa: E402
from lib.brimshade import Brimshade  # noqa: E402
from usage import cpu_seconds, resident_kib  # noqa: E402

ITEMS, ICONS_A_SECOND, SECONDS, OPENINGS, FIRST = 10, 10, 20, 200, 20


def start(session, program):
    brimshade = Brimshade(session, program)
    brimshade.until("the bar", lambda s: s["statusItem"])
    return brimshade


def add_items(session, brimshade, icons_a_second):
    for number in range(ITEMS):
        session.start_item({"properties": {"Id": f"mock{number}", "Title": f"Mock {number}"}, "icons": icons_a_second})
    until_all(brimshade)


def dock_items(session, brimshade, icons_a_second):
    wanted = {"name": "mock", "count": ITEMS, "draws": icons_a_second}
    session.start("/usr/bin/python3", SUPPORT / "mock_docker.py", json.dumps(wanted), stdin=subprocess.PIPE)
    until_all(brimshade)


def until_all(brimshade):
    brimshade.until("all items", lambda s: sum("mock" in (i["identifier"] or "") for i in s["menuBar"]) == ITEMS)


def processor_time(program, add, icons_a_second):
    session = Session()
    try:
        brimshade = start(session, program)
        add(session, brimshade, icons_a_second)
        before = cpu_seconds(brimshade.pid)
        time.sleep(SECONDS)
        return (cpu_seconds(brimshade.pid) - before) / SECONDS
    finally:
        session.close()


def memory_after_openings(program):
    session = Session()
    try:
        brimshade = start(session, program)
        add_items(session, brimshade, 0)
        x, y, width, height = next(i["frame"] for i in brimshade.state()["menuBar"] if i["identifier"] == "mock5")
        resident = []
        for _ in range(OPENINGS):
            brimshade.do("click", at=[x + width / 2, y + height / 2])
            brimshade.until("the menu", lambda s: s["menu"])
            brimshade.do("key", code=ESCAPE)
            brimshade.until("no menu", lambda s: not s["menu"])
            resident.append(resident_kib(brimshade.pid))
        return resident
    finally:
        session.close()


def main(program):
    for kind, add in (("items", add_items), ("docked windows", dock_items)):
        rest, busy = (processor_time(program, add, icons) for icons in (0, ICONS_A_SECOND))
        print(f"{ITEMS} {kind} at rest {rest:.2%} of a core, at {ICONS_A_SECOND} icons a second {busy:.2%}")
    resident = memory_after_openings(program)
    print(f"resident: opening {FIRST} {resident[FIRST - 1] / 1024:.1f} MiB, opening {OPENINGS} {resident[-1] / 1024:.1f} MiB, "
          f"most {max(resident) / 1024:.1f} MiB")


if __name__ == "__main__":
    main(sys.argv[1])
