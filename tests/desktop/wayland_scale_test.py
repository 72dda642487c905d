# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""All that the windows promise on a Wayland desktop, on a screen with two pixels for one."""

import unittest

import wayland_windows_test


class WaylandWindowsAtTwice(wayland_windows_test.WaylandWindows):
    SCALE = 2


if __name__ == "__main__":
    unittest.main(verbosity=2)
