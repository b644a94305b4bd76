#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/context/merging/VersionComparison.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace tarn {

class HeldRecords;
struct RemoteChanges;

/// Notices that others wrote to the store of a context, and brings the records that it holds up to date.
///
/// Whether somebody did is asked at each pass of the main queue, and after a fetch that met a commit. Only then are the
/// versions of rows compared, and only rows that moved are read. On the context's queue.
class OtherWriters {
public:
    /// What it asks of its context.
    class Host {
    public:
        /// Null before the context has one.
        virtual RowStore* storeIfAny() const = 0;
        virtual bool isSaving() const = 0;
        /// Whether the context holds the store's lock.
        virtual bool isExclusive() const = 0;
        virtual void takeRemoteChanges(const RemoteChanges& changes) = 0;
        virtual void processPendingChanges() = 0;

    protected:
        ~Host() = default;
    };

    OtherWriters(HeldRecords& records, Host& host) : records_(records), host_(host) { }
    OtherWriters(const OtherWriters&) = delete;
    OtherWriters& operator=(const OtherWriters&) = delete;

    /// From now on; what others wrote before has been read by nobody here.
    void begin();

    /// After a fetch, which may stand in the middle of an edit: clean records take new values, but for those whose text
    /// was handed out in this pass and may come back changed. The rest waits for the end of the pass.
    void lookAfterFetch();
    /// Under the store's lock, before anything is read there: every clean record takes its new values.
    void lookUnderLock();
    /// At the end of a pass, where no edit is half-way: everything, under unsaved changes as in a merge.
    void lookAtEndOfPass();

    /// A text of the record was read: until the end of the pass a fetch does not exchange it.
    void noteTextRead(const NSManagedObject& record);
    /// Posts that the store was changed elsewhere, if that was noticed since the last time.
    void tell();
    /// The context forgets its records.
    void reset() { handedOut_.clear(); }

private:
    /// What a look leaves for the end of the pass.
    struct Reserve {
        bool unsaved = false;
        bool handedOut = false;
    };
    /// Whether there is something to bring up to date.
    bool hasMoved();
    void catchUp(Reserve reserve);
    std::optional<VersionDifferences> news(Reserve reserve);
    /// False, and a line in the log, when the store cannot be read.
    bool compareRelationships(const std::vector<NSManagedObject*>& records, VersionDifferences& news);
    void noteFailure(const NSError& error);
    std::optional<bool> hasOtherMembers(NSManagedObject& record);
    void forgetTextsRead();

    HeldRecords& records_;
    Host& host_;
    std::optional<std::uint64_t> seenVersion_; ///< none before `begin`
    std::uint64_t seenCommits_ = 0;
    bool isBehind_ = false;  ///< something was left for the end of the pass
    bool isLooking_ = false; ///< reading calls back
    bool isInFetch_ = false;
    bool hasNotice_ = false; ///< for observers
    std::vector<const NSManagedObject*> handedOut_;
};

} // namespace tarn
