#!/usr/bin/env python3
"""mock_docker.py JSON: a program that docks windows into its display's tray, as the JSON object says.

{"name": the windows', "count": how many, "colour": 0xRRGGBB, "mapped": false if it never wants to be seen, "side": the
size that it keeps asking for, "draws": how often a second it draws another colour, "visual": "argb" for one with
alpha}. If nobody owns the tray, it waits. It prints "docked" when it has asked, then each press that it gets as a JSON
array: button, x and y in the root window. It ends with its input; a line there destroys the first window, but "show"
and "hide" map and unmap it in XEMBED's way."""
import json
import select
import sys

from Xlib import X, display
from Xlib.protocol import event

MAPPED = 1


class Docker:
    def __init__(self, wanted):
        self.wanted = {"name": "docker", "count": 1, "colour": 0x3377cc, "mapped": True, "side": 16, "draws": 0, **wanted}
        self.display = display.Display()
        self.screen = self.display.screen()
        self.selection = self.atom(f"_NET_SYSTEM_TRAY_S{self.display.get_default_screen()}")
        self.colour = self.wanted["colour"]
        self.owner = None
        self.windows = [self.make_window(number) for number in range(self.wanted["count"])]

    def atom(self, name):
        return self.display.intern_atom(name)

    def make_window(self, number):
        depth, visual, more = X.CopyFromParent, X.CopyFromParent, {}
        if self.wanted.get("visual") == "argb":
            depth, visual = next((d.depth, v.visual_id) for d in self.screen.allowed_depths if d.depth == 32
                                 for v in d.visuals if v.visual_class == X.TrueColor)
            more = {"colormap": self.screen.root.create_colormap(visual, X.AllocNone), "border_pixel": 0}
        window = self.screen.root.create_window(
            0, 0, self.wanted["side"], self.wanted["side"], 0, depth, X.InputOutput, visual, background_pixel=0,
            event_mask=X.ButtonPressMask | X.StructureNotifyMask | X.ExposureMask, **more)
        name = self.wanted["name"] + (str(number) if self.wanted["count"] > 1 else "")
        window.set_wm_name(name)
        window.set_wm_class(name, self.wanted["name"].title())
        self.set_mapped(window, self.wanted["mapped"])
        return window

    def set_mapped(self, window, mapped):
        window.change_property(self.atom("_XEMBED_INFO"), self.atom("_XEMBED_INFO"), 32, [0, MAPPED if mapped else 0])

    def dock(self):
        self.display.grab_server()
        owner = self.display.get_selection_owner(self.selection)
        if owner != X.NONE:
            owner.change_attributes(event_mask=X.StructureNotifyMask)
        self.display.ungrab_server()
        self.owner = owner
        if owner == X.NONE:
            self.screen.root.change_attributes(event_mask=X.StructureNotifyMask)  # MANAGER messages come there
            self.display.flush()
            return
        for window in self.windows:
            owner.send_event(event.ClientMessage(window=owner, client_type=self.atom("_NET_SYSTEM_TRAY_OPCODE"),
                                                 data=(32, [X.CurrentTime, 0, window.id, 0, 0])))
        self.display.flush()
        print("docked", flush=True)

    def handle(self, came):
        if came.type == X.ButtonPress:
            print(json.dumps([came.detail, came.root_x, came.root_y]), flush=True)
        elif came.type == X.ClientMessage and came.client_type == self.atom("MANAGER"):
            self.dock()
        elif came.type == X.DestroyNotify and self.owner and came.window == self.owner:
            self.dock()
        elif came.type == X.Expose:
            self.paint(came.window)
        elif came.type == X.ConfigureNotify and came.width != self.wanted["side"]:
            came.window.configure(width=self.wanted["side"], height=self.wanted["side"])

    def draw(self):
        self.colour = (self.colour + 0x050301) & 0xffffff
        for window in self.windows:
            self.paint(window)

    def paint(self, window):
        """Draws a square on the window's background."""
        window.fill_rectangle(window.create_gc(foreground=self.colour | 0xff000000), 4, 4, 12, 12)

    def command(self, line):
        if line == "show" or line == "hide":
            self.set_mapped(self.windows[0], line == "show")
        else:
            self.windows[0].destroy()

    def run(self):
        self.dock()
        period = 1 / self.wanted["draws"] if self.wanted["draws"] else None
        while True:
            while self.display.pending_events():
                self.handle(self.display.next_event())
            self.display.flush()
            ready = select.select([self.display, sys.stdin], [], [], period)[0]
            if sys.stdin in ready:
                line = sys.stdin.readline()
                if not line:
                    return
                self.command(line.strip())
            if not ready:
                self.draw()


if __name__ == "__main__":
    Docker(json.loads(sys.argv[1])).run()
