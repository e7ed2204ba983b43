#!/usr/bin/env python3
"""mock_item.py JSON: a tray item of this process, with a menu, as the JSON object describes it.

{"path": where the item is, "properties": the item's, in addition to {"Id": "mock", …}, "menu": [[TITLE, ICON NAME], …],
"icons": how many new pictures a second, "unknown": [methods that it lacks], "count": how many such items, numbered if
there are several}. It registers with the watcher, and again with each new one, and prints "registered" each time, then
each call that it gets as a JSON array, one per line. A line on standard input, {"properties": {…}, "signal": NAME},
changes the first item. It ends with its input or its bus."""
import json
import sys

import dbus
import dbus.lowlevel
import dbus.mainloop.glib
from gi.repository import GLib

ITEM, WATCHER = "org.kde.StatusNotifierItem", "org.kde.StatusNotifierWatcher"
QUIET = ("GetAll", "GetLayout")  # called again and again
SIDE = 22


def pixmap(shade):
    bytes_of_it = dbus.ByteArray(bytes((255, shade, 255 - shade, 128)) * SIDE * SIDE)
    return dbus.Array([dbus.Struct((SIDE, SIDE, bytes_of_it), signature="iiay")], signature="(iiay)")


def typed(properties):
    """JSON values in the types of the item's interface: a tool tip is [TITLE, TEXT], a menu its path."""
    made = dict(properties)
    if "ToolTip" in made:
        made["ToolTip"] = dbus.Struct(("", dbus.Array([], signature="(iiay)"), *made["ToolTip"]), signature="sa(iiay)ss")
    if "Menu" in made:
        made["Menu"] = dbus.ObjectPath(made["Menu"])
    return made


class Item:
    """Answers every message itself, so that it can lack methods, and lie."""

    def __init__(self, bus, wanted, number=""):
        self.bus, self.path = bus, wanted.get("path", "/StatusNotifierItem") + str(number)
        self.properties = {"Id": f"mock{number}", "Title": f"Mock {number}".strip(), "Status": "Active",
                           "Menu": dbus.ObjectPath("/Menu"), "IconPixmap": pixmap(4 * int(number or 0) % 256),
                           **typed(wanted.get("properties", {}))}
        self.menu = wanted.get("menu", [["Open", ""]])
        self.unknown = wanted.get("unknown", [])
        self.shade = 0
        bus.add_message_filter(self.handle)

    def handle(self, _bus, message):
        if not isinstance(message, dbus.lowlevel.MethodCallMessage) or message.get_path() not in (self.path, "/Menu"):
            return dbus.lowlevel.HANDLER_RESULT_NOT_YET_HANDLED
        method, arguments = message.get_member(), message.get_args_list()
        if method not in QUIET:
            print(json.dumps([method, *(a for a in arguments if isinstance(a, (int, str)))]), flush=True)
        if method in self.unknown:
            reply = dbus.lowlevel.ErrorMessage(message, "org.freedesktop.DBus.Error.UnknownMethod", "no such method")
        else:
            reply = dbus.lowlevel.MethodReturnMessage(message)
            self.answer(method, reply)
        if not message.get_no_reply():
            self.bus.send_message(reply)
        return dbus.lowlevel.HANDLER_RESULT_HANDLED

    def answer(self, method, reply):
        if method == "GetAll":
            reply.append(dbus.Dictionary(self.properties, signature="sv"), signature="a{sv}")
        elif method == "AboutToShow":
            reply.append(False, signature="b")
        elif method == "GetLayout":
            children = [dbus.Struct((dbus.Int32(i), dbus.Dictionary({"label": title, "icon-name": icon}, signature="sv"),
                                     dbus.Array([], signature="v")), signature="ia{sv}av", variant_level=1)
                        for i, (title, icon) in enumerate(self.menu, 1)]
            reply.append(dbus.UInt32(1), (dbus.Int32(0), dbus.Dictionary({}, signature="sv"),
                                          dbus.Array(children, signature="v")), signature="u(ia{sv}av)")

    def signal(self, name):
        self.bus.send_message(dbus.lowlevel.SignalMessage(self.path, ITEM, name))

    def draw(self):
        self.shade = (self.shade + 7) % 256
        self.properties["IconPixmap"] = pixmap(self.shade)
        self.signal("NewIcon")
        return True

    def command(self, source, _condition):
        line = source.readline()
        if not line:
            sys.exit()
        wanted = json.loads(line)
        self.properties.update(typed(wanted["properties"]))
        self.signal(wanted["signal"])
        return True


def main(wanted):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus, loop = dbus.SessionBus(), GLib.MainLoop()
    count = wanted.get("count", 1)
    items = [Item(bus, wanted, number) for number in (range(count) if count > 1 else [""])]

    def register(owner):
        for item in items if owner else []:
            said = (lambda: print("registered", flush=True)) if item is items[-1] else (lambda: None)
            bus.call_async(WATCHER, "/StatusNotifierWatcher", WATCHER, "RegisterStatusNotifierItem", "s", (item.path,),
                           said, lambda _: None)

    watch = bus.watch_name_owner(WATCHER, register)
    bus.call_on_disconnection(lambda _: loop.quit())
    if wanted.get("icons"):
        GLib.timeout_add(int(1000 / wanted["icons"]), items[0].draw)
    GLib.io_add_watch(sys.stdin, GLib.PRIORITY_DEFAULT, GLib.IO_IN | GLib.IO_HUP, items[0].command)
    loop.run()
    watch.cancel()


if __name__ == "__main__":
    main(json.loads(sys.argv[1]))
