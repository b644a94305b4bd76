#!/usr/bin/env python3
"""Turns fetched documentation into Markdown files: make-benchmark-texts.py NODE-MODULES FOLDER

Markdown is copied; the pages of the handbook, which come as HTML, become Markdown again. Same input, same files.
"""

import html.parser
import json
import pathlib
import sys

BEFORE = {"h1": "\n\n# ", "h2": "\n\n## ", "h3": "\n\n### ", "h4": "\n\n#### ", "p": "\n\n", "li": "\n- ",
          "pre": "\n\n```\n", "tr": "\n| ", "td": " ", "th": " ", "br": "\n", "code": "`", "strong": "**", "em": "*"}
AFTER = {"pre": "\n```\n", "td": " |", "th": " |", "code": "`", "strong": "**", "em": "*"}


class Page(html.parser.HTMLParser):
    def __init__(self):
        super().__init__()
        self.text = []
        self.in_pre = False

    def handle_starttag(self, tag, attributes):
        if tag == "pre":
            self.in_pre = True
        if not (self.in_pre and tag == "code"):
            self.text.append(BEFORE.get(tag, ""))

    def handle_endtag(self, tag):
        if tag == "pre":
            self.in_pre = False
        if not (self.in_pre and tag == "code"):
            self.text.append(AFTER.get(tag, ""))

    def handle_data(self, data):
        self.text.append(data if self.in_pre else data.replace("\n", " "))


def markdown_of(page):
    parser = Page()
    parser.feed(page)
    return "".join(parser.text).strip() + "\n"


def write(folder, name, text):
    if len(text) >= 200:
        (folder / name).write_text(text, encoding="utf-8")


def main(modules, folder):
    handbook = json.loads((modules / "electron-i18n/dist/docs.json").read_text(encoding="utf-8"))
    for language, pages in handbook.items():
        for path, page in pages.items():
            write(folder, f"handbook-{language}-{path.strip('/').replace('/', '-')}.md", markdown_of(page["html"]))
    for package in ("learnyounode", "javascripting", "how-to-npm", "npm"):
        for file in sorted((modules / package).rglob("*.md")):
            name = "-".join(file.relative_to(modules).parts)
            write(folder, name, file.read_text(encoding="utf-8", errors="replace"))


main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
