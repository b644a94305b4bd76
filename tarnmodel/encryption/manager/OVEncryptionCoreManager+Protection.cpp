#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/manager/Protection.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"

#include <algorithm>
#include <iterator>

namespace tarn {

namespace {

std::string textOf(const MasterKeyIdentifier& name)
{
    return {reinterpret_cast<const char*>(name.data()), name.size()};
}

} // namespace

std::vector<std::string> OVEncryptionCoreManager::namesOfKeys(const NSData& verifier)
{
    std::vector<std::string> names;
    if (const auto blob = PasswordBlob::read(verifier, nullptr))
        std::ranges::transform(blob->keys(), std::back_inserter(names), textOf);
    return names;
}

std::optional<std::string> OVEncryptionCoreManager::nameOfKey(const NSData& sealedFields)
{
    for (const RecordKind kind : {RecordKind::Note, RecordKind::Attachment})
        if (const auto name = SealedRecord::masterKeyOf(sealedFields, kind, nullptr))
            return textOf(*name);
    return std::nullopt;
}

bool OVEncryptionCoreManager::addEncryptionToObject(
    OVEncryptableObject& object, OVEncryptingPassword& record, NSError* error)
{
    return Protection(*vault_).add(object, record, error);
}

bool OVEncryptionCoreManager::addEncryptionToNewFile(
    OVEncryptableNoteFile& file, const std::filesystem::path& contents, OVEncryptingPassword& record, NSError* error)
{
    return Protection(*vault_).addNewFile(file, contents, record, error);
}

bool OVEncryptionCoreManager::removeEncryptionFromObject(OVEncryptableObject& object, NSError* error)
{
    return Protection(*vault_).remove(object, error);
}

bool OVEncryptionCoreManager::isReencryptionNeeded(const OVEncryptableObject& object) const
{
    const OVEncryptingPassword* const password = object.isEncrypted() ? object.encryptionState().password : nullptr;
    const auto newest = password ? vault_->newestKeyOf(*password, nullptr) : std::nullopt;
    const auto record = newest ? vault_->open(object, nullptr) : nullptr;
    return record && record->masterKey() != newest->identifier;
}

OVObjectsByKey OVEncryptionCoreManager::objectsByKey(const OVEncryptingPassword& record) const
{
    OVObjectsByKey objects;
    const auto newest = vault_->newestKeyOf(record, nullptr);
    if (!newest)
        return objects;
    for (OVEncryptableObject* object : record.encryptableObjects()) {
        const Vault::Record opened = object->isEncrypted() ? vault_->open(*object, nullptr) : nullptr;
        if (!opened)
            continue;
        const bool isNewest = opened->masterKey() == newest->identifier;
        (isNewest ? objects.underNewestKey : objects.underFormerKeys).push_back(object);
    }
    return objects;
}

bool OVEncryptionCoreManager::reencrypt(OVEncryptableObject& object, NSError* error)
{
    const Vault::Record record = vault_->open(object, error);
    const auto fields = record ? record->fields(error) : std::nullopt;
    const OVEncryptingPassword* const password = object.encryptionState().password;
    if (!fields)
        return false;
    if (!password)
        return failEncryption(error, OVEncryptionErrorLocked);
    const auto newest = vault_->newestKeyOf(*password, error);
    auto sealed
        = newest ? SealedRecord::seal(*fields, record->kind(), record->identifier(), *newest, error) : std::nullopt;
    if (!sealed)
        return false;
    const auto changed = std::make_shared<const SealedRecord>(std::move(*sealed));
    if (auto* const file = dynamic_cast<OVEncryptableNoteFile*>(&object)) {
        const auto former = file->storedFileURL();
        if (!former || !file->hasFileHere())
            return failEncryption(error, OVEncryptionErrorFile);
        const auto reseal = [&](const std::filesystem::path& place, NSError* failure) {
            return resealItem(*former, place, record->objectKey(), changed->objectKey(), record->identifier(), failure);
        };
        if (!file->exchangeStoredFile(opaqueFileName(), reseal, error))
            return false;
        vault_->copies.removeOfSealedFile(*former);
    }
    object.setSealedFields(changed->data());
    vault_->remember(changed);
    return true;
}

} // namespace tarn
