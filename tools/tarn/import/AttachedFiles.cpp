#include "tools/tarn/import/AttachedFiles.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/FileList.h"
#include "tools/tarn/import/ExportedFiles.h"

#include <filesystem>
#include <map>
#include <set>

namespace tarn {

namespace fs = std::filesystem;

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
    for (const auto& [destination, file] : composed.files) {
        const auto [name, isNew] = namesOfFiles.try_emplace(file.target);
        if (isNew)
            name->second = nameOfAttached(file, note, attaches, composed.exported.has_value());
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

/// The name of the attachment that has the bytes of a file; of one that was exported also its name.
std::optional<std::string> AttachedFiles::nameOfAttached(
    const LinkedFile& file, OVNote& note, bool attaches, bool isExported)
{
    for (const OVNoteFile* attached : note.orderedFiles()) {
        const auto path = pathOfFile(*attached);
        const bool isNamedSo = isExported ? attached->filename() == file.path.filename().native()
                                          : path && path->extension() == file.path.extension();
        if (path && isNamedSo && NSFileManager::contentsEqualAtURLs(*path, file.path)) {
            result_.attachedFiles.insert(file.target);
            return attached->filename();
        }
    }
    if (!attaches)
        return std::nullopt;
    NSError error;
    const OVNoteFile* const attached = isExported ? attachExportedFile(file.path, note, &error)
                                                  : OVNoteFile::getOrCreateFileFromURL(file.path, note, &error);
    if (attached) {
        result_.attachedFiles.insert(file.target);
        ++result_.attachments;
        return attached->filename();
    }
    result_.failures.push_back({file.path, singleLine(error.localizedDescription())});
    result_.code = ExitCode::InputOutput;
    return std::nullopt;
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
