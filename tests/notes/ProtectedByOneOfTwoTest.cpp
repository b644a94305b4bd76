// What becomes of a note that one of two writers protects, or no longer does.

#include "tests/notes/ProtectedNotesFixture.h"

namespace tarn {
namespace {

using testing::SizeIs;

class ProtectedByOneOfTwo : public ProtectedNotesFixture {
protected:
    void SetUp() override
    {
        ProtectedNotesFixture::SetUp();
        prepare(context());
    }
    void TearDown() override
    {
        (void)takeLog(); // of what gave way
        other_.reset();
        ProtectedNotesFixture::TearDown();
    }
    /// Saves, and opens the store a second time, as another process does.
    NSManagedObjectContext& saveAndOpenElsewhere()
    {
        save();
        other_ = contextOn(openAgain());
        prepare(*other_);
        return *other_;
    }
    OVNote& elsewhere(const OVNote& one)
    {
        return *OVNote::noteWithUniqueIdentifier(one.uniqueIdentifier().value_or(""), *other_);
    }
    void saveElsewhere()
    {
        NSError error;
        ASSERT_TRUE(other_->save(&error)) << error;
    }
    /// Saves what the handler of conflicts has left, too.
    void saveAll()
    {
        save();
        save();
    }
    OVNote* copyOf(const OVNote& one)
    {
        for (OVNote* found : all<OVNote>())
            if (found != &one)
                return found;
        return nullptr;
    }

private:
    static void prepare(NSManagedObjectContext& prepared)
    {
        prepared.setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
        prepared.setMergeConflictHandler([](const MergeConflict& conflict) { OVNote::keepLosingText(conflict); });
    }
    std::unique_ptr<NSManagedObjectContext> other_;
};
INSTANTIATE_TEST_SUITE_P(Stores, ProtectedByOneOfTwo, testing::Values(StoreType::SQLite), storeName);

TEST_P(ProtectedByOneOfTwo, IsProtectedAgainWhereTheClearTextOfTheOtherWins)
{
    OVNote& one = note("# T\nold");
    saveAndOpenElsewhere();
    protect(one);
    elsewhere(one).updateNoteWithText("# T\nnew");
    saveElsewhere();
    saveAll();
    EXPECT_TRUE(one.encryptedValue());
    EXPECT_EQ(one.storedText(), std::nullopt);
    EXPECT_EQ(one.text(), "# T\nnew");
    const OVNote* const copy = copyOf(one);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->encryptedValue());
    EXPECT_EQ(copy->storedText(), std::nullopt);
    EXPECT_EQ(copy->text(), "# T\nold");
}

TEST_P(ProtectedByOneOfTwo, KeepsTheClearTextThatGaveWayInAProtectedCopy)
{
    OVNote& one = note("# T\nold");
    NSManagedObjectContext& other = saveAndOpenElsewhere();
    OVEncryptionCoreManager manager(other, options());
    auto& key = *OVPassword::passwordWithUniqueIdentifier(*password().uniqueIdentifier(), other);
    ASSERT_TRUE(manager.unlock(key, "correct horse", nullptr));
    ASSERT_TRUE(manager.addEncryptionToObject(elsewhere(one), key, nullptr));
    one.updateNoteWithText("# T\nnew");
    saveElsewhere();
    saveAll();
    EXPECT_TRUE(one.encryptedValue());
    EXPECT_EQ(one.storedText(), std::nullopt) << "the clear text does not come back into it";
    EXPECT_EQ(one.text(), "# T\nold");
    const OVNote* const copy = copyOf(one);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->encryptedValue());
    EXPECT_EQ(copy->storedText(), std::nullopt);
    EXPECT_EQ(copy->text(), "# T\nnew");
}

TEST_P(ProtectedByOneOfTwo, KeepsTheClearTextInAClearCopyWhereThePasswordIsLocked)
{
    OVNote& one = note("# T\nold [f](a.bin)");
    attach(one, "a.bin", "bytes of a");
    one.updateNoteWithText("# T\nold [f](a.bin)");
    NSManagedObjectContext& other = saveAndOpenElsewhere();
    OVEncryptionCoreManager manager(other, options());
    auto& key = *OVPassword::passwordWithUniqueIdentifier(*password().uniqueIdentifier(), other);
    ASSERT_TRUE(manager.unlock(key, "correct horse", nullptr));
    ASSERT_TRUE(manager.addEncryptionToObject(elsewhere(one), key, nullptr));
    lock();
    one.updateNoteWithText("# T\nnew [f](a.bin)");
    saveElsewhere();
    saveAll();
    EXPECT_TRUE(one.encryptedValue());
    EXPECT_EQ(one.storedText(), std::nullopt);
    const OVNote* const copy = copyOf(one);
    ASSERT_TRUE(copy);
    EXPECT_FALSE(copy->encryptedValue());
    EXPECT_EQ(copy->text(), "# T\nnew [f](a.bin)") << "nothing is lost, with attachments that are locked by now";
    ASSERT_THAT(copy->filesSet().allObjects(), SizeIs(1));
    EXPECT_TRUE(copy->filesSet().allObjects().front()->encryptedValue());
    EXPECT_EQ(copy->subtitle(), std::nullopt);
    EXPECT_THAT(takeLog(), testing::Contains(testing::HasSubstr("is not protected: its password is locked")));
}

TEST_P(ProtectedByOneOfTwo, KeepsTheTextThatGaveWayToOneWithoutProtection)
{
    OVNote& one = protectedNote("# T\nold");
    NSManagedObjectContext& other = saveAndOpenElsewhere();
    OVEncryptionCoreManager manager(other, options());
    auto& key = *OVPassword::passwordWithUniqueIdentifier(*password().uniqueIdentifier(), other);
    ASSERT_TRUE(manager.unlock(key, "correct horse", nullptr));
    ASSERT_TRUE(manager.removeEncryptionFromObject(elsewhere(one), nullptr));
    one.updateNoteWithText("# T\nnew");
    saveElsewhere();
    saveAll();
    EXPECT_FALSE(one.encryptedValue()) << "that was asked for";
    EXPECT_EQ(one.text(), "# T\nold");
    const OVNote* const copy = copyOf(one);
    ASSERT_TRUE(copy);
    EXPECT_TRUE(copy->encryptedValue());
    EXPECT_EQ(copy->text(), "# T\nnew");
}

} // namespace
} // namespace tarn
