#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManagerProtocol.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Keeps values back to front in the record: enough to tell what went through it.
class BackwardsManager : public OVEncryptionCoreManagerProtocol {
public:
    bool isLocked = false;
    /// Whether it cannot read what it says is open, as when a disk fails.
    bool isFailing = false;
    /// What it says of an attachment's decrypted bytes.
    static constexpr std::string_view decryptedFile = "/decrypted/bytes";

    bool isObjectLocked(const OVEncryptableObject& object) const override { return isLocked && object.hasEncryption(); }
    bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword& password, NSError*) override
    {
        object.setEncryptionState({true, NSData::fromText("cipher"), now(), "key 1", &password});
        return true;
    }
    bool hasCachedPassword(const OVEncryptingPassword&) const override { return !isLocked; }

    std::optional<std::string> textForNote(const OVEncryptableNote& note, NSError* error) override
    {
        return read(backwards(note.storedText()), error);
    }
    void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override
    {
        note.updatePrimitiveText(backwards(text));
    }
    std::optional<std::string> filenameForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override
    {
        return read(backwards(file.storedFilename()), error);
    }
    void setFilename(std::optional<std::string_view> filename, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveFilename(backwards(filename));
    }
    std::optional<std::string> normalizedFileExtensionForNoteFile(
        const OVEncryptableNoteFile& file, NSError* error) override
    {
        return read(backwards(file.storedNormalizedFileExtension()), error);
    }
    void setNormalizedFileExtension(std::optional<std::string_view> extension, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveNormalizedFileExtension(backwards(extension));
    }
    std::optional<std::int64_t> fileSizeForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override
    {
        const auto bytes = file.storedFileSize();
        return read(bytes ? std::optional(-*bytes) : std::nullopt, error);
    }
    void setFileSize(std::optional<std::int64_t> bytes, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveFileSize(bytes ? std::optional(-*bytes) : std::nullopt);
    }
    std::optional<std::string> searchTextForNoteFile(const OVEncryptableNoteFile& file, NSError* error) override
    {
        return read(backwards(file.storedSearchText()), error);
    }
    void setSearchText(std::optional<std::string_view> text, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveSearchText(backwards(text));
    }
    std::optional<std::filesystem::path> fileURLForNoteFile(const OVEncryptableNoteFile&, NSError* error) override
    {
        return read(std::optional<std::filesystem::path>(decryptedFile), error);
    }

private:
    template <typename Field> std::optional<Field> read(std::optional<Field> field, NSError* error) const
    {
        if (!isFailing)
            return field;
        assignError(error, NSError("test", 5, "cannot be read"));
        return std::nullopt;
    }
    template <typename Text> static std::optional<std::string> backwards(const std::optional<Text>& text)
    {
        return text ? std::optional<std::string>(std::in_place, text->rbegin(), text->rend()) : std::nullopt;
    }
};

} // namespace tarn
