#!/usr/bin/env python3
# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Brings the catalogues in translations/ in line with the texts of the sources.

New texts come unfinished, for a translator (Qt Linguist opens the files), but for those of the
English catalogue that need no plural: they stand as they are in the sources until somebody finds
better words for this platform.

usage: tools/update_words.py
"""

import pathlib
import re
import shutil
import subprocess

PROJECT = pathlib.Path(__file__).resolve().parents[1]
UNFINISHED = re.compile(
    r"(<source>)([^<]*)(</source>(?:\s*<(?:extra)?comment>[^<]*</(?:extra)?comment>)*\s*)"
    r'<translation type="unfinished">([^<]*)</translation>')


def finished(message):
    start, source, comments, found = message.groups()
    # Words that are there are those of the same text elsewhere.
    return f"{start}{source}{comments}<translation>{found or source}</translation>"


def lupdate():
    found = shutil.which("lupdate", path="/usr/lib/qt6/bin:/usr/lib64/qt6/bin") or "lupdate"
    return [found, "-silent", "-I", "src", "-locations", "none", "-no-obsolete",
            "-source-language", "en", "-extensions", "cpp,h", "src", "-ts"]


def catalogues(folder):
    return sorted(folder.glob("dropshade_*.ts"))


def main():
    for file in catalogues(PROJECT / "translations"):
        subprocess.run([*lupdate(), str(file)], cwd=PROJECT, check=True)
        if file.stem.endswith("_en"):
            text = file.read_text(encoding="utf-8")
            file.write_text(UNFINISHED.sub(finished, text), encoding="utf-8")


if __name__ == "__main__":
    main()
