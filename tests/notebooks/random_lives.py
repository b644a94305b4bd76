#!/usr/bin/env python3
"""Whole lives of notebooks, by chance: folders and notes change on both sides, folders are imported again and again,
exported, and come back. What a model says must be there is there after each step, also where the command died.

    random_lives.py TARN [--seeds FIRST LAST] [--steps N] [--kill] [--verbose]
"""

import argparse
import pathlib
import random
import re
import sys
import tempfile

from import_model import COUNTED, ImportModel
from killed_import import KilledImport
from notebook_life import Hand, LivingFolder
from round_trip import RoundTrip
from tarn_store import TarnStore, Titles

SKIPPED = 77
WORD = re.compile(r"\b(?:word|hand)\d+\b")


def require(condition, what):
    if not condition:
        raise AssertionError(what() if callable(what) else what)


class Life:
    """One folder and one store."""

    def __init__(self, tarn, seed, scratch, kills, tell):
        self.rng = random.Random(seed)
        self.scratch, self.kills, self.tell = scratch, kills, tell
        self.folder = LivingFolder(self.rng, scratch / "Träume b")
        self.store = TarnStore(tarn, scratch / "a store")
        self.model = ImportModel(self.folder.root)
        self.hand = Hand(self.rng, self.store)
        self.step = 0

    def live(self, steps):
        self.bring_in()
        for self.step in range(1, steps + 1):
            for _ in range(self.rng.randint(0, 3)):
                self.folder.change()
            for _ in range(self.rng.randint(0, 2)):
                self.work()
            self.bring_in()
            if self.rng.random() < 0.3:
                self.bring_in(is_again=True)
            if self.rng.random() < 0.25:
                RoundTrip(self.rng, self.store, self.scratch / f"trip {self.step}").make()
        self.store.examine()
        RoundTrip(self.rng, self.store, self.scratch / "last trip").make()

    def work(self):
        """Somebody changes a note: all others say what they said, but for the title of that one."""
        before = self.store.notes()
        note, word = self.hand.change()
        after = self.store.notes()
        self.tell(f"step {self.step}: changed {note}: {word}")
        require(not word or word in after[note].text, lambda: f"{word} is not in {after[note].text!r}")
        for identifier in before.keys() | after.keys():
            if identifier != note:
                self.require_same(before, after, identifier)

    def require_same(self, before, after, identifier):
        one, other = before.get(identifier), after.get(identifier)
        require(one and other, f"the note {identifier} came or went")
        require(WORD.findall(one.text) == WORD.findall(other.text), lambda: f"{one.text!r} became {other.text!r}")

    def bring_in(self, is_again=False):
        """Imports the folder, and holds what it gives against the model."""
        before = self.store.notes()
        predicted = self.model.predict(before)
        if self.kills and not is_again:
            killed = KilledImport(self.rng, self.store, self.folder.root, self.scratch / f"killed {self.step}")
        report = self.store.run("import", self.folder.root, codes=(0, 1, 6))
        self.tell(f"step {self.step}: import {({k: report[k] for k in COUNTED})}")
        counts = {name: report[name] for name in COUNTED}
        require(counts == predicted.counts, f"tarn counts {counts}, the model {predicted.counts}")
        skipped = [f for f in report["skippedFiles"] if f["reason"].startswith("its note")]
        require(len(skipped) == predicted.skipped, lambda: f"skipped {skipped}, the model {predicted.skipped}")
        if is_again:
            require(not any(counts[k] for k in ("imported", "updated", "conflicted", "moved")), f"again: {counts}")
        after = self.store.notes()
        self.name_new_notes(predicted, before, after)
        self.hold_texts(predicted, before, after)
        if self.kills and not is_again:
            killed.require_the_same_as(self.store)

    def name_new_notes(self, predicted, before, after):
        """Each file that has no note gets one, each conflict one copy at most, and nobody else gets any."""
        sources = self.store.sources()
        names = {}
        for outcome in predicted.outcomes:
            note, copy = sources[str(pathlib.Path(self.model.root) / outcome.path)]
            is_copy = outcome.kind == "conflicted"
            if outcome.note not in before:
                names[outcome.note] = copy if is_copy else note
        self.model.name(names)
        for outcome in predicted.outcomes:
            outcome.note = names.get(outcome.note, outcome.note)
        new = after.keys() - before.keys()
        require(new == set(names.values()) and len(new) == len(names), lambda: f"new notes {new}, the model {names}")
        require(before.keys() <= after.keys(), lambda: f"lost {before.keys() - after.keys()}")

    def hold_texts(self, predicted, before, after):
        titles = Titles((note.identifier, note.title) for note in after.values())

        def leads_to(title, note):
            return note in titles.of(title)

        written = {outcome.note for outcome in predicted.outcomes}
        for outcome in predicted.outcomes:
            note = after[outcome.note]
            require(outcome.fingerprint.matches(note.text, leads_to),
                lambda: f"{outcome.path}: {outcome.kind}: {note.text!r}, the model {outcome.fingerprint}")
            is_dated = outcome.date == 0 or note.modified == outcome.date
            require(is_dated, lambda: f"{outcome.path}: of {note.modified}, the file of {outcome.date}")
            in_conflict = outcome.kind == "conflicted"
            require(not in_conflict or note.conflict, lambda: f"{outcome.path}: the copy is in no conflict")
        for identifier in before.keys() - written:
            self.require_same(before, after, identifier)
            require(self.flags(before[identifier]) == self.flags(after[identifier]), f"the state of {identifier}")

    @staticmethod
    def flags(note):
        return note.is_trashed, note.is_archived, note.is_pinned, note.is_read_only


def live(tarn, seed, options):
    told = []
    with tempfile.TemporaryDirectory() as scratch:
        life = Life(tarn, seed, pathlib.Path(scratch), options.kill, told.append)
        try:
            life.live(options.steps)
        except AssertionError as failure:
            print(f"seed {seed}, step {life.step}: {failure}")
            if options.verbose:
                print(*told, sep="\n  ")
            return False
    return True


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("tarn")
    parser.add_argument("--seeds", nargs=2, type=int, default=(0, 20), metavar=("FIRST", "LAST"))
    parser.add_argument("--steps", type=int, default=6)
    parser.add_argument("--kill", action="store_true", help="each import also dies, in a copy of the store")
    parser.add_argument("--verbose", action="store_true")
    options = parser.parse_args()
    if options.kill and not TarnStore(options.tarn, "").can_be_traced():
        print("this system does not let one process look at another")
        sys.exit(SKIPPED)
    seeds = range(*options.seeds)
    right = sum(live(options.tarn, seed, options) for seed in seeds)
    print(f"{right} of {len(seeds)} lives went as the model says")
    sys.exit(right < len(seeds))


if __name__ == "__main__":
    main()
