#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/InvalidAccessor.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::ElementsAre;

class NoteEncryption : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        plain_ = &note("# Plain\nbody");
        protected_ = &note("# Protected\nbody");
        protected_->setEncryptedValue(true);
    }
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        OVEncryptionCoreManager::setFileEncryptionEnabled(false);
        StoreFixture::TearDown();
    }
    void startManager() { OVEncryptionCoreManager::setEncryptionCoreManager(&keeper_, context()); }

    TextKeeper keeper_;
    OVNote* plain_ = nullptr;
    OVNote* protected_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteEncryption, everyStore(), storeName);

TEST_P(NoteEncryption, IsThatOfTheNoteOrOfAnAttachment)
{
    OVNoteGenericFile& attached = file(*plain_, "a.pdf");
    EXPECT_FALSE(plain_->hasEncryption());
    EXPECT_TRUE(protected_->hasEncryption());

    attached.setEncryptedValue(true);
    EXPECT_TRUE(plain_->hasEncryption());
    save();
    EXPECT_TRUE(plain_->hasEncryption());
    attached.setEncryptedValue(false);
    EXPECT_FALSE(plain_->hasEncryption());
}

class UncountableAttachments : public NoteEncryption { };
INSTANTIATE_TEST_SUITE_P(Stores, UncountableAttachments, testing::Values(StoreType::SQLite), storeName);

TEST_P(UncountableAttachments, CountAsNotProtected)
{
    file(*plain_, "a.pdf").setEncryptedValue(true);
    save();
    ASSERT_TRUE(plain_->hasEncryption());
    runSQL("ALTER TABLE \"OVNoteFile\" RENAME TO \"hidden\"");
    EXPECT_FALSE(plain_->hasEncryption());
    EXPECT_TRUE(protected_->hasEncryption()) << "nothing has to be counted";
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNoteFile\"");
    takeLog();
}

TEST_P(NoteEncryption, IsFoundInAnyOfSeveralNotes)
{
    EXPECT_FALSE(OVNote::anyNoteHasEncryption({}));
    EXPECT_FALSE(OVNote::anyNoteHasEncryption({plain_}));
    EXPECT_TRUE(OVNote::anyNoteHasEncryption({plain_, protected_}));
}

TEST_P(NoteEncryption, CountsAsLockedWithoutAManager)
{
    EXPECT_EQ(plain_->encryptionCoreManager(), nullptr);
    EXPECT_TRUE(protected_->hasEncryptionAndIsLocked());
    EXPECT_FALSE(plain_->hasEncryptionAndIsLocked());
}

TEST_P(NoteEncryption, IsLockedWhenTheManagerSaysSo)
{
    startManager();
    EXPECT_EQ(plain_->encryptionCoreManager(), &keeper_);
    EXPECT_FALSE(protected_->hasEncryptionAndIsLocked());
    keeper_.isLocked = true;
    EXPECT_TRUE(protected_->hasEncryptionAndIsLocked());
}

TEST_P(NoteEncryption, ReadsAndWritesStoredTextsWithoutAManager)
{
    EXPECT_EQ(protected_->text(), "# Protected\nbody");
    protected_->setText("stored");
    EXPECT_EQ(protected_->text(), "stored");
    EXPECT_EQ(protected_->storedText(), "stored");
}

TEST_P(NoteEncryption, ReadsAndWritesProtectedTextsThroughTheManager)
{
    startManager();
    protected_->setText("secret");

    EXPECT_EQ(protected_->text(), "secret");
    EXPECT_EQ(protected_->storedText(), "# Protected\nbody");
    EXPECT_EQ(keeper_.texts.size(), 1U);
    EXPECT_EQ(plain_->text(), "# Plain\nbody");
}

TEST_P(NoteEncryption, RefusesTheTextOfALockedNoteAndChangesNothing)
{
    startManager();
    keeper_.isLocked = true;
    const auto modified = protected_->modificationDate();
    const auto clock = protected_->vectorClock();

    expectInvalidAccessor([&] { static_cast<void>(protected_->text()); });
    EXPECT_THROW(protected_->setText("x"), NSException);
    EXPECT_THROW(protected_->updateNoteWithText("# Other #tag"), NSException);
    EXPECT_THROW(protected_->appendNoteWithText("x"), NSException);
    EXPECT_THROW(protected_->activityItems(), NSException);
    EXPECT_EQ(protected_->title(), "Protected");
    EXPECT_EQ(protected_->modificationDate(), modified);
    EXPECT_EQ(protected_->vectorClock(), clock);
    EXPECT_EQ(tag("tag").notesSet().count(), 0U);
    EXPECT_EQ(plain_->text(), "# Plain\nbody") << "a note that is not protected is never locked";
}

TEST_P(NoteEncryption, ShowsNoSubtitle)
{
    startManager();
    protected_->updateNoteWithText("# Secret\n\nsubtitle #tag");

    EXPECT_EQ(protected_->title(), "Secret");
    EXPECT_EQ(protected_->subtitle(), std::nullopt);
    EXPECT_TRUE(protected_->hasTag("tag"));

    file(*plain_, "a.pdf").setEncryptedValue(true);
    plain_->updateNoteWithText("# Title\n\nsubtitle");
    EXPECT_EQ(plain_->subtitle(), std::nullopt);
}

TEST_P(NoteEncryption, TellsObserversOfTheStoredText)
{
    int calls = 0;
    const auto observation = plain_->addObserver("text", [&calls](NSManagedObject&, std::string_view) { ++calls; });

    plain_->updatePrimitiveText("a");
    EXPECT_EQ(calls, 1);
    plain_->setText("b");
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(plain_->storedText(), "b");
    plain_->setText(std::nullopt);
    EXPECT_EQ(plain_->text(), std::nullopt);
}

TEST_P(NoteEncryption, AllowsAttachmentsWhereTheyCanBeProtectedToo)
{
    EXPECT_TRUE(plain_->allowsAttachments());
    EXPECT_FALSE(protected_->allowsAttachments());
    OVEncryptionCoreManager::setFileEncryptionEnabled(true);
    EXPECT_TRUE(protected_->allowsAttachments());
}

TEST_P(NoteEncryption, SharesTheText)
{
    EXPECT_THAT(plain_->activityItems(), ElementsAre("# Plain\nbody"));
}

} // namespace
} // namespace tarn
