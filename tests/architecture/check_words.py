# Copyright (c) 2026 The Dropshade authors
# SPDX-License-Identifier: MIT
"""Fails where a text that users see is not wrapped for translation, has no comment for translators,
or is missing, unfinished or at odds with its source in a catalogue.

usage: check_words.py PROJECT_FOLDER
"""

import collections
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

# Where windows, menus and messages are made.
FOLDERS = ("ColorSelector", "KeyboardShortcuts", "app", "contrast", "convert", "imagepalette",
           "interchange", "palettes", "sync", "widgets", "platform/linux")

# Names that are the same in every language, and texts that no user of the program reads.
PROPER_NAMES = {"Dropshade"}

WRAPPED = re.compile(r"(?:\btr|translate|QT_TR_NOOP|QT_TRANSLATE_NOOP)\s*\($")
STRING = re.compile(r'(?:u8|u|U|L)?R"\((?P<raw>.*?)\)"|(?:u8|u|U|L)?"(?P<plain>(?:[^"\\\n]|\\.)*)"',
                    re.DOTALL)
WORDS = re.compile(r"^[A-Z“][a-z’']+(?: [\w“”’'%.,…-]+)*[.…:?!]?$|[A-Za-z]{2,} [a-z]{2,} [a-z]{2,}")
SETTERS = re.compile(
    r"(?:setText|setWindowTitle|setToolTip|setAccessibleName|setAccessibleDescription|setWords|"
    r"setPlaceholderText|addRow|addHeader|addAction|addSubmenu|addSection|addTab|setFailure|"
    r"announce|warn|setStatusTip)\s*\(\s*$")
LITERAL = re.compile(r"(?:QStringLiteral|QLatin1String|QLatin1StringView|QString::fromUtf8|"
                     r"QString::fromLatin1)\s*\($")


def without_comments(source):
    return re.sub(r'("(?:[^"\\\n]|\\.)*")|//[^\n]*|/\*.*?\*/',
                  lambda match: match.group(1) or "", source, flags=re.DOTALL)


def unwrapped(project):
    """What is given to a widget, as a bare literal of words."""
    for folder in FOLDERS:
        for file in sorted((project / "src" / folder).rglob("*.cpp")):
            source = without_comments(file.read_text(encoding="utf-8"))
            for match in STRING.finditer(source):
                text = match.group("plain") or match.group("raw") or ""
                before = source[:match.start()].rstrip()
                before = LITERAL.sub("", before).rstrip()
                if SETTERS.search(before) and WORDS.search(text) and \
                        text not in PROPER_NAMES:
                    yield f"{file}: “{text}” is not wrapped"


def messages(file):
    """By context, source and comment."""
    found = {}
    for context in ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            key = (context.findtext("name"), message.findtext("source"),
                   message.findtext("comment") or "")
            found[key] = message
    return found


def extracted(project):
    lupdate = shutil.which("lupdate", path="/usr/lib/qt6/bin:/usr/lib64/qt6/bin") or "lupdate"
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "all.ts"
        result = subprocess.run(
            [lupdate, "-silent", "-I", "src", "-locations", "none", "-source-language", "en",
             "-target-language", "de", "-extensions", "cpp,h", "src", "-ts", str(file)],
            cwd=project, capture_output=True, text=True, check=False)
        if result.returncode != 0 or result.stderr.strip():
            sys.exit(f"lupdate can't read the sources:\n{result.stderr}")
        return messages(file)


def places(text):
    return collections.Counter(re.findall(r"%(?:\d+|n|d|L\d+)", text))


def mistakes_of(file, wanted):
    has = messages(file)
    for key in wanted.keys() - has.keys():
        yield f"{file.name}: missing {key}; run tools/update_words.py"
    for key in has.keys() - wanted.keys():
        yield f"{file.name}: {key} is in no source; run tools/update_words.py"
    for key, message in has.items():
        translation = message.find("translation")
        forms = [form.text or "" for form in translation.iter("numerusform")] or \
            [translation.text or ""]
        if translation.get("type") or not all(forms):
            yield f"{file.name}: {key} is unfinished"
            continue
        for form in forms:
            if places(form) != places(key[1]):
                yield f"{file.name}: {key} has other places in “{form}”"
            for edge in (0, -1):
                if key[1][edge].isspace() != form[edge].isspace():
                    yield f"{file.name}: {key} has other blanks at its ends"


def main(project):
    project = pathlib.Path(project)
    wanted = extracted(project)
    mistakes = list(unwrapped(project))
    for (context, source, comment), message in wanted.items():
        if not comment and not message.findtext("extracomment"):
            mistakes.append(f"{context}: “{source}” has no comment for translators")
    files = sorted((project / "translations").glob("dropshade_*.ts"))
    for file in files:
        mistakes += mistakes_of(file, wanted)
    print("\n".join(mistakes) or f"{len(wanted)} texts in {len(files)} catalogues")
    return 1 if mistakes else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
