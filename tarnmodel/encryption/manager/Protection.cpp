#include "tarnmodel/encryption/manager/Protection.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <algorithm>
#include <iterator>
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

OVEncryptionState Protection::protectedState(const Vault::Record& record) const
{
    return {true, record->data(), now(), record->identifier(), password_};
}

Protection::Vault::Record Protection::sealed(const ClearFields& fields, RecordKind kind, NSError* error) const
{
    auto record = SealedRecord::seal(fields, kind, newUUIDString(), *masterKey_, error);
    return record ? std::make_shared<const SealedRecord>(std::move(*record)) : nullptr;
}

bool Protection::isProtectedBy(OVEncryptableObject& object, const OVEncryptingPassword& password, NSError* error) const
{
    const OVEncryptingPassword* const own = object.encryptionState().password;
    if (!own || own->passwordIdentifier() != password.passwordIdentifier())
        return failEncryption(error, OVEncryptionErrorHasPassword, "Another password protects it");
    return vault_.open(object, error) != nullptr;
}

bool Protection::takeUnprotected(const std::vector<OVEncryptableNoteFile*>& files, NSError* error)
{
    for (OVEncryptableNoteFile* const file : files) {
        if (file->isEncrypted()) {
            if (!isProtectedBy(*file, *password_, error))
                return false;
            continue;
        }
        if (!OVEncryptionCoreManager::isFileEncryptionEnabled())
            return failEncryption(error, OVEncryptionErrorFile, "Attachments cannot be protected here");
        if (!hasBytes(*file, error))
            return false;
        steps_.push_back({file, file->encryptionState()});
    }
    return true;
}

bool Protection::takeProtected(const std::vector<OVEncryptableNoteFile*>& files, NSError* error)
{
    for (OVEncryptableNoteFile* const file : files) {
        if (!file->isEncrypted())
            continue;
        if (!vault_.fields(*file, error) || !hasBytes(*file, error))
            return false;
        steps_.push_back({file, file->encryptionState()});
    }
    return true;
}

bool Protection::add(OVEncryptableObject& object, OVEncryptingPassword& password, NSError* error)
{
    masterKey_ = vault_.newestKeyOf(password, error);
    password_ = &password;
    auto* const note = dynamic_cast<OVEncryptableNote*>(&object);
    if (!masterKey_ || !takeUnprotected(filesOf(object), error)
        || (note && note->isEncrypted() && !isProtectedBy(*note, password, error)))
        return false;
    const auto isPrepared = [&](const Step& step) { return step.file->prepareToAddEncryption(error); };
    if (!std::ranges::all_of(steps_, isPrepared))
        return false;
    if (!note || note->isEncrypted())
        return inOrder(&Protection::protectFile, &Protection::unprotectFile, error);
    return note->prepareToAddEncryption(error) && protectNote(*note, error);
}

/// The attachments, and then the note itself, which cannot fail any more once its field is sealed.
bool Protection::protectNote(OVEncryptableNote& note, NSError* error)
{
    ClearFields fields;
    fields.text = note.storedText();
    const Vault::Record record = sealed(fields, RecordKind::Note, error);
    if (!record || !inOrder(&Protection::protectFile, &Protection::unprotectFile, error))
        return false;
    note.setEncryptionState(protectedState(record));
    note.updatePrimitiveText(std::nullopt);
    note.didAddEncryption();
    vault_.remember(record);
    return true;
}

bool Protection::remove(OVEncryptableObject& object, NSError* error)
{
    auto* const note = dynamic_cast<OVEncryptableNote*>(&object);
    const auto fields = note && note->isEncrypted() ? vault_.fields(*note, error) : std::nullopt;
    if (note && note->isEncrypted() && !fields)
        return false;
    if (!takeProtected(filesOf(object), error) || !inOrder(&Protection::unprotectFile, &Protection::protectFile, error))
        return false;
    if (fields) {
        note->setEncryptionState({});
        note->updatePrimitiveText(fields->text);
        note->didRemoveEncryption();
    }
    return true;
}

/// Every step, and back again over those that were taken when one fails.
bool Protection::inOrder(Go go, Go back, NSError* error)
{
    const auto failed = std::ranges::find_if(steps_, [&](const Step& step) { return !(this->*go)(step, error); });
    if (failed == steps_.end())
        return true;
    for (auto step = std::make_reverse_iterator(failed); step != steps_.rend(); ++step) {
        NSError failure;
        if (!(this->*back)(*step, &failure)) // whole, and readable, but not as it was
            logMessage("The protection of an attachment could not be taken back: " + failure.localizedDescription());
    }
    return false;
}

/// The fields of an attachment that is to be protected: as they were when it was, or sealed anew.
Protection::Vault::Record Protection::recordOfFile(const Step& step, NSError* error) const
{
    if (step.before.encrypted)
        return vault_.open(
            step.before.encryptedData, step.before.encryptionUniqueIdentifier, RecordKind::Attachment, error);
    return sealed(storedFieldsOf(*step.file), RecordKind::Attachment, error);
}

bool Protection::addNewFile(
    OVEncryptableNoteFile& file, const fs::path& contents, OVEncryptingPassword& password, NSError* error)
{
    masterKey_ = vault_.newestKeyOf(password, error);
    password_ = &password;
    return masterKey_ && file.prepareToAddEncryption(error)
        && protectFileWith(contents, Step{&file, file.encryptionState()}, error);
}

bool Protection::protectFile(const Step& step, NSError* error)
{
    return protectFileWith(step.file->storedFileURL().value_or(""), step, error);
}

bool Protection::protectFileWith(const fs::path& contents, const Step& step, NSError* error)
{
    OVEncryptableNoteFile& file = *step.file;
    const Vault::Record record = recordOfFile(step, error);
    const auto seal = [&](const fs::path& place, NSError* failure) {
        return sealItem(contents, place, record->objectKey(), record->identifier(), failure);
    };
    if (!record || !file.exchangeStoredFile(opaqueFileName(), seal, error))
        return false;
    file.setEncryptionState(step.before.encrypted ? step.before : protectedState(record));
    storeFieldsBesideName({}, file);
    file.didAddEncryption();
    vault_.remember(record);
    return true;
}

bool Protection::unprotectFile(const Step& step, NSError* error)
{
    OVEncryptableNoteFile& file = *step.file;
    const Vault::Record record = vault_.open(file, error);
    const auto fields = record ? record->fields(error) : std::nullopt;
    if (!fields)
        return false;
    const auto sealed = file.storedFileURL();
    const auto unseal = [&](const fs::path& place, NSError* failure) {
        return unsealItem(*sealed, place, record->objectKey(), record->identifier(), failure);
    };
    if (!file.exchangeStoredFile(DecryptedCopies::nameForFile(fields->filename), unseal, error))
        return false;
    vault_.copies.removeOfSealedFile(*sealed);
    file.setEncryptionState(step.before.encrypted ? OVEncryptionState() : step.before);
    storeFieldsBesideName(*fields, file);
    file.didRemoveEncryption();
    return true;
}

} // namespace tarn
