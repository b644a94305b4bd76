"""What importing a folder again and again comes to: a slow and simple reading of the rules, file by file.

It knows notebooks of one kind: each text begins with a heading of level 1, which no three files share, and its links
are `[word](path)`, `[[name]]` and `[[name|word]]`."""

import hashlib
import os
import posixpath
import re
from dataclasses import dataclass, field
from typing import Any

from link_targets import Targets
from note_text import fold
from notebook_files import NotebookFiles
from tarn_store import WIKI_TITLE, Titles

LINK = re.compile(r"\[(?P<word>\w+)\]\((?P<path>[^)\s:]+)\)|\[\[(?P<name>[^\]|]+)(?:\|(?P<alias>\w+))?\]\]")
ANY_LINK = re.compile(r"\[[^\[\]]+\]\([^)\s]+\)|\[\[[^\]]+\]\]")
COUNTED = ("imported", "updated", "unchanged", "conflicted", "moved", "gone")


def new_note(path):
    """Stands for the identifier of a note that is going to be made of a file."""
    return f"note of {path}"


@dataclass
class Fingerprint:
    """A text as an import left it: with which note each link by title leads to, or None."""

    text: str
    leads: list

    @staticmethod
    def of(text, only):
        return Fingerprint(text, [only(title) for title in WIKI_TITLE.findall(text)])

    def matches(self, text, leads_to):
        """Whether a text differs in titles of linked notes at most. `leads_to` takes a title and an identifier."""
        if text == self.text:
            return True
        if text is None or WIKI_TITLE.sub("", text) != WIKI_TITLE.sub("", self.text):
            return False
        titles = zip(WIKI_TITLE.findall(self.text), WIKI_TITLE.findall(text), self.leads)
        return all(
            now == title if note is None else leads_to(now, note) or now == title for title, now, note in titles)


@dataclass
class Source:
    """A file that was imported: the bytes it had, its note, and the copy that a later state of it became."""

    note: str
    digest: str
    imported: Fingerprint
    waits: bool
    copy: str = ""
    copied: Any = None


@dataclass
class Outcome:
    """What becomes of a file. `fingerprint` is that of the text that is written, if any is."""

    path: str
    kind: str
    note: str = ""
    fingerprint: Any = None
    date: int = 0


@dataclass
class Planned:
    """A file of one import, as links see it, and what is known of it."""

    path: str
    title: str
    aliases: list
    body: str
    digest: str
    source: Any = None
    moved_from: str = ""
    note: str = ""


@dataclass
class Prediction:
    counts: dict = field(default_factory=lambda: dict.fromkeys(COUNTED, 0))
    skipped: int = 0
    outcomes: list = field(default_factory=list)


class ImportModel:
    """The record of one folder that is imported again and again into one store."""

    def __init__(self, root):
        self.root = os.path.realpath(root)
        self.sources = {}

    def predict(self, stored):
        """What the next import gives, `stored` being the notes before it. The record is what it is then."""
        files = NotebookFiles(self.root)
        self.stored = stored
        self.prediction = Prediction()
        planned = [self._look(note) for note in files.notes]
        self._recognise(planned)
        self._find_titles(planned)
        self.targets = Targets(planned, files)
        gone = [path for path in self.sources if not self._is_there(path) and path not in self._moved]
        self.prediction.counts["gone"] = len(gone)
        self._let_links_follow(planned)
        for file in planned:
            self._take(file)
        return self.prediction

    def name(self, notes):
        """Puts the identifiers of new notes in the place of what stood for them."""
        for source in self.sources.values():
            for made in filter(None, (source.imported, source.copied)):
                made.leads = [notes.get(note, note) for note in made.leads]
                for placeholder, note in notes.items():
                    made.text = made.text.replace(f"id={placeholder})", f"id={note})")
            source.note = notes.get(source.note, source.note)
            source.copy = notes.get(source.copy, source.copy)

    def _is_there(self, path):
        return os.path.lexists(os.path.join(self.root, path))

    def _look(self, note):
        with open(os.path.join(self.root, note.path), "rb") as file:
            digest = hashlib.sha256(file.read()).hexdigest()
        return Planned(note.path, note.start.title, note.aliases, note.body, digest)

    def _recognise(self, planned):
        self._moved = {}
        for file in planned:
            file.source = self.sources.get(file.path)
        for file in (file for file in planned if not file.source):
            candidates = [
                path for path, source in self.sources.items()
                if source.digest == file.digest and not self._is_there(path)
            ]
            if len(candidates) == 1 and candidates[0] not in self._moved:
                file.moved_from = candidates[0]
                file.source = self.sources[file.moved_from]
                self._moved[file.moved_from] = file.path
        for file in planned:
            file.note = file.source.note if file.source else new_note(file.path)

    def _find_titles(self, planned):
        """Of notes that stay as they are the title that they have; that of the file goes to the copy which an edited
        one gets. Nobody links what is in the trash."""
        mine = {file.note for file in planned}
        titles = []
        others = [(note.identifier, note.title) for note in self.stored.values() if not note.is_trashed]
        self.stored_titles = Titles(others)
        for file in planned:
            note = self.stored.get(file.note)
            is_trashed = note and note.is_trashed
            is_unchanged = note and file.source.digest == file.digest
            is_edited = note and not file.source.imported.matches(note.text, self._is_called)
            if is_edited and not is_unchanged and not is_trashed:
                titles.append((f"copy of {file.note}", file.title))
            if is_unchanged or is_edited:
                file.title = note.title
            if not is_trashed:
                titles.append((file.note, file.title))
        self.titles = Titles(titles + [(note, title) for note, title in others if note not in mine])

    def _is_called(self, title, note):
        return self.stored_titles.only(title) == note

    def _leads_to(self, title, note):
        return note in (self.titles.only(title), self.stored_titles.only(title))

    def _is_ours(self, file):
        note = self.stored.get(file.note)
        return bool(note) and not note.is_trashed and file.source.imported.matches(note.text, self._leads_to)

    def _let_links_follow(self, planned):
        """Notes that get another title take the links along that lead to them, before any text is written."""
        self.ours = {file.note for file in planned if file.source and self._is_ours(file)}
        retitled = {file.note: file.title for file in planned if file.note in self.ours}

        def followed(match):
            return retitled.get(self.stored_titles.only(match[0]), match[0])

        self.texts = {note: WIKI_TITLE.sub(followed, stored.text) for note, stored in self.stored.items()}

    def _take(self, file):
        source, counts = file.source, self.prediction.counts
        is_unchanged = source is not None and source.digest == file.digest
        if is_unchanged and not file.moved_from and not source.waits:
            counts["unchanged"] += 1
            return
        text, waits = self._composed(file)
        made = Source(file.note, file.digest, Fingerprint.of(text, self.titles.only), waits)
        if not source:
            return self._write(file, "imported", made, made.note, made.imported)
        note = self.stored.get(file.note)
        if not note or note.is_trashed:
            return self._keep(file, source) if is_unchanged else self._skip()
        is_ours = file.note in self.ours
        if is_unchanged and not is_ours:
            return self._keep(file, source)
        if text == self.texts[file.note]:
            return self._keep(file, source if is_unchanged else made)
        if is_unchanged and self._loses_links(file):
            return self._keep(file, source)
        if is_ours:
            return self._write(file, "updated", made, made.note, made.imported, is_mended=is_unchanged)
        made.copied, made.imported = made.imported, source.imported
        copy = self.stored.get(source.copy)
        is_free = copy and not copy.is_trashed and source.copied.matches(copy.text, self._leads_to)
        made.copy = source.copy if is_free else f"copy of {new_note(file.path)}"
        self._write(file, "conflicted", made, made.copy, made.copied)

    def _loses_links(self, file):
        """Whether links of the file lead nowhere that lead somewhere in the note: the file has moved away from the notes."""
        old = [match[0] for match in ANY_LINK.finditer(self.texts[file.note])]
        links = list(LINK.finditer(file.body))
        if len(old) != len(links):
            return True
        return any(self._is_dead(file, match) and match[0] != was for match, was in zip(links, old))

    def _is_dead(self, file, match):
        path, name = match["path"], match["name"]
        found = self.targets.of_path(file.path, path) if path else self.targets.of_name(file.path, name)
        return not found.note and not (name and self.titles.of(name))

    def _skip(self):
        self.prediction.skipped += 1

    def _keep(self, file, source):
        self.prediction.counts["unchanged"] += 1
        self.prediction.counts["moved"] += bool(file.moved_from)
        self._remember(file, source)

    def _write(self, file, kind, made, note, fingerprint, is_mended=False):
        self.prediction.counts[kind] += 1
        date = 0 if is_mended else os.stat(os.path.join(self.root, file.path)).st_mtime_ns // 1000
        self.prediction.outcomes.append(Outcome(file.path, kind, note, fingerprint, date))
        self._remember(file, made)

    def _remember(self, file, source):
        self.sources.pop(file.moved_from, None)
        self.sources[file.path] = source

    def _composed(self, file):
        """The text with links to notes, and whether any waits for its note."""
        waits = False

        def rewritten(match):
            nonlocal waits
            written, waits_here = self._rewritten(file, match)
            waits |= waits_here
            return written

        return LINK.sub(rewritten, file.body), waits

    def _rewritten(self, file, match):
        path, name = match["path"], match["name"]
        found = self.targets.of_path(file.path, path) if path else self.targets.of_name(file.path, name)
        if not found.note:
            return match[0], found.reason == "nowhere" and not (name and self.titles.of(name))
        is_known = self.titles.only(found.note.title) == found.note.note
        if is_known and name and fold(name) == fold(found.note.title):
            return match[0], False
        word = match["word"] or match["alias"]
        if is_known:
            shown = word or posixpath.basename(name)
            repeats = fold(shown) == fold(found.note.title) if not word else word == found.note.title
            return f"[[{found.note.title}]]" if repeats else f"[[{found.note.title}|{shown}]]", False
        return f"[{word or name}](tarn://x-callback-url/open-note?id={found.note.note})", False
