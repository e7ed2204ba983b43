#!/usr/bin/env python3
"""bench/many_items.py COUNT: so many tray items, each with a picture of its own, until it is ended. It prints a line once all
have registered."""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

ITEM = "org.kde.StatusNotifierItem"
WATCHER = "org.kde.StatusNotifierWatcher"
SIDE = 22


class Item(dbus.service.Object):
    def __init__(self, bus, number):
        super().__init__(bus, f"/Item{number}")
        self.number = number

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _interface):
        shade = self.number * 4 % 256
        pixels = dbus.ByteArray(bytes((255, shade, 255 - shade, 128)) * SIDE * SIDE)
        return {"Id": f"item{self.number}", "Title": f"Application {self.number}", "Status": "Active", "IconName": "",
                "IconPixmap": dbus.Array([dbus.Struct((SIDE, SIDE, pixels), signature="iiay")], signature="(iiay)"),
                "Menu": dbus.ObjectPath("/NO_DBUSMENU"), "ItemIsMenu": dbus.Boolean(False)}


def main(count):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    items = [Item(bus, number) for number in range(count)]
    watcher = dbus.Interface(bus.get_object(WATCHER, "/StatusNotifierWatcher"), WATCHER)
    for item in items:
        watcher.RegisterStatusNotifierItem(f"/Item{item.number}")
    print("registered", flush=True)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main(int(sys.argv[1]))
