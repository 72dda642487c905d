# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""What `cmake --install` puts up is whole: it starts, finds its parts, and its entry is valid.

usage: install_test.py CMAKE BUILD_FOLDER
"""

import pathlib
import subprocess
import sys
import tempfile
import unittest

from dropshade_case import VirtualDesktop, wait_until

BUILD = sys.argv.pop() if len(sys.argv) > 2 else "build/release"
CMAKE = sys.argv.pop() if len(sys.argv) > 1 else "cmake"
ENTRY = "share/applications/org.dropshade.Dropshade.desktop"
METAINFO = "share/metainfo/org.dropshade.Dropshade.metainfo.xml"


class Install(unittest.TestCase):

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(prefix="dropshade-install-")
        cls.addClassCleanup(folder.cleanup)
        cls.prefix = pathlib.Path(folder.name)
        subprocess.run([CMAKE, "--install", BUILD, "--prefix", folder.name], check=True,
                       stdout=subprocess.DEVNULL)

    def test_the_program_its_parts_and_its_papers_are_there(self):
        for name in ("bin/dropshade", "lib/dropshade/dropshade-sound",
                     "lib/dropshade/dropshade-etcd.so",
                     "lib/dropshade/dropshade-network.so", ENTRY, METAINFO,
                     "share/icons/hicolor/scalable/apps/org.dropshade.Dropshade.svg",
                     "share/dbus-1/services/org.dropshade.Dropshade.service",
                     "share/doc/Dropshade/LICENSE", "share/doc/Dropshade/licences/lucide.txt"):
            self.assertTrue((self.prefix / name).is_file(), name)

    def test_the_desktop_entry_is_valid_and_has_the_four_actions(self):
        entry = self.prefix / ENTRY
        result = subprocess.run(["desktop-file-validate", str(entry)], capture_output=True, text=True)
        self.assertEqual((result.returncode, result.stdout), (0, ""))
        self.assertIn("\nActions=quick-pick;convert;palettes;contrast;\n", entry.read_text())

    def test_what_software_centres_show_is_valid(self):
        result = subprocess.run(["appstreamcli", "validate", "--no-net", str(self.prefix / METAINFO)],
                                capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stdout)

    def test_the_installed_program_starts(self):
        with VirtualDesktop() as desktop:
            program = desktop.start([str(self.prefix / "bin/dropshade")])
            desktop.tray_icon()
            wait_until(lambda: desktop.bus_has_name("org.dropshade.Dropshade"), "the program")
            program.end()


if __name__ == "__main__":
    unittest.main(verbosity=2)
