#!/usr/bin/env python3
"""Counts what an import of a folder into an empty store gives: notes, titles, and where their links lead. It follows
the rules of the documents and knows nothing of the importer, so that the two can disagree.

    count_notebook.py FOLDER [--titles auto|text|file|unique] [--links wiki|keep] [--json] [--verbose]

Needs markdown-it-py (Debian: python3-markdown-it)."""

import argparse
import json

from notebook_plan import KINDS, NotebookPlan


def counted(plan):
    """The figures. `unlinked` is what `tarn orphans` lists, which looks at records of links in two brackets only."""
    return {
        "notes": len(plan.notes),
        "failed": len(plan.files.failed),
        "titles": len(plan.titles),
        "links": {kind: plan.count[kind] for kind in KINDS},
        "orphans": len(plan.orphans()),
        "unlinked": len(plan.unlinked()),
    }


def details(plan):
    """Each note with its title, each link with what becomes of it."""
    return {
        "titlesOfNotes": {note.path: note.title for note in plan.notes},
        "leads": [
            {
                "kind": lead.kind,
                "path": lead.note.path,
                "line": lead.link.line + 1,
                "link": lead.link.target,
                "to": lead.target.path if lead.target else None,
            }
            for lead in plan.leads
        ],
    }


def show(figures, plan, verbose):
    for name, value in figures.items():
        if name == "links":
            print("links:", ", ".join(f"{kind} {count}" for kind, count in value.items() if count) or "none")
        else:
            print(f"{name}: {value}")
    if verbose:
        told = details(plan)
        for path, title in told["titlesOfNotes"].items():
            print("title", path, title, sep="\t")
        for lead in told["leads"]:
            print(*(lead[key] for key in ("kind", "path", "line", "link", "to")), sep="\t")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder")
    parser.add_argument("--titles", choices=("auto", "text", "file", "unique"), default="auto")
    parser.add_argument("--links", choices=("wiki", "keep"), default="wiki")
    parser.add_argument("--json", action="store_true", help="one document; with --verbose with all titles and links")
    parser.add_argument("--verbose", action="store_true", help="tell each title and each link")
    options = parser.parse_args()
    plan = NotebookPlan(options.folder, options.titles, options.links)
    figures = counted(plan)
    if options.json:
        print(json.dumps(figures | (details(plan) if options.verbose else {}), ensure_ascii=False, indent=2))
    else:
        show(figures, plan, options.verbose)


if __name__ == "__main__":
    main()
