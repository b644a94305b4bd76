"""An export, and what comes back of it: into an empty store, and into the store that it comes from."""

import os
import pathlib
import re

from note_text import fold

IDENTIFIER = re.compile(r"^tarn-id: ([0-9A-F-]{36})$", re.MULTILINE)
LAYOUTS = ("flat", "tags", "source")


def require(condition, what):
    if not condition:
        raise AssertionError("round trip: " + (what() if callable(what) else what))


class RoundTrip:
    def __init__(self, rng, store, place):
        self.rng, self.store, self.place = rng, store, pathlib.Path(place)
        self.place.mkdir()
        self.folder = self.place / "out"
        self.rules = [f"--layout={rng.choice(LAYOUTS)}", f"--links={rng.choice(['wiki', 'files'])}"]
        self.rules += ["--all"] if rng.random() < 0.6 else []

    def make(self):
        self.notes = self.store.notes()
        self.chosen = {
            identifier: note for identifier, note in self.notes.items()
            if "--all" in self.rules or not (note.is_trashed or note.is_archived)
        }
        if not self.chosen:
            return
        self.export(self.store, exported=len(self.chosen))
        states = self.states()
        self.export(self.store, unchanged=len(self.chosen))
        require(self.states() == states, "a second export wrote files")
        require(self.identifiers() == sorted(self.chosen), lambda: f"files of {self.identifiers()}")
        self.bring_back()
        self.bring_into_its_own()

    def export(self, store, codes=(0,), **expected):
        report = store.run("export", self.folder, *self.rules, codes=codes)
        for key in ("exported", "unchanged"):
            require(report[key] == expected.get(key, 0), lambda: f"{self.rules}: {report}, the model {expected}")
        require(bool(report["left"]) == (codes != (0,)), lambda: f"left {report['left']}")
        return report

    def texts(self):
        return [p for p in sorted(self.folder.rglob("*.md")) if "attachments" not in p.relative_to(self.folder).parts]

    def states(self):
        return {p: (p.stat().st_mtime_ns, p.stat().st_ino) for p in sorted(self.folder.rglob("*")) if p.is_file()}

    def identifiers(self):
        return sorted(IDENTIFIER.search(text.read_bytes().decode())[1] for text in self.texts())

    def bring_back(self):
        """Into an empty store: the same notes, in the same states, linked in the same way."""
        empty = type(self.store)(self.store.tarn, self.place / "empty")
        report = empty.run("import", self.folder)
        require(report["imported"] == len(self.chosen), lambda: f"came back: {report}")
        back = empty.notes()
        require(back.keys() == self.chosen.keys(), lambda: f"came back: {back.keys()}")
        for identifier, note in self.chosen.items():
            require(back[identifier].text == note.text, lambda: f"{back[identifier].text!r} was {note.text!r}")
            require(back[identifier].state() == note.state(), lambda: f"{back[identifier].state()} was {note.state()}")
        require(self.conflicts(back) == self.conflicts(self.chosen), lambda: f"conflicts {self.conflicts(back)}")
        mine, theirs = self.graph(self.store), self.graph(empty)
        require(mine.keys() == theirs.keys(), lambda: f"links {theirs.keys()} were {mine.keys()}")
        require(all(theirs[link] == mine[link] for link in mine if mine[link]), lambda: f"{theirs} was {mine}")
        again = empty.run("import", self.folder)
        require(again["unchanged"] == len(self.chosen), lambda: f"again: {again}")
        empty.examine()

    @staticmethod
    def conflicts(notes):
        """Versions by their groups, a version that is alone has no conflict."""
        groups = {}
        for note in notes.values():
            if note.conflict:
                groups.setdefault(note.conflict.partition("/")[0], set()).add(note.identifier)
        return sorted(sorted(group) for group in groups.values() if len(group) > 1)

    def graph(self, store):
        """Links by title with their notes. Of titles that several notes have any may be meant."""
        titles = [fold(note.title) for note in self.notes.values()]
        return {
            (source, title): target if target in self.chosen and titles.count(title) == 1 else ""
            for source, title, target in sorted(store.links(), key=str) if source in self.chosen
        }

    def bring_into_its_own(self):
        """Into a copy of its store, where others change a file meanwhile."""
        own = self.store.copy(self.place / "own")
        before = own.notes()
        report = own.run("import", self.folder)
        require(report["unchanged"] == len(self.chosen), lambda: f"into its own store: {report}")
        require(own.notes() == before, "a file that says what its note says changed it")
        file = self.rng.choice(self.texts())
        identifier = IDENTIFIER.search(file.read_bytes().decode())[1]
        file.write_bytes(file.read_bytes() + b"\nothers\n")
        self.export(own, codes=(1,), unchanged=len(self.chosen) - 1)
        report = own.run("import", self.folder, codes=(0, 1))
        if self.chosen[identifier].is_trashed:
            require(report["unchanged"] == len(self.chosen) - 1, lambda: f"of others: {report}")
            return
        require(report["updated"] == 1 and report["imported"] == 0, lambda: f"of others: {report}")
        after = own.notes()
        require(after[identifier].text.endswith("others\n"), lambda: f"of others: {after[identifier].text!r}")
        require(after.keys() == before.keys(), lambda: f"of others: {after.keys() ^ before.keys()}")
        # A link that led nowhere finds its note when its text is read anew, and is written as a file's then.
        if "[[" not in file.read_text():
            self.export(own, unchanged=len(self.chosen))
