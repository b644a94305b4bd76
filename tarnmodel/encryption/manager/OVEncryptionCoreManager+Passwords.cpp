#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/manager/PasswordChange.h"
#include "tarnmodel/encryption/manager/Vault.h"
#include "tarnmodel/platform/foundation/events/Queue.h"

#include <utility>

namespace tarn {
namespace {

/// What a record keeps of its password, ready to be tried; none and an error when there is nothing to try.
std::optional<PasswordBlob> blobOf(const OVEncryptingPassword& record, NSError* error)
{
    const auto verifier = record.verifier();
    if (!verifier || record.verifierVersion() > passwordBlobVersion) {
        failEncryption(error, OVEncryptionErrorUnknownVersion);
        return std::nullopt;
    }
    return PasswordBlob::read(*verifier, error);
}

std::optional<KeyRing> tryPassword(
    const PasswordBlob& blob, const SecretBytes& password, std::string_view recordIdentifier, NSError* error)
{
    const auto key = deriveKey(password, blob.derivation(), error);
    return key ? blob.open(*key, recordIdentifier, error) : std::nullopt;
}

} // namespace

bool OVEncryptionCoreManager::setPassword(
    OVEncryptingPassword& record, std::string_view password, std::optional<std::string_view> hint, NSError* error)
{
    const std::string identifier = record.passwordIdentifier();
    if (record.verifier())
        return failEncryption(error, OVEncryptionErrorHasPassword);
    if (identifier.empty())
        return failEncryption(error, OVEncryptionErrorStore, "The password record has no identifier");
    const auto secret = passwordInUse(password, error);
    const auto derived = secret ? deriveNewKey(*secret, vault_->options.cost, error) : std::nullopt;
    auto masterKey = derived ? newMasterKey(error) : std::nullopt;
    if (!masterKey)
        return false;
    KeyRing ring{std::move(*masterKey)};
    const auto blob = PasswordBlob::write(ring, *derived, identifier, error);
    if (!blob)
        return false;
    record.setVerifier(blob);
    record.setVerifierVersion(passwordBlobVersion);
    setHint(hint.value_or(""), record);
    vault_->keys->unlock(identifier, std::move(ring));
    return true;
}

bool OVEncryptionCoreManager::unlock(const OVEncryptingPassword& record, std::string_view password, NSError* error)
{
    const auto secret = passwordInUse(password, error);
    const auto blob = secret ? blobOf(record, error) : std::nullopt;
    auto ring = blob ? tryPassword(*blob, *secret, record.passwordIdentifier(), error) : std::nullopt;
    if (!ring)
        return false;
    vault_->keys->unlock(record.passwordIdentifier(), std::move(*ring));
    return true;
}

void OVEncryptionCoreManager::unlockInBackground(
    const OVEncryptingPassword& record, std::string_view password, std::function<void(const NSError&)> completion)
{
    NSError error;
    auto secret = passwordInUse(password, &error);
    auto blob = secret ? blobOf(record, &error) : std::nullopt;
    if (!blob) {
        MainQueue::main().async([error, completion = std::move(completion)] { completion(error); });
        return;
    }
    // A task has to be copied, and a secret cannot be.
    const auto shared = std::make_shared<const SecretBytes>(std::move(*secret));
    GlobalQueue::shared().async([shared, blob = std::move(*blob), identifier = record.passwordIdentifier(),
                                    keys = std::weak_ptr(vault_->keys), completion = std::move(completion)] {
        NSError failure;
        auto ring = tryPassword(blob, *shared, identifier, &failure);
        const auto unlocked = std::make_shared<std::optional<KeyRing>>(std::move(ring));
        MainQueue::main().async([unlocked, failure, identifier, keys, completion]() mutable {
            const auto still = keys.lock();
            if (*unlocked && still)
                still->unlock(identifier, std::move(**unlocked));
            else if (*unlocked)
                failEncryption(&failure, OVEncryptionErrorLocked, "The manager has ended");
            unlocked->reset();
            completion(failure);
        });
    });
}

void OVEncryptionCoreManager::lock(const OVEncryptingPassword& record)
{
    vault_->keys->lock(record.passwordIdentifier());
}

void OVEncryptionCoreManager::lock()
{
    vault_->keys->lockAll();
}

bool OVEncryptionCoreManager::hasCachedPassword(const OVEncryptingPassword& record) const
{
    return vault_->newestKeyOf(record, nullptr).has_value();
}

bool OVEncryptionCoreManager::changePassword(
    OVEncryptingPassword& record, std::string_view oldPassword, std::string_view newPassword, NSError* error)
{
    const auto oldSecret = passwordInUse(oldPassword, error);
    const auto newSecret = oldSecret ? passwordInUse(newPassword, error) : std::nullopt;
    if (!newSecret)
        return false;
    PasswordChange change(record, *oldSecret);
    if (!change.tryOldPassword(error))
        return false;
    auto derived = deriveNewKey(*newSecret, vault_->options.cost, error);
    auto ring = derived ? change.run(&*derived, std::nullopt, error) : std::nullopt;
    if (ring)
        vault_->keys->unlock(record.passwordIdentifier(), std::move(*ring));
    return ring.has_value();
}

bool OVEncryptionCoreManager::rotateMasterKey(OVEncryptingPassword& record, std::string_view password, NSError* error)
{
    const auto secret = passwordInUse(password, error);
    if (!secret)
        return false;
    PasswordChange change(record, *secret);
    auto masterKey = change.tryOldPassword(error) ? newMasterKey(error) : std::nullopt;
    auto ring = masterKey ? change.run(nullptr, std::move(masterKey), error) : std::nullopt;
    if (ring)
        vault_->keys->unlock(record.passwordIdentifier(), std::move(*ring));
    return ring.has_value();
}

std::string OVEncryptionCoreManager::hint(const OVEncryptingPassword& record)
{
    const auto hint = record.passwordHint();
    return std::string(hint ? hint->text() : std::string_view());
}

void OVEncryptionCoreManager::setHint(std::string_view hint, OVEncryptingPassword& record)
{
    record.setPasswordHint(hint.empty() ? std::nullopt : std::optional(NSData::fromText(hint)));
}

} // namespace tarn
