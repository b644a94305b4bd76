"""What people do with a folder and with the notes that were made of it, by chance."""

import os
import pathlib

FOLDERS = ("", "sub", "sub/deep", "other folder")
LIFE_TIME = 1_600_000_000


class LivingFolder:
    """A folder that changes by chance. Each state of a file says a word that no other state says."""

    def __init__(self, rng, root):
        self.rng, self.root = rng, pathlib.Path(root)
        self.root.mkdir()
        self.count = 0
        for _ in range(rng.randint(2, 6)):
            self.add()

    def change(self):
        once = (self.retitle, self.add, self.remove, self.replace, self.swap, self.copy, self.link_symbolically)
        self.rng.choice([self.write, self.write, self.move, self.move, *once])()

    def files(self):
        return sorted(p for p in self.root.rglob("*.md") if p.is_file() and not p.is_symlink())

    def some_file(self):
        return self.rng.choice(self.files() or [self.add()])

    def new_word(self):
        self.count += 1
        return f"word{self.count}"

    def new_place(self):
        self.count += 1
        number = self.count if self.rng.random() < 0.7 else self.count % 7
        place = self.root / self.rng.choice(FOLDERS) / f"n{number}.md"
        place.parent.mkdir(parents=True, exist_ok=True)
        return place if not os.path.lexists(place) else self.new_place()

    def title(self):
        """Three files of one heading would be a habit and no title."""
        titles = [p.read_text().split("\n")[0] for p in self.files()]
        once = sorted(t for t in titles if titles.count(t) == 1)
        return self.rng.choice(once) if once and self.rng.random() < 0.15 else f"# Title {self.new_word()[4:]}"

    def text(self, title):
        links = " and ".join(self.link() for _ in range(self.rng.randint(0, 3)))
        return f"{title}\n\n{self.new_word()} {links}\n"

    def link(self):
        files = self.files()
        if not files or self.rng.random() < 0.2:
            to_come = f"n{self.count + self.rng.randint(2, 3)}"
            return self.rng.choice([f"[x]({to_come}.md)", f"[[{to_come}]]", "[y](../../away.md)", "[[nobody|z]]"])
        target = self.rng.choice(files)
        path = "/" + target.relative_to(self.root).as_posix().replace(" ", "%20")
        title = target.read_text().split("\n")[0][2:]
        return self.rng.choice([
            f"[p]({path})", f"[q]({path[:-3]})", f"[r]({target.name})", f"[[{target.stem}]]", f"[[{target.stem}|s]]",
            f"[[{title}]]", f"[[{title}|t]]",
        ])

    def write_text(self, file, text):
        file.write_text(text)
        self.count += 1
        os.utime(file, (LIFE_TIME + self.count, LIFE_TIME + self.count))
        return file

    def add(self):
        return self.write_text(self.new_place(), self.text(self.title()))

    def write(self):
        file = self.some_file()
        self.write_text(file, self.text(file.read_text().split("\n")[0]))

    def retitle(self):
        file = self.some_file()
        body = file.read_text().split("\n", 1)[1]
        self.write_text(file, self.title() + "\n" + body)

    def remove(self):
        self.some_file().unlink()

    def move(self):
        self.some_file().rename(self.new_place())

    def replace(self):
        """Moved and changed at once: nobody can tell that it is the same."""
        file = self.some_file()
        self.write_text(file.rename(self.new_place()), self.text(self.title()))

    def swap(self):
        one, other = self.some_file(), self.some_file()
        aside = self.root / "aside"
        one.rename(aside)
        if other != one:
            other.rename(one)
        aside.rename(other)

    def copy(self):
        file = self.some_file()
        title = file.read_text().split("\n")[0]
        if sum(p.read_text().split("\n")[0] == title for p in self.files()) < 2:
            self.write_text(self.new_place(), file.read_text())

    def link_symbolically(self):
        target = self.some_file()
        place = self.new_place()
        if self.rng.random() < 0.5:
            place = self.some_file()
            if place == target:
                return
            place.unlink()
        place.symlink_to(os.path.relpath(target, place.parent))


class Hand:
    """Somebody who works with the notes of a store."""

    def __init__(self, rng, store):
        self.rng, self.store = rng, store
        self.count = 0

    def change(self):
        """Does something to a note: its identifier and the word that its text says now, None where it lost texts."""
        notes = sorted(self.store.notes().values(), key=lambda n: (n.text or "", n.created, n.identifier))
        if not notes:
            return None, None
        note = self.rng.choice(notes)
        self.count += 1
        word = f"hand{self.count}"
        if note.is_trashed or note.is_archived:
            self.store.run("restore" if note.is_trashed else "unarchive", note.identifier)
            return note.identifier, None
        kind = self.rng.choice(["append", "append", "replace", "retitle", "tag", "state", "state", "trash", "delete"])
        if kind == "append":
            self.store.run("append", note.identifier, word)
        elif kind == "replace":
            self.store.run("replace", note.identifier, f"{word} [[nobody]]\n")
        elif kind == "retitle":
            self.store.run("replace", "--whole", note.identifier, f"# Other {self.count}\n\n{word}\n\n{note.text}")
        elif kind == "tag":
            self.store.run("tag", "add", word, note.identifier)
        elif kind == "state":
            self.store.run(self.rng.choice(["archive", "pin", "unpin"]), note.identifier)
            return note.identifier, None
        elif kind == "trash":
            self.store.run("trash", note.identifier)
            return note.identifier, None
        elif kind == "delete":
            self.store.run("delete", "--yes", note.identifier)
            return note.identifier, None
        return note.identifier, word
