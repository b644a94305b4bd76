#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/manager/DecryptedCopies.h"
#include "tarnmodel/encryption/manager/IdleWatch.h"
#include "tarnmodel/encryption/manager/UnlockedKeys.h"
#include "tarnmodel/encryption/manager/VerifiedRecords.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace tarn {

/// What a manager has: the keys that are unlocked, what was opened with them, and the way from a record to its fields.
class OVEncryptionCoreManager::Vault {
public:
    Vault(const OVEncryptionCoreManager& manager, const OVEncryptionOptions& options);
    ~Vault();
    Vault(const Vault&) = delete;
    Vault& operator=(const Vault&) = delete;

    const OVEncryptionOptions options;
    const std::shared_ptr<UnlockedKeys> keys;
    DecryptedCopies copies;

    /// The master key of an unlocked password that its record names as the newest; none and "locked".
    std::optional<MasterKey> newestKeyOf(const OVEncryptingPassword& record, NSError* error) const;

    using Record = VerifiedRecords::Record;
    /// The fields of a protected record, opened; null and why it counts as locked.
    Record open(const OVEncryptableObject& object, NSError* error) const;
    /// The same of what a record holds, or held.
    Record open(std::optional<NSData> data, const std::optional<std::string>& identifier, RecordKind kind,
        NSError* error) const;
    /// The same, decrypted.
    std::optional<ClearFields> fields(const OVEncryptableObject& object, NSError* error) const;
    /// Stores other fields; a record that is locked, or that cannot be made out, is logged and stays as it is.
    void change(OVEncryptableObject& object, const std::function<void(ClearFields&)>& change);
    /// Keeps what was just made: it is asked for next.
    void remember(Record record) const { verified_.add(std::move(record)); }

private:
    const OVEncryptionCoreManager* const manager_; ///< who posts
    mutable VerifiedRecords verified_;
    IdleWatch watch_; ///< last: it ends before what it uses
};

/// Whether it is an attachment in the making, as from a dictionary: its flag is set before its encrypted fields, and in
/// between there is nothing to unlock. What is set meanwhile need not be stored: it comes again, encrypted.
bool isYetToBeFilled(const OVEncryptableObject& object);
/// What a record is to the formats of the kit.
RecordKind kindOf(const OVEncryptableObject& object);
/// A name for a sealed file, which tells nothing.
std::string opaqueFileName();
bool isOpaqueFileName(std::string_view name);

} // namespace tarn
