"""What the documents name is there: files, rooms, classes, members, commands, variables and other documents."""

import pathlib
import re
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DOCUMENTS = [ROOT / "README.md", ROOT / "CONTRIBUTING.md", *sorted((ROOT / "docs").glob("*.md"))]
# Where a name that a document uses may be at home.
SOURCES = ["tarnmodel", "tools", "examples", "resources", "tests", "benchmarks", "fuzz", "cmake", "scripts"]
SUFFIXES = {".h", ".cpp", ".json", ".cmake", ".txt", ".py", ".sh", ".in"}
# Stands for any name.
OTHERS = {"ConcernTest"}

FENCE = re.compile(r"^(```|~~~).*?^\1[^\n]*$", re.MULTILINE | re.DOTALL)
CODE = re.compile(r"`([^`\n]+)`")
LINK = re.compile(r"\[[^\]]*\]\(([^)\s#]+)(?:#[^)]*)?\)")
NAME = re.compile(r"~?[A-Za-z_]\w*")
COMMENT = re.compile(r"//.*")


def tracked_files():
    listing = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                             capture_output=True, check=False)
    names = [name for name in listing.stdout.decode().split("\0") if name]
    return names or [path.relative_to(ROOT).as_posix() for path in ROOT.rglob("*") if path.is_file()]


# A document may leave out where a room or an example stands.
HOMES = ["", "tarnmodel/", "tarnmodel/platform/coredata/", "examples/"]
FILES = [name for name in tracked_files() if not name.startswith("build/") and (ROOT / name).is_file()]
FOLDERS = {parent.as_posix() for name in FILES for parent in pathlib.PurePath(name).parents}
TOP_FOLDERS = {folder.removeprefix(home).split("/")[0] for folder in FOLDERS for home in HOMES if folder.startswith(home)}


def words_of_sources():
    words = {pathlib.PurePath(name).stem for name in FILES}
    for name in FILES:
        if name.split("/")[0] in SOURCES and pathlib.PurePath(name).suffix in SUFFIXES and "documents_test" not in name:
            text = (ROOT / name).read_text(encoding="utf-8", errors="replace")
            words.update(NAME.findall(COMMENT.sub("", text) if name.endswith((".h", ".cpp")) else text))
    return words


def is_identifier(word):
    """Two humps at least, `likeThis` or `LikeThis`: no word of a sentence, no word in capitals."""
    return re.search(r"[a-z]\w*[A-Z]|[A-Z]\w*[a-z]\w*[A-Z]|[A-Z]{2,}[a-z]\w+", word) is not None


def path_in(span):
    """The path that the span names, with or without what follows it on a command line; none for a tag or a date."""
    path = span.rstrip("/") if (ROOT / span).exists() else span.split(" ")[0].rstrip("/")
    is_file = re.fullmatch(r"([\w.+-]+/)*[\w.+-]+\.(h|cpp|py|sh|md|cases|cmake)", path)
    is_folder = "/" in path and path.split("/")[0] in TOP_FOLDERS
    # `X+Concern.cpp` and its like stand for many.
    return path if (is_file or is_folder) and not re.match(r"build/|X[+.]", path) else None


def is_there(path):
    if "/" not in path:
        return any(name.endswith("/" + path) or name == path for name in FILES)
    return any(at + path in FOLDERS or at + path in FILES for at in HOMES)


class Documents(unittest.TestCase):
    def setUp(self):
        self.texts = {path: FENCE.sub("", path.read_text(encoding="utf-8")) for path in DOCUMENTS}

    def spans(self):
        for path, text in self.texts.items():
            for span in CODE.findall(text):
                yield path.name, span

    def test_links_lead_somewhere(self):
        for path, text in self.texts.items():
            for target in LINK.findall(text):
                if "://" not in target:
                    with self.subTest(document=path.name, link=target):
                        self.assertTrue((path.parent / target).exists())

    def test_each_document_is_found_from_the_readme(self):
        found, waiting = set(), [ROOT / "README.md"]
        while waiting:
            path = waiting.pop()
            if path not in found:
                found.add(path)
                targets = [(path.parent / link).resolve() for link in LINK.findall(path.read_text(encoding="utf-8"))]
                waiting += [target for target in targets if target.suffix == ".md" and target.is_file()]
        # The first page of the reference is found by building it.
        self.assertEqual(set(DOCUMENTS) - found - {ROOT / "docs" / "reference.md"}, set())

    def test_files_and_rooms_are_there(self):
        paths = [(name, path) for name, span in self.spans() if (path := path_in(span))]
        self.assertGreater(len(paths), 60)
        for name, path in paths:
            with self.subTest(document=name, path=path):
                self.assertTrue(is_there(path))

    def test_classes_and_members_are_there(self):
        words = words_of_sources()
        names = [(name, word) for name, span in self.spans() if not path_in(span) and "/" not in span
                 for word in NAME.findall(span) if is_identifier(word) and word not in OTHERS]
        self.assertGreater(len(names), 200)
        for name, word in names:
            with self.subTest(document=name, word=word):
                self.assertTrue(word.removesuffix("_large") in words)

    def test_each_room_is_on_the_map(self):
        text = (ROOT / "docs" / "map-of-the-source.md").read_text(encoding="utf-8")
        rows = set(re.findall(r"^\| `([\w/]+)`", text, re.MULTILINE))
        rooms = {folder for folder in FOLDERS if folder.startswith("tarnmodel/")}
        for room in rooms:
            with self.subTest(room=room):
                name = re.sub(r"^tarnmodel/(platform/(foundation|coredata|imaging)/|corvel/)?", "", room)
                self.assertTrue(name in rows or room in ("tarnmodel/platform", ), f"{room} is not on the map")

    def test_commands_are_there(self):
        texts = {path.name: path.read_text(encoding="utf-8") for path in DOCUMENTS}
        makefile = (ROOT / "Makefile").read_text(encoding="utf-8")
        targets = set(re.findall(r"^([a-z-]+):", makefile, re.MULTILINE))
        manual = (ROOT / "tools" / "tarn" / "tarn.1").read_text(encoding="utf-8")
        words = words_of_sources()
        for name, text in texts.items():
            for target in re.findall(r"(?:^|`)make ([a-z-]+)", text, re.MULTILINE):
                with self.subTest(document=name, target=target):
                    self.assertIn(target, targets)
            for command in re.findall(r"(?:^|`|&& )tarn (?:--json )?([a-z]+)", text, re.MULTILINE):
                with self.subTest(document=name, command=command):
                    self.assertRegex(manual, rf"(?m)^\.SS {command}\b")
            for variable in re.findall(r"\bTARN_[A-Z_]+\b", text):
                with self.subTest(document=name, variable=variable):
                    self.assertIn(variable, words)

    def test_help_names_each_command_of_the_makefile(self):
        makefile = (ROOT / "Makefile").read_text(encoding="utf-8")
        listed = set(re.search(r"^\.PHONY: (.*)$", makefile, re.MULTILINE).group(1).split())
        self.assertEqual(set(re.findall(r"^([a-z-]+):", makefile, re.MULTILINE)), listed)
        printed = subprocess.run(["make", "help"], cwd=ROOT, capture_output=True, text=True, check=True).stdout
        self.assertEqual(set(re.findall(r"^  make ([a-z-]+) ", printed, re.MULTILINE)), listed)

    def test_the_readme_names_the_versions_of_the_build(self):
        readme = (ROOT / "README.md").read_text(encoding="utf-8")
        build = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
        version = re.search(r"VERSION (\d+\.\d+)\.\d+", build).group(1)
        self.assertIn(f"find_package(TarnModel {version} REQUIRED)", readme)
        minimum = re.search(r"cmake_minimum_required\(VERSION ([\d.]+)\)", build).group(1)
        self.assertIn(f"CMake {minimum}", readme)

    def test_the_readme_names_the_libraries_that_the_build_asks_for(self):
        readme = (ROOT / "README.md").read_text(encoding="utf-8").split("## Build it into your project")[1]
        asked = (ROOT / "cmake" / "TarnDependencies.cmake").read_text(encoding="utf-8")
        found = set(re.findall(r"find_package\((\w+)", asked)) | set(re.findall(r"find_library\(TARN_(\w+)_LIBRARY", asked))
        spoken = {"SQLite3": "SQLite", "ICU": "ICU", "nlohmann_json": "nlohmann json", "fmt": "{fmt}", "SODIUM": "libsodium", "LibArchive": "libarchive",
                  "MD": "libmd", "JPEG": "libjpeg-turbo", "PNG": "libpng", "GIF": "giflib", "WEBP": "libwebp",
                  "WEBP_DEMUX": "libwebp", "TIFF": "libtiff", "HEIF": "libheif", "Threads": ""}
        self.assertEqual(found, set(spoken))
        for name in spoken.values():
            self.assertIn(name, readme)


if __name__ == "__main__":
    unittest.main()
