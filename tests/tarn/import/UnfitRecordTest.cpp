// What a record of imports may not say in a backup, and what it must not do to a restore.

#include "tests/tarn/import/BackedUpRecordFixture.h"

#include <gmock/gmock.h>

#include <sstream>

namespace tarn::test {

using testing::HasSubstr;
using testing::Not;

// Protected notes ----------------------------------------------------------------------------------------------------

class BackedUpRecordOfSecrets : public BackedUpRecord {
protected:
    BackedUpRecordOfSecrets()
    {
        makeFiles();
        import(store());
        record_ = contentsOf(recordOf(store()));
        EXPECT_THAT(record_, HasSubstr("whole"));
        backUp();
    }
    void protect(const std::string& note = "A") const
    {
        const fs::path password = file("password", "correct horse\n");
        EXPECT_EQ(run({"--password-file", password.string(), "protect", "--memory", "1", note}).exitCode, 0);
    }
    /// The entry of a file, as it stands in a record.
    static std::string entryOf(const std::string& name, const fs::path& record)
    {
        std::istringstream lines(contentsOf(record));
        std::string entry;
        for (std::string line; std::getline(lines, line);)
            if (line.find("in/" + name + ".md") != std::string::npos)
                entry = line;
        return entry;
    }
    std::string record_;
};

TEST_F(BackedUpRecordOfSecrets, BringsNoHashBackOfANoteThatIsProtectedNow)
{
    protect();
    fs::remove(recordOf(store()));
    restoreTo(store());
    EXPECT_THAT(entryOf("b", recordOf(store())), HasSubstr("whole"));
    EXPECT_THAT(entryOf("a", recordOf(store())), HasSubstr("note"));
    EXPECT_THAT(entryOf("a", recordOf(store())), Not(HasSubstr("whole")));
    EXPECT_THAT(entryOf("a", recordOf(store())), Not(HasSubstr("\"file\"")));
    EXPECT_EQ(import(store()), "2 unchanged");
}

TEST_F(BackedUpRecordOfSecrets, KeepsNoHashOfACopyThatIsProtected)
{
    output({"append", "B", "mine"});
    file("in/b.md", "# B\n\nnew");
    EXPECT_EQ(import(store()), "1 unchanged, 1 conflicted");
    const std::string copy = nlohmann::json::parse(entryOf("b", recordOf(store()))).front().at("copy");
    protect(copy);
    EXPECT_THAT(entryOf("b", recordOf(store())), HasSubstr(copy));
    EXPECT_THAT(entryOf("b", recordOf(store())), Not(HasSubstr("whole")));
    EXPECT_THAT(entryOf("b", recordOf(store())), Not(HasSubstr("\"file\"")));
    EXPECT_EQ(import(store()), "2 unchanged");
}

TEST_F(BackedUpRecordOfSecrets, ForgetsHashesOfWhatARestoreProtects)
{
    restoreTo(other());
    EXPECT_THAT(entryOf("a", recordOf(other())), HasSubstr("whole"));
    output({"append", "A", "more"}); // so that it is a later state
    protect();
    backUp();
    restoreTo(other());
    EXPECT_EQ(count(other()), 2);
    EXPECT_EQ(count(other(), "encrypted"), 1);
    EXPECT_THAT(entryOf("a", recordOf(other())), Not(HasSubstr("whole")));
    EXPECT_THAT(entryOf("b", recordOf(other())), HasSubstr("whole"));
}

TEST_F(BackedUpRecordOfSecrets, PutsNoHashOfThemIntoABackup)
{
    protect();
    for (const std::string& record : {record_, unconfirmed(record_)}) {
        write(recordOf(store()), record); // as if another program had protected it
        backUp();
        const std::string command = "cd '" + folder().string() + "' && tar --zstd -xf '" + backup().string() + "'";
        ASSERT_EQ(std::system(command.c_str()), 0);
        const fs::path copy = folder() / "companions" / "imports.jsonl";
        EXPECT_THAT(entryOf("b", copy), HasSubstr("whole"));
        EXPECT_THAT(entryOf("a", copy), HasSubstr("note"));
        EXPECT_THAT(entryOf("a", copy), Not(HasSubstr("whole")));
        restoreTo(other());
        EXPECT_EQ(import(other()), "2 unchanged");
        fs::remove_all(other());
    }
}

// Records that are none ----------------------------------------------------------------------------------------------

class DamagedRecordInABackup : public BackedUpRecord {
protected:
    DamagedRecordInABackup()
    {
        makeFiles();
        import(store());
        record_ = contentsOf(recordOf(store()));
    }
    /// Restores a backup with this record; what was told of it.
    std::string reasonOf(const std::string& record) const
    {
        write(recordOf(store()), record);
        backUp();
        fs::remove_all(other());
        const nlohmann::json restored = restoreTo(other());
        EXPECT_EQ(restored.at("restored"), 2);
        EXPECT_EQ(runIn(other(), {"doctor"}).exitCode, 0);
        if (restored.at("skipped").empty())
            return "";
        EXPECT_EQ(restored.at("skipped").at(0).at("title"), "the record of imports");
        return restored.at("skipped").at(0).at("reason");
    }
    std::string record_;
};

TEST_F(DamagedRecordInABackup, IsTakenUpToTheDamage)
{
    const std::size_t second = record_.find('\n', record_.find('\n') + 1) + 1;
    const std::string known = record_.substr(0, second) + "{\"confirmed\":true}\n";
    for (const std::string& damage : {std::string("{\"source\":\n"), std::string("no JSON\n"),
             std::string("\xFF\xFE\n"), std::string("\0\0\n", 3), std::string("{\"source\":{\"path\":5}}\n"),
             std::string("{\"source\":[]}\n"), std::string("[]\n"), std::string("{\"source\":{\"path\":\"/x\",\"no"),
             std::string(1'000, '[') + "\n", std::string(5'000'000, 'x') + "\n"}) {
        EXPECT_EQ(reasonOf(known + damage), "damaged: it was read up to the damage") << damage.substr(0, 30);
        EXPECT_EQ(import(other(), "in/a.md"), "1 unchanged") << damage.substr(0, 30);
    }
}

TEST_F(DamagedRecordInABackup, OfEndlessNestingTakesLittleMemory)
{
#ifdef TARN_SANITIZED
    GTEST_SKIP() << "a sanitizer needs more address space than there is here";
#endif
    reasonOf(record_ + "{\"source\":" + std::string(50'000'000, '['));
    fs::remove_all(other());
    TarnProcess process({"--store", other().string(), "restore-backup", backup().string()});
    process.setLimits(std::size_t(512) << 20, 60);
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("the record of imports: damaged"));
    EXPECT_EQ(import(other()), "2 unchanged");
}

TEST_F(DamagedRecordInABackup, NamesNothingElsewhere)
{
    EXPECT_EQ(reasonOf(record_ + "{\"source\":{\"path\":\"../../evil.md\",\"note\":\"N\"}}\n{\"source\":{}}\n"
                  + "{\"source\":{\"path\":\"/evil.md\"}}\n{\"announced\":{\"path\":\"evil.md\",\"note\":\"M\"}}\n"),
        "");
    EXPECT_THAT(contentsOf(recordOf(other())), Not(HasSubstr("evil")));
    EXPECT_EQ(import(other()), "2 unchanged");
}

TEST_F(DamagedRecordInABackup, OfALaterVersionIsLeftOut)
{
    EXPECT_EQ(reasonOf("{\"format\":99}\n"), "a later version of tarn wrote it; it was left out");
    EXPECT_FALSE(fs::exists(recordOf(other())));
}

TEST_F(DamagedRecordInABackup, IsNoReasonToLoseNotesWhereItCannotBeWritten)
{
    backUp();
    runIn(other(), {"new", "# One"});
    fs::create_directories(recordOf(other()));
    const TarnResult result = runIn(other(), {"restore-backup", backup()});
    EXPECT_EQ(result.exitCode, 6) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("the same restore completes it"));
    EXPECT_EQ(count(other()), 3);
    EXPECT_EQ(runIn(other(), {"doctor"}).exitCode, 0);
    fs::remove(recordOf(other()));
    EXPECT_EQ(restoreTo(other()).at("kept"), 2);
    EXPECT_EQ(import(other()), "2 unchanged");
}

TEST_F(DamagedRecordInABackup, LeavesARecordOfTheStoreAloneThatCannotBeRead)
{
    backUp();
    fs::create_directories(other());
    runIn(other(), {"new", "# One"});
    write(recordOf(other()), "{\"format\":99}\n");
    const TarnResult result = runIn(other(), {"restore-backup", backup()});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_THAT(result.errors, HasSubstr("the backup was restored, but not the record of imports: "));
    EXPECT_EQ(contentsOf(recordOf(other())), "{\"format\":99}\n");
    EXPECT_EQ(count(other()), 3);
    fs::remove(recordOf(other()));
    restoreTo(other());
    EXPECT_EQ(import(other()), "2 unchanged") << "the same restore completes it";
}

} // namespace tarn::test
