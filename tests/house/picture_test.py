"""The picture of the README shows what `tarn` prints now. After a change of the output draw it again with
scripts/draw-terminal.py.

    tests/house/picture_test.py TARN
"""

import importlib
import pathlib
import sys
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "scripts"))
draw_terminal = importlib.import_module("draw-terminal")
TARN = pathlib.Path(sys.argv.pop()).resolve()


class Picture(unittest.TestCase):
    def test_its_text_is_what_tarn_prints(self):
        drawn = xml.etree.ElementTree.parse(ROOT / "docs" / "images" / "tarn.svg")
        lines = [text.text for text in drawn.iter("{http://www.w3.org/2000/svg}text")]
        self.assertGreater(len(lines), 20)
        self.assertEqual(lines, draw_terminal.printed_lines(TARN))

    def test_the_readme_shows_it(self):
        self.assertIn("(docs/images/tarn.svg)", (ROOT / "README.md").read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main()
