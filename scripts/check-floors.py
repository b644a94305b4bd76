#!/usr/bin/env python3
"""Checks that includes never climb: a room includes only itself and rooms that stand below it.

    scripts/check-floors.py [FOLDER]        FOLDER: the root of the source tree, this repository by default

Two rules are checked over every source of every room:
  1. the room that an #include "..." names is one that the table below allows;
  2. a public header (any but *Internal.h) includes no other library's header and no *Internal.h.
Prints one line for each offence and exits with 1 when there is any.
"""

import pathlib
import re
import sys

# Floors from the lowest to the highest. Rooms of one floor may include each other.
FLOORS = [
    {"platform/foundation"},
    {"platform/predicate", "platform/imaging", "platform/cloudkit", "corvel"},
    {"platform/coredata"},
    {"tools/modelgen"},
    {"encryption"},
    {"model"},
    {"notes", "tags", "files", "sync", "search", "backup"},
    {"store"},
    {"include"},
    {"tools/tarn"},
    {"examples", "tests", "benchmarks", "fuzz"},
]

# Rooms that may include nothing but what is named here (and themselves), whatever their floor.
STANDS_ALONE_ON = {
    "platform/predicate": {"platform/foundation"},
    "platform/imaging": {"platform/foundation"},
    "platform/cloudkit": {"platform/foundation"},
    "platform/coredata": {"platform/foundation", "platform/predicate"},
    "corvel": {"platform/foundation"},
    "examples": {"include"},
}

# Rooms whose headers are not installed, so that they may include what they like.
PRIVATE_ROOMS = {"tools/modelgen", "tools/tarn", "examples", "tests", "benchmarks", "fuzz"}

# Headers of other libraries: they stay in .cpp files and in *Internal.h.
THIRD_PARTY = re.compile(
    r"^(unicode/|sqlite3|nlohmann/|fmt/|CLI/|CLI11|sodium|archive|png|jpeglib|webp/|gif_lib|pixman|cmark|gtest|gmock|rapidcheck|benchmark/)"
)

# A generator holds the includes of what it writes in raw strings: they are not its own.
RAW_STRING = re.compile(r'R"([^()\s\\]{0,16})\(.*?\)\1"', re.DOTALL)

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
FLOOR_OF = {room: floor for floor, rooms in enumerate(FLOORS) for room in rooms}
ROOMS = sorted(FLOOR_OF, key=len, reverse=True)


def room_of(path):
    return next((room for room in ROOMS if path == room or path.startswith(room + "/")), None)


def may_include(room, other):
    if other == room:
        return True
    if room in STANDS_ALONE_ON:
        return other in STANDS_ALONE_ON[room]
    return FLOOR_OF[other] <= FLOOR_OF[room] and not (other == "tools/modelgen" and room != "tests")


def is_public_header(room, name):
    return room not in PRIVATE_ROOMS and name.endswith(".h") and not name.endswith("Internal.h")


def offences_of(path, room, text):
    public = is_public_header(room, path)
    own_text = RAW_STRING.sub(lambda literal: "\n" * literal.group().count("\n"), text)
    for number, line in enumerate(own_text.splitlines(), 1):
        match = INCLUDE.match(line)
        if not match:
            continue
        quoted, angled = match.groups()
        place = f"{path}:{number}"
        if public and THIRD_PARTY.match(quoted or angled):
            yield f"{place}: a public header includes <{quoted or angled}> of another library"
        if quoted is None:
            continue
        other = None if ".." in quoted.split("/") else room_of(quoted)
        if other is None:
            yield f'{place}: "{quoted}" does not begin with a room; write the path from the root of the repository'
        elif not may_include(room, other):
            yield f'{place}: {room} must not include "{quoted}"'
        elif public and quoted.endswith("Internal.h"):
            yield f'{place}: a public header includes "{quoted}", which is not installed'


def offences_in(root):
    seen = 0
    for room in sorted(FLOOR_OF):
        for source in sorted((root / room).rglob("*")):
            if source.suffix not in {".h", ".cpp"} or "build" in source.relative_to(root).parts:
                continue
            path = source.relative_to(root).as_posix()
            if room_of(path) != room:
                continue
            seen += 1
            yield from offences_of(path, room, source.read_text(encoding="utf-8", errors="replace"))
    if seen == 0:
        yield f"{root}: no sources found"


def main():
    root = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent
    offences = list(offences_in(root))
    for offence in offences:
        print(offence)
    return 1 if offences else 0


if __name__ == "__main__":
    sys.exit(main())
