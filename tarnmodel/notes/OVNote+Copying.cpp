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
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <algorithm>

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

/// What comes out of protected notes is protected as the first of them is. Before it holds anything: nothing of it is
/// ever written in clear.
bool OVNote::protectAsFirstOf(const std::vector<OVNote*>& notes, NSError* error)
{
    const auto source = std::ranges::find_if(notes, [](const OVNote* note) { return note->encryptedValue(); });
    if (source == notes.end())
        return true;
    OVPassword* const password = (*source)->password();
    if (!password) {
        assignError(
            error, NSError(TarnEncryptionErrorDomain, OVEncryptionErrorLocked, "The password of a note is not here"));
        return false;
    }
    return encryptionCoreManager()->addEncryptionToObject(*this, *password, error);
}

/// Gives this note the attachments of `note`, and `text` the names that they have here.
bool OVNote::takeAttachmentsOf(const OVNote& note, std::string& text, NSError* error)
{
    const std::vector<OVNoteFile*> files = note.orderedFiles();
    return std::ranges::all_of(files, [&](const OVNoteFile* file) { return takeAttachment(*file, text, error); });
}

/// One whose bytes are not here is left out; a protected one must not get lost, or become clear.
bool OVNote::takeAttachment(const OVNoteFile& file, std::string& text, NSError* error)
{
    if (file.encryptedValue() && !file.downloadedValue())
        return true;
    const auto url = file.fileURL();
    if (!url && file.encryptedValue())
        assignError(error,
            NSError(TarnEncryptionErrorDomain, OVEncryptionErrorFile,
                "\"" + file.filename().value_or("") + "\" cannot be decrypted"));
    OVNoteFile* const taken = url ? OVNoteFile::getOrCreateFileFromURL(*url, *this, error) : nullptr;
    if (!taken)
        return !file.encryptedValue();
    if (file.encryptedValue() && !taken->encryptedValue()
        && !(file.password() && encryptionCoreManager()->addEncryptionToObject(*taken, *file.password(), error)))
        return false;
    const auto newName = taken->filename();
    const auto oldName = file.filename();
    if (newName && oldName && *newName != *oldName)
        text = textWithLinksTo(*newName, *oldName, text);
    return true;
}

/// Takes a note that was just made out of its context again, with its attachments.
void OVNote::takeBack()
{
    for (OVNoteFile* file : filesSet().allObjects())
        file->takeBack();
    managedObjectContext().deleteObject(*this);
}

OVNote* OVNote::mergeNotes(const std::vector<OVNote*>& notes, NSError* error)
{
    if (notes.size() < 2)
        return nullptr;
    NSManagedObjectContext& context = notes.front()->managedObjectContext();
    const auto held = EditGuard::holdUnlocked(context);
    // Read first: a note or an attachment that is locked ends the merge before anything has changed.
    EditGuard::requireReadable(notes);
    std::vector<std::string> texts;
    texts.reserve(notes.size());
    for (const OVNote* note : notes)
        texts.push_back(note->text().value_or(""));

    OVNote* merger = insertInManagedObjectContext(context);
    bool isWhole = merger->protectAsFirstOf(notes, error);
    for (std::size_t index = 0; isWhole && index < notes.size(); ++index)
        isWhole = merger->takeAttachmentsOf(*notes[index], texts[index], error);
    if (!isWhole) {
        merger->takeBack();
        return nullptr;
    }
    std::string merged;
    for (const std::string& text : texts)
        appendNoteText(merged, text);
    const bool areAllPinned = std::ranges::all_of(notes, [](const OVNote* note) { return note->isPinned(); });
    for (OVNote* note : notes)
        note->trash();
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
    const auto held = EditGuard::holdUnlocked(context);
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
