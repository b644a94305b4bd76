#include "tarnmodel/diagnosis/StoreStatistics.h"
#include "tests/support/StoreFixture.h"

#include <filesystem>

namespace tarn {
namespace {

class StoreStatisticsTest : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, StoreStatisticsTest, everyStore(), storeName);

TEST_P(StoreStatisticsTest, CountsWhatThereIs)
{
    note("# Active\n\n- [ ] a\n\n#tagged/twice");
    note("# Code\n\n    code\n").pin();
    note("# Archived").archive();
    note("# Archived as well").archive();
    OVNote& trashed = note("# Trashed\n\n#other");
    trashed.archive();
    trashed.trash();
    trashed.pin();
    note("# Guarded").setEncryptedValue(true);
    OVNote& readOnly = note("# Read-only");
    readOnly.makeReadOnly();
    OVNote& version = note("# Version");
    version.markAsConflictedFromNote(noteTitled("Original"));
    image(readOnly, "a.png");
    file(readOnly, "b.txt");

    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        NSError error;
        const auto statistics = statisticsOfStore(context(), &error);
        ASSERT_TRUE(statistics) << error;
        EXPECT_EQ(statistics->notes, 9U);
        EXPECT_EQ(statistics->activeNotes, 6U);
        EXPECT_EQ(statistics->archivedNotes, 2U);
        EXPECT_EQ(statistics->trashedNotes, 1U);
        EXPECT_EQ(statistics->pinnedNotes, 2U);
        EXPECT_EQ(statistics->readOnlyNotes, 1U);
        EXPECT_EQ(statistics->encryptedNotes, 1U);
        EXPECT_EQ(statistics->conflictedNotes, 2U);
        EXPECT_EQ(statistics->untaggedNotes, 7U);
        EXPECT_EQ(statistics->notesWithOpenToDos, 1U);
        EXPECT_EQ(statistics->notesWithSourceCode, 1U);
        EXPECT_EQ(statistics->tags, 3U);
        EXPECT_EQ(statistics->files, 2U);
        const bool isFile = GetParam() == StoreType::SQLite;
        EXPECT_EQ(statistics->fileBytes, isFile ? std::filesystem::file_size(storeFile()) : 0);
    }
}

} // namespace
} // namespace tarn
