"""What an import of a folder into an empty store gives: a title for each note, and for each link where it leads and
how it is written then."""

import os
import re
import unicodedata
from collections import Counter, defaultdict
from dataclasses import dataclass
from posixpath import splitext

from link_targets import Targets
from note_links import links_of
from note_text import fold, holds_hashtag, start_of
from notebook_files import NotebookFiles, start_below_comments
from shown_links import shown_before, shown_by_identifier, shown_by_title, shown_of_file

MANY = 3
KINDS = (
    "wiki", "byIdentifier", "waiting", "ambiguous", "anchors", "outside", "files", "nowhere", "left", "within",
    "as it is",
)


@dataclass
class Lead:
    """What becomes of one link: `kind` is one of KINDS, `target` the note that it leads to, or None."""

    kind: str
    note: object
    link: object
    target: object = None


def shortest_end(path, others):
    """The shortest end of a path that no other path has.

    >>> shortest_end("a/b/c.md", ["d/b/c.md"]), shortest_end("c.md", ["b/c.md"]), shortest_end("a.md", ["b.md"])
    ('a/b/c', 'c', 'a')
    """
    path = unicodedata.normalize("NFC", path)
    parts, ends = splitext(path)[0].split("/"), [fold(splitext(other)[0]).split("/") for other in others]
    folded = fold(splitext(path)[0]).split("/")
    for length in range(1, len(parts)):
        if all(end[-length:] != folded[-length:] for end in ends):
            return "/".join(parts[-length:])
    return "/".join(parts)


class Titles:
    """Gives each note its title, by one of the rules "auto", "text", "file" and "unique"."""

    def __init__(self, notes, rule, root):
        self.rule, self.root = rule, root
        self.starts = Counter((note.folder, fold(note.start.title)) for note in notes if note.start.level)
        for note in notes:
            note.title = self._title_of(note)
            note.says_title = note.title == note.start.title
        if rule == "unique":
            self._tell_apart(notes)

    def _title_of(self, note):
        start = note.start
        if self.rule == "text" or note.is_plain_text:
            return note.named if note.named and not start.level else start.title
        name = re.sub(r"[\r\n]+", " ", note.name(self.root)).strip()
        if self.rule == "file":
            return name
        is_heading = start.title and start.level and self.starts[note.folder, fold(start.title)] < MANY
        if is_heading and start.level == 1:
            return start.title
        if note.named:
            return note.named
        return start.title if is_heading or fold(start.title) == fold(name) else name

    @staticmethod
    def _tell_apart(notes):
        same = defaultdict(list)
        for note in notes:
            same[fold(note.title)].append(note)
        for group in same.values():
            for note in group if len(group) > 1 else ():
                if not note.is_plain_text or (note.named and not note.start.level):
                    end = shortest_end(note.path, [other.path for other in group if other is not note])
                    note.title = f"{note.title} ({end})"


class NotebookPlan:
    """`notes` with their titles, `leads` with all links but those to the web, `count` by kind."""

    def __init__(self, folder, titles="auto", links="wiki"):
        self.files = NotebookFiles(folder, start_of if titles == "text" else start_below_comments)
        self.notes = self.files.notes
        Titles(self.notes, titles, os.path.basename(self.files.root))
        self.shared = Counter(fold(note.title) for note in self.notes)
        self.targets = Targets(self.notes, self.files)
        self.count = Counter({kind: 0 for kind in KINDS})
        lead = self._lead if links == "wiki" else self._lead_as_written
        self.leads = [lead(note, link) for note in self.notes for link in links_of(note.body) if link.target]
        self.count.update(lead.kind for lead in self.leads)

    @property
    def titles(self):
        return {fold(note.title) for note in self.notes}

    def orphans(self):
        """Notes from and to which no link leads."""
        linked = {path for lead in self.leads if lead.target for path in (lead.note.path, lead.target.path)}
        return [note for note in self.notes if note.path not in linked]

    def unlinked(self):
        """Notes without a record of a link in two brackets: none by title leads from or to them, and none waits."""
        linked = set()
        for lead in self.leads:
            if lead.kind in ("wiki", "waiting"):
                linked |= {lead.note.path} | ({lead.target.path} if lead.target else set())
        return [note for note in self.notes if note.path not in linked]

    def _lead(self, note, link):
        if link.target.startswith("?") and not link.is_wiki:
            return Lead("as it is", note, link)
        found = (self.targets.of_name if link.is_wiki else self.targets.of_path)(note.path, link.target)
        if link.target.startswith("#") and (not link.is_wiki or not found.note and not link.is_embedded):
            is_same = not link.is_wiki or self._reads_the_same(note, link, link.text)
            return Lead("within" if is_same else "left", note, link)
        if found.note:
            return self._lead_to_note(note, link, found)
        is_file = link.is_wiki and found.reason == "files"
        if is_file and not self._reads_the_same(note, link, shown_of_file(link, found)):
            return Lead("left", note, link)
        return Lead("waiting" if link.is_wiki and found.reason == "nowhere" else found.reason, note, link)

    def _lead_to_note(self, note, link, found):
        title = found.note.title
        if self._goes_by_title(link, found.note):
            kind, shown = "wiki", shown_by_title(link, title, found)
        else:
            kind, shown = "byIdentifier", shown_by_identifier(link, found)
            if link.is_in_link or link.is_embedded:
                return Lead("left", note, link)
        if kind == "wiki" and link.is_in_brackets:
            return Lead("left", note, link)
        makes_marks_text = kind == "wiki" and not link.is_wiki
        loses_tag = makes_marks_text and holds_hashtag(link.text)
        if loses_tag or not self._reads_the_same(note, link, shown, makes_marks_text):
            return Lead("left", note, link)
        self.count["ambiguous"] += found.is_ambiguous
        self.count["anchors"] += bool(found.anchor)
        return Lead(kind, note, link, found.note)

    def _goes_by_title(self, link, target):
        if not target.title or self.shared[fold(target.title)] > 1:
            return False
        if link.is_in_table and link.text and link.text != target.title:
            return False
        return link.is_wiki or not re.search(r"[\[\]]", link.text)

    @staticmethod
    def _reads_the_same(note, link, shown, makes_marks_text=False):
        """Where the title stands, links that read otherwise stay: by another text, or since what stands behind a bar is
        shown as it is written, on one line."""
        if not note.says_title or link.line != note.start.line:
            return True
        if makes_marks_text and not (link.is_plain and link.is_on_one_line):
            return False
        return shown == shown_before(link)

    def _lead_as_written(self, note, link):
        """Without new links: those in two brackets lead by title, and no other does."""
        if not link.is_wiki:
            if link.target.startswith(("#", "?")):
                return Lead("within", note, link)
            found = self.targets.of_path(note.path, link.target)
            return Lead("as it is" if found.note else found.reason, note, link)
        same = self.targets.by_title.get(fold(link.whole))
        return Lead("wiki" if same else "waiting", note, link, same[0] if same else None)
