#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>

namespace tarn::test {

using NoteCommands = TarnCommandTest;
using namespace std::string_literals;

namespace {

const std::vector<std::string> kNoteKeys{"uniqueIdentifier", "title", "subtitle", "creationDate", "modificationDate",
    "lastEditingDevice", "version", "trashed", "archived", "pinned", "locked", "encrypted", "hasImages", "hasFiles",
    "hasSourceCode", "todoCompleted", "todoIncompleted", "tags", "vectorClock"};

/// A state command, the attribute that it sets, to what, and the command that takes it back.
struct StateCase {
    std::string command;
    std::string attribute;
    std::string opposite;
};

const std::vector<StateCase> kStates{
    {"trash", "trashed", "restore"},
    {"archive", "archived", "unarchive"},
    {"pin", "pinned", "unpin"},
    {"readonly", "locked", "editable"},
};

} // namespace

TEST_F(NoteCommands, PrintANoteWithItsAttributesAsKeys)
{
    const auto note = nlohmann::ordered_json::parse(
        run({"--json", "new", "# Pears\n\nGreen.\n\n- [ ] buy\n\n#home/kitchen"}).output);
    EXPECT_EQ(keysOf(note), kNoteKeys);
    EXPECT_EQ(note.at("title"), "Pears");
    EXPECT_EQ(note.at("subtitle"), "Green.");
    EXPECT_EQ(note.at("tags"), nlohmann::ordered_json({"home", "home/kitchen"}));
    EXPECT_EQ(note.at("version"), 3);
    EXPECT_EQ(note.at("todoIncompleted"), 1);
    EXPECT_EQ(note.at("pinned"), false);
    EXPECT_TRUE(std::string(note.at("vectorClock")).ends_with(":1)")) << note;
    const std::string date = note.at("creationDate");
    EXPECT_EQ(date.at(10), 'T');
    EXPECT_EQ(date.back(), 'Z');

    auto keysWithText = kNoteKeys;
    keysWithText.emplace_back("text");
    EXPECT_EQ(keysOf(nlohmann::ordered_json::parse(run({"--json", "show", "Pears"}).output)), keysWithText);
}

TEST_F(NoteCommands, KeepATextToTheLastByte)
{
    const std::vector<std::string> texts{"", "\n", " \t ", "a", "a\r\nb\r\n", "\xEF\xBB\xBF# Marked\n",
        "nul\0inside\0"s, "\0"s, "no line end", "# T\n\n\n\n", "---\ntitle: stays\n---\n",
        "\xF0\x9F\x98\x80 e\xCC\x81 \xED\x95\x9C", std::string(300'000, '\n'), "- [ ] begins like an option\n"};
    for (const std::string& text : texts) {
        const std::string identifier = note(text);
        EXPECT_EQ(output({"show", identifier}), text);
        EXPECT_EQ(json({"show", identifier}).at("text"), text);
    }
}

TEST_F(NoteCommands, KeepANoteOfTwentyMegabytes)
{
    std::string text = "# Large\n\n";
    while (text.size() < 20'000'000)
        text += "A line with an é, a [link](u) and *marks*, number " + std::to_string(text.size()) + "\n";
    const std::string identifier = note(text);
    EXPECT_TRUE(output({"show", identifier}) == text);
    EXPECT_EQ(json({"search", "--count", "number"}).at("count"), 1);
}

TEST_F(NoteCommands, RefuseATextThatIsNoUTF8)
{
    const TarnResult result = run({"new"}, "ab\xE4");
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_TRUE(result.errors.starts_with(
        "tarn: standard input: not UTF-8 (byte 3); nothing was saved, convert it first; the text is in "))
        << result.errors;
    EXPECT_EQ(run({"list"}).exitCode, 1);
}

TEST_F(NoteCommands, FindANoteByIdentifierItsBeginningOrItsTitle)
{
    const std::string identifier = note("# Étude\n\nthe one");
    note("# Other");
    std::string lower = identifier.substr(0, 8);
    std::ranges::transform(
        lower, lower.begin(), [](unsigned char byte) { return static_cast<char>(std::tolower(byte)); });
    for (const std::string& argument :
        {identifier, identifier.substr(0, 8), identifier.substr(0, 20), lower, "Étude"s, "etude"s, "ETUDE"s})
        EXPECT_EQ(output({"show", argument}), "# Étude\n\nthe one") << argument;
    for (const std::string& argument : {identifier.substr(0, 7), "Étud"s, "FFFFFFFF-0000"s, ""s}) {
        const TarnResult result = run({"show", argument});
        EXPECT_EQ(result.exitCode, 1) << argument;
        EXPECT_EQ(std::ranges::count(result.errors, '\n'), 1) << result.errors;
    }
}

TEST_F(NoteCommands, TakeNoEmptyArgumentForANoteWithoutATitle)
{
    note("");
    for (const std::string empty : {"", "\u200B"}) {
        for (const std::vector<std::string>& command :
            std::vector<std::vector<std::string>>{{"show"}, {"delete", "--yes"}, {"trash"}, {"append"}, {"links"}}) {
            std::vector<std::string> arguments = command;
            arguments.push_back(empty);
            const TarnResult result = run(arguments);
            EXPECT_EQ(result.exitCode, 1) << command.front();
            EXPECT_NE(result.errors.find("NOTE is empty"), std::string::npos) << result.errors;
        }
    }
    EXPECT_EQ(json({"list"}).at("count"), 1);
}

TEST_F(NoteCommands, DoNotShowAProtectedText)
{
    const std::string identifier = note("# Secret\n\nhidden");
    damage("UPDATE OVNote SET encrypted = 1; UPDATE OVNote_large SET text = NULL");
    const TarnResult result = run({"show", "Secret"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
        "tarn: \"Secret\" (" + identifier.substr(0, 8) + ")"
            + " is protected by a password; name a file with --password-file whose first line is it\n");
    const nlohmann::json document = json({"show", "Secret"});
    EXPECT_EQ(document.at("encrypted"), true);
    EXPECT_TRUE(document.at("text").is_null());
}

TEST_F(NoteCommands, PreferAnUntrashedNoteOfTheSameTitle)
{
    note("# Same\n\nkept");
    const std::string trashed = note("# Same\n\nthrown away");
    output({"trash", trashed});
    EXPECT_EQ(output({"show", "Same"}), "# Same\n\nkept");
    output({"pin", trashed});
    EXPECT_EQ(output({"show", "Same"}), "# Same\n\nkept");
    output({"trash", "Same"});
    EXPECT_EQ(run({"show", "Same"}).output, "# Same\n\nthrown away");
}

TEST_F(NoteCommands, ListAllMatchesOfABeginningThatIsNotUnique)
{
    const std::string first = note("# One");
    const std::string second = note("# Two");
    damage("UPDATE OVNote SET uniqueIdentifier = 'ABCDEF01-' || substr(uniqueIdentifier, 10)");
    const TarnResult result = run({"show", "abcdef01"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("One"), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find("Two"), std::string::npos) << result.errors;
    EXPECT_EQ(output({"show", "ABCDEF01" + first.substr(8)}), "# One");
}

TEST_F(NoteCommands, ChangeStatesAndTakeThemBack)
{
    const std::string one = note("# One");
    note("# Two");
    for (const StateCase& state : kStates) {
        SCOPED_TRACE(state.command);
        const nlohmann::json changed = json({state.command, one, "Two", "One"});
        ASSERT_EQ(changed.at("notes").size(), 2U) << "each once";
        EXPECT_EQ(changed.at("notes").at(0).at(state.attribute), true);
        EXPECT_EQ(json({"show", "Two"}).at(state.attribute), true);
        EXPECT_EQ(json({state.opposite, one}).at("notes").at(0).at(state.attribute), false);
        EXPECT_EQ(json({"show", one}).at(state.attribute), false);
        EXPECT_NE(output({state.opposite, "Two"}).find("Two"), std::string::npos);
    }
}

TEST_F(NoteCommands, ChangeNothingWhenOneOfTheNotesIsNotFound)
{
    note("# One");
    const TarnResult result = run({"trash", "One", "Missing"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find("\"Missing\""), std::string::npos) << result.errors;
    EXPECT_EQ(json({"show", "One"}).at("trashed"), false);
}

TEST_F(NoteCommands, DeleteForGoodOnlyWhenTold)
{
    note("# One");
    note("# Two");
    EXPECT_EQ(run({"delete", "One"}).exitCode, 2) << "nobody to ask";
    EXPECT_EQ(json({"list"}).at("count"), 2);
    const nlohmann::json deleted = json({"delete", "--yes", "One"});
    EXPECT_EQ(titlesOf(deleted), std::vector<std::string>{"One"});
    EXPECT_EQ(titlesOf(json({"list", "--filter", "all"})), std::vector<std::string>{"Two"});
    EXPECT_EQ(run({"delete", "--yes", "One"}).exitCode, 1);
}

TEST_F(NoteCommands, ListByFilterTagAndLimitInTheStandardOrder)
{
    for (const char* text : {"# Old #t", "# Pinned #t/x", "# Thrown", "# Archived #t", "# New #other"})
        note(text);
    output({"pin", "Pinned #t/x"});
    output({"trash", "Thrown"});
    output({"archive", "Archived #t"});
    const auto titles = [this](std::vector<std::string> arguments) { return titlesOf(json(std::move(arguments))); };
    using Titles = std::vector<std::string>;
    EXPECT_EQ(titles({"list"}), (Titles{"Pinned #t/x", "New #other", "Old #t"}));
    EXPECT_EQ(titles({"list", "--filter", "active", "--limit", "2"}), (Titles{"Pinned #t/x", "New #other"}));
    EXPECT_EQ(titles({"list", "--filter", "pinned"}), Titles{"Pinned #t/x"});
    EXPECT_EQ(titles({"list", "--filter", "trashed"}), Titles{"Thrown"});
    EXPECT_EQ(titles({"list", "--filter", "archived"}), Titles{"Archived #t"});
    EXPECT_EQ(
        titles({"list", "--filter", "all"}), (Titles{"Pinned #t/x", "New #other", "Archived #t", "Thrown", "Old #t"}));
    EXPECT_EQ(titles({"list", "--filter", "conflicted"}), Titles{});
    EXPECT_EQ(titles({"list", "--filter", "encrypted"}), Titles{});
    EXPECT_EQ(titles({"list", "--tag", "T"}), (Titles{"Pinned #t/x", "Old #t"}));
    EXPECT_EQ(titles({"list", "--tag", "#t", "--filter", "archived"}), Titles{"Archived #t"});
    EXPECT_EQ(titles({"list", "--tag", "none"}), Titles{});
}

TEST_F(NoteCommands, ListTellsHowManyThereAreWithoutTheLimit)
{
    for (const char* text : {"# A #t", "# B", "# C #t"})
        note(text);
    const auto document = nlohmann::ordered_json::parse(run({"--json", "list", "--limit", "1"}).output);
    EXPECT_EQ(keysOf(document), (std::vector<std::string>{"count", "notes", "total"}));
    EXPECT_EQ(document.at("count"), 1);
    EXPECT_EQ(document.at("total"), 3);
    EXPECT_EQ(json({"list", "--tag", "t", "--limit", "1"}).at("total"), 2);
    EXPECT_EQ(json({"list", "--tag", "t"}).at("total"), 2);
    EXPECT_EQ(json({"list", "--filter", "trashed"}).at("total"), 0);
}

TEST_F(NoteCommands, PrintTheWholeDocumentAlsoWhenNothingIsFound)
{
    note("# One");
    for (const std::vector<std::string>& arguments :
        {std::vector<std::string>{"--json", "list", "--filter", "trashed"}, {"--json", "search", "nowhere"}}) {
        const TarnResult result = run(arguments);
        EXPECT_EQ(result.exitCode, 1);
        const nlohmann::json document = nlohmann::json::parse(result.output);
        EXPECT_EQ(document.at("count"), 0);
        EXPECT_TRUE(document.at("notes").is_array());
    }
}

TEST_F(NoteCommands, ShowOneLineForEachNoteWhateverItsTitleHolds)
{
    note("# a\x1b[31mb\x07 \xE2\x80\xAE");
    note("");
    const std::string text = output({"list"});
    EXPECT_EQ(std::ranges::count(text, '\n'), 2) << text;
    EXPECT_EQ(text.find('\x1b'), std::string::npos);
    EXPECT_EQ(text.find('\x07'), std::string::npos);
    EXPECT_NE(text.find("(untitled)"), std::string::npos);
}

TEST_F(NoteCommands, SearchWordsAndTags)
{
    note("# Garden\n\nZwei Äpfel und Birnen\n\n#home/garden");
    note("# Work\n\napfel one\n\n#office #my job#");
    note("# Gone\n\napfel");
    output({"trash", "Gone"});
    const auto titles = [this](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "search");
        auto found = titlesOf(json(std::move(arguments)));
        std::ranges::sort(found);
        return found;
    };
    using Titles = std::vector<std::string>;
    EXPECT_EQ(titles({"APFEL"}), (Titles{"Garden", "Work"}));
    EXPECT_EQ(titles({"äpfel"}), (Titles{"Garden", "Work"}));
    EXPECT_EQ(titles({"pfel"}), (Titles{"Garden", "Work"}));
    EXPECT_EQ(titles({"pfel birnen"}), Titles{"Garden"});
    EXPECT_EQ(titles({"pfel", "birnen"}), Titles{"Garden"});
    EXPECT_EQ(titles({"pfel -birnen"}), Titles{"Work"});
    EXPECT_EQ(titles({"--", "-birnen"}), Titles{"Work"});
    EXPECT_EQ(titles({"#home"}), Titles{"Garden"});
    EXPECT_EQ(titles({"#my job#"}), Titles{"Work"});
    EXPECT_EQ(titles({"--", "-#office"}), Titles{"Garden"});
    EXPECT_EQ(titles({"--all", "pfel -#office"}), (Titles{"Garden", "Gone"}));
    EXPECT_EQ(titles({"--limit", "1", "pfel"}).size(), 1U);
}

TEST_F(NoteCommands, SearchShowsTheFirstMatchingLineAndCounts)
{
    note("# Garden\n\nnothing here\n  Zwei Äpfel\n");
    const std::string text = output({"search", "zwei apfel"});
    EXPECT_NE(text.find("\n    Zwei Äpfel\n"), std::string::npos) << text;
    EXPECT_EQ(output({"search", "--count", "zwei"}), "1\n");
    EXPECT_EQ(run({"search", "--count", "drei"}).output, "0\n");
    EXPECT_EQ(run({"search", "--count", "drei"}).exitCode, 1);
    const auto document = nlohmann::ordered_json::parse(run({"--json", "search", "zwei"}).output);
    EXPECT_EQ(keysOf(document),
        (std::vector<std::string>{"count", "notes", "total", "predicate", "highlight", "editorTerm", "hints"}));
    const std::string explained = output({"search", "--explain", "zwei"});
    EXPECT_NE(explained.find("SELECT"), std::string::npos) << explained;
}

TEST_F(NoteCommands, ShowTheTreeOfTags)
{
    note("# A\n\n#work/acme/x #Home #work9 #work10");
    note("# B\n\n#work #old");
    output({"trash", "B"});
    const auto document = nlohmann::ordered_json::parse(run({"--json", "tags"}).output);
    EXPECT_EQ(keysOf(document.at("tags").at(0)), (std::vector<std::string>{"title", "isRoot", "pinned", "count"}));
    std::vector<std::string> lines;
    for (const auto& tag : document.at("tags"))
        lines.push_back(
            std::string(tag.at("title")) + " " + tag.at("count").dump() + (tag.at("isRoot") ? " root" : ""));
    EXPECT_EQ(lines,
        (std::vector<std::string>{
            "Home 1 root", "work 1 root", "work/acme 1", "work/acme/x 1", "work9 1 root", "work10 1 root"}));
    EXPECT_EQ(output({"tags"}), "Home  1\nwork  1\n  acme  1\n    x  1\nwork9  1\nwork10  1\n");
    EXPECT_NE(output({"tags", "--all"}).find("old  0\n"), std::string::npos);
}

TEST_F(NoteCommands, CountWhatIsInTheStore)
{
    note("# A\n\n- [ ] x\n\n#t/u");
    note("# B");
    output({"trash", "B"});
    const nlohmann::json stats = json({"stats"});
    EXPECT_EQ(stats.at("notes"), 2);
    EXPECT_EQ(stats.at("active"), 1);
    EXPECT_EQ(stats.at("trashed"), 1);
    EXPECT_EQ(stats.at("tags"), 2);
    EXPECT_EQ(stats.at("untagged"), 1);
    EXPECT_EQ(stats.at("withOpenTodos"), 1);
    EXPECT_GT(stats.at("databaseBytes"), 0);
    EXPECT_NE(output({"stats"}).find("trashed"), std::string::npos);
}

TEST_F(NoteCommands, MakeNoStoreByReading)
{
    for (const char* command : {"list", "tags", "stats"}) {
        const TarnResult result = run({command});
        EXPECT_EQ(result.exitCode, std::string_view(command) == "stats" ? 0 : 1);
        EXPECT_NE(result.errors.find("there is no store"), std::string::npos) << result.errors;
    }
    EXPECT_FALSE(std::filesystem::exists(store()));
}

} // namespace tarn::test
