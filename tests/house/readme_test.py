"""What the README says of the command line holds: its commands run as they stand there, and each command answers in JSON.

    tests/house/readme_test.py TARN
"""

import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
TARN = pathlib.Path(sys.argv.pop()).resolve()

# Every command with arguments that it has an answer to, in an order in which it has.
ANSWERED = [
    "import notes", "new 'A note'", "show Groceries", "append Groceries pears", "prepend Groceries first",
    "replace Groceries pears", "edit Groceries", "conflicts", "conflict resolve --latest Groceries", "duplicate 'Start here'",
    "merge 'Week notes' Bicycle", "list", "search pears", "predicate pears", "highlight pears", "tags", "tag add extra Packliste",
    "links 'Start here'", "backlinks 'Café-Ecke'", "unresolved", "orphans", "url Packliste", "trash Packliste",
    "restore Packliste", "archive Packliste", "unarchive Packliste", "pin Packliste", "unpin Packliste",
    "readonly Packliste", "editable Packliste", "delete --yes Packliste", "baseline", "changes", "stats", "doctor", "migrate",
    "parse notes/Start\\ here.md", "attach 'A note' notes/Home/attachments/dynamo.svg", "files",
    "file rename 'A note' dynamo.svg light.svg", "file prune", "protect --password-file key --memory 1 'A note'",
    "unprotect --password-file key 'A note'", "passwords", "password delete --yes",
    "password add --password-file key --memory 1",
    "password change --password-file key --new-password-file key --memory 1", "password rotate --password-file key",
    "thumb 'House manual' --size 20x20", "export out",
    "backup all.tarnbackup", "restore-backup all.tarnbackup",
]
# While it has the note open, somebody else writes to it: the two versions are kept as a conflict.
EDITOR = '#!/bin/sh\ntarn append --latest Groceries "from elsewhere" >/dev/null\necho "from here" >>"$1"\n'


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        shutil.copytree(ROOT / "demo" / "notes", self.home / "notes")
        shutil.copy(self.home / "notes/Reise/Japan/bilder/markt.png", self.home / "photo.jpg")
        (self.home / "key").write_text("correct horse\n", encoding="utf-8")
        (self.home / "bin").mkdir()
        (self.home / "bin" / "tarn").symlink_to(TARN)
        (self.home / "bin" / "editor").write_text(EDITOR, encoding="utf-8")
        (self.home / "bin" / "editor").chmod(0o755)
        names = ("TARN_STORE", "XDG_DATA_HOME", "VISUAL", "LC_ALL")
        self.world = {key: value for key, value in os.environ.items() if key not in names}
        self.world |= {"HOME": folder.name, "LC_ALL": "C.UTF-8", "PATH": f"{self.home}/bin:{os.environ['PATH']}",
                       "EDITOR": "editor", "TARN_RESOURCES": str(ROOT / "resources")}

    def run_line(self, line):
        result = subprocess.run(["bash", "-c", line], cwd=self.home, env=self.world, capture_output=True, text=True,
                                stdin=subprocess.DEVNULL, check=False)
        self.assertEqual(result.returncode, 0, f"{line}\n{result.stdout}{result.stderr}")
        return result.stdout

    def test_the_lines_of_the_readme_run(self):
        section = (ROOT / "README.md").read_text(encoding="utf-8").split("## The command line")[1]
        lines = [line for line in re.search(r"```sh\n(.*?)```", section, re.DOTALL).group(1).splitlines() if line]
        self.assertGreaterEqual(len(lines), 6)
        for line in lines:
            with self.subTest(line):
                output = self.run_line(line)
                if "--json" in line:
                    json.loads(output)

    def test_the_store_lies_in_the_folder_for_application_data(self):
        self.run_line("tarn new '# A note'")
        self.assertTrue((self.home / ".local/share/tarn/Application Data/database.sqlite").is_file())

    def test_the_demo_only_reads_the_notes(self):
        notes = self.home / "notes"
        before = {path: path.read_bytes() for path in notes.rglob("*") if path.is_file()}
        output = self.run_line(f"'{ROOT}/scripts/demo.sh' '{TARN.parent}' demo '{notes}'")
        for command in ("$ tarn import", "$ tarn list", "$ tarn search", "$ tarn tags"):
            self.assertIn(command, output)
        self.assertEqual({path: path.read_bytes() for path in notes.rglob("*") if path.is_file()}, before)

    def test_each_command_answers_in_json(self):
        commands = re.findall(r"^  ([a-z-]+)  ", self.run_line("tarn --help").split("Subcommands:")[1], re.MULTILINE)
        self.assertEqual(sorted(commands), sorted({line.split(" ")[0] for line in ANSWERED}))
        for line in ANSWERED:
            with self.subTest(line):
                self.assertIsInstance(json.loads(self.run_line(f"tarn --json {line}")), dict)


if __name__ == "__main__":
    unittest.main()
