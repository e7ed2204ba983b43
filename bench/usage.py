"""What a process has used so far, read from /proc."""
import os
import pathlib


def status(pid, key):
    for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith(key + ":"):
            return int(line.split()[1])
    raise KeyError(key)


def resident_kib(pid):
    return status(pid, "VmRSS")


def private_dirty_kib(pid):
    for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
        if line.startswith("Private_Dirty:"):
            return int(line.split()[1])
    raise KeyError("Private_Dirty")


def cpu_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def wakeups(pid):
    """Voluntary context switches by thread: each means that something woke it."""
    return {thread: status(f"{pid}/task/{thread}", "voluntary_ctxt_switches") for thread in os.listdir(f"/proc/{pid}/task")}


def wakeups_between(before, after):
    """Compared by thread, because an ended thread's count is lost: a new thread counts in full, an ended one not at
    all."""
    return sum(count - before.get(thread, 0) for thread, count in after.items())
