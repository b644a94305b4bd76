#!/usr/bin/env python3
"""Writes the table of file name extensions, their types and the extension that each type prefers.

The data are those of npm's mime-db (MIT licence), of the version below, with the corrections of this script.

    scripts/make-file-types.py > tarnmodel/platform/foundation/filetypes/FileTypeTable.cpp
    scripts/make-file-types.py DB_JSON      takes the file db.json of that version instead of asking npm

Fails, and writes nothing, when npm gives no data.
"""

import json
import pathlib
import subprocess
import sys
import tempfile

VERSION = "1.54.0"

# Types of extensions that mime-db does not know, or where it names several and the first is not what people mean.
TYPE_OF = {
    # What browsers, scanners and cameras call their JPEG and HEIF files.
    "jfif": "image/jpeg",
    "pjpeg": "image/jpeg",
    "pjp": "image/jpeg",
    "hif": "image/heif",
    # Raw pictures of cameras: images, though not every program can open them.
    "arw": "image/x-sony-arw",
    "cr2": "image/x-canon-cr2",
    "cr3": "image/x-canon-cr3",
    "crw": "image/x-canon-crw",
    "dng": "image/x-adobe-dng",
    "mrw": "image/x-minolta-mrw",
    "nef": "image/x-nikon-nef",
    "nrw": "image/x-nikon-nrw",
    "orf": "image/x-olympus-orf",
    "pef": "image/x-pentax-pef",
    "raf": "image/x-fuji-raf",
    "raw": "image/x-panasonic-raw",
    "rw2": "image/x-panasonic-rw2",
    "srw": "image/x-samsung-srw",
    # Of several types the one that people mean.
    "3gpp": "video/3gpp",
    "asc": "application/pgp-signature",
    "mp3": "audio/mpeg",
    "mp4": "video/mp4",
    "mts": "video/mp2t",
    "org": "text/x-org",
    "sub": "text/vnd.dvb.subtitle",
    "vsdx": "application/vnd.ms-visio.drawing.main+xml",
}

# The extension that a type prefers, where it is not the one that mime-db names first.
PREFERRED_EXTENSION_OF = {
    "application/onenote": "one",
    "application/postscript": "ps",
    "audio/aac": "aac",
    "audio/mpeg": "mp3",
    "audio/ogg": "ogg",
    "image/jpeg": "jpeg",
    "image/tiff": "tiff",
    "text/troff": "man",
    "video/quicktime": "mov",
}

# How far the sources that mime-db names are trusted where several types claim an extension, most first.
SOURCES = ("iana", "apache", "nginx", None)
# Says nothing about a file: any other type that claims the extension counts more.
ANYTHING = "application/octet-stream"

HEADER = '''#include "tarnmodel/platform/foundation/filetypes/FileTypeTableInternal.h"

// Written by scripts/make-file-types.py; do not edit.
//
// The data are those of mime-db %s, with corrections:
//
%s
// clang-format off

namespace tarn {

namespace {

    constexpr FileType kFileTypes[] = {
'''

FOOTER = '''    };

} // namespace

std::span<const FileType> fileTypes() noexcept
{
    return kFileTypes;
}

} // namespace tarn
'''


def installed_data(folder):
    """Where npm put the database of mime-db."""
    command = ["npm", "install", "--silent", "--no-audit", "--no-fund", "--no-save"]
    try:
        subprocess.run(command + ["--prefix", str(folder), f"mime-db@{VERSION}"], check=True, stdout=sys.stderr)
    except (OSError, subprocess.CalledProcessError) as failure:
        sys.exit(f"make-file-types: npm gave no mime-db {VERSION}: {failure}")
    return folder / "node_modules" / "mime-db" / "db.json"


def read_package(database):
    """Types with what is known of them, and the lines of the licence; of the pinned version or not at all."""
    package = json.loads((database.parent / "package.json").read_text(encoding="utf-8"))
    if (package["name"], package["version"]) != ("mime-db", VERSION):
        sys.exit(f"make-file-types: {database} is of {package['name']} {package['version']}, not of mime-db {VERSION}")
    licence = (database.parent / "LICENSE").read_text(encoding="utf-8").strip().splitlines()
    return json.loads(database.read_text(encoding="utf-8")), licence


def type_of_each_extension(database):
    """The one type of each extension that is in lower-case ASCII, as all are."""
    claims = {}
    for name, details in database.items():
        for extension in details.get("extensions", ()):
            claims.setdefault(extension, []).append(
                (name == ANYTHING, SOURCES.index(details.get("source")), name))
    types = {extension: min(claimed)[2] for extension, claimed in claims.items()}
    return types | TYPE_OF


def preferred_extension(name, extensions, database):
    """What the table above says, else the first that mime-db names and that leads to this type."""
    if name in PREFERRED_EXTENSION_OF:
        return PREFERRED_EXTENSION_OF[name]
    named = database.get(name, {}).get("extensions", ())
    return next((extension for extension in named if extension in extensions), min(extensions))


def rows_of(database):
    types = type_of_each_extension(database)
    extensions_of = {}
    for extension, name in types.items():
        if not (extension.isascii() and extension == extension.lower()):
            sys.exit(f"make-file-types: the extension {extension!r} is not in lower-case ASCII")
        extensions_of.setdefault(name, set()).add(extension)
    for extension, name in sorted(types.items()):
        preferred = preferred_extension(name, extensions_of[name], database)
        if types.get(preferred) != name:
            sys.exit(f"make-file-types: {name} prefers {preferred!r}, which is of type {types.get(preferred)}")
        yield '        {"%s", "%s", "%s"},' % (extension, name, preferred)


def main():
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else installed_data(pathlib.Path(folder))
        database, licence = read_package(source)
    rows = list(rows_of(database))
    notice = "".join("//" + (f"     {line}" if line else "") + "\n" for line in licence)
    print(HEADER % (VERSION, notice + "//"), end="")
    print("\n".join(rows))
    print(FOOTER, end="")


if __name__ == "__main__":
    main()
