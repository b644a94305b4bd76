#pragma once

#include "examples/sync-folder/Messages.h"

#include <cstddef>
#include <functional>
#include <set>
#include <string>

namespace tarn::syncfolder {

/// What a device did so far.
struct SyncCounts {
    std::size_t sent = 0;     ///< notes that the server has taken
    std::size_t received = 0; ///< notes that other devices made, changed or deleted
    std::size_t conflicts = 0;
};

/// Keeps the notes of one store in step with a server.
///
/// The change log is the list of what is to be sent: each save adds to it, and a note is taken off it once the server
/// is known to have it as it is. Whatever the server says about a note, in answer to an upload or to a fetch, is dealt
/// with in one way: compare the clocks, take over what is newer, keep both where two devices have edited, look whether
/// anything is left to send. So it does not matter whether a message is lost, comes twice or comes late.
///
/// Attachments, protected notes and the settings of tags stay on the device; tags themselves follow from the texts.
///
/// The engine records the saves of its context, so nobody else must. Confined to the context's queue.
///
///     SyncEngine engine(context);
///     synchronise(engine, [&](const Request& request) { return server.answer(request); });
class SyncEngine {
public:
    /// On the first time with a store, everything in it is to be sent.
    explicit SyncEngine(NSManagedObjectContext& context);

    /// Deletes a note for good, on all devices. The record goes when the server has heard of it; until then it is a
    /// tombstone (`permanentlyDeleted`), which lists should leave out. A note whose record is deleted in any other way
    /// comes back from the server.
    void deleteNote(OVNote& note);

    /// The next note that is to be sent; none when the server has everything.
    std::optional<Upload> nextUpload();
    Fetch nextFetch();
    /// Deals with an answer, whether it was waited for or not. True when there is more to fetch. Saves the context.
    bool receive(const Reply& reply);

    const SyncCounts& counts() const noexcept { return counts_; }

private:
    void takeUploadReply(const UploadReply& reply);
    bool takeFetchReply(const FetchReply& reply);
    void bringInStep(OVNote& note, const CKRecord& record);
    void keepBoth(OVNote& note, const CKRecord& record);
    void settle(OVNote& note, const CKRecord& record);
    void bury(OVNote& note);
    void save();
    void recordSave();
    void takeOffTheList();

    NSManagedObjectContext& context_;
    CKRecordZoneID zone_{"Notes"};
    std::set<std::string> settled_; ///< identifiers of notes that the server has as they are
    SyncCounts counts_;
    NSNotificationSubscription willSave_;
};

/// Asks and tells until neither side has news. Gives up after so many messages, which tells a loop from a long list:
/// false.
bool synchronise(
    SyncEngine& engine, const std::function<Reply(const Request&)>& server, std::size_t mostMessages = 100'000);

} // namespace tarn::syncfolder
