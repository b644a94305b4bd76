// Commands that change the notes that a search finds.

#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>

namespace tarn::test {

namespace {

using Words = std::vector<std::string>;

} // namespace

class NotesOrQuery : public TarnCommandTest {
protected:
    NotesOrQuery()
    {
        note("# Apple\n\nred #fruit");
        note("# Pear\n\ngreen #fruit");
        note("# Stone\n\ngrey");
    }
    Words titlesFound(const std::string& filter) const
    {
        Words titles = titlesOf(json({"list", "--filter", filter}));
        std::ranges::sort(titles);
        return titles;
    }
    std::string idOf(const std::string& title) const
    {
        return std::string(json({"show", title}).at("uniqueIdentifier")).substr(0, 8);
    }
    TarnResult answer(Words command, const std::string& typed) const
    {
        TarnProcess process(arguments(std::move(command)));
        process.useTerminalInput();
        process.setInput(typed);
        return process.finish();
    }
};

TEST_F(NotesOrQuery, ChangesAllNotesThatASearchFinds)
{
    for (const auto& [command, filter] : {std::pair{"pin", "pinned"}, {"archive", "archived"}, {"trash", "trashed"}}) {
        SCOPED_TRACE(command);
        const TarnResult result = run({"--json", command, "--yes", "--query", "#fruit"});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "tarn: --query finds 2 notes\n");
        EXPECT_EQ(nlohmann::json::parse(result.output).at("notes").size(), 2U);
        EXPECT_EQ(titlesFound(filter), (Words{"Apple", "Pear"}));
        if (command == std::string("pin"))
            continue;
        const std::string back = command == std::string("trash") ? "restore" : "unarchive";
        EXPECT_EQ(json({back, "--yes", "--query", "apple"}).at("notes").size(), 1U);
        EXPECT_EQ(titlesFound(filter), Words{"Pear"});
        EXPECT_EQ(json({back, "--yes", "--query", "stone"}).at("notes").size(), 0U) << "it is not there";
        EXPECT_EQ(run({back, "--yes", "--query", ""}).exitCode, 0);
        EXPECT_EQ(titlesFound(filter), Words{});
    }
}

TEST_F(NotesOrQuery, AddsAndRemovesATag)
{
    const TarnResult result = run({"tag", "add", "food", "--yes", "--query", "#fruit"});
    EXPECT_EQ(result.output, "food  2 notes\n") << result.errors;
    EXPECT_EQ(output({"show", "Pear"}), "# Pear\n\ngreen #fruit\n\n#food");
    EXPECT_EQ(json({"tag", "remove", "fruit", "--yes", "--query", "green"}).at("notes"), 1);
    EXPECT_EQ(json({"list", "--tag", "fruit"}).at("count"), 1);
}

TEST_F(NotesOrQuery, LeavesArchiveAndTrashAloneUnlessTold)
{
    output({"trash", "Apple"});
    output({"archive", "Pear"});
    EXPECT_EQ(run({"pin", "--yes", "--query", "#fruit"}).exitCode, 1);
    EXPECT_EQ(json({"pin", "--yes", "--all", "--query", "#fruit"}).at("notes").size(), 2U);
    EXPECT_EQ(json({"delete", "--yes", "--query", "#fruit"}).at("notes").size(), 0U);
    EXPECT_EQ(json({"delete", "--yes", "--all", "--query", "#fruit"}).at("notes").size(), 2U);
    EXPECT_EQ(titlesFound("all"), Words{"Stone"});
}

TEST_F(NotesOrQuery, TellsTheNumberAndAsks)
{
    const TarnResult declined = answer({"trash", "--query", "#fruit"}, "n\n");
    EXPECT_EQ(declined.exitCode, 1);
    EXPECT_EQ(declined.output, "");
    for (const char* part :
        {"  \"Apple\" (", "  \"Pear\" (", "trash is to change 2 notes; go on? [y/N] ", "tarn: nothing was changed\n"})
        EXPECT_NE(declined.errors.find(part), std::string::npos) << declined.errors;
    EXPECT_EQ(titlesFound("trashed"), Words{});
    EXPECT_EQ(answer({"tag", "add", "x", "--query", "#fruit"}, "n\n").exitCode, 1);
    EXPECT_EQ(json({"list", "--tag", "x"}).at("count"), 0);

    EXPECT_EQ(answer({"trash", "--query", "#fruit"}, "y\n").exitCode, 0);
    EXPECT_EQ(titlesFound("trashed"), (Words{"Apple", "Pear"}));
    EXPECT_EQ(answer({"delete", "--all", "--query", "#fruit"}, "n\n").exitCode, 1);
    const TarnResult deleted = answer({"delete", "--all", "--query", "#fruit"}, "y\n");
    EXPECT_NE(deleted.errors.find("Delete these 2 notes for good?"), std::string::npos) << deleted.errors;
    EXPECT_EQ(titlesFound("all"), Words{"Stone"});
}

TEST_F(NotesOrQuery, ShowsTheFirstOfManyNotes)
{
    for (int number = 0; number < 12; ++number)
        note("# Many " + std::to_string(number));
    const TarnResult result = answer({"pin", "--query", "many"}, "n\n");
    EXPECT_NE(result.errors.find("\n  and 2 more\npin is to change 12 notes"), std::string::npos) << result.errors;
}

TEST_F(NotesOrQuery, RefusesWhatIsNotClear)
{
    const auto message = [&](Words command) {
        const TarnResult result = run(std::move(command));
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        return result.errors;
    };
    EXPECT_EQ(message({"pin"}), "tarn: NOTE is required; name notes, or let --query find them\n");
    EXPECT_EQ(message({"tag", "add", "x"}), "tarn: NOTE is required; name notes, or let --query find them\n");
    EXPECT_EQ(message({"pin", "--all", "Apple"}), "tarn: --all needs --query\n");
    EXPECT_EQ(message({"pin", "Apple", "--query", "x"}),
        "tarn: NOTE and --query do not go together; see 'tarn pin --help'\n");
    EXPECT_EQ(message({"trash", "--query", "#fruit"}),
        "  \"Pear\" (" + idOf("Pear") + ")\n  \"Apple\" (" + idOf("Apple")
            + ")\ntarn: trash asks before it changes what a search finds, and there is no terminal to ask on; use "
              "--yes\n");
    EXPECT_NE(message({"restore", "--all", "--query", "x"}).find("--all"), std::string::npos);
    EXPECT_EQ(titlesFound("active").size(), 3U);
}

TEST_F(NotesOrQuery, FindsNothingInWordsAndInJSON)
{
    const TarnResult result = run({"--json", "pin", "--query", "nowhere @todos"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output), nlohmann::json::parse(R"({"notes": []})"));
    EXPECT_NE(result.errors.find("did you mean @todo?\ntarn: nothing found; nothing was changed\n"), std::string::npos)
        << result.errors;
    EXPECT_EQ(json({"tag", "add", "x", "--query", "nowhere"}), nlohmann::json::parse(R"({"tag": "x", "notes": 0})"));
}

TEST_F(NotesOrQuery, MakesNoStore)
{
    TarnProcess process({"--store", (folder() / "none").string(), "--json", "trash", "--yes", "--query", "a"});
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output).at("notes").size(), 0U);
    EXPECT_FALSE(std::filesystem::exists(folder() / "none"));
}

} // namespace tarn::test
