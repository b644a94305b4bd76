#include "tarnmodel/encryption/keys/KeyArena.h"
#include "tests/encryption/EncryptionFixture.h"

namespace tarn {
namespace {

class ProtectedRecords : public EncryptionFixture {
protected:
    long codeOfProtecting(OVEncryptableObject& object, OVPassword& record)
    {
        NSError error;
        return manager->addEncryptionToObject(object, record, &error) ? 0 : error.code();
    }
};

TEST_F(ProtectedRecords, HaveNoClearTextAnyMore)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = protectedNote("the marker", password);
    EXPECT_TRUE(note.state.encrypted);
    EXPECT_EQ(note.text, std::nullopt);
    EXPECT_EQ(note.state.password, &password);
    EXPECT_EQ(note.state.encryptionDate, lastTime());
    EXPECT_TRUE(note.state.encryptionUniqueIdentifier);
    EXPECT_EQ(note.state.encryptedData->text().find("marker"), std::string_view::npos);
    EXPECT_EQ(note.protections, 1);
    EXPECT_EQ(manager->textForNote(note, nullptr), "the marker");
}

TEST_F(ProtectedRecords, KeepEveryText)
{
    OVPassword& password = passwordOf("secret");
    const std::string zero("a\0b", 3);
    for (const auto& text : {std::optional<std::string>(), std::optional<std::string>(""), std::optional(zero),
             std::optional(std::string(255, 'x')), std::optional(std::string(5 << 20, 'y'))}) {
        PlainNote& note = protectedNote(text, password);
        EXPECT_EQ(manager->textForNote(note, nullptr), text);
        manager->setText("other", note);
        EXPECT_EQ(manager->textForNote(note, nullptr), "other");
        manager->setText(text, note);
        EXPECT_EQ(manager->textForNote(note, nullptr), text);
        EXPECT_TRUE(manager->removeEncryptionFromObject(note, nullptr));
        EXPECT_EQ(note.text, text);
    }
}

TEST_F(ProtectedRecords, AreLockedWithTheirPassword)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = protectedNote("text", password);
    EXPECT_FALSE(manager->isObjectLocked(note));
    EXPECT_EQ(manager->reasonForLock(note).code(), 0);
    manager->lock();
    EXPECT_TRUE(manager->isObjectLocked(note));
    EXPECT_EQ(manager->reasonForLock(note).code(), OVEncryptionErrorLocked);
    NSError error;
    EXPECT_EQ(manager->textForNote(note, &error), std::nullopt);
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
}

TEST_F(ProtectedRecords, AreNotWrittenWhileLocked)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    manager->lock();
    const auto before = note.state.encryptedData;
    manager->setText("other", note);
    EXPECT_EQ(note.state.encryptedData, before);
    EXPECT_EQ(note.text, std::nullopt);
    EXPECT_EQ(takeLog().size(), 1U);
}

TEST_F(ProtectedRecords, AreWrittenWithOtherBytesEachTime)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    const auto before = note.state.encryptedData;
    manager->setText("text", note);
    EXPECT_NE(note.state.encryptedData, before);
    EXPECT_EQ(note.state.encryptedData->length(), before->length());
}

TEST_F(ProtectedRecords, TakeTheirAttachmentsAlong)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = plainNote("text");
    PlainNoteFile& file = plainFile("plan.pdf", "the marker");
    file.normalizedFileExtension = "pdf";
    file.searchText = "recognised";
    note.files = {&file};
    protect(note, password);

    EXPECT_TRUE(file.state.encrypted);
    EXPECT_EQ(file.names(), std::vector<std::string>{*file.filename});
    EXPECT_EQ(file.filename->size(), 32U);
    EXPECT_EQ(file.normalizedFileExtension, std::nullopt);
    EXPECT_EQ(file.fileSize, std::nullopt);
    EXPECT_EQ(file.searchText, std::nullopt);
    EXPECT_EQ(contentsOf(*file.storedFileURL()).find("marker"), std::string::npos);
    EXPECT_EQ(manager->filenameForNoteFile(file, nullptr), "plan.pdf");
    EXPECT_EQ(manager->normalizedFileExtensionForNoteFile(file, nullptr), "pdf");
    EXPECT_EQ(manager->fileSizeForNoteFile(file, nullptr), 10);
    EXPECT_EQ(manager->searchTextForNoteFile(file, nullptr), "recognised");
    EXPECT_EQ(contentsOf(*manager->fileURLForNoteFile(file, nullptr)), "the marker");

    NSError error;
    ASSERT_TRUE(manager->removeEncryptionFromObject(note, &error)) << error;
    EXPECT_EQ(note.text, "text");
    EXPECT_EQ(file.filename, "plan.pdf");
    EXPECT_EQ(file.normalizedFileExtension, "pdf");
    EXPECT_EQ(file.fileSize, 10);
    EXPECT_EQ(file.searchText, "recognised");
    EXPECT_EQ(contentsOf(*file.storedFileURL()), "the marker");
    EXPECT_FALSE(file.state.encrypted);
    EXPECT_EQ(file.state.password, nullptr);
    EXPECT_EQ(file.protections, 0);
    EXPECT_EQ(file.names(), std::vector<std::string>{"plan.pdf"});
}

TEST_F(ProtectedRecords, HaveOneFieldChangedWithoutTheOthers)
{
    PlainNoteFile& file = protectedFile("plan.pdf", "bytes", passwordOf("secret"));
    manager->setFilename("other.txt", file);
    manager->setFileSize(7, file);
    manager->setNormalizedFileExtension("txt", file);
    manager->setSearchText("seen", file);
    EXPECT_EQ(manager->filenameForNoteFile(file, nullptr), "other.txt");
    EXPECT_EQ(manager->fileSizeForNoteFile(file, nullptr), 7);
    EXPECT_EQ(manager->normalizedFileExtensionForNoteFile(file, nullptr), "txt");
    EXPECT_EQ(manager->searchTextForNoteFile(file, nullptr), "seen");
    manager->setFileSize(std::nullopt, file);
    manager->setSearchText("", file);
    EXPECT_EQ(manager->fileSizeForNoteFile(file, nullptr), std::nullopt);
    EXPECT_EQ(manager->searchTextForNoteFile(file, nullptr), "");
    EXPECT_EQ(manager->filenameForNoteFile(file, nullptr), "other.txt");
}

TEST_F(ProtectedRecords, NeedAnUnlockedPassword)
{
    OVPassword& password = passwordOf("secret");
    manager->lock();
    PlainNote& note = plainNote("text");
    EXPECT_EQ(codeOfProtecting(note, password), OVEncryptionErrorLocked);
    EXPECT_EQ(note.text, "text");
    EXPECT_EQ(note.prepared, 0);
}

TEST_F(ProtectedRecords, ArePutUnderOnePasswordOnly)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = protectedNote("text", password);
    const auto before = note.state.encryptedData;
    EXPECT_EQ(codeOfProtecting(note, password), 0);
    EXPECT_EQ(codeOfProtecting(note, passwordOf("another")), OVEncryptionErrorHasPassword);
    EXPECT_EQ(note.state.encryptedData, before);
}

TEST_F(ProtectedRecords, NeedTheBytesOfEachAttachment)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = plainNote("text");
    PlainNoteFile& here = plainFile("here.txt", "here");
    PlainNoteFile& elsewhere = plainFile("elsewhere.txt", "elsewhere");
    elsewhere.isDownloaded = false;
    note.files = {&here, &elsewhere};
    NSError error;
    EXPECT_FALSE(manager->addEncryptionToObject(note, password, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_NE(error.localizedDescription().find("elsewhere.txt"), std::string::npos);
    EXPECT_EQ(here.filename, "here.txt");
    EXPECT_EQ(note.text, "text");
    EXPECT_EQ(here.prepared, 0);
}

TEST_F(ProtectedRecords, AreAsTheyWereWhenAnAttachmentFails)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = plainNote("text");
    PlainNoteFile& first = plainFile("first.txt", "first");
    PlainNoteFile& second = plainFile("second.txt", "second");
    first.searchText = "seen";
    second.exchangesThatSucceed = 0;
    note.files = {&first, &second};
    EXPECT_EQ(codeOfProtecting(note, password), 2); // what the attachment said
    EXPECT_EQ(note.text, "text");
    EXPECT_FALSE(note.state.encrypted);
    for (PlainNoteFile* const file : {&first, &second}) {
        EXPECT_FALSE(file->state.encrypted);
        EXPECT_EQ(file->names(), std::vector<std::string>{*file->filename});
    }
    EXPECT_EQ(first.filename, "first.txt");
    EXPECT_EQ(first.searchText, "seen");
    EXPECT_EQ(first.fileSize, 5);
    EXPECT_EQ(contentsOf(*first.storedFileURL()), "first");
}

TEST_F(ProtectedRecords, StayProtectedWhenAnAttachmentFails)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = plainNote("text");
    PlainNoteFile& first = plainFile("first.txt", "first");
    PlainNoteFile& second = plainFile("second.txt", "second");
    note.files = {&first, &second};
    protect(note, password);
    const auto before = first.state;
    second.exchangesThatSucceed = 0;
    EXPECT_FALSE(manager->removeEncryptionFromObject(note, nullptr));
    EXPECT_TRUE(note.state.encrypted);
    EXPECT_EQ(manager->textForNote(note, nullptr), "text");
    EXPECT_EQ(first.state.encryptedData, before.encryptedData);
    EXPECT_EQ(first.state.encryptionDate, before.encryptionDate);
    EXPECT_EQ(first.fileSize, std::nullopt);
    EXPECT_EQ(contentsOf(*manager->fileURLForNoteFile(first, nullptr)), "first");
    EXPECT_EQ(contentsOf(*manager->fileURLForNoteFile(second, nullptr)), "second");
}

TEST_F(ProtectedRecords, AreNotProtectedWhenOneIsNotPrepared)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = plainNote("text");
    PlainNoteFile& file = plainFile("file.txt", "file");
    file.refusesToPrepare = true;
    note.files = {&file};
    EXPECT_EQ(codeOfProtecting(note, password), 1);
    EXPECT_EQ(note.text, "text");
    EXPECT_EQ(file.filename, "file.txt");
}

TEST_F(ProtectedRecords, MayHaveMoreAttachmentsThanThereIsRoomForKeys)
{
    const KeyArenaOverride arena(std::make_shared<KeyArena>(40 * KeyArena::slotSize));
    OVPassword& password = passwordOf("secret");
    PlainNote& note = plainNote("text");
    for (int number = 0; number < 60; ++number)
        note.files.push_back(&plainFile("file", std::to_string(number)));
    protect(note, password);
    NSError error;
    EXPECT_TRUE(manager->removeEncryptionFromObject(note, &error)) << error;
    static_cast<PlainNoteFile*>(note.files.back())->exchangesThatSucceed = 0;
    EXPECT_FALSE(manager->addEncryptionToObject(note, password, &error));
    for (OVEncryptableNoteFile* const file : note.files)
        EXPECT_FALSE(file->isEncrypted());
    EXPECT_EQ(contentsOf(*note.files[59]->storedFileURL()), "59");
    manager->lock();
}

TEST_F(ProtectedRecords, OpenAsDuplicates)
{
    OVPassword& password = passwordOf("secret");
    const PlainNote& note = protectedNote("text", password);
    PlainNote& copy = plainNote(std::nullopt);
    copy.state = note.state;
    EXPECT_EQ(manager->textForNote(copy, nullptr), "text");
}

TEST_F(ProtectedRecords, DoNotOpenAsAnother)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = protectedNote("text", password);
    PlainNote& other = protectedNote("other", password);
    std::swap(note.state.encryptedData, other.state.encryptedData);
    EXPECT_TRUE(manager->isObjectLocked(note));
    EXPECT_EQ(manager->reasonForLock(note).code(), OVEncryptionErrorDamaged);
    manager->setText("new", note);
    EXPECT_EQ(takeLog().size(), 1U);
    std::swap(note.state.encryptedData, other.state.encryptedData);
    EXPECT_EQ(manager->textForNote(note, nullptr), "text");
}

TEST_F(ProtectedRecords, AreLockedWithoutTheirData)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    note.state.encryptedData.reset();
    EXPECT_EQ(manager->reasonForLock(note).code(), OVEncryptionErrorDamaged);
    note.state.encryptedData = NSData::fromText("something else");
    EXPECT_EQ(manager->reasonForLock(note).code(), OVEncryptionErrorUnknownVersion);
    EXPECT_TRUE(manager->isObjectLocked(note));
}

TEST_F(ProtectedRecords, AreNotLockedForTheirAttachmentsAlone)
{
    PlainNote& note = plainNote("text");
    PlainNoteFile& file = protectedFile("file.txt", "file", passwordOf("secret"));
    note.files = {&file};
    manager->lock();
    EXPECT_FALSE(manager->isObjectLocked(note));
    EXPECT_TRUE(manager->isObjectLocked(file));
}

} // namespace
} // namespace tarn
