// What was exported comes back from an import: texts, bytes, dates, states, identifiers, links.

#include "tests/tarn/export/ExportFixture.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace tarn::test {

namespace fs = std::filesystem;

using testing::HasSubstr;

class ExportRoundTrip : public ExportFixture, public testing::WithParamInterface<unsigned> {
protected:
    fs::path other() const { return folder() / "other store"; }

    /// Each note as it is, by identifier.
    std::map<std::string, nlohmann::json> notesOf(const fs::path& store) const
    {
        std::map<std::string, nlohmann::json> notes;
        const auto document = jsonOn(store, {"list", "--filter", "all"});
        for (const auto& listed : document.at("notes")) {
            const std::string identifier = listed.at("uniqueIdentifier");
            nlohmann::json note = jsonOn(store, {"show", identifier});
            for (const char* ofTheDevice : {"vectorClock", "version", "lastEditingDevice"})
                note.erase(ofTheDevice);
            const auto files = jsonOn(store, {"files", identifier});
            for (const auto& attached : files.at("files")) {
                if (!attached.at("unused"))
                    note["bytes"][attached.at("filename").get<std::string>()]
                        = attached.at("uniqueIdentifier").get<std::string>().substr(0, 8)
                        + bytesOf(attached.at("path").get<std::string>());
            }
            notes[identifier] = std::move(note);
        }
        return notes;
    }
    /// Which note leads to which, or to which title: of one that waits for its note, or that several notes have, since
    /// then it depends on the order of edits which of them a link leads to.
    std::set<std::tuple<std::string, std::string>> linksOf(const fs::path& store) const
    {
        std::map<std::string, std::vector<std::string>> notesOfTitles;
        std::map<std::string, std::string> titles;
        const auto document = jsonOn(store, {"list", "--filter", "all"});
        for (const auto& listed : document.at("notes")) {
            const std::string identifier = listed.at("uniqueIdentifier");
            titles[identifier] = fold(listed.at("title").get<std::string>());
            notesOfTitles[titles[identifier]].push_back(identifier);
        }
        std::set<std::tuple<std::string, std::string>> links;
        for (const auto& [identifier, title] : titles) {
            const auto ofNote = jsonOn(store, {"links", identifier});
            for (const auto& link : ofNote.at("links")) {
                std::string target = link.contains("note") ? link.at("note") : link.at("title");
                if (titles.contains(target) && notesOfTitles.at(titles.at(target)).size() > 1)
                    target = titles.at(target);
                links.emplace(identifier, target);
            }
        }
        return links;
    }
    static std::string bytesOf(const std::string& path)
    {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    std::size_t pick(std::size_t count) { return random_() % count; }

    std::string randomText()
    {
        static const std::vector<std::string> titles{"# Plain", "# con", "# a/b: c? *d*", "# A/B: C? D", "",
            "---\ntitle: x\n---\n# T", "---", "# \xC3\xA9\xE3\x82\xAC", "# E\xCC\x81\xE3\x82\xAC", "## [[Plain]]",
            "# .hidden. ", "# Improvements", "\n\n# Late", "<!-- aside -->\n# Heading", "# Plain 2", "# #tag",
            "# " + std::string(300, 'x'), "README", "# attachments", "#attachments/deep"};
        static const std::vector<std::string> lines{"[[Plain]] and [[plain|so *called*]]", "[[con]]", "![[con]]",
            "[x](Plain.md) [y](../out) [z](README.md) <https://e.org>", "#work/home #zoo", "- [ ] a\r\n- [x] b",
            "`[[Plain]]`", "| a | b |\n|---|---|\n| [[con]] | x |", "> [[Late\n> ]]", "[[nowhere]] [[#heading]]",
            "trailing blanks   ", "```\n[a](b.txt)\n```", "[z](attachments/DEADBEEF/b.txt)"};
        std::string text = titles[pick(titles.size())];
        for (std::size_t count = pick(5); count > 0; --count)
            text += "\n\n" + lines[pick(lines.size())];
        return text + (pick(2) == 0 ? "\n" : "");
    }
    void attachTo(const std::string& identifier)
    {
        static const std::vector<std::pair<std::string, std::string>> files{{"b.txt", "[r]\n\n[r]: <b.txt> \"t\""},
            {"a b%.bin", "[f](a%20b%25.bin)"}, {"\xC3\xA9.md", "![](e\xCC\x81.md)"},
            {"what? #1.txt", "[q](<what? #1.txt>)"}, {"c:d.txt", "[c](c%3Ad.txt)"}};
        std::string text;
        std::vector<std::string> paths;
        for (const auto& [name, link] : files) {
            if (pick(2) == 0)
                continue;
            text += "\n\n" + link;
            paths.push_back(file(name, pick(2) == 0 ? "the same" : std::to_string(pick(1000))).string());
        }
        if (paths.empty())
            return;
        output({"append", identifier, text});
        paths.insert(paths.begin(), {"attach", identifier});
        output(paths);
    }
    void makeNotes()
    {
        const std::vector<std::string> states{"pin", "archive", "trash", "readonly"};
        for (int index = 0; index < 24; ++index) {
            const std::string identifier = note(randomText());
            if (pick(2) == 0)
                attachTo(identifier);
            for (const std::string& state : states) {
                if (pick(4) == 0)
                    output({state, identifier});
            }
        }
        // A conflicted copy.
        const std::string source = file("disputed.md", "# Disputed").string();
        output({"import", source});
        output({"append", "Disputed", "here"});
        file("disputed.md", "# Disputed\n\nthere");
        output({"import", source});
    }

    std::mt19937 random_{GetParam()}; // NOLINT: a seed that replays
};

TEST_P(ExportRoundTrip, BringsNotesBackAsTheyWere)
{
    makeNotes();
    const std::string layout = std::array{"flat", "tags", "source"}.at(GetParam() % 3);
    const auto notes = notesOf(store());
    const auto document = exported({"--all", "--layout", layout});
    EXPECT_TRUE(document.at("left").empty()) << document;
    EXPECT_EQ(document.at("exported"), notes.size());
    const auto imported = jsonOn(other(), {"import", out().string()});
    EXPECT_EQ(imported.at("imported"), notes.size()) << imported;
    const auto back = notesOf(other());
    ASSERT_EQ(back.size(), notes.size());
    for (const auto& [identifier, note] : notes)
        EXPECT_EQ(back.at(identifier), note);
    EXPECT_EQ(linksOf(other()), linksOf(store()));
    const TarnResult examination = runOn(other(), {"doctor"});
    EXPECT_EQ(examination.exitCode, 0) << examination.output;
    const fs::path again = folder() / "again";
    ASSERT_EQ(runOn(other(), {"export", again.string(), "--all", "--layout", layout}).exitCode, 0);
    EXPECT_EQ(namesIn(again), names());
    EXPECT_EQ(bytesIn(again), bytesIn(out()));
    EXPECT_EQ(jsonOn(other(), {"import", out().string()}).at("unchanged"), notes.size());
}

TEST_P(ExportRoundTrip, BringsTheGraphBackFromLinksToFiles)
{
    makeNotes();
    exported({"--all", "--links", "files", "--layout", GetParam() % 2 == 0 ? "flat" : "tags"});
    jsonOn(other(), {"import", out().string()});
    EXPECT_EQ(linksOf(other()), linksOf(store()));
    EXPECT_EQ(runOn(other(), {"doctor"}).exitCode, 0);
}

#ifdef TARN_SANITIZED
constexpr unsigned kLastSeed = 2; // instrumented programs are slow
#else
constexpr unsigned kLastSeed = 6;
#endif
INSTANTIATE_TEST_SUITE_P(Seeds, ExportRoundTrip, testing::Range(1U, kLastSeed + 1));

using ExportAndImport = ExportFixture;

TEST_F(ExportAndImport, TurnsLinksBackWhateverElseTheStoreHolds)
{
    note("# Links\n\n[[Shared|x]] [[Trashed|y]]");
    note("# Shared\n\nactive");
    output({"archive", note("# Shared\n\nin the archive")});
    output({"trash", note("# Trashed")});
    exported({"--links", "files"});
    EXPECT_EQ(jsonOn(store(), {"import", out().string()}).at("unchanged"), 2);
    const fs::path all = folder() / "all";
    output({"export", all.string(), "--all", "--links", "files"});
    const fs::path other = folder() / "another store";
    EXPECT_EQ(jsonOn(other, {"import", all.string()}).at("imported"), 4);
    EXPECT_EQ(jsonOn(other, {"import", all.string()}).at("unchanged"), 4);
    EXPECT_EQ(jsonOn(other, {"show", "Links"}).at("text"), "# Links\n\n[[Shared|x]] [[Trashed|y]]");
}

TEST_F(ExportAndImport, GivesEachIdentifierToOneNote)
{
    note("# A");
    exported();
    fs::copy_file(out() / "A.md", out() / "A copy.md");
    const fs::path other = folder() / "other";
    const TarnResult result = runOn(other, {"import", out().string()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.errors, HasSubstr("became a new note"));
    const auto document = jsonOn(other, {"list"});
    ASSERT_EQ(document.at("count"), 2);
    EXPECT_NE(document.at("notes").at(0).at("uniqueIdentifier"), document.at("notes").at(1).at("uniqueIdentifier"));
    EXPECT_EQ(jsonOn(other, {"import", out().string()}).at("unchanged"), 2);
}

TEST_F(ExportAndImport, TakesEditsBack)
{
    const Trip trip = tripWithFiles();
    exported();
    EXPECT_EQ(json({"import", out()}).at("unchanged"), 1);
    write("Trip.md", contents("Trip.md") + "\n\nedited");
    EXPECT_EQ(json({"import", out()}).at("updated"), 1);
    EXPECT_EQ(json({"show", trip.identifier}).at("text"), "# Trip\n\n![](pic%20one.png) [x](<b.txt>)\n\nedited");
    EXPECT_EQ(json({"files"}).at("files").size(), 2U);
    const auto document = exported();
    EXPECT_TRUE(document.at("left").empty());
    EXPECT_EQ(document.at("unchanged"), 3);
}

TEST_F(ExportAndImport, MakesAConflictedCopyOfANoteThatSaysSomethingElse)
{
    const std::string identifier = note("# A");
    exported();
    output({"append", "A", "here"});
    write("A.md", contents("A.md") + "\n\nthere");
    EXPECT_EQ(json({"import", out()}).at("conflicted"), 1);
    EXPECT_EQ(json({"show", identifier}).at("text"), "# A\nhere");
    EXPECT_EQ(json({"conflicts"}).at("groups").size(), 1U);
}

TEST_F(ExportAndImport, LeavesAloneAVersionInConflictThatComesAlone)
{
    const std::string source = file("a.md", "# A").string();
    output({"import", source});
    output({"append", "A", "here"});
    file("a.md", "# A\n\nthere");
    output({"import", source});
    exported();
    fs::remove(out() / "A 2.md");
    const fs::path other = folder() / "other";
    EXPECT_EQ(runOn(other, {"import", out().string()}).exitCode, 0);
    EXPECT_EQ(jsonOn(other, {"list", "--filter", "conflicted"}).at("count"), 0);
    EXPECT_EQ(runOn(other, {"doctor"}).exitCode, 0);
}

TEST_F(ExportAndImport, TellsAttachedTextsFromNotes)
{
    note("# A\n\n[x](note.md)");
    output({"attach", "A", file("note.md", "# No note")});
    exported();
    write("0.md", "# Written by hand");
    const fs::path other = folder() / "other";
    const auto document = jsonOn(other, {"import", out().string()});
    EXPECT_EQ(document.at("imported"), 2);
    EXPECT_EQ(document.at("attachments"), 1);
    EXPECT_EQ(jsonOn(other, {"show", "A"}).at("text"), "# A\n\n[x](note.md)");
}

} // namespace tarn::test
