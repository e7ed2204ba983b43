"""A running Brimshade that answers script commands, and a session of its own for it and other programs."""
import json
import os
import pathlib
import shutil
import subprocess
import tempfile


class Program:
    def __init__(self, process):
        self._process = process
        self.pid = process.pid

    def do(self, command, **arguments):
        """The answer to a command; one that is refused fails the test."""
        self._process.stdin.write(json.dumps({"do": command, **arguments}) + "\n")
        self._process.stdin.flush()
        answer = json.loads(self._process.stdout.readline())
        assert answer["ok"], (command, arguments, answer)
        return answer

    def state(self):
        return self.do("state")

    def wait(self, seconds):
        self.do("advance", seconds=seconds)

    def until(self, what, found, patience=100):
        """Lets time pass until found(state) is something, which is then returned."""
        for _ in range(patience):
            state = self.state()
            result = found(state)
            if result:
                return result
            self.wait(0.1)
        raise AssertionError(f"never came: {what}; the last state: {json.dumps(state)[:4000]}")

    def status_item(self):
        x, y, width, height = self.state()["statusItem"]["frame"]
        return [x + width / 2, y + height / 2]

    def end(self):
        if not self._process.stdin.closed:
            self._process.stdin.close()
            self._process.wait(timeout=60)
            self._process.stdout.close()
        return self._process.returncode


class Session:
    """A display, a message bus, a home folder. Every process it starts it also ends; nothing of the user's own session
    is seen or touched."""

    def __init__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="brimshade-session-"))
        for folder in ("runtime", "tmp"):
            (self.home / folder).mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home / "runtime"),
            "TMPDIR": str(self.home / "tmp"), "XDG_CURRENT_DESKTOP": "KDE", "LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "1",
        }
        self._processes = []
        self.environment["DISPLAY"] = ":" + self._first_line_of(
            "Xvfb", "-displayfd", "1", "-screen", "0", "1440x900x24", "-nolisten", "tcp",
            "-noreset")  # else it is away for a moment whenever its last client ends
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._first_line_of(
            "dbus-daemon", "--session", "--nofork", "--print-address=1")

    def _first_line_of(self, *command):
        return self.start(*command, stdout=subprocess.PIPE, text=True).stdout.readline().strip()

    def start(self, *command, without=(), **options):
        """without: variables that it does not see."""
        options = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, **options}
        environment = {name: value for name, value in self.environment.items() if name not in without}
        process = subprocess.Popen(command, env=environment, **options)
        self._processes.append(process)
        return process

    def start_window_manager(self):
        ready = self.home / "ready"
        os.mkfifo(ready)  # opening it waits for the window manager to write
        self.start("openbox", "--startup", f"sh -c 'echo > {ready}'")
        ready.read_text()

    def start_program(self, binary, description, *arguments, without=()):
        desktop = self.home / "desktop.json"
        desktop.write_text(json.dumps(description))
        return Program(self.start(binary, "--script", "-", "--desktop", str(desktop), *arguments, without=without,
                                  stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True))

    def write(self, path, text):
        file = self.home / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def output_of(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=60).stdout

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, capture_output=True, text=True,
                              check=True).stdout

    def close(self):
        for process in reversed(self._processes):
            process.terminate()
            for stream in (process.stdin, process.stdout):
                if stream:
                    stream.close()
        for process in reversed(self._processes):
            process.wait(timeout=30)
        shutil.rmtree(self.home, ignore_errors=True)
