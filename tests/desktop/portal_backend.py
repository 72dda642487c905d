# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What a desktop gives the real portal: `portal_backend.py FOLDER`.

Writes the file by which the portal finds it into FOLDER. Its user picks, one after the other, a
colour, nothing, and another colour; asked for keys, they give two and leave the rest without. A test
presses those keys, and changes one, by the methods of org.dropshade.TestPortal.
"""

import pathlib
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

NAME = "org.freedesktop.impl.portal.desktop.dropshadetest"
PATH = "/org/freedesktop/portal/desktop"
SCREENSHOT = "org.freedesktop.impl.portal.Screenshot"
SHORTCUTS = "org.freedesktop.impl.portal.GlobalShortcuts"
SESSION = "org.freedesktop.impl.portal.Session"
TEST = "org.dropshade.TestPortal"
# The portal offers no screenshots on a desktop that can't ask for leave.
ACCESS = "org.freedesktop.impl.portal.Access"
FILE = f"""[portal]
DBusName={NAME}
Interfaces={SCREENSHOT};{ACCESS};{SHORTCUTS}
UseIn=sway
"""
ANSWERS = [(0, (1.0, 128 / 255, 1 / 255)), (1, None), (0, (0.0, 0.5, 1.0))]
KEYS = {"pickColor": "Meta+Shift+C", "convert": "Meta+P"}


class Session(dbus.service.Object):

    @dbus.service.method(SESSION)
    def Close(self):
        self.remove_from_connection()


class Backend(dbus.service.Object):

    def __init__(self, bus):
        super().__init__(bus, PATH)
        self.bus = bus
        self.answers = list(ANSWERS)
        self.keys = dict(KEYS)
        self.session = None
        self.wishes = []
        self.bindings = 0

    @dbus.service.method(SCREENSHOT, in_signature="ossa{sv}", out_signature="ua{sv}")
    def PickColor(self, _handle, _app, _parent, _options):
        code, color = self.answers.pop(0)
        results = {"color": dbus.Struct(color, signature="ddd")} if color else {}
        return code, dbus.Dictionary(results, signature="sv")

    @dbus.service.method(ACCESS, in_signature="osssssa{sv}", out_signature="ua{sv}")
    def AccessDialog(self, _handle, _app, _parent, _title, _subtitle, _body, _options):
        return 0, dbus.Dictionary({}, signature="sv")

    @dbus.service.method(SHORTCUTS, in_signature="oosa{sv}", out_signature="ua{sv}")
    def CreateSession(self, _handle, session, _app, _options):
        self.session = session
        Session(self.bus, session)
        return 0, dbus.Dictionary({}, signature="sv")

    @dbus.service.method(SHORTCUTS, in_signature="ooa(sa{sv})sa{sv}", out_signature="ua{sv}")
    def BindShortcuts(self, _handle, _session, shortcuts, _parent, _options):
        self.bindings += 1
        self.wishes = [f"{name} {details['description']}"
                       for name, details in shortcuts]
        return 0, dbus.Dictionary({"shortcuts": self.given()}, signature="sv")

    def given(self):
        return dbus.Array([dbus.Struct((name, {"trigger_description": key}), signature="sa{sv}")
                           for name, key in self.keys.items()], signature="(sa{sv})")

    @dbus.service.signal(SHORTCUTS, signature="osta{sv}")
    def Activated(self, session, name, timestamp, options):
        pass

    @dbus.service.signal(SHORTCUTS, signature="osta{sv}")
    def Deactivated(self, session, name, timestamp, options):
        pass

    @dbus.service.signal(SHORTCUTS, signature="oa(sa{sv})")
    def ShortcutsChanged(self, session, shortcuts):
        pass

    @dbus.service.method(TEST, in_signature="s")
    def Press(self, name):
        self.Activated(self.session, name, 0, dbus.Dictionary({}, signature="sv"))

    @dbus.service.method(TEST, in_signature="s")
    def Release(self, name):
        self.Deactivated(self.session, name, 0, dbus.Dictionary({}, signature="sv"))

    @dbus.service.method(TEST, in_signature="ss")
    def ChangeKey(self, name, key):
        self.keys[name] = key
        self.ShortcutsChanged(self.session, self.given())

    @dbus.service.method(TEST, out_signature="as")
    def Wishes(self):
        return dbus.Array(self.wishes, signature="s")

    @dbus.service.method(TEST, out_signature="u")
    def Bindings(self):
        return self.bindings


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
