#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/manager/Vault.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"

namespace tarn {

bool OVEncryptionCoreManager::hasTellingName(const OVEncryptableNoteFile& file)
{
    const auto name = file.storedFilename();
    const auto sealed = file.isEncrypted() ? file.sealedFields() : std::nullopt;
    return name && !isOpaqueFileName(*name) && sealed
        && SealedRecord::masterKeyOf(*sealed, RecordKind::Attachment, nullptr);
}

std::optional<std::filesystem::path> OVEncryptionCoreManager::fileURLForNoteFile(
    const OVEncryptableNoteFile& file, NSError* error)
{
    const Vault::Record record = vault_->open(file, error);
    const auto fields = record ? record->fields(error) : std::nullopt;
    if (!fields)
        return std::nullopt;
    const auto sealed = file.storedFileURL();
    const auto length = sealed ? lengthOfClearItem(*sealed, error) : std::nullopt;
    if (!sealed)
        failEncryption(error, OVEncryptionErrorFile);
    const auto password = vault_->keys->passwordOf(record->masterKey());
    if (!length || !password)
        return std::nullopt;
    const DecryptedCopies::Wish wish{*sealed, DecryptedCopies::nameForFile(fields->filename), *password, *length};
    return vault_->copies.copy(
        wish,
        [&](const std::filesystem::path& place, NSError* failure) {
            return unsealItem(*sealed, place, record->objectKey(), record->identifier(), failure);
        },
        [&] { return vault_->keys->key(record->masterKey()).has_value(); }, error);
}

bool OVEncryptionCoreManager::setContents(const NSFileWrapper& contents, OVEncryptableNoteFile& file, NSError* error)
{
    const Vault::Record record = vault_->open(file, error);
    if (!record)
        return false;
    const auto seal = [&](const std::filesystem::path& item, const std::filesystem::path& place, NSError* failure) {
        return sealItem(item, place, record->objectKey(), record->identifier(), failure);
    };
    const auto former = file.storedFileURL();
    const bool isExchanged = file.exchangeStoredFile(
        opaqueFileName(),
        [&](const std::filesystem::path& place, NSError* failure) {
            if (const NSData* const bytes = contents.regularFileContents())
                return sealBytes(bytes->span(), place, record->objectKey(), record->identifier(), failure);
            if (const std::filesystem::path* const url = contents.url())
                return seal(*url, place, failure);
            // A folder that is put together in memory has no form that could be sealed as it is.
            return vault_->copies.withScratchPlace(
                0,
                [&](const std::filesystem::path& scratch, NSError* reason) {
                    return contents.writeToURL(scratch, reason) && seal(scratch, place, reason);
                },
                failure);
        },
        error);
    if (isExchanged && former)
        vault_->copies.removeOfSealedFile(*former);
    return isExchanged;
}

} // namespace tarn
