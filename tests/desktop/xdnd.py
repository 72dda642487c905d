# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Both ends of a drag between programs, by the XDND protocol, version 5, spoken by hand."""

import time

from Xlib import X, display
from Xlib.protocol import event

VERSION = 5
WAIT_SECONDS = 5.0


class Peer:
    """A program of its own with one window."""

    def __init__(self, display_name, x=0, y=0, width=10, height=10):
        self._display = display.Display(display_name)
        screen = self._display.screen()
        self.window = screen.root.create_window(
            x, y, width, height, 0, screen.root_depth, override_redirect=True,
            background_pixel=0x404040, event_mask=X.PropertyChangeMask)
        self.window.change_property(self.atom("XdndAware"), self.atom("ATOM"), 32, [VERSION])

    def __enter__(self):
        self.window.map()
        self._display.sync()
        return self

    def __exit__(self, *_):
        self._display.close()

    def atom(self, name):
        return self._display.intern_atom(name)

    def name(self, atom):
        return self._display.get_atom_name(atom)

    def send(self, target, kind, data):
        message = event.ClientMessage(window=target, client_type=self.atom(kind),
                                      data=(32, data))
        target.send_event(message)
        self._display.flush()

    def next_message(self, *kinds):
        """The data of the next message of one of these kinds; serves the selection meanwhile."""
        deadline = time.monotonic() + WAIT_SECONDS
        wanted = [self.atom(kind) for kind in kinds]
        while time.monotonic() < deadline:
            while self._display.pending_events():
                happened = self._display.next_event()
                if happened.type == X.ClientMessage and happened.client_type in wanted:
                    return self.name(happened.client_type), list(happened.data[1])
                self.handle(happened)
            time.sleep(0.005)
        raise TimeoutError(f"no {kinds}")

    def handle(self, happened):
        pass


class Source(Peer):
    """Something that is dragged from another program: `offers` has bytes by type."""

    def __init__(self, display_name, offers):
        super().__init__(display_name)
        self._offers = {self.atom(kind): data for kind, data in offers.items()}
        self.window.set_selection_owner(self.atom("XdndSelection"), X.CurrentTime)
        self._display.sync()

    def handle(self, happened):
        if happened.type != X.SelectionRequest:
            return
        data = self._offers.get(happened.target)
        if data is not None:
            happened.requestor.change_property(happened.property, happened.target, 8, data)
        happened.requestor.send_event(event.SelectionNotify(
            time=happened.time, requestor=happened.requestor, selection=happened.selection,
            target=happened.target, property=happened.property if data is not None else X.NONE))
        self._display.flush()

    def local(self, window):
        """The window of another connection as one of this connection."""
        return self._display.create_resource_object("window", window.id)

    def enter(self, window):
        kinds = (list(self._offers) + [0, 0, 0])[:3]
        self.send(self.local(window), "XdndEnter", [self.window.id, VERSION << 24, *kinds])

    def move(self, window, x, y):
        """True where the target would take a drop there."""
        self.send(self.local(window), "XdndPosition",
                  [self.window.id, 0, x << 16 | y, X.CurrentTime, self.atom("XdndActionCopy")])
        _, data = self.next_message("XdndStatus")
        return bool(data[1] & 1)

    def leave(self, window):
        self.send(self.local(window), "XdndLeave", [self.window.id, 0, 0, 0, 0])

    def drop(self, window):
        """True where the target took it."""
        self.send(self.local(window), "XdndDrop", [self.window.id, 0, X.CurrentTime, 0, 0])
        _, data = self.next_message("XdndFinished")
        return bool(data[1] & 1)


class Target(Peer):
    """A window that takes whatever is dropped on it."""

    def take(self, *kinds):
        """Accepts a drag until it is dropped; the data of these types, and all types' names."""
        _, entered = self.next_message("XdndEnter")
        source = self._display.create_resource_object("window", entered[0])
        offered = entered[2:5]
        if entered[1] & 1:
            offered = source.get_full_property(self.atom("XdndTypeList"), X.AnyPropertyType).value
        kind, data = self.next_message("XdndPosition", "XdndDrop")
        while kind == "XdndPosition":
            self.send(source, "XdndStatus", [self.window.id, 1, 0, 0, data[4]])
            kind, data = self.next_message("XdndPosition", "XdndDrop")
        taken = {kind: self._fetch(kind, data[2]) for kind in kinds}
        self.send(source, "XdndFinished",
                  [self.window.id, 1, self.atom("XdndActionCopy"), 0, 0])
        return taken, [self.name(atom) for atom in offered if atom]

    def _fetch(self, kind, when):
        place = self.atom("DROPPED")
        self.window.convert_selection(self.atom("XdndSelection"), self.atom(kind), place, when)
        self._display.flush()
        deadline = time.monotonic() + WAIT_SECONDS
        while time.monotonic() < deadline:
            while self._display.pending_events():
                if self._display.next_event().type == X.SelectionNotify:
                    found = self.window.get_full_property(place, X.AnyPropertyType)
                    return bytes(found.value) if found and isinstance(found.value, (bytes, str)) \
                        else found and found.value
            time.sleep(0.005)
        raise TimeoutError(kind)
