#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/session/Protection.h"
#include "tools/tarn/session/StoreLock.h"
#include "tools/tarn/session/WaitForOthers.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tarn {

/// The folder of the store: --store, else $TARN_STORE, else "tarn" in the XDG data folder.
std::filesystem::path storeFolderOf(const Invocation& invocation);
/// Whether there is a database in it.
bool storeExists(const Invocation& invocation);

/// One command's way to the store: opened (and made, by a command that writes) by the constructor, closed by the
/// destructor.
///
/// A reading command of a store that is not there yet finds no notes, and makes nothing. A writing one holds the
/// store's lock as long as the session lives, and first brings in step what a program left that died over attachments.
/// These lie in the store's folder while there is a session. A store of another version is looked at and nothing else:
/// no file is changed or made. Everything that fails raises `CommandFailure`, so that an empty answer is an answer. Who
/// waits longer than a second for another program says so on standard error. Main thread.
///
///     StoreSession session(invocation, StoreSession::Access::Write);
///     session.write([&] { OVNote::noteWithText(text, session.context()); });
class StoreSession {
public:
    enum class Access { Read, Write };

    StoreSession(const Invocation& invocation, Access access);
    ~StoreSession();
    StoreSession(const StoreSession&) = delete;
    StoreSession& operator=(const StoreSession&) = delete;

    NSManagedObjectContext& context() noexcept { return *context_; }
    NSPersistentStore& store() noexcept { return *store_; }
    const std::filesystem::path& folder() const noexcept { return folder_; }
    const std::filesystem::path& database() const noexcept { return database_; }
    Protection& protection() noexcept { return *protection_; }
    /// Whether there is a database on disk; false for a reading command on a folder without a store.
    bool exists() const noexcept { return exists_; }

    /// How a command ends that looked for something. Tells `nothing` where it found none in a store that is there.
    ExitCode exitCodeOfSearch(bool found, std::string_view nothing) const;

    /// Notes in the standard order: pinned first, then the latest modified. `limit` 0: all.
    std::vector<OVNote*> notes(const std::optional<NSPredicate>& predicate, std::size_t limit = 0);
    /// Notes in this order.
    std::vector<OVNote*> notes(
        const std::optional<NSPredicate>& predicate, const std::vector<NSSortDescriptor>& order, std::size_t limit);
    /// Each note in the order in which they came into the store, a page at a time: records end with their page.
    void forEachNote(const std::optional<NSPredicate>& predicate, const std::function<void(const OVNote&)>& handler);
    /// The latest modified first.
    std::vector<OVNote*> latestNotes(const std::optional<NSPredicate>& predicate, std::size_t limit);
    std::size_t countNotes(const std::optional<NSPredicate>& predicate);
    /// Tags in no particular order.
    std::vector<OVNoteTag*> tags(const std::optional<NSPredicate>& predicate);
    /// Links in no particular order.
    std::vector<OVNoteBackLink*> links(const std::optional<NSPredicate>& predicate);
    /// Attachments in no particular order.
    std::vector<OVNoteFile*> files(const std::optional<NSPredicate>& predicate);
    std::size_t countOfEntity(const NSEntityDescription& entity, const std::optional<NSPredicate>& predicate);

    /// Ends the use of the store, and writes its file anew where that is owed since something was protected; the lock
    /// is kept. Nothing else may be asked of the session then.
    void closeAndCompact();

    /// What to raise when the store failed: `what` could not be done, or somebody interrupted the wait for it.
    CommandFailure failure(const std::string& what, const NSError& error) const;
    /// Says that a save failed.
    std::string nothingWasSaved() const;

    /// Unlocks the notes that `find` gives, for a `write` that is to read them: before the store is locked, since
    /// somebody may have to type a password. `find` is not called for a store without passwords.
    void unlock(const std::function<std::vector<OVNote*>()>& find);
    /// Runs what reads records and changes them, and saves. The database is locked from before its first read to the
    /// end of the save, so that it builds upon what programs wrote that know nothing of the lock file. When it raises
    /// an exception, or what it did cannot be saved, nothing has changed.
    void write(const std::function<void()>& work);

private:
    void findForReading();
    void prepareForWriting();
    void refuseOtherVersions() const;
    void open(Access access);
    void close();
    void takeLock();
    bool closeAndCompactWhereOwed();
    void withoutLock(const std::function<void()>& work);
    template <typename Record> std::vector<Record*> records(const NSFetchRequest& request);

    std::filesystem::path folder_;
    std::filesystem::path database_;
    bool exists_ = true;
    WaitForOthers wait_;
    std::unique_ptr<StoreLock> lock_; ///< declared before the store: given back after it was closed
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    NSPersistentStore* store_ = nullptr;
    std::unique_ptr<NSManagedObjectContext> context_;
    std::unique_ptr<Protection> protection_; ///< declared after the context, which it serves
    NSNotificationSubscription changeLog_;   ///< writes what a save writes into the log, in the same transaction
};

} // namespace tarn
