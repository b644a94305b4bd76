"""Each rule by which the counter gives titles and follows links, on folders made for it."""

import doctest
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))

import front_matter  # noqa: E402
import link_targets  # noqa: E402
import note_links  # noqa: E402
import note_text  # noqa: E402
import notebook_files  # noqa: E402
import notebook_plan  # noqa: E402
import shown_links  # noqa: E402
from count_notebook import counted  # noqa: E402
from notebook_plan import NotebookPlan  # noqa: E402


def load_tests(_loader, tests, _pattern):
    for module in (front_matter, link_targets, note_links, note_text, notebook_files, notebook_plan, shown_links):
        tests.addTests(doctest.DocTestSuite(module))
    return tests


class Notebook(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name) / "Träume b"
        self.root.mkdir()

    def write(self, files):
        for path, content in files.items():
            whole = self.root / path
            whole.parent.mkdir(parents=True, exist_ok=True)
            whole.write_bytes(content if isinstance(content, bytes) else content.encode())

    def plan(self, files, **options):
        self.write(files)
        return NotebookPlan(self.root, **options)

    def titles(self, files, rule="auto"):
        return {note.path: note.title for note in self.plan(files, titles=rule).notes}

    def leads(self, files, **options):
        """What becomes of the links of the file a.md."""
        plan = self.plan(files, **options)
        return [
            (lead.kind, lead.target.path) if lead.target else lead.kind
            for lead in plan.leads
            if lead.note.path == "a.md"
        ]


class Files(Notebook):
    def test_markdown_and_text_files_are_notes_hidden_ones_are_not(self):
        names = ["a.md", "b.markdown", "c.TXT", "d.png", ".e.md", ".git/f.md", "g/h.md"]
        notes = self.plan(dict.fromkeys(names, "x")).notes
        self.assertEqual([note.path for note in notes], ["a.md", "b.markdown", "c.TXT", "g/h.md"])

    def test_texts_in_a_folder_of_attachments_are_none(self):
        plan = self.plan({"a.md": "x", "a.assets/b.txt": "x", "c.assets/d.txt": "x"})
        self.assertEqual([n.path for n in plan.notes], ["a.md", "c.assets/d.txt"])

    def test_a_file_in_another_encoding_fails(self):
        plan = self.plan({"a.md": b"\xc3(", "b.md": "\ufeffx".encode("utf-16-le")})
        self.assertEqual(([n.title for n in plan.notes], plan.files.failed), (["b"], ["a.md"]))

    def test_what_is_linked_symbolically_is_taken_once(self):
        self.write({"b/c.md": "# C\n", "d.md": "[x](a/c.md) [y](Z.md)\n"})
        (self.root / "a").symlink_to("b")
        (self.root / "Z.md").symlink_to("d.md")
        (self.root / "e.md").symlink_to("nowhere")
        plan = NotebookPlan(self.root)
        self.assertEqual([n.path for n in plan.notes], ["d.md", "b/c.md"])
        self.assertEqual(([l.kind for l in plan.leads], plan.files.failed), (["wiki", "wiki"], ["e.md"]))


class TitlesOfNotes(Notebook):
    def test_a_first_heading_wins(self):
        front = "---\ntitle: Front\n---\n"
        files = {"a.md": front + "# One\n", "b.md": front + "## Two\n", "c.md": "## Two\n", "d.md": front + "x"}
        self.assertEqual(
            self.titles(files),
            {"a.md": "One", "b.md": "Front", "c.md": "Two", "d.md": "Front"})

    def test_a_text_without_heading_gets_the_name_of_the_file(self):
        self.assertEqual(
            self.titles({"a.md": "Some words\n", "b.md": "", "c.md": "text\n\n# Later\n", "d.md": "> # Quoted\n"}),
            {"a.md": "a", "b.md": "b", "c.md": "c", "d.md": "d"})

    def test_a_first_line_that_equals_the_name_stays_as_it_is_written(self):
        self.assertEqual(self.titles({"an idea.md": "An *Idea*\n\nx"}), {"an idea.md": "An Idea"})

    def test_a_page_of_a_folder_has_its_name(self):
        self.assertEqual(
            self.titles({"README.md": "x", "s/index.md": "x", "s/t/Readme.md": "# T"}),
            {"README.md": "Träume b", "s/index.md": "s", "s/t/Readme.md": "T"})

    def test_headings_of_three_files_of_a_folder_name_none_of_them(self):
        same = {f"s/{n}.md": "## Fixes\n" for n in "abc"} | {f"t/{n}.md": "# Fixes\n" for n in "abc"}
        self.assertEqual(self.titles(same), {path: path[2] for path in same})

    def test_headings_of_two_files_do_and_so_do_those_of_several_folders(self):
        few = {"a.md": "# Fixes\n", "b.md": "# Fixes\n", "s/c.md": "# Fixes\n", "d.md": "Fixes\n"}
        self.assertEqual(self.titles(few), {"a.md": "Fixes", "b.md": "Fixes", "s/c.md": "Fixes", "d.md": "d"})

    def test_headings_count_as_the_same_without_case_and_accents(self):
        self.assertEqual(
            self.titles({"a.md": "# Été\n", "b.md": "## ETE\n", "c.md": "été\n===\n"}),
            {"a.md": "a", "b.md": "b", "c.md": "c"})

    def test_comments_and_empty_anchors_do_not_hide_a_heading(self):
        self.assertEqual(
            self.titles({"a.md": "<!-- c\n\n-->\n<a id='x'></a>\n\n# One\n", "b.md": "<!-- c -->\nwords\n"}),
            {"a.md": "One", "b.md": "b"})

    def test_a_plain_text_keeps_its_first_line(self):
        for rule in ("auto", "text", "file", "unique"):
            with self.subTest(rule=rule):
                self.assertEqual(self.titles({"a.txt": "words\nx"}, rule), {"a.txt": "words"})

    def test_by_text_alone(self):
        self.assertEqual(
            self.titles({"a.md": "words", "b.md": "---\ntitle: T\n---\nx", "c.md": "---\ntitle: T\n---\n## H"}, "text"),
            {"a.md": "words", "b.md": "T", "c.md": "H"})
        self.assertEqual(self.titles({"a.md": "<!-- c -->\n\n# H"}, "text")["a.md"], "")

    def test_by_file_alone(self):
        files = {"a.md": "# One", "s/README.md": "# Two"}
        self.assertEqual(self.titles(files, "file"), {"a.md": "a", "s/README.md": "s"})

    def test_shared_titles_are_told_apart_by_the_shortest_end_of_the_path(self):
        self.assertEqual(
            self.titles({"s/a.md": "# X", "t/a.md": "# x", "t/b.md": "# X", "c.md": "# Y"}, "unique"),
            {"s/a.md": "X (s/a)", "t/a.md": "x (t/a)", "t/b.md": "X (b)", "c.md": "Y"})

    def test_a_plain_text_keeps_a_shared_title(self):
        self.assertEqual(
            self.titles({"a.txt": "X", "b.md": "# X", "c.txt": "X"}, "unique"),
            {"a.txt": "X", "b.md": "X (b)", "c.txt": "X"})


class LinksByPath(Notebook):
    def test_a_path_is_tried_as_it_is_with_an_ending_and_as_a_page(self):
        text = "[1](s/b.md) [2](s/b) [3](s/b.html) [4](t) [5](t/) [6](u) "
        text += "[7](/s/b.md) [8](./s/../s/b.md) [9](s%2Fb.md?q=1)"
        files = {"a.md": text, "s/b.md": "", "t/README.md": "# R", "t/index.md": "# I", "u/index.md": ""}
        to_b = ("wiki", "s/b.md")
        self.assertEqual(
            self.leads(files),
            [to_b] * 3 + [("wiki", "t/README.md")] * 2 + [("wiki", "u/index.md")] + [to_b] * 3)

    def test_a_path_goes_from_the_file_and_never_out_of_the_root(self):
        plan = self.plan({"s/c.md": "[1](b.md) [2](../d.md) [3](../../x.md) [4](/../x)", "s/b.md": "", "d.md": ""})
        self.assertEqual([lead.kind for lead in plan.leads], ["wiki", "wiki", "outside", "outside"])

    def test_other_files_and_what_is_not_there_are_told(self):
        text = "[1](p.pdf) ![2](p.png) [3](s) [4](no.md) [5](B.md)"
        files = {"a.md": text, "p.pdf": "", "p.png": "", "s/q.pdf": "", "b.md": ""}
        self.assertEqual(self.leads(files), ["files", "files", "nowhere", "nowhere", "nowhere"])

    def test_the_web_code_and_empty_links_are_no_links(self):
        text = "[1](https://b.md) <mailto:b@c.de> [3]() `[4](b.md)` [5](#b) [6](//c/d)"
        self.assertEqual(self.leads({"a.md": text, "b.md": ""}), ["within"])

    def test_each_use_of_a_definition_counts(self):
        self.assertEqual(
            self.leads({"a.md": "[b] [x][b] [no][c]\n\n[b]: b.md\n[unused]: b.md", "b.md": ""}), [("wiki", "b.md")] * 2)

    def test_a_shared_title_is_led_to_by_identifier(self):
        files = {"a.md": "[1](b.md) [2](c.md)", "b.md": "# X", "s/b.md": "# x", "c.md": "# Y"}
        self.assertEqual(self.leads(files), [("byIdentifier", "b.md"), ("wiki", "c.md")])
        self.assertEqual(self.leads(files, titles="unique"), [("wiki", "b.md"), ("wiki", "c.md")])

    def test_a_text_that_no_alias_can_say_is_led_by_identifier(self):
        text = "[a \\[x\\]](b.md) [![p](p.png)](b.md) ![note](b.md)"
        self.assertEqual(
            self.leads({"a.md": text, "b.md": "# B", "p.png": ""}),
            [("byIdentifier", "b.md"), ("byIdentifier", "b.md"), "files", ("wiki", "b.md")])

    def test_a_cell_of_a_table_takes_no_other_text(self):
        text = "| h |\n|---|\n| [B](b.md) |\n| [other](b.md) |\n| [[b\\|other]] |\n| [[b\\|B]] |\n"
        kinds = [kind for kind, _ in self.leads({"a.md": text, "b.md": "# B"})]
        self.assertEqual(kinds, ["wiki", "byIdentifier", "byIdentifier", "wiki"])

    def test_a_link_stays_where_the_title_or_a_tag_would_change(self):
        self.assertEqual(
            self.leads({"a.md": "# See [*b*](b.md) [b](b.md)\n\n[*b*](b.md) [#tag](b.md)\n", "b.md": ""}),
            ["left", ("wiki", "b.md"), ("wiki", "b.md"), "left"])

    def test_a_link_in_a_title_stays_where_its_anchor_would_show(self):
        text = "# [[b#x]] [[b#x|c]]\n\n[[b#x]]"
        self.assertEqual(self.leads({"a.md": text, "b.md": ""}), ["left", ("wiki", "b.md"), ("wiki", "b.md")])

    def test_no_link_goes_into_another(self):
        text = "[see [[b]] now](https://x.org) [see [[c]] now](https://x.org)"
        files = {"a.md": text, "b.md": "# X", "c.md": "", "d.md": "# X"}
        self.assertEqual(self.leads(files), ["left", ("wiki", "c.md")])

    def test_a_link_that_holds_others_is_one(self):
        text = "[1 [[c]] 2](b.md) [3 [4](c.md)](b.md) [![5](p.png)](b.md)"
        self.assertEqual(
            self.leads({"a.md": text, "b.md": "", "c.md": ""}),
            [("byIdentifier", "b.md"), ("wiki", "c.md"), "left", ("byIdentifier", "b.md"), "nowhere"])

    def test_anchors_lead_to_the_note(self):
        plan = self.plan({"a.md": "[1](b.md#x) [2](b.md) [[b#x]] [3](no.md#x) [[no#x]]", "b.md": ""})
        self.assertEqual((plan.count["anchors"], plan.count["wiki"]), (2, 3))


class LinksByName(Notebook):
    def test_path_end_of_a_path_name_title_and_other_name(self):
        text = "[[s/t/b]] [[t/b.md]] [[B]] [[the title]] [[nick]] [[s/T]] [[no]]"
        files = {"a.md": text, "s/t/b.md": "---\naliases: [Nick]\n---\n# The Títle\n"}
        self.assertEqual(self.leads(files), [("wiki", "s/t/b.md")] * 5 + ["waiting"] * 2)

    def test_a_name_wins_over_a_title_and_a_title_over_another_name(self):
        other = "---\naliases: c\n---\n# Z"
        files = {"a.md": "[[b]] [[c]]", "b.md": "# X", "d.md": "# B", "e.md": "# C", "f.md": other}
        self.assertEqual(self.leads(files), [("wiki", "b.md"), ("wiki", "e.md")])

    def test_of_several_the_own_folder_then_the_shortest_path_then_the_name(self):
        plan = self.plan({
            "s/a.md": "[[x]] [[y]] [[z]]", "s/x.md": "# 1", "x.md": "# 2",
            "t/y.md": "# 3", "t/u/y.md": "# 4", "t/z.md": "# 5", "q/z.md": "# 6"})
        self.assertEqual([lead.target.path for lead in plan.leads], ["s/x.md", "t/y.md", "q/z.md"])
        self.assertEqual(plan.count["ambiguous"], 3)

    def test_a_number_sign_is_part_of_a_name_where_there_is_one(self):
        files = {"a.md": "[[C#]] [[C#Intro]] [[#Here]] [[#Here|x]]", "C#.md": "", "C.md": ""}
        self.assertEqual(self.leads(files), [("wiki", "C#.md"), ("wiki", "C.md"), "within", "within"])

    def test_embedded_notes_are_links_and_embedded_files_are_none(self):
        text = "![[b]] ![[p.png|100]] ![[q.png]] ![[X]]"
        files = {"a.md": text, "b.md": "", "s/p.png": "", "c.md": "# X", "d.md": "# X"}
        self.assertEqual(self.leads(files), [("wiki", "b.md"), "files", "waiting", "left"])

    def test_a_bar_behind_a_backslash_parts_in_tables_only(self):
        self.assertEqual(self.leads({"a.md": "[[b\\|c]]", "b.md": ""}), ["waiting"])

    def test_kept_links_lead_by_title_alone(self):
        files = {"a.md": "[[B]] [[c]] [x](b.md) [y](no.md) [[Two]]", "b.md": "# B", "c.md": "# Two", "d.md": "# Two"}
        leads = self.leads(files, links="keep")
        self.assertEqual(leads, [("wiki", "b.md"), "waiting", "as it is", "nowhere", ("wiki", "c.md")])


class Figures(Notebook):
    def test_orphans_are_notes_from_and_to_which_nothing_leads(self):
        files = {"a.md": "[1](b.md)", "b.md": "", "c.md": "[[no]]", "d.md": "", "e.md": "[2](f.md)"}
        files |= {"f.md": "# X", "g.md": "# X"}
        figures = counted(self.plan(files))
        self.assertEqual((figures["orphans"], figures["unlinked"]), (3, 4))

    def test_titles_are_counted_without_case(self):
        self.assertEqual(counted(self.plan({"a.md": "# X", "b.md": "# x", "c.md": "# Y"}))["titles"], 2)


if __name__ == "__main__":
    unittest.main()
