#include "tests/tarn/TarnCommandTest.h"

#include <fstream>
#include <sstream>
#include <sys/stat.h>

namespace tarn::test {

namespace fs = std::filesystem;

/// The commands that change texts and make notes of others.
class EditCommands : public TarnCommandTest {
protected:
    TarnResult runWithEditor(const std::string& editor, std::vector<std::string> given) const
    {
        TarnProcess process(arguments(std::move(given)));
        process.setVariable("EDITOR", editor);
        process.setVariable("PATH", "/usr/bin:/bin");
        process.setVariable("TMPDIR", folder().string());
        return process.finish();
    }
    std::size_t leftFolders() const
    {
        std::size_t count = 0;
        for (const auto& entry : fs::directory_iterator(folder()))
            count += entry.path().filename().string().starts_with("tarn-edit-") ? 1 : 0;
        return count;
    }
};

TEST_F(EditCommands, AppendPrependAndReplaceTexts)
{
    note("# List\n\nfirst\n\n#home");
    EXPECT_EQ(json({"append", "List", "last"}).at("title"), "List");
    EXPECT_EQ(output({"show", "List"}), "# List\n\nfirst\n\nlast\n\n#home");
    EXPECT_NE(output({"prepend", "List", "- [ ] new"}).find("List"), std::string::npos);
    EXPECT_EQ(output({"show", "List"}), "# List\n- [ ] new\n\nfirst\n\nlast\n\n#home");
    output({"replace", "List"}, "all\nnew\n");
    EXPECT_EQ(output({"show", "List"}), "# List\nall\nnew\n");
    output({"append", "List", "-"}, "from a pipe");
    EXPECT_EQ(output({"show", "List"}), "# List\nall\nnew\nfrom a pipe");
}

TEST_F(EditCommands, AppendNothingForAnEmptyText)
{
    const std::string identifier = note("body");
    const auto before = json({"show", identifier});
    EXPECT_EQ(run({"append", identifier, ""}).exitCode, 0);
    EXPECT_EQ(json({"show", identifier}), before);
}

TEST_F(EditCommands, RefuseNotesThatAreNotToBeEdited)
{
    note("# T");
    for (const auto& [state, back] : std::vector<std::pair<std::string, std::string>>{
             {"readonly", "editable"}, {"trash", "restore"}, {"archive", "unarchive"}}) {
        output({state, "T"});
        for (const std::string command : {"append", "prepend", "replace"}) {
            const TarnResult result = run({command, "T", "x"});
            EXPECT_EQ(result.exitCode, 1) << state << " " << command;
            EXPECT_NE(result.errors.find("'tarn " + back + "'"), std::string::npos) << result.errors;
        }
        EXPECT_EQ(output({"show", "T"}), "# T");
        output({back, "T"});
    }
}

TEST_F(EditCommands, RefuseAProtectedNote)
{
    note("# T\n#a");
    damage("UPDATE OVNote SET encrypted = 1");
    for (const std::vector<std::string>& command :
        std::vector<std::vector<std::string>>{{"append", "T", "x"}, {"tag", "rename", "a", "b"}, {"tag", "delete", "a"},
            {"tag", "remove", "a", "T"}, {"tag", "add", "b", "T"}}) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 3) << command.front() << " " << result.errors;
    }
    damage("UPDATE OVNote SET encrypted = 0");
    EXPECT_EQ(output({"show", "T"}), "# T\n#a");
    EXPECT_EQ(json({"tags", "--all"}).at("tags").size(), 1U);
}

TEST_F(EditCommands, RewriteLinksToAChangedTitle)
{
    note("# A\nbody");
    const std::string source = note("# S\n\n[[A]]");
    output({"replace", "A", "x"});
    EXPECT_EQ(runWithEditor("sed -i 's/# A/# B/'", {"edit", "A"}).exitCode, 0);
    EXPECT_EQ(output({"show", source}), "# S\n\n[[B]]");
}

TEST_F(EditCommands, OpenANoteInTheEditorAndSaveWhatComesBack)
{
    const std::string identifier = note("# T\nold\r\n\n");
    const TarnResult result = runWithEditor("sed -i -e s/old/new/", {"--json", "edit", identifier});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(nlohmann::json::parse(result.output).at("subtitle"), "new");
    EXPECT_EQ(output({"show", identifier}), "# T\nnew\r\n\n");
    EXPECT_EQ(leftFolders(), 0U);
}

TEST_F(EditCommands, LeaveANoteAloneThatTheEditorDidNotChange)
{
    const std::string identifier = note("# T");
    const auto before = json({"show", identifier});
    EXPECT_EQ(runWithEditor("true", {"edit", identifier}).exitCode, 0);
    EXPECT_EQ(json({"show", identifier}), before);
}

TEST_F(EditCommands, SaveNothingWhenTheEditorFails)
{
    const std::string identifier = note("# T");
    const TarnResult failed = runWithEditor("sh -c 'echo x > \"$1\"; exit 1' sh", {"edit", identifier});
    EXPECT_EQ(failed.exitCode, 1);
    EXPECT_NE(failed.errors.find("nothing was saved"), std::string::npos) << failed.errors;
    EXPECT_EQ(runWithEditor("no-such-editor", {"edit", identifier}).exitCode, 1);
    EXPECT_EQ(runWithEditor("", {"edit", identifier}).exitCode, 2);
    EXPECT_EQ(output({"show", identifier}), "# T");
    EXPECT_EQ(leftFolders(), 0U);
}

TEST_F(EditCommands, KeepAnEditedTextThatCannotBeSaved)
{
    const std::string identifier = note("# T");
    const TarnResult result = runWithEditor("printf '\\344' >", {"edit", identifier});
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_NE(result.errors.find("not UTF-8"), std::string::npos) << result.errors;
    EXPECT_EQ(leftFolders(), 1U);
    EXPECT_EQ(output({"show", identifier}), "# T");
}

TEST_F(EditCommands, EditAFileThatNobodyElseCanRead)
{
    const std::string identifier = note("# T");
    const fs::path modes = folder() / "modes";
    const TarnResult result = runWithEditor(
        "sh -c 'stat -c %a \"$(dirname \"$1\")\" > \"" + modes.string() + "\"' sh", {"edit", identifier});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    std::ifstream stream(modes);
    std::string mode;
    stream >> mode;
    EXPECT_EQ(mode, "700");
}

TEST_F(EditCommands, DuplicateANote)
{
    const std::string identifier = note("# T\n\n#home");
    const auto copy = json({"duplicate", "T"});
    EXPECT_NE(copy.at("uniqueIdentifier"), identifier);
    EXPECT_EQ(copy.at("title"), "T");
    EXPECT_EQ(copy.at("tags"), nlohmann::json({"home"}));
    EXPECT_EQ(json({"list"}).at("count"), 2);
    EXPECT_EQ(run({"duplicate", "none"}).exitCode, 1);
}

TEST_F(EditCommands, MergeNotesInTheOrderInWhichTheyAreNamed)
{
    note("# A\none");
    note("# B\ntwo");
    const auto merged = json({"merge", "B", "A"});
    EXPECT_EQ(merged.at("title"), "B");
    EXPECT_EQ(output({"show", std::string(merged.at("uniqueIdentifier"))}), "# B\ntwo\n\n# A\none");
    EXPECT_EQ(titlesOf(json({"list", "--filter", "trashed"})).size(), 2U);
    EXPECT_EQ(run({"merge", "B"}).exitCode, 2);
    EXPECT_EQ(run({"merge", "B", "B"}).exitCode, 2);
    EXPECT_EQ(run({"merge", "B", "none"}).exitCode, 1);
    EXPECT_EQ(json({"list"}).at("count"), 1);
}

} // namespace tarn::test
