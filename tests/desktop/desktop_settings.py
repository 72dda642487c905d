# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""How a test has the user of its desktop change the look of things."""

import pathlib
import subprocess

from dropshade_case import wait_until

PORTAL = str(pathlib.Path(__file__).with_name("settings_portal.py"))
SCHEMES = {"dark": 1, "light": 2}
ALL_DESKTOPS = "org.freedesktop.appearance"


class DesktopSettings:
    """The settings of a portal that starts with it on `desktop`, and prefers light."""

    def __init__(self, desktop):
        self._desktop = desktop
        desktop.start(["/usr/bin/python3", PORTAL, str(SCHEMES["light"])])
        wait_until(lambda: desktop.bus_has_name("org.freedesktop.portal.Desktop"), "the portal")

    def set_scheme(self, name):
        self._set(ALL_DESKTOPS, "color-scheme", f"uint32:{SCHEMES[name]}")

    def set_high_contrast(self, wanted):
        self._set(ALL_DESKTOPS, "contrast", f"uint32:{int(wanted)}")

    def set_reduced_motion(self, wanted):
        self._set(ALL_DESKTOPS, "reduced-motion", f"uint32:{int(wanted)}")

    # What GNOME had before there were settings for all desktops.

    def set_gnome_high_contrast(self, wanted):
        self._set("org.gnome.desktop.a11y.interface", "high-contrast", boolean(wanted))

    def set_gnome_reduced_motion(self, wanted):
        self._set("org.gnome.desktop.interface", "enable-animations", boolean(not wanted))

    def _set(self, group, key, value):
        subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.portal.Desktop",
             "/org/freedesktop/portal/desktop", "org.dropshade.TestPortal.Set",
             f"string:{group}", f"string:{key}", f"variant:{value}"],
            env=self._desktop.environment, check=True, stdout=subprocess.DEVNULL)


def boolean(value):
    return f"boolean:{str(value).lower()}"
