#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <thread>

namespace tarn::test {

using Arguments = std::vector<std::string>;

/// Two notes of one title, one of them pinned and the other one modified later.
class SharedTitle : public TarnCommandTest {
protected:
    SharedTitle() : pinned_(note("# Same\n\nfirst #t")), latest_(note("# SAME\n\nsecond #t"))
    {
        output({"pin", pinned_});
        damage("UPDATE OVNote SET modificationDate = 1000000000000000 WHERE uniqueIdentifier = '" + pinned_ + "'");
        damage("UPDATE OVNote SET modificationDate = 1000000060000000 WHERE uniqueIdentifier = '" + latest_ + "'");
    }

    nlohmann::json everything() const { return json({"list", "--filter", "all"}); }
    std::string text(const std::string& identifier) const { return output({"show", identifier}); }

    std::string pinned_;
    std::string latest_;
};

TEST_F(SharedTitle, IsRefusedByEachCommandThatChangesSomething)
{
    const std::vector<Arguments> commands{{"append", "Same", "x"}, {"prepend", "Same", "x"}, {"replace", "Same", "x"},
        {"edit", "Same"}, {"trash", "Same"}, {"restore", "Same"}, {"archive", "same"}, {"unarchive", "Same"},
        {"pin", "Same"}, {"unpin", "Same"}, {"readonly", "Same"}, {"editable", "Same"}, {"delete", "--yes", "Same"},
        {"delete", "Same"}, {"duplicate", "Same"}, {"merge", "Same", pinned_}, {"tag", "add", "new", "Same"},
        {"tag", "remove", "t", "Same"}, {"conflict", "resolve", "Same"}};
    const nlohmann::json before = everything();
    for (const Arguments& command : commands) {
        SCOPED_TRACE(testing::PrintToString(command));
        TarnProcess process(arguments(command));
        process.setVariable("EDITOR", "echo x >>");
        const TarnResult result = process.finish();
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.errors.find("--latest\n  " + latest_ + "  2001-09-09 01:47  SAME  second #t\n  " + pinned_
                      + "  2001-09-09 01:46  Same  first #t\n"),
            std::string::npos)
            << result.errors;
    }
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(json({"tags"}).at("tags").size(), 1U);
}

TEST_F(SharedTitle, StandsForTheLatestModifiedWhenToldSo)
{
    EXPECT_EQ(run({"append", "--latest", "Same", "x"}).exitCode, 0);
    EXPECT_EQ(text(latest_), "# SAME\n\nsecond #t\nx");
    EXPECT_EQ(text(pinned_), "# Same\n\nfirst #t");
    EXPECT_EQ(json({"trash", "Same", "--latest"}).at("notes").at(0).at("uniqueIdentifier"), latest_);
    EXPECT_EQ(run({"trash", "Same"}).exitCode, 0) << "one of them is left outside of the trash";
    const TarnResult both = run({"restore", "Same"});
    EXPECT_EQ(both.exitCode, 2) << "two in the trash are no better than two outside";
    EXPECT_EQ(json({"restore", "--latest", "Same"}).at("notes").at(0).at("uniqueIdentifier"), latest_);
}

TEST_F(SharedTitle, StandsForTheLatestModifiedToReadAndSaysSo)
{
    const std::string told
        = "tarn: 2 notes are called \"Same\"; this is the latest modified, \"SAME\" (" + latest_.substr(0, 8) + ")\n";
    for (const Arguments& command : std::vector<Arguments>{
             {"show", "Same"}, {"url", "Same"}, {"links", "Same"}, {"backlinks", "Same"}, {"conflicts", "Same"}})
        EXPECT_TRUE(run(command).errors.starts_with(told)) << command.front() << ": " << run(command).errors;
    EXPECT_EQ(run({"show", "Same"}).output, "# SAME\n\nsecond #t");
    EXPECT_EQ(json({"show", "Same"}).at("uniqueIdentifier"), latest_);
    output({"trash", latest_});
    EXPECT_EQ(output({"show", "Same"}), "# Same\n\nfirst #t");
}

TEST_F(SharedTitle, OfManyNotesShowsTheLatest)
{
    for (int index = 0; index < 10; ++index)
        note("# Same");
    const TarnResult result = run({"pin", "Same"});
    EXPECT_TRUE(result.errors.starts_with("tarn: 12 notes are called \"Same\"")) << result.errors;
    EXPECT_TRUE(result.errors.ends_with("\n  and 4 more\n")) << result.errors;
    EXPECT_EQ(std::ranges::count(result.errors, '\n'), 10) << result.errors;
}

TEST_F(SharedTitle, OfConflictedVersionsIsResolvedByIdentifierOrTheLatest)
{
    damage("UPDATE OVNote SET conflictUniqueIdentifier = '" + pinned_ + "/1.000000'");
    EXPECT_EQ(run({"conflict", "resolve", "Same"}).exitCode, 2);
    EXPECT_EQ(json({"conflicts"}).at("groups").at(0).at("notes").size(), 2U);
    EXPECT_EQ(run({"conflict", "resolve", "--latest", "Same"}).exitCode, 0);
    EXPECT_EQ(json({"show", pinned_}).at("trashed"), true);
    EXPECT_EQ(json({"show", latest_}).at("trashed"), false);
    const TarnResult none = run({"conflict", "resolve", latest_});
    EXPECT_EQ(none.errors, "tarn: \"SAME\" (" + latest_.substr(0, 8) + ") is in no conflict\n");
}

/// Deleting on a terminal, where somebody can be asked.
class DeletionOnTerminal : public SharedTitle {
protected:
    TarnResult answer(Arguments command, const std::string& typed) const
    {
        TarnProcess process(arguments(std::move(command)));
        process.useTerminal();
        process.setInput(typed);
        return process.finish();
    }
};

TEST_F(DeletionOnTerminal, AsksByTitleAndIdentifier)
{
    const TarnResult refused = answer({"delete", latest_}, "n\n");
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_NE(refused.output.find("Delete \"SAME\" (" + latest_.substr(0, 8) + ") for good? [y/N]"), std::string::npos)
        << refused.output;
    EXPECT_EQ(everything().at("count"), 2);
    const TarnResult deleted = answer({"delete", latest_, pinned_}, "y\n");
    EXPECT_EQ(deleted.exitCode, 0);
    for (const std::string& line : {"  \"Same\" (" + pinned_.substr(0, 8) + ")",
             "Delete these 2 notes for good?" + std::string(), "deleted \"SAME\" (" + latest_.substr(0, 8) + ")"})
        EXPECT_NE(deleted.output.find(line), std::string::npos) << deleted.output;
    EXPECT_EQ(everything().at("count"), 0);
}

TEST_F(DeletionOnTerminal, LeavesTheStoreToOthersWhileItAsks)
{
    TarnProcess asking(arguments({"delete", latest_}));
    asking.useTerminal();
    asking.start();
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    EXPECT_TRUE(asking.isRunning());
    for (const Arguments& command : {Arguments{"new", "# Other"}, Arguments{"delete", "--yes", latest_}}) {
        TarnProcess other(arguments(command));
        other.setVariable("TARN_LOCK_WAIT", "0");
        EXPECT_EQ(other.finish().exitCode, 0) << command.front();
    }
    asking.setInput("y\n");
    const TarnResult result = asking.finish();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.output.find("gone meanwhile"), std::string::npos) << result.output;
    EXPECT_EQ(everything().at("count"), 2);
}

} // namespace tarn::test
