#!/usr/bin/env python3
"""Checks the wording of committed texts: nothing of one machine, nothing unfinished.

    scripts/check-wording.py [FOLDER]       FOLDER: the root of the source tree, this repository by default

Looks at every tracked text file (at every file where there is no git). Prints one line for each offence and exits with
1 when there is any. A line that has to hold such a text says why and ends in "wording: kept".
"""

import pathlib
import re
import subprocess
import sys

RULES = [
    (re.compile(r"\b(TODO|FIXME|XXX|HACK)\b(?!s)"), "unfinished work belongs into an issue, not into a text"),
    (re.compile(r"(?<![\w./-])/(work|workspace|root|home/\w+|Users/\w+)/"), "a path of one machine"),
    (re.compile(r"(?<![\w./-])/tmp/(?!\w*\b(tarn|XXXX))\w"), "a path of one machine"),
    (re.compile(r"\bbuild-[a-z]+/"), "a build folder of one person; presets build below build/"),
    (re.compile(r"\b(registry|mirrors?|deb|security|packages?|index)\.[a-z-]+\.(org|com|net|io)\b"), "a registry host"),
    (re.compile(r"\bhttps?://(localhost|127\.0\.0\.1|10\.\d+\.\d+\.\d+|192\.168\.\d+\.\d+)\b"), "a host of one network"),
    (re.compile(r"^(<{7}|>{7}) "), "a merge that was not finished"),
]
KEPT = re.compile(r"wording: kept\W*$")

# Notes are a person's own texts: to-dos and addresses belong there.
SKIPPED_FOLDERS = ("demo/notes/", "tests/cases/", "build/")
# The rules themselves, and the cases that break them on purpose.
SKIPPED_FILES = {"scripts/check-wording.py", "tests/house/check_wording_test.py"}


def tracked_files(root):
    listing = subprocess.run(["git", "ls-files", "-z"], cwd=root, capture_output=True, check=False)
    if listing.returncode == 0 and (root / ".git").exists():
        return [name for name in listing.stdout.decode().split("\0") if name]
    return [path.relative_to(root).as_posix() for path in sorted(root.rglob("*")) if path.is_file()]


def offences_in(root):
    looked_at = 0
    for name in tracked_files(root):
        path = root / name
        if name in SKIPPED_FILES or name.startswith(SKIPPED_FOLDERS) or not path.is_file():
            continue
        content = path.read_bytes()
        if b"\0" in content:
            continue
        looked_at += 1
        for number, line in enumerate(content.decode("utf-8", errors="replace").splitlines(), 1):
            if KEPT.search(line):
                continue
            for pattern, reason in RULES:
                if pattern.search(line):
                    yield f"{name}:{number}: {reason}: {line.strip()[:100]}"
    if looked_at == 0:
        yield f"{root}: no texts found"


def main():
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent
    offences = list(offences_in(root))
    for offence in offences:
        print(offence)
    return 1 if offences else 0


if __name__ == "__main__":
    sys.exit(main())
