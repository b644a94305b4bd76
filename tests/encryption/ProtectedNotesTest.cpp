#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/encryption/EncryptionFixture.h"

#include <thread>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// Notes and attachments of a store, with a manager.
class ProtectedNotes : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        fs::create_directories(runtimeFolder());
        world_.setRuntimeDirectory(runtimeFolder());
        begin();
    }
    void TearDown() override
    {
        manager.reset();
        StoreFixture::TearDown();
    }
    void begin()
    {
        OVEncryptionOptions options;
        options.cost = cheapCost;
        options.scratchDirectory = [folder = runtimeFolder()] { return folder; };
        manager = std::make_unique<OVEncryptionCoreManager>(context(), options);
    }
    fs::path runtimeFolder() const { return storeFile().parent_path() / "run"; }
    OVPassword& passwordOf(std::string_view word)
    {
        OVPassword& record = insert<OVPassword>();
        EXPECT_TRUE(manager->setPassword(record, word, std::nullopt, nullptr));
        return record;
    }
    OVNoteFile& attach(OVNote& note, std::string_view name, std::string_view bytes)
    {
        const fs::path source = storeFile().parent_path() / name;
        writeFile(source, bytes);
        OVNoteFile* const file = note.addAttachmentFromFileURL(source);
        fs::remove(source);
        EXPECT_NE(file, nullptr);
        return *file;
    }
    void protect(OVEncryptableObject& object, OVPassword& password)
    {
        NSError error;
        ASSERT_TRUE(manager->addEncryptionToObject(object, password, &error)) << error;
    }
    static fs::recursive_directory_iterator entriesOf(const fs::path& root)
    {
        std::error_code isNotThere;
        return fs::recursive_directory_iterator(root, isNotThere);
    }
    /// Files of this test, other than what is decrypted, that hold the words.
    std::vector<std::string> filesWith(std::string_view words) const
    {
        std::vector<std::string> found;
        for (const fs::path& root : {storeFile().parent_path(), filesRoot()})
            for (const auto& entry : entriesOf(root))
                if (entry.is_regular_file() && entry.path().string().find(runtimeFolder().string()) != 0
                    && contentsOf(entry.path()).find(words) != std::string::npos)
                    found.push_back(entry.path().string());
        return found;
    }

    std::unique_ptr<OVEncryptionCoreManager> manager;
};
INSTANTIATE_TEST_SUITE_P(Stores, ProtectedNotes, everyStore(), storeName);

TEST_P(ProtectedNotes, AreReadAgainWithTheirPassword)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n\nthe marker in the text\n");
    attach(trip, "plan.txt", "the marker in the file");
    const std::string text = trip.text().value();
    const std::string identifier = trip.uniqueIdentifier().value();
    save();
    protect(trip, password);
    EXPECT_EQ(trip.text(), text);
    save();
    EXPECT_EQ(filesWith("the marker"), std::vector<std::string>());
    manager.reset();
    reopen();
    begin();

    OVNote& read = *OVNote::noteWithUniqueIdentifier(identifier, context());
    OVNoteFile& file = *read.filesSet().allObjects().front();
    EXPECT_TRUE(read.hasEncryptionAndIsLocked());
    EXPECT_THROW(read.text(), NSException);
    EXPECT_THROW(read.setText("other"), NSException);
    EXPECT_THROW(file.filename(), NSException);
    ASSERT_TRUE(manager->unlock(*read.password(), "secret", nullptr));
    EXPECT_EQ(read.text(), text);
    EXPECT_EQ(file.filename(), "plan.txt");
    EXPECT_EQ(file.fileSize(), 22);
    EXPECT_EQ(contentsOf(*file.fileURL()), "the marker in the file");
    EXPECT_TRUE(OVEncryptionCoreManager::isDecryptedFile(*file.fileURL()));

    read.updateNoteWithText("# Trip\n\nanother marker\n");
    save();
    EXPECT_EQ(filesWith("another marker"), std::vector<std::string>());
    NSError error;
    ASSERT_TRUE(manager->removeEncryptionFromObject(read, &error)) << error;
    save();
    EXPECT_EQ(read.storedText(), "# Trip\n\nanother marker\n");
    EXPECT_EQ(file.storedFilename(), "plan.txt");
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "the marker in the file");
}

TEST_P(ProtectedNotes, AreAsTheyWereWhenChangesAreDropped)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n");
    OVNoteFile& file = attach(trip, "plan.txt", "the plan");
    const std::string text = trip.text().value();
    save();
    protect(trip, password);
    context().rollback();
    EXPECT_EQ(trip.storedText(), text);
    EXPECT_EQ(file.storedFilename(), "plan.txt");
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "the plan");
    protect(trip, password);
    save();
    ASSERT_TRUE(manager->removeEncryptionFromObject(trip, nullptr));
    context().rollback();
    EXPECT_EQ(trip.text(), text);
    EXPECT_EQ(contentsOf(*file.fileURL()), "the plan");
}

TEST_P(ProtectedNotes, MayBeProtectedAndNotWithoutASave)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n");
    OVNoteFile& file = attach(trip, "plan.txt", "the plan");
    const std::string text = trip.text().value();
    save();
    for (int count = 0; count < 2; ++count) {
        protect(trip, password);
        NSError error;
        ASSERT_TRUE(manager->removeEncryptionFromObject(trip, &error)) << error;
    }
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "the plan");
    save();
    EXPECT_EQ(trip.storedText(), text);
    EXPECT_EQ(contentsOf(*file.primitiveFileURL()), "the plan");
    EXPECT_FALSE(trip.hasEncryption());
}

TEST_P(ProtectedNotes, AreNotProtectedInPart)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n");
    OVNoteFile& first = attach(trip, "first.txt", "first");
    OVNoteFile& second = attach(trip, "second.txt", "second");
    save();
    fs::remove(*second.primitiveFileURL());
    NSError error;
    EXPECT_FALSE(manager->addEncryptionToObject(trip, password, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_NE(error.localizedDescription().find("second.txt"), std::string::npos);
    EXPECT_FALSE(trip.hasEncryption());
    EXPECT_EQ(first.storedFilename(), "first.txt");
}

TEST_P(ProtectedNotes, OpenInDuplicates)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n");
    attach(trip, "plan.txt", "the plan");
    protect(trip, password);
    save();
    OVNote* const copy = trip.duplicate();
    ASSERT_NE(copy, nullptr);
    save();
    EXPECT_EQ(copy->text(), trip.text());
    ASSERT_EQ(copy->filesSet().allObjects().size(), 1U);
    EXPECT_EQ(contentsOf(*copy->filesSet().allObjects().front()->fileURL()), "the plan");
}

TEST_P(ProtectedNotes, AreBroughtToANewMasterKey)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n");
    OVNoteFile& file = attach(trip, "plan.txt", "the plan");
    const std::string text = trip.text().value();
    protect(trip, password);
    save();
    NSError error;
    ASSERT_TRUE(manager->rotateMasterKey(password, "secret", &error)) << error;
    for (OVEncryptableObject* const object : password.encryptableObjects()) {
        EXPECT_TRUE(manager->isReencryptionNeeded(*object));
        ASSERT_TRUE(manager->reencrypt(*object, &error)) << error;
        EXPECT_FALSE(manager->isReencryptionNeeded(*object));
    }
    save();
    EXPECT_EQ(trip.text(), text);
    EXPECT_EQ(file.filename(), "plan.txt");
    EXPECT_EQ(contentsOf(*file.fileURL()), "the plan");
}

TEST_P(ProtectedNotes, AreReadAndWrittenInChildrenOnOtherThreads)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n\nmarker one\n");
    protect(trip, password);
    save();
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    child.setParentContext(context());
    const NSManagedObjectID identifier = trip.objectID();
    child.performBlockAndWait([&] {
        auto* const seen = static_cast<OVNote*>(child.objectWithID(identifier));
        EXPECT_EQ(seen->text(), "# Trip\n\nmarker one\n");
        seen->updateNoteWithText("# Trip\n\nmarker two\n");
        EXPECT_EQ(seen->storedText(), std::nullopt);
        EXPECT_TRUE(child.save());
    });
    EXPECT_EQ(trip.text(), "# Trip\n\nmarker two\n");
    save();
    EXPECT_EQ(filesWith("marker"), std::vector<std::string>());

    // Who runs without the manager here hides it from nobody there.
    OVEncryptionCoreManager::performInManagedObjectContext(context(), [&] {
        EXPECT_EQ(trip.text(), std::nullopt);
        child.performBlockAndWait([&] {
            auto* const seen = static_cast<OVNote*>(child.objectWithID(identifier));
            seen->updateNoteWithText("# Trip\n\nmarker three\n");
            EXPECT_EQ(seen->storedText(), std::nullopt);
            EXPECT_TRUE(child.save());
        });
    });
    save();
    EXPECT_EQ(trip.text(), "# Trip\n\nmarker three\n");
    EXPECT_EQ(filesWith("marker"), std::vector<std::string>());
}

TEST_P(ProtectedNotes, GiveTheirPasswordToNewAttachments)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n");
    protect(trip, password);
    OVNoteFile& file = attach(trip, "late.txt", "late marker");
    EXPECT_TRUE(file.hasEncryption());
    save();
    EXPECT_EQ(file.filename(), "late.txt");
    EXPECT_EQ(contentsOf(*file.fileURL()), "late marker");
    EXPECT_EQ(filesWith("late marker"), std::vector<std::string>());
    NSError error;
    ASSERT_TRUE(file.updateAttachmentWithFileWrapper(
        NSFileWrapper::withContents(NSData::fromText("other marker, longer")), &error))
        << error;
    save();
    EXPECT_EQ(contentsOf(*file.fileURL()), "other marker, longer");
    EXPECT_EQ(file.fileSize(), 20);
    EXPECT_EQ(filesWith("marker"), std::vector<std::string>());
}

TEST_P(ProtectedNotes, ComeBackFromTheDictionariesOfTheirAttachmentsLockedOrNot)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n\n[list](list.txt)\n");
    OVNoteFile& file = attach(trip, "list.txt", "the bytes");
    file.setSearchText("recognised");
    protect(trip, password);
    const auto json = file.jsonRepresentation();
    const auto sealed = file.sealedFields();
    for (const bool isLocked : {false, true}) {
        if (isLocked)
            manager->lock();
        OVNoteFile* restored = OVNoteFile::noteFileFromJsonRepresentation(json, context());
        ASSERT_NE(restored, nullptr);
        EXPECT_EQ(restored->sealedFields(), sealed);
        EXPECT_EQ(restored->password(), &password);
        EXPECT_EQ(restored->storedFilename(), std::nullopt) << "the clear name is in the encrypted data alone";
        EXPECT_EQ(restored->storedSearchText(), std::nullopt);
        EXPECT_EQ(manager->isObjectLocked(*restored), isLocked);
        ASSERT_TRUE(manager->unlock(password, "secret", nullptr));
        EXPECT_EQ(restored->filename(), "list.txt");
        EXPECT_EQ(restored->searchText(), "recognised");
        context().deleteObject(*restored);
    }
}

TEST_P(ProtectedNotes, CountAsLockedWhenTheirEncryptedDataIsGone)
{
    OVPassword& password = passwordOf("secret");
    OVNote& trip = note("# Trip\n\n[list](list.txt)\n");
    OVNoteFile& file = attach(trip, "list.txt", "the bytes");
    protect(trip, password);
    ASSERT_TRUE(context().save(nullptr));
    trip.setEncryptedData(std::nullopt);
    file.setEncryptedData(std::nullopt);
    EXPECT_TRUE(manager->isObjectLocked(trip));
    EXPECT_TRUE(manager->isObjectLocked(file));
    EXPECT_THROW(file.setFilename("other.txt"), NSException);
}

} // namespace
} // namespace tarn
