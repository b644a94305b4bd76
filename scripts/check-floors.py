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

# Floors from the lowest to the highest. Rooms of one floor may include each other. Each folder of the library that holds
# sources is a room.
LIBRARY = "tarnmodel"
FOUNDATION = f"{LIBRARY}/platform/foundation"
COREDATA = f"{LIBRARY}/platform/coredata"
CORVEL = f"{LIBRARY}/corvel"
IMAGING = f"{LIBRARY}/platform/imaging"
ENCRYPTION = f"{LIBRARY}/encryption"
BACKUP = f"{LIBRARY}/backup"
FLOORS = [
    {f"{FOUNDATION}/values"},
    {f"{FOUNDATION}/text"},
    {f"{FOUNDATION}/filetypes"},
    {f"{FOUNDATION}/system"},
    {f"{FOUNDATION}/filesystem"},
    {f"{FOUNDATION}/time"},
    {f"{FOUNDATION}/events"},
    {f"{LIBRARY}/platform/predicate", IMAGING, f"{LIBRARY}/platform/cloudkit", CORVEL},
    {f"{IMAGING}/resampling"},
    {f"{IMAGING}/codecs"},
    {f"{CORVEL}/scanning"},
    {f"{CORVEL}/blocks"},
    {f"{CORVEL}/inlines"},
    {f"{CORVEL}/output"},
    {f"{CORVEL}/rewriting"},
    {COREDATA},
    {f"{COREDATA}/description"},
    {f"{COREDATA}/rows"},
    {f"{COREDATA}/memory"},
    {f"{COREDATA}/sqlite"},
    {f"{COREDATA}/query"},
    {f"{COREDATA}/textsearch"},
    {f"{COREDATA}/sqlitestore"},
    {f"{COREDATA}/context/records"},
    {f"{COREDATA}/context/reading"},
    {f"{COREDATA}/context/merging"},
    {f"{COREDATA}/context"},
    {f"{COREDATA}/context/child"},
    {f"{COREDATA}/opening"},
    {f"{COREDATA}/migration"},
    {"tools/modelgen"},
    {ENCRYPTION},
    {f"{ENCRYPTION}/keys"},
    {f"{ENCRYPTION}/sealing"},
    {f"{ENCRYPTION}/manager"},
    {f"{LIBRARY}/model"},
    {f"{LIBRARY}/{room}" for room in ("notes", "tags", "files", "files/thumbnails", "sync", "search", "backup")},
    {f"{BACKUP}/archive"},
    {f"{BACKUP}/snapshot", f"{BACKUP}/restoring"},
    {f"{LIBRARY}/{room}" for room in ("diagnosis", "store")},
    {LIBRARY},
    {"tools/tarn"},
    {"examples", "tests", "benchmarks", "fuzz"},
]

# Rooms that may include nothing but what is named here (with what lies below it, and themselves), whatever their floor.
STANDS_ALONE_ON = {
    f"{LIBRARY}/platform/predicate": {FOUNDATION},
    IMAGING: {FOUNDATION, IMAGING},
    f"{LIBRARY}/platform/cloudkit": {FOUNDATION},
    FOUNDATION: {FOUNDATION},
    COREDATA: {FOUNDATION, f"{LIBRARY}/platform/predicate", COREDATA},
    CORVEL: {FOUNDATION, CORVEL},
    "examples": {LIBRARY},
}

# Below the face of these lie their own rooms: nobody includes them from outside, and they are not installed.
FACES = (COREDATA, CORVEL, IMAGING, ENCRYPTION, BACKUP)
# Who may look behind a face all the same.
LOOKS_BEHIND = {"tests", "benchmarks", "fuzz", "tools/modelgen"}

# Rooms whose headers are not installed, so that they may include what they like.
PRIVATE_ROOMS = {"tools/modelgen", "tools/tarn", "examples", "tests", "benchmarks", "fuzz"}

# Headers of other libraries: they stay in .cpp files and in *Internal.h. Dictionaries of records are handed out as this
# type, which its header declares and no more.
THIRD_PARTY = re.compile(
    r"^(unicode/|sqlite3|nlohmann/(?!json_fwd\.hpp$)|fmt/|CLI/|CLI11|sodium|archive|sha1\.h|png|jpeglib|webp/|gif_lib|tiffio|libheif/|pixman|cmark|gtest|gmock|rapidcheck|benchmark/)"
)

# A generator holds the includes of what it writes in raw strings: they are not its own.
RAW_STRING = re.compile(r'R"([^()\s\\]{0,16})\(.*?\)\1"', re.DOTALL)

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')
FLOOR_OF = {room: floor for floor, rooms in enumerate(FLOORS) for room in rooms}
OTHER_ROOMS = [room for room in FLOOR_OF if not room.startswith(LIBRARY)]


def room_of(path):
    """The room of a source, or None."""
    if path.startswith(LIBRARY + "/"):
        folder = path.rpartition("/")[0]
        return folder if folder in FLOOR_OF else None
    return next((room for room in OTHER_ROOMS if path.startswith(room + "/")), None)


def is_in(room, other):
    """Whether the room is the other one or lies below it."""
    return room == other or room.startswith(other + "/")


def face_before(room):
    """The face behind which the room lies, or None."""
    return next((face for face in FACES if room != face and is_in(room, face)), None)


def may_include(room, other):
    if other == room:
        return True
    face = face_before(other)
    if face and not is_in(room, face) and room not in LOOKS_BEHIND:
        return False
    alone = next((name for name in sorted(STANDS_ALONE_ON, key=len, reverse=True) if is_in(room, name)), None)
    # The library's own header is all that a program needs of it.
    if alone and not any(other == name if name == LIBRARY else is_in(other, name) for name in STANDS_ALONE_ON[alone]):
        return False
    return FLOOR_OF[other] <= FLOOR_OF[room] and not (other == "tools/modelgen" and room != "tests")


def is_public_header(room, name):
    return not (room in PRIVATE_ROOMS or face_before(room)) and name.endswith(".h") and not name.endswith("Internal.h")


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
    for folder in sorted({room.split("/")[0] for room in FLOOR_OF}):
        for source in sorted((root / folder).rglob("*")):
            path = source.relative_to(root).as_posix()
            if source.suffix not in {".h", ".cpp"} or "build" in path.split("/"):
                continue
            seen += 1
            room = room_of(path)
            if room:
                yield from offences_of(path, room, source.read_text(encoding="utf-8", errors="replace"))
            else:
                yield f"{path}: stands in no room that this check knows"
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
