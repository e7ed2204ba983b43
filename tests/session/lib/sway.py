"""sway without a screen: a real compositor with layer-shell, with real input from virtual devices."""
import json
import os

from .hands import WaylandHands
from .picture import from_ppm
from .session import Session, Terminal
from .waiting import PATIENCE, Deadline

ORDINARY_USER = 1000  # sway refuses to run as root; the runtime folder is this user's, and root's programs may connect
CONFIG = """
xwayland disable
default_border none
focus_follows_mouse no
workspace_layout default
seat * hide_cursor 0
{outputs}
{more}
exec sh -c 'echo "$WAYLAND_DISPLAY $SWAYSOCK" > {ready}'
"""


class Sway(Session):
    """outputs: the modes of HEADLESS-1, HEADLESS-2, …; config: more lines of sway's configuration. Inside another sway
    it has outputs that can be unplugged, WL-1 and so on: each is a window in the other one, and as large as that
    window."""

    def __init__(self, outputs=("1512x982",), config="", inside=None):
        super().__init__()
        self._outer = inside
        try:
            self._start(outputs, config)
        except BaseException:
            self.close()
            raise

    def _start(self, outputs, config):
        ready, is_ready = self.fifo("sway.ready")
        file = self.home / "sway.config"
        file.write_text(CONFIG.format(ready=ready, more=config, outputs="\n".join(
            f"output HEADLESS-{number} resolution {mode}" for number, mode in enumerate(outputs, 1))))
        as_user = []
        if os.geteuid() == 0:
            self.home.chmod(0o711)
            os.chown(self.runtime, ORDINARY_USER, ORDINARY_USER)
            as_user = ["setpriv", f"--reuid={ORDINARY_USER}", f"--regid={ORDINARY_USER}", "--clear-groups",
                       "--pdeathsig", "TERM"]
        backend = {"WLR_BACKENDS": "headless", "WLR_HEADLESS_OUTPUTS": str(len(outputs))}
        if self._outer:
            display = self._outer.runtime / self._outer.environment["WAYLAND_DISPLAY"]
            backend = {"WLR_BACKENDS": "wayland", "WLR_WL_OUTPUTS": "1", "WAYLAND_DISPLAY": str(display)}
        with open(self.home / "sway.err", "wb") as errors:
            self.compositor = self.start(*as_user, "sway", "-c", file, stderr=errors, env={
                **self.environment, **backend, "WLR_RENDERER": "pixman", "WLR_LIBINPUT_NO_DEVICES": "1"})
        line = is_ready.next(lambda: f"sway; it says {self.errors('sway')[-2000:]}")
        self.environment["WAYLAND_DISPLAY"], self.environment["SWAYSOCK"] = line.split()
        self.environment["XDG_CURRENT_DESKTOP"] = "sway"
        self.environment["XDG_SESSION_TYPE"] = "wayland"
        self._events = self.lines_of("swaymsg", "-r", "-m", "-t", "subscribe",
                                     '["window", "workspace", "output", "input", "tick"]')
        self._events.next("sway's events")  # the first tick means that they come from now on

    def command(self, *words):
        """Runs a command of sway, as in its configuration."""
        answers = json.loads(self.output_of("swaymsg", "-r", "--", *words))
        assert all(answer["success"] for answer in answers), (words, answers)

    def ask(self, kind):
        """get_tree, get_outputs, get_seats, …"""
        return json.loads(self.output_of("swaymsg", "-r", "-t", kind))

    def until(self, what, found):
        """Calls found() now and after each of sway's events until it is true, and returns that value."""
        deadline = Deadline(lambda: f"{what}; the tree: {json.dumps(self.ask('get_tree'))[:4000]}")
        while True:
            self._events.drain()
            result = found()
            if result:
                return result
            deadline.wait(self._events)

    def windows(self):
        """The nodes of all windows."""
        found, nodes = [], [self.ask("get_tree")]
        while nodes:
            node = nodes.pop()
            nodes += node["nodes"] + node["floating_nodes"]
            if node.get("app_id"):
                found.append(node)
        return found

    def window(self, app_id):
        return next((node for node in self.windows() if node["app_id"] == app_id), None)

    def output(self, name="HEADLESS-1"):
        return next(output for output in self.ask("get_outputs") if output["name"] == name)

    def terminal(self, app_id="terminal"):
        """A new terminal, once it has the focus."""
        terminal = Terminal(self, app_id, "foot", "--app-id", app_id)
        self.until_focused(app_id)
        return terminal

    def until_focused(self, app_id):
        self.until(f"focus of {app_id}", lambda: (self.window(app_id) or {}).get("focused"))

    def rect(self, app_id):
        """[x, y, width, height] in the layout of all outputs."""
        rect = self.window(app_id)["rect"]
        return [rect["x"], rect["y"], rect["width"], rect["height"]]

    def set_full_screen(self, app_id, on):
        self.command(f"[app_id={app_id}] fullscreen {'enable' if on else 'disable'}")

    def hands(self, *only):
        """A virtual pointer and keyboard, or only "pointer" or "keyboard". The seat has no other devices."""
        return WaylandHands(self, *only)

    def picture(self, output="HEADLESS-1"):
        """In pixels of the output."""
        return from_ppm(self.output_of("grim", "-t", "ppm", "-o", output, "-"))

    def unplug(self, output):
        """Unplugs an output of a sway inside another; create_output plugs in the next. sway's headless outputs cannot
        be disabled."""
        self._outer.command(f'[title="{output}$"] kill')

    def kill_display(self):
        self.compositor.kill()
        self.compositor.wait(PATIENCE)

