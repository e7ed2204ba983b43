"""What a tray's X server knows: who owns the tray, which windows other programs have open over it."""
from Xlib import X, display
from Xlib.error import BadDrawable, BadWindow, ConnectionClosedError


class Desk:
    """A client of its own on a session's X server."""

    def __init__(self, session):
        self._display = display.Display(session.environment["DISPLAY"])
        self._screen = self._display.screen()
        self._selection = self._display.intern_atom(f"_NET_SYSTEM_TRAY_S{self._display.get_default_screen()}")
        session.own(self)

    def close(self):
        try:
            self._display.close()
        except ConnectionClosedError:
            pass  # by the server, which ended before

    def tray_owner(self):
        """Its window's identifier; 0 without one."""
        owner = self._display.get_selection_owner(self._selection)
        return getattr(owner, "id", owner)

    def take_tray(self):
        """Owns the tray from now on, whoever had it, until it is closed. Docks nothing."""
        window = self._screen.root.create_window(-1, -1, 1, 1, 0, X.CopyFromParent)
        window.set_selection_owner(self._selection, X.CurrentTime)
        self._display.sync()

    def opened(self, class_name):
        """[x, y, width, height] of the windows that a program shows past the window manager, as menus are."""
        found = []
        for window in self._screen.root.query_tree().children:
            try:
                attributes, geometry, names = window.get_attributes(), window.get_geometry(), window.get_wm_class()
            except (BadWindow, BadDrawable):
                continue  # it has gone since it was listed
            is_seen = attributes.map_state == X.IsViewable and attributes.override_redirect and geometry.width > 1
            if is_seen and names and class_name in [name.lower() for name in names]:
                found.append([geometry.x, geometry.y, geometry.width, geometry.height])
        return found

    def pointer(self):
        at = self._screen.root.query_pointer()
        return at.root_x, at.root_y
