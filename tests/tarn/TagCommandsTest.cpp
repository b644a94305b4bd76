#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>

namespace tarn::test {

class TagCommands : public TarnCommandTest {
protected:
    std::vector<std::string> tags(const std::vector<std::string>& options = {}) const
    {
        std::vector<std::string> given{"tags"};
        given.insert(given.end(), options.begin(), options.end());
        std::vector<std::string> titles;
        const nlohmann::json document = json(given);
        for (const auto& tag : document.at("tags"))
            titles.push_back(tag.at("title"));
        return titles;
    }
};

using Titles = std::vector<std::string>;

TEST_F(TagCommands, AddATagToNotesThatDoNotCarryIt)
{
    note("# A\n\nbody");
    note("# B\n\n#Home");
    const auto added = nlohmann::ordered_json::parse(run({"--json", "tag", "add", "home", "A", "B"}).output);
    EXPECT_EQ(keysOf(added), (Titles{"tag", "notes"}));
    EXPECT_EQ(added.at("tag"), "Home");
    EXPECT_EQ(added.at("notes"), 1);
    EXPECT_EQ(output({"show", "A"}), "# A\n\nbody\n\n#Home");
    output({"tag", "add", "#two words#", "A", "--top"});
    EXPECT_EQ(output({"show", "A"}), "# A\n#two words#\n\nbody\n\n#Home");
    EXPECT_EQ(run({"tag", "add", "***", "A"}).exitCode, 2);
    EXPECT_EQ(run({"tag", "add", "new", "none"}).exitCode, 1);
    EXPECT_EQ(tags({"--all"}), (Titles{"Home", "two words"}));
}

TEST_F(TagCommands, RemoveATagFromNotes)
{
    note("# A\n\n#a/b #c");
    note("# B\n\n#a");
    EXPECT_EQ(json({"tag", "remove", "a", "A"}).at("notes"), 1);
    EXPECT_EQ(output({"show", "A"}), "# A\n\n#c");
    EXPECT_EQ(output({"show", "B"}), "# B\n\n#a");
    EXPECT_EQ(json({"tag", "remove", "a", "A"}).at("notes"), 0);
    EXPECT_EQ(run({"tag", "remove", "none", "A"}).exitCode, 1);
}

TEST_F(TagCommands, RenameATagWithThoseBelow)
{
    note("# A\n\n#work and #work/acme");
    note("# B\n\n#Work");
    const auto renamed = json({"tag", "rename", "WORK", "my job"});
    EXPECT_EQ(renamed.at("tag"), "my job");
    EXPECT_EQ(renamed.at("notes"), 2);
    EXPECT_EQ(output({"show", "A"}), "# A\n\n#my job# and #my job/acme#");
    EXPECT_EQ(tags(), (Titles{"my job", "my job/acme"}));
    EXPECT_EQ(output({"tag", "rename", "my job", "work"}), "work  2 notes\n");
    EXPECT_EQ(output({"show", "A"}), "# A\n\n#work and #work/acme");
}

TEST_F(TagCommands, TellWhyATagIsNotRenamed)
{
    note("# A\n\n#a");
    EXPECT_EQ(run({"tag", "rename", "none", "b"}).exitCode, 1);
    EXPECT_EQ(run({"tag", "rename", "a", "***"}).exitCode, 2);
    EXPECT_EQ(run({"tag", "rename", "a", "a"}).exitCode, 1);
    output({"tag", "delete", "a"});
    const TarnResult result = run({"tag", "rename", "a", "b"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("no text can take"), std::string::npos) << result.errors;
    EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1);
}

TEST_F(TagCommands, TellOfNotesThatKeepTheOldName)
{
    const std::string deep = "a/" + std::string(300, 'x');
    note("# A\n\n#" + deep);
    const std::string before = output({"show", "A"});
    note("# B\n\n#a");
    const TarnResult result = run({"tag", "rename", "a", std::string(300, 'y')});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("1 note kept the old name"), std::string::npos) << result.errors;
    EXPECT_EQ(output({"show", "A"}), before);
    EXPECT_EQ(output({"show", "B"}), "# B\n\n#" + std::string(300, 'y'));
}

TEST_F(TagCommands, DeleteATagAndForgetIt)
{
    note("# A\n\n#a/b\n");
    note("# B\n\n#a\n");
    output({"trash", "B"});
    EXPECT_EQ(json({"tag", "delete", "--yes", "a"}).at("notes"), 2);
    EXPECT_EQ(output({"show", "A"}), "# A\n");
    EXPECT_EQ(output({"show", "B"}), "# B\n");
    EXPECT_EQ(tags({"--all"}), (Titles{"a", "a/b"}));
    const auto pruned = json({"tag", "prune"});
    EXPECT_EQ(pruned.at("deleted").size(), 2U);
    EXPECT_EQ(run({"tags", "--all"}).exitCode, 1);
    EXPECT_EQ(output({"tag", "prune"}), "deleted 0 tags\n");
}

TEST_F(TagCommands, AskBeforeTagsBelowAreTakenOutAsWell)
{
    const std::string text = "# A\n\n#a/b #a/c/d\n";
    note(text);
    note("# B\n\n#a #ab\n");
    const TarnResult refused = run({"tag", "delete", "a"});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_EQ(refused.errors,
        "tarn: tag delete asks before it takes out 3 tags below as well, and there is no terminal to ask on; use "
        "--yes\n");
    const auto answered = [this](const std::string& answer) {
        TarnProcess process(arguments({"tag", "delete", "a"}));
        process.useTerminalInput();
        process.setInput(answer);
        return process.finish();
    };
    for (const std::string answer : {"n\n", "\n", "\x04"}) {
        const TarnResult declined = answered(answer);
        EXPECT_EQ(declined.exitCode, 1);
        EXPECT_EQ(declined.errors, "Take \"a\" and 3 tags below it out of 2 notes? [y/N] tarn: nothing was changed\n");
        EXPECT_EQ(output({"show", "A"}), text);
    }
    const TarnResult agreed = answered("y\n");
    EXPECT_EQ(agreed.exitCode, 0) << agreed.errors;
    EXPECT_EQ(agreed.output, "a  2 notes, 3 tags below\n");
    EXPECT_EQ(output({"show", "A"}), "# A\n");
    EXPECT_EQ(output({"show", "B"}), "# B\n\n#ab\n");
    EXPECT_EQ(output({"tag", "delete", "ab"}), "ab  1 note\n") << "nobody is asked where nothing lies below";
    EXPECT_EQ(output({"tag", "delete", "a"}), "a  0 notes\n");
}

TEST_F(TagCommands, PinATag)
{
    note("#a");
    EXPECT_EQ(json({"tag", "pin", "A"}).at("tag"), "a");
    EXPECT_EQ(json({"tags"}).at("tags").at(0).at("pinned"), true);
    output({"tag", "unpin", "a"});
    EXPECT_EQ(json({"tags"}).at("tags").at(0).at("pinned"), false);
    EXPECT_EQ(run({"tag", "pin", "none"}).exitCode, 1);
}

TEST_F(TagCommands, NeedOneMoreWord)
{
    const TarnResult missing = run({"tag"});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.errors, "tarn: a command is missing behind \"tag\"; see 'tarn tag --help'\n");
    const TarnResult unknown = run({"tag", "paint", "a"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_EQ(unknown.errors, "tarn: there is no command or option \"paint\"; see 'tarn tag --help'\n");
    for (const std::string command : {"add", "remove", "rename", "delete", "pin", "unpin", "prune"}) {
        const std::string help = output({"tag", command, "--help"});
        EXPECT_NE(help.find("\n  tarn tag " + command), std::string::npos) << help;
    }
}

} // namespace tarn::test
