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
    """A file that becomes a note: where it lies, from the root; the path by which it was found; its text below the
    front matter, what that says, how the text starts; the title that the note gets, and whether the text says it by
    itself."""

    path: str
    found: str = ""
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
        return (self.found or self.path).lower().endswith(".txt")

    def name(self, root):
        """The name of the file; that of its folder, of the root at last, where it is the folder's page.

        >>> [NoteFile(path).name("root") for path in ("a/b.md", "a/README.md", "index.md")]
        ['b', 'a', 'root']
        """
        found = self.found or self.path
        own = stem(posixpath.basename(found))
        name = posixpath.basename(posixpath.dirname(found)) or root if own.lower() in FOLDER_PAGES else own
        return unicodedata.normalize("NFC", name)


def note_file(path, found, text, start):
    front = front_matter.read(text)
    return NoteFile(path, found, front.body, front.title, front.aliases, start(front.body))


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
    a file is known by where it lies, and what was there before under another name is passed over. `start` is `start_of`
    where comments stay where they are."""

    def __init__(self, root, start=start_below_comments):
        self.root, self._start = os.path.realpath(root), start
        self.notes, self.others, self.failed, self.unread = [], set(), [], set()
        self._seen = {self.root}
        self._walk("")

    def place(self, path):
        """Where the file with this path from the root lies, from the root: in names it does not matter whether letters
        are composed. None where nothing is."""
        whole = self.root
        for part in path.split("/") if path else ():
            if not os.path.exists(os.path.join(whole, part)):
                composed = unicodedata.normalize("NFC", part)
                names = os.listdir(whole) if os.path.isdir(whole) else []
                part = next((name for name in names if unicodedata.normalize("NFC", name) == composed), part)
            whole = os.path.join(whole, part)
        return self._from_root(whole) if os.path.exists(whole) else None

    def is_regular(self, place):
        return os.path.isfile(os.path.join(self.root, place))

    def _from_root(self, whole):
        place = os.path.relpath(os.path.realpath(whole), self.root)
        return "" if place == "." else place

    def _walk(self, folder, is_attachments=False):
        for name in sorted(os.listdir(os.path.join(self.root, folder)), key=os.fsencode):
            path = posixpath.join(folder, name)
            whole = os.path.join(self.root, path)
            if name.startswith("."):
                continue
            is_note = name.lower().endswith(ENDINGS)
            if not os.path.isdir(whole) and not is_note:
                self._add_other(whole)
            elif not os.path.exists(whole):
                self.failed.append(path)
            elif os.path.realpath(whole) not in self._seen:
                self._seen.add(os.path.realpath(whole))
                if os.path.isdir(whole):
                    self._walk(path, is_attachments or self._is_of_attachments(path))
                elif is_attachments:
                    self._add_other(whole)
                else:
                    self._take(path, whole)

    def _add_other(self, whole):
        place = self._from_root(whole)
        if not place.startswith("../") and os.path.isfile(whole):
            self.others.add(place)

    def _is_of_attachments(self, folder):
        owner = os.path.join(self.root, folder[: -len(".assets")])
        return folder.endswith(".assets") and any(os.path.exists(owner + ending) for ending in ENDINGS)

    def _take(self, path, whole):
        text = None
        if os.path.isfile(whole):
            with open(whole, "rb") as file:
                text = decoded(file.read())
        if text is None:
            self.failed.append(path)
            self.unread.add(self._from_root(whole))
        else:
            start = start_of if path.lower().endswith(".txt") else self._start
            self.notes.append(note_file(self._from_root(whole), path, text, start))
