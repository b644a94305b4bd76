// The order of lists, the day from which on they go, and what stands between notes.

#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>

namespace tarn::test {

namespace {

using Titles = std::vector<std::string>;

} // namespace

/// Three notes, each made and changed on days of their own, the first one pinned.
class ListingOptions : public TarnCommandTest {
protected:
    ListingOptions()
    {
        add("b 10", "2021-03-14T10:00:00Z", "2021-03-16T10:00:00Z");
        add("A", "2021-03-12T10:00:00Z", "2021-03-15T00:00:00Z");
        add("b 9", "2021-03-13T10:00:00Z", "2021-03-14T23:59:59Z");
        output({"pin", "A"});
    }
    void add(const std::string& title, const std::string& made, const std::string& changed) const
    {
        output({"import",
            file(title + ".md", "---\ndate: " + made + "\nmodified: " + changed + "\n---\n# " + title + "\n\nword\n")});
    }
    /// What both commands give with these options.
    Titles titles(std::vector<std::string> options) const
    {
        std::vector<std::string> search = options;
        options.insert(options.begin(), "list");
        search.insert(search.begin(), {"search", "word"});
        const Titles listed = titlesOf(json(options));
        EXPECT_EQ(titlesOf(json(search)), listed);
        return listed;
    }
};

TEST_F(ListingOptions, OrderNotes)
{
    EXPECT_EQ(titles({}), (Titles{"A", "b 10", "b 9"})) << "pinned first";
    EXPECT_EQ(titles({"--reverse"}), (Titles{"b 9", "b 10", "A"}));
    EXPECT_EQ(titles({"--sort", "modified"}), (Titles{"b 10", "A", "b 9"}));
    EXPECT_EQ(titles({"--sort", "modified", "--reverse"}), (Titles{"b 9", "A", "b 10"}));
    EXPECT_EQ(titles({"--sort", "created"}), (Titles{"b 10", "b 9", "A"}));
    EXPECT_EQ(titles({"--sort", "title"}), (Titles{"A", "b 9", "b 10"})) << "digits by value";
    EXPECT_EQ(titles({"--sort", "title", "--reverse", "--limit", "2"}), (Titles{"b 10", "b 9"}));
}

TEST_F(ListingOptions, TakeNotesChangedSinceADay)
{
    EXPECT_EQ(titles({"--since", "2021-03-15"}), (Titles{"A", "b 10"}));
    EXPECT_EQ(titles({"--since", "20210316"}), (Titles{"b 10"}));
    EXPECT_EQ(titles({"--since", "2021-03"}).size(), 3U);
    EXPECT_EQ(titles({"--since", "2022"}), Titles{});
    EXPECT_EQ(run({"list", "--since", "2022"}).exitCode, 1);
    EXPECT_EQ(json({"list", "--since", "2021-03-15", "--limit", "1"}).at("total"), 2);
}

TEST_F(ListingOptions, BeginTheDayInTheZoneOfTheSystem)
{
    TarnProcess process(arguments({"search", "--count", "--since", "2021-03-15", "word"}));
    process.setVariable("TZ", "<+0100>-1");
    EXPECT_EQ(process.finish().output, "3\n");
}

TEST_F(ListingOptions, EndNotesWithNUL)
{
    const std::string listed = output({"list", "-0", "--sort", "title"});
    EXPECT_EQ(std::ranges::count(listed, '\0'), 3);
    EXPECT_EQ(std::ranges::count(listed, '\n'), 0);
    EXPECT_TRUE(listed.ends_with(std::string("b 10\0", 5)));
    const std::string found = output({"search", "--null", "word"});
    EXPECT_EQ(std::ranges::count(found, '\0'), 3);
    EXPECT_NE(found.find(std::string("A\n    word\0", 11)), std::string::npos) << "two lines are one note";
}

TEST_F(ListingOptions, RefuseWhatIsNone)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong{
        {{"list", "--sort", "size"}, "--sort: \"size\" is none of modified, created, title; see 'tarn list --help'"},
        {{"list", "--since", "soon"},
            "--since: \"soon\" is no day; write it as 2021-03-15, or a month as 2021-03, or a year as 2021"},
        {{"search", "a", "--since", "2021-02-31"},
            "--since: \"2021-02-31\" is no day; write it as 2021-03-15, or a month as 2021-03, or a year as 2021"},
        {{"--json", "list", "-0"}, "-0 and --json do not go together: a document has no lines"},
        {{"--json", "search", "-0", "a"}, "-0 and --json do not go together: a document has no lines"},
        {{"search", "-0", "--count", "a"}, "--count and --null do not go together; see 'tarn search --help'"},
        {{"search", "-0", "--explain", "a"}, "--explain and --null do not go together; see 'tarn search --help'"},
    };
    for (const auto& [command, message] : wrong) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors, "tarn: " + message + "\n");
    }
}

TEST_F(ListingOptions, AreReadBeforeTheStoreIs)
{
    TarnProcess process({"--store", (folder() / "none").string(), "list", "--since", "soon"});
    EXPECT_EQ(process.finish().exitCode, 2);
    TarnProcess empty({"--store", (folder() / "none").string(), "list", "-0", "--sort", "title", "--since", "2021"});
    const TarnResult result = empty.finish();
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(std::filesystem::exists(folder() / "none"));
}

} // namespace tarn::test
