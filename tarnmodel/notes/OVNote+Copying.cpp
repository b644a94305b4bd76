#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordCopying.h"
#include "tarnmodel/notes/EditGuard.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

namespace tarn {

// Merging -----------------------------------------------------------------------------------------------------------

namespace {

/// Puts a note's text behind those before it, with a blank line between.
void appendNoteText(std::string& merged, std::string_view text)
{
    if (merged.ends_with('\n') && !merged.ends_with("\n\n")) {
        merged += '\n';
    } else if (!merged.empty() && !text.ends_with("\n\n")) {
        // Kept: it is the end of the text to come that is looked at, so two more may follow a blank line.
        merged += "\n\n";
    }
    merged += text;
}

std::string textWithLinksTo(const std::string& newFilename, const std::string& oldFilename, const std::string& text)
{
    const CVKAST document = CVKAST::fromMarkdown(text);
    return document.applyTextOperationResults(document.updateLinksURL(oldFilename, newFilename, {0, 0})).markdown();
}

} // namespace

/// Gives this note the attachments of `note`; its text with links to the names that they have here.
std::string OVNote::textAfterTakingAttachmentsOf(const OVNote& note, std::string text)
{
    for (const OVNoteFile* file : note.orderedFiles()) {
        const auto url = file->fileURL();
        if (!url)
            continue;
        const OVNoteFile* taken = addAttachmentFromFileURL(*url);
        const auto newName = taken ? taken->filename() : std::nullopt;
        const auto oldName = file->filename();
        if (newName && oldName && *newName != *oldName)
            text = textWithLinksTo(*newName, *oldName, text);
    }
    return text;
}

OVNote* OVNote::mergeNotes(const std::vector<OVNote*>& notes)
{
    if (notes.size() < 2)
        return nullptr;
    // Read first: a note or an attachment that is locked ends the merge before anything has changed.
    std::vector<std::string> texts;
    texts.reserve(notes.size());
    for (const OVNote* note : notes)
        texts.push_back(note->text().value_or(""));
    EditGuard::requireReadableAttachments(notes);

    OVNote* merger = insertInManagedObjectContext(notes.front()->managedObjectContext());
    std::string merged;
    bool areAllPinned = true;
    for (std::size_t index = 0; index < notes.size(); ++index) {
        OVNote& note = *notes[index];
        appendNoteText(merged, merger->textAfterTakingAttachmentsOf(note, std::move(texts[index])));
        areAllPinned = areAllPinned && note.isPinned();
        note.trash();
    }
    merger->updateNoteWithText(merged);
    if (areAllPinned)
        merger->pin();
    else
        merger->unpin();
    return merger;
}

// Duplicating -------------------------------------------------------------------------------------------------------

namespace {

OVNoteBackLink& copyOfLink(const OVNoteBackLink& link)
{
    OVNoteBackLink* copy = OVNoteBackLink::insertInManagedObjectContext(link.managedObjectContext());
    copy->setLinkedBy(link.linkedBy());
    copy->setLinkingTo(link.linkingTo());
    copy->setTitle(link.title());
    copy->setLocation(link.location());
    return *copy;
}

/// What an encrypted text cannot be asked for.
void copyDerivedRelationships(const OVNote& source, OVNote& copy)
{
    copy.tagsSet().setObjects(source.tagsSet().allObjects());
    copy.setPassword(source.password());
    const std::vector<OVNoteBackLink*> outgoing = source.linkingToSet().allObjects();
    const std::vector<OVNoteBackLink*> incoming = source.linkedBySet().allObjects();
    for (const OVNoteBackLink* link : outgoing)
        copy.linkingToSet().addObject(copyOfLink(*link));
    for (const OVNoteBackLink* link : incoming)
        copy.linkedBySet().addObject(copyOfLink(*link));
}

std::string textWithIdentifier(std::string text, const std::string& newIdentifier, const std::string& oldIdentifier)
{
    if (oldIdentifier.empty())
        return text;
    for (std::size_t at = 0; (at = text.find(oldIdentifier, at)) != std::string::npos; at += newIdentifier.size())
        text.replace(at, oldIdentifier.size(), newIdentifier);
    return text;
}

} // namespace

OVNote* OVNote::duplicate() const
{
    NSManagedObjectContext& context = managedObjectContext();
    OVNote* copy = insertInManagedObjectContext(context);
    OVEncryptionCoreManager::performInManagedObjectContext(context, [&] { copyInto(*copy); });
    return copy;
}

void OVNote::copyInto(OVNote& copy) const
{
    copyAttributes(*this, copy);
    copy.updateUniqueIdentifier();
    if (encryptedValue())
        copyDerivedRelationships(*this, copy);
    for (OVNoteFile* file : filesSet().allObjects())
        file->duplicate()->setNote(&copy);
    copy.pinnedInTagsSet().setObjects(pinnedInTagsSet().allObjects());
    if (!encryptedValue())
        copy.updateNoteWithText(textWithIdentifier(
            text().value_or(""), copy.uniqueIdentifier().value_or(""), uniqueIdentifier().value_or("")));
    copy.setCreationDate(copy.modificationDate());
}

} // namespace tarn
