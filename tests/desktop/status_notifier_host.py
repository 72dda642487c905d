# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A panel of the StatusNotifierItem kind without a face: it takes items and clicks them when told.

Run as a program on the session bus. Besides the watcher's interface it answers, under its own name, to
`Items() → as`, `IconSizes() → as` of the first item, and `Click(s method)`, which calls `Activate`,
`SecondaryActivate` or `ContextMenu` of the first item.
"""

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
HOST = "org.dropshade.TestHost"
# Qt looks at the introspection before it reads the property.
INTROSPECTION = f"""<node><interface name="{WATCHER}">
<method name="RegisterStatusNotifierItem"><arg name="service" type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg name="service" type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
<signal name="StatusNotifierHostRegistered"/>
</interface><interface name="{dbus.PROPERTIES_IFACE}">
<method name="Get"><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="v" direction="out"/></method></interface></node>"""


class Watcher(dbus.service.Object):

    def __init__(self, bus):
        super().__init__(bus, "/StatusNotifierWatcher")
        self.bus = bus
        self.items = []

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s")
    def Introspect(self):
        return INTROSPECTION

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, _interface, name):
        return {"IsStatusNotifierHostRegistered": dbus.Boolean(True),
                "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s"),
                "ProtocolVersion": dbus.Int32(0)}[name]

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender):
        self.items.append(service if service.startswith(("org.", ":")) else sender)

    @dbus.service.signal(WATCHER)
    def StatusNotifierHostRegistered(self):
        pass

    @dbus.service.method(HOST, out_signature="as")
    def Items(self):
        return dbus.Array([item for item in self.items if self.bus.name_has_owner(item)],
                          signature="s")

    @dbus.service.method(HOST, in_signature="s")
    def Click(self, method):
        item = self.bus.get_object(self.Items()[0], "/StatusNotifierItem", introspect=False)
        item.get_dbus_method(method, ITEM)(dbus.Int32(0), dbus.Int32(0), ignore_reply=True)

    @dbus.service.method(HOST, out_signature="as")
    def IconSizes(self):
        item = self.bus.get_object(self.Items()[0], "/StatusNotifierItem", introspect=False)
        pixmaps = item.Get(ITEM, "IconPixmap", dbus_interface=dbus.PROPERTIES_IFACE)
        return [f"{width}x{height}" for width, height, _ in pixmaps]


def main():
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    watcher = Watcher(bus)
    name = dbus.service.BusName(WATCHER, bus)
    host = dbus.service.BusName(HOST, bus)
    watcher.StatusNotifierHostRegistered()
    GLib.MainLoop().run()
    del name, host


if __name__ == "__main__":
    main()
