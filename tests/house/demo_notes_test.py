"""The bundled notes are what a newcomer sees first, and what the importer is tried on: they must hold what it has to
cope with, and no accident."""

import pathlib
import re
import unittest
from urllib.parse import unquote

NOTES = pathlib.Path(__file__).resolve().parents[2] / "demo" / "notes"
BYTE_ORDER_MARK = b"\xef\xbb\xbf"
LINK = re.compile(r"!?\[[^\]]*\]\((?:<([^>]+)>|([^)\s]+))\)")
FENCE = re.compile(r"^(```|~~~).*?^\1\s*$", re.MULTILINE | re.DOTALL)


def notes():
    return sorted(path for path in NOTES.rglob("*") if path.suffix in {".md", ".markdown", ".txt"})


class DemoNotes(unittest.TestCase):
    def setUp(self):
        self.raw = {path: path.read_bytes() for path in notes()}
        self.texts = {path: raw.decode("utf-8-sig") for path, raw in self.raw.items()}

    def holding(self, pattern):
        return [path for path, text in self.texts.items() if re.search(pattern, text, re.MULTILINE)]

    def test_there_are_enough_of_them(self):
        self.assertGreaterEqual(len(self.raw), 55)
        self.assertGreaterEqual(len([1 for raw in self.raw.values() if len(raw) > 5000]), 3)
        self.assertGreaterEqual(len([1 for raw in self.raw.values() if len(raw) < 200]), 3)

    def test_odd_files_are_among_them(self):
        self.assertEqual(len([1 for raw in self.raw.values() if raw.startswith(BYTE_ORDER_MARK)]), 1)
        self.assertEqual(len([1 for raw in self.raw.values() if b"\r\n" in raw]), 1)
        self.assertGreaterEqual(len(self.holding(r"\A---\n")), 3)
        self.assertGreaterEqual(len(self.holding("[aeiouAEIOU][\u0300-\u036f]")), 1)

    def test_every_kind_of_text_is_among_them(self):
        for kind, pattern, least in [
            ("nested tags", r"(^|\s)#\w+/\w+", 20),
            ("closed tags", r"(^|\s)#\w+ [\w ]*\w#(\s|$)", 3),
            ("open to-dos", r"^\s*[-*+] \[ \] ", 10),
            ("done to-dos", r"^\s*[-*+] \[[xX]\] ", 5),
            ("code blocks", r"^```", 4),
            ("tables", r"^\|.*\|$", 4),
            ("quotes", r"^> ", 4),
            ("wiki links", r"\[\[[^\]]+\]\]", 20),
            ("emoji", "[\U0001f300-\U0001faff]", 4),
        ]:
            with self.subTest(kind=kind):
                self.assertGreaterEqual(len(self.holding(pattern)), least)

    def test_many_scripts_are_among_them(self):
        for script, letters in [
            ("Kana", "[\u3040-\u30ff]"), ("Hangul", "[\uac00-\ud7af]"), ("Han", "[\u4e00-\u9fff]"),
            ("Cyrillic", "[\u0400-\u04ff]"), ("Arabic", "[\u0600-\u06ff]"), ("Greek", "[\u0370-\u03ff]"),
            ("Hebrew", "[\u0590-\u05ff]"), ("Thai", "[\u0e00-\u0e7f]"), ("Devanagari", "[\u0900-\u097f]"),
        ]:
            with self.subTest(script=script):
                self.assertTrue(self.holding(letters))

    def test_linked_files_are_there(self):
        linked = 0
        for path, text in self.texts.items():
            for angled, plain in LINK.findall(FENCE.sub("", text)):
                target = angled or plain
                if "://" in target or target.startswith(("mailto:", "#", "tel:")):
                    continue
                linked += 1
                with self.subTest(note=path.name, target=target):
                    self.assertTrue((path.parent / unquote(target)).is_file())
        self.assertGreaterEqual(linked, 5)

    def test_wiki_links_lead_somewhere_or_nowhere(self):
        titles = set()
        for text in self.texts.values():
            for line in text.splitlines():
                heading = re.match(r"#{1,6} (.+)", line)
                titles.add((heading.group(1) if heading else line).strip().casefold())
            front = re.match(r"---\n.*?^title: *(.+?)$", text, re.MULTILINE | re.DOTALL)
            if front:
                titles.add(front.group(1).strip("\"' ").casefold())
        targets = [
            title.split("|")[0].strip().casefold()
            for text in self.texts.values()
            for title in re.findall(r"\[\[([^\]\n]+)\]\]", FENCE.sub("", text))
        ]
        resolved = [title for title in targets if title in titles]
        self.assertGreaterEqual(len(resolved), 40)
        self.assertGreaterEqual(len(targets) - len(resolved), 3)
        self.assertGreater(len(resolved), 4 * (len(targets) - len(resolved)))


if __name__ == "__main__":
    unittest.main()
