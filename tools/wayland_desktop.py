# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A Wayland desktop nobody sees: sway without a screen, with a message bus of its own and a hand for the
mouse and the keyboard.

Needs Debian's sway, swaybg, grim, dbus-daemon and wl-clipboard; run it with /usr/bin/python3.
"""

import json
import os
import struct
import subprocess
import time

from private_session import WAIT_SECONDS, PrivateSession, wait_until
from wayland_hand import WaylandHand

CONFIGURATION = """output HEADLESS-1 resolution {width}x{height} position 0 0 scale {scale}
output * bg #336699 solid_color
seat * xcursor_theme {cursors}
xwayland disable
{more}
"""
CURSORS = "nothing"
# What programs ask for by name, so that none of them falls back to a picture of its own.
CURSOR_NAMES = ("default", "left_ptr", "pointer", "text", "crosshair", "grabbing", "grab", "move")


class WaylandDesktop(PrivateSession):
    """`with WaylandDesktop() as desktop:` gives a compositor that is ready for clients. Its size is in
    pixels; places and areas are in its logical pixels, of which there are `scale` times fewer.
    `more` are further lines of sway's configuration. What sway has done to its windows shows at once,
    or with `patience` once all windows concerned have been drawn for it, after so many seconds at the
    latest; sway by itself has a fifth of a second."""

    def __init__(self, width=1280, height=800, scale=1, layout="us", more="", patience=None):
        super().__init__()
        self.width, self.height, self.scale = round(width / scale), round(height / scale), scale
        self._layout = layout
        self._showing = "noatomic" if patience is None else f"txn-timeout={patience * 1000}"
        self._configuration = CONFIGURATION.format(width=width, height=height, scale=scale,
                                                   cursors=CURSORS, more=more)

    def start_all(self):
        self.environment.update(XDG_CURRENT_DESKTOP="sway", XDG_SESSION_TYPE="wayland")
        self.start_bus()
        self._make_cursors()
        path = os.path.join(self._folder, "sway.conf")
        with open(path, "w") as file:
            file.write(self._configuration)
        command = ["sway", "-D", self._showing, "--config", path]
        if os.geteuid() == 0:
            # It refuses to run as root, and takes the root of another user namespace for a user.
            command = ["unshare", "--user", "--map-user=1000", "--map-group=1000", *command]
        self.start(command, WLR_BACKENDS="headless", WLR_RENDERER="pixman",
                   WLR_LIBINPUT_NO_DEVICES="1")
        self.environment["WAYLAND_DISPLAY"] = wait_until(lambda: self._socket("wayland-"), "sway")
        self.environment["SWAYSOCK"] = self._path(
            wait_until(lambda: self._socket("sway-ipc."), "sway's answers"))
        self.hand = WaylandHand(self._path(self.environment["WAYLAND_DISPLAY"]), self.width,
                                self.height, self._layout)

    def __exit__(self, *_):
        if hasattr(self, "hand"):
            self.hand.close()
        super().__exit__()

    def _path(self, name):
        return os.path.join(self.environment["XDG_RUNTIME_DIR"], name)

    def _socket(self, start):
        names = os.listdir(self.environment["XDG_RUNTIME_DIR"])
        return next((name for name in names
                     if name.startswith(start) and not name.endswith(".lock")), None)

    def _make_cursors(self):
        """A theme of cursors that nobody sees: sway draws the cursor into screenshots."""
        folder = os.path.join(self._folder, "icons", CURSORS, "cursors")
        os.makedirs(folder)
        image = struct.pack("<9I", 36, 0xFFFD0002, 1, 1, 1, 1, 0, 0, 0) + struct.pack("<I", 0)
        header = b"Xcur" + struct.pack("<3I", 16, 0x10000, 1) + struct.pack("<3I", 0xFFFD0002, 1, 28)
        for name in CURSOR_NAMES:
            with open(os.path.join(folder, name), "wb") as file:
                file.write(header + image)
        self.environment["XCURSOR_PATH"] = os.path.join(self._folder, "icons")
        self.environment["XCURSOR_THEME"] = CURSORS

    # Windows

    def sway(self, command):
        """Has sway do a command of its configuration's language."""
        subprocess.run(["swaymsg", "--quiet", command], env=self.environment, check=True)

    def windows(self):
        """The windows as sway's tree describes them: `name`, `focused`, `rect`, and the like."""
        result = subprocess.run(["swaymsg", "--raw", "--type", "get_tree"], env=self.environment,
                                check=True, capture_output=True, text=True)
        found, pending = [], [json.loads(result.stdout)]
        while pending:
            node = pending.pop(0)
            pending += node["nodes"] + node["floating_nodes"]
            if node.get("pid"):
                found.append(node)
        return found

    def window(self, title):
        """The window of that title that is on the screen, or None."""
        return next((node for node in self.windows()
                     if node["name"] == title and node["visible"]), None)

    def area(self, title):
        """x, y, width, height of the window's content on the screen, or None."""
        node = self.window(title)
        return node and content_area(node)

    def focused_title(self):
        """The title of the window that has the keyboard, or None."""
        return next((node["name"] for node in self.windows() if node["focused"]), None)

    def wait_for_window(self, title):
        """The area of the window once it is there, has the keyboard and holds still."""
        wait_until(lambda: self.focused_title() == title, f"the window {title}")
        self.wait_until_still()
        return self.area(title)

    # Pictures

    def screenshot(self, path, area=None):
        """Writes the screen, or x, y, width, height of it, as a PNG in the screen's own pixels."""
        subprocess.run([*grim(area), path], env=self.environment, check=True)

    def grab(self, x, y, width, height):
        """The bytes of a part of the screen, for comparing."""
        return self._pixels((x, y, width, height))[1]

    def pixel(self, x, y):
        """The colour on the screen as (red, green, blue)."""
        return tuple(self._pixels((x, y, 1, 1))[1][:3])

    def _pixels(self, area):
        result = subprocess.run([*grim(area), "-t", "ppm", "-"], env=self.environment, check=True,
                                capture_output=True, timeout=WAIT_SECONDS)
        header = result.stdout.split(b"\n", 3)
        return header[1], header[3]

    def wait_until_still(self, still=0.15):
        """Until nothing on the screen has changed for that many seconds."""
        everything = 0, 0, self.width, self.height
        before, since = self.grab(*everything), time.monotonic()
        deadline = time.monotonic() + WAIT_SECONDS
        while time.monotonic() - since < still and time.monotonic() < deadline:
            time.sleep(0.02)
            now = self.grab(*everything)
            if now != before:
                before, since = now, time.monotonic()

    # The clipboard

    def clipboard_text(self):
        """What another client reads from the clipboard; None where it is empty."""
        result = subprocess.run(["wl-paste", "--no-newline"], env=self.environment, text=True,
                                capture_output=True, check=False, timeout=10)
        return result.stdout if result.returncode == 0 else None

    def clipboard_types(self):
        result = subprocess.run(["wl-paste", "--list-types"], env=self.environment, text=True,
                                capture_output=True, check=False, timeout=10)
        return result.stdout.split()


def content_area(node):
    """x, y, width, height of a window of sway's tree, without its border and title."""
    frame, content = node["rect"], node["window_rect"]
    return (frame["x"] + content["x"], frame["y"] + content["y"], content["width"],
            content["height"])


def grim(area):
    return ["grim"] if area is None else ["grim", "-g", "{},{} {}x{}".format(*area)]
