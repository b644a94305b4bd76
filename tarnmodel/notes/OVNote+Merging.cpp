#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteAttributes.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteRelationships.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/notes/TextRewriting.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/RecordMerge.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <array>
#include <functional>

namespace tarn {

namespace {

std::optional<std::string> textOf(const Value& value)
{
    return value.kind() == Value::Kind::String ? std::optional(value.asString()) : std::nullopt;
}

/// Only a person's edit changes the date; what else changed the text can be told from it.
std::optional<TextRewriting> rewritingOf(const Value& former, const Value& rewritten)
{
    const auto before = textOf(former);
    const auto after = textOf(rewritten);
    return before && after ? TextRewriting::between(*before, *after) : std::nullopt;
}

/// The links and tags of a text do not wait for an attachment that is locked. False when there is one.
bool deriveWhatCanBeRead(const std::function<void()>& derive)
{
    try {
        derive();
        return true;
    } catch (const NSException& exception) {
        if (exception.name() != OVInvalidAccessorException)
            throw;
        logMessage("What follows from a text could not all be derived again: " + exception.reason());
        return false;
    }
}

} // namespace

// After a merge -------------------------------------------------------------------------------------------------------

void OVNote::awakeFromMerge(RecordMerge& merge)
{
    const auto text = storedText();
    if (!merge.isDecided(OVNoteAttributes::text()) || !text || encryptedValue())
        return;
    const std::string& kept = *text;
    const Value losing = merge.losingValue(OVNoteAttributes::text());
    deriveWhatCanBeRead([&] {
        deriveFromTextSummary(
            CVKAST::fromMarkdown(kept).textSummary(), textOf(merge.valueOfContext(OVNoteAttributes::title())));
    });
    if (textOf(losing) == kept) {
        merge.redoneInWinner(OVNoteAttributes::text());
        return;
    }
    const bool wasEdited = merge.formerValue(OVNoteAttributes::modificationDate())
        != merge.losingValue(OVNoteAttributes::modificationDate());
    const auto rewriting = wasEdited ? std::nullopt : rewritingOf(merge.formerValue(OVNoteAttributes::text()), losing);
    if (!rewriting)
        return;
    const std::string redone = rewriting->appliedTo(kept);
    if (redone == kept
        || deriveWhatCanBeRead([&] { updateNoteWithAST(CVKAST::fromMarkdown(std::string_view(redone)), false); }))
        merge.redoneInWinner(OVNoteAttributes::text());
}

void OVNote::deriveFromOthers()
{
    const std::set<std::string> changed = changedKeys();
    // The same text, parsed again, gives new links too.
    constexpr std::array derived{OVNoteAttributes::text(), OVNoteAttributes::title(), OVNoteRelationships::tags(),
        OVNoteRelationships::linkingTo(), OVNoteRelationships::files()};
    const bool isConcerned = isInserted()
        || std::ranges::any_of(derived, [&](std::string_view key) { return changed.contains(std::string(key)); });
    const auto text = storedText();
    if (!isConcerned || !text || encryptedValue())
        return;
    const std::string key(OVNoteAttributes::title());
    const auto formerTitle = isInserted() ? std::nullopt : textOf(committedValuesForKeys({key})[key]);
    deriveWhatCanBeRead([&] {
        const CVKAST document = CVKAST::fromMarkdown(*text);
        setTagsFromStrings(document.textSummary().tags);
        if (!leadsWhereLinksSay(document.textSummary().wikiLinks))
            setLinkedNotesFromWikiLinks(document.textSummary().wikiLinks);
        updateLinkedByNoteForNewTitle(title(), formerTitle);
        updateFilesFromTextSummary(document.textSummary());
    });
}

// Conflicted copies of what gave way ----------------------------------------------------------------------------------

namespace {

Value lostValue(const MergeConflict& conflict, std::string_view key)
{
    const auto found = conflict.lostValues.find(std::string(key));
    return found == conflict.lostValues.end() ? Value() : found->second;
}

/// What the side that gave way had: what it changed, or else left as it was. Where that was not read, what is stored.
Value valueOfLoser(const MergeConflict& conflict, std::string_view key)
{
    for (const auto* values : {&conflict.lostValues, &conflict.formerValues})
        if (const auto found = values->find(std::string(key)); found != values->end())
            return found->second;
    return conflict.record->entity().attributeNamed(key) ? conflict.record->storedValueForKey(key) : Value();
}

/// Of a note that is gone nobody misses a text into which the system alone put another name.
bool wasOnlyRewritten(const MergeConflict& conflict)
{
    if (conflict.cause == MergeConflict::Cause::ChangedByBoth
        || conflict.lostValues.contains(std::string(OVNoteAttributes::modificationDate())))
        return false;
    const auto former = conflict.formerValues.find(std::string(OVNoteAttributes::text()));
    return former != conflict.formerValues.end()
        && rewritingOf(former->second, lostValue(conflict, OVNoteAttributes::text())).has_value();
}

/// Whether one side protected the note while the other, which won, went on with the clear text.
bool lostItsProtection(const OVNote& note, const MergeConflict& conflict)
{
    const auto former = conflict.formerValues.find(std::string(OVNoteAttributes::encrypted()));
    return !note.encryptedValue() && former != conflict.formerValues.end() && former->second == Value(false);
}

} // namespace

bool OVNote::protectWhereAtHand(OVPassword* password)
{
    OVEncryptionCoreManagerProtocol* const manager = encryptionCoreManager();
    return password && manager && manager->hasCachedPassword(*password)
        && manager->addEncryptionToObject(*this, *password, nullptr);
}

OVNote* OVNote::keepLosingText(const MergeConflict& conflict)
{
    auto* note = dynamic_cast<OVNote*>(conflict.record);
    if (!note)
        return nullptr;
    const auto text = textOf(lostValue(conflict, OVNoteAttributes::text()));
    const bool isProtected = lostValue(conflict, OVNoteAttributes::encryptedData()).kind() == Value::Kind::Data;
    if ((!text || wasOnlyRewritten(conflict)) && !isProtected)
        return nullptr;
    OVNote* copy = insertInManagedObjectContext(note->managedObjectContext());
    // A text that was clear on one side is clear in the copy only where its note is, or its password is not at hand.
    const bool isOfProtected = !isProtected && !note->isDeleted() && note->encryptedValue();
    if (isOfProtected && !copy->protectWhereAtHand(note->password()))
        logMessage("A conflicted copy of a protected note is not protected: its password is locked");
    if (!note->isDeleted())
        copy->takeAttachmentsAsIn(*note);
    else if (text)
        copy->takeNewAttachmentsOf(CVKAST::fromMarkdown(std::string_view(*text)));
    if (isProtected)
        copy->takeProtectedValues(conflict);
    else
        copy->takeDocument(CVKAST::fromMarkdown(std::string_view(*text)), false);
    if (isProtected && !note->isDeleted() && lostItsProtection(*note, conflict)
        && !note->protectWhereAtHand(copy->password()))
        logMessage("A note that was protected while another writer changed its text is clear: its password is locked");
    if (const Value date = lostValue(conflict, OVNoteAttributes::modificationDate()); date.kind() == Value::Kind::Date)
        copy->setModificationDate(date.asDate());
    if (!note->isDeleted())
        copy->markAsConflictedFromNote(*note);
    return copy;
}

/// So that the links of the copy's text lead to files of its own.
void OVNote::takeAttachmentsAsIn(const OVNote& note)
{
    for (OVNoteFile* file : note.filesSet().allObjects())
        file->duplicate()->setNote(this);
}

/// What was attached here to a note that others deleted meanwhile, and is of no note now: the files that the text
/// names.
void OVNote::takeNewAttachmentsOf(const CVKAST& document)
{
    const std::vector<std::string>& links = document.textSummary().links;
    for (NSManagedObject* record : managedObjectContext().insertedObjects()) {
        auto* file = dynamic_cast<OVNoteFile*>(record);
        const bool isNamed = file && !file->note() && !file->encryptedValue()
            && std::ranges::any_of(links, [&](const std::string& link) { return file->filenameIsEqualTo(link); });
        if (isNamed)
            file->setNote(this);
    }
}

/// As they are stored: whoever has the password reads the copy like the note.
void OVNote::takeProtectedValues(const MergeConflict& conflict)
{
    for (const std::string_view key :
        {OVNoteAttributes::title(), OVNoteAttributes::encrypted(), OVNoteAttributes::encryptedData(),
            OVNoteAttributes::encryptionDate(), OVNoteAttributes::encryptionUniqueIdentifier()}) {
        setPrimitiveValueForKey(key, valueOfLoser(conflict, key));
    }
    setEncryptedValue(true);
    const Value password = valueOfLoser(conflict, OVNoteRelationships::password());
    if (password.kind() == Value::Kind::Object)
        setPassword(const_cast<OVPassword*>(dynamic_cast<const OVPassword*>(&password.asObject())));
    else if (auto* note = static_cast<OVNote*>(conflict.record); !note->isDeleted())
        setPassword(note->password());
}

} // namespace tarn
