#include "tests/tarn/TarnCommandTest.h"

namespace tarn::test {

class LinkCommands : public TarnCommandTest { };

TEST_F(LinkCommands, ShowTheLinksOfANoteInTheOrderOfItsText)
{
    const std::string target = note("# B");
    note("# A\n\n[[Missing]] 😀 [[b|alias]]");
    const auto document = nlohmann::ordered_json::parse(run({"--json", "links", "A"}).output);
    const auto& links = document.at("links");
    ASSERT_EQ(links.size(), 2U);
    EXPECT_EQ(keysOf(links.at(0)), (std::vector<std::string>{"title", "location"}));
    EXPECT_EQ(links.at(0).at("title"), "Missing");
    EXPECT_EQ(links.at(0).at("location"), 5);
    EXPECT_EQ(links.at(1).at("title"), "b");
    EXPECT_EQ(links.at(1).at("location"), 20);
    EXPECT_EQ(links.at(1).at("note"), target);
    EXPECT_EQ(output({"links", "A"}), "               5  Missing\n" + target.substr(0, 8) + "      20  b\n");
}

TEST_F(LinkCommands, ListTheNotesThatLinkToANote)
{
    note("# B");
    note("# A\n\n[[B]] [[B]]");
    note("# C\n\n[[B]]");
    EXPECT_EQ(titlesOf(json({"backlinks", "B"})), (std::vector<std::string>{"C", "A"}));
    EXPECT_NE(output({"backlinks", "B"}).find("C"), std::string::npos);
}

TEST_F(LinkCommands, ShowLinksWithoutATarget)
{
    const std::string source = note("# A\n\n[[Missing]] [[A]]");
    const auto links = json({"unresolved"}).at("links");
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(links.at(0).at("title"), "Missing");
    EXPECT_EQ(links.at(0).at("note"), source);
    note("# Missing");
    const TarnResult none = run({"--json", "unresolved"});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(none.output).at("links").size(), 0U);
}

TEST_F(LinkCommands, ListALinkThatARenameCouldNotReach)
{
    note("# Old");
    const std::string source = note("#tag\n# See [[Old]]");
    EXPECT_EQ(run({"unresolved"}).exitCode, 1);
    output({"replace", "Old", "New"});
    output({"prepend", "--", "New", "# New"});
    const auto links = json({"unresolved"}).at("links");
    ASSERT_EQ(links.size(), 1U);
    EXPECT_EQ(links.at(0).at("title"), "Old");
    EXPECT_EQ(links.at(0).at("note"), source);
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
    const std::string heir = note("# Old");
    EXPECT_EQ(json({"links", source}).at("links").at(0).at("note"), heir);
}

TEST_F(LinkCommands, ListNotesWithoutAnyLink)
{
    note("# A\n\n[[B]]");
    note("# B");
    note("# Alone");
    output({"trash", note("# Thrown away")});
    EXPECT_EQ(titlesOf(json({"orphans"})), (std::vector<std::string>{"Alone"}));
}

TEST_F(LinkCommands, FindNothingPolitely)
{
    const std::string name = "\"A\" (" + note("# A").substr(0, 8) + ")";
    const std::vector<std::pair<std::vector<std::string>, std::string>> commands{
        {{"links", "A"}, "there is no link in " + name}, {{"backlinks", "A"}, "no note links to " + name},
        {{"unresolved"}, "every link leads to a note"}, {{"conflicts"}, "no note is in conflict"},
        {{"conflicts", "A"}, name + " is in no conflict"},
        {{"tags"}, "no active note has a tag; --all shows every tag"},
        {{"highlight", "@todo"}, "there is nothing to highlight: QUERY holds no word, phrase or tag that is wanted"}};
    for (const auto& [command, message] : commands) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 1) << command.front();
        EXPECT_EQ(result.output, "") << command.front();
        EXPECT_EQ(result.errors, "tarn: " + message + "\n");
    }
    EXPECT_EQ(run({"links", "none"}).exitCode, 1);
    output({"trash", "A"});
    EXPECT_EQ(run({"orphans"}).errors, "tarn: there is no active note without links\n");
}

TEST_F(LinkCommands, PrintURLs)
{
    const std::string identifier = note("# Café au lait\n\n#work/acme");
    const std::string prefix = "tarn://x-callback-url/";
    EXPECT_EQ(output({"url", identifier}), prefix + "open-note?id=" + identifier + "\n");
    EXPECT_EQ(json({"url", identifier}), nlohmann::json({{"url", prefix + "open-note?id=" + identifier}}));
    EXPECT_EQ(output({"url", identifier, "--title"}), prefix + "open-note?title=Café%20au%20lait\n");
    EXPECT_EQ(output({"url", identifier, "--new-window"}), prefix + "open-note?new_window=yes&id=" + identifier + "\n");
    EXPECT_EQ(output({"url", identifier, "--header", "  Plan (b) & notes? "}),
        prefix + "open-note?id=" + identifier + "&header=Plan%20%28b%29%20%26%20notes%3F\n");
    EXPECT_EQ(output({"url", "--tag", "Work/Acme"}), prefix + "open-tag?name=work%2Facme\n");
    for (const std::vector<std::string>& wrong :
        std::vector<std::vector<std::string>>{{"url"}, {"url", identifier, "--tag", "work"},
            {"url", identifier, "--title", "--new-window"}, {"url", "--tag", "work", "--title"}})
        EXPECT_EQ(run(wrong).exitCode, 2) << wrong.back();
    EXPECT_EQ(run({"url", "--tag", "none"}).exitCode, 1);
}

TEST_F(LinkCommands, ShowAndResolveConflicts)
{
    const std::string first = note("# A\nfirst");
    const std::string second = note("# A\nsecond");
    const std::string third = note("# A\nthird");
    const std::string other = note("# B");
    const std::string copy = note("# B\ncopy");
    const auto stamp = [&](const std::string& member, const std::string& root, const std::string& seconds) {
        damage("UPDATE OVNote SET conflictUniqueIdentifier = '" + root + "/" + seconds + "' WHERE uniqueIdentifier = '"
            + member + "'");
    };
    stamp(first, first, "1700000000.000001");
    stamp(second, first, "1700000000.000003");
    stamp(third, first, "1700000000.000002");
    stamp(other, other, "1700000009.000001");
    stamp(copy, other, "1700000009.000002");

    const auto groups = json({"conflicts"}).at("groups");
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups.at(0).at("root"), other);
    EXPECT_EQ(groups.at(1).at("root"), first);
    ASSERT_EQ(groups.at(1).at("notes").size(), 3U);
    EXPECT_EQ(groups.at(1).at("notes").at(0).at("uniqueIdentifier"), second);
    EXPECT_EQ(json({"conflicts", copy}).at("groups").size(), 1U);

    const auto resolved = json({"conflict", "resolve", third}).at("groups");
    EXPECT_EQ(resolved.at(0).at("root"), first);
    EXPECT_EQ(json({"show", first}).at("trashed"), true);
    EXPECT_EQ(json({"show", second}).at("trashed"), true);
    EXPECT_EQ(json({"show", third}).at("trashed"), false);
    EXPECT_FALSE(json({"show", third}).contains("conflictUniqueIdentifier"));
    EXPECT_EQ(json({"conflicts"}).at("groups").size(), 1U);
    EXPECT_EQ(run({"conflict", "resolve", third}).exitCode, 1);
}

TEST_F(LinkCommands, TakeTheURLOfANoteForIt)
{
    const std::string identifier = note("# Ärger & Co + 1?\n\nfirst");
    const std::string lower = "tarn://x-callback-url/open-note?id=";
    const auto url = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"url", identifier});
        const std::string line = output(options);
        return line.substr(0, line.size() - 1);
    };
    for (const std::string& argument : {url({}), url({"--title"}), url({"--new-window"}), url({"--header", "A & B"}),
             "TARN://X-Callback-URL/open-note?id=" + identifier, url({}) + "#part", " " + url({}) + " ",
             lower + identifier.substr(0, 8),
             std::string("tarn://x-callback-url/open-note?title=%c3%a4rger%20%26%20co%20+%201%3F")})
        EXPECT_EQ(output({"show", argument}), "# Ärger & Co + 1?\n\nfirst") << argument;
    for (const std::string& argument : {lower + "4711", lower, std::string("tarn://x-callback-url/open-tag?name=x"),
             std::string("tarn://x-callback-url/open-note?title=%"),
             std::string("tarn://x-callback-url/open-note?title=%20"),
             std::string("https://example.org/?id=") + identifier, lower + "4711&title=%C3%84rger"}) {
        const TarnResult result = run({"show", argument});
        EXPECT_EQ(result.exitCode, 1) << argument;
        EXPECT_NE(result.errors.find("there is no note \"" + argument), std::string::npos) << result.errors;
    }
    note("# Ärger & Co + 1?\n\nsecond");
    EXPECT_EQ(run({"pin", url({"--title"})}).exitCode, 2) << "several have the title";
    EXPECT_EQ(json({"pin", url({})}).at("notes").at(0).at("uniqueIdentifier"), identifier);
}

} // namespace tarn::test
