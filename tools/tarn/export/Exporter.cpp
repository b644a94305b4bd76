#include "tools/tarn/export/Exporter.h"

#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tools/tarn/files/AttachmentLinks.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/import/reading/ExportedFiles.h"
#include "tools/tarn/import/record/TextFingerprint.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr const char* kChangedByOthers = "others have changed it since it was exported";
constexpr const char* kOtherFile = "another file is there";
constexpr std::size_t kShortIdentifier = 8;
constexpr std::size_t kLongestName = 255;

/// The used ones in the order of the text, then the others.
std::vector<OVNoteFile*> filesOfNote(const OVNote& note, bool takesUnused)
{
    std::vector<OVNoteFile*> files = note.orderedFiles();
    if (!takesUnused)
        return files;
    std::vector<OVNoteFile*> unused = note.filesSet().allObjects();
    std::erase_if(unused, [](const OVNoteFile* file) { return !file->isUnused(); });
    std::ranges::sort(unused, {}, [](const OVNoteFile* file) { return file->uniqueIdentifier().value_or(""); });
    files.insert(files.end(), unused.begin(), unused.end());
    return files;
}

} // namespace

Exporter::Exporter(ExportFolder& folder, ExportManifest& manifest, const ExportPlan& plan, Rules rules)
    : folder_(folder), manifest_(manifest), plan_(plan), rules_(rules), texts_(plan, rules.linksToFiles)
{
    contents_.store = manifest.contents().store;
}

void Exporter::leave(const fs::path& path, std::string reason, bool isFailure)
{
    result_.left.push_back({.path = folder_.root() / path, .reason = std::move(reason), .isFailure = isFailure});
}

void Exporter::leaveLocked(const fs::path& path, std::string reason)
{
    result_.left.push_back({.path = folder_.root() / path, .reason = std::move(reason), .isLocked = true});
}

const ExportedNote* Exporter::before(const std::string& identifier) const
{
    const auto& notes = manifest_.contents().notes;
    const auto known = notes.find(identifier);
    return known == notes.end() ? nullptr : &known->second;
}

/// Whether a file is there that no export wrote.
bool Exporter::isOthers(const ExportedFile& file) const
{
    const ExportFolder::Found found = folder_.find(file.path);
    return found.isThere && !manifest_.isOurs(file.path, found.hash);
}

/// The files of the note stay as they are.
void Exporter::keep(const std::string& identifier)
{
    if (const ExportedNote* known = before(identifier))
        contents_.notes[identifier] = *known;
}

void Exporter::exportNote(const OVNote& note)
{
    const PlannedNote* planned = plan_.note(note.uniqueIdentifier().value_or(""));
    if (!planned)
        return; // it came while the plan was made
    if (planned->path.filename() != planned->title + std::string(kNoteEnding) && planned->imported.empty())
        result_.renamed.push_back({planned->title, folder_.root() / planned->path});
    if (planned->isLocked) {
        keep(planned->identifier);
        return leaveLocked(planned->path, "the note is protected by a password");
    }
    try {
        exportOpenNote(note, *planned);
    } catch (const NSException& exception) {
        keep(planned->identifier);
        leave(planned->path, exception.reason());
    }
}

void Exporter::exportOpenNote(const OVNote& note, const PlannedNote& planned)
{
    const auto text = note.text();
    if (!text) {
        keep(planned.identifier);
        return leave(planned.path, "the note has no text that can be read");
    }
    const ExportedNote* known = before(planned.identifier);
    ExportedNote exported{.text = {}, .name = planned.name, .attachments = {}};
    // The links of its text need not wait for the bytes of what they name.
    Places places;
    for (const OVNoteFile* file : note.orderedFiles()) {
        if (!isLocked(*file) && pathOfFile(*file))
            places[file] = linkDestinationForFilename(
                placeOf(*file, planned).parent_path().lexically_relative(planned.path.parent_path()).native() + "/");
    }
    const std::string bytes = texts_.ofNote(note, *text, planned, places);
    exported.text = {planned.path, bytes.size(), hashOfBytes(bytes)};
    const bool isAsMeant
        = known && known->text.path == planned.path && folder_.find(planned.path).hash == exported.text.hash;
    if (known && !isAsMeant && isOthers(known->text)) {
        keep(planned.identifier);
        return leave(known->text.path, kChangedByOthers);
    }
    for (const OVNoteFile* file : filesOfNote(note, rules_.takesUnusedFiles))
        exportAttachment(*file, placeOf(*file, planned), known, exported);
    if (write(note, bytes, planned.path))
        contents_.notes[planned.identifier] = std::move(exported);
    else
        keep(planned.identifier);
}

/// From the folder of the export. Two attachments whose identifiers begin the same get folders of whole identifiers.
fs::path Exporter::placeOf(const OVNoteFile& file, const PlannedNote& planned)
{
    const std::string identifier = file.uniqueIdentifier().value_or("");
    const fs::path folder = planned.path.parent_path() / kAttachmentsFolder;
    const fs::path shorter = folder / portableFileName(identifier.substr(0, kShortIdentifier), kLongestName);
    const bool isOwn = owners_.try_emplace(shorter, identifier).first->second == identifier;
    return (isOwn ? shorter : folder / portableFileName(identifier, kLongestName)) / nameOfFile(file);
}

void Exporter::exportAttachment(
    const OVNoteFile& file, const fs::path& place, const ExportedNote* known, ExportedNote& exported)
{
    const auto source = pathOfFile(file);
    ExportedFile copied{.path = place, .size = 0, .hash = {}};
    bool isThere = false;
    if (isLocked(file))
        leaveLocked(place, "the attachment is protected by a password");
    else if (!source)
        leave(place, "its bytes are not here");
    else
        isThere = copy(*source, place, copied);
    if (isThere)
        return exported.attachments.push_back(std::move(copied));
    // What an earlier export wrote there stays known.
    const std::vector<ExportedFile> none;
    for (const ExportedFile& former : known ? known->attachments : none) {
        if (former.path == place)
            exported.attachments.push_back(former);
    }
}

bool Exporter::copy(const fs::path& source, const fs::path& place, ExportedFile& copied)
{
    const ExportFolder::Found found = folder_.find(place);
    if (!found.hash.empty() && found.hash == hashOfFile(source)) {
        ++result_.unchanged;
        copied = {place, found.size, found.hash};
        return true;
    }
    if (found.isThere && !manifest_.isOurs(place, found.hash)) {
        leave(place, manifest_.isKnown(place) ? kChangedByOthers : kOtherFile);
        return false;
    }
    const auto announce = [this](const ExportedFile& file) { manifest_.announce(file); };
    if (const auto reason = folder_.copyFile(source, place, found.isThere, announce, copied)) {
        leave(place, *reason, true);
        return false;
    }
    ++result_.files;
    return true;
}

bool Exporter::write(const OVNote& note, const std::string& bytes, const fs::path& place)
{
    const ExportFolder::Found found = folder_.find(place);
    if (found.hash == hashOfBytes(bytes)) {
        ++result_.unchanged;
        return true;
    }
    if (found.isThere && !manifest_.isOurs(place, found.hash)) {
        leave(place, kOtherFile);
        return false;
    }
    const auto announce = [this](const ExportedFile& file) { manifest_.announce(file); };
    const NSDate date = note.modificationDate().value_or(now());
    if (const auto reason = folder_.writeText(place, bytes, date, found.isThere, announce)) {
        leave(place, *reason, true);
        return false;
    }
    ++result_.exported;
    return true;
}

void Exporter::finish()
{
    keepOthers();
    removeRest();
    manifest_.finish(contents_);
}

/// Of notes that are not planned: all where only some notes are exported, else those whose file others have changed.
void Exporter::keepOthers()
{
    for (const auto& [identifier, exported] : manifest_.contents().notes) {
        if (plan_.note(identifier))
            continue;
        if (rules_.keepsOthers) {
            keep(identifier);
        } else if (isOthers(exported.text)) {
            keep(identifier);
            leave(exported.text.path, kChangedByOthers);
        }
    }
}

void Exporter::removeRest()
{
    std::set<fs::path> needed;
    for (const auto& [identifier, exported] : contents_.notes) {
        needed.insert(exported.text.path);
        for (const ExportedFile& file : exported.attachments)
            needed.insert(file.path);
    }
    for (const fs::path& path : manifest_.knownPaths()) {
        if (!needed.contains(path))
            removeFile(path);
    }
}

void Exporter::removeFile(const fs::path& path)
{
    const ExportFolder::Found found = folder_.find(path);
    if (!found.isThere)
        return folder_.removeEmptyFolders(path);
    const bool isOurs = manifest_.isOurs(path, found.hash);
    const auto reason = isOurs ? folder_.remove(path) : std::optional<std::string>(kChangedByOthers);
    if (!reason) {
        ++result_.removed;
        return;
    }
    leave(path, *reason, isOurs);
    contents_.leftovers.push_back(manifest_.lastKnown(path));
}

} // namespace tarn
