// What the completions offer from a store, asked of the shells that are installed.

#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <regex>

namespace tarn::test {

namespace {

using Lines = std::vector<std::string>;

std::string inSingleQuotes(const std::string& text)
{
    return "'" + std::regex_replace(text, std::regex("'"), "'\\''") + "'";
}

Lines linesOf(const std::string& command)
{
    FILE* pipe = ::popen(command.c_str(), "r");
    std::string text;
    for (int character = 0; (character = std::fgetc(pipe)) != EOF;)
        text += static_cast<char>(character);
    EXPECT_EQ(::pclose(pipe), 0) << command;
    Lines lines;
    for (std::size_t begin = 0, end; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1)
        lines.push_back(text.substr(begin, end - begin));
    std::ranges::sort(lines);
    return lines;
}

bool isInstalled(const std::string& shell)
{
    return std::system(("command -v " + shell + " >/dev/null 2>&1").c_str()) == 0;
}

} // namespace

class Completion : public TarnCommandTest {
protected:
    Completion()
    {
        note("# Groceries\n\n#home/kitchen");
        note("# Packing list\n\n#two words#");
        note("# Note: [a] \"b\" 'c' $d (e) \\n\n");
        note("# -dash");
        note("# or else");
        note("");
        note("# Grown");
        output({"trash", "Grown"});
    }

    /// Runs lines of a shell with the program in its path and what completes it loaded.
    Lines run(const std::string& shell, const std::string& lines, const std::filesystem::path& store) const
    {
        const std::string program = std::filesystem::path(TARN_PROGRAM).parent_path().string();
        return linesOf("env LC_ALL=C.UTF-8 HOME=" + inSingleQuotes(folder().string())
            + " PATH=" + inSingleQuotes(program) + ":\"$PATH\" TARN_STORE=" + inSingleQuotes(store.string()) + " "
            + shell + " -c " + inSingleQuotes(lines) + " 2>&1");
    }
    /// What bash offers for a line that it breaks into these words.
    Lines bash(const std::string& line, const std::string& words) const { return bash(line, words, store()); }
    Lines bash(const std::string& line, const std::string& words, const std::filesystem::path& store) const
    {
        return run("bash --norc",
            "source '" + std::string(TARN_TOOL_SOURCES) + "/completions/tarn.bash'; COMP_LINE=" + inSingleQuotes(line)
                + "; COMP_POINT=${#COMP_LINE}; COMP_WORDS=(" + words
                + "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _tarn; ((${#COMPREPLY[@]} == 0)) || printf '%s\\n' "
                  "\"${COMPREPLY[@]}\"",
            store);
    }
    /// What fish offers.
    Lines fish(const std::string& line) const { return fish(line, store()); }
    Lines fish(const std::string& line, const std::filesystem::path& store) const
    {
        return run("fish --no-config",
            "source '" + std::string(TARN_TOOL_SOURCES) + "/completions/tarn.fish'; complete -C " + inSingleQuotes(line)
                + " | string replace -r '\\t.*' ''; true",
            store);
    }
    std::filesystem::path noStore() const { return folder() / "none"; }
};

TEST_F(Completion, OfBashOffersTitles)
{
    EXPECT_EQ(bash("tarn show Gro", "tarn show Gro"), (Lines{"Groceries", "Grown"}));
    EXPECT_EQ(bash("tarn show Packing\\ l", "tarn show 'Packing\\ l'"), Lines{"Packing\\ list"});
    EXPECT_EQ(bash("tarn show \"Packing l", "tarn show '\"Packing l'"), Lines{"Packing list"});
    EXPECT_EQ(bash("tarn show or", "tarn show or"), Lines{"or\\ else"}) << "a word of the language of searches";
    EXPECT_EQ(bash("tarn trash Groceries ''", "tarn trash Groceries ''").size(), 5U) << "none with a dash";
    EXPECT_EQ(bash("tarn append Groceries P", "tarn append Groceries P"), Lines{}) << "the text";
    EXPECT_EQ(bash("tarn tag add home G", "tarn tag add home G"), (Lines{"Groceries", "Grown"}));
}

TEST_F(Completion, OfBashQuotesTitles)
{
    const std::string behind = R"(\ \[a\]\ \"b\"\ \'c\'\ \$d\ \(e\)\ \\n)";
    EXPECT_EQ(bash("tarn show Note", "tarn show Note"), Lines{"Note:" + behind});
    EXPECT_EQ(bash("tarn show Note:", "tarn show Note :"), Lines{behind}) << "readline breaks the word there";
    EXPECT_EQ(bash("tarn show Note:\\ [", "tarn show Note : '\\ ['"), Lines{behind});
    EXPECT_EQ(bash("tarn show \"Note", "tarn show '\"Note'"), Lines{R"(Note: [a] \"b\" 'c' \$d (e) \\n)"});
    EXPECT_EQ(bash("tarn show 'Note", "tarn show \"'Note\""), Lines{R"(Note: [a] "b" '\''c'\'' $d (e) \n)"});
}

TEST_F(Completion, OfBashOffersTags)
{
    EXPECT_EQ(bash("tarn list --tag ho", "tarn list --tag ho"), (Lines{"home", "home/kitchen"}));
    EXPECT_EQ(bash("tarn tag rename two", "tarn tag rename two"), Lines{"two\\ words"});
}

TEST_F(Completion, OfBashIsSilentWithoutAStore)
{
    EXPECT_EQ(bash("tarn show G", "tarn show G", noStore()), Lines{});
    EXPECT_EQ(bash("tarn list --tag h", "tarn list --tag h", noStore()), Lines{});
    const std::string option = "tarn --store '" + store().string() + "' show Gro";
    const std::string words = "tarn --store " + inSingleQuotes(inSingleQuotes(store().string())) + " show Gro";
    EXPECT_EQ(bash(option, words, noStore()).size(), 2U) << "the store that the line names";
    EXPECT_FALSE(std::filesystem::exists(noStore()));
    std::filesystem::create_directories(noStore() / "Application Data");
    file("none/Application Data/database.sqlite", "no database at all, but a file that is as long as one begins");
    EXPECT_EQ(bash("tarn show G", "tarn show G", noStore()), Lines{});
}

TEST_F(Completion, OfFishOffersTitlesAndTags)
{
    if (!isInstalled("fish"))
        GTEST_SKIP() << "fish is not installed";
    EXPECT_EQ(fish("tarn show Gro"), (Lines{"Groceries", "Grown"}));
    EXPECT_EQ(fish("tarn show 'Packing l"), Lines{"Packing list"});
    EXPECT_EQ(fish("tarn show Note"), Lines{R"(Note: [a] "b" 'c' $d (e) \n)"});
    EXPECT_EQ(fish("tarn append Groceries P"), Lines{});
    EXPECT_EQ(fish("tarn list --tag hom"), (Lines{"home", "home/kitchen"}));
    EXPECT_EQ(fish("tarn tag add two"), Lines{"two words"});
    EXPECT_EQ(fish("tarn tag add home Pack"), Lines{"Packing list"});
    EXPECT_EQ(fish("tarn show G", noStore()), Lines{});
    EXPECT_FALSE(std::filesystem::exists(noStore()));
}

/// zsh completes only on a terminal; what it is given to offer can be looked at.
TEST_F(Completion, OfZshOffersTitlesAndTags)
{
    if (!isInstalled("zsh"))
        GTEST_SKIP() << "zsh is not installed";
    const auto zsh = [this](const std::string& function, const std::string& typed, const std::filesystem::path& store) {
        return run("zsh -f",
            "compadd() { print -rl -- ${(P)@[-1]}; }; compdef() { :; }; _arguments() { return 0; }; _describe() { :; "
            "}; "
            "typeset -a words; words=(tarn); CURRENT=1; source '"
                + std::string(TARN_TOOL_SOURCES)
                + "/completions/_tarn'; tarn_call=(tarn); PREFIX=" + inSingleQuotes(typed) + "; " + function + "; true",
            store);
    };
    EXPECT_EQ(zsh("_tarn_notes", "Gro", store()), (Lines{"Groceries", "Grown"}));
    EXPECT_EQ(zsh("_tarn_notes", "Packing\\ l", store()), Lines{"Packing list"});
    EXPECT_EQ(zsh("_tarn_notes", "Note:", store()), Lines{R"(Note: [a] "b" 'c' $d (e) \n)"});
    EXPECT_EQ(zsh("_tarn_tags", "", store()), (Lines{"home", "home/kitchen", "two words"}));
    EXPECT_EQ(zsh("_tarn_notes", "", noStore()), Lines{});
    EXPECT_FALSE(std::filesystem::exists(noStore()));
}

} // namespace tarn::test
