#!/usr/bin/env python3
"""bench/session_cost.py BUILD [SECONDS]: what Brimshade costs as a session's menu bar, under sway with 20 tray items, beside
waybar with the same: memory over 100 openings of the panel, CPU of an opening, and wakeups while it is closed."""
import pathlib
import statistics
import sys
import time

from session_latency import living, root
from usage import cpu_seconds, private_dirty_kib, resident_kib, wakeups, wakeups_between

sys.path.insert(0, str(root / "tests" / "session"))
from lib.sway import Sway

ITEMS = 20
OPENINGS = 100
ESCAPE = 53  # the Mac's virtual key code
WAYBAR = '{"modules-right": ["tray", "clock"]}'


def memory(pid):
    return f"{resident_kib(pid) / 1024:.1f} MiB resident, {private_dirty_kib(pid) / 1024:.1f} MiB private dirty"


def cpu_of(brimshade, command, arguments, shown):
    """CPU seconds until the panel is at rest; asking for the state afterwards costs as much as some frames and is not
    counted."""
    before = cpu_seconds(brimshade.pid)
    brimshade.do(command, **arguments)
    brimshade.do("advance", seconds=1)
    used = cpu_seconds(brimshade.pid) - before
    brimshade.until(f"a panel shown: {shown}", lambda s: s["shown"] == shown)
    return used


def measure_openings(brimshade, pid):
    opening, closing, sizes = [], [], {}
    for number in range(1, OPENINGS + 1):
        opening.append(cpu_of(brimshade, "click", {"at": brimshade.icon()}, True))
        closing.append(cpu_of(brimshade, "key", {"code": ESCAPE}, False))  # the panel covers the icon
        if number in (10, OPENINGS):
            brimshade.do("advance", seconds=3)  # it frees memory once it has been closed for a while
            sizes[number] = (resident_kib(pid), private_dirty_kib(pid))
    for name, of in (("resident", 0), ("private dirty", 1)):
        tenth, last = sizes[10][of], sizes[OPENINGS][of]
        print(f"  {name} after the tenth opening {tenth / 1024:.1f} MiB, after the hundredth {last / 1024:.1f} MiB")
    print(f"  CPU of an opening {statistics.mean(opening) * 1000:.0f} ms, of a closing {statistics.mean(closing) * 1000:.0f} ms")


def measure_rest(pids, seconds):
    before = {name: (wakeups(pid), cpu_seconds(pid)) for name, pid in pids.items()}
    time.sleep(seconds)
    for name, pid in pids.items():
        woken, cpu = before[name]
        print(f"  {name}: {wakeups_between(woken, wakeups(pid)) / seconds:.2f} wakeups/s, "
              f"{(cpu_seconds(pid) - cpu) * 1000:.0f} ms of CPU in {seconds:.0f} s")


def main(build, seconds=120.0):
    session = Sway()
    try:
        session.start_bus()
        with living(session, build, ITEMS) as brimshade:
            config = session.home / "waybar.json"
            config.write_text(WAYBAR)
            waybar = session.start("waybar", "-c", config)
            brimshade.do("advance", seconds=5)
            pid = brimshade.process.pid  # the launcher has become the program
            print(f"brimshade: {memory(pid)}\nwaybar: {memory(waybar.pid)}\nbrimshade, opened {OPENINGS} times:")
            measure_openings(brimshade, pid)
            print("closed and idle:")
            measure_rest({"brimshade": pid, "waybar": waybar.pid}, seconds)
            print(f"brimshade: {memory(pid)}\nwaybar: {memory(waybar.pid)}")
    finally:
        session.close()


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]).resolve(), *map(float, sys.argv[2:3]))
