# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The settings of a desktop portal: `settings_portal.py 1` prefers dark, `2` light, `0` nothing.

Under its own name it answers to `SetScheme(s)`, which changes the preference and announces it.
"""

import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

SETTINGS = "org.freedesktop.portal.Settings"
GROUP, KEY = "org.freedesktop.appearance", "color-scheme"


class Portal(dbus.service.Object):

    def __init__(self, bus, scheme):
        super().__init__(bus, "/org/freedesktop/portal/desktop")
        self.scheme = dbus.UInt32(scheme)

    @dbus.service.method(SETTINGS, in_signature="ss", out_signature="v")
    def Read(self, group, key):
        if (group, key) != (GROUP, KEY):
            raise dbus.DBusException("no such setting")
        # The portals of today wrap the value once more than their own text says.
        return dbus.UInt32(self.scheme, variant_level=1)

    @dbus.service.signal(SETTINGS, signature="ssv")
    def SettingChanged(self, group, key, value):
        pass

    @dbus.service.method("org.dropshade.TestPortal", in_signature="s")
    def SetScheme(self, scheme):
        self.scheme = dbus.UInt32(int(scheme))
        self.SettingChanged(GROUP, KEY, self.scheme)


def main(scheme):
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    portal = Portal(bus, int(scheme))
    name = dbus.service.BusName("org.freedesktop.portal.Desktop", bus)
    GLib.MainLoop().run()
    del portal, name


if __name__ == "__main__":
    main(sys.argv[1])
