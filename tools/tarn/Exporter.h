#pragma once

#include "tools/tarn/ExportNames.h"
#include "tools/tarn/StoreSession.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tarn {

/// A file that an export meant to write and did not.
struct LeftFile {
    std::filesystem::path path;
    std::string reason;
    bool isFailure = false; ///< of the disk
    bool isLocked = false;  ///< for want of a password
};

/// What got another name on disk than it has in the store.
struct RenamedFile {
    std::string name; ///< a title, or that of an attachment
    std::filesystem::path path;
};

/// What an export came to.
struct ExportResult {
    std::size_t exported = 0;  ///< notes that were written
    std::size_t files = 0;     ///< attachments that were written
    std::size_t unchanged = 0; ///< notes and attachments that were there already, byte by byte
    std::vector<LeftFile> left;
    std::vector<RenamedFile> renamed;
};

/// Writes notes as Markdown files "Title.md", and their attachments into folders "Title.assets" beside them.
///
/// What is there is never written over: a file of the same bytes counts as unchanged, any other is left.
class Exporter {
public:
    explicit Exporter(std::filesystem::path folder) : folder_(std::move(folder)) { }

    /// Names are given out in the order of the notes. The first one makes the folder; raises `CommandFailure` when it
    /// cannot be made.
    void exportNote(const OVNote& note);
    const ExportResult& result() const noexcept { return result_; }

private:
    using NamesInText = std::map<std::string, std::string>; ///< of attachments; where links to them lead

    void makeFolder();
    NamesInText exportAttachments(const OVNote& note, const std::string& name);
    bool exportAttachment(const std::filesystem::path& source, const std::filesystem::path& place);
    void exportText(const OVNote& note, const std::string& text, const std::filesystem::path& place);
    void leave(const std::filesystem::path& path, std::string reason, bool isFailure = false);
    void leaveLocked(const std::filesystem::path& path, std::string reason);
    void leaveUnwritten(const std::filesystem::path& path, const NSError& error);
    void noteName(const std::string& name, const std::string& given, const std::filesystem::path& place);

    std::filesystem::path folder_;
    bool isMade_ = false;
    ExportNames names_;
    ExportResult result_;
};

} // namespace tarn
