"""Waiting for what other programs do: always for an event, always with a deadline, and saying what never came."""
import collections
import json
import os
import select
import time

PATIENCE = 30  # seconds; long enough for a machine that is also building; never reached if all is well


class NeverCame(AssertionError):
    pass


class Deadline:
    def __init__(self, what, patience=PATIENCE):
        """what: the text, or a function that makes it when needed."""
        self._what, self._patience = what, patience
        self._end = time.monotonic() + patience

    def wait(self, *descriptors):
        """Waits until one of them can be read, and returns those that can."""
        while True:
            self.check()
            ready = select.select(descriptors, [], [], max(0, self._end - time.monotonic()))[0]
            if ready:
                return ready

    def check(self):
        if time.monotonic() > self._end:
            self.fail(f"not within {self._patience} s")

    def fail(self, why):
        raise NeverCame(f"never came: {self._what() if callable(self._what) else self._what}; {why}")


class Lines:
    """The lines that come from a descriptor, which it owns."""

    def __init__(self, descriptor):
        os.set_blocking(descriptor, False)
        self._descriptor = descriptor
        self._bytes = b""
        self._is_at_end = False

    def fileno(self):
        return self._descriptor

    def next(self, what, deadline=None):
        """The next line, without its end; None after the last."""
        deadline = deadline or Deadline(what)
        while b"\n" not in self._bytes and not self._is_at_end:
            deadline.wait(self)
            self._read()
        line, found, self._bytes = self._bytes.partition(b"\n")
        return line.decode(errors="replace") if found else None

    def so_far(self):
        """The lines that have come and were not returned yet."""
        self._read()
        lines, _, self._bytes = self._bytes.rpartition(b"\n")
        return lines.decode(errors="replace").splitlines()

    def drain(self):
        """Forgets what has come so far."""
        self._read()
        self._bytes = b""

    def _read(self):
        try:
            read = os.read(self._descriptor, 65536)
        except BlockingIOError:
            return
        self._bytes += read
        self._is_at_end = not read

    def close(self):
        os.close(self._descriptor)


class Conversation:
    """A program that answers each line, a JSON object, with one, and sends events (lines with "event") in between."""

    def __init__(self, process, name):
        self.process = process
        self._name = name
        self._lines = Lines(os.dup(process.stdout.fileno()))
        self._events = collections.deque()

    def do(self, command, **arguments):
        self.process.stdin.write((json.dumps({"do": command, **arguments}) + "\n").encode())
        self.process.stdin.flush()
        deadline = Deadline(f"{self._name}: an answer to {command} {arguments}")
        while True:
            answer = self._read(deadline)
            if "event" not in answer:
                assert answer["ok"], (command, arguments, answer)
                return answer
            self._events.append(answer)

    def event(self, event, **details):
        """The first event of that name and with these details that was not returned yet; those before it are
        forgotten."""
        wanted = {"event": event, **details}
        passed = []
        deadline = Deadline(lambda: f"{self._name}: event {wanted}; there were {passed}")
        while True:
            came = self._events.popleft() if self._events else self._read(deadline)
            if wanted.items() <= came.items():
                return came
            passed.append(came)

    def events(self):
        """All events that have come and were not returned yet: after an answer, all that came before it."""
        events = list(self._events)
        self._events.clear()
        return events

    def until(self, what, found):
        """Asks for the state after each event until found(state) is true, and returns that value."""
        deadline = Deadline(lambda: f"{self._name}: {what}; the last state: {state}")
        while True:
            state = self.do("state")
            result = found(state)
            if result:
                return result
            if not self._events:
                self._events.append(self._read(deadline))
            self._events.popleft()

    def _read(self, deadline):
        line = self._lines.next(None, deadline)
        if line is None:
            deadline.fail(f"it ended with {self.process.wait(PATIENCE)}")
        return json.loads(line)

    def close(self):
        self._lines.close()
