#include "examples/sync-folder/SyncEngine.h"

#include "examples/sync-folder/NoteRecord.h"

#include <algorithm>
#include <stdexcept>

namespace tarn::syncfolder {

namespace {

const NSEntityDescription& noteEntity(NSManagedObjectContext& context)
{
    return OVNote::entityInManagedObjectContext(context);
}

bool staysOnThisDevice(const OVNote& note)
{
    return note.skipSyncValue() || note.encryptedValue();
}

} // namespace

SyncEngine::SyncEngine(NSManagedObjectContext& context) : context_(context)
{
    OVServerMetadata* metadata = OVServerMetadata::serverMetadataInManagedObjectContext(context_);
    if (!metadata->noteZoneID()) {
        metadata->setNoteZoneID(zone_);
        OVChange::baselineChangesInManagedObjectContext(context_, true);
    }
    willSave_ = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextWillSaveNotification, &context_, [this](const NSNotification&) { recordSave(); });
    save();
}

void SyncEngine::deleteNote(OVNote& note)
{
    note.unmarkAsConflicted();
    note.setPermanentlyDeletedValue(true);
    // A deletion is an edit like any other: who has edited meanwhile is not overruled by it.
    note.updateNoteVectorClock();
}

// What is to be sent --------------------------------------------------------------------------------------------------

std::optional<Upload> SyncEngine::nextUpload()
{
    save();
    std::vector<std::string> deleted;
    const auto waiting = OVChange::objectsUpdatesSinceChange(nullptr, &deleted, noteEntity(context_), context_);
    if (!deleted.empty()) {
        // Deleted behind our back: the server still has them, and from the beginning of its changes they come back.
        settled_.insert(deleted.begin(), deleted.end());
        OVServerMetadata::resetServerChangeTokenInManagedObjectContext(context_);
    }
    const OVNote* next = nullptr;
    for (const NSManagedObject* record : waiting) {
        const auto& note = *static_cast<const OVNote*>(record);
        if (staysOnThisDevice(note))
            settled_.insert(note.uniqueIdentifier().value());
        else if (!next)
            next = &note;
    }
    takeOffTheList();
    settled_.clear();
    return next ? std::optional(Upload{recordOfNote(*next, zone_)}) : std::nullopt;
}

Fetch SyncEngine::nextFetch()
{
    return {OVServerMetadata::serverMetadataInManagedObjectContext(context_)->serverChangeToken()};
}

/// Each save of the context comes here, whoever asked for it.
void SyncEngine::recordSave()
{
    OVChange::updateChangesInInManagedObjectContext(context_);
    takeOffTheList();
}

/// What is settled, and what is not sent as such, leaves the list; so do changes of which nothing is left. The latest
/// stays, since the next one gets its order from it.
void SyncEngine::takeOffTheList()
{
    const OVChange* latest = OVChange::latestChangeInManagedObjectContext(context_);
    for (NSManagedObject* record :
        context_.executeFetchRequest(NSFetchRequest(OVChange::entityInManagedObjectContext(context_)))) {
        auto& change = *static_cast<OVChange*>(record);
        std::vector<std::string> done(settled_.begin(), settled_.end());
        for (const OVChangeItem* item : change.itemsSet().allObjects())
            if (item->itemEntity() != noteEntity(context_).name())
                done.push_back(item->uniqueIdentifier().value_or(""));
        change.removeChangeItemsWithUniqueIdentifiers(done);
        if (&change != latest && change.itemsSet().count() == 0)
            context_.deleteObject(change);
    }
}

void SyncEngine::save()
{
    NSError error;
    if (!context_.save(&error))
        throw std::runtime_error("cannot save: " + error.localizedDescription());
}

// What the server says ------------------------------------------------------------------------------------------------

bool SyncEngine::receive(const Reply& reply)
{
    save(); // what the user has done meanwhile, so that it is on the list
    bool moreComing = false;
    if (const auto* upload = std::get_if<UploadReply>(&reply))
        takeUploadReply(*upload);
    else
        moreComing = takeFetchReply(std::get<FetchReply>(reply));
    takeOffTheList(); // now, and once more when this save is recorded
    save();
    settled_.clear();
    return moreComing;
}

void SyncEngine::takeUploadReply(const UploadReply& reply)
{
    counts_.sent += reply.accepted;
    // A note that was sent and is not here any more was deleted meanwhile; a late answer must not bring it back.
    OVNote* note = OVNote::noteWithUniqueIdentifier(identifierOf(reply.current), context_);
    if (!note)
        return;
    bringInStep(*note, reply.current);
    settle(*note, reply.current);
}

bool SyncEngine::takeFetchReply(const FetchReply& reply)
{
    // The answer to an earlier question: what it says is known, or was changed since, and comes again.
    OVServerMetadata* metadata = OVServerMetadata::serverMetadataInManagedObjectContext(context_);
    if (metadata->serverChangeToken() != reply.since)
        return false;
    std::vector<std::pair<OVNote*, const CKRecord*>> taken;
    for (const CKRecord& record : reply.changed) {
        OVNote* note = OVNote::noteWithUniqueIdentifier(identifierOf(record), context_);
        if (!note && isTombstone(record))
            continue;
        if (!note) {
            note = OVNote::insertInManagedObjectContext(context_);
            note->setUniqueIdentifier(identifierOf(record));
        }
        bringInStep(*note, record);
        // Only now the record may go: an answer that was on its way when the deletion was sent would bring it back, but
        // from here on none is taken that does not know of it.
        if (note->permanentlyDeletedValue() && isTombstone(record))
            bury(*note);
        else
            taken.emplace_back(note, &record);
    }
    // When all are what they will be: one may change another, as the members of a conflict do.
    for (const auto& [note, record] : taken)
        settle(*note, *record);
    if (reply.since != reply.token)
        metadata->setServerChangeToken(reply.token);
    return reply.moreComing;
}

void SyncEngine::bringInStep(OVNote& note, const CKRecord& record)
{
    const TolVectorClock mine = note.noteVectorClock().value_or(TolVectorClock());
    const TolVectorClock theirs = clockOf(record);
    takeLaterStates(note, record);
    switch (mine.compare(theirs)) {
    case TolVectorClock::Follows:
        break;
    case TolVectorClock::Precedes:
        ++counts_.received;
        takeText(note, record, theirs);
        break;
    case TolVectorClock::Equal:
        // The same text; but two devices that came to it by themselves differ in its date.
        takeText(note, record, theirs);
        break;
    case TolVectorClock::Concurrent:
        keepBoth(note, record);
        break;
    }
}

/// Two devices have edited without knowing of each other. The version that the server has stays what it is, under the
/// identifier that all know; the one of this device, which nobody else has seen, becomes a note of its own. An edited
/// note outlives its deletion.
void SyncEngine::keepBoth(OVNote& note, const CKRecord& record)
{
    if (isTombstone(record) && !note.permanentlyDeletedValue()) {
        note.mergeVectorClockWithClock(clockOf(record)); // follows the deletion: the next upload takes it back
        return;
    }
    OVNote* copy = nullptr;
    const std::string text = note.text().value_or("");
    if (!note.permanentlyDeletedValue() && text != textOf(record)) {
        ++counts_.conflicts;
        copy = OVNote::noteWithText(text, context_);
        copy->setModificationDate(note.modificationDate());
    }
    takeText(note, record, clockOf(record));
    if (copy)
        copy->markAsConflictedFromNote(note);
}

/// Remembers what the server has, and whether it has the note as it is now.
void SyncEngine::settle(OVNote& note, const CKRecord& record)
{
    OVNoteServerData* data = note.serverData();
    if (!data) {
        data = OVNoteServerData::insertInManagedObjectContext(context_);
        note.setServerData(data);
    }
    data->setCkRecord(record);
    if (!haveEqualValues(recordOfNote(note, zone_), record)) {
        NSManagedObject* const waiting[] = {&note};
        OVChange::newChangeForNewOrUpdatedObjects(waiting, {}, context_);
        return;
    }
    settled_.insert(identifierOf(record));
}

void SyncEngine::bury(OVNote& note)
{
    settled_.insert(note.uniqueIdentifier().value());
    context_.deleteObject(note);
}

// A whole round -------------------------------------------------------------------------------------------------------

bool synchronise(SyncEngine& engine, const std::function<Reply(const Request&)>& server, std::size_t mostMessages)
{
    std::size_t messages = 0;
    const auto fetchAll = [&] {
        while (++messages < mostMessages && engine.receive(server(engine.nextFetch()))) { }
    };
    fetchAll();
    while (const auto upload = engine.nextUpload()) {
        if (++messages >= mostMessages)
            return false;
        engine.receive(server(*upload));
    }
    fetchAll(); // our own changes: they are known, but the token moves on
    return messages < mostMessages;
}

} // namespace tarn::syncfolder
