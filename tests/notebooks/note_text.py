"""What a text says: its title line, and whether a heading is it. The Markdown itself is read by markdown-it; what that
does not know, links in two brackets and hashtags, is read here."""

import re
import unicodedata
from dataclasses import dataclass
from types import SimpleNamespace

from markdown_it import MarkdownIt, helpers

ESCAPABLE = set("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~")
INLINE_TAIL = re.compile(
    r"\(\s*(?:<[^<>\n]*>|[^\s<()]*(?:\([^\s()]*\)[^\s()]*)*)(?:\s+(?:\"[^\"]*\"|'[^']*'|\([^()]*\)))?\s*\)"
)
CLOSED_HASHTAG = re.compile(r"[^#\\`\[\]<>|\r\n]*(?<![\s!-])#(?=\s|$|[*_~=|<>`\[\\/:;,\u060c\u3001\u2026!.?)\]}\"'-])")
TAG_END = set(":;,\u060c\u3001\u2026!.?)]}\"'")
HIGHLIGHT = re.compile(r"==(?=\S)(.+?)(?<=\S)==", re.DOTALL)
NO_MARK = "\ue000"
LIST_ITEM = re.compile(r"\s*(?:>\s*)*(?:[-*+]|\d+[.)])\s")
FIRST_MARK_THAT_STAYS = 0x510


def fold(text):
    """The key by which titles are compared: without case, marks of European letters and invisible characters."""

    def case_folded(part):
        return "".join(c if c == "\u0345" else c.casefold() for c in part)

    kept, base = [], 0
    for char in case_folded(unicodedata.normalize("NFD", text)):
        category = unicodedata.category(char)
        if category.startswith("M"):
            if char == "\u0345" or base < FIRST_MARK_THAT_STAYS:
                continue
        elif category == "Cf" and char != "\u200d":
            continue
        else:
            base = ord(char)
        kept.append(char)
    return unicodedata.normalize("NFC", case_folded("".join(kept)))


@dataclass
class WikiLink:
    """A link in two brackets as it is written, and where it ends; `alias` is None without a bar."""

    target: str
    alias: str
    end: int


def scan_wiki_link(source, at):
    """The link in two brackets that begins at an offset, or None.

    >>> scan_wiki_link("[[ B |b]] c", 0)
    WikiLink(target='B', alias='b', end=9)
    >>> scan_wiki_link("[[1]](u)", 0), scan_wiki_link("[[ ]]", 0), scan_wiki_link("[[a [b] c]]", 0)
    (None, None, None)
    """
    if not source.startswith("[[", at):
        return None
    bar, i = None, at + 2
    while i < len(source) and source[i] != "]":
        if source[i] in "[\r\n":
            return None
        if source[i] == "|" and bar is None:
            bar = i
        elif source[i] == "\\" and source[i + 1 : i + 2] in ESCAPABLE:
            i += 1
        i += 1
    if source[i : i + 2] != "]]":
        return None
    target = source[at + 2 : i if bar is None else bar].strip()
    if not target or INLINE_TAIL.match(source, i + 2):
        return None
    return WikiLink(target, None if bar is None else source[bar + 1 : i].strip(), i + 2)


def unescaped(text):
    """
    >>> unescaped(r"D\\|E \\[x\\]")
    'D|E [x]'
    """
    return re.sub(r"\\([!-/:-@\[-`{-~])", r"\1", text).strip()


def _wiki_rule(state, silent):
    embedded = state.src.startswith("![[", state.pos)
    found = scan_wiki_link(state.src, state.pos + (1 if embedded else 0))
    if not found:
        return False
    if not silent:
        token = state.push("wiki_link", "", 0)
        token.content = state.src[state.pos : found.end]
        token.meta = {"link": found, "embedded": embedded}
    state.pos = found.end
    return True


def _end_of_label(state, start, disable_nested=False):
    """Where the label of a link that opens at an offset closes, or -1. Another link in it hinders, one in two brackets
    does not."""
    before, depth, end = state.pos, 1, -1
    state.pos = start + 1
    while state.pos < state.posMax:
        at, char = state.pos, state.src[state.pos]
        if char == "]":
            depth -= 1
            if depth == 0:
                end = at
                break
        is_wiki_link = char == "[" and scan_wiki_link(state.src, at) is not None
        state.md.inline.skipToken(state)
        if char == "[" and state.pos == at + 1:
            depth += 1
        elif char == "[" and disable_nested and not is_wiki_link:
            break
    state.pos = before
    return end


def _reader(tables):
    reader = MarkdownIt("commonmark").enable("strikethrough")
    if tables:
        reader.enable("table")
    reader.inline.ruler.before("link", "wiki_link", _wiki_rule)
    reader.helpers = SimpleNamespace(
        parseLinkLabel=_end_of_label,
        parseLinkDestination=helpers.parseLinkDestination,
        parseLinkTitle=helpers.parseLinkTitle,
    )
    reader.validateLink = lambda url: True
    reader.normalizeLink = lambda url: url
    return reader


WITHOUT_TABLES = _reader(False)
WITH_TABLES = _reader(True)


def hashtag_end(line, at):
    """Where the hashtag that begins at an offset of a line ends, or None.

    >>> hashtag_end("#a b# c", 0), hashtag_end("#a b", 0), hashtag_end("# a", 0), hashtag_end("#12", 0)
    (5, 2, None, None)
    """
    body = line[at + 1 :]
    if not line.startswith("#", at) or not body or body[0].isspace() or body[0] in "#/\\`<>|" or body[0] in TAG_END:
        return None
    if re.match(r"[0-9a-fA-F]{6}(\s|$)", body):
        return None
    closed = CLOSED_HASHTAG.match(body)
    if closed:
        return at + 1 + closed.end()
    run = re.match(r"[^\s`<>\[\\|]*", body).group()
    for i, char in enumerate(run):
        if char in TAG_END:
            run = run[:i]
            break
    if "#" in run:
        return None
    run = run.rstrip("*_~=-/")
    return at + 1 + len(run) if run and not re.fullmatch(r"[0-9-]*", run) else None


def holds_only_hashtags(line):
    """
    >>> holds_only_hashtags(" #a #b/c"), holds_only_hashtags("#a b"), holds_only_hashtags("    #code")
    (True, False, False)
    """
    at = len(line) - len(line.lstrip(" "))
    if at > 3 or line[at : at + 1] != "#":
        return False
    while at is not None and at < len(line):
        at = hashtag_end(line, at)
        while at is not None and line[at : at + 1].isspace():
            at += 1
    return at is not None


def holds_hashtag(text):
    """
    >>> holds_hashtag("see #a"), holds_hashtag("a#b"), holds_hashtag("# a #1")
    (True, False, False)
    """
    starts = (m.end() - 1 for m in re.finditer(r"(?:^|[\s([{\"'*_])#", text))
    return any(hashtag_end(text, at) is not None for at in starts)


def plain(tokens):
    """The lines of an inline content as a reader sees them. Marks of highlights may stand on different lines."""
    parts = []
    for token in tokens:
        if token.type == "text":
            parts.append(token.content)
        elif token.type in ("softbreak", "hardbreak"):
            parts.append("\n")
        elif token.type == "wiki_link":
            link = token.meta["link"]
            parts.append(("!" if token.meta["embedded"] else "") + unescaped(link.alias or link.target))
        elif token.type == "code_inline":
            parts.append(token.content.replace("=", NO_MARK))
        elif token.type == "image":
            parts.append(" ".join(plain(token.children or [])))
    seen = HIGHLIGHT.sub(r"\1", "".join(parts)).replace(NO_MARK, "=")
    return [line.strip() for line in seen.split("\n")]


def lines_of(text):
    """
    >>> lines_of("a\\r\\nb\\rc")
    ['a', 'b', 'c']
    """
    return re.split(r"\r\n|\n|\r", text)


@dataclass
class Start:
    """How a text starts: its title as the application derives it; the level of the heading that gives it, 0 where it is
    none; and which line it is."""

    title: str = ""
    level: int = 0
    line: int = 0


def start_of(text):
    """The first line that says something, hashtags alone do not.

    >>> start_of("# **Bold** [link](u) `code` &amp; \\\\*x\\\\*\\nbody")
    Start(title='Bold link code & *x*', level=1, line=0)
    >>> start_of("#work #home\\nBuy milk\\nmore").title, start_of("See [[B]] and [[C|sea]]").title
    ('Buy milk', 'See B and sea')
    >>> start_of("\\nTitle\\n=====\\n"), start_of("> ## T\\n").level
    (Start(title='Title', level=1, line=1), 0)
    >>> [start_of(t).title for t in ("---\\nx", "![](a.png)\\nb", "- [ ] Milk", "a==b\\nc==d", "<!-- c -->\\nd", "")]
    ['', '', 'Milk', 'ab', '', '']
    """
    lines = lines_of(text)
    line = next((n for n, l in enumerate(lines) if l.strip() and not holds_only_hashtags(l)), None)
    if line is None:
        return Start()
    end = next((n for n in range(line, len(lines)) if not lines[n].strip()), len(lines))
    tokens = WITHOUT_TABLES.parse("\n".join(lines if "[" in lines[line] else lines[:end]))
    for opening, token in zip([None] + tokens, tokens):
        if token.type == "inline" and token.map[0] <= line < token.map[1]:
            seen = plain(token.children)
            title = seen[line - token.map[0]] if line - token.map[0] < len(seen) else ""
            if opening.type == "paragraph_open" and line == token.map[0] and LIST_ITEM.match(lines[line]):
                title = re.sub(r"^\[[ xX]\]\s+", "", title)
            level = int(opening.tag[1]) if opening.type == "heading_open" and opening.level == 0 else 0
            return Start(title, level if title else 0, line)
    return Start(line=line)
