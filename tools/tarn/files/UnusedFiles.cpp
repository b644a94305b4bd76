#include "tools/tarn/files/UnusedFiles.h"

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/files/AttachmentLinks.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/listing/NoteList.h"

#include <array>
#include <map>
#include <optional>
#include <set>

namespace tarn {

namespace {

/// What a note lets one say of its attachments.
struct NoteReading {
    std::string whyUnknown; ///< empty when its text was read
    std::set<std::string> names;
};

NoteReading readingOf(const OVNote& note)
{
    NoteReading reading;
    if (note.hasEncryptionAndIsLocked())
        return {nameOfNote(note) + " is protected by a password", {}};
    try {
        const auto text = note.text();
        if (!text)
            return {"the text of " + nameOfNote(note) + " cannot be read", {}};
        reading.names = filenamesInText(*text);
    } catch (const NSException& exception) {
        return {"the text of " + nameOfNote(note) + " cannot be read: " + exception.reason(), {}};
    }
    return reading;
}

/// Empty when it may go. A used attachment of the same name is the one that a text means.
std::string reasonToKeep(const OVNoteFile& file, const NoteReading& reading)
{
    if (!reading.whyUnknown.empty())
        return reading.whyUnknown;
    if (isLocked(file))
        return "it is protected by a password";
    const std::string name = nameOfFile(file);
    if (!reading.names.contains(name))
        return "";
    for (const OVNoteFile* other : file.note()->filesSet().allObjects()) {
        if (!other->isUnused() && !isLocked(*other) && nameOfFile(*other) == name)
            return "";
    }
    return nameOfNote(*file.note()) + " names it; 'tarn doctor --repair' marks it as used";
}

} // namespace

Pruning pruningOf(StoreSession& session)
{
    Pruning pruning;
    std::map<const OVNote*, NoteReading> readings;
    for (OVNoteFile* file : session.files(NSPredicate::predicateWithFormat("unused == YES"))) {
        const OVNote* note = file->note();
        if (note && !readings.contains(note))
            readings.emplace(note, readingOf(*note));
        const std::string reason = note ? reasonToKeep(*file, readings.at(note)) : "";
        const std::string name = displayText(nameOfFile(*file));
        JSON json = jsonOfFile(*file);
        if (reason.empty()) {
            const std::uintmax_t bytes = bytesOfFiles(std::array{file});
            pruning.unused.push_back(file);
            pruning.bytes += bytes;
            pruning.files.push_back(std::move(json));
            pruning.lines.push_back(textPaddedToWidth(displaySize(bytes), 10) + name);
        } else {
            json["reason"] = reason;
            pruning.skipped.push_back(std::move(json));
            pruning.lines.push_back("skipped   " + name + ": " + displayText(reason));
        }
    }
    return pruning;
}

void deleteUnused(Pruning& pruning)
{
    for (OVNoteFile* file : pruning.unused)
        file->permanentlyDelete();
    for (JSON& file : pruning.files)
        file["path"] = nullptr;
}

} // namespace tarn
