#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/BackwardsManager.h"
#include "tests/support/StoreFixture.h"

#include <stdexcept>

namespace tarn {
namespace {

class Protection : public StoreFixture {
protected:
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        StoreFixture::TearDown();
    }
    void serve(BackwardsManager& manager) { OVEncryptionCoreManager::setEncryptionCoreManager(&manager, context()); }
};

TEST_P(Protection, CountsAsLockedWithoutAManager)
{
    BackwardsManager manager;
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    EXPECT_FALSE(note.hasEncryptionAndIsLocked());
    EXPECT_FALSE(file.hasEncryptionAndIsLocked());
    note.setEncryptedValue(true);
    file.setEncryptedValue(true);
    EXPECT_EQ(note.encryptionCoreManager(), nullptr);
    EXPECT_TRUE(note.hasEncryptionAndIsLocked());
    EXPECT_TRUE(file.hasEncryptionAndIsLocked());
    serve(manager);
    for (const bool isLocked : {false, true}) {
        manager.isLocked = isLocked;
        EXPECT_EQ(note.hasEncryptionAndIsLocked(), isLocked);
        EXPECT_EQ(file.hasEncryptionAndIsLocked(), isLocked);
        EXPECT_TRUE(note.hasEncryption());
        EXPECT_TRUE(file.hasEncryption());
    }
}

TEST_P(Protection, DoesNotKeepANewTextFromObservers)
{
    /// Keeps texts elsewhere than in the record's own field, as one that encrypts does.
    struct SealingManager : BackwardsManager {
        void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override
        {
            note.setSealedFields(NSData::fromText(text.value_or("")));
        }
    } manager;
    auto& note = insert<OVNote>();
    note.setEncryptedValue(true);
    serve(manager);
    int heard = 0;
    auto observation = note.addObserver("text", [&](NSManagedObject&, std::string_view) { ++heard; });
    note.setText("abc");
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(note.primitiveText(), std::nullopt);
    EXPECT_EQ(note.encryptedData(), NSData::fromText("abc"));
}

TEST_P(Protection, IsOutOfSightInsideABlock)
{
    BackwardsManager manager;
    manager.isLocked = true;
    auto& note = insert<OVNote>();
    note.setText("stored");
    note.setEncryptedValue(true);
    serve(manager);
    int runs = 0;
    OVEncryptionCoreManager::performInManagedObjectContext(context(), [&] {
        OVEncryptionCoreManager::performInManagedObjectContext(context(), [&] { ++runs; });
        EXPECT_EQ(note.encryptionCoreManager(), nullptr);
        EXPECT_EQ(note.text(), "stored");
    });
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(note.encryptionCoreManager(), &manager);
    EXPECT_THROW(
        OVEncryptionCoreManager::performInManagedObjectContext(context(), [] { throw std::runtime_error("x"); }),
        std::runtime_error);
    EXPECT_EQ(note.encryptionCoreManager(), &manager);
}

TEST_P(Protection, BelongsToOneContext)
{
    BackwardsManager manager;
    serve(manager);
    NSManagedObjectContext other(NSManagedObjectContext::ConcurrencyType::MainQueue);
    EXPECT_EQ(OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(other), nullptr);
    EXPECT_EQ(OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(context()), &manager);
}

TEST_P(Protection, EndsWithItsManager)
{
    {
        BackwardsManager manager;
        serve(manager);
    }
    EXPECT_EQ(OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(context()), nullptr);
}

TEST_P(Protection, OfANoteIsSeenInItsAttachments)
{
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    file.setNote(&note);
    EXPECT_FALSE(note.hasEncryption());
    file.setEncryptedValue(true);
    EXPECT_TRUE(note.hasEncryption());
    save();
    EXPECT_TRUE(note.hasEncryption());
}

TEST_P(Protection, IsWrittenAndReadAsAWhole)
{
    BackwardsManager manager;
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    auto& password = insert<OVPassword>();
    ASSERT_TRUE(manager.addEncryptionToObject(note, password, nullptr));
    ASSERT_TRUE(manager.addEncryptionToObject(file, password, nullptr));
    EXPECT_TRUE(note.encryptedValue());
    EXPECT_EQ(note.encryptedData(), NSData::fromText("cipher"));
    EXPECT_EQ(note.password(), &password);
    EXPECT_EQ(file.encryptionState().encryptionUniqueIdentifier, "key 1");
    EXPECT_EQ(file.encryptionState().password, &password);
    note.setEncryptionState({});
    EXPECT_FALSE(note.encryptionState().encrypted);
    EXPECT_EQ(note.password(), nullptr);
}

TEST_P(Protection, HasAPasswordThatKnowsWhatItProtects)
{
    auto& password = insert<OVPassword>();
    auto& first = insert<OVNote>();
    auto& second = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    first.setPassword(&password);
    second.setPassword(&password);
    file.setPassword(&password);
    EXPECT_THAT(password.encryptableObjects(), testing::UnorderedElementsAre(&first, &second, &file));
    password.encryptableObjects().clear();
    EXPECT_EQ(password.encryptableObjects().size(), 3u);
}

TEST_P(Protection, HasPasswordsThatAreFound)
{
    auto& password = insert<OVPassword>();
    insert<OVPassword>();
    save();
    EXPECT_EQ(OVPassword::passwordWithUniqueIdentifier(*password.uniqueIdentifier(), context()), &password);
    EXPECT_EQ(OVPassword::passwordWithUniqueIdentifier("none", context()), nullptr);
    EXPECT_EQ(OVPassword::passwordsInManagedObjectContext(context(), std::nullopt).size(), 2u);
}

class UnreadablePasswords : public Protection { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadablePasswords, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadablePasswords, AreNoneAndLogged)
{
    const std::string identifier = *insert<OVPassword>().uniqueIdentifier();
    save();
    runSQL("ALTER TABLE \"OVPassword\" RENAME TO \"hidden\"");
    EXPECT_EQ(OVPassword::passwordWithUniqueIdentifier(identifier, context()), nullptr);
    EXPECT_THAT(OVPassword::passwordsInManagedObjectContext(context(), std::nullopt), testing::IsEmpty());
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVPassword\"");
    const auto failure = testing::StartsWith("Error while fetching\n");
    EXPECT_THAT(takeLog(), testing::ElementsAre(failure, failure));
    EXPECT_NE(OVPassword::passwordWithUniqueIdentifier(identifier, context()), nullptr);
}

TEST_P(Protection, OfFilesIsTheHostsToAllow)
{
    EXPECT_FALSE(OVEncryptionCoreManager::isFileEncryptionEnabled());
    OVEncryptionCoreManager::setFileEncryptionEnabled(true);
    EXPECT_TRUE(OVEncryptionCoreManager::isFileEncryptionEnabled());
    OVEncryptionCoreManager::setFileEncryptionEnabled(false);
}

// Use of attachments ------------------------------------------------------------------------------------------------

using AttachmentUse = StoreFixture;

TEST_P(AttachmentUse, IsDatedWhenItChangesOnly)
{
    auto& file = insert<OVNoteGenericFile>();
    file.setInUse();
    EXPECT_EQ(file.unusedDate(), std::nullopt);
    file.setUnused();
    EXPECT_TRUE(file.isUnused());
    EXPECT_EQ(file.unusedDate(), lastTime());
    const auto date = file.unusedDate();
    file.setUnused();
    EXPECT_EQ(file.unusedDate(), date);
    file.setInUse();
    EXPECT_FALSE(file.isUnused());
    EXPECT_GT(file.unusedDate(), date);
}

INSTANTIATE_TEST_SUITE_P(Stores, Protection, everyStore(), storeName);
INSTANTIATE_TEST_SUITE_P(Stores, AttachmentUse, everyStore(), storeName);

} // namespace
} // namespace tarn
