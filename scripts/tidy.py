#!/usr/bin/env python3
"""Runs clang-tidy over the sources of the rooms and the tools, several at once.

    scripts/tidy.py [--jobs N] BUILD-FOLDER [PATH...]

BUILD-FOLDER holds compile_commands.json. PATHs (folders or files, from the root) narrow what is looked at. Each finding is
printed once, however many sources include the header that it stands in. Exits with 1 when there is any.
"""

import argparse
import concurrent.futures
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SKIPPED = ("tests/", "benchmarks/", "fuzz/", "examples/", "build")
FINDING = re.compile(r"^(?P<place>/[^:]+:\d+:\d+): (?:error|warning): (?P<text>.*)$")


def sources(build, wanted):
    """What is to be looked at: of a build of several sources as one, those that CMake writes, else our own."""
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    paths = set()
    for command in commands:
        path = pathlib.Path(command["directory"], command["file"]).resolve()
        if path.is_relative_to(build) and path.parent.name == "Unity":
            name = path.relative_to(build).as_posix()
        elif path.is_relative_to(ROOT):
            name = path.relative_to(ROOT).as_posix()
        else:
            continue
        if name.startswith(SKIPPED):
            continue
        if not wanted or any(name == path_ or name.startswith(path_.rstrip("/") + "/") for path_ in wanted):
            paths.add(path)
    return sorted(paths)


def check(build, path):
    command = ["clang-tidy", "-p", str(build), "--quiet", str(path)]
    result = subprocess.run(command, cwd=ROOT, capture_output=True, text=True, check=False)
    return path, result.returncode, result.stdout, result.stderr


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("paths", nargs="*")
    options = parser.parse_args()

    build = options.build.resolve()
    paths = sources(build, options.paths)
    if not paths:
        print("tidy: found no sources", file=sys.stderr)
        return 1

    seen = set()
    failed = False
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for path, code, output, errors in pool.map(lambda path: check(build, path), paths):
            failed = failed or code != 0
            known = True
            for line in output.splitlines():
                match = FINDING.match(line)
                if match:
                    known = match.group() in seen
                    seen.add(match.group())
                if not known:
                    print(line.replace(f"{ROOT}/", ""), flush=True)
            if code != 0 and not output:
                print(f"{path}: clang-tidy ended with {code} {errors.strip()}", flush=True)
    print(f"clang-tidy looked at {len(paths)} files (some hold several sources) and found {len(seen)} things.")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
