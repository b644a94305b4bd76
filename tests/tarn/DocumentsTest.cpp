#include "tests/tarn/TarnCommandTest.h"

#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace tarn::test {

namespace {

std::string contentsOf(const std::string& name)
{
    std::ifstream stream(std::string(TARN_TOOL_SOURCES) + "/" + name);
    std::ostringstream text;
    text << stream.rdbuf();
    EXPECT_FALSE(text.str().empty()) << name;
    return text.str();
}

std::set<std::string> matchesIn(const std::string& text, const char* pattern)
{
    const std::regex expression(pattern);
    std::set<std::string> matches;
    for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
        matches.insert((*match)[1]);
    return matches;
}

} // namespace

/// What `--help` knows, and the documents that have to keep up with it.
class Documents : public TarnCommandTest {
protected:
    Documents()
    {
        const std::string help = output({"--help"});
        const std::size_t list = help.find("Subcommands:");
        commands_ = matchesIn(help.substr(list, help.find("Examples:") - list), "\n  ([a-z]+) ");
        globalFlags_ = matchesIn(help.substr(0, help.find("Subcommands:")), "(--[a-z]+)");
    }

    std::set<std::string> commands_;
    std::set<std::string> globalFlags_;
};

TEST_F(Documents, HelpNamesTheCommandsWithAnExampleEach)
{
    EXPECT_GE(commands_.size(), 18U);
    EXPECT_TRUE(globalFlags_.contains("--store"));
    for (const std::string& command : commands_) {
        const std::string help = output({command, "--help"});
        EXPECT_NE(help.find("tarn " + command), std::string::npos) << help;
        EXPECT_NE(help.find("Example"), std::string::npos) << help;
        EXPECT_TRUE(help.find("\n  tarn ") != std::string::npos) << help;
    }
}

TEST_F(Documents, TheManPageHasASectionForEachCommandAndNamesEachFlag)
{
    const std::string page = contentsOf("tarn.1");
    std::set<std::string> flags = globalFlags_;
    for (const std::string& command : commands_) {
        EXPECT_NE(page.find("\n.SS " + command), std::string::npos) << command;
        flags.merge(matchesIn(output({command, "--help"}), "(--[a-z-]+[a-z])"));
    }
    for (const std::string& flag : flags)
        EXPECT_NE(page.find(std::regex_replace(flag, std::regex("-"), "\\-")), std::string::npos) << flag;
    for (const std::string& section : matchesIn(page, "\n\\.SS ([a-z]+)"))
        EXPECT_TRUE(commands_.contains(section)) << section << " is no command";
}

TEST_F(Documents, CompletionsKnowEachCommandWithItsFlags)
{
    for (const char* name : {"completions/tarn.bash", "completions/_tarn", "completions/tarn.fish"}) {
        SCOPED_TRACE(name);
        const std::string completion = contentsOf(name);
        const bool fish = std::string_view(name).ends_with(".fish");
        for (const std::string& command : commands_) {
            EXPECT_TRUE(std::regex_search(completion, std::regex("\\b" + command + "\\b"))) << command;
            const std::string help = output({command, "--help"});
            for (const std::string& flag : matchesIn(help.substr(0, help.find("Example")), "(--[a-z-]+[a-z])")) {
                const std::string needle = fish ? "-l " + flag.substr(2) : flag;
                EXPECT_NE(completion.find(needle), std::string::npos) << command << " " << flag;
            }
        }
    }
}

TEST_F(Documents, TheBashCompletionOffersWhatFits)
{
    const auto complete = [](const std::string& words, int position) {
        const std::string script = "source '" + std::string(TARN_TOOL_SOURCES) + "/completions/tarn.bash'; COMP_WORDS=("
            + words + "); COMP_CWORD=" + std::to_string(position) + "; _tarn; printf '%s\\n' \"${COMPREPLY[@]}\"";
        FILE* pipe
            = ::popen(("bash -c \"" + std::regex_replace(script, std::regex(R"(["$\\])"), "\\$&") + "\"").c_str(), "r");
        std::string output;
        for (int character = 0; (character = std::fgetc(pipe)) != EOF;)
            output += static_cast<char>(character);
        EXPECT_EQ(::pclose(pipe), 0);
        return output;
    };
    EXPECT_EQ(complete("tarn una", 1), "unarchive\n");
    EXPECT_EQ(complete("tarn --json list --fi", 3), "--filter\n");
    EXPECT_EQ(complete("tarn list --filter tr", 3), "trashed\n");
    EXPECT_EQ(complete("tarn search --ex", 2), "--explain\n");
}

} // namespace tarn::test
