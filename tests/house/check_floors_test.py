"""The floor check must see what it is there for: small source trees with one offence each."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECKER = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check-floors.py"

# file, its text, and what the check must say about it (None: nothing)
CASES = [
    ("platform/foundation/UTF.cpp", '#include "platform/foundation/UTF.h"\n#include <unicode/utf8.h>\n', None),
    ("platform/foundation/Folding.cpp", '#include "platform/coredata/NSManagedObject.h"\n', "must not include"),
    ("platform/predicate/Tree.cpp", '#include "corvel/CVKAST.h"\n', "must not include"),
    ("platform/coredata/Fetch.cpp", '#include "model/OVNote.h"\n', "must not include"),
    ("platform/coredata/Store.cpp", '#  include   "platform/predicate/NSPredicate.h"\n', None),
    ("corvel/Parser.cpp", '#include "platform/predicate/NSPredicate.h"\n', "must not include"),
    ("corvel/Entities.cpp", '#include "platform/foundation/UTF.h"\n', None),
    ("model/OVNote.h", '#include "model/_OVNote.h"\n#include "corvel/CVKAST.h"\n', None),
    ("model/OVNoteFile.cpp", '#include "files/Trimming.h"\n', "must not include"),
    ("notes/OVNote.cpp", '#include "tags/TagOperations.h"\n', None),
    ("notes/OVNote+Parsing.cpp", '#include "store/OVCoreDataStack.h"\n', "must not include"),
    ("notes/Titles.cpp", '#include "tools/modelgen/Generator.h"\n', "must not include"),
    ("notes/Links.cpp", '#include "Links.h"\n', "does not begin with a room"),
    ("notes/Copies.cpp", '#include "notes/../store/Copies.h"\n', "does not begin with a room"),
    ("tools/tarn/main.cpp", '#include "store/OVCoreDataStack.h"\n#include <CLI/CLI.hpp>\n', None),
    ("tests/notes/OVNoteTest.cpp", '#include "notes/Titles.h"\n#include "tests/support/StoreFixture.h"\n', None),
    ("platform/coredata/Rows.h", "#include <sqlite3.h>\n", "of another library"),
    ("platform/coredata/RowsInternal.h", "#include <sqlite3.h>\n", None),
    ("platform/foundation/Locale.h", "#include <unicode/locid.h>\n", "of another library"),
    ("platform/foundation/Pool.h", "#include <unicode/ucal.h>\n", "of another library"),
    ("model/Json.h", "#include <nlohmann/json.hpp>\n", "of another library"),
    ("notes/Text.h", "#include <fmt/format.h>\n", "of another library"),
    ("platform/coredata/Open.h", '#include "platform/coredata/RowsInternal.h"\n', "not installed"),
    ("tools/modelgen/Writer.cpp", 'auto text = R"x(\n#include "model/OVNote.h"\n)x";\n', None),
    ("tools/modelgen/Other.cpp", 'auto text = R"(\n)";\n#include "model/OVNote.h"\n', ":3: tools/modelgen must not include"),
    ("examples/first.cpp", '#include "notes/Titles.h"\n', "must not include"),
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
