# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""A hand for a compositor of the wlroots kind that has no devices: a virtual pointer and keyboard.

Speaks the wire protocol of Wayland itself: a message is the id of an object, the size in bytes and the
number of the request in 16 bits each, then its arguments in words of 32 bits; file descriptors travel
beside them. The seat loses both devices with the connection, so the hand stays connected.
"""

import os
import socket
import struct
import tempfile
import time

PRESSED, RELEASED = 1, 0
# By the kernel's numbers, in linux/input-event-codes.h.
BUTTONS = {1: 0x110, 2: 0x112, 3: 0x111}
ROWS = {2: "1234567890-=", 16: "qwertyuiop[]", 30: "asdfghjkl;'`", 43: "\\zxcvbnm,./", 57: " "}
SHIFTED_ROWS = {2: "!@#$%^&*()_+", 16: "QWERTYUIOP{}", 30: 'ASDFGHJKL:"~', 43: "|ZXCVBNM<>?"}
MODIFIERS = {"Shift_L": (42, 1), "Control_L": (29, 4), "Alt_L": (56, 8), "Super_L": (125, 64)}
NAMED_KEYS = {"Escape": 1, "BackSpace": 14, "Tab": 15, "Return": 28, "space": 57, "comma": 51,
              "Home": 102, "Up": 103, "Page_Up": 104, "Left": 105, "Right": 106, "End": 107,
              "Down": 108, "Page_Down": 109, "Insert": 110, "Delete": 111,
              **{f"F{number}": 58 + number for number in range(1, 11)}, "F11": 87, "F12": 88}
KEYMAP = """xkb_keymap {{
xkb_keycodes {{ include "evdev+aliases(qwerty)" }};
xkb_types {{ include "complete" }};
xkb_compatibility {{ include "complete" }};
xkb_symbols {{ include "pc+{layout}+inet(evdev)" }};
}};
"""
SCROLL_STEP = 15
# As many places between two logical pixels, for outputs with a scale.
FINENESS = 8


def key_codes(rows):
    return {character: first + place for first, row in rows.items()
            for place, character in enumerate(row)}


CODES = {**key_codes(ROWS), **NAMED_KEYS, **{name: code for name, (code, _) in MODIFIERS.items()}}
SHIFTED_CODES = key_codes(SHIFTED_ROWS)


class Connection:
    """The few requests and events of Wayland that the hand needs."""

    DISPLAY, REGISTRY = 1, 2

    def __init__(self, path):
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.settimeout(10)
        self._socket.connect(path)
        self._buffer = b""
        self._last_id = self.DISPLAY
        self._globals = {}
        self._done = set()
        self.send(self.DISPLAY, 1, self.new_id())
        self.round_trip()

    def close(self):
        self._socket.close()

    def new_id(self):
        self._last_id += 1
        return self._last_id

    def send(self, target, request, *arguments, descriptor=None):
        """Each argument is a word: a number, an id, or packed bytes."""
        body = b"".join(argument if isinstance(argument, bytes) else
                        struct.pack("=I", argument & 0xFFFFFFFF) for argument in arguments)
        message = struct.pack("=IHH", target, request, 8 + len(body)) + body
        if descriptor is None:
            self._socket.sendall(message)
        else:
            socket.send_fds(self._socket, [message], [descriptor])

    def bind(self, interface, version):
        """The id of the one object of that kind; fails where the compositor has none."""
        name = self._globals[interface]
        text = interface.encode() + b"\0"
        packed = struct.pack("=I", len(text)) + text + b"\0" * (-len(text) % 4)
        new_id = self.new_id()
        self.send(self.REGISTRY, 0, name, packed, version, new_id)
        return new_id

    def round_trip(self):
        """Returns when the compositor has done all that it was sent."""
        callback = self.new_id()
        self.send(self.DISPLAY, 0, callback)
        while callback not in self._done:
            received = self._socket.recv(65536)
            if not received:
                raise ConnectionError("the compositor closed the connection")
            self._buffer += received
            self._read_events()
        self._done.remove(callback)

    def _read_events(self):
        while len(self._buffer) >= 8:
            sender, event, size = struct.unpack_from("=IHH", self._buffer)
            if len(self._buffer) < size:
                return
            self._handle(sender, event, self._buffer[8:size])
            self._buffer = self._buffer[size:]

    def _handle(self, sender, event, body):
        if sender == self.DISPLAY and event == 0:
            raise ConnectionError(f"the compositor refused: {body[12:]!r}")
        if sender == self.REGISTRY and event == 0:
            name, length = struct.unpack_from("=II", body)
            self._globals[body[8:8 + length - 1].decode()] = name
        elif sender > self.REGISTRY:
            # Of callbacks this is what is waited for, of other objects it does no harm.
            self._done.add(sender)


class WaylandHand:
    """Moves, clicks and types. Places are the compositor's logical pixels; each call returns when the
    compositor has dealt with it, which does not mean that the client has."""

    def __init__(self, socket_path, width, height, layout="us"):
        self._size = width, height
        self._held = 0
        self._connection = Connection(socket_path)
        seat = self._connection.bind("wl_seat", 1)
        pointers = self._connection.bind("zwlr_virtual_pointer_manager_v1", 1)
        keyboards = self._connection.bind("zwp_virtual_keyboard_manager_v1", 1)
        self._pointer = self._connection.new_id()
        self._connection.send(pointers, 0, seat, self._pointer)
        self._keyboard = self._connection.new_id()
        self._connection.send(keyboards, 0, seat, self._keyboard)
        self.set_layout(layout)

    def close(self):
        self._connection.close()

    def set_layout(self, layout):
        """The keyboard's layout, by its name in xkeyboard-config: "de", "us(dvorak)". Keys stay named
        by what they are on an American keyboard."""
        text = KEYMAP.format(layout=layout).encode() + b"\0"
        with tempfile.TemporaryFile() as file:
            file.write(text)
            file.flush()
            self._connection.send(self._keyboard, 0, 1, len(text), descriptor=file.fileno())
            self._connection.round_trip()

    # The mouse

    def move(self, x, y):
        width, height = self._size
        self._point(1, round(x * FINENESS), round(y * FINENESS), width * FINENESS,
                    height * FINENESS)

    def press(self, button=1):
        self._point(2, BUTTONS[button], PRESSED)

    def release(self, button=1):
        self._point(2, BUTTONS[button], RELEASED)

    def click(self, x=None, y=None, button=1):
        if x is not None:
            self.move(x, y)
        self.press(button)
        self.release(button)

    def drag(self, start, end, steps=12, pause=0.01):
        """Presses at `start`, goes to `end` in steps that a program can follow, and releases."""
        self.drag_without_release(start, end, steps, pause)
        self.release()

    def drag_without_release(self, start, end, steps=12, pause=0.01):
        self.move(*start)
        self.press()
        for step in range(1, steps + 1):
            # A program that gets all of it at once sees a jump.
            time.sleep(pause)
            self.move(*(a + (b - a) * step / steps for a, b in zip(start, end)))

    def scroll(self, steps):
        """Clicks of the wheel, down where positive."""
        step = 1 if steps > 0 else -1
        for _ in range(abs(steps)):
            # As a wheel, with one click each.
            self._connection.send(self._pointer, 5, 0)
            self._point(7, 0, SCROLL_STEP * 256 * step, step)

    def _point(self, request, *arguments):
        self._connection.send(self._pointer, request, now(), *arguments)
        self._connection.send(self._pointer, 4)
        self._connection.round_trip()

    # The keyboard

    def key_down(self, name):
        self._send_key(name, PRESSED)

    def key_up(self, name):
        self._send_key(name, RELEASED)

    def key(self, *names):
        """Presses the keys in order and releases them in reverse: key("Shift_L", "Right"). A key has
        the name of its keysym or, where it types something, that character."""
        for name in names:
            self.key_down(name)
        for name in reversed(names):
            self.key_up(name)

    def type_text(self, text):
        for character in text:
            if character in SHIFTED_CODES:
                self.key("Shift_L", character)
            else:
                self.key(character)

    def _send_key(self, name, state):
        code = CODES.get(name) or SHIFTED_CODES[name]
        self._connection.send(self._keyboard, 1, now(), code, state)
        if name in MODIFIERS:
            bit = MODIFIERS[name][1]
            self._held = self._held | bit if state == PRESSED else self._held & ~bit
            # The compositor takes the modifiers from here, not from the keys.
            self._connection.send(self._keyboard, 2, self._held, 0, 0, 0)
        self._connection.round_trip()


def now():
    return round(time.monotonic() * 1000) & 0xFFFFFFFF
