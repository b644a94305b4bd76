"""Notebooks made by chance, to hold an import against another reading of the same rules.

Names are nasty on purpose: blanks, brackets, number signs, percent signs, letters in both normal forms, names that
differ in case alone, day names, README and index, .txt beside .md, names of devices, names as long as they can be, line
ends in names. Texts link each other in every form there is; files are linked symbolically, also in circles and to where
nothing is; bytes are empty, end their lines as they like, and are no text at all.
"""

import os
import pathlib
import random
import unicodedata

STEMS = [
    "Alpha", "alpha", "Beta note", "Gamma", "Grün", "Ünïcode", "C#", "a#b", "100%", "x%20y", "(draft)", "[x]",
    "README", "index", "2024-05-01 Lunch", "v1.2.3", "Delta", "Straße", "日本", "e\u0301t\u00e9", "Note, with comma",
    "under_score", "st*r", "tag #t", "Beta",
]
NASTY_STEMS = [
    '"quoted"', "it's", "two\nlines", "trailing ", " leading", "a%2Fb", "#start", "a|b", "[[x]]", "😀 face", "-dash",
    "..dots", "con", "NUL", "ALPHA", "été", "e\u0301te\u0301", "L" * 260, "é" * 130, "a.md", "back\\slash", "~",
    "a:b",
    "<angle>", "&amp;", "`code`", "__init__", "a]b[", "%", "%zz", "?", "a?b", "$x$", "1. one", "- item", "2024-13-45",
]
FOLDERS = ["", "", "Sub", "Sub/Deep", "Ordner ü", "a b", "Sub.d"]
NASTY_FOLDERS = ["Alpha.assets", "Sub/x#y", "O\u0308rter", "Örter", ".hidden", "100%", "README", "Gamma.md"]
HEADINGS = [
    "# {0}", "## {0}", "### Improvements", "{0}\n====", "", "", "# Other {0}", "<!-- c -->\n\n# {0}",
    '<a id="q"></a>\n\n## {0}', "#tagline\n\n# {0}", "plain start",
]
FRONT = [
    "", "", "", "---\ntitle: Front {0}\n---\n", "---\naliases: [Al {0}, second]\n---\n",
    "---\ntitle: {0}\ntags: [x]\n---\n",
]
NASTY_FRONT = [
    "---\npinned: true\ncreated: 2020-01-02\n---\n", "---\narchived: true\nmodified: 2021-03-04T05:06:07Z\n---\n",
    "---\nalias: Beta\nother: [1, 2]\n---\n\n", "---\ntitle: 'Alpha'\n...\n", "---\n---\n", "---\nno end\n",
    "---\naliases:\n  - Alpha\n  - 'Grün'\n---\n", "---\ntitle: \"# not a heading\"\n---\n", "---\ntitle: con\n---\n",
]


def encoded(path):
    return "".join(c if c.isalnum() or c in "/._-~" else "".join(f"%{b:02X}" for b in c.encode()) for c in path)


def file_name(stem, ending):
    """No name has more than 255 bytes."""
    return os.fsencode(stem)[: 255 - len(ending)].decode(errors="ignore") + ending


class Notebook:
    """Files by their paths. `is_nasty` for names, links and bytes beyond what people write every day."""

    def __init__(self, seed, is_nasty=False):
        self.random = random.Random(seed)
        self.is_nasty = is_nasty
        self.notes = {}
        self.others = {}
        self.symbolic_links = {}

    def one_of(self, usual, nasty):
        return self.random.choice(nasty if self.is_nasty and self.random.random() < 0.4 else usual)

    def make(self):
        rng = self.random
        for _ in range(rng.randint(2, 14)):
            path = self.new_path()
            if not self.is_in_the_way(path):
                self.notes[path] = ""
        for _ in range(rng.randint(0, 3)):
            self.others[os.path.join(rng.choice(FOLDERS), rng.choice(["p.png", "q r.pdf", "x.png"]))] = b"bytes"
        for path in self.notes:
            self.notes[path] = self.text(path)
        if self.is_nasty:
            self.link_symbolically()
        return self

    def is_in_the_way(self, path):
        """A file can be no folder."""
        return any((path + "/").startswith(other + "/") or other.startswith(path + "/") for other in self.notes)

    def new_path(self):
        rng = self.random
        name = file_name(self.one_of(STEMS, NASTY_STEMS), rng.choice([".md", ".md", ".md", ".markdown", ".txt"]))
        if rng.random() < 0.2:
            name = file_name(unicodedata.normalize("NFD", name), "")
        return os.path.join(self.one_of(FOLDERS, NASTY_FOLDERS), name)

    def link_symbolically(self):
        rng = self.random
        for _ in range(rng.randint(0, 4)):
            name = rng.choice(["ln.md", "Alpha.md", "linked", "0", "zz.txt", "p.png"])
            path = os.path.join(rng.choice(FOLDERS), name)
            if path in self.notes or path in self.others:
                continue
            inside = rng.choice([*self.notes, *FOLDERS, *self.others, path, "no such file.md"])
            target = os.path.relpath(inside or ".", os.path.dirname(path) or ".")
            self.symbolic_links[path] = rng.choice([target, target, target, "../outside.md", "../outside", "/dev/null"])

    def text(self, path):
        rng = self.random
        stem = pathlib.PurePath(path).stem
        front = self.one_of(FRONT, NASTY_FRONT).format("Q" if ":" in stem or "#" in stem or "[" in stem else stem)
        heading = rng.choice(HEADINGS).format(stem)
        parts = [self.paragraph(path) for _ in range(rng.randint(0, 4))]
        text = front + "\n\n".join(part for part in [heading, *parts] if part) + rng.choice(["", "\n"])
        if self.is_nasty and rng.random() < 0.15:
            text = rng.choice(["", "\ufeff" + text, text.replace("\n", "\r\n"), "\n\n" + text, text + "\udcff", " "])
        return text

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
            text = rng.choice(["text", "some words"])
            return f"see [{text}][{label}] and [{label}]\n\n[{label}]: <{self.path_of_link(path)}>"
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
        if self.is_nasty and rng.random() < 0.25:
            return self.rare_link(path)
        if kind < 0.4:
            text = rng.choice(["text", "*strong* words", "", "two\nlines", "Alpha", "a [b] c", "![pic](p.png)"])
            return f"[{text}]({self.path_of_link(path)})"
        if kind < 0.45:
            return f"![{rng.choice(['', 'alt'])}]({self.path_of_link(path)})"
        if kind < 0.5:
            return rng.choice([
                "<https://example.org/x>", "[web](https://example.org)", "[own](#head)", "[[#head|own]]",
                "[up](../../out.md)",
            ])
        name = self.target()
        whole = pathlib.PurePath(name)
        name = rng.choice([name, str(whole.with_suffix("")), whole.stem, whole.name])
        name = name.replace("[", "\\[").replace("]", "\\]")
        anchor = rng.choice(["", "", "", "#Head", "#A#B", "#^id"])
        alias = rng.choice(["", "", "|alias", "|*x*"])
        return rng.choice(["", "", "", "!"]) + "[[" + name + anchor + alias + "]]"

    def rare_link(self, path):
        to = self.path_of_link(path)
        return self.random.choice([
            f"<{to}>", f"[angle](<{to}>)", f'[titled]({to} "a title")', f"[titled]({to} 'x')", f"`[code]({to})`",
            f'<a href="{to}">html</a>', f"[collapsed][]\n\n[collapsed]: {to}", f"[full][r 1]\n\n[r 1]: {to} (t)",
            f"\\[escaped]({to})", f"[a [nested]({to}) b]({to})",
            f"[tag #t{self.random.randrange(10**9)}]({to})", f"~~[struck]({to})~~",
            f"[`code` in](<{to}>)", "[[ Alpha ]]", "[[Alpha|]]", "[[|x]]", "[[#]]", "![[p.png|100x200]]",
            "[[p.png]]", "[[q r.pdf|the *paper*]]", "[[Alpha#^block|b]]", "[[/Sub/Alpha]]", "[[../Alpha]]",
            "[[./Alpha]]",
            "[[a\\|b]]", "![[p.png]](x.md)", "[dead](file:///etc/passwd)", "[](%2e%2e/outside.md)",
            "[out](/../outside.md)",
            "[mail](mailto:a@example.org)", "[[second]]", "[[Al Alpha|al]]", "[folder](Sub/)", "[folder](.)", "[q](?x)",
        ])

    def write(self, folder):
        """Bytes that are no text stand in texts as lone surrogates."""
        folder = pathlib.Path(folder)
        texts = {path: text.encode(errors="surrogateescape") for path, text in self.notes.items()}
        if self.is_nasty:
            for outside in ("outside.md", "outside/inner.md"):
                write_file(folder.parent / outside, b"# Outside\n")
        for path, content in (texts | self.others).items():
            write_file(folder / path, content)
        for path, target in self.symbolic_links.items():
            link = folder / path
            if not os.path.lexists(link):
                link.parent.mkdir(parents=True, exist_ok=True)
                link.symlink_to(target)
        return folder


def write_file(file, content):
    file.parent.mkdir(parents=True, exist_ok=True)
    file.write_bytes(content)
