#include "tests/tarn/ForeignWriter.h"
#include "tests/tarn/TarnCommandTest.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <thread>

namespace tarn::test {

namespace fs = std::filesystem;

/// The commands that change texts and make notes of others.
class EditCommands : public TarnCommandTest {
protected:
    fs::path temporary() const { return folder() / "tmp"; }
    /// Feeds a text that cannot be saved, and finds it in the file that the error names.
    TarnResult runWithTemporaryFolder(std::vector<std::string> given, std::string input) const
    {
        fs::remove_all(temporary());
        fs::create_directories(temporary());
        TarnProcess process(arguments(std::move(given)));
        process.setVariable("TMPDIR", temporary().string());
        process.setVariable("TARN_LOCK_WAIT", "0");
        process.setInput(std::move(input));
        return process.finish();
    }
    /// The text of the one file in the folder for temporary files, if the errors name it.
    std::string keptText(const std::string& errors) const
    {
        std::string text;
        for (const auto& entry : fs::recursive_directory_iterator(temporary())) {
            if (!entry.is_regular_file() || errors.find(entry.path().string()) == std::string::npos)
                continue;
            std::ifstream stream(entry.path(), std::ios::binary);
            text.append(std::istreambuf_iterator<char>(stream), {});
        }
        return text;
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

TEST_F(EditCommands, ReplaceTheWholeTextWhereTold)
{
    const std::string identifier = note("# List\n\nfirst\n\n#home");
    EXPECT_EQ(json({"replace", "--whole", "List"}, "# New\r\n\nall\n").at("title"), "New");
    EXPECT_EQ(output({"show", identifier}), "# New\r\n\nall\n");
    EXPECT_EQ(json({"tags"}).at("tags").size(), 0U);
    output({"replace", identifier, "--whole", ""});
    EXPECT_EQ(output({"show", identifier}), "");
    EXPECT_EQ(run({"append", "--whole", identifier, "x"}).exitCode, 2);
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
    TarnProcess edit(arguments({"edit", "A"}));
    edit.setVariable("EDITOR", "sed -i 's/# A/# B/'");
    edit.setVariable("PATH", "/usr/bin:/bin");
    EXPECT_EQ(edit.finish().exitCode, 0);
    EXPECT_EQ(output({"show", source}), "# S\n\n[[B]]");
}

TEST_F(EditCommands, BuildUponWhatAnApplicationWroteMeanwhile)
{
    const std::string identifier = note("# T\n\nbody");
    for (const std::string command : {"append", "prepend", "replace", "pin"}) {
        ForeignWriter application(database());
        std::vector<std::string> given{command, identifier};
        if (command != "pin")
            given.push_back("ours");
        TarnProcess process(arguments(given));
        application.changeTextWhileLocked(identifier, "# T\n\ntheirs", [&] {
            process.start();
            // Long enough for the program to have read what it would read before it asks for the lock.
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
        });
        const TarnResult result = process.finish();
        EXPECT_EQ(result.exitCode, 0) << command << ": " << result.errors;
        const std::string text = output({"show", identifier});
        EXPECT_EQ(text.find("body"), std::string::npos) << command << ": " << text;
        EXPECT_EQ(text.find("theirs") != std::string::npos, command != "replace") << command << ": " << text;
        EXPECT_EQ(text.find("ours") != std::string::npos, command != "pin") << command << ": " << text;
    }
}

TEST_F(EditCommands, MakeOneTagOfANameThatAnApplicationMakesAtTheSameTime)
{
    const std::string identifier = note("# T");
    ForeignWriter application(database());
    TarnProcess process(arguments({"new", "# N #fresh"}));
    application.changeTextWhileLocked(identifier, "# T #fresh", [&] {
        process.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    });
    EXPECT_EQ(process.finish().exitCode, 0);
    EXPECT_EQ(json({"tags"}).at("tags").size(), 1U) << json({"tags"});
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(EditCommands, KeepAPipedTextThatCouldNotBeSaved)
{
    const std::string identifier = note("# T");
    output({"trash", note("# Thrown")});
    note("# Two");
    note("# Two");
    const std::vector<std::vector<std::string>> commands{{"append", "None"}, {"append", "Thrown", "-"},
        {"prepend", "Two"}, {"replace", ""}, {"append", "None", "--latest"}};
    for (const std::vector<std::string>& command : commands) {
        SCOPED_TRACE(testing::PrintToString(command));
        const TarnResult result = runWithTemporaryFolder(command, "precious\n");
        EXPECT_NE(result.exitCode, 0);
        EXPECT_EQ(keptText(result.errors), "precious\n") << result.errors;
    }
    {
        const HeldLock lock(database().parent_path() / "tarn.lock");
        const TarnResult result = runWithTemporaryFolder({"new"}, "precious");
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_EQ(keptText(result.errors), "precious") << result.errors;
    }
    const TarnResult invalid = runWithTemporaryFolder({"new"}, "precious \xE4");
    EXPECT_EQ(keptText(invalid.errors), "precious \xE4") << invalid.errors;
    EXPECT_EQ(runWithTemporaryFolder({"append", identifier}, "more").exitCode, 0);
    EXPECT_TRUE(fs::is_empty(temporary())) << "what was saved is not kept";
    EXPECT_EQ(runWithTemporaryFolder({"append", "None", "an argument"}, "").exitCode, 1);
    EXPECT_TRUE(fs::is_empty(temporary())) << "an argument can be typed again";
}

TEST_F(EditCommands, KeepAPipedTextWhenTheWaitForTheStoreIsInterrupted)
{
    note("# T");
    fs::create_directories(temporary());
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const HeldLock lock(database().parent_path() / "tarn.lock");
        TarnProcess process(arguments({"append", "T"}));
        process.setVariable("TMPDIR", temporary().string());
        process.setInput("precious");
        std::thread killer([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(600));
            process.sendSignal(signal);
        });
        const TarnResult result = process.finish();
        killer.join();
        EXPECT_EQ(result.signal, signal) << result.exitCode << result.errors;
        EXPECT_EQ(keptText(result.errors), "precious") << result.errors;
    }
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
