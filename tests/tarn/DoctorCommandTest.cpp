#include "tests/tarn/TarnCommandTest.h"

#include <gmock/gmock.h>

namespace tarn::test {

using DoctorCommand = TarnCommandTest;

namespace {

/// A field of a note that something damaged, and the check that must see it.
struct Damage {
    std::string sql;
    std::string check;
};

const std::vector<Damage> kDamages{
    {"UPDATE OVNote SET title = 'Wrong' WHERE title = 'Sound'", "title"},
    {"UPDATE OVNote SET subtitle = 'Wrong' WHERE title = 'Sound'", "subtitle"},
    {"UPDATE OVNote SET todoCompleted = 9 WHERE title = 'Sound'", "todos"},
    {"UPDATE OVNote SET todoIncompleted = 9 WHERE title = 'Sound'", "todos"},
    {"UPDATE OVNote SET hasSourceCode = 1 WHERE title = 'Sound'", "flags"},
    {"UPDATE OVNote SET hasImages = 1 WHERE title = 'Sound'", "flags"},
};

} // namespace

TEST_F(DoctorCommand, FindsNothingInASoundStore)
{
    note("# Sound\n\nbody\n\n- [x] a\n- [ ] b\n\n#a/b\n\n    code\n");
    const auto document = nlohmann::ordered_json::parse(run({"--json", "doctor"}).output);
    ASSERT_GE(document.at("checks").size(), 7U);
    for (const auto& check : document.at("checks")) {
        EXPECT_EQ(check.at("ok"), true) << check;
        EXPECT_EQ(check.at("found"), 0) << check;
        EXPECT_FALSE(std::string(check.at("name")).empty());
    }
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(DoctorCommand, FindsAndRepairsFieldsThatAreNotWhatTheTextSays)
{
    int files = 0;
    for (const Damage& damaged : kDamages) {
        SCOPED_TRACE(damaged.sql);
        output({"import",
            file(std::to_string(files++) + ".md",
                "---\nupdated: 2020-01-02\n---\n# Sound\n\nbody\n\n- [x] a\n- [ ] b\n\n#a/b\n")});
        const nlohmann::json before = json({"show", "Sound"});
        damage(damaged.sql);

        const TarnResult found = run({"--json", "doctor"});
        EXPECT_EQ(found.exitCode, 1);
        const nlohmann::json report = nlohmann::json::parse(found.output);
        for (const auto& check : report.at("checks"))
            EXPECT_EQ(check.at("ok"), check.at("name") != damaged.check) << check;

        const TarnResult repaired = run({"--json", "doctor", "--repair"});
        EXPECT_EQ(repaired.exitCode, 0) << repaired.output;
        EXPECT_EQ(nlohmann::json::parse(repaired.output).at("repaired"), 1);
        EXPECT_EQ(run({"doctor"}).exitCode, 0);
        const nlohmann::json after = json({"show", "Sound"});
        for (const char* key : {"title", "subtitle", "text", "modificationDate", "todoCompleted", "todoIncompleted",
                 "hasImages", "hasSourceCode", "tags"})
            EXPECT_EQ(after.at(key), before.at(key)) << key;
        output({"delete", "--yes", "Sound"});
    }
}

TEST_F(DoctorCommand, FindsAndRepairsLinksThatAreNotWhatTheTextSays)
{
    const std::string target = note("# Target");
    note("# Source\n\n[[Target]] [[Missing]]");
    for (const std::string sql : {"DELETE FROM OVNoteBackLink", "UPDATE OVNoteBackLink SET location = location + 1",
             "UPDATE OVNoteBackLink SET title = 'Other', title_folded = 'other' WHERE location = 10"}) {
        SCOPED_TRACE(sql);
        damage(sql);
        const nlohmann::json report = json({"doctor"});
        for (const auto& check : report.at("checks"))
            EXPECT_EQ(check.at("ok"), check.at("name") != "links") << check;
        EXPECT_EQ(run({"doctor", "--repair"}).exitCode, 0);
        EXPECT_EQ(run({"doctor"}).exitCode, 0);
        const nlohmann::json links = json({"links", "Source"}).at("links");
        ASSERT_EQ(links.size(), 2U);
        EXPECT_EQ(links.at(0).at("note"), target);
    }
}

TEST_F(DoctorCommand, FindsAndRepairsLinksThatLeadToANoteOfAnotherTitle)
{
    const std::string target = note("# Target");
    note("# Other");
    const std::string untitled = note("");
    note("# Source\n\n[[Target]] [[" + untitled + "]]");
    EXPECT_EQ(run({"doctor"}).exitCode, 0) << "a note without title is linked by its identifier";
    for (const std::string title : {"Other", "Source"}) {
        damage("UPDATE OVNoteBackLink SET linkingTo = (SELECT pk FROM OVNote WHERE title = '" + title
            + "') WHERE title = 'Target'");
        const nlohmann::json report = json({"doctor"});
        for (const auto& check : report.at("checks"))
            EXPECT_EQ(check.at("found"), check.at("name") == "links" ? 1 : 0) << check;
        EXPECT_EQ(run({"doctor", "--repair"}).exitCode, 0);
        EXPECT_EQ(json({"links", "Source"}).at("links").at(0).at("note"), target);
        EXPECT_EQ(run({"doctor"}).exitCode, 0);
    }
}

TEST_F(DoctorCommand, RepairsATitleWithoutRewritingLinks)
{
    note("# Target");
    note("# Source\n\n[[Target]] [[Wrong]]");
    damage("UPDATE OVNote SET title = 'Wrong', title_folded = 'wrong' WHERE title = 'Target'");
    EXPECT_EQ(run({"doctor", "--repair"}).exitCode, 0);
    EXPECT_EQ(output({"show", "Target"}), "# Target");
    EXPECT_EQ(output({"show", "Source"}), "# Source\n\n[[Target]] [[Wrong]]");
}

TEST_F(DoctorCommand, FindsTagsThatNoTextNames)
{
    note("# One\n\n#a");
    damage("UPDATE OVNoteTag SET title = 'b' WHERE title = 'a'");
    const TarnResult found = run({"doctor"});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_NE(found.output.find("#b: no text names it"), std::string::npos) << found.output;
    EXPECT_EQ(run({"doctor", "--repair"}).exitCode, 0);
    EXPECT_EQ(json({"show", "One"}).at("tags"), nlohmann::json::array({"a"}));
}

TEST_F(DoctorCommand, FindsAndMendsTagsOfNamesThatNoTextCanGive)
{
    note("# One\n\n#Miller & Co./Bills# #x-/y#");
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
    // As a version left them that trimmed whole names only.
    damage("UPDATE OVNoteTag SET title = 'Miller & Co./Bills', tagcon = 'receipt' WHERE title = 'Miller & Co/Bills'");
    damage("UPDATE OVNoteTag SET title = 'x-/y' WHERE title = 'x/y'");
    note("# Two\n\n#x/y"); // makes the tag once more
    damage("UPDATE OVNote SET encrypted = 1 WHERE title = 'One'");
    damage("DELETE FROM OVNote_tags WHERE member = (SELECT pk FROM OVNoteTag WHERE title = 'x')");

    const nlohmann::json found = json({"doctor"});
    for (const auto& check : found.at("checks")) {
        if (check.at("name") == "tags") {
            EXPECT_THAT(check.at("problems"),
                testing::IsSupersetOf({"#Miller & Co./Bills: no text can give a tag this name",
                    "#x-/y: no text can give a tag this name"}));
        }
        EXPECT_EQ(check.at("ok"), check.at("name") != "tags" && check.at("name") != "noteTags") << check;
    }
    EXPECT_EQ(run({"doctor", "--repair"}).exitCode, 0);
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
    const nlohmann::json tags = json({"tags", "--all"}).at("tags");
    std::vector<std::string> titles;
    for (const auto& tag : tags)
        titles.push_back(tag.at("title"));
    EXPECT_THAT(titles, testing::ElementsAre("Miller & Co", "Miller & Co/Bills", "x", "x/y"));
    EXPECT_THAT(json({"show", "One"}).at("tags"), testing::SizeIs(4)) << "a protected note gets them as well";
    EXPECT_THAT(json({"show", "Two"}).at("tags"), testing::SizeIs(2));
    EXPECT_EQ(stored("SELECT tagcon FROM OVNoteTag WHERE title = 'Miller & Co/Bills'"), "receipt");
}

TEST_F(DoctorCommand, MakesOneTagOfTwoOfOneName)
{
    note("# One\n\n#a");
    note("# Two\n\n#b");
    damage("UPDATE OVNoteTag SET title = 'A', title_folded = 'a', tagcon = 'star', pinned = 1 WHERE title = 'b'");
    damage("UPDATE OVNote_large SET text = replace(text, '#b', '#A')");
    const TarnResult found = run({"doctor"});
    EXPECT_NE(found.output.find(": there are two such tags"), std::string::npos) << found.output;
    const TarnResult repaired = run({"doctor", "--repair"});
    EXPECT_EQ(repaired.exitCode, 0) << repaired.output;
    EXPECT_NE(repaired.output.find("\nmended 1 tag\n"), std::string::npos) << repaired.output;
    EXPECT_EQ(stored("SELECT count(*) FROM OVNoteTag"), "1");
    EXPECT_EQ(stored("SELECT tagcon || pinned FROM OVNoteTag"), "star1");
    EXPECT_EQ(json({"tags"}).at("tags").at(0).at("count"), 2);
}

TEST_F(DoctorCommand, EntersTextsInTheSearchIndexThatItDoesNotHave)
{
    note("# One\n\npears");
    note("# Two\n\nplums");
    damage("UPDATE OVNote_text_signature SET signature = NULL WHERE pk = 1");
    damage("UPDATE OVNote_text_signature SET signature = substr(signature, 1, 4) || x'00' WHERE pk = 2");
    const TarnResult found = run({"doctor"});
    EXPECT_EQ(found.exitCode, 1);
    EXPECT_NE(found.output.find("searchIndex 2 found"), std::string::npos) << found.output;
    const TarnResult repaired = run({"--json", "doctor", "--repair"});
    EXPECT_EQ(repaired.exitCode, 0) << repaired.output;
    EXPECT_EQ(nlohmann::json::parse(repaired.output).at("indexed"), 2);
    EXPECT_EQ(nlohmann::json::parse(repaired.output).at("repaired"), 0);
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(DoctorCommand, ExaminesNothingWhereThereIsNoStore)
{
    EXPECT_EQ(run({"doctor"}).exitCode, 6);
}

// Files of attachments -----------------------------------------------------------------------------------------------

class DoctorOfFiles : public TarnCommandTest {
protected:
    DoctorOfFiles()
    {
        note("# N");
        output({"attach", "N", file("a.txt", "bytes")});
    }
    std::filesystem::path attachments() const { return store() / "Application Data" / "Local Files"; }
    std::filesystem::path attached() const { return std::string(json({"files"}).at("files").at(0).at("path")); }
    /// What the check of files says, and that no other finds anything.
    std::vector<std::string> problems() const
    {
        const nlohmann::json document = json({"doctor"});
        for (const auto& check : document.at("checks"))
            EXPECT_TRUE(check.at("ok") || check.at("name") == "files") << check;
        return document.at("checks").back().at("problems");
    }
    /// Says what was mended.
    std::size_t repair() const { return json({"doctor", "--repair"}).at("mendedFiles"); }
};

TEST_F(DoctorOfFiles, FindsNothingInASoundStore)
{
    EXPECT_TRUE(problems().empty());
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
    EXPECT_EQ(json({"stats"}).at("attachmentBytes"), 5);
    EXPECT_EQ(repair(), 0U);
}

TEST_F(DoctorOfFiles, FindsAndMendsWhatIsNotAsTheStoreHasIt)
{
    namespace fs = std::filesystem;
    const fs::path file = attached();
    fs::rename(file, file.parent_path() / "b.txt");
    EXPECT_THAT(problems(), testing::ElementsAre(testing::EndsWith("\"a.txt\": its file has another name")));
    EXPECT_EQ(run({"doctor"}).exitCode, 1);
    EXPECT_EQ(repair(), 1U);
    EXPECT_TRUE(fs::exists(file));

    fs::resize_file(file, 2);
    EXPECT_THAT(problems(), testing::ElementsAre(testing::HasSubstr("another size")));
    EXPECT_EQ(repair(), 1U);
    EXPECT_EQ(json({"files"}).at("files").at(0).at("fileSize"), 2);

    fs::create_directories(attachments() / "Note Images" / "NOBODY");
    EXPECT_THAT(problems(), testing::ElementsAre(testing::HasSubstr("NOBODY: no attachment has this")));
    EXPECT_EQ(repair(), 1U);
    EXPECT_TRUE(fs::exists(attachments() / "Lost and Found"));

    fs::remove(file);
    EXPECT_THAT(problems(), testing::ElementsAre(testing::EndsWith("its file is not there")));
    EXPECT_EQ(repair(), 1U);
    EXPECT_TRUE(problems().empty());
    EXPECT_EQ(stored("SELECT downloaded FROM OVNoteFile"), "0");
}

TEST_F(DoctorOfFiles, BringsBackWhatAProgramMovedAsideThatDied)
{
    namespace fs = std::filesystem;
    const fs::path attachedFile = attached();
    const std::string journal = "st\u00F6re/Application Data/Local Files/.unsaved-"
        + stored("SELECT value FROM store_metadata WHERE key = 'storeUUID'") + "-dead";
    const std::string identifier = attachedFile.parent_path().filename();
    file(journal + "/journal", "0\tLocal Files/Note Files\t" + identifier + "\t\n");
    fs::rename(attachedFile.parent_path(), folder() / journal / "0");
    EXPECT_THAT(problems(), testing::ElementsAre(testing::HasSubstr("a program ended while it was changing files")));
    // Whoever writes next mends it, whatever the command.
    EXPECT_EQ(run({"new", "# M"}).exitCode, 0);
    EXPECT_TRUE(fs::exists(attachedFile));
    EXPECT_FALSE(fs::exists(folder() / journal));
    EXPECT_TRUE(problems().empty());
}

} // namespace tarn::test
