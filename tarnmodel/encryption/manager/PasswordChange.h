#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/encryption/keys/PasswordBlob.h"

#include <optional>

namespace tarn {

/// A new master key under a name of its own.
std::optional<MasterKey> newMasterKey(NSError* error);

/// Writes anew what a record keeps of its password, and saves it: under the store's lock, so that what another process
/// wrote since is not lost, and only after it was read back. The time that a password takes is spent before.
class PasswordChange {
public:
    PasswordChange(OVEncryptingPassword& record, const SecretBytes& password) : record_(record), password_(password) { }

    /// Whether the password is right now; an error otherwise.
    bool tryOldPassword(NSError* error);
    /// What the record keeps from now on: encrypted by another key where there is one, with a newer master key where
    /// there is one. None and an error, and the record as it was, when that cannot be saved.
    std::optional<KeyRing> run(const DerivedKey* newKey, std::optional<MasterKey> newest, NSError* error);

private:
    enum class Turn { Done, Failed, WasChangedElsewhere };
    /// One go under the lock.
    Turn write(const DerivedKey* newKey, const std::optional<MasterKey>& newest, NSError* error);
    std::optional<PasswordBlob> storedBlob(NSError* error) const;
    bool readBack(const DerivedKey& key, NSError* error) const;
    void restore();

    OVEncryptingPassword& record_;
    const SecretBytes& password_;
    std::optional<DerivedKey> oldKey_;
    std::optional<NSData> written_;
    std::optional<NSData> verifierBefore_;
    std::int16_t versionBefore_ = 0;
    bool isWritten_ = false;
    bool hadChanges_ = false; ///< that are not saved, of the record
    KeyRing ring_;
};

} // namespace tarn
