#!/usr/bin/env python3
"""What it costs a host to include each public header, as a Markdown table: lines that the compiler reads, and its time.

    scripts/measure-headers.py BUILD-FOLDER [HEADER...]

BUILD-FOLDER holds the generated headers (any preset, once it was built). Without HEADER all headers are measured that
TarnModel.h includes, directly or not. Lines are those of `g++ -E -P`; the time is the least of three of
`g++ -fsyntax-only`, of which a source with the same standard headers needs the part in the last column.
"""

import os
import pathlib
import re
import resource
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[1]
COMPILER = os.environ.get("CXX", "g++")
RUNS = 3
OWN = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
STANDARD = re.compile(r"^\s*#\s*include\s*<([^>]+)>", re.MULTILINE)


class Headers:
    def __init__(self, generated):
        self.folders = [ROOT, generated]

    def file_of(self, header):
        return next(folder / header for folder in self.folders if (folder / header).is_file())

    def reached_from(self, header):
        """The header itself and ours that it includes, directly or not, in the order of a walk."""
        reached, waiting = [], [header]
        while waiting:
            current = waiting.pop(0)
            if current not in reached:
                reached.append(current)
                waiting += OWN.findall(self.file_of(current).read_text(encoding="utf-8"))
        return reached

    def standard_headers_of(self, header):
        found = set()
        for reached in self.reached_from(header):
            found.update(STANDARD.findall(self.file_of(reached).read_text(encoding="utf-8")))
        return sorted(found)

    def compile(self, source, *options):
        command = [COMPILER, "-std=c++20", *(f"-I{folder}" for folder in self.folders), *options, str(source)]
        return subprocess.run(command, capture_output=True, check=True).stdout

    def time_of(self, source):
        times = []
        for _ in range(RUNS):
            before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
            self.compile(source, "-fsyntax-only")
            times.append(resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before)
        return min(times)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    headers = Headers(pathlib.Path(sys.argv[1]).resolve() / "generated")
    wanted = sys.argv[2:] or headers.reached_from("tarnmodel/TarnModel.h")
    rows = []
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "one.cpp"
        for header in wanted:
            source.write_text(f'#include "{header}"\n', encoding="utf-8")
            lines = headers.compile(source, "-E", "-P").count(b"\n")
            time = headers.time_of(source)
            standard = "".join(f"#include <{name}>\n" for name in headers.standard_headers_of(header))
            source.write_text(standard, encoding="utf-8")
            rows.append((header, lines, time, headers.time_of(source)))
    print("| Header | Lines | Time | of that, the standard library |")
    print("|---|---|---|---|")
    for header, lines, time, standard in sorted(rows, key=lambda row: -row[1]):
        print(f"| `{header.removeprefix('tarnmodel/')}` | {lines:,} | {time:.2f} s | {standard:.2f} s |")


if __name__ == "__main__":
    main()
