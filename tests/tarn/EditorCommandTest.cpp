#include "tests/tarn/ForeignWriter.h"
#include "tests/tarn/TarnCommandTest.h"

#include <array>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <thread>

namespace tarn::test {

namespace fs = std::filesystem;

/// `tarn edit` with editors that are scripts.
class EditorCommand : public TarnCommandTest {
protected:
    EditorCommand() { fs::create_directories(temporary()); }

    fs::path temporary() const { return folder() / "tmp"; }
    fs::path script(const std::string& name, const std::string& lines) const
    {
        const fs::path path = file(name, "#!/bin/sh\n" + lines);
        fs::permissions(path, fs::perms::owner_all);
        return path;
    }
    std::unique_ptr<TarnProcess> processWithEditor(const std::string& editor, std::vector<std::string> given) const
    {
        auto process = std::make_unique<TarnProcess>(arguments(std::move(given)));
        process->setVariable("EDITOR", editor);
        process->setVariable("PATH", "/usr/bin:/bin");
        process->setVariable("TMPDIR", temporary().string());
        process->setVariable("TARN", TARN_PROGRAM);
        process->setVariable("TARN_STORE", store().string());
        return process;
    }
    TarnResult runWithEditor(const std::string& editor, std::vector<std::string> given) const
    {
        return processWithEditor(editor, std::move(given))->finish();
    }
    /// Runs an editor that is a script.
    TarnResult editBy(const std::string& lines, const std::string& note) const
    {
        return runWithEditor("'" + script("editor.sh", lines).string() + "'", {"edit", note});
    }
    /// The one file that was left, if `errors` names it; its contents.
    std::string keptText(const std::string& errors) const
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::recursive_directory_iterator(temporary())) {
            if (entry.is_regular_file())
                files.push_back(entry.path());
        }
        if (files.size() != 1 || errors.find(files.front().string()) == std::string::npos)
            return std::to_string(files.size()) + " files; " + errors;
        std::ifstream stream(files.front(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    bool leftNothing() const { return fs::is_empty(temporary()); }
    static void waitFor(const fs::path& path)
    {
        for (int attempt = 0; attempt < 1'000 && !fs::exists(path); ++attempt)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        ASSERT_TRUE(fs::exists(path)) << path;
    }
};

// What comes back -----------------------------------------------------------------------------------------------------

TEST_F(EditorCommand, OpensANoteInTheEditorAndSavesWhatComesBack)
{
    const std::string identifier = note("# T\nold\r\n\n");
    const TarnResult result = runWithEditor("sed -i -e s/old/new/", {"--json", "edit", identifier});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(nlohmann::json::parse(result.output).at("subtitle"), "new");
    EXPECT_EQ(output({"show", identifier}), "# T\nnew\r\n\n");
    EXPECT_TRUE(leftNothing());
}

TEST_F(EditorCommand, LeavesANoteAloneThatTheEditorDidNotChange)
{
    const std::string identifier = note("# T");
    const auto before = json({"show", identifier});
    for (const char* editor : {"true", "touch", "sh -c 'cp \"$1\" \"$1~\"' sh"}) {
        const TarnResult result = runWithEditor(editor, {"edit", identifier});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "tarn: nothing was changed\n");
        EXPECT_TRUE(leftNothing()) << editor;
    }
    EXPECT_EQ(json({"show", identifier}), before);
}

TEST_F(EditorCommand, TakesVisualBeforeEditor)
{
    const std::string identifier = note("# T");
    const auto editors = [&](const std::string& visual) {
        auto process = processWithEditor("sed -i s/T/E/", {"edit", identifier});
        process->setVariable("VISUAL", visual);
        EXPECT_EQ(process->finish().exitCode, 0);
        return output({"show", identifier});
    };
    EXPECT_EQ(editors("sed -i s/T/V/"), "# V");
    output({"replace", identifier, "T"});
    EXPECT_EQ(editors(""), "\nE");
}

TEST_F(EditorCommand, NeedsAnEditor)
{
    note("# T");
    const TarnResult result = runWithEditor("", {"edit", "T"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.errors.find("VISUAL or EDITOR"), std::string::npos) << result.errors;
}

TEST_F(EditorCommand, SavesAnEmptyTextOnlyWhenTold)
{
    const std::string identifier = note("# T\n\nbody");
    for (const char* editor : {"truncate -s 0", "printf '\\n \\t\\n' >"}) {
        const TarnResult refused = runWithEditor(editor, {"edit", identifier});
        EXPECT_EQ(refused.exitCode, 1);
        EXPECT_NE(refused.errors.find("--allow-empty"), std::string::npos) << refused.errors;
        EXPECT_EQ(output({"show", identifier}), "# T\n\nbody");
    }
    EXPECT_EQ(runWithEditor("truncate -s 0", {"edit", "--allow-empty", identifier}).exitCode, 0);
    EXPECT_EQ(output({"show", identifier}), "");
    EXPECT_EQ(runWithEditor("printf ' ' >", {"edit", identifier}).exitCode, 0) << "there was nothing to lose";
    EXPECT_EQ(output({"show", identifier}), " ");
}

TEST_F(EditorCommand, EditsAFileThatNobodyElseCanRead)
{
    const std::string identifier = note("# T");
    const fs::path modes = folder() / "modes";
    EXPECT_EQ(editBy("stat -c %a \"$(dirname \"$1\")\" > '" + modes.string() + "'", identifier).exitCode, 0);
    std::ifstream stream(modes);
    std::string mode;
    stream >> mode;
    EXPECT_EQ(mode, "700");
}

// What goes wrong -----------------------------------------------------------------------------------------------------

TEST_F(EditorCommand, RemovesAnUnchangedFileWhenTheEditorFails)
{
    const std::string identifier = note("# T");
    for (const char* editor : {"false", "no-such-editor", "sh -c 'kill -9 $$' sh"}) {
        const TarnResult failed = runWithEditor(editor, {"edit", identifier});
        EXPECT_EQ(failed.exitCode, 1);
        EXPECT_NE(failed.errors.find("nothing was saved"), std::string::npos) << failed.errors;
        EXPECT_TRUE(leftNothing()) << editor;
    }
}

TEST_F(EditorCommand, KeepsAChangedFileWhenTheEditorFailsOrCrashes)
{
    const std::string identifier = note("# T");
    for (const char* end : {"exit 1", "kill -9 $$", "kill -SEGV $$"}) {
        const TarnResult failed = editBy("echo edited > \"$1\"\n" + std::string(end), identifier);
        EXPECT_EQ(failed.exitCode, 1);
        EXPECT_EQ(keptText(failed.errors), "edited\n") << end;
        fs::remove_all(temporary());
        fs::create_directories(temporary());
    }
    EXPECT_EQ(output({"show", identifier}), "# T");
}

TEST_F(EditorCommand, KeepsWhatACrashedEditorPutBesideTheFile)
{
    note("# T");
    const TarnResult failed = editBy("echo unsaved > \"$(dirname \"$1\")/.note.md.swp\"\nkill -9 $$", "T");
    EXPECT_NE(failed.errors.find(temporary().string()), std::string::npos) << failed.errors;
    EXPECT_FALSE(leftNothing());
}

TEST_F(EditorCommand, KeepsATextThatIsNoUTF8)
{
    const std::string identifier = note("# T");
    const TarnResult result = runWithEditor("printf '\\344' >", {"edit", identifier});
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_NE(result.errors.find("not UTF-8"), std::string::npos) << result.errors;
    EXPECT_EQ(keptText(result.errors), "\xE4");
    EXPECT_EQ(output({"show", identifier}), "# T");
}

/// What somebody else does while the editor is open, after which the text cannot be saved.
TEST_F(EditorCommand, KeepsATextWhoseNoteCannotTakeItAnyMore)
{
    for (const char* command : {"delete --yes", "trash", "archive", "readonly"}) {
        const std::string identifier = note("# T");
        const TarnResult result
            = editBy("\"$TARN\" " + std::string(command) + " " + identifier + " && echo edited > \"$1\"", identifier);
        EXPECT_EQ(result.exitCode, 1) << command;
        EXPECT_EQ(keptText(result.errors), "edited\n") << command;
        fs::remove_all(temporary());
        fs::create_directories(temporary());
    }
}

// Others at the same time ---------------------------------------------------------------------------------------------

TEST_F(EditorCommand, LeavesTheStoreToOthersWhileTheEditorIsOpen)
{
    const std::string identifier = note("# T");
    const TarnResult result = editBy("TARN_LOCK_WAIT=0 \"$TARN\" new '# Other' && echo more >> \"$1\"", identifier);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(json({"list"}).at("count"), 2);
    EXPECT_EQ(output({"show", identifier}), "# Tmore\n");
}

TEST_F(EditorCommand, KeepsBothTextsWhenANoteWasChangedMeanwhile)
{
    const std::string identifier = note("# T\nold #tag");
    const std::string source = note("# S\n\n[[T]]");
    const TarnResult result = runWithEditor(
        "'" + script("editor.sh", "\"$TARN\" append " + identifier + " theirs; echo ' ours' >> \"$1\"").string() + "'",
        {"--json", "edit", identifier});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(output({"show", identifier}), "# T\nold #tag\ntheirs");
    const auto copy = nlohmann::json::parse(result.output.substr(result.output.find('{')));
    const std::string kept = copy.at("uniqueIdentifier");
    EXPECT_NE(kept, identifier);
    EXPECT_EQ(output({"show", kept}), "# T\nold #tag ours\n");
    EXPECT_EQ(copy.at("tags"), nlohmann::json({"tag"}));
    for (const std::string& name : {identifier.substr(0, 8), kept.substr(0, 8)})
        EXPECT_NE(result.errors.find(name), std::string::npos) << result.errors;
    const auto groups = json({"conflicts"}).at("groups");
    ASSERT_EQ(groups.size(), 1U);
    EXPECT_EQ(groups.at(0).at("root"), identifier);
    EXPECT_EQ(groups.at(0).at("notes").at(0).at("uniqueIdentifier"), kept) << "the latest first";
    EXPECT_TRUE(leftNothing()) << "the text is in the store";
    EXPECT_EQ(output({"show", source}), "# S\n\n[[T]]");
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
    EXPECT_EQ(run({"conflict", "resolve", kept}).exitCode, 0);
    EXPECT_EQ(json({"list"}).at("count"), 2);
}

TEST_F(EditorCommand, AChangeOfTheStateAloneIsNoConflict)
{
    const std::string identifier = note("# T");
    const TarnResult result = editBy("\"$TARN\" pin " + identifier + "; echo more >> \"$1\"", identifier);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(json({"show", identifier}).at("pinned"), true);
    EXPECT_EQ(output({"show", identifier}), "# Tmore\n");
    EXPECT_EQ(run({"conflicts"}).exitCode, 1);
}

TEST_F(EditorCommand, TwoEditorsThatWroteTheSameAreNoConflict)
{
    const std::string identifier = note("# T");
    const TarnResult result = editBy(
        "EDITOR='sed -i s/T/U/' \"$TARN\" edit " + identifier + "; echo '# U' | head -c 3 > \"$1\"", identifier);
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(output({"show", identifier}), "# U");
    EXPECT_EQ(run({"conflicts"}).exitCode, 1);
}

TEST_F(EditorCommand, TakesTheTextOfAnApplicationForAnotherWriter)
{
    const std::string identifier = note("# T");
    auto process = processWithEditor("'"
            + script("editor.sh",
                "echo ours > \"$1\"; touch \"$TMPDIR/open\"; while [ -e \"$TMPDIR/open\" ]; do sleep 0.02; done")
                  .string()
            + "'",
        {"edit", identifier});
    process->start();
    waitFor(temporary() / "open");
    ForeignWriter(database()).changeText(identifier, "theirs");
    fs::remove(temporary() / "open");
    EXPECT_EQ(process->finish().exitCode, 0);
    EXPECT_EQ(output({"show", identifier}), "theirs");
    EXPECT_EQ(json({"conflicts"}).at("groups").size(), 1U);
}

// Signals -------------------------------------------------------------------------------------------------------------

constexpr std::array kEndingSignals{SIGINT, SIGTERM, SIGHUP};

TEST_F(EditorCommand, TellsWhereTheTextIsWhenItIsInterruptedWhileTheEditorIsOpen)
{
    const std::string identifier = note("# T");
    const std::string editor
        = script("editor.sh", "echo edited > \"$1\"; touch '" + (folder() / "open").string() + "'; exec sleep 20")
              .string();
    for (const int signal : kEndingSignals) {
        auto process = processWithEditor("'" + editor + "'", {"edit", identifier});
        process->start();
        waitFor(folder() / "open");
        process->sendSignal(signal);
        const TarnResult result = process->finish();
        EXPECT_EQ(result.signal, signal) << result.exitCode;
        EXPECT_EQ(keptText(result.errors), "edited\n") << signal;
        EXPECT_EQ(output({"show", identifier}), "# T");
        fs::remove(folder() / "open");
        fs::remove_all(temporary());
        fs::create_directories(temporary());
    }
}

TEST_F(EditorCommand, DoesNotWaitForAnEditorThatWillNotEnd)
{
    const std::string identifier = note("# T");
    const std::string lines = "trap '' TERM; touch '" + (folder() / "open").string()
        + "'; for i in 1 2 3 4 5 6 7 8 9 10 11 12; do sleep 0.5; done > /dev/null 2>&1; echo late > \"$1\"";
    auto process = processWithEditor("'" + script("editor.sh", lines).string() + "'", {"edit", identifier});
    process->start();
    waitFor(folder() / "open");
    process->sendSignal(SIGTERM);
    for (int attempt = 0; attempt < 500 && process->isRunning(); ++attempt)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_FALSE(process->isRunning());
    const TarnResult result = process->finish(); // once the editor has let go of the pipes
    EXPECT_NE(result.errors.find("the editor is still open"), std::string::npos) << result.errors;
    EXPECT_EQ(keptText(result.errors), "late\n") << "the editor has found its file";
}

TEST_F(EditorCommand, TellsWhereTheTextIsWhenItIsInterruptedWhileItWaitsToSave)
{
    const std::string identifier = note("# T");
    for (const int signal : kEndingSignals) {
        auto process = processWithEditor("'"
                + script("editor.sh", "echo edited > \"$1\"; touch '" + (folder() / "open").string() + "'; sleep 0.3")
                      .string()
                + "'",
            {"edit", identifier});
        process->start();
        waitFor(folder() / "open");
        const HeldLock lock(database().parent_path() / "tarn.lock");
        std::this_thread::sleep_for(std::chrono::milliseconds(700));
        process->sendSignal(signal);
        const TarnResult result = process->finish();
        EXPECT_EQ(result.signal, signal) << result.exitCode;
        EXPECT_EQ(keptText(result.errors), "edited\n") << signal;
        fs::remove(folder() / "open");
        fs::remove_all(temporary());
        fs::create_directories(temporary());
    }
}

TEST_F(EditorCommand, LeavesControlCToTheEditor)
{
    const std::string identifier = note("# T");
    auto process = processWithEditor("'"
            + script("editor.sh",
                "trap 'echo heard >> \"$1\"; exit 0' INT; touch '" + (folder() / "open").string()
                    + "'; while :; do sleep 0.05; done")
                  .string()
            + "'",
        {"edit", identifier});
    process->useTerminal();
    process->start();
    waitFor(folder() / "open");
    process->setInput("\x03");
    const TarnResult result = process->finish();
    EXPECT_EQ(result.exitCode, 0) << result.signal << result.output;
    EXPECT_EQ(output({"show", identifier}), "# Theard\n");
    EXPECT_TRUE(leftNothing());
}

} // namespace tarn::test
