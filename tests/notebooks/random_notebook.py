"""Notebooks made by chance, to hold an import against another reading of the same rules.

Names are nasty on purpose: blanks, brackets, number signs, percent signs, letters in both normal forms, names that
differ in case alone, day names, README and index, .txt beside .md. Texts link each other in every form there is.
"""

import os
import pathlib
import random
import unicodedata

STEMS = [
    "Alpha", "alpha", "Beta note", "Gamma", "Grün", "Ünïcode", "C#", "a#b", "100%", "x%20y", "(draft)", "[x]", "README", "index", "2024-05-01 Lunch",
    "v1.2.3", "Delta", "Straße", "日本", "e\u0301t\u00e9", "Note, with comma", "under_score", "st*r", "tag #t", "Beta",
]
FOLDERS = ["", "", "Sub", "Sub/Deep", "Ordner ü", "a b", "Sub.d"]
HEADINGS = ["# {0}", "## {0}", "### Improvements", "{0}\n====", "", "", "# Other {0}", "<!-- c -->\n\n# {0}", '<a id="q"></a>\n\n## {0}', "#tagline\n\n# {0}", "plain start"]
FRONT = ["", "", "", "---\ntitle: Front {0}\n---\n", "---\naliases: [Al {0}, second]\n---\n", "---\ntitle: {0}\ntags: [x]\n---\n"]


def encoded(path):
    return "".join(c if c.isalnum() or c in "/._-~" else "".join(f"%{b:02X}" for b in c.encode()) for c in path)


class Notebook:
    def __init__(self, seed):
        self.random = random.Random(seed)
        self.notes = {}
        self.others = {}

    def make(self):
        rng = self.random
        for _ in range(rng.randint(2, 14)):
            folder = rng.choice(FOLDERS)
            name = rng.choice(STEMS) + rng.choice([".md", ".md", ".md", ".markdown", ".txt"])
            if rng.random() < 0.2:
                name = unicodedata.normalize("NFD", name)
            self.notes.setdefault(os.path.join(folder, name), "")
        for _ in range(rng.randint(0, 3)):
            self.others[os.path.join(rng.choice(FOLDERS), rng.choice(["p.png", "q r.pdf", "x.png"]))] = b"bytes"
        for path in self.notes:
            self.notes[path] = self.text(path)
        return self

    def text(self, path):
        rng = self.random
        stem = pathlib.PurePath(path).stem
        front = rng.choice(FRONT).format("Q" if ":" in stem or "#" in stem or "[" in stem else stem)
        heading = rng.choice(HEADINGS).format(stem)
        parts = [self.paragraph(path) for _ in range(rng.randint(0, 4))]
        return front + "\n\n".join(part for part in [heading, *parts] if part) + rng.choice(["", "\n"])

    def paragraph(self, path):
        rng = self.random
        kind = rng.random()
        if kind < 0.1:
            return "| a | b |\n| --- | --- |\n| " + self.link(path).replace("|", "\\|") + " | c |"
        if kind < 0.15:
            return "```\n" + self.link(path) + "\n```"
        if kind < 0.2:
            return "> quoted " + self.link(path) + "\n> more"
        if kind < 0.25:
            return "- [ ] do " + self.link(path) + "\n- [x] done"
        if kind < 0.35:
            label = rng.choice(["ref", "other"])
            return f"see [{rng.choice(['text', 'some words'])}][{label}] and [{label}]\n\n[{label}]: <{self.path_of_link(path)}>"
        return " and ".join(["words", *(self.link(path) for _ in range(rng.randint(1, 3)))])

    def target(self):
        rng = self.random
        return rng.choice([*self.notes, *self.others, "missing.md", "No such"])

    def path_of_link(self, path):
        rng = self.random
        target = self.target()
        written = os.path.relpath(target, os.path.dirname(path) or ".")
        if rng.random() < 0.15:
            written = "/" + target
        if rng.random() < 0.3 and written.endswith(".md"):
            written = rng.choice([written[:-3], written[:-3] + ".html"])
        written = encoded(written)
        return written + rng.choice(["", "", "", "#head", "?q=1"])

    def link(self, path):
        rng = self.random
        kind = rng.random()
        if kind < 0.4:
            text = rng.choice(["text", "*strong* words", "", "two\nlines", "Alpha", "a [b] c", "![pic](p.png)"])
            return f"[{text}]({self.path_of_link(path)})"
        if kind < 0.45:
            return f"![{rng.choice(['', 'alt'])}]({self.path_of_link(path)})"
        if kind < 0.5:
            return rng.choice(["<https://example.org/x>", "[web](https://example.org)", "[own](#head)", "[[#head|own]]", "[up](../../out.md)"])
        name = self.target()
        name = rng.choice([name, str(pathlib.PurePath(name).with_suffix("")), pathlib.PurePath(name).stem, pathlib.PurePath(name).name])
        name = name.replace("[", "\\[").replace("]", "\\]")
        anchor = rng.choice(["", "", "", "#Head", "#A#B", "#^id"])
        alias = rng.choice(["", "", "|alias", "|*x*"])
        return rng.choice(["", "", "", "!"]) + "[[" + name + anchor + alias + "]]"

    def write(self, folder):
        folder = pathlib.Path(folder)
        for path, text in self.notes.items():
            file = folder / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text, encoding="utf-8", newline="")
        for path, content in self.others.items():
            file = folder / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_bytes(content)
        return folder
