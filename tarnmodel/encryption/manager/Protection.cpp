#include "tarnmodel/encryption/manager/Protection.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <algorithm>
#include <ranges>
#include <system_error>

namespace tarn {
namespace {

namespace fs = std::filesystem;

ClearFields storedFieldsOf(const OVEncryptableNoteFile& file)
{
    ClearFields fields;
    fields.filename = file.storedFilename();
    fields.normalizedFileExtension = file.storedNormalizedFileExtension();
    fields.fileSize = file.storedFileSize();
    fields.searchText = file.storedSearchText();
    return fields;
}

/// The file is about to get another name, which its record stores by itself.
void storeFieldsBesideName(const ClearFields& fields, OVEncryptableNoteFile& file)
{
    file.updatePrimitiveNormalizedFileExtension(fields.normalizedFileExtension);
    file.updatePrimitiveFileSize(fields.fileSize);
    file.updatePrimitiveSearchText(fields.searchText);
}

bool hasBytes(const OVEncryptableNoteFile& file, NSError* error)
{
    const auto url = file.storedFileURL();
    std::error_code ignored;
    if (file.hasFileHere() && url && fs::exists(*url, ignored))
        return true;
    return failEncryption(
        error, OVEncryptionErrorFile, "\"" + file.storedFilename().value_or("") + "\" is not on this device");
}

std::vector<OVEncryptableNoteFile*> filesOf(OVEncryptableObject& object)
{
    if (auto* const note = dynamic_cast<OVEncryptableNote*>(&object))
        return note->encryptableFiles();
    return {dynamic_cast<OVEncryptableNoteFile*>(&object)};
}

} // namespace

OVEncryptionState Protection::protectedState(const Vault::Record& record, OVEncryptingPassword& password)
{
    return {true, record->data(), now(), record->identifier(), &password};
}

bool Protection::isProtectedBy(OVEncryptableObject& object, const OVEncryptingPassword& password, NSError* error) const
{
    const OVEncryptingPassword* const own = object.encryptionState().password;
    if (!own || own->passwordIdentifier() != password.passwordIdentifier())
        return failEncryption(error, OVEncryptionErrorHasPassword, "Another password protects it");
    return vault_.open(object, error) != nullptr;
}

bool Protection::takeUnprotected(
    const std::vector<OVEncryptableNoteFile*>& files, const OVEncryptingPassword& password, NSError* error)
{
    for (OVEncryptableNoteFile* const file : files) {
        if (file->isEncrypted()) {
            if (!isProtectedBy(*file, password, error))
                return false;
            continue;
        }
        if (!OVEncryptionCoreManager::isFileEncryptionEnabled())
            return failEncryption(error, OVEncryptionErrorFile, "Attachments cannot be protected here");
        if (!hasBytes(*file, error))
            return false;
        Step step;
        step.file = file;
        step.before = file->encryptionState();
        step.fields = storedFieldsOf(*file);
        auto record = SealedRecord::seal(step.fields, RecordKind::Attachment, newUUIDString(), *masterKey_, error);
        if (!record)
            return false;
        step.record = std::make_shared<const SealedRecord>(std::move(*record));
        steps_.push_back(std::move(step));
    }
    return true;
}

bool Protection::add(OVEncryptableObject& object, OVEncryptingPassword& password, NSError* error)
{
    masterKey_ = vault_.newestKeyOf(password, error);
    password_ = &password;
    if (!masterKey_ || !takeUnprotected(filesOf(object), password, error))
        return false;
    auto* const note = dynamic_cast<OVEncryptableNote*>(&object);
    Vault::Record record;
    if (note && note->isEncrypted()) {
        if (!isProtectedBy(*note, password, error))
            return false;
    } else if (note) {
        ClearFields fields;
        fields.text = note->storedText();
        auto sealed = SealedRecord::seal(fields, RecordKind::Note, newUUIDString(), *masterKey_, error);
        if (!sealed)
            return false;
        record = std::make_shared<const SealedRecord>(std::move(*sealed));
    }
    const auto prepares = [&](OVEncryptableObject& one) { return one.prepareToAddEncryption(error); };
    if (!std::ranges::all_of(steps_, [&](const Step& step) { return prepares(*step.file); })
        || (record && !prepares(*note)) || !inOrder(&Protection::protectFile, &Protection::unprotectFile, error))
        return false;
    return !record || protectNote(*note, record);
}

bool Protection::protectNote(OVEncryptableNote& note, const Vault::Record& record)
{
    note.setEncryptionState(protectedState(record, *password_));
    note.updatePrimitiveText(std::nullopt);
    note.didAddEncryption();
    vault_.remember(record);
    return true;
}

bool Protection::takeProtected(const std::vector<OVEncryptableNoteFile*>& files, NSError* error)
{
    for (OVEncryptableNoteFile* const file : files) {
        if (!file->isEncrypted())
            continue;
        Step step;
        step.file = file;
        step.before = file->encryptionState();
        step.record = vault_.open(*file, error);
        auto fields = step.record ? step.record->fields(error) : std::nullopt;
        if (!fields || !hasBytes(*file, error))
            return false;
        step.fields = std::move(*fields);
        steps_.push_back(std::move(step));
    }
    return true;
}

bool Protection::remove(OVEncryptableObject& object, NSError* error)
{
    auto* const note = dynamic_cast<OVEncryptableNote*>(&object);
    auto fields = note && note->isEncrypted() ? vault_.fields(*note, error) : std::nullopt;
    if (note && note->isEncrypted() && !fields)
        return false;
    if (!takeProtected(filesOf(object), error)
        || !inOrder(&Protection::unprotectFile, &Protection::protectAgain, error))
        return false;
    if (fields) {
        note->setEncryptionState({});
        note->updatePrimitiveText(fields->text);
        note->didRemoveEncryption();
    }
    return true;
}

/// Every step, and back again over those that were taken when one fails.
bool Protection::inOrder(
    bool (Protection::*go)(Step&, NSError*), bool (Protection::*back)(Step&, NSError*), NSError* error)
{
    const auto failed = std::ranges::find_if(steps_, [&](Step& step) { return !(this->*go)(step, error); });
    if (failed == steps_.end())
        return true;
    for (Step& step : std::ranges::subrange(steps_.begin(), failed) | std::views::reverse) {
        NSError failure;
        if (!(this->*back)(step, &failure)) // whole, and readable, but not as it was
            logMessage("The protection of an attachment could not be taken back: " + failure.localizedDescription());
    }
    return false;
}

bool Protection::protectFile(Step& step, NSError* error)
{
    OVEncryptableNoteFile& file = *step.file;
    const auto clear = file.storedFileURL();
    const bool isExchanged = file.exchangeStoredFile(
        opaqueFileName(),
        [&](const fs::path& place, NSError* failure) {
            return sealItem(*clear, place, step.record->objectKey(), step.record->identifier(), failure);
        },
        error);
    if (!isExchanged)
        return false;
    file.setEncryptionState(protectedState(step.record, *password_));
    storeFieldsBesideName({}, file);
    file.didAddEncryption();
    vault_.remember(step.record);
    return true;
}

bool Protection::unprotectFile(Step& step, NSError* error)
{
    OVEncryptableNoteFile& file = *step.file;
    const auto sealed = file.storedFileURL();
    const bool isExchanged = file.exchangeStoredFile(
        DecryptedCopies::nameForFile(step.fields.filename),
        [&](const fs::path& place, NSError* failure) {
            return unsealItem(*sealed, place, step.record->objectKey(), step.record->identifier(), failure);
        },
        error);
    if (!isExchanged)
        return false;
    vault_.copies.removeOfSealedFile(*sealed);
    file.setEncryptionState({});
    storeFieldsBesideName(step.fields, file);
    file.didRemoveEncryption();
    return true;
}

bool Protection::protectAgain(Step& step, NSError* error)
{
    password_ = step.before.password;
    if (!protectFile(step, error))
        return false;
    step.file->setEncryptionState(step.before);
    return true;
}

} // namespace tarn
