#include "tests/files/FilesFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::IsEmpty;

class AttachingToAProtectedNote : public FilesFixture {
protected:
    struct Keeper : TextKeeper {
        bool isRefusing = false;
        bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword& password, NSError* error) override
        {
            assignError(error, NSError("test", 7, "no room"));
            if (!isRefusing)
                object.setEncryptionState({true, NSData::fromText("cipher"), now(), "key 1", &password});
            return !isRefusing;
        }
    } keeper_;

    void SetUp() override
    {
        FilesFixture::SetUp();
        owner_ = &note("# T\n");
        owner_->setPassword(&insert<OVPassword>());
        owner_->setEncryptedValue(true);
        keeper_.setText("# T\n", *owner_);
        save();
    }
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        FilesFixture::TearDown();
    }
    void serve() { OVEncryptionCoreManager::setEncryptionCoreManager(&keeper_, context()); }

    OVNote* owner_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, AttachingToAProtectedNote, everyStore(), storeName);

TEST_P(AttachingToAProtectedNote, IsTakenBackWhenTheFileCannotBeProtected)
{
    serve();
    keeper_.isRefusing = true;
    NSError error;
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL(aFile("a.bin", "one"), *owner_, &error));
    EXPECT_EQ(error, NSError("test", 7, "no room"));
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText("one"));
    wrapper.setFilename("a.bin");
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromFileWrapper(wrapper, *owner_, nullptr));
    EXPECT_THAT(foldersOnDisk(), IsEmpty()) << "before anything is saved";
    EXPECT_THAT(owner_->filesSet().allObjects(), IsEmpty());
    save();
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
    EXPECT_THAT(besidesTheKinds(), IsEmpty());
}

TEST_P(AttachingToAProtectedNote, DoesNotReviveWhatCannotBeProtected)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    ASSERT_TRUE(file.copyFileToLocalFolder(aFile("a.bin", "one")));
    file.setFilename("a.bin");
    file.setUnused();
    file.setNote(owner_);
    serve();
    keeper_.isRefusing = true;
    EXPECT_FALSE(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")));
    EXPECT_TRUE(file.isUnused());
    keeper_.isRefusing = false;
    EXPECT_EQ(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")), &file);
    EXPECT_FALSE(file.isUnused());
    EXPECT_TRUE(file.encryptedValue());
}

TEST_P(AttachingToAProtectedNote, NeedsItUnlocked)
{
    EXPECT_THROW(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")), NSException) << "no manager";
    serve();
    keeper_.isLocked = true;
    EXPECT_THROW(owner_->addAttachmentFromFileURL(aFile("a.bin", "one")), NSException);
    EXPECT_FALSE(context().hasChanges());
    EXPECT_THAT(foldersOnDisk(), IsEmpty());
    keeper_.isLocked = false;
    const OVNoteFile* const file = owner_->addAttachmentFromFileURL(aFile("a.bin", "one"));
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->encryptedValue());
}

TEST_P(AttachingToAProtectedNote, NeedsThePasswordsRecord)
{
    owner_->setPassword(nullptr);
    serve();
    NSError error;
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL(aFile("a.bin", "one"), *owner_, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
}

// What records do about their protection ------------------------------------------------------------------------------

using ProtectionHooks = FilesFixture;
INSTANTIATE_TEST_SUITE_P(Stores, ProtectionHooks, everyStore(), storeName);

TEST_P(ProtectionHooks, HideTheSubtitleWhileAnythingIsProtected)
{
    OVNote& owner = note("# T\nwhat it says");
    OVNoteFile& file = *owner.addAttachmentFromFileURL(aFile("a.bin", "one"));
    ASSERT_EQ(owner.subtitle(), "what it says");
    file.setEncryptedValue(true);
    file.didAddEncryption();
    EXPECT_EQ(owner.subtitle(), std::nullopt);
    owner.setEncryptedValue(true);
    file.setEncryptedValue(false);
    file.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), std::nullopt) << "the note still is";
    owner.setEncryptedValue(false);
    owner.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), "what it says");
    file.setEncryptedValue(true);
    owner.setSubtitle(std::nullopt);
    owner.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), std::nullopt) << "the attachment is";
    file.setEncryptedValue(false);
    file.didRemoveEncryption();
    EXPECT_EQ(owner.subtitle(), "what it says");
}

TEST_P(ProtectionHooks, KeepTheDateOfTheBytes)
{
    OVNoteFile& file = *note("# T\n").addAttachmentFromFileURL(aFile("a.bin", "one"));
    file.setModificationDate(NSDate(1'000'000));
    file.didAddEncryption();
    EXPECT_EQ(NSFileManager::attributesOfItemAtURL(*file.primitiveFileURL())->modificationDate, NSDate(1'000'000));
    file.setModificationDate(NSDate(2'000'000));
    file.didRemoveEncryption();
    EXPECT_EQ(NSFileManager::attributesOfItemAtURL(*file.primitiveFileURL())->modificationDate, NSDate(2'000'000));
}

} // namespace
} // namespace tarn
