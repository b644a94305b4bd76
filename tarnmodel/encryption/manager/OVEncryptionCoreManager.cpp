#include "tarnmodel/encryption/OVEncryptionCoreManager.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/manager/EncryptionRegistry.h"
#include "tarnmodel/encryption/manager/Vault.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

namespace tarn {

OVEncryptionCoreManager::OVEncryptionCoreManager(NSManagedObjectContext& context, const OVEncryptionOptions& options)
    : vault_(std::make_unique<Vault>(*this, options))
{
    removeAbandonedDecryptedFiles();
    if (options.scratchDirectory)
        DecryptedCopies::removeAbandonedIn(options.scratchDirectory());
    setFileEncryptionEnabled(true);
    setEncryptionCoreManager(this, context);
}

OVEncryptionCoreManager::~OVEncryptionCoreManager()
{
    endEncryptionService(*this); // before there is nothing behind it any more
}

bool OVEncryptionCoreManager::isDecryptedFile(const std::filesystem::path& file)
{
    return DecryptedCopies::hold(file);
}

bool OVEncryptionCoreManager::performWithScratchFolder(
    std::uint64_t length, const std::function<bool(const std::filesystem::path&, NSError*)>& use, NSError* error)
{
    DecryptedCopies copies({});
    return copies.withScratchPlace(
        length,
        [&](const std::filesystem::path& place, NSError* failure) {
            return NSFileManager::createDirectoryAtURL(place, failure) && use(place, failure);
        },
        error);
}

void OVEncryptionCoreManager::removeAbandonedDecryptedFiles()
{
    if (const auto folder = Environment::current().runtimeDirectory())
        DecryptedCopies::removeAbandonedIn(*folder);
    DecryptedCopies::removeAbandonedIn(DecryptedCopies::defaultScratchFolder());
}

bool OVEncryptionCoreManager::areKeysLockedInMemory() const noexcept
{
    return KeyArena::shared()->isLocked();
}

bool OVEncryptionCoreManager::isObjectLocked(const OVEncryptableObject& object) const
{
    return object.isEncrypted() && !vault_->open(object, nullptr) && !isYetToBeFilled(object);
}

NSError OVEncryptionCoreManager::reasonForLock(const OVEncryptableObject& object) const
{
    NSError reason;
    if (!object.isEncrypted() || vault_->open(object, &reason))
        return NSError();
    const OVEncryptingPassword* const password = object.encryptionState().password;
    if (reason.code() == OVEncryptionErrorLocked && password && hasCachedPassword(*password))
        failEncryption(&reason, OVEncryptionErrorLocked, "The unlocked password does not have its key; unlock it anew");
    return reason;
}

std::shared_ptr<void> OVEncryptionCoreManager::holdUnlocked()
{
    return vault_->keys->hold();
}

std::optional<std::string> OVEncryptionCoreManager::textForNote(const OVEncryptableNote& note, NSError* error)
{
    auto fields = vault_->fields(note, error);
    return fields ? std::move(fields->text) : std::nullopt;
}

void OVEncryptionCoreManager::setText(std::optional<std::string_view> text, OVEncryptableNote& note)
{
    vault_->change(note, [&](ClearFields& fields) { fields.text = text; });
}

std::optional<std::string> OVEncryptionCoreManager::filenameForNoteFile(
    const OVEncryptableNoteFile& file, NSError* error)
{
    auto fields = vault_->fields(file, error);
    return fields ? std::move(fields->filename) : std::nullopt;
}

void OVEncryptionCoreManager::setFilename(std::optional<std::string_view> filename, OVEncryptableNoteFile& file)
{
    vault_->change(file, [&](ClearFields& fields) { fields.filename = filename; });
}

std::optional<std::string> OVEncryptionCoreManager::normalizedFileExtensionForNoteFile(
    const OVEncryptableNoteFile& file, NSError* error)
{
    auto fields = vault_->fields(file, error);
    return fields ? std::move(fields->normalizedFileExtension) : std::nullopt;
}

void OVEncryptionCoreManager::setNormalizedFileExtension(
    std::optional<std::string_view> extension, OVEncryptableNoteFile& file)
{
    vault_->change(file, [&](ClearFields& fields) { fields.normalizedFileExtension = extension; });
}

std::optional<std::int64_t> OVEncryptionCoreManager::fileSizeForNoteFile(
    const OVEncryptableNoteFile& file, NSError* error)
{
    const auto fields = vault_->fields(file, error);
    return fields ? fields->fileSize : std::nullopt;
}

void OVEncryptionCoreManager::setFileSize(std::optional<std::int64_t> bytes, OVEncryptableNoteFile& file)
{
    vault_->change(file, [&](ClearFields& fields) { fields.fileSize = bytes; });
}

std::optional<std::string> OVEncryptionCoreManager::searchTextForNoteFile(
    const OVEncryptableNoteFile& file, NSError* error)
{
    auto fields = vault_->fields(file, error);
    return fields ? std::move(fields->searchText) : std::nullopt;
}

void OVEncryptionCoreManager::setSearchText(std::optional<std::string_view> text, OVEncryptableNoteFile& file)
{
    vault_->change(file, [&](ClearFields& fields) { fields.searchText = text; });
}

} // namespace tarn
