#include "tests/support/StoreFixture.h"

#include "tarnmodel/notes/Paragraphs.h"

namespace tarn {
namespace {

struct EditCase {
    std::string before;
    std::string addition;
    std::string after;
};

class NoteTextEditing : public StoreFixture {
protected:
    template <typename Edit> void check(const std::vector<EditCase>& cases, Edit edit)
    {
        for (const auto& [before, addition, after] : cases) {
            OVNote& edited = note(before);
            edit(edited, addition);
            EXPECT_EQ(edited.text(), after)
                << testing::PrintToString(before) << " and " << testing::PrintToString(addition);
        }
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteTextEditing, everyStore(), storeName);

TEST_P(NoteTextEditing, PrependsBelowATitleLineElseInFront)
{
    const std::vector<EditCase> cases{
        {"# A\nbody", "x", "# A\nx\nbody"},
        {"body", "x", "x\nbody"},
        {"# A", "x", "# A\nx"},
        {"# A", "\nx", "# A\nx"},
        {"# A\nbody", "\nx\n", "# A\nx\n\nbody"},
        {"# A\nbody", "", "# A\nbody"},
        {"## A\nbody", "x", "x\n## A\nbody"},
        {"#A\nbody", "x", "x\n#A\nbody"},
        {"\nbody", "x", "x\nbody"},
        {"body", "x\n", "x\nbody"},
        {"", "x", "x"},
        {"", "", ""},
        {"# Ä\nbody", "ö", "# Ä\nö\nbody"},
        {"# 😀\n\nbody", "𝒜", "# 😀\n𝒜\n\nbody"},
        {"# A\r\nbody", "x", "# A\r\nx\nbody"},
    };
    check(cases, [](OVNote& note, const std::string& addition) { note.prependNoteWithText(addition); });
}

TEST_P(NoteTextEditing, AppendsOnLinesOfItsOwnAboveALineOfTags)
{
    const std::vector<EditCase> cases{
        {"", "x", "x"},
        {"body", "x", "body\nx"},
        {"body\n", "x", "body\nx"},
        {"body", "\nx", "body\nx"},
        {"# T\n\nbody\n\n#tag\n", "x", "# T\n\nbody\n\nx\n\n#tag\n"},
        {"# T\n\nbody\n\n#tag", "x", "# T\n\nbody\n\nx\n\n#tag"},
        {"# T\n\nbody\n#tag", "x", "# T\n\nbody\nx\n\n#tag"},
        {"# T\n\n#work #home", "x", "# T\n\nx\n\n#work #home"},
        {"# T\n\n#work #home", "x\n", "# T\n\nx\n\n#work #home"},
        {"# T\n\n#work #home", "x\n\n", "# T\n\nx\n\n#work #home"},
        {"# T\n\n  #tag  \n \n\n", "x", "# T\n\nx\n\n  #tag  \n \n\n"},
        {"#tag", "x", "x\n\n#tag"},
        {"#tag\n\n", "x", "#tag\n\nx"},
        {"# T\n\n#not-a-tag# yes", "x", "# T\n\n#not-a-tag# yes\nx"},
        {"# T\n\n#1 is a number", "x", "# T\n\n#1 is a number\nx"},
        {"# T\n\n# heading", "x", "# T\n\n# heading\nx"},
        {"# T\n\n#two words#", "x", "# T\n\n#two words#\nx"},
        {"# T #tag\n\n#Tag", "x", "# T #tag\n\n#Tag\nx"},
        {"# T\n\n#tag, #other", "x", "# T\n\n#tag, #other\nx"},
        {"\n\n\n", "x", "\n\n\nx"},
        {"# T\r\n\r\n#tag\r\n", "x", "# T\r\n\r\nx\n\n#tag\r\n"},
        {"# 😀\n\n𝒜\n\n#ütag", "𝒜", "# 😀\n\n𝒜\n\n𝒜\n\n#ütag"},
        {"\n#tag", "x", "\nx\n\n#tag"},
        {"# T #a/b\n\n#a more", "x", "# T #a/b\n\nx\n\n#a more"},
    };
    check(cases, [](OVNote& note, const std::string& addition) { note.appendNoteWithText(addition); });
}

TEST_P(NoteTextEditing, LooksAtTheFirstBlankLineOnlyWhenItSpacesTags)
{
    const std::vector<EditCase> cases{
        {"# T\n\n#tag", "x\n\ny\n\n", "# T\n\nx\n\ny\n\n\n#tag"},
        {"# T\n\n#tag", "x\n\n\n", "# T\n\nx\n\n\n\n#tag"},
    };
    check(cases, [](OVNote& note, const std::string& addition) { note.appendNoteWithText(addition); });
}

TEST_P(NoteTextEditing, AppendsAsItIsWithoutNewLine)
{
    const std::vector<EditCase> cases{
        {"body", "x", "bodyx"},
        {"# T\n\nbody\n\n#tag\n", "x", "# T\n\nbody\n\nx#tag\n"},
        {"", "x", "x"},
    };
    check(cases, [](OVNote& note, const std::string& addition) { note.appendNoteWithText(addition, false); });
}

TEST_P(NoteTextEditing, AppendsNothingWithoutTouchingTheNote)
{
    OVNote& edited = note("body");
    const auto modified = edited.modificationDate();
    const auto clock = edited.vectorClock();

    edited.appendNoteWithText("");
    edited.appendNoteWithText("", false);

    EXPECT_EQ(edited.text(), "body");
    EXPECT_EQ(edited.modificationDate(), modified);
    EXPECT_EQ(edited.vectorClock(), clock);
}

TEST_P(NoteTextEditing, ReplacesAllButAHeading)
{
    const std::vector<EditCase> cases{
        {"# Title\nold", "new", "# Title\nnew"},
        {"## Title\nold\nolder", "new", "## Title\nnew"},
        {"### Title\n", "new", "### Title\nnew"},
        {"# Title\r\nold", "new", "# Title\r\nnew"},
        {"#### Title\nold", "new", "\nnew"},
        {"# Title", "new", "\nnew"},
        {"Title\nold", "new", "\nnew"},
        {"#tag\nold", "new", "\nnew"},
        {"", "new", "\nnew"},
        {"# Title\nold", "", "# Title\n"},
    };
    check(cases, [](OVNote& note, const std::string& addition) { note.replaceNoteWithText(addition); });
}

TEST_P(NoteTextEditing, DerivesTheNoteAnew)
{
    OVNote& edited = note("# Old\nbody");
    const auto modified = edited.modificationDate();

    edited.prependNoteWithText("- [ ] first");
    EXPECT_EQ(edited.todoIncompletedValue(), 1);
    EXPECT_GT(edited.modificationDate(), modified);

    edited.appendNoteWithText("#new");
    EXPECT_TRUE(edited.hasTag("new"));

    edited.replaceNoteWithText("changed");
    EXPECT_EQ(edited.title(), "Old");
    EXPECT_EQ(edited.todoIncompletedValue(), 0);
    EXPECT_FALSE(edited.hasTag("new"));
}

TEST_P(NoteTextEditing, TakesANoteWithoutTextForAnEmptyOne)
{
    OVNote& untouched = noteTitled("a");
    untouched.appendNoteWithText("x");
    EXPECT_EQ(untouched.text(), "x");
    OVNote& other = noteTitled("b");
    other.prependNoteWithText("x");
    EXPECT_EQ(other.text(), "x");
}

TEST(Paragraph, EndsAfterItsSeparator)
{
    const std::string_view text = "a\nb\r\nc\rd\u2029e\u2028f";
    const std::vector<ParagraphRange> expected{{0, 2}, {2, 5}, {5, 7}, {7, 11}, {11, 16}};
    for (const ParagraphRange& paragraph : expected) {
        for (std::size_t offset = paragraph.start; offset < paragraph.end; ++offset)
            EXPECT_EQ(paragraphAtOffset(text, offset), paragraph) << offset;
    }
}

TEST(Paragraph, IsEmptyBetweenTwoSeparators)
{
    EXPECT_EQ(paragraphAtOffset("\n\n\n", 1), (ParagraphRange{1, 2}));
    EXPECT_EQ(paragraphAtOffset("\r\n\r\n", 2), (ParagraphRange{2, 4}));
    EXPECT_EQ(paragraphAtOffset("\n\r", 0), (ParagraphRange{0, 1}));
}

} // namespace
} // namespace tarn
