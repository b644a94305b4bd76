#include "tools/tarn/Exporter.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/FileList.h"

#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// A folder itself, not a link to one, which could lead anywhere.
bool isFolderItself(const fs::path& path)
{
    std::error_code failure;
    return fs::is_directory(fs::symlink_status(path, failure));
}

/// The attachment that a destination names is looked for as a note looks for it.
std::optional<std::string> placeForLink(
    const std::string& destination, const std::map<std::string, std::string>& placesOfNames)
{
    const auto decoded = stringByRemovingPercentEncoding(destination);
    auto found = decoded ? placesOfNames.find(*decoded) : placesOfNames.end();
    if (found == placesOfNames.end())
        found = placesOfNames.find(destination);
    return found == placesOfNames.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

void Exporter::makeFolder()
{
    if (std::exchange(isMade_, true))
        return;
    std::error_code failure;
    fs::create_directories(folder_, failure);
    if (failure)
        throw failureForSystemError("cannot make the folder " + folder_.string(), failure.value());
}

void Exporter::leave(const fs::path& path, std::string reason, bool isFailure)
{
    result_.left.push_back({.path = path, .reason = std::move(reason), .isFailure = isFailure});
}

void Exporter::leaveLocked(const fs::path& path, std::string reason)
{
    result_.left.push_back({.path = path, .reason = std::move(reason), .isLocked = true});
}

void Exporter::leaveUnwritten(const fs::path& path, const NSError& error)
{
    if (NSFileManager::fileExistsAtURL(path))
        leave(path, "another file is there");
    else
        leave(path, singleLine(error.localizedDescription()), true);
}

void Exporter::noteName(const std::string& name, const std::string& given, const fs::path& place)
{
    if (name != given)
        result_.renamed.push_back({name, place});
}

void Exporter::exportNote(const OVNote& note)
{
    makeFolder();
    const std::string title = note.title().value_or("");
    const std::string name = names_.noteName(title);
    const fs::path place = folder_ / (name + ".md");
    noteName(title, name, place);
    if (note.encryptedValue() && note.hasEncryptionAndIsLocked())
        return leaveLocked(place, "the note is protected by a password");
    try {
        const auto text = note.text();
        if (!text)
            return leave(place, "the note has no text that can be read");
        const NamesInText places = exportAttachments(note, name);
        const CVKAST document = CVKAST::fromMarkdown(*text);
        const auto newURL = [&places](const std::string& link) { return placeForLink(link, places); };
        exportText(note, document.applyTextOperationResults(document.updateLinksURLs(newURL, {})).markdown(), place);
    } catch (const NSException& exception) {
        leave(place, exception.reason());
    }
}

Exporter::NamesInText Exporter::exportAttachments(const OVNote& note, const std::string& name)
{
    NamesInText places;
    const std::string assets = name + ".assets";
    const fs::path folder = folder_ / assets;
    ExportNames names;
    for (const OVNoteFile* file : note.orderedFiles()) {
        const std::string ownName = nameOfFile(*file);
        const fs::path place = folder / names.fileName(ownName);
        noteName(ownName, place.filename().string(), place);
        const auto source = pathOfFile(*file);
        NSError error;
        if (isLocked(*file))
            leaveLocked(place, "the attachment is protected by a password");
        else if (!source)
            leave(place, "its bytes are not here");
        else if (!NSFileManager::fileExistsAtURL(folder) && !NSFileManager::createDirectoryAtURL(folder, &error))
            leave(place, singleLine(error.localizedDescription()), true);
        else if (!isFolderItself(folder))
            leave(place, folder.string() + " is no folder");
        else if (exportAttachment(*source, place))
            places.emplace(ownName, assets + "/" + place.filename().string());
    }
    return places;
}

bool Exporter::exportAttachment(const fs::path& source, const fs::path& place)
{
    NSError error;
    if (NSFileManager::copyItemAtURL(source, place, &error)) {
        ++result_.files;
        return true;
    }
    if (NSFileManager::fileExistsAtURL(place) && NSFileManager::contentsEqualAtURLs(source, place)) {
        ++result_.unchanged;
        return true;
    }
    leaveUnwritten(place, error);
    return false;
}

void Exporter::exportText(const OVNote& note, const std::string& text, const fs::path& place)
{
    NSError error;
    const auto contents = NSFileWrapper::withContents(NSData::fromText(text));
    if (contents.writeToURL(place, &error)) {
        // A text without its date is still the text.
        NSFileManager::setModificationDate(note.modificationDate().value_or(now()), place);
        ++result_.exported;
    } else if (contents.hasContentsOfFileAtURL(place)) {
        ++result_.unchanged;
    } else {
        leaveUnwritten(place, error);
    }
}

} // namespace tarn
