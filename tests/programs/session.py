"""A session of its own for programs with tray items: a display, a message bus, a home folder."""
import os
import pathlib
import shutil
import subprocess
import tempfile


class Session:
    """Every process it starts it also ends; nothing of the user's own session is seen or touched."""

    def __init__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="brimshade-programs-"))
        runtime = self.home / "runtime"
        runtime.mkdir(mode=0o700)
        keep = {name: os.environ[name] for name in ("PATH",) if name in os.environ}
        self.environment = {
            **keep, "HOME": str(self.home), "XDG_RUNTIME_DIR": str(runtime), "XDG_CURRENT_DESKTOP": "KDE",
            "LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "1", "QT_QUICK_BACKEND": "software",
        }
        self._processes = []
        self.environment["DISPLAY"] = ":" + self._first_line_of(
            "Xvfb", "-displayfd", "1", "-screen", "0", "1440x900x24", "-nolisten", "tcp")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._first_line_of(
            "dbus-daemon", "--session", "--nofork", "--print-address=1")

    def _first_line_of(self, *command):
        return self.start(*command, stdout=subprocess.PIPE, text=True).stdout.readline().strip()

    def start(self, *command, **options):
        options = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **options}
        process = subprocess.Popen(command, env=self.environment, **options)
        self._processes.append(process)
        return process

    def write(self, path, text):
        file = self.home / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def output_of(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=60).stdout

    def property_of_item(self, owner, path, name):
        """A property of a tray item as its program tells it, read past Brimshade."""
        return self.output_of("dbus-send", "--session", "--print-reply=literal", f"--dest={owner}", path,
                              "org.freedesktop.DBus.Properties.Get", "string:org.kde.StatusNotifierItem",
                              f"string:{name}").strip()

    def items(self):
        """(owner, path) of every item that is registered with the watcher."""
        reply = self.output_of("dbus-send", "--session", "--print-reply", "--dest=org.kde.StatusNotifierWatcher",
                               "/StatusNotifierWatcher", "org.freedesktop.DBus.Properties.Get",
                               "string:org.kde.StatusNotifierWatcher", "string:RegisteredStatusNotifierItems")
        words = [line.split('"')[1] for line in reply.splitlines() if '"' in line]
        return [(word.split("/", 1)[0], "/" + word.split("/", 1)[1]) for word in words]

    def close(self):
        for process in reversed(self._processes):
            process.terminate()
            for stream in (process.stdin, process.stdout):
                if stream:
                    stream.close()
        for process in reversed(self._processes):
            process.wait(timeout=30)
        shutil.rmtree(self.home, ignore_errors=True)
