# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A desktop nobody sees: a real X server, window manager, message bus and tray, with a hand for the
mouse and the keyboard. Everything started here is private to one `VirtualDesktop` and ends with it.

Needs Debian's python3-xlib, xvfb, openbox, trayer, dbus-daemon and xclip; run it with /usr/bin/python3.
"""

import os
import random
import struct
import subprocess
import time
import zlib

from Xlib import X, XK, display, error
from Xlib.ext import xtest

from private_session import WAIT_SECONDS, PrivateSession, Process, wait_until

LOUPE_RING_RADIUS = 79.75
TRAY_WIDTH = 48


class VirtualDesktop(PrivateSession):
    """`with VirtualDesktop() as desktop:` gives a desktop that is ready for use."""

    def __init__(self, width=1280, height=800, depth=24, tray=True):
        super().__init__()
        self._size = (width, height, depth)
        self._wants_tray = tray

    def start_all(self):
        self._start_x_server()
        self.start_bus()
        self.display = display.Display(self.environment["DISPLAY"])
        self.root = self.display.screen().root
        self._start_window_manager()
        if self._wants_tray:
            self.start_tray()

    def __exit__(self, *_):
        if hasattr(self, "display"):
            self.display.close()
        super().__exit__()

    # Building it

    def _start_x_server(self):
        width, height, depth = self._size
        reader, writer = os.pipe()
        # Without -noreset the server starts anew whenever its last client leaves.
        command = ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{width}x{height}x{depth}",
                   "-noreset", "-nolisten", "tcp"]
        popen = subprocess.Popen(command, env=self.environment, pass_fds=[writer],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                 start_new_session=True)
        server = Process.__new__(Process)
        server._popen, server.pid = popen, popen.pid
        self._children.append(server)
        self._server = server
        os.close(writer)
        with os.fdopen(reader) as file:
            number = file.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.environment["DISPLAY"] = f":{number}"

    def _start_window_manager(self):
        self.start(["openbox", "--sm-disable"])
        check = self.display.intern_atom("_NET_SUPPORTING_WM_CHECK")
        wait_until(lambda: self.root.get_full_property(check, X.AnyPropertyType), "openbox")

    def start_tray(self):
        """A host of XEmbed icons in the top right corner."""
        # Of a fixed width: one that follows its icons now and then keeps the width that it had.
        tray = self.start(["trayer", "--edge", "top", "--align", "right", "--widthtype", "pixel",
                           "--width", str(TRAY_WIDTH), "--height", "24"])
        wait_until(self.tray_owner, "trayer")
        return tray

    # Looking

    def tray_owner(self):
        """The window of the tray, or None."""
        selection = self.display.intern_atom("_NET_SYSTEM_TRAY_S0")
        owner = self.display.get_selection_owner(selection)
        return owner if owner != X.NONE else None

    def tray_icon(self, seconds=WAIT_SECONDS):
        """The rectangle x, y, width, height of the one icon in the tray, when it is there."""
        def find():
            window = self._embedded_window(self.root)
            return window and self.rectangle_of(window)

        def find_settled():
            # The tray moves its icons while it makes room for them.
            before = find()
            time.sleep(0.03)
            return before if before == find() else None
        return wait_until(find_settled, "an icon in the tray", seconds)

    def has_tray_icon(self):
        return self._embedded_window(self.root) is not None

    def _embedded_window(self, window, depth=0):
        """A mapped window that takes part in XEmbed and is neither a menu nor managed: an icon."""
        info = self.display.intern_atom("_XEMBED_INFO")
        state = self.display.intern_atom("WM_STATE")
        try:
            if depth > 1 and window.get_full_property(info, X.AnyPropertyType):
                if window.get_full_property(state, X.AnyPropertyType):
                    return None
                return window if window.get_attributes().map_state == X.IsViewable else None
            children = window.query_tree().children
        except error.XError:
            return None
        for child in children:
            found = self._embedded_window(child, depth + 1)
            if found:
                return found
        return None

    def rectangle_of(self, window):
        size = window.get_geometry()
        origin = window.translate_coords(self.root, 0, 0)
        return -origin.x, -origin.y, size.width, size.height

    def windows(self):
        """Rectangles of the mapped children of the root window, lowest first."""
        shown = []
        for child in self.root.query_tree().children:
            try:
                if child.get_attributes().map_state == X.IsViewable:
                    size = child.get_geometry()
                    shown.append((size.x, size.y, size.width, size.height))
            except error.XError:
                continue  # It has gone meanwhile.
        return shown

    def wait_until_still(self, still=0.15):
        """Until nothing on the screen has changed for that many seconds, and nobody was at work."""
        width, height, _ = self._size
        # The server is at work whenever it is asked; what it has drawn meanwhile shows.
        others = [child for child in self._children if child is not self._server]
        before, since = self.grab(0, 0, width, height), time.monotonic()
        deadline = time.monotonic() + WAIT_SECONDS
        while time.monotonic() - since < still and time.monotonic() < deadline:
            time.sleep(0.02)
            busy = any(child.is_busy() for child in others)
            now = self.grab(0, 0, width, height)
            if now != before or busy:
                before, since = now, time.monotonic()

    def pixel(self, x, y):
        """The colour on the screen as (red, green, blue)."""
        data = self.root.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data
        return data[2], data[1], data[0]

    def shows_loupe(self, x, y, scale=1.0):
        """True when the loupe's white ring is around the pixel, above or, at the top edge, beside."""
        reach = round(LOUPE_RING_RADIUS * scale)
        at = (x, y - reach) if y >= reach else (x - reach if x >= reach else x + reach, y)
        return self.pixel(*at) == (255, 255, 255)

    def screenshot(self, path, area=None):
        """Writes the screen, or x, y, width, height of it, as a PNG, pixel for pixel."""
        left, top, width, height = area or (0, 0, *self._size[:2])
        rows = []
        band = 128
        for y in range(0, height, band):
            count = min(band, height - y)
            data = self.grab(left, top + y, width, count)
            for row in range(count):
                line = data[row * width * 4:(row + 1) * width * 4]
                rgb = bytearray(width * 3)
                rgb[0::3], rgb[1::3], rgb[2::3] = line[2::4], line[1::4], line[0::4]
                rows.append(b"\0" + bytes(rgb))
        write_png(path, width, height, b"".join(rows))

    def raw_pixel(self, x, y):
        """The pixel's value as the server keeps it."""
        data = self.root.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data
        return int.from_bytes(data[:self._size[2] // 8 if self._size[2] <= 16 else 4], "little")

    def grab(self, x, y, width, height):
        """The bytes of a part of the screen, for comparing."""
        return self.root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF).data

    def keyboard_is_grabbed(self):
        """True while some program keeps the keyboard to itself."""
        # To ask is to take it, for a moment in which the server hears nobody else: a program that is
        # about to take it would fail.
        self.display.grab_server()
        status = self.root.grab_keyboard(False, X.GrabModeAsync, X.GrabModeAsync, X.CurrentTime)
        if status == X.GrabSuccess:
            self.display.ungrab_keyboard(X.CurrentTime)
        self.display.ungrab_server()
        self.display.sync()
        return status != X.GrabSuccess

    def open_menu(self):
        """The rectangle of the first open menu, or None."""
        return next(iter(self.open_menus()), None)

    def open_menus(self):
        """The rectangles of menus and other unmanaged windows of Qt programs, lowest first."""
        menus = []
        for child in self.root.query_tree().children:
            try:
                shown = child.get_attributes().map_state == X.IsViewable
                if shown and child.get_wm_protocols() and child.get_wm_class():
                    menus.append(self.rectangle_of(child))
            except error.XError:
                continue
        return menus

    def wait_for_menu(self):
        """An open menu that has the keyboard."""
        wait_until(self.open_menu, "a menu")
        wait_until(self.keyboard_is_grabbed, "the menu's keyboard")

    def pause_after_closing_click(self):
        """As long as a program may take a click for the one that closed its menu."""
        time.sleep(0.3)

    def listening_window(self, x, y, width, height):
        """A window of another program that notes the mouse buttons it sees."""
        return ListeningWindow(self.environment["DISPLAY"], x, y, width, height)

    def split_into_monitors(self, *monitors):
        """Monitors as (name, x, y, width, height), all on the one big screen."""
        for index, (name, x, y, width, height) in enumerate(monitors):
            geometry = f"{width}/211x{height}/158+{x}+{y}"
            output = "screen" if index == 0 else "none"
            subprocess.run(["xrandr", "--setmonitor", name, geometry, output], check=True,
                           env=self.environment)

    # Painting

    def paint(self, rectangles):
        """Shows a picture under all windows: (x, y, width, height, (red, green, blue)), in order."""
        def draw(picture, context):
            for x, y, across, down, (red, green, blue) in rectangles:
                context.change(foreground=red << 16 | green << 8 | blue)
                picture.fill_rectangle(context, x, y, across, down)
        self._show_picture(draw)

    def paint_noise(self, seed):
        """Shows a picture under all windows whose every pixel has a random colour of its own."""
        width, height, depth = self._size
        bytes_a_pixel = 4 if depth > 16 else 2
        data = random.Random(seed).randbytes(width * height * bytes_a_pixel)
        band = 32
        size = width * bytes_a_pixel

        def draw(picture, context):
            for y in range(0, height, band):
                rows = data[y * size:(y + band) * size]
                picture.put_image(context, 0, y, width, len(rows) // size, X.ZPixmap, depth, 0, rows)
        self._show_picture(draw)

    def _show_picture(self, draw):
        width, height, depth = self._size
        picture = self.root.create_pixmap(width, height, depth)
        context = picture.create_gc()
        draw(picture, context)
        self.root.change_attributes(background_pixmap=picture)
        self.root.clear_area(0, 0, 0, 0)
        context.free()
        picture.free()
        self.display.sync()

    # The hand

    def move(self, x, y):
        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        self.display.sync()

    def press(self, button=1):
        xtest.fake_input(self.display, X.ButtonPress, button)
        self.display.sync()

    def release(self, button=1):
        xtest.fake_input(self.display, X.ButtonRelease, button)
        self.display.sync()

    def click(self, x=None, y=None, button=1):
        if x is not None:
            self.move(x, y)
        self.press(button)
        self.release(button)

    def key_down(self, name):
        xtest.fake_input(self.display, X.KeyPress, self._key_code(name))
        self.display.sync()

    def key_up(self, name):
        xtest.fake_input(self.display, X.KeyRelease, self._key_code(name))
        self.display.sync()

    def key(self, *names):
        """Presses the keys in order and releases them in reverse: key("Shift_L", "Right")."""
        for name in names:
            self.key_down(name)
        for name in reversed(names):
            self.key_up(name)

    def _key_code(self, name):
        return self.display.keysym_to_keycode(XK.string_to_keysym(name))

    def pointer(self):
        position = self.root.query_pointer()
        return position.root_x, position.root_y

    # The clipboard, as another process sees it

    def clipboard_types(self):
        return self._xclip("TARGETS").decode().split()

    def clipboard_text(self):
        return self._xclip("UTF8_STRING").decode()

    def own_clipboard(self, text):
        """Another program copies `text`."""
        before = self.clipboard_owner()
        subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), check=True,
                       env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: self.clipboard_owner() not in (None, before), "xclip's clipboard")

    def clipboard_owner(self):
        owner = self.display.get_selection_owner(self.display.intern_atom("CLIPBOARD"))
        return owner.id if owner != X.NONE else None

    def _xclip(self, target):
        result = subprocess.run(["xclip", "-o", "-selection", "clipboard", "-t", target], check=False,
                                env=self.environment, capture_output=True, timeout=WAIT_SECONDS)
        return result.stdout


class ListeningWindow:
    """`with` it: an override-redirect window on a connection of its own."""

    def __init__(self, display_name, x, y, width, height):
        self._display = display.Display(display_name)
        screen = self._display.screen()
        self._window = screen.root.create_window(
            x, y, width, height, 0, screen.root_depth, override_redirect=True,
            background_pixel=0x808080, event_mask=X.ButtonPressMask | X.ButtonReleaseMask)
        self._clicks = []

    def __enter__(self):
        self._window.map()
        self._display.sync()
        return self

    def __exit__(self, *_):
        self._display.close()

    def clicks_seen(self):
        """The events so far: (type, button)."""
        self._display.sync()
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type in (X.ButtonPress, X.ButtonRelease):
                self._clicks.append((event.type, event.detail))
        return self._clicks


def write_png(path, width, height, rows):
    """`rows`: each row a zero byte and then three bytes a pixel."""
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) +
                   chunk(b"IDAT", zlib.compress(rows, 6)) + chunk(b"IEND", b""))
