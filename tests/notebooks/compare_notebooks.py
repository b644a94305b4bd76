"""Imports random notebooks and counts them: the command and the counter, which knows nothing of it, must agree.

    compare_notebooks.py TARN [--seeds FIRST LAST] [--verbose]
"""

import argparse
import json
import os
import pathlib
import subprocess
import sys
import tempfile
from collections import defaultdict

from count_notebook import counted, details
from notebook_plan import NotebookPlan
from random_notebook import Notebook

TITLES = ("auto", "text", "file", "unique")
NAMES_OF_KINDS = {"missing": "nowhere", "kept": "left"}
KINDS_OF_NAMES = {"nowhere": "missing", "left": "kept", "within": "heading"}
KINDS = ("wiki", "byIdentifier", "waiting", "ambiguous", "anchors", "outside", "missing", "kept")


def rules_of(seed):
    return {"titles": TITLES[seed % 4], "links": "keep" if seed % 5 == 4 else "wiki"}


class Comparison:
    """One notebook, imported into a store of its own."""

    def __init__(self, tarn, seed, scratch):
        self.tarn, self.seed, self.rules = tarn, seed, rules_of(seed)
        self.store, self.folder = scratch / "store", scratch / "Träume b"
        self.folder.mkdir()
        Notebook(seed, is_nasty=seed % 8 >= 4).make().write(self.folder)

    def run(self, *command):
        done = subprocess.run([self.tarn, "--store", self.store, "--json", *command], capture_output=True, timeout=120)
        if not done.stdout:
            raise AssertionError(f"seed {self.seed}: {command}: {done.returncode}: {done.stderr.decode()}")
        return json.loads(done.stdout)

    def imported(self, *options):
        rules = [f"--{name}={value}" for name, value in self.rules.items()]
        return self.run("import", *rules, *options, self.folder)

    def of_tarn(self):
        report = self.imported()
        notes = self.run("list", "--filter", "all")["notes"] if report["imported"] else []
        return {
            "notes": report["imported"],
            "failed": len(report["failed"]),
            "titles": sorted(note["title"] for note in notes),
            "links": {kind: report["links"][kind] for kind in KINDS},
        }

    def of_counter(self):
        self.plan = NotebookPlan(self.folder, **self.rules)
        figures = counted(self.plan)
        return {
            "notes": figures["notes"],
            "failed": figures["failed"],
            "titles": sorted(note.title for note in self.plan.notes),
            "links": {kind: figures["links"][NAMES_OF_KINDS.get(kind, kind)] for kind in KINDS},
        }

    def told(self):
        """What either says of the links of each text of which they say other things."""
        theirs, ours = defaultdict(list), defaultdict(list)
        for link in self.again_dry():
            path = self.place(link["path"])
            theirs[path].append((link["outcome"], link["link"], link.get("title")))
        for lead in details(self.plan)["leads"]:
            kind = KINDS_OF_NAMES.get(lead["kind"], lead["kind"])
            if kind not in ("files", "as it is"):
                ours[self.place(self.folder / lead["path"])].append((kind, lead["link"], lead["to"]))
        for path in sorted(theirs.keys() | ours.keys()):
            if sorted(kind for kind, _, _ in theirs[path]) != sorted(kind for kind, _, _ in ours[path]):
                yield f"{path!r}: tarn {sorted(theirs[path], key=str)}, counter {sorted(ours[path], key=str)}"

    def place(self, path):
        return os.path.relpath(os.path.realpath(path), os.path.realpath(self.folder))

    def again_dry(self):
        self.store = self.store.with_name("no store")
        return self.imported("--dry-run")["toldLinks"]


def difference(one, other):
    for key, value in one.items():
        if isinstance(value, dict):
            yield from difference(value, other[key])
        elif value != other[key]:
            yield f"{key}: tarn {value}, counter {other[key]}"


def compare(tarn, seed, verbose):
    with tempfile.TemporaryDirectory() as scratch:
        comparison = Comparison(tarn, seed, pathlib.Path(scratch))
        found = list(difference(comparison.of_tarn(), comparison.of_counter()))
        for line in found:
            print(f"seed {seed} {comparison.rules}: {line}")
        if found and verbose:
            print(*comparison.told(), sep="\n    ")
        return not found


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("tarn")
    parser.add_argument("--seeds", nargs=2, type=int, default=(0, 100), metavar=("FIRST", "LAST"))
    parser.add_argument("--verbose", action="store_true")
    options = parser.parse_args()
    seeds = range(*options.seeds)
    agreeing = sum(compare(options.tarn, seed, options.verbose) for seed in seeds)
    print(f"{agreeing} of {len(seeds)} notebooks agree")
    sys.exit(agreeing < len(seeds))


if __name__ == "__main__":
    main()
