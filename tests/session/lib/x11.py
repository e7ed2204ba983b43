"""An X server without a screen, with a window manager and, if wanted, a compositing manager."""
import os
import re
import subprocess
import signal

from .hands import X11Hands
from .picture import from_xwd
from .session import Session, Terminal
from .waiting import PATIENCE, Deadline


class X11(Session):
    def __init__(self, size=(1512, 982), composited=False):
        super().__init__()
        self._terminals = []
        self.compositing_manager = None
        try:
            self._start(size, composited)
        except BaseException:
            self.close()
            raise

    def _start(self, size, composited):
        lines = self.lines_of("Xvfb", "-displayfd", "1", "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten", "tcp",
                              "-noreset")
        self.server = self._processes[-1]
        self.environment["DISPLAY"] = ":" + lines.next("the X server's display")
        self.environment["XDG_CURRENT_DESKTOP"] = "openbox"
        self.environment["XDG_SESSION_TYPE"] = "x11"
        self._changes = self.lines_of("xprop", "-root", "-spy")
        self._changes.next("the root window's properties")
        ready, is_ready = self.fifo("openbox.ready")
        self.window_manager = self.start("openbox", "--startup", f"sh -c 'echo > {ready}'")
        is_ready.next("openbox")
        if composited:
            self.start_compositing_manager()

    def start_compositing_manager(self):
        """Returns once it is running: picom goes into the background only then."""
        file = self.home / "picom.pid"
        self.output_of("picom", "-b", "--config", "/dev/null", "--backend", "xrender", "--write-pid-path", file)
        self.compositing_manager = int(file.read_text())

    def end_compositing_manager(self):
        os.kill(self.compositing_manager, signal.SIGTERM)
        self.compositing_manager = None

    def until(self, what, found):
        """Calls found() now and after each change of the root window's properties until it is true, and returns that
        value."""
        deadline = Deadline(lambda: f"{what}; the root window: {self.output_of('xprop', '-root').decode()[:4000]}")
        while True:
            self._changes.drain()
            result = found()
            if result:
                return result
            deadline.wait(self._changes)

    def numbers(self, name, window=None):
        """The numbers, decimal or hexadecimal, in a property of a window or of the root window; none if it is
        missing."""
        of = ["-id", str(window)] if window else ["-root"]
        value = re.split("[=#]", self.output_of("xprop", *of, name).decode(), 1)[1:]
        return [int(number, 0) for number in re.findall(r"0x[0-9a-f]+|-?\d+", *value)] if value else []

    def work_area(self):
        """[x, y, width, height] of the first desktop."""
        return self.numbers("_NET_WORKAREA")[:4]

    def active_window(self):
        return next(iter(self.numbers("_NET_ACTIVE_WINDOW")), 0)

    def window(self, class_name):
        """The identifier of the client with that class; None if there is none."""
        for client in self.numbers("_NET_CLIENT_LIST"):
            try:
                is_it = f'"{class_name}"' in self.output_of("xprop", "-id", str(client), "WM_CLASS").decode()
            except subprocess.CalledProcessError:
                continue  # gone since it was listed
            if is_it:
                return client
        return None

    def geometry(self, window):
        """[x, y, width, height] in the root window."""
        text = self.output_of("xwininfo", "-id", str(window)).decode()
        return [int(re.search(rf"{label}:\s+(-?\d+)", text)[1])
                for label in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]

    def terminal(self, class_name="terminal"):
        """A new terminal, once it has the focus. Each is placed right of the previous one."""
        at = len([name for name in self._terminals if self.window(name)])
        self._terminals.append(class_name)
        terminal = Terminal(self, class_name, "xterm", "-class", class_name, "-geometry", f"80x40+{20 + 700 * at}+60", "-e")
        self.until_focused(class_name)
        return terminal

    def until_focused(self, class_name):
        self.until(f"focus of {class_name}",
                   lambda: self.window(class_name) and self.active_window() == self.window(class_name))

    def rect(self, class_name):
        return self.geometry(self.window(class_name))

    def set_full_screen(self, class_name, on):
        """The terminal must have the focus."""
        window = self.window(class_name)
        if ("_NET_WM_STATE_FULLSCREEN" in self.output_of("xprop", "-id", str(window), "_NET_WM_STATE").decode()) != on:
            self.hands().key("Alt", "Return")

    def close(self):
        if self.compositing_manager:
            self.end_compositing_manager()
        super().close()

    def hands(self):
        return X11Hands(self)

    def picture(self):
        """xwd fails if a window disappears while it looks; then it is run again."""
        deadline = Deadline("a picture of the screen")
        while True:
            try:
                return from_xwd(self.output_of("xwd", "-root", "-silent"))
            except subprocess.CalledProcessError:
                deadline.check()

    def kill_display(self):
        self.server.kill()
        self.server.wait(PATIENCE)
