"""A running Brimshade that answers script commands, and a session of its own for it and other programs."""
import json
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "session"))
from lib.brimshade import ESCAPE, RETURN, Brimshade, Program, matches, names  # noqa: E402, F401
from lib.session import Session as Home  # noqa: E402
from lib.waiting import PATIENCE  # noqa: E402

SUPPORT = pathlib.Path(__file__).resolve().parent
EMPTY_DESKTOP = {
    "screens": [{"name": "Built-in Display", "frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [663, 849]}],
    "applications": [], "defaults": {"onboardingDone": True},
}


class Session(Home):
    """Has an X server without a window manager, and a message bus."""

    def __init__(self):
        super().__init__()
        self.environment["XDG_CURRENT_DESKTOP"] = "KDE"
        try:
            lines = self.lines_of("Xvfb", "-displayfd", "1", "-screen", "0", "1440x900x24", "-nolisten", "tcp",
                                  "-noreset")  # or it would be gone for a moment whenever its last client ends
            self.environment["DISPLAY"] = ":" + lines.next("the X server's display")
            self.start_bus()
        except BaseException:
            self.close()
            raise

    def start_window_manager(self):
        ready, is_ready = self.fifo("openbox.ready")
        self.start("openbox", "--startup", f"sh -c 'echo > {ready}'")
        is_ready.next("openbox")

    def start_program(self, binary, description, *arguments, without=()):
        """without: environment variables to be removed."""
        desktop = self.write("desktop.json", json.dumps(description))
        environment = {name: value for name, value in self.environment.items() if name not in without}
        return self.converse("brimshade", binary, "--script", "-", "--desktop", desktop, *arguments, kind=Program,
                             env=environment)

    def start_host(self, binary):
        """Brimshade with nothing but the session's tray items, in real time, once programs can find it."""
        return self._once_found(self.start_program(binary, EMPTY_DESKTOP, "--tray", "--real-time"))

    def start_bar(self, binary):
        """The same, as the session's menu bar."""
        self.start_window_manager()
        return self._once_found(Brimshade(self, binary))

    def _once_found(self, program):
        """Waits until it can be found, because programs look for a tray only when they start."""
        program.until("the tray's watcher", lambda s: "boolean true" in self.text_of(
            "dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus", "/",
            "org.freedesktop.DBus.NameHasOwner", "string:org.kde.StatusNotifierWatcher"))
        return program

    def start_item(self, wanted, **options):
        """A tray item of our own: see mock_item.py."""
        return self.start("/usr/bin/python3", SUPPORT / "mock_item.py", json.dumps(wanted), stdin=subprocess.PIPE, **options)

    def text_of(self, *command):
        """A command's output, whether or not it succeeds."""
        return subprocess.run([str(word) for word in command], env=self.environment, capture_output=True, text=True,
                              timeout=PATIENCE).stdout

    def xdotool(self, *arguments):
        return self.output_of("xdotool", *arguments).decode()
