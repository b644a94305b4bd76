// What becomes of a text that one writer recognised in an attachment which another one protects.

#include "tests/files/FilesFixture.h"
#include "tests/support/ProtectedStore.h"

#include "tarnmodel/model/OVNoteGenericFile.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SearchTextOfTwoWriters : public ProtectedStore {
protected:
    void SetUp() override
    {
        ProtectedStore::SetUp();
        std::filesystem::create_directories(filesRoot() / "Scratch");
        std::ofstream(filesRoot() / "Scratch" / "a.bin") << "bytes";
        file_ = note("# T\n").addAttachmentFromFileURL(filesRoot() / "Scratch" / "a.bin");
        save();
        other_ = contextOn(openAgain());
        for (NSManagedObjectContext* const one : {&context(), other_.get()})
            one->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    }
    void TearDown() override
    {
        other_.reset();
        ProtectedStore::TearDown();
    }
    OVNoteFile& file() { return *file_; }
    OVNoteFile& elsewhere() { return *OVNoteFile::noteFileWithUniqueIdentifier(*file_->uniqueIdentifier(), *other_); }
    void saveElsewhere()
    {
        NSError error;
        ASSERT_TRUE(other_->save(&error)) << error;
    }
    /// As a third one reads it.
    std::optional<std::string> storedSearchText()
    {
        const auto third = contextOn(openAgain());
        const OVNoteFile& read = *OVNoteFile::noteFileWithUniqueIdentifier(*file_->uniqueIdentifier(), *third);
        EXPECT_TRUE(read.encryptedValue());
        return read.storedSearchText();
    }

    std::unique_ptr<NSManagedObjectContext> other_;

private:
    OVNoteFile* file_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, SearchTextOfTwoWriters, testing::Values(StoreType::SQLite), storeName);

TEST_P(SearchTextOfTwoWriters, IsEncryptedByWhoProtectsAndSavesLast)
{
    protect(file());
    elsewhere().setSearchText("recognised");
    saveElsewhere();
    save();
    EXPECT_EQ(storedSearchText(), std::nullopt);
    EXPECT_EQ(file().searchText(), "recognised");
}

TEST_P(SearchTextOfTwoWriters, IsEncryptedAlsoInThePlaceOfAFormerOne)
{
    file().setSearchText("former");
    save();
    other_->reset();
    protect(file());
    elsewhere().setSearchText("recognised");
    saveElsewhere();
    save();
    EXPECT_EQ(storedSearchText(), std::nullopt);
    EXPECT_EQ(file().searchText(), "recognised");
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("were dropped: searchText"))) << "the former one";
}

TEST_P(SearchTextOfTwoWriters, IsDroppedByWhoCannotEncryptIt)
{
    elsewhere().setSearchText("recognised");
    protect(file());
    save();
    saveElsewhere();
    EXPECT_EQ(storedSearchText(), std::nullopt);
    EXPECT_EQ(file().searchText(), std::nullopt);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("was dropped")));
}

TEST_P(SearchTextOfTwoWriters, IsStoredAsItIsByWhoKnowsOfTheProtectionAndHasNoManager)
{
    protect(file());
    save();
    elsewhere().setSearchText("stored");
    saveElsewhere();
    EXPECT_EQ(storedSearchText(), "stored");
    elsewhere().setIndexValue(7);
    saveElsewhere();
    EXPECT_EQ(storedSearchText(), "stored");
}

} // namespace
} // namespace tarn
