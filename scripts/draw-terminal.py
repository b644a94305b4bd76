#!/usr/bin/env python3
"""Draws the picture of `tarn` at work for the README: runs it on the notes of the demo, and writes what it prints.

    scripts/draw-terminal.py TARN           TARN: the program, `build/<preset>/tools/tarn/tarn`

The picture is docs/images/tarn.svg. Two runs draw the same one: the notes are imported with one date, and what differs
from run to run (identifiers are random, times are measured) is replaced by what follows from the line that it stands in.
"""

import hashlib
import html
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PICTURE = ROOT / "docs" / "images" / "tarn.svg"

COMMANDS = [
    ["import", "demo/notes"],
    ["search", "@todo #home/kitchen"],
    ["search", "cafe"],
    ["backlinks", "Café-Ecke"],
    ["tag", "rename", "home/kitchen", "cooking"],
    ["search", "--limit", "2", "#cooking -flour"],
]
DATE_OF_NOTES = 1751360400  # 2025-07-01 09:00 UTC

COLUMN, LINE, MARGIN, BAR = 8.43, 20, 16, 30


def command_line(arguments):
    return "$ tarn " + " ".join(shlex.quote(argument) for argument in arguments)


def settled(line):
    """The line without what differs from run to run."""
    line = re.sub(r"\bin \d+\.\d\d s$", "in 0.06 s", line)
    listed = re.match(r"[0-9A-F]{8}(  .*  (.*))$", line)
    return hashlib.sha256(listed[2].encode()).hexdigest()[:8].upper() + listed[1] if listed else line


def printed_lines(tarn):
    """The commands and what they print, in a store of their own."""
    lines = []
    with tempfile.TemporaryDirectory() as folder:
        notes = pathlib.Path(folder) / "demo" / "notes"
        shutil.copytree(ROOT / "demo" / "notes", notes)
        for path in notes.rglob("*"):
            os.utime(path, (DATE_OF_NOTES, DATE_OF_NOTES))
        world = {key: value for key, value in os.environ.items() if not key.startswith(("LC_", "LANG", "TARN_STORE"))}
        world |= {"LC_ALL": "C.UTF-8", "TZ": "UTC", "HOME": folder, "TARN_STORE": str(pathlib.Path(folder) / "store")}
        for arguments in COMMANDS:
            run = subprocess.run([tarn, *arguments], cwd=folder, env=world, capture_output=True, text=True, check=False)
            if run.returncode != 0:
                sys.exit(f"{command_line(arguments)}\n{run.stdout}{run.stderr}")
            lines += [command_line(arguments)] + [settled(line) for line in run.stdout.splitlines()]
    return lines


def picture_of(lines):
    width = round(max(len(line) for line in lines) * COLUMN + 2 * MARGIN)
    height = BAR + len(lines) * LINE + 2 * MARGIN
    parts = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}" role="img">',
        "<title>tarn in a terminal</title>",
        "<style>text { font: 14px ui-monospace, 'DejaVu Sans Mono', Menlo, Consolas, monospace; white-space: pre; "
        "fill: #c8ccd4 } .typed { fill: #ffffff; font-weight: bold } .detail { fill: #8a919e }</style>",
        f'<rect width="{width}" height="{height}" rx="8" fill="#1f2329"/>',
        f'<path d="M0 {BAR}V8a8 8 0 0 1 8-8H{width - 8}a8 8 0 0 1 8 8v{BAR - 8}z" fill="#2c313a"/>',
    ]
    for place, colour in enumerate(("#6b727f", "#555c68", "#454b56")):
        parts.append(f'<circle cx="{MARGIN + 4 + 18 * place}" cy="{BAR // 2}" r="5" fill="{colour}"/>')
    for number, line in enumerate(lines):
        kind = ' class="typed"' if line.startswith("$ ") else ' class="detail"' if line.startswith("    ") else ""
        parts.append(f'<text x="{MARGIN}" y="{BAR + MARGIN + number * LINE + 14}"{kind} xml:space="preserve">'
                     f"{html.escape(line, quote=False)}</text>")
    return "\n".join(parts + ["</svg>"]) + "\n"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    PICTURE.parent.mkdir(exist_ok=True)
    PICTURE.write_text(picture_of(printed_lines(pathlib.Path(sys.argv[1]).resolve())), encoding="utf-8")
    print(PICTURE.relative_to(ROOT))


if __name__ == "__main__":
    main()
