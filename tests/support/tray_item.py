#!/usr/bin/python3
"""A tray program with one item: tray_item.py TITLE [--restless]. Its Id is the title in small letters; a restless one has
another Id every ten milliseconds. It registers with whoever is the watcher, now and later, and ends with its bus."""
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER, PATH, ITEM = "org.kde.StatusNotifierWatcher", "/StatusNotifierItem", "org.kde.StatusNotifierItem"


class Item(dbus.service.Object):
    def __init__(self, bus, title):
        super().__init__(bus, PATH)
        self.properties = {"Id": title.lower(), "Title": title, "Status": "Active", "Category": "ApplicationStatus"}

    @dbus.service.method("org.freedesktop.DBus.Properties", in_signature="s", out_signature="a{sv}")
    def GetAll(self, _):
        return self.properties

    @dbus.service.signal(ITEM)
    def NewTitle(self):
        pass


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    loop = GLib.MainLoop()
    item = Item(bus, sys.argv[1])

    def register(owner):
        if owner:
            bus.call_async(WATCHER, "/StatusNotifierWatcher", WATCHER, "RegisterStatusNotifierItem", "s", (PATH,),
                           lambda *_: None, lambda *_: None)

    def rename(count=[0]):
        count[0] += 1
        item.properties["Id"] = f"{sys.argv[1].lower()}-{count[0]}"
        item.NewTitle()
        return True

    watch = bus.watch_name_owner(WATCHER, register)
    bus.call_on_disconnection(lambda _: loop.quit())
    if "--restless" in sys.argv:
        GLib.timeout_add(10, rename)
    loop.run()
    watch.cancel()


main()
