"""A store of the command, for models to look into: its notes as the database has them, and the command itself."""

import json
import os
import pathlib
import re
import shutil
import sqlite3
import subprocess
from dataclasses import dataclass
from urllib.parse import quote

from note_text import fold

WIKI_TITLE = re.compile(r"(?<=\[\[)[^\]|]+")
LINK_BY_IDENTIFIER = re.compile(r"tarn://x-callback-url/open-note\?id=([0-9A-F-]+)")
COLUMNS = ("title", "text", "trashed", "archived", "pinned", "locked", "conflictUniqueIdentifier", "creationDate",
    "modificationDate")


@dataclass
class StoredNote:
    """One note, its fields as the store has them."""

    identifier: str
    title: str
    text: str
    is_trashed: bool
    is_archived: bool
    is_pinned: bool
    is_read_only: bool
    conflict: str
    created: int
    modified: int

    def state(self):
        return self.is_trashed, self.is_archived, self.is_pinned, self.is_read_only, self.created, self.modified


class Titles:
    """Which notes have a title, folded. `notes` are pairs of identifiers and titles."""

    def __init__(self, notes):
        self._notes = {}
        for identifier, title in notes:
            self._notes.setdefault(fold(title), []).append(identifier)

    def of(self, title):
        return self._notes.get(fold(title), [])

    def only(self, title):
        found = self.of(title)
        return found[0] if len(found) == 1 else None


class TarnStore:
    def __init__(self, tarn, folder):
        self.tarn, self.folder = tarn, pathlib.Path(folder)

    def run(self, *command, codes=(0,)):
        given = [self.tarn, "--store", self.folder, "--json", *map(str, command)]
        done = subprocess.run(given, capture_output=True, timeout=120, check=False)
        if done.returncode not in codes:
            raise AssertionError(f"{given}: {done.returncode}: {done.stdout.decode()}{done.stderr.decode()}")
        return json.loads(done.stdout) if done.stdout else {}

    def run_killed(self, call, time, *command):
        """Runs a command that dies at its n-th system call of a kind. Whether it came to its end."""
        given = [self.tarn, "--store", self.folder, *map(str, command)]
        tracer = ["strace", "-f", "-qq", "-o", os.devnull, "-e", f"inject={call}:signal=KILL:when={time}"]
        done = subprocess.run(tracer + given, capture_output=True, timeout=120, check=False)
        return done.returncode >= 0 and done.returncode < 128

    def can_be_traced(self):
        tracer = ["strace", "-f", "-qq", "-o", os.devnull, self.tarn, "--version"]
        return bool(shutil.which("strace")) and subprocess.run(tracer, capture_output=True, check=False).returncode == 0

    def copy(self, folder):
        if self.folder.exists():
            shutil.copytree(self.folder, folder)
        return TarnStore(self.tarn, folder)

    def _select(self, query):
        database = self.folder / "Application Data" / "database.sqlite"
        if not database.exists():
            return []
        connection = sqlite3.connect(f"file:{quote(str(database))}?mode=ro", uri=True)
        try:
            return connection.execute(query).fetchall()
        finally:
            connection.close()

    def notes(self):
        """By identifier."""
        rows = self._select(
            f"SELECT uniqueIdentifier, {', '.join(COLUMNS)} FROM OVNote JOIN OVNote_large USING (pk) "
            "WHERE permanentlyDeleted IS NOT 1 ORDER BY pk")
        flags = range(3, 7)
        return {
            row[0]: StoredNote(*(bool(v) if n in flags else v or "" if n < 8 else v for n, v in enumerate(row)))
            for row in rows
        }

    def links(self):
        """Pairs of the note in which a link by title stands and the folded title, with the note to which it leads."""
        return set(self._select(
            "SELECT a.uniqueIdentifier, l.title_folded, b.uniqueIdentifier FROM OVNoteBackLink l "
            "JOIN OVNote a ON a.pk = l.linkedBy LEFT JOIN OVNote b ON b.pk = l.linkingTo ORDER BY 1, 2, 3"))

    def sources(self):
        """What the record says of each path: the identifier of its note."""
        record = self.folder / "Application Data" / "database.imports.jsonl"
        found = {}
        for line in record.read_text().splitlines() if record.exists() else ():
            for entry in (e for e in json.loads(line).values() if isinstance(e, dict) and "note" in e):
                found[entry["path"]] = (entry["note"], entry.get("copy", ""))
        return found

    def examine(self):
        report = self.run("doctor", codes=(0, 1, 5))
        bad = [check for check in report["checks"] if not check["ok"]]
        assert not bad, f"the doctor found {bad}"
