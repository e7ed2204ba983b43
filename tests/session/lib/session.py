"""What every session has: a home of its own, a message bus, programs."""
import os
import pathlib
import shutil
import subprocess
import tempfile

from .waiting import PATIENCE, Conversation, Deadline, Lines


class Session:
    """Every process started in it also ends with it; it neither sees nor touches the user's own session."""

    def __init__(self):
        self.home = pathlib.Path(tempfile.mkdtemp(prefix="brimshade-session-"))
        self.runtime = self.home / "runtime"
        self.runtime.mkdir(mode=0o700)
        temporary = self.home / "tmp"  # where programs find out that they are already running
        temporary.mkdir()
        temporary.chmod(0o1777)
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.runtime), "TMPDIR": str(temporary),
            "LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "1", "QT_QUICK_BACKEND": "software",
        }
        self._processes = []
        self._closed_with_it = []

    # Programs

    def start(self, *command, **options):
        """Starts a program. Its output is discarded unless options say otherwise. It ends with this process, however
        that ends."""
        options = {"stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL,
                   "env": self.environment, **options}
        process = subprocess.Popen(["setpriv", "--pdeathsig", "TERM", *map(str, command)], **options)
        self._processes.append(process)
        return process

    def talk(self, name, *command, **options):
        """Starts a program to talk to through its standard input and output. Its standard error goes to
        errors(name)."""
        with open(self.home / f"{name}.err", "wb") as errors:
            return self.start(*command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=errors, **options)

    def converse(self, name, *command, kind=Conversation, **options):
        """Starts a program to talk to in JSON."""
        return self.own(kind(self.talk(name, *command, **options), name))

    def write(self, path, text):
        """Writes a file below the home."""
        file = self.home / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)
        return file

    def errors(self, name):
        """What a program started by talk or converse has written to standard error."""
        return (self.home / f"{name}.err").read_text(errors="replace")

    def lines_of(self, *command, **options):
        """Starts a program and returns its lines, as they come."""
        process = self.start(*command, stdout=subprocess.PIPE, **options)
        return self.own(Lines(os.dup(process.stdout.fileno())))

    def output_of(self, *command, **options):
        return subprocess.run([str(word) for word in command], env=self.environment, capture_output=True,
                              check=True, timeout=PATIENCE, **options).stdout

    def wait_for_end(self, process, what):
        """The exit status; negative for a signal that ended it."""
        descriptor = os.pidfd_open(process.pid)
        try:
            Deadline(what).wait(descriptor)
        finally:
            os.close(descriptor)
        return process.wait(PATIENCE)

    def fifo(self, name):
        """The path of a new FIFO, and the lines that programs write into it."""
        path = self.home / name
        os.mkfifo(path, 0o666)
        os.chmod(path, 0o666)
        # Also open for writing here, or we would read its end whenever a writer leaves.
        return path, self.own(Lines(os.open(path, os.O_RDWR)))

    def until_picture(self, what, holds, *of):
        """Takes picture(*of) repeatedly, since displays do not tell when they have drawn, until holds(picture); returns
        that one."""
        deadline = Deadline(f"a picture of {what}")
        while True:
            picture = self.picture(*of)
            if holds(picture):
                return picture
            deadline.check()

    def start_bus(self):
        lines = self.lines_of("dbus-daemon", "--session", "--nofork", "--print-address=1")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = lines.next("the message bus's address")

    def own(self, closable):
        """Closes it with the session."""
        self._closed_with_it.append(closable)
        return closable

    def close(self):
        for process in reversed(self._processes):
            if process.poll() is None:
                process.terminate()
        for process in reversed(self._processes):
            try:
                process.wait(timeout=PATIENCE)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait(PATIENCE)
            for stream in (process.stdin, process.stdout):
                if stream:
                    try:
                        stream.close()
                    except BrokenPipeError:
                        pass
        for closable in self._closed_with_it:
            closable.close()
        shutil.rmtree(self.home, ignore_errors=True)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()


class Terminal:
    """A real terminal that reports each line typed into it, but handles Ctrl-C and arrows itself."""

    def __init__(self, session, name, *command):
        fifo, self._lines = session.fifo(f"{name}.lines")
        ready, is_ready = session.fifo(f"{name}.ready")
        script = f'echo > {ready}; while read -r line; do printf "%s\\n" "$line" > {fifo}; done'
        self.process = session.start(*command, "sh", "-c", script)
        self.name = name
        is_ready.next(f"{name}: the terminal")

    def line(self):
        return self._lines.next(f"{self.name}: a typed line")
