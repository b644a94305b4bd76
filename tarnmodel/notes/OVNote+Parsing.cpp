#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/notes/EditGuard.h"
#include "tarnmodel/notes/TitlePropagation.h"
#include "tarnmodel/notes/ToDoCount.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/sync/OVDeviceUUID.h"

#include <unordered_map>

namespace tarn {

namespace {

using FilesByName = std::unordered_map<std::string, OVNoteFile*>;

/// The attachments that a link can name. Of several with one name a used one counts, of these the last. Locked ones are
/// not asked for theirs.
FilesByName filesByName(const OVNote& note)
{
    FilesByName files;
    for (OVNoteFile* file : note.filesSet().allObjects()) {
        if (EditGuard::isUnreadable(*file) && file->encryptionCoreManager())
            continue;
        const auto name = file->filename();
        if (name && !(file->isUnused() && files.contains(*name)))
            files[*name] = file;
    }
    return files;
}

/// Takes the file that the link names out of the map, under both spellings of the link; null when it names none.
OVNoteFile* takeFileForLink(const std::string& link, FilesByName& files)
{
    if (files.empty())
        return nullptr;
    const auto decoded = stringByRemovingPercentEncoding(link);
    auto found = decoded ? files.find(*decoded) : files.end();
    if (found == files.end())
        found = files.find(link);
    if (found == files.end())
        return nullptr;
    OVNoteFile* file = found->second;
    files.erase(link);
    if (decoded)
        files.erase(*decoded);
    return file;
}

} // namespace

OVNote* OVNote::noteWithText(std::string_view text, NSManagedObjectContext& context)
{
    checkTextLength(text);
    OVNote* note = insertInManagedObjectContext(context);
    note->updateNoteWithText(text);
    return note;
}

void OVNote::updateNoteWithText(std::string_view text)
{
    updateNoteWithText(text, true);
}

void OVNote::updateNoteWithText(std::string_view text, bool updateModificationDate)
{
    _updateNoteWithText(text, updateModificationDate);
}

void OVNote::_updateNoteWithText(std::string_view text, bool updateModificationDate)
{
    checkTextLength(text);
    updateNoteWithAST(CVKAST::fromMarkdown(validUTF8(text)), updateModificationDate);
}

void OVNote::updateNoteWithAST(const CVKAST& document)
{
    updateNoteWithAST(document, true);
}

void OVNote::updateNoteWithAST(const CVKAST& document, bool updateModificationDate)
{
    const auto held = EditGuard::holdUnlocked(managedObjectContext());
    if (!TitlePropagation::isRewriting(*this))
        EditGuard::requireEditable(*this, document.textSummary().title);
    takeDocument(document, updateModificationDate);
}

void OVNote::takeDocument(const CVKAST& document, bool updateModificationDate)
{
    setText(document.markdown());
    updateNoteFromTextSummary(document.textSummary());
    if (updateModificationDate)
        setModificationDate(now());
    updateNoteVectorClock();
    setLastEditingDevice(OVDeviceUUID::deviceName());
}

void OVNote::updateNoteFromTextSummary(const CVKTextSummary& summary)
{
    deriveFromTextSummary(summary, title());
}

void OVNote::deriveFromTextSummary(const CVKTextSummary& summary, const std::optional<std::string>& oldTitle)
{
    setTitle(summary.title);
    // What is protected must not shine through a list of notes.
    setSubtitle(hasEncryption() ? std::nullopt : std::optional<std::string_view>(summary.subtitle));
    setTagsFromStrings(summary.tags);
    setTodoIncompletedValue(storedToDoCount(summary.todoCount));
    setTodoCompletedValue(storedToDoCount(summary.doneCount));
    setHasSourceCodeValue(summary.codeBlockCount != 0);
    setLinkedNotesFromWikiLinks(summary.wikiLinks);
    updateLinkedByNoteForNewTitle(summary.title, oldTitle);
    updateFilesFromTextSummary(summary);
}

void OVNote::updateFilesFromTextSummary(const CVKTextSummary& summary)
{
    FilesByName unlinked = filesByName(*this);
    bool linksImage = false;
    bool linksFile = false;
    for (std::size_t position = 0; position < summary.links.size(); ++position) {
        OVNoteFile* file = takeFileForLink(summary.links[position], unlinked);
        if (!file)
            continue;
        file->setInUse();
        const auto index = static_cast<std::int64_t>(position);
        if (file->index() != index)
            file->setIndexValue(index);
        linksImage = linksImage || dynamic_cast<OVNoteImage*>(file);
        linksFile = linksFile || dynamic_cast<OVNoteGenericFile*>(file);
    }
    for (OVNoteFile* file : filesSet().allObjects()) {
        // Nobody can say that the text does not link it, and what is unused gets deleted.
        const bool staysInUse = !file->isUnused() && EditGuard::isUnreadable(*file);
        linksImage = linksImage || (staysInUse && dynamic_cast<OVNoteImage*>(file));
        linksFile = linksFile || (staysInUse && dynamic_cast<OVNoteGenericFile*>(file));
    }
    setHasImagesValue(linksImage);
    setHasFilesValue(linksFile);
    for (const auto& [name, file] : unlinked) {
        if (!EditGuard::isUnreadable(*file))
            file->setUnused();
    }
}

} // namespace tarn
