"""An import that dies at one of its system calls and is run again, in a copy of a store."""

from tarn_store import LINK_BY_IDENTIFIER

CALLS = ("fsync", "pwrite64", "rename,renameat2", "unlink", "write", "fdatasync")


def contents(notes, known):
    """What notes say and are, whatever identifiers the new ones got."""

    def link(match):
        note = notes.get(match[1])
        return match[0] if match[1] in known or not note else f"tarn://{note.title}"

    return sorted(
        (note.identifier if note.identifier in known else "", LINK_BY_IDENTIFIER.sub(link, note.text), note.title,
            note.is_trashed, note.is_archived, bool(note.conflict))
        for note in notes.values())


class KilledImport:
    """What comes of a folder in a store whose import dies, before the same is imported by one that does not."""

    def __init__(self, rng, store, root, place):
        self.known, self.root = store.notes(), root
        self.store = store.copy(place)
        self.call, self.time = rng.choice(CALLS), rng.randint(1, 6)
        self.has_died = not self.store.run_killed(self.call, self.time, "import", root)
        self.store.run("import", root, codes=(0, 1, 6))

    def require_the_same_as(self, store):
        where = f"killed at {self.call} {self.time}: "
        mine, theirs = contents(self.store.notes(), self.known), contents(store.notes(), self.known)
        if mine != theirs:
            mine, theirs = [n for n in mine if n not in theirs], [n for n in theirs if n not in mine]
            raise AssertionError(where + f"{mine}, without a death {theirs}")
        again = self.store.run("import", self.root, codes=(0, 1, 6))
        for count in ("imported", "updated", "conflicted", "moved"):
            if again[count]:
                raise AssertionError(where + f"the third import: {again}")
        self.store.examine()
