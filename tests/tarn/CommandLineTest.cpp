#include "tests/tarn/TarnCommandTest.h"

#include <set>
#include <sstream>

namespace tarn::test {

namespace {

/// A command line that is wrong, and a word that the one line about it must hold.
struct WrongArguments {
    std::vector<std::string> arguments;
    std::string says;
};

const std::vector<WrongArguments> kWrongArguments{
    {{}, "command"},
    {{"nonsense"}, "nonsense"},
    {{"--nonsense"}, "nonsense"},
    {{"list", "--nonsense"}, "nonsense"},
    {{"list", "--limit"}, "--limit"},
    {{"list", "--limit", "many"}, "--limit"},
    {{"list", "--limit", "0"}, "--limit"},
    {{"list", "--limit", "-3"}, "--limit"},
    {{"list", "--filter", "nice"}, "--filter"},
    {{"list", "extra"}, "extra"},
    {{"list", "--tag", "#"}, "tag"},
    {{"search"}, "QUERY"},
    {{"search", "-word"}, "--"},
    {{"show"}, "NOTE"},
    {{"show", "a", "b"}, "b"},
    {{"trash"}, "NOTE"},
    {{"import"}, "PATH"},
    {{"import", ".", "--tag", "///"}, "///"},
    {{"new", "a", "b"}, "b"},
    {{"tags", "--limit", "2"}, "--limit"},
};

} // namespace

using CommandLineTest = TarnCommandTest;

TEST_F(CommandLineTest, TellsWrongArgumentsInOneLine)
{
    for (const WrongArguments& wrong : kWrongArguments) {
        const TarnResult result = run(wrong.arguments);
        SCOPED_TRACE(::testing::PrintToString(wrong.arguments));
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(result.errors.starts_with("tarn: ")) << result.errors;
        EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1) << result.errors;
        EXPECT_NE(result.errors.find(wrong.says), std::string::npos) << result.errors;
    }
    EXPECT_FALSE(std::filesystem::exists(store()));
}

TEST_F(CommandLineTest, SaysInWordsWhatIsWrongAndWhereToRead)
{
    const std::string dash = "; what begins with \"-\" and is no option goes after \"--\"; see 'tarn ";
    const std::vector<WrongArguments> messages{
        {{"list", "--limit", "0"}, "--limit: \"0\" is no whole number from 1; see 'tarn list --help'"},
        {{"list", "--limit", "0x10"}, "--limit: \"0x10\" is no whole number from 1; see 'tarn list --help'"},
        {{"list", "--limit", "1.5"}, "--limit: \"1.5\" is no whole number from 1; see 'tarn list --help'"},
        {{"list", "--limit", ""}, "--limit: \"\" is no whole number from 1; see 'tarn list --help'"},
        {{"list", "--limit"}, "--limit needs a value; see 'tarn list --help'"},
        {{"list", "--limit", "1", "--limit", "2"}, "--limit is given more than once; see 'tarn list --help'"},
        {{"list", "--tag"}, "--tag needs a value; see 'tarn list --help'"},
        {{"list", "--filter", "foo"},
            "--filter: \"foo\" is none of active, trashed, archived, pinned, conflicted, encrypted, all; "
            "see 'tarn list --help'"},
        {{"list", "--json=3"}, "--json takes no value; see 'tarn list --help'"},
        {{"search", "a", "--count=4"}, "--count takes no value; see 'tarn search --help'"},
        {{"url", "x", "--title", "--new-window"}, "--title and --new-window do not go together; see 'tarn url --help'"},
        {{"list", "extra"}, "\"extra\" is one argument too many; see 'tarn list --help'"},
        {{"tag", "prune", "[x]"}, "\"[x]\" is one argument too many; see 'tarn tag prune --help'"},
        {{"list", "--", "-x"}, "\"-x\" is one argument too many; see 'tarn list --help'"},
        {{"search"}, "QUERY is required; see 'tarn search --help'"},
        {{"search", "--"}, "QUERY is required; see 'tarn search --help'"},
        {{"search", "-#work"}, "there is no option \"-#work\"" + dash + "search --help'"},
        {{"highlight", "apple", "-pear"}, "there is no option \"-pear\"" + dash + "highlight --help'"},
        {{"nonsense"}, "there is no command or option \"nonsense\"; see 'tarn --help'"},
        {{"tag", "nonsense"}, "there is no command or option \"nonsense\"; see 'tarn tag --help'"},
        {{}, "a command is missing; see 'tarn --help'"},
    };
    for (const WrongArguments& wrong : messages)
        EXPECT_EQ(run(wrong.arguments).errors, "tarn: " + wrong.says + "\n");
}

TEST_F(CommandLineTest, CountsInDecimalDigits)
{
    for (int index = 0; index < 11; ++index)
        note("# N");
    EXPECT_EQ(json({"list", "--limit", "010"}).at("count"), 10);
    EXPECT_EQ(json({"list", "--limit", "9"}).at("count"), 9);
    EXPECT_EQ(json({"list", "--limit", "99999999999999999999999"}).at("count"), 11);
}

TEST_F(CommandLineTest, PrintsItsVersion)
{
    const std::string version = output({"--version"});
    EXPECT_TRUE(version.starts_with("tarn ")) << version;
    EXPECT_EQ(std::ranges::count(version, '.'), 2) << version;
}

TEST_F(CommandLineTest, TakesGlobalOptionsOnBothSidesOfTheCommand)
{
    TarnProcess process({"new", "# A", "--json", "--store", store()});
    EXPECT_EQ(nlohmann::json::parse(process.finish().output).at("title"), "A");
    EXPECT_EQ(titlesOf(json({"list"})), std::vector<std::string>{"A"});
}

TEST_F(CommandLineTest, FindsTheStoreInTheEnvironment)
{
    const auto listIn = [](const std::string& name, const std::string& value) {
        TarnProcess process({"--json", "list"});
        process.setVariable(name, value);
        return nlohmann::json::parse(process.finish().output).at("count");
    };
    output({"new", "# A"});
    EXPECT_EQ(listIn("TARN_STORE", store()), 1);
    std::filesystem::create_directories(folder() / "data");
    std::filesystem::create_directory_symlink(store(), folder() / "data" / "tarn");
    EXPECT_EQ(listIn("XDG_DATA_HOME", folder() / "data"), 1);
    std::filesystem::create_directories(folder() / ".local");
    std::filesystem::create_directory_symlink(folder() / "data", folder() / ".local" / "share");
    EXPECT_EQ(listIn("HOME", folder()), 1);
}

TEST_F(CommandLineTest, TakesEveryWordAsAnArgumentWhereOneIsDue)
{
    for (const char* text :
        {"list", "trash", "[a,b]", "{}", "++", "[", "%%", "- [ ] pears", "--- a", "'", "\"x\"", "a=b", "\x01z"}) {
        SCOPED_TRACE(text);
        const nlohmann::json note = json({"new", text});
        EXPECT_EQ(output({"show", note.at("uniqueIdentifier")}), text);
    }
    EXPECT_EQ(json({"new", "--", "-x"}).at("title"), "-x");
    EXPECT_EQ(json({"new", "--", "--json"}).at("title"), "--json");
    EXPECT_NE(run({"changes", "--since", "[a,b]"}).errors.find(" token [a,b]"), std::string::npos);
}

TEST_F(CommandLineTest, ImportsFilesWithTheNamesOfItsOwnSyntax)
{
    for (const char* name : {"[a,b].md", "{}.md", "++", "[]", "new", "-dash.md"})
        file(std::string("odd/") + name, "# " + std::string(name) + "\n");
    std::filesystem::current_path(folder() / "odd");
    const nlohmann::json result = json({"import", "--", "[a,b].md", "{}.md", "++", "[]", "new", "-dash.md"});
    std::filesystem::current_path("/");
    EXPECT_EQ(result.at("imported"), 6) << result;
    EXPECT_TRUE(result.at("failed").empty()) << result;
}

} // namespace tarn::test
