"""The reference reads headers in which the customs of comments are spelled out: a comment stands for the declarations right
below it, a section for its members. No line moves, so that warnings name the right one."""

import importlib
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts"))
make_reference = importlib.import_module("make-reference")

# what a header says, and what the reference reads
SPREAD = [
    ("two overloads",
     ["    /// Opens it.", "    void open();", "    void open(bool now);"],
     ["    /// Opens it.", "    void open();", "    /** Opens it. */ void open(bool now);"]),
    ("a blank line ends it",
     ["/// Opens it.", "void open();", "", "void close();"], ["/// Opens it.", "void open();", "", "void close();"]),
    ("a remark ends it",
     ["/// Opens it.", "void open();", "// By hand.", "void close();"],
     ["/// Opens it.", "void open();", "// By hand.", "void close();"]),
    ("a remark to a tool does not",
     ["/// Opens it.", "void open();", "// NOLINTNEXTLINE(x)", "void open(bool now);"],
     ["/// Opens it.", "void open();", "// NOLINTNEXTLINE(x)", "/** Opens it. */ void open(bool now);"]),
    ("what has a comment of its own keeps it",
     ["/// The size.", "int width();", "int height(); ///< in points"],
     ["/// The size.", "int width();", "int height(); ///< in points"]),
    ("what overrides another has that one's comment",
     ["/// Opens it.", "void open();", "void close() override;"], ["/// Opens it.", "void open();", "void close() override;"]),
    ("what is not there needs none",
     ["/// Opens it.", "Box();", "Box(const Box&) = delete;"], ["/// Opens it.", "Box();", "Box(const Box&) = delete;"]),
    ("a comparison is one of members",
     ["/// Opens it.", "Box();", "friend bool operator==(Box, Box) = default;"],
     ["/// Opens it.", "Box();", "/** Member by member. */ friend bool operator==(Box, Box) = default;"]),
    ("a body of several lines",
     ["/// To the next.", "void next()", "{", "    ++place;", "}", "void next(int);"],
     ["/// To the next.", "void next()", "{", "    ++place;", "}", "/** To the next. */ void next(int);"]),
    ("a template over two lines",
     ["/// A value.", "Value(bool);", "template <typename T>", "requires(true) Value(T value) : x(value) { }"],
     ["/// A value.", "Value(bool);", "/** A value. */ template <typename T>", "requires(true) Value(T value) : x(value) { }"]),
    ("the comment of a class is not that of its members",
     ["/// A box.", "class Box {", "    void open();", "};"], ["/// A box.", "class Box {", "    void open();", "};"]),
    ("nor that of a list that of its entries",
     ["/// How.", "enum class Kind {", "    One,", "    Two,", "};"], ["/// How.", "enum class Kind {", "    One,", "    Two,", "};"]),
    ("an example stays with the first",
     ["/// Opens it.", "///", "///     open();", "void open();", "void open(int);"],
     ["/// Opens it.", "///", "///     open();", "void open();", "/** Opens it. */ void open(int);"]),
    ("what holds for a section stands for its first members",
     ["    // Work -----", "    // On any thread.", "    void run();"],
     ["    // Work -----", "    // On any thread.", "    /** On any thread. */ void run();"]),
    ("a section alone stands for nothing",
     ["    // Work -----", "    void run();"], ["    // Work -----", "    void run();"]),
]


class Spread(unittest.TestCase):
    def test_each_case(self):
        for name, written, read in SPREAD:
            with self.subTest(name):
                self.assertEqual(make_reference.spread_comments(written), read)


class Sections(unittest.TestCase):
    def test_a_section_is_a_group_until_the_next_one_and_the_end_of_the_class(self):
        written = ["class Box {", "public:", "    // Work (tarnmodel/notes/Box.cpp) ----", "    // On any thread.", "    void run();",
                   "    // Rest -----", "    void rest();", "", "private:", "    int size_;", "};"]
        self.assertEqual(make_reference.mark_sections(written),
                         ["class Box {", "public:", "    /** @name Work", "    On any thread. */ /** @{ */", "    void run();",
                          "    /** @} */ /** @name Rest */ /** @{ */", "    void rest();", "", "/** @} */ private:", "    int size_;",
                          "};"])


if __name__ == "__main__":
    unittest.main()
