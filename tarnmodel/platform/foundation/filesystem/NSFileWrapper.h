#pragma once

#include "tarnmodel/platform/foundation/values/NSData.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarn {

class NSError;

/// A file or folder that an application hands over: its bytes, what is in it, or where it lies; and its names.
///
/// A value. Any thread.
///
///     auto wrapper = NSFileWrapper::withContents(NSData::fromText("…"));
///     wrapper.setPreferredFilename("note.txt");
class NSFileWrapper {
public:
    /// A file of these bytes.
    static NSFileWrapper withContents(NSData contents);
    /// A folder of these; each has a name.
    static NSFileWrapper withFileWrappers(std::vector<NSFileWrapper> fileWrappers);
    /// What lies there, with its name; read when it is needed, and never held.
    static NSFileWrapper withURL(std::filesystem::path url);

    /// The name that it has.
    const std::optional<std::string>& filename() const noexcept { return filename_; }
    void setFilename(std::optional<std::string> filename) { filename_ = std::move(filename); }
    /// The name that it is to get where it has none.
    const std::optional<std::string>& preferredFilename() const noexcept { return preferredFilename_; }
    void setPreferredFilename(std::optional<std::string> filename) { preferredFilename_ = std::move(filename); }

    /// The bytes that it holds; null for a folder, and for what lies on disk. Valid while this value lives.
    const NSData* regularFileContents() const noexcept { return std::get_if<NSData>(&content_); }
    /// Where it lies on disk; null for what it holds itself. Valid while this value lives.
    const std::filesystem::path* url() const noexcept { return std::get_if<std::filesystem::path>(&content_); }
    /// Whether it is a folder.
    bool isDirectory() const;
    /// Whether it is a file of the same bytes as the one on disk.
    bool hasContentsOfFileAtURL(const std::filesystem::path& url) const;
    /// Writes it as a new file or folder; fails when the name is taken, and for a folder when a name in it is none or
    /// leads out of it. Whole or not there.
    bool writeToURL(const std::filesystem::path& url, NSError* error = nullptr) const;

private:
    using Content = std::variant<NSData, std::vector<NSFileWrapper>, std::filesystem::path>;
    explicit NSFileWrapper(Content content) : content_(std::move(content)) { }
    bool writeFolder(
        const std::vector<NSFileWrapper>& fileWrappers, const std::filesystem::path& url, NSError* error) const;

    Content content_;
    std::optional<std::string> filename_;
    std::optional<std::string> preferredFilename_;
};

} // namespace tarn
