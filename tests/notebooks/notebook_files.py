"""What of a folder becomes notes: its Markdown and text files, in the order of names, each file once."""

import os
import posixpath
import re
import unicodedata
from dataclasses import dataclass, field

import front_matter
from note_text import Start, lines_of, start_of

ENDINGS = (".md", ".markdown", ".txt")
FOLDER_PAGES = ("readme", "index")
# A comment or an empty anchor that has lines of its own.
BEFORE_A_HEADING = re.compile(
    r"\s*(?:<!--(?!-?>).*?-->|<a\s+(?:id|name)\s*=\s*(?:\"[^\"]*\"|'[^']*'|[^\s\"'>]+)\s*(?:/>|>\s*</a>))"
    r"[ \t]*(?:\r\n|\n|\r|\Z)",
    re.DOTALL | re.IGNORECASE,
)


def stem(path):
    """
    >>> stem("a/b.c.md"), stem("a/C#"), stem("v1.0"), stem("A.TXT")
    ('a/b.c', 'a/C#', 'v1.0', 'A')
    """
    return re.sub(r"\.(?:md|markdown|txt)$", "", path, flags=re.IGNORECASE)


def start_below_comments(text):
    """The start of a text whose comments and empty anchors move below its heading.

    >>> start_below_comments('<!-- c -->\\n\\n<a id="x"></a>\\n\\n## T\\n')
    Start(title='T', level=2, line=4)
    >>> start_below_comments("<!-- c -->\\nplain").title
    ''
    """
    rest = text
    while found := BEFORE_A_HEADING.match(rest):
        rest = rest[found.end() :]
    below = start_of(rest)
    if not below.level:
        return start_of(text)
    return Start(below.title, below.level, below.line + len(lines_of(text)) - len(lines_of(rest)))


@dataclass
class NoteFile:
    """A file that becomes a note: its path from the root, its text below the front matter, what that says, how the text
    starts; the title that the note gets, and whether the text says it by itself."""

    path: str
    body: str = ""
    named: str = ""
    aliases: list = field(default_factory=list)
    start: Start = field(default_factory=Start)
    title: str = ""
    says_title: bool = False

    @property
    def folder(self):
        return posixpath.dirname(self.path)

    @property
    def is_plain_text(self):
        return self.path.lower().endswith(".txt")

    def name(self, root):
        """The name of the file; that of its folder, of the root at last, where it is the folder's page.

        >>> [NoteFile(path).name("root") for path in ("a/b.md", "a/README.md", "index.md")]
        ['b', 'a', 'root']
        """
        own = stem(posixpath.basename(self.path))
        name = posixpath.basename(self.folder) or root if own.lower() in FOLDER_PAGES else own
        return unicodedata.normalize("NFC", name)


def note_file(path, text, start):
    front = front_matter.read(text)
    return NoteFile(path, front.body, front.title, front.aliases, start(front.body))


def decoded(raw):
    """The text of a file, or None where it is in no encoding that is taken.

    >>> decoded(b"\\xef\\xbb\\xbfa"), decoded(b"\\xff\\xfea\\0"), decoded(b"\\xc3(")
    ('a', 'a', None)
    """
    try:
        return raw.decode("utf-16" if raw[:2] in (b"\xff\xfe", b"\xfe\xff") else "utf-8-sig")
    except UnicodeDecodeError:
        return None


class NotebookFiles:
    """Hidden files are passed over, and so are texts in a folder `X.assets` beside `X.md`. Symbolic links are followed;
    what was there before under another name is passed over, and found under that name, too. `start` is `start_of` where
    comments stay where they are."""

    def __init__(self, root, start=start_below_comments):
        self.root, self._start = os.path.realpath(root), start
        self.notes, self.others, self.folders, self.failed = [], set(), {""}, []
        self._first = {self.root: ""}
        self._walk("")

    def first_path(self, path):
        """The path by which the file or folder with this path is known, or None."""
        return self._first.get(os.path.realpath(os.path.join(self.root, path)))

    def _walk(self, folder):
        for name in sorted(os.listdir(os.path.join(self.root, folder)), key=os.fsencode):
            path = posixpath.join(folder, name)
            whole = os.path.join(self.root, path)
            real = os.path.realpath(whole)
            if name.startswith(".") or real in self._first:
                continue
            self._first[real] = path
            if os.path.isdir(whole):
                self.folders.add(path)
                self._walk(path)
            elif name.lower().endswith(ENDINGS) and not self._is_attachment(folder):
                self._take(path, whole)
            else:
                self.others.add(path)

    def _is_attachment(self, folder):
        owner = folder[: -len(".assets")]
        return folder.endswith(".assets") and os.path.isfile(os.path.join(self.root, owner + ".md"))

    def _take(self, path, whole):
        text = None
        if os.path.isfile(whole):
            with open(whole, "rb") as file:
                text = decoded(file.read())
        if text is None:
            self.failed.append(path)
        else:
            start = start_of if path.lower().endswith(".txt") else self._start
            self.notes.append(note_file(path, text, start))
