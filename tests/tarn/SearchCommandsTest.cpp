// search, predicate and highlight: the language itself has its own tests, here is what the commands make of it.

#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>

namespace tarn::test {

namespace {

using Titles = std::vector<std::string>;

} // namespace

class SearchCommands : public TarnCommandTest {
protected:
    Titles titles(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), "search");
        Titles found = titlesOf(json(std::move(arguments)));
        std::ranges::sort(found);
        return found;
    }
    void writeNotes() const
    {
        note("# Pie\n\nAn apple pie with a big red cherry\n\n- [ ] bake\n- [x] flour\n\n#fruit/pie");
        note("# Apples\n\nRed apples and green pears\n\n#fruit");
        note("# Done\n\n- [x] one\n\n```\ncode\n```");
        note("# Gone\n\napple");
        output({"trash", "Gone"});
    }
};

TEST_F(SearchCommands, SearchInTheWholeLanguage)
{
    writeNotes();
    EXPECT_EQ(titles({"apple"}), (Titles{"Apples", "Pie"}));
    EXPECT_EQ(titles({"apple", "pie"}), Titles{"Pie"});
    EXPECT_EQ(titles({"\"apple\""}), Titles{"Pie"});
    EXPECT_EQ(titles({"“big red”"}), Titles{"Pie"});
    EXPECT_EQ(titles({"cherry or pears"}), (Titles{"Apples", "Pie"}));
    EXPECT_EQ(titles({"@todo"}), Titles{"Pie"});
    EXPECT_EQ(titles({"@done"}), Titles{"Done"});
    EXPECT_EQ(titles({"@code"}), Titles{"Done"});
    EXPECT_EQ(titles({"@today"}), (Titles{"Apples", "Done", "Pie"}));
    EXPECT_EQ(titles({"--", "-@today"}), Titles{});
    EXPECT_EQ(titles({"!#fruit"}), Titles{"Apples"});
    EXPECT_EQ(titles({"#*/pie"}), Titles{"Pie"});
    EXPECT_EQ(titles({"@title", "pie"}), Titles{"Pie"});
    EXPECT_EQ(titles({"@title pears"}), Titles{});
    EXPECT_EQ(titles({"--", "-#fruit"}), Titles{"Done"});
    EXPECT_EQ(titles({"--", "-\"big red\"", "-@done"}), Titles{});
    EXPECT_EQ(titles({"@タグ付き"}), (Titles{"Apples", "Pie"}));
}

TEST_F(SearchCommands, JoinTheirFilterToAnAlternative)
{
    writeNotes();
    EXPECT_EQ(titles({"cherry or apple"}), (Titles{"Apples", "Pie"}));
    EXPECT_EQ(titles({"--all", "cherry or apple"}), (Titles{"Apples", "Gone", "Pie"}));
}

TEST_F(SearchCommands, FindEveryNoteWhenNothingIsAsked)
{
    writeNotes();
    for (const char* query : {"", " ", "@title", "or"})
        EXPECT_EQ(titles({query}), (Titles{"Apples", "Done", "Pie"})) << query;
}

TEST_F(SearchCommands, PrintWhatAnApplicationNeeds)
{
    writeNotes();
    const auto document = nlohmann::ordered_json::parse(
        output({"--json", "search", "--limit", "1", "apple -pear \"big red\" #fruit or apples"}));
    EXPECT_EQ(keysOf(document),
        (std::vector<std::string>{"count", "notes", "total", "predicate", "highlight", "editorTerm", "hints"}));
    EXPECT_EQ(document.at("count"), 1);
    EXPECT_EQ(document.at("total"), 2);
    EXPECT_EQ(document.at("highlight"), "(big red)|(#fruit)|(apple)|(apples)");
    EXPECT_EQ(document.at("editorTerm"), "apple");
    const auto explained = nlohmann::ordered_json::parse(output({"--json", "search", "--explain", "apple"}));
    EXPECT_EQ(keysOf(explained),
        (std::vector<std::string>{
            "count", "notes", "total", "predicate", "highlight", "editorTerm", "plan", "times", "hints"}));
    EXPECT_EQ(keysOf(explained.at("times")), (std::vector<std::string>{"compileMilliseconds", "fetchMilliseconds"}));
    const std::string text = output({"search", "--explain", "apple"});
    EXPECT_NE(text.find("title CONTAINS[cd] \"apple\""), std::string::npos) << text;
    EXPECT_NE(text.find("SELECT"), std::string::npos) << text;
    EXPECT_NE(text.find("compile "), std::string::npos) << text;
    EXPECT_EQ(text.find("\n\n"), std::string::npos) << text;
}

TEST_F(SearchCommands, ShowTheLineThatHoldsAPhraseOrATag)
{
    writeNotes();
    EXPECT_NE(output({"search", "\"BIG RED\""}).find("\n    An apple pie with a big red cherry\n"), std::string::npos);
    EXPECT_NE(output({"search", "#fruit/pie"}).find("\n    #fruit/pie\n"), std::string::npos);
    EXPECT_EQ(std::ranges::count(output({"search", "@done"}), '\n'), 1);
}

TEST_F(SearchCommands, ShowTheLineWhereTheTermStandsAndNotOneThatResemblesIt)
{
    note("# Notes\n\nthe pier and its tags: #piers #two-piers\nhot pie\n#pie/sweet and (#Pie)\n#two words#\na/pier/x");
    const auto line = [&](const char* query) {
        const std::string text = output({"search", query});
        return text.substr(text.find('\n') + 1);
    };
    EXPECT_EQ(line("\"pie\""), "    hot pie\n");
    EXPECT_EQ(line("pie"), "    the pier and its tags: #piers #two-piers\n");
    EXPECT_EQ(line("#pie"), "    #pie/sweet and (#Pie)\n");
    EXPECT_EQ(line("#pie/sweet"), "    #pie/sweet and (#Pie)\n");
    EXPECT_EQ(line("#two words#"), "    #two words#\n");
    EXPECT_EQ(line("#*/sw"), "    #pie/sweet and (#Pie)\n");
    EXPECT_EQ(line("!#two-p"), "    the pier and its tags: #piers #two-piers\n");
    EXPECT_EQ(line("\"pie hot\" or \"sweet\""), "    #pie/sweet and (#Pie)\n");
}

TEST_F(SearchCommands, TellInJSONWhichLineAndWhereInIt)
{
    note("# Notes\n\nthe pier\n  hot pie, Pie and pies\n");
    const auto found = json({"search", "\"pie\" or hot"}).at("notes").at(0);
    EXPECT_EQ(found.at("line"), "hot pie, Pie and pies");
    EXPECT_EQ(found.at("matches").dump(), R"([{"length":3,"start":0},{"length":3,"start":4},{"length":3,"start":9}])");
    const auto other = json({"search", "@today"}).at("notes").at(0);
    EXPECT_TRUE(other.at("line").is_null());
    EXPECT_TRUE(other.at("matches").empty());
}

TEST_F(SearchCommands, LookIntoAttachmentsWhereAsked)
{
    writeNotes();
    const std::string plain = json({"predicate", "apple"}).at("predicate");
    const std::string withOCR = json({"predicate", "--ocr", "apple"}).at("predicate");
    EXPECT_NE(plain.find("0 == 1"), std::string::npos) << plain;
    EXPECT_NE(withOCR.find("1 == 1"), std::string::npos) << withOCR;
    EXPECT_NE(std::string(json({"search", "--ocr", "apple"}).at("predicate")).find(withOCR), std::string::npos);
    EXPECT_EQ(titles({"--ocr", "@ocr apple"}), Titles{});
}

TEST_F(SearchCommands, TellOfASearchThatMakesNoPredicate)
{
    for (const char* command : {"search", "predicate"}) {
        const TarnResult result = run({command, "--ocr", "@ocr #*/ideas"});
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_EQ(result.output, "");
        EXPECT_NE(result.errors.find("@ocr"), std::string::npos) << result.errors;
        EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1) << result.errors;
    }
}

TEST_F(SearchCommands, PredicateNeedsNoStore)
{
    EXPECT_EQ(output({"predicate", "@todo", "#home"}), "todoIncompleted > 0 AND ANY tags.title ==[cd] \"home\"\n");
    EXPECT_EQ(output({"predicate", "--", "-@done"}), "todoCompleted > 0 AND todoIncompleted > 0\n");
    EXPECT_EQ(output({"predicate", "@date(2021)"}),
        "modificationDate >= CAST(631152000.000000, \"NSDate\") AND modificationDate <= CAST(662691599.000000, "
        "\"NSDate\")\n");
    const auto document = nlohmann::ordered_json::parse(output({"--json", "predicate", "#home"}));
    EXPECT_EQ(keysOf(document), std::vector<std::string>{"predicate"});
    EXPECT_EQ(document.at("predicate"), "ANY tags.title ==[cd] \"home\"");
    EXPECT_FALSE(std::filesystem::exists(store()));
}

TEST_F(SearchCommands, PredicateOfNothingIsNull)
{
    const TarnResult plain = run({"predicate", "@title or"});
    EXPECT_EQ(plain.exitCode, 1);
    EXPECT_EQ(plain.output, "");
    const TarnResult result = run({"--json", "predicate", ""});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(nlohmann::json::parse(result.output).at("predicate").is_null());
}

TEST_F(SearchCommands, HighlightPrintsPatternSwitchesAndTerm)
{
    const auto document = nlohmann::ordered_json::parse(output({"--json", "highlight", "@title apple -pear #*/ideas"}));
    EXPECT_EQ(keysOf(document), (std::vector<std::string>{"pattern", "titleSearch", "ocrSearch", "editorTerm"}));
    EXPECT_EQ(document.at("pattern"), "(\\/ideas)|(\\/ideas\\/)|(apple)");
    EXPECT_EQ(document.at("titleSearch"), true);
    EXPECT_EQ(document.at("ocrSearch"), false);
    EXPECT_EQ(document.at("editorTerm"), "apple");
    const std::string text = output({"highlight", "@ocr \"big red\""});
    EXPECT_NE(text.find("(big red)"), std::string::npos) << text;
    EXPECT_NE(text.find("attachments"), std::string::npos) << text;
    EXPECT_FALSE(std::filesystem::exists(store()));
}

TEST_F(SearchCommands, HighlightOfNothingIsEmpty)
{
    const TarnResult result = run({"--json", "highlight", "--", "-pear @todo"});
    EXPECT_EQ(result.exitCode, 1);
    const nlohmann::json document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("pattern"), "");
    EXPECT_EQ(document.at("editorTerm"), "");
}

TEST_F(SearchCommands, TakeLongAndStrangeQueries)
{
    writeNotes();
    std::string words;
    for (int word = 0; word < 5'000; ++word)
        words += " or w" + std::to_string(word);
    EXPECT_EQ(titles({"cherry" + words}), Titles{"Pie"});
    for (const char* query : {"\xFF\xFE", "%@ %d $x", "\\\"'", "\"", "[x]", "{y}", "++", "#", "@date(", "\x01\x02"}) {
        const TarnResult result = run({"search", "--count", "--", query});
        EXPECT_TRUE(result.exitCode == 0 || result.exitCode == 1) << query << result.errors;
    }
}

TEST_F(SearchCommands, AndListsGoByTheZoneOfTheSystem)
{
    std::filesystem::path notes
        = file("dated.md", "---\ndate: 2021-03-14T19:00:00Z\nmodified: 2021-03-14T19:00:00Z\n---\n# Late\n");
    output({"import", notes});
    const auto runIn = [&](const std::string& zone, std::vector<std::string> command) {
        TarnProcess process(arguments(std::move(command)));
        process.setVariable("TZ", zone);
        return process.finish();
    };
    for (const auto& [zone, day, time] :
        {std::tuple{"UTC", "2021-03-14", "2021-03-14 19:00"}, {"<+0530>-5:30", "2021-03-15", "2021-03-15 00:30"},
            {"CET-1CEST,M3.2.0/0,M10.5.0/3", "2021-03-14", "2021-03-14 21:00"}}) {
        EXPECT_EQ(runIn(zone, {"search", "--count", "@cdate(" + std::string(day) + ")"}).output, "1\n") << zone;
        EXPECT_THAT(runIn(zone, {"list"}).output, testing::HasSubstr(time)) << zone;
    }
    const TarnResult unknown = runIn("No/Such_Place", {"search", "--count", "@cdate(2021-03-14)"});
    EXPECT_EQ(unknown.output, "1\n");
    EXPECT_EQ(unknown.errors, "tarn: The system has no time zone \"No/Such_Place\" and takes it for UTC.\n");
}

} // namespace tarn::test
