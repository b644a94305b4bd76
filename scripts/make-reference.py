#!/usr/bin/env python3
"""Makes the API reference of the headers that are installed.

    scripts/make-reference.py GENERATED OUTPUT

GENERATED is the folder of generated headers of a build, `build/<preset>/generated`; the reference becomes
OUTPUT/html/index.html. Exits with 1, and says where, when something public has no comment or a comment is wrong.

Doxygen reads copies of the headers in which two customs of this repository are spelled out for it. A comment stands for
the declarations right below it, up to the next comment or blank line. And a section of a class begins with a line
"// Name ----", followed by what holds for all of its members.
"""

import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

DOCUMENTATION = re.compile(r"^(\s*)///(?!<) ?(.*)$")
SECTION = re.compile(r"^(\s*)// (\S.*?) -{4,}$")
REMARK = re.compile(r"^\s*//(?!/) ?(.*)$")
TO_TOOLS = re.compile(r"^\s*// (NOLINT|clang-format)")
NOT_MEANT = re.compile(r"\b(override|final)\b|= delete;$|\bvirtual ~|^\s*~")
COMPARED = re.compile(r"^(\s*)(friend .*operator(==|<=>).* = default;)$")
BODY = re.compile(r"^\s*(template\b.*>\s*)?(class|struct|enum|union|namespace|extern)\b(?!.*\()")
STRINGS = re.compile(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'')


def code_of(line):
    """The line without strings and what follows "//"."""
    return STRINGS.sub('""', line).split("//")[0].rstrip()


def declaration_at(lines, first):
    """The number of lines of the declaration that begins here, or none when a class or a list follows it."""
    if BODY.match(lines[first]) and not code_of(lines[first]).endswith(";"):
        return None
    depth = 0
    for count, line in enumerate(lines[first:], 1):
        code = code_of(line)
        depth += sum(code.count(bracket) for bracket in "({[") - sum(code.count(bracket) for bracket in ")}]")
        if depth == 0 and code.endswith((";", "}")):
            following = lines[first + count].strip() if first + count < len(lines) else ""
            # A constructor's body may begin on the line after the brackets of its initializers.
            if code.endswith(";") or not following.startswith(("{", ":")):
                return count
        if code.endswith(",") and depth == 0 and "(" not in code:
            return None
    return None


def spread_comments(lines):
    """Repeats a comment in front of each further declaration that it stands for; numbers of lines stay."""
    result, position, comment = [], 0, None
    while position < len(lines):
        line = lines[position]
        documentation = DOCUMENTATION.match(line)
        if documentation:
            words = []
            while position < len(lines) and DOCUMENTATION.match(lines[position]):
                words.append(DOCUMENTATION.match(lines[position]).group(2))
                result.append(lines[position])
                position += 1
            first, comment = True, "\n".join(words)
            continue
        section = SECTION.match(line)
        if section and position + 1 < len(lines) and REMARK.match(lines[position + 1]):
            words = []
            result.append(line)
            while (remark := REMARK.match(lines[position + 1])) and not SECTION.match(lines[position + 1]):
                words.append(remark.group(1))
                position += 1
                result.append(lines[position])
            position += 1
            # It has to be repeated for the first one too: the remark becomes the description of the group.
            first, comment = False, "\n".join(words)
            continue
        if COMPARED.match(line) and not (comment is not None and first):
            result.append(COMPARED.sub(r"\1/** Member by member. */ \2", line))
            position += 1
            continue
        if TO_TOOLS.match(line):
            result.append(line)
            position += 1
            continue
        stops = not line.strip() or REMARK.match(line) or line.strip().endswith(":") or line.strip().startswith(("#", "}"))
        count = None if stops or comment is None else declaration_at(lines, position)
        if count is None:
            comment = None
            result.append(line)
            position += 1
            continue
        indent = line[: len(line) - len(line.lstrip())]
        declaration = " ".join(lines[position : position + count])
        if first or "///<" in declaration or NOT_MEANT.search(declaration):
            result.append(line)
        else:
            # On one line; an example cannot be repeated there, and stands with the first declaration anyway.
            text = " ".join(comment.split("\n    ")[0].split())
            result.append(f"{indent}/** {text} */ {line.lstrip()}")
        result += lines[position + 1 : position + count]
        position += count
        first = False
    return result


def mark_sections(lines):
    """Makes a group of members of each section; numbers of lines stay."""
    result, open_indent = [], None
    position = 0
    while position < len(lines):
        line = lines[position]
        section = SECTION.match(line)
        ends = open_indent is not None and line.strip() and len(line) - len(line.lstrip()) < len(open_indent)
        if ends and not line.startswith("#"):
            result.append("/** @} */ " + line)
            open_indent = None
        elif section:
            indent, title = section.groups()
            title = re.sub(r" \([^)]*\.cpp\)$", "", title)
            result.append(f"{indent}{'' if open_indent is None else '/** @} */ '}/** @name {title}")
            open_indent = indent
            while position + 1 < len(lines) and (remark := REMARK.match(lines[position + 1])) and not SECTION.match(lines[position + 1]):
                result.append(f"{indent}{remark.group(1)}")
                position += 1
            result[-1] += " */ /** @{ */"
        else:
            result.append(line)
        position += 1
    return result


def install_headers(generated, folder):
    subprocess.run(
        ["cmake", f"-DCMAKE_INSTALL_PREFIX={folder}", f"-Dtarn_source_folder={ROOT}", f"-Dtarn_generated_folder={generated}",
         "-Dtarn_header_folder=include", "-P", str(ROOT / "cmake" / "InstallPublicHeaders.cmake")],
        check=True, stdout=subprocess.DEVNULL)
    return folder / "include"


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    generated, output = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
    shutil.rmtree(output, ignore_errors=True)
    output.mkdir(parents=True)
    headers = install_headers(generated, output / "installed")
    copies = output / "headers"
    for header in sorted(headers.rglob("*.h")):
        copy = copies / header.relative_to(headers)
        copy.parent.mkdir(parents=True, exist_ok=True)
        lines = header.read_text(encoding="utf-8").splitlines()
        copy.write_text("\n".join(mark_sections(spread_comments(lines))) + "\n", encoding="utf-8")

    log = output / "warnings.txt"
    settings = (ROOT / "docs" / "Doxyfile").read_text(encoding="utf-8") + (
        f'INPUT = "{copies}" "{ROOT / "docs" / "reference.md"}"\nSTRIP_FROM_PATH = "{copies}"\n'
        f'USE_MDFILE_AS_MAINPAGE = "{ROOT / "docs" / "reference.md"}"\n'
        f'OUTPUT_DIRECTORY = "{output}"\nWARN_LOGFILE = "{log}"\n')
    result = subprocess.run(["doxygen", "-"], input=settings, text=True, check=False)
    warnings = sorted(set(log.read_text(encoding="utf-8").replace(f"{copies}/", "").splitlines())) if log.exists() else []
    print("\n".join(warnings) or f"{output}/html/index.html")
    return 1 if warnings or result.returncode != 0 else 0


if __name__ == "__main__":
    sys.exit(main())
