"""The wording check must see what it is there for."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECKER = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "check-wording.py"

# a line, and whether it may stand
CASES = [
    ("// TODO: sort", False),
    ("// FIXME later", False),
    ("the note's todoCount and its TODOs", True),
    ("see /workspace/notes", False),
    ("/home/anna/notes", False),
    ("a link to https://example.org/work/places", True),
    ("cp x /tmp/build/x", False),
    ("ninja -C build-notes/", False),
    ("cmake --preset dev writes to build/dev", True),
    ("https://registry.example.org/x", False),
    ("<<<<<<< ours", False),
    ("a path like /tmp/scratch // of another system; wording: kept", True),
]


class WordingCheck(unittest.TestCase):
    def test_each_case(self):
        for line, allowed in CASES:
            with self.subTest(line=line), tempfile.TemporaryDirectory() as folder:
                (pathlib.Path(folder) / "README.md").write_text("first line\n" + line + "\n", encoding="utf-8")
                result = subprocess.run(
                    [sys.executable, str(CHECKER), folder], capture_output=True, text=True, check=False
                )
                self.assertEqual(result.returncode, 0 if allowed else 1, result.stdout)
                if not allowed:
                    self.assertIn("README.md:2:", result.stdout)


if __name__ == "__main__":
    unittest.main()
