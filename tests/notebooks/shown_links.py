"""What a reader sees of a link, as it is written and as an import writes it: in the line that gives a text its title
the two must be the same."""

import posixpath

from note_text import fold
from notebook_files import stem


def with_anchor(name, anchor):
    """
    >>> with_anchor("a", "b#c"), with_anchor("a", "")
    ('a > b > c', 'a')
    """
    return " > ".join([name, *(part for part in anchor.split("#") if part)])


def shown_before(link):
    """
    >>> from note_links import links_of
    >>> [shown_before(link) for link in links_of("[[a/b]] ![[c|d]] [e](f)")]
    ['a/b', '!d', 'e']
    """
    if not link.is_wiki:
        return link.text
    return ("!" if link.is_embedded else "") + (link.text or link.target)


def text_beside(link, title, found):
    """What stands beside the title in a link by title, "" for nothing: the text of the link, else its name where that
    is another word than the title."""
    if link.text is not None:
        return "" if link.text.strip() in ("", title) else link.text
    if link.is_in_table or not link.is_wiki:
        return ""
    name = posixpath.basename(found.name)
    repeats = fold(title) in (fold(name), fold(stem(name)))
    shown = with_anchor(found.name, found.anchor) if found.anchor else "" if repeats else name
    return "" if set(shown) & set("[]|\\") else shown


def shown_by_title(link, title, found):
    """A link that says the title already stays as it is."""
    if link.is_wiki and fold(link.whole or link.target) == fold(title):
        return shown_before(link)
    return ("!" if link.is_embedded else "") + (text_beside(link, title, found) or title)


def shown_by_identifier(link, found):
    if not link.is_wiki or link.text is not None:
        return link.text
    return with_anchor(found.name, found.anchor)


def shown_of_file(link, found):
    """A name in two brackets that is a file becomes a picture or a link to it."""
    if link.text is not None:
        return link.text
    return "" if link.is_embedded else posixpath.basename(found.name)
