#include "tarnmodel/encryption/manager/PasswordChange.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

#include <algorithm>

namespace tarn {
namespace {

/// So often another process may change the password before our turn comes.
constexpr int kMostTurns = 5;

/// What the store has, where the record holds something else that is not saved yet.
std::optional<NSData> savedVerifier(const OVEncryptingPassword& record)
{
    const NSManagedObject& object = record.passwordRecord();
    const auto verifier = record.verifier();
    for (const auto& [key, value] : object.changedValues()) {
        if (value.kind() != Value::Kind::Data || !verifier || value.asData() != *verifier)
            continue;
        for (const auto& [name, saved] : object.committedValuesForKeys({key}))
            if (saved.kind() == Value::Kind::Data)
                return saved.asData();
    }
    return verifier;
}

bool ringsAreEqual(const KeyRing& one, const KeyRing& other)
{
    return std::ranges::equal(one, other, [](const MasterKey& left, const MasterKey& right) {
        return left.identifier == right.identifier && std::ranges::equal(left.key->span(), right.key->span());
    });
}

} // namespace

std::optional<MasterKey> newMasterKey(NSError* error)
{
    auto key = newKey(error);
    if (!key)
        return std::nullopt;
    return MasterKey{randomArray<MasterKeyIdentifier>(), std::make_shared<const SecretBytes>(std::move(*key))};
}

std::optional<PasswordBlob> PasswordChange::storedBlob(NSError* error) const
{
    const auto verifier = savedVerifier(record_);
    if (!verifier || record_.verifierVersion() > passwordBlobVersion) {
        failEncryption(error, OVEncryptionErrorUnknownVersion);
        return std::nullopt;
    }
    return PasswordBlob::read(*verifier, error);
}

bool PasswordChange::tryOldPassword(NSError* error)
{
    const auto blob = storedBlob(error);
    auto key = blob ? deriveKey(password_, blob->derivation(), error) : std::nullopt;
    if (!key || !blob->open(*key, record_.passwordIdentifier(), error))
        return false;
    oldKey_ = DerivedKey{blob->derivation(), std::move(*key)};
    return true;
}

std::optional<KeyRing> PasswordChange::run(const DerivedKey* newKey, std::optional<MasterKey> newest, NSError* error)
{
    NSManagedObject& object = record_.passwordRecord();
    NSManagedObjectContext& context = object.managedObjectContext();
    if (context.parentContext()) {
        failEncryption(error, OVEncryptionErrorStore, "A password is changed in a context on a store");
        return std::nullopt;
    }
    for (int turn = 0; turn < kMostTurns; ++turn) {
        auto result = Turn::Failed;
        NSError failure;
        NSError saving;
        const bool isSaved = context.performExclusive(
            [&] {
                context.refreshObject(object, true);
                result = write(newKey, newest, &failure);
            },
            &saving);
        if (result == Turn::Done && isSaved && record_.verifier() == written_)
            return std::move(ring_);
        if (result == Turn::Done && isSaved) { // a merge has put the value of another writer over ours
            isWritten_ = false;
            result = Turn::WasChangedElsewhere;
        }
        restore();
        if (result == Turn::WasChangedElsewhere && isSaved) {
            if (!tryOldPassword(error))
                return std::nullopt;
            continue;
        }
        if (result == Turn::Failed && isSaved)
            assignError(error, failure);
        else
            failEncryption(error, OVEncryptionErrorStore, saving.localizedDescription());
        return std::nullopt;
    }
    failEncryption(error, OVEncryptionErrorStore);
    return std::nullopt;
}

PasswordChange::Turn PasswordChange::write(
    const DerivedKey* newKey, const std::optional<MasterKey>& newest, NSError* error)
{
    const auto blob = storedBlob(error);
    if (!blob)
        return Turn::Failed;
    if (blob->derivation() != oldKey_->derivation)
        return Turn::WasChangedElsewhere;
    auto ring = blob->open(oldKey_->key, record_.passwordIdentifier(), error);
    if (!ring)
        return Turn::Failed;
    if (newest)
        ring->insert(ring->begin(), *newest);
    if (ring->size() > mostFormerKeys + 1) {
        failEncryption(error, OVEncryptionErrorTooMuchWork, "The password has as many former keys as it can keep");
        return Turn::Failed;
    }
    ring_ = std::move(*ring);
    const DerivedKey& key = newKey ? *newKey : *oldKey_;
    written_ = PasswordBlob::write(ring_, key, record_.passwordIdentifier(), error);
    if (!written_)
        return Turn::Failed;
    verifierBefore_ = record_.verifier();
    versionBefore_ = record_.verifierVersion();
    hadChanges_ = record_.passwordRecord().hasChanges();
    isWritten_ = true;
    record_.setVerifier(written_);
    record_.setVerifierVersion(passwordBlobVersion);
    if (readBack(key, error))
        return Turn::Done;
    restore(); // before the save
    return Turn::Failed;
}

bool PasswordChange::readBack(const DerivedKey& key, NSError* error) const
{
    const auto verifier = record_.verifier();
    const auto blob = verifier ? PasswordBlob::read(*verifier, error) : std::nullopt;
    const auto ring = blob ? blob->open(key.key, record_.passwordIdentifier(), error) : std::nullopt;
    return ring && (ringsAreEqual(*ring, ring_) || failEncryption(error, OVEncryptionErrorDamaged));
}

void PasswordChange::restore()
{
    if (!isWritten_)
        return;
    isWritten_ = false;
    NSManagedObject& object = record_.passwordRecord();
    // A value that is set back counts as a change of ours, which the next save would put over what others wrote.
    if (!hadChanges_) {
        object.managedObjectContext().refreshObject(object, false);
        return;
    }
    record_.setVerifier(verifierBefore_);
    record_.setVerifierVersion(versionBefore_);
}

} // namespace tarn
