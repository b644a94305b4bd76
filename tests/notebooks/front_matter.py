"""Front matter: the block between two lines of dashes with which a text may begin. Of it only what titles and links
need is read: `title` and the other names of a note."""

import re
from dataclasses import dataclass, field

OPENING = re.compile(r"---[ \t]*(?:\r\n|\n|\r)")
CLOSING = re.compile(r"^(?:---|\.\.\.)[ \t]*(?:\r\n|\n|\r|\Z)", re.MULTILINE)
KEY = re.compile(r"([^\s:#\-][^:]*?|\"[^\"]*\"|'[^']*')[ \t]*:(?:[ \t]+(.*))?$")
BELOW_A_KEY = re.compile(r"[ \t]+\S|-(?:[ \t]|$)|#|$")
ALIASES = ("aliases", "alias")
READ_WHOLE = ("title", "tags", "tag", "keywords", "created", "modified", "updated", "pinned", "archived")


@dataclass
class FrontMatter:
    """What front matter says, and the text below it. `leaves_a_block` where keys are left that stay in the text."""

    title: str = ""
    aliases: list = field(default_factory=list)
    body: str = ""
    leaves_a_block: bool = False
    is_there: bool = False


def scalar(written):
    """The text of a value, or None where it is not one plain or quoted text.

    >>> scalar("Cello # really"), scalar("'It''s'"), scalar('"a\\\\u00e4"'), scalar("~"), scalar('"open'), scalar("|")
    ('Cello', "It's", 'aä', '', None, None)
    """
    written = written.strip()
    if written[:1] == '"':
        quoted = re.match(r'"((?:[^"\\]|\\.)*)"\s*(?:#.*)?$', written)
        if not quoted:
            return None
        short = {"n": "\n", "t": "\t", "r": "\r", "0": "\0"}

        def char(match):
            code = match.group(1)
            return chr(int(code[1:], 16)) if len(code) > 1 else short.get(code, code)

        return re.sub(r"\\(u[0-9a-fA-F]{4}|x[0-9a-fA-F]{2}|.)", char, quoted.group(1))
    if written[:1] == "'":
        quoted = re.match(r"'((?:[^']|'')*)'\s*(?:#.*)?$", written)
        return quoted and quoted.group(1).replace("''", "'")
    if written[:1] in tuple("|>&*!{[%@`") or re.match(r"[?:-](?:\s|$)", written):
        return None
    bare = re.sub(r"(?:^|\s)#.*$", "", written).strip()
    return "" if bare in ("~", "null", "Null", "NULL") else bare


def values(written, below):
    """The texts of a list, or of the one value that stands in place of it.

    >>> values("[a, 'b, c']", []), values("", ["  - a", "- b"]), values("a", [])
    (['a', 'b, c'], ['a', 'b'], ['a'])
    """
    if written.startswith("["):
        inner = written.strip()[1:].rsplit("]", 1)[0]
        parts = re.findall(r"\s*(\"(?:[^\"\\]|\\.)*\"|'(?:[^']|'')*'|[^,]+)\s*(?:,|$)", inner)
    elif written.strip():
        parts = [written]
    else:
        parts = [line.strip()[1:] for line in below if line.strip().startswith("-")]
    return [value for value in map(scalar, parts) if value]


def read(text):
    """
    >>> read("---\\ntitle: Cello\\naliases: [c, d]\\n---\\n\\nSlow.\\n").body
    'Slow.\\n'
    >>> found = read("---\\ntitle: Cello\\naliases:\\n  - c\\n---\\n"); found.title, found.aliases, found.leaves_a_block
    ('Cello', ['c'], True)
    >>> texts = ("---\\na: 1\\n\\nbody", "---\\nJust a line\\n---\\n", "---\\n---\\n", "\\n---\\na: 1\\n---\\n")
    >>> [read(text).is_there for text in texts]
    [False, False, False, False]
    """
    opening = OPENING.match(text)
    closing = opening and CLOSING.search(text, opening.end())
    if not closing:
        return FrontMatter(body=text)
    entries, key = [], None
    for line in re.split(r"\r\n|\n|\r", text[opening.end() : closing.start()]):
        found = KEY.match(line)
        if found:
            key = found.group(1).strip("\"'").lower()
            entries.append((key, found.group(2) or "", []))
        elif not BELOW_A_KEY.match(line) or (entries == [] and line.strip() and not line.startswith("#")):
            return FrontMatter(body=text)
        elif entries and line.strip() and not line.startswith("#"):
            entries[-1][2].append(line)
    if not entries:
        return FrontMatter(body=text)
    result = FrontMatter(body=re.sub(r"\A(?:[ \t]*(?:\r\n|\n|\r))+", "", text[closing.end() :]), is_there=True)
    for key, written, below in entries:
        if key == "title" and not result.title and not below:
            value = scalar(written) or ""
            result.title = "" if re.search(r"[\r\n]", value) else value.strip()
        elif key in ALIASES:
            result.aliases += values(written, below)
        result.leaves_a_block |= key not in READ_WHOLE
    return result
