#include "tools/tarn/session/StoreSession.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/StoreCompaction.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/session/StoreVersion.h"

#include <chrono>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kNotesAtATime = 500;

bool isOfOtherVersion(const NSError& error)
{
    return error.domain() == TarnStoreErrorDomain && error.code() == StoreErrorIncompatible;
}

} // namespace

fs::path storeFolderOf(const Invocation& invocation)
{
    if (invocation.storeOption) {
        if (invocation.storeOption->empty())
            throw CommandFailure(ExitCode::Usage, "--store needs the name of a folder");
        return *invocation.storeOption;
    }
    const Environment& environment = Environment::current();
    if (const auto folder = environment.variable("TARN_STORE"); folder && !folder->empty())
        return *folder;
    return OVLocalFileManager::applicationGroupURL();
}

bool storeExists(const Invocation& invocation)
{
    std::error_code error;
    return fs::exists(OVLocalFileManager::databaseURLInGroupFolder(storeFolderOf(invocation)), error);
}

StoreSession::StoreSession(const Invocation& invocation, Access access)
    : folder_(storeFolderOf(invocation)), database_(OVLocalFileManager::databaseURLInGroupFolder(folder_)),
      wait_(database_)
{
    OVLocalFileManager::setApplicationGroupURL(fs::absolute(folder_));
    if (access == Access::Write)
        prepareForWriting();
    else
        findForReading();
    open(access);
    // After programs that died: under the lock of the store, so that no other tarn is at it.
    if (access == Access::Write) {
        if (closeAndCompactWhereOwed())
            open(access);
        OVNoteFile::recoverFilesInManagedObjectContext(*context_);
        OVNoteFile::removeClearLeftoversInManagedObjectContext(*context_);
        context_->reset();
    }
    protection_ = std::make_unique<Protection>(
        *context_, invocation.passwords, [this](const std::function<void()>& ask) { withoutLock(ask); });
}

StoreSession::~StoreSession() = default;

void StoreSession::findForReading()
{
    std::error_code error;
    exists_ = fs::exists(database_, error);
    if (error)
        throw failureForSystemError(database_.string(), error.value());
    // A tarn that makes the store at this moment begins with an empty file.
    if (fs::is_regular_file(database_, error) && fs::file_size(database_, error) == 0)
        exists_ = false;
    if (!exists_)
        tellOnStandardError("there is no store in " + folder_.string() + " yet; 'tarn new' and 'tarn import' make one");
}

void StoreSession::prepareForWriting()
{
    // A migration that died may have left a second name of the store, which goes before anybody opens it.
    OVLocalFileManager::removeAbandonedTemporaryDirectories();
    refuseOtherVersions();
    const fs::path folder = fs::absolute(database_.parent_path());
    if (const std::error_code failure = createPrivateFolder(folder))
        throw failureForSystemError("cannot make the folder " + folder.string(), failure.value());
    takeLock();
    StoreCompaction::removeLeftovers(database_);
}

/// What a program began that died, or could not do; it stays owed where it cannot be done now either. The store that is
/// open is asked, since hardly any owes something; false, and it stays open, where it does not.
bool StoreSession::closeAndCompactWhereOwed()
{
    if (!StoreCompaction::isOwed(*store_))
        return false;
    close();
    NSError error;
    const auto goesOn = [this](std::chrono::milliseconds waited) { return wait_.goesOn(waited); };
    if (!StoreCompaction::compact(database_, goesOn, &error))
        tellOnStandardError("clear text may be left in free pages of " + database_.string()
            + ", which could not be written anew: " + singleLine(error.localizedDescription())
            + "; the next command that writes tries again");
    return true;
}

void StoreSession::closeAndCompact()
{
    if (!closeAndCompactWhereOwed())
        close();
}

void StoreSession::close()
{
    changeLog_ = {};
    protection_.reset();
    context_.reset();
    store_ = nullptr;
    coordinator_.reset();
}

void StoreSession::takeLock()
{
    lock_ = std::make_unique<StoreLock>(database_.parent_path() / "tarn.lock", StoreLock::limitOfEnvironment());
}

/// Before there is even a file for the lock. What another program has locked, or what is no store, is met again when
/// the store is opened.
void StoreSession::refuseOtherVersions() const
{
    std::error_code failure;
    if (!fs::is_regular_file(database_, failure) || fs::file_size(database_, failure) == 0)
        return;
    if (!isStoreOfOtherVersion(database_, [](std::chrono::milliseconds) { return false; }))
        return;
    const StoreMigrationPlan plan = StoreMigrationPlan::planForStoreAtURL(database_, *modelOfStores());
    // Another program may have migrated it this very moment.
    if (plan.standing != StoreStanding::Current)
        throw failureForVersionOfStore(database_, plan);
}

void StoreSession::open(Access access)
{
    NSError error;
    coordinator_ = std::make_shared<NSPersistentStoreCoordinator>(modelOfStores());
    const StoreOptions options{.createIfMissing = access == Access::Write,
        .whileWaiting = [this](std::chrono::milliseconds waited) { return wait_.goesOn(waited); }};
    store_ = coordinator_->addPersistentStoreWithType(
        exists_ ? StoreType::SQLite : StoreType::InMemory, database_, options, &error);
    if (!store_)
        throw isOfOtherVersion(error) ? failureForVersionOfStore(database_, error) : failure(database_.string(), error);
    MainQueue::main(); // this thread is its owner
    context_ = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context_->setPersistentStoreCoordinator(coordinator_);
    changeLog_ = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification,
        context_.get(), [this](const NSNotification&) { OVChange::updateChangesInInManagedObjectContext(*context_); });
}

/// For what waits for a person: other programs may write meanwhile.
void StoreSession::withoutLock(const std::function<void()>& work)
{
    if (!lock_)
        return work();
    lock_.reset();
    work();
    takeLock();
}

void StoreSession::unlock(const std::function<std::vector<OVNote*>()>& find)
{
    if (protection_->hasPasswords())
        protection_->unlock(find());
}

CommandFailure StoreSession::failure(const std::string& what, const NSError& error) const
{
    if (Interruption::requested() && exitCodeForStoreError(error) == ExitCode::Locked)
        return {ExitCode::Interrupted, what + ": interrupted while another program was using the store"};
    return failureForStoreError(what, error);
}

template <typename Record> std::vector<Record*> StoreSession::records(const NSFetchRequest& request)
{
    NSError error;
    const auto fetched = context_->fetch(request, &error);
    if (!fetched)
        throw failure("cannot read the store", error);
    std::vector<Record*> records;
    records.reserve(fetched->size());
    for (NSManagedObject* record : *fetched)
        records.push_back(static_cast<Record*>(record));
    return records;
}

ExitCode StoreSession::exitCodeOfSearch(bool found, std::string_view nothing) const
{
    if (!found && exists_)
        tellOnStandardError(nothing);
    return found ? ExitCode::Done : ExitCode::Failed;
}

std::vector<OVNote*> StoreSession::notes(const std::optional<NSPredicate>& predicate, std::size_t limit)
{
    return notes(predicate, OVNote::standardSortDescriptors(), limit);
}

std::vector<OVNote*> StoreSession::notes(
    const std::optional<NSPredicate>& predicate, const std::vector<NSSortDescriptor>& order, std::size_t limit)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(*context_));
    request.predicate = predicate;
    request.sortDescriptors = order;
    request.fetchLimit = limit;
    return records<OVNote>(request);
}

void StoreSession::forEachNote(
    const std::optional<NSPredicate>& predicate, const std::function<void(const OVNote&)>& handler)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(*context_));
    request.predicate = predicate;
    request.fetchLimit = kNotesAtATime;
    std::size_t count = kNotesAtATime;
    while (count == kNotesAtATime) {
        const std::vector<OVNote*> notes = records<OVNote>(request);
        for (const OVNote* note : notes)
            handler(*note);
        count = notes.size();
        request.fetchOffset += count;
        context_->reset();
    }
}

std::vector<OVNote*> StoreSession::latestNotes(const std::optional<NSPredicate>& predicate, std::size_t limit)
{
    return notes(predicate, {{.key = "modificationDate", .ascending = false}}, limit);
}

std::size_t StoreSession::countNotes(const std::optional<NSPredicate>& predicate)
{
    return countOfEntity(OVNote::entityInManagedObjectContext(*context_), predicate);
}

std::vector<OVNoteTag*> StoreSession::tags(const std::optional<NSPredicate>& predicate)
{
    NSFetchRequest request(OVNoteTag::entityInManagedObjectContext(*context_));
    request.predicate = predicate;
    return records<OVNoteTag>(request);
}

std::vector<OVNoteBackLink*> StoreSession::links(const std::optional<NSPredicate>& predicate)
{
    NSFetchRequest request(OVNoteBackLink::entityInManagedObjectContext(*context_));
    request.predicate = predicate;
    return records<OVNoteBackLink>(request);
}

std::vector<OVNoteFile*> StoreSession::files(const std::optional<NSPredicate>& predicate)
{
    NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(*context_));
    request.predicate = predicate;
    return records<OVNoteFile>(request);
}

std::size_t StoreSession::countOfEntity(const NSEntityDescription& entity, const std::optional<NSPredicate>& predicate)
{
    NSFetchRequest request(entity);
    request.predicate = predicate;
    NSError error;
    const std::optional<std::size_t> count = context_->count(request, &error);
    if (!count)
        throw failure("cannot read the store", error);
    return *count;
}

std::string StoreSession::nothingWasSaved() const
{
    return "nothing was saved to " + database_.string();
}

void StoreSession::write(const std::function<void()>& work)
{
    NSError error;
    if (context_->performExclusive(work, &error))
        return;
    context_->rollback();
    throw failure(nothingWasSaved(), error);
}

} // namespace tarn
