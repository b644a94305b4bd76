#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManagerProtocol.h"

#include <map>
#include <string>

namespace tarn {

/// Keeps clear texts in memory and nothing in the records; what a manager is to a note.
class TextKeeper : public OVEncryptionCoreManagerProtocol {
public:
    bool isLocked = false;
    std::map<const OVEncryptableNote*, std::string> texts;

    bool isObjectLocked(const OVEncryptableObject&) const override { return isLocked; }
    bool addEncryptionToObject(OVEncryptableObject&, OVEncryptingPassword&, NSError*) override { return false; }
    bool hasCachedPassword(const OVEncryptingPassword&) const override { return false; }
    std::optional<std::string> textForNote(const OVEncryptableNote& note, NSError*) override
    {
        const auto found = texts.find(&note);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    }
    void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override
    {
        texts[&note] = text.value_or("");
    }
    std::optional<std::string> filenameForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return file.storedFilename();
    }
    void setFilename(std::optional<std::string_view>, OVEncryptableNoteFile&) override { }
    std::optional<std::string> normalizedFileExtensionForNoteFile(const OVEncryptableNoteFile&, NSError*) override
    {
        return std::nullopt;
    }
    void setNormalizedFileExtension(std::optional<std::string_view>, OVEncryptableNoteFile&) override { }
    std::optional<std::int64_t> fileSizeForNoteFile(const OVEncryptableNoteFile&, NSError*) override
    {
        return std::nullopt;
    }
    void setFileSize(std::optional<std::int64_t>, OVEncryptableNoteFile&) override { }
    std::optional<std::filesystem::path> fileURLForNoteFile(const OVEncryptableNoteFile&, NSError*) override
    {
        return std::nullopt;
    }
};

} // namespace tarn
