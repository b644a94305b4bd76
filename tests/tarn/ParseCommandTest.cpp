#include "tests/tarn/TarnCommandTest.h"

namespace tarn::test {

using ParseCommand = TarnCommandTest;
using namespace std::string_literals;

TEST_F(ParseCommand, PrintsWhatTheParserSees)
{
    const auto document = nlohmann::ordered_json::parse(
        run({"--json", "parse"}, "# Trip 😀 [[Rome|there]] #a/b\n\nGo [x](u).\n\n- [ ] a\n- [x] b\n\n    code\n")
            .output);
    EXPECT_EQ(keysOf(document),
        (std::vector<std::string>{
            "title", "subtitle", "tags", "todoCount", "doneCount", "codeBlockCount", "wikiLinks", "links"}));
    EXPECT_EQ(document.at("title"), "Trip 😀 there #a/b");
    EXPECT_EQ(document.at("tags"), nlohmann::ordered_json({"a", "a/b"})) << document;
    EXPECT_EQ(document.at("todoCount"), 1);
    EXPECT_EQ(document.at("doneCount"), 1);
    EXPECT_EQ(document.at("wikiLinks").at(0).at("decodedTitle"), "Rome");
    EXPECT_EQ(document.at("wikiLinks").at(0).at("offset"), 10) << "in UTF-16 units";
    EXPECT_EQ(document.at("links"), nlohmann::ordered_json::array({"u"}));
}

TEST_F(ParseCommand, ReadsAFileAndStandardInputByItsDash)
{
    const auto path = file("a.md", "# From a file\n");
    EXPECT_EQ(json({"parse", path}).at("title"), "From a file");
    EXPECT_EQ(json({"parse", "-"}, "# From input").at("title"), "From input");
    EXPECT_NE(output({"parse", path}).find("From a file"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(store())) << "parse needs no store";
}

TEST_F(ParseCommand, TakesAnyBytes)
{
    EXPECT_EQ(json({"parse"}, "\xFF\xFE\0 x\r\n"s).at("todoCount"), 0);
    EXPECT_EQ(json({"parse"}, "").at("title"), "");
    const TarnResult result = run({"parse"}, "# \x1b[2Jgone");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.find('\x1b'), std::string::npos) << "a text must not clear the screen";
}

TEST_F(ParseCommand, SaysWhichFileItCannotRead)
{
    const TarnResult missing = run({"parse", folder() / "missing.md"});
    EXPECT_EQ(missing.exitCode, 6);
    EXPECT_NE(missing.errors.find("missing.md: No such file"), std::string::npos) << missing.errors;
    EXPECT_EQ(run({"parse", folder()}).exitCode, 6);
}

} // namespace tarn::test
