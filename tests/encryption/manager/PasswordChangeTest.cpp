#include "tarnmodel/encryption/manager/PasswordChange.h"

#include "tarnmodel/encryption/keys/SodiumInternal.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tests/encryption/EncryptionFixture.h"
#include "tests/support/FaultyDisk.h"

#include <gmock/gmock.h>

#include <array>
#include <atomic>
#include <utility>
#include <vector>

namespace tarn {
namespace {

/// A password that protects plain objects.
class PasswordOf final : public OVEncryptingPassword {
public:
    PasswordOf(OVPassword& record, std::vector<OVEncryptableObject*> objects)
        : record_(record), objects_(std::move(objects))
    { }

    NSManagedObject& passwordRecord() noexcept override { return record_; }
    const NSManagedObject& passwordRecord() const noexcept override { return record_; }
    std::string passwordIdentifier() const override { return record_.passwordIdentifier(); }
    std::optional<NSData> verifier() const override { return record_.verifier(); }
    void setVerifier(const std::optional<NSData>& verifier) override { record_.setVerifier(verifier); }
    std::int16_t verifierVersion() const override { return record_.verifierVersion(); }
    void setVerifierVersion(std::int16_t version) override { record_.setVerifierVersion(version); }
    std::optional<NSData> passwordHint() const override { return record_.passwordHint(); }
    void setPasswordHint(const std::optional<NSData>& hint) override { record_.setPasswordHint(hint); }
    bool allowsBiometry() const override { return record_.allowsBiometry(); }
    void setAllowsBiometry(bool allows) override { record_.setAllowsBiometry(allows); }
    std::vector<OVEncryptableObject*> encryptableObjects() const override { return objects_; }

private:
    OVPassword& record_;
    std::vector<OVEncryptableObject*> objects_;
};

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

TEST_F(PasswordChanges, LeaveRecordsByTheirKeysEachLookedAtOnce)
{
    OVPassword& password = savedPassword("secret");
    PlainNote& old = protectedNote("old", password);
    PlainNoteFile& file = protectedFile("plan.pdf", "the bytes", password);
    PlainNote& broken = protectedNote("broken", password);
    broken.state.encryptedData = NSData::fromText("nothing of ours");
    ASSERT_TRUE(manager->rotateMasterKey(password, "secret", nullptr));
    PlainNote& young = protectedNote("young", password);
    PlainNote& clear = plainNote("clear");
    const PasswordOf own(password, {&old, &clear, &young, &broken, &file});
    for (std::atomic<int>* const looks : {&old.looks, &young.looks, &broken.looks, &file.looks})
        *looks = 0;
    const OVObjectsByKey objects = manager->objectsByKey(own);
    EXPECT_THAT(objects.underNewestKey, testing::ElementsAre(&young));
    EXPECT_THAT(objects.underFormerKeys, testing::ElementsAre(&old, &file));
    EXPECT_THAT((std::array<int, 4>{old.looks, young.looks, broken.looks, file.looks}), testing::Each(1));
    manager->lock();
    const OVObjectsByKey locked = manager->objectsByKey(own);
    EXPECT_THAT(locked.underNewestKey, testing::IsEmpty());
    EXPECT_THAT(locked.underFormerKeys, testing::IsEmpty());
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

TEST_F(PasswordChanges, ProtectNothingForARecordThatItsKeyDoesNotVouchFor)
{
    OVPassword& password = savedPassword("secret");
    const NSData sound = *password.verifier();
    std::vector<std::byte> bytes(sound.span().begin(), sound.span().end());
    bytes[110] ^= std::byte{1}; // of the key that it would have to give back later
    const auto content = std::span(bytes).first(bytes.size() - 16);
    crypto_generichash(octets(std::span(bytes).last(16)), 16, octets(content), content.size(), nullptr, 0);
    password.setVerifier(NSData(bytes));
    EXPECT_FALSE(manager->hasCachedPassword(password));
    NSError error;
    EXPECT_FALSE(manager->addEncryptionToObject(plainNote("text"), password, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorLocked);
}

TEST_F(PasswordChanges, ThatAreNotWhatWasSavedAreNone)
{
    OVPassword& password = savedPassword("old");
    const auto before = password.verifier();
    const auto meddling = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextWillSaveNotification, &context(), [&](const NSNotification&) {
            if (password.verifier() != before)
                password.setVerifier(before);
        });
    NSError error;
    EXPECT_FALSE(manager->changePassword(password, "old", "new", &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorStore);
    EXPECT_TRUE(isRight(password, "old"));
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

/// What one of two processes has: a store, a manager and a queue of its own.
class OtherProcess {
public:
    OtherProcess(std::shared_ptr<NSPersistentStoreCoordinator> coordinator, const OVEncryptionOptions& options,
        const std::string& passwordIdentifier)
        : context(NSManagedObjectContext::ConcurrencyType::PrivateQueue)
    {
        context.setPersistentStoreCoordinator(std::move(coordinator));
        context.performBlockAndWait([&] {
            manager = std::make_unique<OVEncryptionCoreManager>(context, options);
            password = OVPassword::passwordWithUniqueIdentifier(passwordIdentifier, context);
        });
    }
    ~OtherProcess()
    {
        context.performBlockAndWait([&] { manager.reset(); });
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    NSManagedObjectContext context;
    std::unique_ptr<OVEncryptionCoreManager> manager;
    OVPassword* password = nullptr;
};

TEST_F(PasswordChanges, OfTwoProcessesAtOnceLoseNoKey)
{
    constexpr int rounds = 8;
    OVPassword& password = savedPassword("word");
    const std::string identifier = password.uniqueIdentifier().value();
    OtherProcess one(openAgain(), options(), identifier);
    OtherProcess other(openAgain(), options(), identifier);
    one.context.performBlock([&] {
        for (int round = 0; round < rounds; ++round) {
            NSError error;
            EXPECT_TRUE(one.manager->rotateMasterKey(*one.password, "word", &error)) << error;
        }
    });
    std::vector<NSData> sealed;
    other.context.performBlockAndWait([&] {
        for (int round = 0; round < rounds; ++round) {
            NSError error;
            EXPECT_TRUE(other.manager->changePassword(*other.password, "word", "word", &error)) << error;
            PlainNote note(*other.password);
            note.text = "text";
            EXPECT_TRUE(other.manager->addEncryptionToObject(note, *other.password, &error)) << error;
            sealed.push_back(*note.state.encryptedData);
            sealed.push_back(NSData::fromText(*note.state.encryptionUniqueIdentifier));
        }
    });
    one.context.performBlockAndWait([] {});
    context().refreshAllObjects();
    ASSERT_TRUE(isRight(password, "word"));
    EXPECT_EQ(PasswordBlob::read(*password.verifier(), nullptr)
                  ->open(*deriveKey(*passwordInUse("word", nullptr),
                             PasswordBlob::read(*password.verifier(), nullptr)->derivation(), nullptr),
                      identifier, nullptr)
                  ->size(),
        rounds + 1U);
    for (std::size_t index = 0; index < sealed.size(); index += 2) {
        PlainNote& note = plainNote(std::nullopt);
        note.state = {true, sealed[index], std::nullopt, std::string(sealed[index + 1].text()), &password};
        EXPECT_EQ(manager->textForNote(note, nullptr), "text");
    }
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
