"""The links of a text, in the order in which they stand."""

import re
from dataclasses import dataclass
from typing import Optional

from note_text import WITH_TABLES, WITHOUT_TABLES, lines_of, plain, unescaped

SCHEME = re.compile(r"[A-Za-z][A-Za-z0-9+.-]*:|//")


@dataclass
class Link:
    """A link as it is written. `target` is a path, or what stands in two brackets in front of a bar, `whole` the
    same where no table parts it; `text` is what a reader sees, None where a link in two brackets has no other text.
    `is_plain` says whether the text holds no marks, `is_on_one_line` whether it has one line, `is_in_brackets` whether
    the brackets around it would make a link of it if it were none. `line` counts from the first line of the text."""

    is_wiki: bool
    target: str
    text: Optional[str] = None
    is_embedded: bool = False
    is_in_table: bool = False
    is_in_link: bool = False
    is_plain: bool = True
    is_on_one_line: bool = True
    is_in_brackets: bool = False
    line: int = 0
    whole: str = ""


def table_lines(text):
    """
    >>> sorted(table_lines("a\\n\\n| b | c |\\n|---|---|\\n| d | e |\\n\\nf"))
    [2, 3, 4]
    """
    if "|" not in text:
        return set()
    return {n for t in WITH_TABLES.parse(text) if t.type == "table_open" for n in range(*t.map)}


def links_of(text):
    """
    >>> text = "[[A|b]] `[[no]]` [c](d.md) [e][r] <http://x.org> ![f](g.png)\\n\\n[r]: h.md"
    >>> [(l.target, l.text) for l in links_of(text)]
    [('A', 'b'), ('d.md', 'c'), ('h.md', 'e'), ('g.png', 'f')]
    >>> [(l.target, l.text, l.is_in_table) for l in links_of("|a|\\n|-|\\n|[[B\\\\|c]]|\\n\\n[[B\\\\|c]]")]
    [('B', 'c', True), ('B|c', None, False)]
    """
    if "[" not in text:
        return []
    in_table = table_lines(text)
    found = []
    for token in WITHOUT_TABLES.parse("\n".join(lines_of(text))):
        if token.type == "inline" and "[" in token.content:
            _collect(token.children, token.map[0], in_table, found)
    return found


def holds(tokens, pattern):
    """Whether the words of some tokens, and nothing in their marks, match."""
    return re.search(pattern, "".join(t.content for t in tokens if t.type == "text")) is not None


def _collect(tokens, line, in_table, found):
    is_in_link = False
    for at, token in enumerate(tokens):
        if token.type in ("softbreak", "hardbreak"):
            line += 1
        elif token.type == "wiki_link":
            found.append(_wiki(token, line, line in in_table, is_in_link))
        elif token.type == "image":
            if not SCHEME.match(token.attrs["src"]):
                found.append(Link(False, token.attrs["src"], " ".join(plain(token.children or [])), True,
                    line in in_table, is_in_link, line=line))
        elif token.type == "link_open":
            is_in_link = True
            end = next(n for n in range(at, len(tokens)) if tokens[n].type == "link_close")
            inner = tokens[at + 1 : end]
            if token.info != "auto" and not SCHEME.match(token.attrs["href"]):
                is_plain = all(t.type in ("text", "softbreak", "hardbreak") for t in inner)
                text = " ".join(plain(inner))
                is_in_brackets = holds(tokens[:at], r"\[[^\]]*$") and holds(tokens[end:], r"^[^\[]*\][(\[]")
                holds_picture = any(t.type in ("image", "wiki_link") for t in inner)
                found.append(Link(False, token.attrs["href"], "[" + text if holds_picture else text, False,
                    line in in_table, False, is_plain, not any(t.type.endswith("break") for t in inner),
                    is_in_brackets, line))
        elif token.type == "link_close":
            is_in_link = False


def _wiki(token, line, is_in_table, is_in_link):
    link = token.meta["link"]
    target, alias = link.target, link.alias
    if is_in_table and alias is None and "\\|" in target:
        before, behind = (part.strip() for part in target.split("\\|", 1))
        target, alias = (before, behind) if before else (target, alias)
    return Link(True, unescaped(target), None if alias is None else unescaped(alias), token.meta["embedded"],
        is_in_table, is_in_link, line=line, whole=unescaped(link.target))
