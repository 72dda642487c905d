# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A Wayland desktop nobody sees: sway without a screen, with a message bus of its own.

Needs Debian's sway, dbus-daemon and wl-clipboard; run it with /usr/bin/python3.
"""

import os
import subprocess

from private_session import PrivateSession, wait_until

CONFIGURATION = """output HEADLESS-1 resolution {width}x{height} position 0 0 scale {scale}
output * bg #336699 solid_color
"""


class WaylandDesktop(PrivateSession):
    """`with WaylandDesktop() as desktop:` gives a compositor that is ready for clients."""

    def __init__(self, width=1280, height=800, scale=1):
        super().__init__()
        self._configuration = CONFIGURATION.format(width=width, height=height, scale=scale)

    def start_all(self):
        self.environment.update(XDG_CURRENT_DESKTOP="sway", XDG_SESSION_TYPE="wayland")
        self.start_bus()
        path = os.path.join(self._folder, "sway.conf")
        with open(path, "w") as file:
            file.write(self._configuration)
        command = ["sway", "--config", path]
        if os.geteuid() == 0:
            # It refuses to run as root, and takes the root of another user namespace for a user.
            command = ["unshare", "--user", "--map-user=1000", "--map-group=1000", *command]
        self.start(command, WLR_BACKENDS="headless", WLR_RENDERER="pixman",
                   WLR_LIBINPUT_NO_DEVICES="1")
        self.environment["WAYLAND_DISPLAY"] = wait_until(self._socket, "sway")

    def _socket(self):
        names = os.listdir(self.environment["XDG_RUNTIME_DIR"])
        return next((name for name in names
                     if name.startswith("wayland-") and not name.endswith(".lock")), None)

    def clipboard_text(self):
        """What another client reads from the clipboard; None where it is empty."""
        result = subprocess.run(["wl-paste", "--no-newline"], env=self.environment, text=True,
                                capture_output=True, check=False, timeout=10)
        return result.stdout if result.returncode == 0 else None

    def clipboard_types(self):
        result = subprocess.run(["wl-paste", "--list-types"], env=self.environment, text=True,
                                capture_output=True, check=False, timeout=10)
        return result.stdout.split()
