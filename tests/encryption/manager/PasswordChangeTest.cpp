#include "tarnmodel/encryption/manager/PasswordChange.h"

#include "tests/encryption/EncryptionFixture.h"
#include "tests/support/FaultyDisk.h"

namespace tarn {
namespace {

class PasswordChanges : public EncryptionFixture {
protected:
    PasswordChanges() : EncryptionFixture(StoreType::SQLite) { }

    OVPassword& savedPassword(std::string_view word)
    {
        OVPassword& record = passwordOf(word);
        save();
        return record;
    }
    static bool isRight(OVEncryptionCoreManager& asked, const OVPassword& record, std::string_view word)
    {
        return asked.unlock(record, word, nullptr);
    }
    bool isRight(const OVPassword& record, std::string_view word) { return isRight(*manager, record, word); }
};

TEST_F(PasswordChanges, LeaveProtectedRecordsAsTheyAre)
{
    OVPassword& password = savedPassword("old");
    const PlainNote& note = protectedNote("text", password);
    const auto before = note.state.encryptedData;
    NSError error;
    ASSERT_TRUE(manager->changePassword(password, "old", "new", &error)) << error;
    EXPECT_EQ(note.state.encryptedData, before);
    EXPECT_FALSE(context().hasChanges());
    manager->lock();
    EXPECT_FALSE(isRight(password, "old"));
    EXPECT_TRUE(isRight(password, "new"));
    EXPECT_EQ(manager->textForNote(note, nullptr), "text");
}

TEST_F(PasswordChanges, NeedTheOldPassword)
{
    OVPassword& password = savedPassword("old");
    const auto before = password.verifier();
    NSError error;
    EXPECT_FALSE(manager->changePassword(password, "wrong", "new", &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorWrongPassword);
    EXPECT_FALSE(manager->rotateMasterKey(password, "wrong", &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorWrongPassword);
    EXPECT_FALSE(manager->changePassword(password, "old", "", &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorNotAPassword);
    EXPECT_EQ(password.verifier(), before);
}

TEST_F(PasswordChanges, TakeTheCostOfNow)
{
    OVPassword& password = savedPassword("old");
    manager.reset();
    OVEncryptionOptions dearer = options();
    dearer.cost = {2, 16};
    manager = std::make_unique<OVEncryptionCoreManager>(context(), dearer);
    const auto derivation = [&] { return PasswordBlob::read(*password.verifier(), nullptr)->derivation(); };
    ASSERT_TRUE(isRight(password, "old"));
    EXPECT_EQ(derivation().passes, 1U) << "to unlock changes nothing";
    ASSERT_TRUE(manager->changePassword(password, "old", "new", nullptr));
    EXPECT_EQ(derivation().passes, 2U);
    EXPECT_EQ(derivation().memoryInKibibytes, 16U);
}

TEST_F(PasswordChanges, OfTheMasterKeyKeepTheFormerOnes)
{
    OVPassword& password = savedPassword("secret");
    PlainNote& old = protectedNote("old", password);
    EXPECT_FALSE(manager->isReencryptionNeeded(old));
    NSError error;
    for (int count = 0; count < 3; ++count)
        ASSERT_TRUE(manager->rotateMasterKey(password, "secret", &error)) << error;
    const PlainNote& young = protectedNote("young", password);
    EXPECT_TRUE(manager->isReencryptionNeeded(old));
    EXPECT_FALSE(manager->isReencryptionNeeded(young));
    manager->lock();
    EXPECT_FALSE(manager->isReencryptionNeeded(old));
    ASSERT_TRUE(isRight(password, "secret"));
    EXPECT_EQ(manager->textForNote(old, nullptr), "old");
    EXPECT_EQ(manager->textForNote(young, nullptr), "young");
    manager->setText("changed", old);
    EXPECT_TRUE(manager->isReencryptionNeeded(old)) << "its key stays";
}

TEST_F(PasswordChanges, AreBroughtToRecordsOneByOne)
{
    OVPassword& password = savedPassword("secret");
    PlainNote& note = protectedNote("text", password);
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", password);
    ASSERT_TRUE(manager->rotateMasterKey(password, "secret", nullptr));
    const OVEncryptionState before = note.state;
    const auto formerName = file.filename;
    const std::filesystem::path copy = *manager->fileURLForNoteFile(file, nullptr);
    NSError error;
    ASSERT_TRUE(manager->reencrypt(note, &error)) << error;
    ASSERT_TRUE(manager->reencrypt(file, &error)) << error;
    EXPECT_NE(note.state.encryptedData, before.encryptedData);
    EXPECT_EQ(note.state.encryptionUniqueIdentifier, before.encryptionUniqueIdentifier);
    EXPECT_NE(file.filename, formerName);
    EXPECT_FALSE(std::filesystem::exists(copy));
    for (OVEncryptableObject* const object :
        {static_cast<OVEncryptableObject*>(&note), static_cast<OVEncryptableObject*>(&file)})
        EXPECT_FALSE(manager->isReencryptionNeeded(*object));
    EXPECT_EQ(manager->textForNote(note, nullptr), "text");
    EXPECT_EQ(manager->filenameForNoteFile(file, nullptr), "plan.pdf");
    EXPECT_EQ(contentsOf(*manager->fileURLForNoteFile(file, nullptr)), "the bytes");
    file.exchangesThatSucceed = 0;
    const auto state = file.state;
    EXPECT_FALSE(manager->reencrypt(file, nullptr));
    EXPECT_EQ(file.state.encryptedData, state.encryptedData);
    EXPECT_EQ(contentsOf(*manager->fileURLForNoteFile(file, nullptr)), "the bytes");
    manager->lock();
    EXPECT_FALSE(manager->reencrypt(note, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
}

TEST_F(PasswordChanges, AreMadeInAContextOnAStore)
{
    const OVPassword& password = savedPassword("secret");
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
    child.setParentContext(context());
    auto* const seen = static_cast<OVPassword*>(child.objectWithID(password.objectID()));
    NSError error;
    EXPECT_FALSE(manager->changePassword(*seen, "secret", "new", &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorStore);
}

TEST_F(PasswordChanges, TakeInWhatAnotherProcessWrote)
{
    for (const auto policy : {NSMergePolicy::MergeByPropertyObjectTrump, NSMergePolicy::MergeByPropertyStoreTrump}) {
        context().setMergePolicy(policy);
        OVPassword& password = savedPassword("old");
        auto elsewhere = contextOn(openAgain());
        OVEncryptionCoreManager other(*elsewhere, options());
        OVPassword& theirs = *OVPassword::passwordWithUniqueIdentifier(password.uniqueIdentifier().value(), *elsewhere);
        const PlainNote& early = protectedNote("early", password);
        ASSERT_TRUE(other.rotateMasterKey(theirs, "old", nullptr));
        PlainNote late(theirs);
        late.text = "late";
        ASSERT_TRUE(other.addEncryptionToObject(late, theirs, nullptr));

        // Here nothing was read since, and an unsaved change of the record stands in the way of reading it.
        OVEncryptionCoreManager::setHint("hint", password);
        NSError error;
        ASSERT_TRUE(manager->changePassword(password, "old", "new", &error)) << error;
        EXPECT_EQ(OVEncryptionCoreManager::hint(password), "hint");
        EXPECT_EQ(manager->textForNote(early, nullptr), "early");
        EXPECT_EQ(manager->textForNote(late, nullptr), "late");
        elsewhere->refreshAllObjects();
        EXPECT_TRUE(isRight(other, theirs, "new"));
        EXPECT_EQ(other.textForNote(early, nullptr), "early");
    }
}

TEST_F(PasswordChanges, DeriveAnewWhenThePasswordWasChangedElsewhere)
{
    OVPassword& password = savedPassword("old");
    auto elsewhere = contextOn(openAgain());
    OVEncryptionCoreManager other(*elsewhere, options());
    OVPassword& theirs = *OVPassword::passwordWithUniqueIdentifier(password.uniqueIdentifier().value(), *elsewhere);
    // The same word again, so that ours is still right, by another salt.
    ASSERT_TRUE(other.changePassword(theirs, "old", "old", nullptr));
    ASSERT_TRUE(manager->rotateMasterKey(password, "old", nullptr));
    // And another one: ours is wrong now.
    theirs.verifier();
    ASSERT_TRUE(other.changePassword(theirs, "old", "theirs", nullptr));
    NSError error;
    EXPECT_FALSE(manager->changePassword(password, "old", "ours", &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorWrongPassword);
    EXPECT_TRUE(isRight(password, "theirs"));
    EXPECT_EQ(PasswordBlob::read(*password.verifier(), nullptr)->derivation(),
        PasswordBlob::read(*theirs.verifier(), nullptr)->derivation());
}

TEST_F(PasswordChanges, ProtectNothingUnderAKeyThatTheRecordDoesNotKeep)
{
    OVPassword& password = savedPassword("secret");
    auto elsewhere = contextOn(openAgain());
    OVEncryptionCoreManager other(*elsewhere, options());
    OVPassword& theirs = *OVPassword::passwordWithUniqueIdentifier(password.uniqueIdentifier().value(), *elsewhere);
    ASSERT_TRUE(other.rotateMasterKey(theirs, "secret", nullptr));
    context().refreshObject(password, true);
    EXPECT_FALSE(manager->hasCachedPassword(password));
    NSError error;
    PlainNote& note = plainNote("text");
    EXPECT_FALSE(manager->addEncryptionToObject(note, password, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
    PlainNote late(theirs);
    late.text = "late";
    ASSERT_TRUE(other.addEncryptionToObject(late, theirs, nullptr));
    late.state.password = &password;
    EXPECT_EQ(manager->reasonForLock(late).code(), OVEncryptionErrorLocked);
    ASSERT_TRUE(isRight(password, "secret"));
    EXPECT_TRUE(manager->addEncryptionToObject(note, password, &error)) << error;
    EXPECT_EQ(manager->textForNote(late, nullptr), "late");
}

TEST_F(PasswordChanges, ThatARecordDoesNotShowYetDoNoHarm)
{
    OVPassword& password = savedPassword("secret");
    const auto before = password.verifier();
    ASSERT_TRUE(manager->rotateMasterKey(password, "secret", nullptr));
    password.setVerifier(before); // as a context sees it that was not told yet, or after a backup was put back
    const PlainNote& note = protectedNote("text", password);
    manager->lock();
    ASSERT_TRUE(isRight(password, "secret"));
    EXPECT_EQ(manager->textForNote(note, nullptr), "text");
}

TEST_F(PasswordChanges, OfAnotherProcessToTheSameKeysNeedNoUnlocking)
{
    OVPassword& password = savedPassword("old");
    auto elsewhere = contextOn(openAgain());
    OVEncryptionCoreManager other(*elsewhere, options());
    OVPassword& theirs = *OVPassword::passwordWithUniqueIdentifier(password.uniqueIdentifier().value(), *elsewhere);
    ASSERT_TRUE(other.changePassword(theirs, "old", "new", nullptr));
    context().refreshObject(password, true);
    EXPECT_TRUE(manager->hasCachedPassword(password));
}

class PasswordChangesOnABrokenDisk : public EncryptionFixture {
protected:
    PasswordChangesOnABrokenDisk() : EncryptionFixture(StoreType::SQLite) { }
    FaultyDisk disk;
};

TEST_F(PasswordChangesOnABrokenDisk, LeaveTheOldOne)
{
    OVPassword& password = passwordOf("old");
    save();
    const PlainNote& note = protectedNote("text", password);
    for (const bool isRotation : {false, true}) {
        for (int at = 1; at <= 4; ++at) {
            disk.arm(at, DiskFault::FailsFromNowOn);
            NSError error;
            EXPECT_FALSE(isRotation ? manager->rotateMasterKey(password, "old", &error)
                                    : manager->changePassword(password, "old", "new", &error));
            EXPECT_EQ(error.code(), OVEncryptionErrorStore) << error;
            disk.heal();
            EXPECT_FALSE(password.hasChanges());
            EXPECT_TRUE(manager->unlock(password, "old", nullptr));
            EXPECT_FALSE(manager->unlock(password, "new", nullptr));
            EXPECT_EQ(manager->textForNote(note, nullptr), "text");
        }
    }
    takeLog();
    EXPECT_TRUE(manager->changePassword(password, "old", "new", nullptr));
    EXPECT_TRUE(manager->unlock(password, "new", nullptr));
}

} // namespace
} // namespace tarn
