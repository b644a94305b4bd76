#include "tests/tarn/import/BackedUpRecordFixture.h"

#include <gmock/gmock.h>

namespace tarn::test {

using testing::HasSubstr;

TEST_F(BackedUpRecord, KnowsTheFilesAfterTheStoreIsGone)
{
    makeFiles();
    import(store());
    output({"append", "B", "mine"});
    EXPECT_EQ(import(store()), "2 unchanged");
    const std::string record = contentsOf(recordOf(store()));
    backUp();
    fs::remove_all(store());
    const nlohmann::json restored = restoreTo(store());
    EXPECT_EQ(restored.at("restored"), 2);
    EXPECT_TRUE(restored.at("skipped").empty());
    EXPECT_EQ(import(store()), "2 unchanged");
    file("in/a.md", "# A\n\nnew [b](b.md)");
    file("in/b.md", "# B\n\nnew");
    EXPECT_EQ(import(store()), "1 updated, 1 conflicted") << "it knows which of the two was edited";
    EXPECT_EQ(count(store()), 3);
}

TEST_F(BackedUpRecord, IsWhatItWasAfterASecondRestore)
{
    makeFiles();
    import(store());
    backUp();
    restoreTo(other());
    const std::string once = contentsOf(recordOf(other()));
    EXPECT_THAT(once, HasSubstr("in/a.md"));
    restoreTo(other());
    EXPECT_EQ(contentsOf(recordOf(other())), once);
    EXPECT_EQ(import(other()), "2 unchanged");
    EXPECT_EQ(contentsOf(recordOf(other())), once);
    EXPECT_EQ(fs::status(recordOf(other())).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(BackedUpRecord, LiesInTheArchiveWhereThereIsOne)
{
    note("# One");
    backUp();
    restoreTo(other());
    EXPECT_FALSE(fs::exists(recordOf(other())));
    makeFiles();
    import(store());
    backUp();
    ASSERT_EQ(std::system(("cd '" + folder().string() + "' && tar --zstd -xf '" + backup().string() + "'").c_str()), 0);
    EXPECT_EQ(contentsOf(folder() / "companions" / "imports.jsonl"), contentsOf(recordOf(store())));
}

// An import that died ------------------------------------------------------------------------------------------------

TEST_F(BackedUpRecord, WithNotesThatWereSavedAndNotConfirmedKnowsThem)
{
    makeFiles();
    import(store());
    write(recordOf(store()), unconfirmed(contentsOf(recordOf(store()))));
    backUp();
    restoreTo(other());
    EXPECT_EQ(import(other()), "2 unchanged");
    file("in/a.md", "# A\n\nnew");
    EXPECT_EQ(import(other()), "1 updated, 1 unchanged");
    EXPECT_EQ(count(other()), 2);
}

TEST_F(BackedUpRecord, WithNotesThatWereAnnouncedAndNotSavedMakesThemOnce)
{
    makeFiles();
    import(store(), "in/b.md");
    const fs::path before = folder() / "before";
    fs::copy(store(), before, fs::copy_options::recursive);
    import(store());
    const std::string announced = identifier(store(), "A");
    write(recordOf(before), unconfirmed(contentsOf(recordOf(store()))));
    jsonIn(before, {"backup", backup()});
    restoreTo(other());
    EXPECT_EQ(count(other()), 1);
    EXPECT_EQ(import(other()), "1 imported, 1 unchanged");
    EXPECT_EQ(identifier(other(), "A"), announced);
    EXPECT_EQ(import(other()), "2 unchanged");
    EXPECT_EQ(count(other()), 2);
}

TEST_F(BackedUpRecord, WithAChangeThatWasAnnouncedKnowsWhetherItWasSaved)
{
    for (const char* name : {"a", "b", "c", "d"}) // of few the record would be written anew
        file("in/" + std::string(name) + ".md", "# " + std::string(name) + "\n\none");
    import(store());
    const fs::path before = folder() / "before";
    fs::copy(store(), before, fs::copy_options::recursive);
    file("in/a.md", "# a\n\ntwo");
    EXPECT_EQ(import(store()), "1 updated, 3 unchanged");
    const std::string record = unconfirmed(contentsOf(recordOf(store())));
    for (const fs::path& imported : {store(), before}) {
        write(recordOf(imported), record);
        jsonIn(imported, {"backup", "--yes", backup()});
        const fs::path target = folder() / ("of " + imported.filename().string());
        restoreTo(target);
        EXPECT_EQ(import(target), imported == store() ? "4 unchanged" : "1 updated, 3 unchanged");
        EXPECT_EQ(jsonIn(target, {"show", "a"}).at("text"), "# a\n\ntwo");
        file("in/a.md", "# a\n\nthree");
        EXPECT_EQ(import(target), "1 updated, 3 unchanged");
        EXPECT_EQ(count(target), 4);
        file("in/a.md", "# a\n\ntwo");
    }
}

// A store with a record of its own -----------------------------------------------------------------------------------

TEST_F(BackedUpRecord, GivesWayToWhatTheStoreKnowsOfAFile)
{
    makeFiles();
    file("more/c.md", "# C");
    import(store());
    import(store(), "more");
    backUp();
    EXPECT_EQ(import(other()), "2 imported");
    const std::string own = identifier(other(), "A");
    restoreTo(other());
    EXPECT_EQ(count(other()), 5) << "each store has its own note of a file that both imported";
    EXPECT_EQ(import(other(), "more"), "1 unchanged");
    EXPECT_EQ(import(other()), "2 unchanged");
    file("in/a.md", "# A2");
    EXPECT_EQ(import(other()), "1 updated, 1 unchanged");
    EXPECT_EQ(identifier(other(), "A2"), own);
}

TEST_F(BackedUpRecord, GivesWayToWhatTheStoreKnowsOfANote)
{
    makeFiles();
    import(store());
    backUp();
    fs::rename(folder() / "in/b.md", folder() / "in/c.md");
    EXPECT_EQ(import(store()), "2 unchanged, 1 moved");
    const std::string record = contentsOf(recordOf(store()));
    EXPECT_EQ(restoreTo(store()).at("kept"), 2);
    EXPECT_EQ(contentsOf(recordOf(store())), record);
    EXPECT_EQ(import(store()), "2 unchanged");
    EXPECT_EQ(count(store()), 2);
}

TEST_F(BackedUpRecord, BringsNoDeletedNoteBackAndHidesNoFileFromAnotherStore)
{
    makeFiles();
    import(store());
    output({"delete", "--yes", "B"});
    backUp();
    restoreTo(other());
    EXPECT_EQ(import(other()), "2 unchanged");
    EXPECT_EQ(count(other()), 1) << "the note was deleted, and the file did not change since";
    const fs::path third = folder() / "third store";
    file("more/c.md", "# C");
    import(third, "more");
    restoreTo(third);
    EXPECT_EQ(import(third), "1 imported, 1 unchanged") << "nobody deleted that note there";
    EXPECT_EQ(count(third), 3);
}

TEST_F(BackedUpRecord, StaysWithTheNoteWhereItsStateBecomesACopy)
{
    makeFiles();
    file("more/c.md", "# C");
    import(store());
    backUp();
    restoreTo(other());
    output({"append", "A", "here"});
    runIn(other(), {"append", "A", "there"});
    fs::remove(recordOf(other()));
    import(other(), "more");
    backUp();
    EXPECT_EQ(restoreTo(other()).at("restored"), 1);
    EXPECT_EQ(count(other(), "conflicted"), 2);
    EXPECT_EQ(import(other()), "2 unchanged");
    EXPECT_EQ(count(other()), 4);
}

TEST_F(BackedUpRecord, OfASalvagedStoreHidesNoFileWhoseNoteIsMissing)
{
    makeFiles();
    import(store());
    output({"delete", "--yes", "B"}); // stands for a note that was damaged
    backUp();
    runIn(other(), {"restore-backup", "--salvage", backup()});
    EXPECT_EQ(import(other()), "1 imported, 1 unchanged");
}

} // namespace tarn::test
