# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What a desktop gives the real portal to ask for colours: `color_portal_backend.py FOLDER`.

Writes the file by which the portal finds it into FOLDER. Its user picks, one after the other, a
colour, nothing, and another colour.
"""

import pathlib
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.impl.portal.desktop.dropshadetest"
SCREENSHOT = "org.freedesktop.impl.portal.Screenshot"
# The portal offers no screenshots on a desktop that can't ask for leave.
ACCESS = "org.freedesktop.impl.portal.Access"
FILE = f"""[portal]
DBusName={NAME}
Interfaces={SCREENSHOT};{ACCESS}
UseIn=sway
"""
ANSWERS = [(0, (1.0, 128 / 255, 1 / 255)), (1, None), (0, (0.0, 0.5, 1.0))]


class Backend(dbus.service.Object):

    def __init__(self, bus):
        super().__init__(bus, "/org/freedesktop/portal/desktop")
        self.answers = list(ANSWERS)

    @dbus.service.method(SCREENSHOT, in_signature="ossa{sv}", out_signature="ua{sv}")
    def PickColor(self, _handle, _app, _parent, _options):
        code, color = self.answers.pop(0)
        results = {"color": dbus.Struct(color, signature="ddd")} if color else {}
        return code, dbus.Dictionary(results, signature="sv")

    @dbus.service.method(ACCESS, in_signature="osssssa{sv}", out_signature="ua{sv}")
    def AccessDialog(self, _handle, _app, _parent, _title, _subtitle, _body, _options):
        return 0, dbus.Dictionary({}, signature="sv")


def main():
    pathlib.Path(sys.argv[1], "test.portal").write_text(FILE)
    dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
    bus = dbus.SessionBus()
    backend = Backend(bus)
    name = dbus.service.BusName(NAME, bus)
    GLib.MainLoop().run()
    del backend, name


if __name__ == "__main__":
    main()
