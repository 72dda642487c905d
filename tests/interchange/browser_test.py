# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Opens exported pages and sheets in Chromium and compares what it makes of them.

usage: browser_test.py, with the program that exports in EXPORTED_PAGES
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest
import urllib.parse

CHROMIUM = shutil.which("chromium")
PAGE_SCRIPT = """<script>
const text = (element, name) => element.querySelector(name)?.textContent ?? null;
report({
  title: document.querySelector('title').textContent,
  heading: text(document, 'h1'),
  scales: [...document.querySelectorAll('body > .palette > .scale > .scale-name')]
      .map(scale => scale.textContent),
  swatches: [...document.querySelectorAll('.palette > .scale > .swatches > .swatch')]
      .map(swatch => [getComputedStyle(swatch).backgroundColor, text(swatch, '.label')]),
  elements: document.querySelectorAll('body *:not(script)').length,
  scripts: document.scripts.length,
});
</script>"""
SHEET_SCRIPT = """<script>
const names = %s;
report(names.map(name => {
  const swatch = document.body.appendChild(document.createElement('div'));
  swatch.style.backgroundColor = `var(${name})`;
  return getComputedStyle(swatch).backgroundColor;
}));
</script>"""
REPORT = """<script>
function report(found) {
  document.documentElement.dataset.found = encodeURIComponent(JSON.stringify(found));
}
</script>"""


def computed(color):
    red, green, blue, alpha = color
    return f"rgb({red}, {green}, {blue})" if alpha == 1 else f"rgba({red}, {green}, {blue}, {alpha})"


class Browser(unittest.TestCase):

    def setUp(self):
        self.assertTrue(CHROMIUM, "chromium is not installed")
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        subprocess.run([os.environ["EXPORTED_PAGES"], scratch.name], check=True)
        self.expected = json.loads((self.folder / "expected.json").read_text())

    def found(self, content):
        """What the scripts of a page report."""
        page = self.folder / "page.html"
        page.write_bytes(content)
        result = subprocess.run(
            [CHROMIUM, "--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
             "--disable-background-networking", "--disable-component-update", "--disable-sync",
             "--disable-dev-shm-usage", f"--user-data-dir={self.folder / 'profile'}",
             "--dump-dom", page.as_uri()],
            capture_output=True, text=True, timeout=60, check=True)
        match = re.search(r'<html[^>]* data-found="([^"]*)"', result.stdout)
        self.assertTrue(match, result.stdout[-2000:] + result.stderr[-2000:])
        return json.loads(urllib.parse.unquote(match.group(1)))

    def check_page(self, name):
        exported = (self.folder / f"{name}.html").read_bytes()
        found = self.found(exported + (REPORT + PAGE_SCRIPT).encode())
        expected = self.expected[name]
        swatches = expected["swatches"]
        self.assertEqual(found["title"], expected["name"])
        self.assertEqual(found["heading"], expected["name"])
        self.assertEqual(found["scales"], [expected["name"]])
        self.assertEqual(found["swatches"], [[computed(color), label] for color, label in swatches])
        labels = sum(label is not None for _, label in swatches)
        self.assertEqual(found["elements"], 5 + 2 * len(swatches) + labels)
        self.assertEqual(found["scripts"], 2)

    def check_sheet(self, name):
        sheet = (self.folder / f"{name}.css").read_text()
        names = re.findall(r"^  (--[a-z0-9-]+): ", sheet, re.MULTILINE)
        link = f'<!DOCTYPE html><meta charset="utf-8"><link rel="stylesheet" href="{name}.css"><body>'
        found = self.found((link + REPORT + SHEET_SCRIPT % json.dumps(names)).encode())
        self.assertEqual(found, [computed(color) for color, _ in self.expected[name]["swatches"]])

    def test_every_swatch_of_a_page_has_its_color(self):
        self.check_page("colours")

    def test_a_hostile_name_breaks_no_page(self):
        self.check_page("hostile")

    def test_a_long_name_breaks_no_page(self):
        self.check_page("long")

    def test_every_custom_property_of_a_sheet_has_its_color(self):
        self.check_sheet("colours")

    def test_a_hostile_name_without_the_end_of_a_comment_breaks_no_sheet(self):
        self.check_sheet("hostile")


if __name__ == "__main__":
    unittest.main()
