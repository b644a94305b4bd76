// `tarn edit --create`, with editors that are scripts.

#include "tests/tarn/TarnCommandTest.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/files/TitledText.h"

#include "tarnmodel/corvel/CVKAST.h"

namespace tarn::test {

namespace fs = std::filesystem;

class EditorCreate : public TarnCommandTest {
protected:
    EditorCreate() { fs::create_directories(temporary()); }

    fs::path temporary() const { return folder() / "tmp"; }
    TarnResult editBy(const std::string& editor, std::vector<std::string> given) const
    {
        given.insert(given.begin(), "edit");
        TarnProcess process(arguments(std::move(given)));
        process.setVariable("EDITOR", editor);
        process.setVariable("PATH", "/usr/bin:/bin");
        process.setVariable("TMPDIR", temporary().string());
        process.setVariable("TARN", TARN_PROGRAM);
        process.setVariable("TARN_STORE", store().string());
        return process.finish();
    }
    bool leftNothing() const { return fs::is_empty(temporary()); }
};

TEST_F(EditorCreate, MakesANoteThatIsNotThere)
{
    const TarnResult result = editBy("echo text >>", {"--json", "--create", "Packing *list* #trip"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(nlohmann::json::parse(result.output).at("title"), "Packing *list* #trip");
    EXPECT_TRUE(output({"show", "Packing *list* #trip"}).ends_with("\n\ntext\n"));
    EXPECT_TRUE(leftNothing());
    EXPECT_EQ(editBy("echo more >>", {"--create", "packing *list* #trip"}).exitCode, 0) << "it is there now";
    EXPECT_EQ(json({"list"}).at("count"), 1);
    EXPECT_TRUE(output({"show", "Packing *list* #trip"}).ends_with("text\nmore\n"));
}

TEST_F(EditorCreate, MakesNothingWhereTheEditorChangesNothing)
{
    for (const bool isThere : {false, true}) {
        if (isThere)
            note("# Other");
        for (const char* editor : {"true", "touch"}) {
            const TarnResult result = editBy(editor, {"--create", "T"});
            EXPECT_EQ(result.exitCode, 1);
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, "tarn: no note was made\n");
            EXPECT_EQ(fs::exists(store()), isThere);
        }
    }
    EXPECT_EQ(editBy("false", {"--create", "T"}).exitCode, 1);
    EXPECT_EQ(editBy("truncate -s 0", {"--create", "T"}).exitCode, 1) << "came back empty";
    EXPECT_EQ(json({"list"}).at("count"), 1);
}

TEST_F(EditorCreate, KeepsANoteThatSomebodyElseMadeMeanwhile)
{
    const TarnResult result = editBy("\"$TARN\" new '# T'; echo mine >>", {"--create", "T"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_NE(result.errors.find("was made while the editor was open"), std::string::npos) << result.errors;
    EXPECT_EQ(json({"list"}).at("count"), 2);
}

TEST_F(EditorCreate, RefusesWhatIsNoTitle)
{
    for (const char* title : {"a\nb", " ", "\t"})
        EXPECT_NE(editBy("echo x >>", {"--create", title}).exitCode, 0) << title;
    EXPECT_EQ(editBy("echo x >>", {"T"}).exitCode, 1) << "without --create";
    EXPECT_EQ(editBy("echo x >>", {"--create", "tarn://x-callback-url/open-note?id=4711"}).exitCode, 1);
    note("# Thrown");
    output({"trash", "Thrown"});
    EXPECT_NE(editBy("echo x >>", {"--create", "Thrown"}).errors.find("'tarn restore'"), std::string::npos);
    EXPECT_EQ(json({"list", "--filter", "all"}).at("count"), 1);
}

TEST_F(EditorCreate, TakesTheTitleOfAURL)
{
    EXPECT_EQ(editBy("echo x >>", {"--create", "tarn://x-callback-url/open-note?title=A%20%26%20B"}).exitCode, 0);
    EXPECT_EQ(titlesOf(json({"list"})), std::vector<std::string>{"A & B"});
}

TEST(TitledText, HasTheTitleWhateverMarkupItLooksLike)
{
    for (const std::string title : {"Plain", "*a* _b_ `c`", "a #", "# a", "[x](y) ![z](w)", "<b> &amp; \\*", "1. one",
             "- [ ] x", "---", "Ä 日本語 🎒", "a  b", "[[wiki]] | 'q' \"r\" $x", "https://a.b/c_d_e"}) {
        const std::string text = textWithTitle(title);
        EXPECT_EQ(CVKAST::fromMarkdown(text).textSummary().title, title) << text;
        EXPECT_TRUE(text.starts_with("# ") && text.ends_with("\n\n")) << text;
    }
    EXPECT_EQ(textWithTitle("  Plain  "), "# Plain\n\n");
    EXPECT_THROW(textWithTitle(""), CommandFailure);
    EXPECT_THROW(textWithTitle("a\nb"), CommandFailure);
}

} // namespace tarn::test
