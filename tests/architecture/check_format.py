# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Fails where a source file is not as clang-format 14 would write it, is too long, or lacks its
licence header.

usage: check_format.py PROJECT_FOLDER
"""

import pathlib
import subprocess
import sys

FOLDERS = ("src", "tests", "bench", "fuzz", "tools")
MOST_LINES = 500
HEADER = "// Copyright (c) 2026 The Dropshade authors\n// SPDX-License-Identifier: MIT\n"


def main(project):
    root = pathlib.Path(project)
    files = sorted(file for folder in FOLDERS for file in (root / folder).rglob("*")
                   if file.suffix in (".h", ".cpp"))
    mistakes = []
    for file in files:
        text = file.read_text()
        if not text.startswith(HEADER):
            mistakes.append(f"{file}: no licence header")
        if text.count("\n") > MOST_LINES and "Table" not in file.name:
            mistakes.append(f"{file}: more than {MOST_LINES} lines")
    result = subprocess.run(["clang-format-14", "--dry-run", "--Werror", *map(str, files)],
                            capture_output=True, text=True, check=False)
    if result.returncode != 0:
        mistakes.append(result.stderr)
    print("\n".join(mistakes) or f"{len(files)} files are in form")
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
