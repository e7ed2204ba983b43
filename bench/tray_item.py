#!/usr/bin/env python3
"""bench/tray_item.py JSON: a tray item that is what the JSON object says, until it is ended.

{"theme": FOLDER of its icons, "icon": NAME, "menu": [[TITLE, ICON NAME], …], "changes": icons a second, each another
picture}. It prints a line once it has registered."""
import json
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

ITEM, MENU, PROPERTIES = "org.kde.StatusNotifierItem", "com.canonical.dbusmenu", "org.freedesktop.DBus.Properties"


def pixmap(shade, side=22):
    return dbus.Array([dbus.Struct((side, side, dbus.ByteArray(bytes((255, shade, 255 - shade, 128)) * side * side)),
                                   signature="iiay")], signature="(iiay)")


class Item(dbus.service.Object):
    def __init__(self, bus, wanted):
        super().__init__(bus, "/StatusNotifierItem")
        self.wanted = wanted
        self.shade = 0

    @dbus.service.method(PROPERTIES, in_signature="s", out_signature="a{sv}")
    def GetAll(self, _interface):
        return {"Id": "mock", "Title": "Mock", "Status": "Active", "IconName": self.wanted.get("icon", ""),
                "IconPixmap": pixmap(self.shade), "IconThemePath": self.wanted.get("theme", ""),
                "Menu": dbus.ObjectPath("/Menu"), "ItemIsMenu": dbus.Boolean(True)}

    @dbus.service.signal(ITEM)
    def NewIcon(self):
        self.shade = (self.shade + 7) % 256

    def change(self):
        self.NewIcon()
        return True


class Menu(dbus.service.Object):
    def __init__(self, bus, wanted):
        super().__init__(bus, "/Menu")
        self.entries = wanted.get("menu", [["Open", ""]])

    @dbus.service.method(MENU, in_signature="i", out_signature="b")
    def AboutToShow(self, _id):
        return False

    @dbus.service.method(MENU, in_signature="iias", out_signature="u(ia{sv}av)")
    def GetLayout(self, _parent, _depth, _names):
        children = [dbus.Struct((dbus.Int32(i), dbus.Dictionary({"label": title, "icon-name": icon}, signature="sv"),
                                 dbus.Array([], signature="v")), signature="ia{sv}av", variant_level=1)
                    for i, (title, icon) in enumerate(self.entries, 1)]
        return dbus.UInt32(1), dbus.Struct((dbus.Int32(0), dbus.Dictionary({}, signature="sv"),
                                            dbus.Array(children, signature="v")), signature="ia{sv}av")

    @dbus.service.method(MENU, in_signature="isvu")
    def Event(self, _id, _event, _data, _time):
        pass

    @dbus.service.signal(MENU, signature="ui")
    def LayoutUpdated(self, revision, parent):
        pass


def main(wanted):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    item, menu = Item(bus, wanted), Menu(bus, wanted)
    watcher = bus.get_object("org.kde.StatusNotifierWatcher", "/StatusNotifierWatcher")
    watcher.RegisterStatusNotifierItem("/StatusNotifierItem", dbus_interface="org.kde.StatusNotifierWatcher")
    print("registered", flush=True)
    if wanted.get("changes"):
        GLib.timeout_add(int(1000 / wanted["changes"]), item.change)
    GLib.MainLoop().run()
    del menu


if __name__ == "__main__":
    main(json.loads(sys.argv[1]))
