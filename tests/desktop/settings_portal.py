# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The settings of a desktop portal: `settings_portal.py 1` prefers dark, `2` light, `0` nothing.

Under its own name it answers to `Set(ssv)`, which changes a setting, by group and key, and announces it.
"""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

SETTINGS = "org.freedesktop.portal.Settings"
COLOR_SCHEME = "org.freedesktop.appearance", "color-scheme"


class Portal(dbus.service.Object):

    def __init__(self, bus, scheme):
        super().__init__(bus, "/org/freedesktop/portal/desktop")
        self.values = {COLOR_SCHEME: dbus.UInt32(scheme)}

    @dbus.service.method(SETTINGS, in_signature="ss", out_signature="v")
    def Read(self, group, key):
        if (group, key) not in self.values:
            raise dbus.DBusException("no such setting")
        # The portals of today wrap the value once more than their own text says.
        value = self.values[group, key]
        return type(value)(value, variant_level=1)

    @dbus.service.signal(SETTINGS, signature="ssv")
    def SettingChanged(self, group, key, value):
        pass

    @dbus.service.method("org.dropshade.TestPortal", in_signature="ssv")
    def Set(self, group, key, value):
        self.values[group, key] = value
        self.SettingChanged(group, key, value)


def main(scheme):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    portal = Portal(bus, int(scheme))
    name = dbus.service.BusName("org.freedesktop.portal.Desktop", bus)
    GLib.MainLoop().run()
    del portal, name


if __name__ == "__main__":
    main(sys.argv[1])
