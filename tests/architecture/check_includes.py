# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Fails where a file includes what its layer may not know.

usage: check_includes.py SOURCE_FOLDER LAYERS_FILE

Each line of LAYERS_FILE is `layer|layers it links to|its files`.
"""

import pathlib
import re
import sys

INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)
PLATFORM_CONDITION = re.compile(
    r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*\b(?:Q_OS_\w+|__linux__|_WIN32|__APPLE__)", re.MULTILINE)

# What belongs to one system stays in that system's folder.
SYSTEM_FOLDER = "platform/linux/"
SYSTEM_HEADERS = re.compile(r"^(?:X11/|xcb/|xkbcommon/|QDBus|QtDBus|sqlite3|wayland|sys/|unistd)")
STANDARD_ONLY = {"dropshade_bytes", "dropshade_color", "dropshade_contrast", "dropshade_quantize"}


def read_layers(path):
    layers = {}
    for line in pathlib.Path(path).read_text().splitlines():
        name, links, files = line.split("|")
        layers[name] = (links.split(), files.split())
    return layers


def known_layers(layers, name):
    """The layer and all that it reaches through its links."""
    known = {name}
    for link in layers[name][0]:
        if link in layers:
            known |= known_layers(layers, link)
    return known


def mistakes_in(path, text, layer, known, home):
    for bracket, target in INCLUDE.findall(text):
        if bracket == '"' and target in home:
            if home[target] not in known:
                yield f"{path}: {layer} may not include {target} of {home[target]}"
        elif bracket == '"' and not target.endswith(".moc"):
            yield f"{path}: {target} is not a file of any layer, by its path from src/"
        elif bracket == "<" and SYSTEM_HEADERS.match(target) and not path.startswith(SYSTEM_FOLDER):
            yield f"{path}: <{target}> belongs in {SYSTEM_FOLDER}"
        elif bracket == "<" and layer in STANDARD_ONLY and not re.fullmatch(r"[a-z_0-9]+", target):
            yield f"{path}: {layer} knows the standard library only, not <{target}>"
    if PLATFORM_CONDITION.search(text):
        yield f"{path}: a condition on the platform"


def main(source, layers_file):
    layers = read_layers(layers_file)
    home = {file: name for name, (_, files) in layers.items() for file in files}
    mistakes = []
    order = list(layers)
    for name, (links, _) in layers.items():
        mistakes += [f"{name} links to {link}, which is not above it"
                     for link in links if link in layers and order.index(link) > order.index(name)]
    for file in sorted(pathlib.Path(source).rglob("*")):
        path = file.relative_to(source).as_posix()
        if file.suffix not in (".h", ".cpp"):
            continue
        if path not in home:
            mistakes.append(f"{path}: belongs to no layer")
            continue
        known = known_layers(layers, home[path])
        mistakes += mistakes_in(path, file.read_text(), home[path], known, home)
    print("\n".join(mistakes) or f"{len(home)} files in {len(layers)} layers include what they may")
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
