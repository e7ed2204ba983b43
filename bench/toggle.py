#!/usr/bin/env python3
"""bench/toggle.py BUILD: how long a key binding takes, that is `brimshade --toggle` until it is answered.

The reference is starting the whole program up to printing its version: what --toggle would cost without a launcher.
Both are measured in turns; a stand-in on a bus of its own answers."""
import os
import pathlib
import statistics
import subprocess
import sys
import time

ROUNDS = 200
STAND_IN = """
import dbus, dbus.mainloop.glib, dbus.service
from gi.repository import GLib
dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
class Application(dbus.service.Object):
    @dbus.service.method("org.freedesktop.Application", in_signature="sava{sv}")
    def ActivateAction(self, name, parameter, data):
        pass
bus = dbus.SessionBus()
name = dbus.service.BusName("org.brimshade.Brimshade", bus)
application = Application(bus, "/org/brimshade/Brimshade")
print("ready", flush=True)
GLib.MainLoop().run()
"""


def run(command, environment):
    """Milliseconds on the clock and of CPU."""
    start = time.monotonic()
    process = os.posix_spawn(command[0], command, environment,
                             file_actions=[(os.POSIX_SPAWN_OPEN, 1, "/dev/null", os.O_WRONLY, 0)])
    _, status, usage = os.wait4(process, 0)
    taken = time.monotonic() - start
    if status:
        sys.exit(f"{' '.join(map(str, command))}: status {status}")
    return taken * 1000, (usage.ru_utime + usage.ru_stime) * 1000


def main(build):
    toggle = [str(build / "bin/brimshade"), "--toggle"]
    whole = [str(build / "libexec/brimshade/brimshade-main"), "--version"]
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"], stdout=subprocess.PIPE, text=True,
                           stderr=subprocess.DEVNULL)
    environment = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": bus.stdout.readline().strip()}
    service = subprocess.Popen(["/usr/bin/python3", "-c", STAND_IN], env=environment, stdout=subprocess.PIPE)
    try:
        service.stdout.readline()
        pairs = [(run(toggle, environment), run(whole, environment)) for _ in range(ROUNDS)]
    finally:
        for process in (service, bus):
            process.terminate()
            process.wait()
    (mine, mine_cpu), (reference, reference_cpu) = (
        map(statistics.median, zip(*runs)) for runs in zip(*pairs))
    print(f"brimshade --toggle: {mine:.2f} ms, CPU {mine_cpu:.2f} ms; the whole program's start: {reference:.2f} ms, "
          f"CPU {reference_cpu:.2f} ms; ratio {mine / reference:.3f}, of CPU {mine_cpu / reference_cpu:.3f}")


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
