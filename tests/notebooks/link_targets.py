"""What a link leads to: the files of a folder by path, end of a path, file name, title and other name."""

import posixpath
from collections import defaultdict
from dataclasses import dataclass
from typing import Any
from urllib.parse import unquote

from note_text import fold
from notebook_files import FOLDER_PAGES, stem


@dataclass
class Found:
    """Where a link leads: `note` when to a note; else `reason` is "outside", "files" or "nowhere". `name` is what of a
    link in two brackets names the note."""

    note: Any = None
    reason: str = ""
    anchor: str = ""
    is_ambiguous: bool = False
    name: str = ""


def joined(folder, path):
    """A path from a folder below the root, or None when it leaves the root.

    >>> joined("a", "../b"), joined("a", "../../b"), joined("a", "/b"), joined("", ".."), joined("a", "..")
    ('b', None, 'b', None, '')
    """
    whole = posixpath.normpath(path.lstrip("/") if path.startswith("/") else posixpath.join(folder, path))
    return None if whole == ".." or whole.startswith("../") else "" if whole == "." else whole


def ends_of(path):
    """
    >>> ends_of("A/b.md")
    ['a/b.md', 'b.md']
    """
    parts = fold(path).split("/")
    return ["/".join(parts[begin:]) for begin in range(len(parts))]


class Targets:
    """Where links lead among `notes`, which have a path from the root, a title and aliases, and among the other files
    of the folder, `files`."""

    def __init__(self, notes, files):
        self.by_path = {note.path: note for note in notes}
        self.files = files
        self.page_of_folder = {}
        self.by_folded_path = defaultdict(list)
        self.by_end, self.by_title, self.by_alias = defaultdict(list), defaultdict(list), defaultdict(list)
        self.others_by_end = {end for path in files.others for end in ends_of(path) + ends_of(stem(path))}
        for note in notes:
            self._add(note)

    def _add(self, note):
        for end in {*ends_of(note.path), *ends_of(stem(note.path))}:
            self.by_end[end].append(note)
        for path in {note.path, stem(note.path)}:
            self.by_folded_path[fold(path)].append(note)
        self.by_title[fold(note.title)].append(note)
        for alias in note.aliases:
            self.by_alias[fold(alias)].append(note)
        page = stem(posixpath.basename(note.path)).lower()
        rank = FOLDER_PAGES.index(page) if page in FOLDER_PAGES else len(FOLDER_PAGES)
        folder = posixpath.dirname(note.path)
        if rank < self.page_of_folder.get(folder, (len(FOLDER_PAGES), None))[0]:
            self.page_of_folder[folder] = (rank, note)

    def of_path(self, source, written):
        """Where a path in the text of the file `source` leads."""
        path, _, anchor = written.partition("#")
        path = unquote(path.partition("?")[0])
        whole = joined(posixpath.dirname(source), path)
        if whole is None:
            return Found(reason="outside")
        for name in self._names_for(whole, path.endswith("/")):
            place = self.files.place(name)
            if place is None:
                continue
            if place.startswith("../"):
                return Found(reason="outside")
            if place in self.by_path:
                return Found(self.by_path[place], anchor=anchor)
            if name == whole and self.files.is_regular(place) and place not in self.files.unread:
                return Found(reason="files")
            if place in self.page_of_folder:
                return Found(self.page_of_folder[place][1], anchor=anchor)
        return Found(reason="nowhere")

    @staticmethod
    def _names_for(whole, is_folder):
        yield whole
        if not is_folder:
            yield whole + ".md"
            if whole.endswith(".html"):
                yield whole[: -len("html")] + "md"

    def of_name(self, source, written):
        """Where a name in two brackets leads: as a whole first, then without what follows the first number sign."""
        name, _, anchor = written.partition("#")
        for tried, rest in ((written, ""), (name.strip(), anchor)):
            for candidates in self._candidates(source, tried):
                if candidates:
                    return Found(self._nearest(source, candidates), "", rest, len(candidates) > 1, tried)
        for tried in (written, name.strip()):
            if fold(tried.strip("/")) in self.others_by_end:
                return Found(reason="files", name=tried)
        return Found(reason="nowhere")

    def _candidates(self, source, name):
        if not name:
            return
        for path in (joined("", name), joined(posixpath.dirname(source), name)) if "/" in name else ():
            yield [self.by_path[p] for p in (path, f"{path}.md") if p in self.by_path][:1]
            yield self.by_folded_path.get(path and fold(path))
        yield self.by_end.get(fold(name.strip("/")))
        yield self.by_title.get(fold(name))
        yield self.by_alias.get(fold(name))

    def _nearest(self, source, candidates):
        own = posixpath.dirname(source)

        def distance(note):
            whole = posixpath.normpath(posixpath.join(self.files.root, note.path))
            return posixpath.dirname(note.path) != own, whole.count("/"), whole

        return min(candidates, key=distance)
