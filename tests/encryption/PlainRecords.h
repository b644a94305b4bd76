#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// What a note and an attachment have in common, as plain members: to be looked at, and to be damaged.
template <typename Protocol> class PlainObject : public Protocol {
public:
    explicit PlainObject(NSManagedObject& record) : record_(&record) { }

    OVEncryptionState state;
    int prepared = 0;    ///< calls of `prepareToAddEncryption`
    int protections = 0; ///< calls of `didAddEncryption` and, taken away, of `didRemoveEncryption`
    bool refusesToPrepare = false;
    mutable std::atomic<int> looks = 0; ///< calls of `sealedFields`

    NSManagedObject& encryptableRecord() noexcept override { return *record_; }
    const NSManagedObject& encryptableRecord() const noexcept override { return *record_; }
    bool hasEncryption() const override { return state.encrypted; }
    bool hasEncryptionAndIsLocked() const override
    {
        const auto* const manager = encryptionCoreManager();
        return manager ? manager->isObjectLocked(*this) : state.encrypted;
    }
    OVEncryptionCoreManagerProtocol* encryptionCoreManager() const override
    {
        return OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(record_->managedObjectContext());
    }
    OVEncryptionState encryptionState() const override { return state; }
    void setEncryptionState(const OVEncryptionState& other) override { state = other; }
    bool isEncrypted() const override { return state.encrypted; }
    std::optional<NSData> sealedFields() const override
    {
        ++looks;
        return state.encryptedData;
    }
    void setSealedFields(const NSData& sealed) override { state.encryptedData = sealed; }
    std::optional<std::string> encryptionIdentifier() const override { return state.encryptionUniqueIdentifier; }
    bool prepareToAddEncryption(NSError* error) override
    {
        ++prepared;
        if (refusesToPrepare)
            assignError(error, NSError("Test", 1, "not prepared"));
        return !refusesToPrepare;
    }
    void didAddEncryption() override { ++protections; }
    void didRemoveEncryption() override { --protections; }

private:
    NSManagedObject* record_;
};

/// An attachment whose file lies in a folder of its own.
class PlainNoteFile : public PlainObject<OVEncryptableNoteFile> {
public:
    PlainNoteFile(NSManagedObject& record, std::filesystem::path ownFolder)
        : PlainObject(record), folder(std::move(ownFolder))
    {
        NSFileManager::createDirectoryAtURL(folder);
    }

    std::filesystem::path folder;
    std::optional<std::string> filename;
    std::optional<std::string> normalizedFileExtension;
    std::optional<std::int64_t> fileSize;
    std::optional<std::string> searchText;
    bool isDownloaded = true;
    int exchangesThatSucceed = 1'000'000; ///< until one fails after it wrote its file

    std::optional<std::string> storedFilename() const override { return filename; }
    std::optional<std::string> storedNormalizedFileExtension() const override { return normalizedFileExtension; }
    std::optional<std::int64_t> storedFileSize() const override { return fileSize; }
    std::optional<std::string> storedSearchText() const override { return searchText; }
    void updatePrimitiveFilename(std::optional<std::string_view> name) override { filename = name; }
    void updatePrimitiveNormalizedFileExtension(std::optional<std::string_view> extension) override
    {
        normalizedFileExtension = extension;
    }
    void updatePrimitiveFileSize(std::optional<std::int64_t> bytes) override { fileSize = bytes; }
    void updatePrimitiveSearchText(std::optional<std::string_view> text) override { searchText = text; }
    bool hasFileHere() const override { return isDownloaded; }
    std::optional<std::filesystem::path> storedFileURL() const override
    {
        return filename ? std::optional(folder / *filename) : std::nullopt;
    }
    bool exchangeStoredFile(std::string_view name,
        const std::function<bool(const std::filesystem::path& place, NSError* error)>& write, NSError* error) override
    {
        const std::filesystem::path place = folder / name;
        if (!write(place, error))
            return false;
        if (exchangesThatSucceed-- <= 0) {
            NSFileManager::removeItemAtURL(place);
            assignError(error, NSError("Test", 2, "not exchanged"));
            return false;
        }
        NSFileManager::removeItemAtURL(*storedFileURL());
        filename = name;
        return true;
    }

    /// What lies in its folder.
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(folder))
            found.push_back(entry.path().filename().string());
        return found;
    }
};

/// A note, with the attachments that a test gives it.
class PlainNote : public PlainObject<OVEncryptableNote> {
public:
    using PlainObject::PlainObject;

    std::optional<std::string> text;
    std::vector<OVEncryptableNoteFile*> files;

    std::optional<std::string> storedText() const override { return text; }
    void updatePrimitiveText(std::optional<std::string_view> other) override { text = other; }
    std::vector<OVEncryptableNoteFile*> encryptableFiles() const override { return files; }
};

} // namespace tarn
