"""A person's pointer and keys: they go wherever the display sends them."""
import os
import subprocess

from .waiting import PATIENCE, Lines, NeverCame

BUTTONS = {"left": (0x110, 1), "middle": (0x112, 2), "right": (0x111, 3)}  # Linux's code, X11's number
ROWS = {2: "1234567890-=", 16: "qwertyuiop[]", 30: "asdfghjkl;'`", 44: "zxcvbnm,./"}
CODES = {letter: first + i for first, row in ROWS.items() for i, letter in enumerate(row)} | {
    "`": 41, " ": 57, "\n": 28, "Return": 28, "Escape": 1, "Tab": 15, "BackSpace": 14, "Up": 103, "Left": 105,
    "Right": 106, "Down": 108, "Shift": 42, "Control": 29, "Alt": 56, "Super": 125, "F9": 67, "F10": 68}
XDOTOOL_NAMES = {"\n": "Return", " ": "space", "Shift": "shift", "Control": "ctrl", "Alt": "alt", "Super": "super"}


class Hands:
    def click(self, x, y, button="left"):
        self.move(x, y)
        self.press(button)
        self.release(button)

    def type(self, text):
        """Types letters and digits as on a US keyboard without Shift; "\\n" is Return."""
        for letter in text:
            self.key(letter)


class WaylandHands(Hands):
    def __init__(self, sway, *only):
        self._sway = sway
        self._process = sway.start(os.environ["INJECT"], *only, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self._lines = sway.own(Lines(os.dup(self._process.stdout.fileno())))
        self._answer("devices")

    def _answer(self, command):
        answer = self._lines.next(f"inject: {command}")
        if answer != "ok":
            raise NeverCame(f"inject: {command}: {answer}")

    def _do(self, *words):
        command = " ".join(map(str, words))
        self._process.stdin.write(command.encode() + b"\n")
        self._process.stdin.flush()
        self._answer(command)

    def move(self, x, y):
        """Moves to a point in the layout of all outputs."""
        rects = [output["rect"] for output in self._sway.ask("get_outputs") if output["active"]]
        self._do("move", x, y, max(r["x"] + r["width"] for r in rects), max(r["y"] + r["height"] for r in rects))

    def press(self, button="left"):
        self._do("button", BUTTONS[button][0], 1)

    def release(self, button="left"):
        self._do("button", BUTTONS[button][0], 0)

    def key(self, *names):
        """Presses the last key with the others held."""
        for down in names:
            self._do("key", CODES[down], 1)
        for up in reversed(names):
            self._do("key", CODES[up], 0)

    def end(self):
        """Takes the devices away."""
        self._process.stdin.close()
        self._process.wait(PATIENCE)


class X11Hands(Hands):
    def __init__(self, session):
        self._session = session

    def _do(self, *words):
        self._session.output_of("xdotool", *words)

    def move(self, x, y):
        self._do("mousemove", x, y)

    def press(self, button="left"):
        self._do("mousedown", BUTTONS[button][1])

    def release(self, button="left"):
        self._do("mouseup", BUTTONS[button][1])

    def turn_wheel(self):
        self._do("click", 4)

    def key(self, *names):
        self._do("key", "+".join(XDOTOOL_NAMES.get(name, name) for name in names))

    def type(self, text):
        self._do("key", *(XDOTOOL_NAMES.get(letter, letter) for letter in text))

