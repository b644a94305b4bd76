#include "tools/tarn/import/AttachedFiles.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/import/reading/ExportedFiles.h"
#include "tools/tarn/import/record/TextFingerprint.h"

#include <filesystem>
#include <map>
#include <set>
#include <system_error>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// The attachments that a note has, found without a look at each.
class AttachmentsOfNote {
public:
    /// `byName`: only one of the same name is taken for a file, else any of the same ending.
    AttachmentsOfNote(const OVNote& note, bool byName) : byName_(byName)
    {
        for (const OVNoteFile* attached : note.orderedFiles())
            add(*attached);
    }

    void add(const OVNoteFile& attached)
    {
        auto path = pathOfFile(attached);
        if (path && attached.filename())
            known_[keyOf(*path)].push_back({std::move(*path), *attached.filename()});
    }

    /// The name of the first that has the bytes of a file.
    std::optional<std::string> nameOf(const fs::path& file)
    {
        const auto alike = known_.find(keyOf(file));
        if (alike == known_.end())
            return std::nullopt;
        const std::optional<std::string> hash = hashOfFile(file);
        for (Attached& attached : alike->second) {
            if (!attached.hash)
                attached.hash = hashOfFile(attached.path);
            if (hash && attached.hash == hash && NSFileManager::contentsEqualAtURLs(attached.path, file))
                return attached.name;
        }
        return std::nullopt;
    }

private:
    struct Attached {
        fs::path path;
        std::string name;
        std::optional<std::string> hash{}; ///< of its bytes, once somebody asks: each file is read once
    };

    std::string keyOf(const fs::path& path) const
    {
        std::error_code failure;
        const std::string size = std::to_string(fs::file_size(path, failure));
        return size + "/" + (byName_ ? path.filename() : path.extension()).native();
    }

    bool byName_;
    std::unordered_map<std::string, std::vector<Attached>> known_;
};

} // namespace

std::string AttachedFiles::attach(const ComposedNote& composed, OVNote& note)
{
    return text(composed, note, true).value_or(composed.text);
}

std::optional<std::string> AttachedFiles::textIfAttached(const ComposedNote& composed, OVNote& note)
{
    return text(composed, note, false);
}

std::optional<std::string> AttachedFiles::text(const ComposedNote& composed, OVNote& note, bool attaches)
{
    std::map<std::string, std::optional<std::string>> names; // by destination
    std::map<fs::path, std::optional<std::string>> namesOfFiles;
    std::optional<AttachmentsOfNote> known;
    for (const auto& [destination, file] : composed.files) {
        const auto [name, isNew] = namesOfFiles.try_emplace(file.target);
        if (isNew) {
            if (!known)
                known.emplace(note, composed.exported.has_value());
            name->second = known->nameOf(file.path);
            if (name->second)
                result_.attachedFiles.insert(file.target);
            else if (const OVNoteFile* added
                = attaches ? attachedFile(file, note, composed.exported.has_value()) : nullptr) {
                known->add(*added);
                name->second = added->filename();
            }
        }
        if (!name->second && !attaches)
            return std::nullopt;
        names.emplace(destination, name->second);
    }
    if (names.empty())
        return composed.text;
    if (composed.exported)
        return textWithoutPlaces(composed.text, names);
    const auto newURL = [&names](const std::string& destination) -> std::optional<std::string> {
        const auto name = names.find(destination);
        return name == names.end() ? std::nullopt : name->second;
    };
    const CVKAST document = CVKAST::fromMarkdown(composed.text);
    return document.applyTextOperationResults(document.updateLinksURLs(newURL, {})).markdown();
}

/// A new attachment; null where it cannot be made, which is told.
OVNoteFile* AttachedFiles::attachedFile(const LinkedFile& file, OVNote& note, bool isExported)
{
    NSError error;
    OVNoteFile* const attached = isExported ? attachExportedFile(file.path, note, &error)
                                            : OVNoteFile::getOrCreateFileFromURL(file.path, note, &error);
    if (attached) {
        result_.attachedFiles.insert(file.target);
        ++result_.attachments;
    } else {
        result_.failures.push_back({file.path, singleLine(error.localizedDescription())});
        result_.code = ExitCode::InputOutput;
    }
    return attached;
}

void AttachedFiles::count(const ComposedNote& composed)
{
    std::set<fs::path> targets;
    for (const auto& [destination, file] : composed.files)
        targets.insert(file.target);
    result_.attachments += targets.size();
    result_.attachedFiles.merge(targets);
}

} // namespace tarn
