"""The floor check must see what it is there for: small source trees with one offence each."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECKER = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check-floors.py"

# file, its text, and what the check must say about it (None: nothing)
CASES = [
    ("tarnmodel/platform/foundation/text/UTF.cpp",
     '#include "tarnmodel/platform/foundation/text/UTF.h"\n#include <unicode/utf8.h>\n', None),
    ("tarnmodel/platform/foundation/text/Folding.cpp",
     '#include "tarnmodel/platform/coredata/NSManagedObject.h"\n', "must not include"),
    ("tarnmodel/platform/foundation/values/NSDate.cpp",
     '#include "tarnmodel/platform/foundation/system/Environment.h"\n', "must not include"),
    ("tarnmodel/platform/predicate/Tree.cpp", '#include "tarnmodel/corvel/CVKAST.h"\n', "must not include"),
    ("tarnmodel/platform/coredata/context/Fetch.cpp", '#include "tarnmodel/model/OVNote.h"\n', "must not include"),
    ("tarnmodel/platform/coredata/query/Terms.cpp",
     '#  include   "tarnmodel/platform/predicate/NSPredicate.h"\n', None),
    ("tarnmodel/platform/coredata/query/Terms.cpp",
     '#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"\n', None),
    ("tarnmodel/platform/coredata/sqlite/StoreSchema.cpp",
     '#include "tarnmodel/platform/coredata/query/Terms.h"\n', "must not include"),
    ("tarnmodel/platform/coredata/memory/Rows.cpp",
     '#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"\n', "must not include"),
    ("tarnmodel/platform/coredata/context/child/Link.cpp",
     '#include "tarnmodel/platform/coredata/context/ContextCore.h"\n', None),
    ("tarnmodel/platform/coredata/context/ContextCore.cpp",
     '#include "tarnmodel/platform/coredata/context/child/Link.h"\n', "must not include"),
    ("tarnmodel/platform/coredata/NSManagedObject.h",
     '#include "tarnmodel/platform/coredata/rows/StoreRow.h"\n', "must not include"),
    ("tarnmodel/platform/coredata/attic/Old.cpp", "\n", "stands in no room"),
    ("tarnmodel/attic/Old.cpp", "\n", "stands in no room"),
    ("tarnmodel/corvel/blocks/Parser.cpp", '#include "tarnmodel/platform/predicate/NSPredicate.h"\n', "must not include"),
    ("tarnmodel/corvel/blocks/Parser.cpp", '#include "tarnmodel/corvel/inlines/Emphasis.h"\n', "must not include"),
    ("tarnmodel/platform/imaging/codecs/Decoder.cpp",
     '#include "tarnmodel/platform/imaging/resampling/RowSink.h"\n#include <png.h>\n', None),
    ("tarnmodel/platform/imaging/resampling/Box.cpp",
     '#include "tarnmodel/platform/imaging/codecs/Decoder.h"\n', "must not include"),
    ("tarnmodel/platform/imaging/Bitmap.h", "#include <tiffio.h>\n", "of another library"),
    ("tarnmodel/files/thumbnails/Thumbs.cpp",
     '#include "tarnmodel/platform/imaging/codecs/Decoder.h"\n', "must not include"),
    ("tarnmodel/corvel/scanning/Entities.cpp", '#include "tarnmodel/platform/foundation/text/UTF.h"\n', None),
    ("tarnmodel/model/OVNote.h", '#include "tarnmodel/model/_OVNote.h"\n#include "tarnmodel/corvel/CVKAST.h"\n', None),
    ("tarnmodel/model/OVNoteFile.cpp", '#include "tarnmodel/files/Trimming.h"\n', "must not include"),
    ("tarnmodel/model/Resources.cpp", '#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"\n', "must not include"),
    ("tarnmodel/notes/OVNote.cpp", '#include "tarnmodel/tags/TagOperations.h"\n', None),
    ("tarnmodel/notes/OVNote+Parsing.cpp", '#include "tarnmodel/store/OVCoreDataStack.h"\n', "must not include"),
    ("tarnmodel/notes/OVNote+Parsing.cpp", '#include "tarnmodel/corvel/blocks/Document.h"\n', "must not include"),
    ("tarnmodel/notes/Titles.cpp", '#include "tools/modelgen/Generator.h"\n', "must not include"),
    ("tarnmodel/notes/Links.cpp", '#include "Links.h"\n', "does not begin with a room"),
    ("tarnmodel/notes/Copies.cpp", '#include "tarnmodel/notes/../store/Copies.h"\n', "does not begin with a room"),
    ("tools/tarn/main.cpp", '#include "tarnmodel/store/OVCoreDataStack.h"\n#include <CLI/CLI.hpp>\n', None),
    ("tools/tarn/Doctor.cpp", '#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"\n', "must not include"),
    ("tests/notes/OVNoteTest.cpp",
     '#include "tarnmodel/notes/Titles.h"\n#include "tests/support/StoreFixture.h"\n', None),
    ("tests/notes/OVNoteTest.cpp", '#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"\n', None),
    ("tarnmodel/platform/coredata/sqlite/Connection.h", "#include <sqlite3.h>\n", None),
    ("tarnmodel/platform/coredata/NSFetchRequest.h", "#include <sqlite3.h>\n", "of another library"),
    ("tarnmodel/platform/foundation/text/Locale.h", "#include <unicode/locid.h>\n", "of another library"),
    ("tarnmodel/platform/foundation/time/ZoneInternal.h", "#include <unicode/ucal.h>\n", None),
    ("tarnmodel/model/Json.h", "#include <nlohmann/json.hpp>\n", "of another library"),
    ("tarnmodel/model/Json.h", "#include <nlohmann/json_fwd.hpp>\n", None),
    ("tarnmodel/notes/Text.h", "#include <fmt/format.h>\n", "of another library"),
    ("tarnmodel/platform/foundation/time/Open.h",
     '#include "tarnmodel/platform/foundation/time/ZoneInternal.h"\n', "not installed"),
    ("tools/modelgen/Writer.cpp", 'auto text = R"x(\n#include "tarnmodel/model/OVNote.h"\n)x";\n', None),
    ("tools/modelgen/Other.cpp", 'auto text = R"(\n)";\n#include "tarnmodel/model/OVNote.h"\n',
     ":3: tools/modelgen must not include"),
    ("examples/first.cpp", '#include "tarnmodel/TarnModel.h"\n', None),
    ("examples/first.cpp", '#include "tarnmodel/notes/Titles.h"\n', "must not include"),
]


class FloorCheck(unittest.TestCase):
    def check(self, path, text):
        with tempfile.TemporaryDirectory() as folder:
            source = pathlib.Path(folder) / path
            source.parent.mkdir(parents=True)
            source.write_text(text, encoding="utf-8")
            return subprocess.run([sys.executable, str(CHECKER), folder], capture_output=True, text=True, check=False)

    def test_each_case(self):
        for path, text, expected in CASES:
            with self.subTest(path=path):
                result = self.check(path, text)
                if expected is None:
                    self.assertEqual((result.returncode, result.stdout), (0, ""))
                else:
                    self.assertEqual(result.returncode, 1)
                    self.assertIn(expected, result.stdout)
                    self.assertIn(f"{path}:", result.stdout)

    def test_an_empty_tree_is_no_success(self):
        with tempfile.TemporaryDirectory() as folder:
            result = subprocess.run([sys.executable, str(CHECKER), folder], capture_output=True, text=True, check=False)
            self.assertEqual(result.returncode, 1)


if __name__ == "__main__":
    unittest.main()
