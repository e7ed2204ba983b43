"""What the X server of a tray knows: who owns the tray, and which windows other programs have open."""
from Xlib import X, display
from Xlib.error import BadDrawable, BadWindow, ConnectionClosedError


class Desk:
    """A separate client of a session's X server."""

    def __init__(self, session):
        self._display = display.Display(session.environment["DISPLAY"])
        self._screen = self._display.screen()
        self._selection = self._display.intern_atom(f"_NET_SYSTEM_TRAY_S{self._display.get_default_screen()}")
        session.own(self)

    def close(self):
        try:
            self._display.close()
        except ConnectionClosedError:
            pass  # by the server, which ended first

    def tray_owner(self):
        """The identifier of the tray's window; 0 without one."""
        owner = self._display.get_selection_owner(self._selection)
        return getattr(owner, "id", owner)

    def take_tray(self):
        """Takes the tray from its owner, until this is closed. Docks nothing."""
        window = self._screen.root.create_window(-1, -1, 1, 1, 0, X.CopyFromParent)
        window.set_selection_owner(self._selection, X.CurrentTime)
        self._display.sync()

    def opened(self, class_name):
        """[x, y, width, height] of the windows that a program shows without the window manager, like menus."""
        found = []
        for window in self._screen.root.query_tree().children:
            try:
                attributes, geometry, names = window.get_attributes(), window.get_geometry(), window.get_wm_class()
            except (BadWindow, BadDrawable):
                continue  # gone since it was listed
            is_seen = attributes.map_state == X.IsViewable and attributes.override_redirect and geometry.width > 1
            if is_seen and names and class_name in [name.lower() for name in names]:
                found.append([geometry.x, geometry.y, geometry.width, geometry.height])
        return found

    def pointer(self):
        at = self._screen.root.query_pointer()
        return at.root_x, at.root_y
