# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""The contract tests of the adapters that need a real X server, on one.

usage: adapters_test.py FOLDER_OF_TEST_PROGRAMS
"""

import os
import subprocess
import sys
import unittest

from dropshade_case import VirtualDesktop
from wayland_desktop import WaylandDesktop

FOLDER = sys.argv.pop(1) if len(sys.argv) > 1 else "build/release/tests/platform"


class Adapters(unittest.TestCase):

    def run_contract(self, name):
        with VirtualDesktop() as desktop:
            result = subprocess.run(
                [os.path.join(FOLDER, name)], capture_output=True, text=True, timeout=90,
                check=False, env={**desktop.environment, "QT_QPA_PLATFORM": "xcb"})
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertNotIn("SKIPPED", result.stdout)

    def test_the_tray_keeps_the_contract_of_the_status_item(self):
        self.run_contract("StatusItemContractTest")

    def test_the_loupe_keeps_the_contract_of_the_sampler(self):
        self.run_contract("ScreenSamplerContractTest")

    def test_the_portal_keeps_its_promises_on_a_session_bus(self):
        self.run_contract("PortalScreenSamplerTest")
        self.run_contract("PortalShortcutsTest")
        self.run_contract("DesktopShortcutsContractTest")

    def test_grabbed_keys_keep_the_contract_of_hot_keys(self):
        self.run_contract("HotKeyRegistrarContractTest")

    def test_the_layout_is_that_of_the_x_server(self):
        self.run_contract("XkbKeyboardLayoutTest")

    def test_the_layout_is_that_of_the_wayland_compositor(self):
        for layout, letter in (("de", "z"), ("us", "y"), ("fr", "y")):
            with WaylandDesktop(layout=layout) as desktop:
                result = subprocess.run(
                    [os.path.join(FOLDER, "WaylandKeymapTest")], capture_output=True, text=True,
                    timeout=90, check=False, env={**desktop.environment, "LETTER_OF_Y": letter,
                                                  "QT_QPA_PLATFORM": "wayland"})
            self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
            self.assertNotIn("SKIPPED", result.stdout)

    def test_the_clipboard_keeps_the_contract_of_the_pasteboard(self):
        self.run_contract("PasteboardContractTest")


if __name__ == "__main__":
    unittest.main(verbosity=2)
