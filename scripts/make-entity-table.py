#!/usr/bin/env python3
"""Writes the table of named character references that a Markdown text may hold.

The names are those of HTML 5, as Python's standard library lists them; only the forms with a semicolon count.

    scripts/make-entity-table.py > tarnmodel/corvel/scanning/EntityTable.cpp
"""
from html.entities import html5

HEADER = '''#include "tarnmodel/corvel/scanning/EntityTable.h"

// Written by scripts/make-entity-table.py; do not edit.
// clang-format off

namespace tarn::corvel {

namespace {

    constexpr NamedEntity kNamedEntities[] = {
'''

FOOTER = '''    };

} // namespace

std::span<const NamedEntity> namedEntities() noexcept
{
    return kNamedEntities;
}

} // namespace tarn::corvel
'''

PER_LINE = 4


def literal(text):
    return '"' + ''.join('\\%03o' % byte for byte in text.encode('utf-8')) + '"'


def main():
    names = sorted(name[:-1] for name in html5 if name.endswith(';'))
    rows = ['{"%s", %s}' % (name, literal(html5[name + ';'])) for name in names]
    print(HEADER, end='')
    for i in range(0, len(rows), PER_LINE):
        print('        ' + ', '.join(rows[i:i + PER_LINE]) + ',')
    print(FOOTER, end='')


if __name__ == '__main__':
    main()
