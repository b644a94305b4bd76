#include "tarnmodel/store/OVCoreDataStack.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/store/StoreCompaction.h"

#include <chrono>
#include <utility>

namespace tarn {

namespace {

constexpr long kNeedsMigrationCode = 1;
constexpr int kMostSavesBeforeAWrite = 3;
constexpr std::chrono::milliseconds kLongestWaitForCompaction{500};
constexpr std::string_view kNeedsMigration = "The database need migration, open the main application";

} // namespace

OVCoreDataStack& OVCoreDataStack::sharedStack()
{
    static auto* const stack = new OVCoreDataStack;
    return *stack;
}

OVCoreDataStack::OVCoreDataStack() = default;

OVCoreDataStack::~OVCoreDataStack()
{
    if (coalescenceSaveTimer_)
        coalescenceSaveTimer_->invalidate();
    waitForMigration();
}

// Setting up ----------------------------------------------------------------------------------------------------------

void OVCoreDataStack::setDelegate(OVCoreDataStackDelegate* delegate)
{
    delegate_ = WeakReference<OVCoreDataStackDelegate>(delegate);
}

void OVCoreDataStack::setupStackWithDelegate(OVCoreDataStackDelegate* delegate)
{
    setDelegate(delegate);
    OVLocalFileManager::removeAbandonedTemporaryDirectories();
    if (isMigrationNeeded())
        migrate();
    else
        setupStack();
}

void OVCoreDataStack::setupStack()
{
    const bool isApplication = !managedObjectContext_; // extensions come with a context
    initializeCoreData();
    initializeInMemoryContext();
    if (managedObjectContext_)
        managedObjectContext_->performBlockAndWait([&] {
            OVNoteFile::recoverFilesInManagedObjectContext(*managedObjectContext_);
            if (isApplication)
                removeClearLeftovers();
        });
    OVCoreDataStackDelegate* const listener = delegate();
    if (listener && managedObjectContext_)
        listener->coreDataStackDidInitializeManagedObjectContext(*this, *managedObjectContext_);
}

void OVCoreDataStack::initializeCoreData()
{
    if (managedObjectContext_)
        return;
    if (persistentStoreType() == StoreType::SQLite)
        compactStore();
    NSError error;
    if (openStore(NSManagedObjectContext::ConcurrencyType::MainQueue, &error))
        return;
    if (OVCoreDataStackDelegate* const listener = delegate())
        listener->coreDataStackDidFailToInitializeManagedObjectContext(*this, error);
    else
        logMessage("Error while opening the store\n" + error.localizedDescription());
}

/// Before anything is open. What cannot be done now is still owed at the next start.
void OVCoreDataStack::compactStore()
{
    const std::filesystem::path store = persistentStoreURL();
    StoreCompaction::removeLeftovers(store);
    if (!StoreCompaction::isOwed(store))
        return;
    NSError error;
    const auto isShort = [](std::chrono::milliseconds waited) { return waited < kLongestWaitForCompaction; };
    if (!StoreCompaction::compact(store, isShort, &error))
        logMessage("The store is to be written anew, since something in it was protected; it could not be done now: "
            + error.localizedDescription());
}

/// What processes that died, and other programs, have left of what is protected by now.
void OVCoreDataStack::removeClearLeftovers()
{
    OVNoteFile::removeClearLeftoversInManagedObjectContext(*managedObjectContext_);
    if (!OVThumbFileManager::areTherePicturesWithoutThumbs(*managedObjectContext_))
        return;
    std::shared_ptr<NSManagedObjectContext> child = backgroundPrivateManagedObjectContext();
    NSManagedObjectContext& context = *child;
    context.performBlock([&context] {
        OVThumbFileManager::thumbFileManagerForPathComponent(OVNoteThumbFileDirectoryName)
            ->deleteThumbsWithoutPicture(context);
    });
    // The last reference to the main context must go on its own queue.
    context.performBlock([child = std::move(child), parent = managedObjectContext_]() mutable {
        child.reset();
        NSManagedObjectContext& main = *parent;
        main.performBlock([parent = std::move(parent)] {});
    });
}

bool OVCoreDataStack::openStore(NSManagedObjectContext::ConcurrencyType type, NSError* error)
{
    auto model = managedObjectModel(error);
    if (!model)
        return false;
    // Before the store is opened: a migration that was killed may have left a second name of it there.
    OVLocalFileManager::removeAbandonedTemporaryDirectories();
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(std::move(model));
    if (!coordinator->addPersistentStoreWithType(
            persistentStoreType(), persistentStoreURL(), persistentStoreOptions(), error))
        return false;
    auto context = std::make_shared<NSManagedObjectContext>(type);
    context->setPersistentStoreCoordinator(std::move(coordinator));
    context->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    // A task in the background may hold the context when the stack has ended.
    context->setMergeConflictHandler([this, stack = lifeline()](const MergeConflict& conflict) {
        if (!stack.expired())
            settleConflict(conflict);
    });
    managedObjectContext_ = std::move(context);
    return true;
}

void OVCoreDataStack::initializeInMemoryContext()
{
    if (inMemoryManagedObjectContext_)
        return;
    auto model = managedObjectModel();
    if (!model)
        return;
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(std::move(model));
    coordinator->addPersistentStoreWithType(StoreType::InMemory, {}, {});
    inMemoryManagedObjectContext_
        = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    inMemoryManagedObjectContext_->setPersistentStoreCoordinator(std::move(coordinator));
    inMemoryManagedObjectContext_->setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump);
}

// Conflicts -----------------------------------------------------------------------------------------------------------

void OVCoreDataStack::settleConflict(const MergeConflict& conflict)
{
    OVCoreDataStackDelegate* const listener = delegate();
    if (!listener || listener->coreDataStackShouldKeepLosingText(*this, conflict))
        if (OVNote* copy = OVNote::keepLosingText(conflict))
            tellOfKeptText(*copy);
    if (listener)
        listener->coreDataStackDidMergeConflict(*this, conflict);
}

/// On the child's queue, where the delegate cannot be asked; it hears of the copy once the child has been saved.
void OVCoreDataStack::settleConflictOfChild(const MergeConflict& conflict)
{
    const OVNote* copy = OVNote::keepLosingText(conflict);
    if (!copy)
        return;
    MainQueue::main().async([this, stack = lifeline(), identifier = copy->uniqueIdentifier().value_or("")] {
        if (stack.expired() || !managedObjectContext_)
            return;
        if (OVNote* kept = OVNote::noteWithUniqueIdentifier(identifier, *managedObjectContext_))
            tellOfKeptText(*kept);
    });
}

void OVCoreDataStack::tellOfKeptText(OVNote& copy)
{
    logMessage("A text that gave way to another writer's is kept as the note " + copy.uniqueIdentifier().value_or(""));
    if (OVCoreDataStackDelegate* const listener = delegate())
        listener->coreDataStackDidKeepLosingText(*this, copy);
}

// Work in the background ----------------------------------------------------------------------------------------------

std::unique_ptr<NSManagedObjectContext> OVCoreDataStack::backgroundPrivateManagedObjectContext()
{
    if (!managedObjectContext_)
        throw NSException(NSInternalInconsistencyException, "The store stack has no main context");
    auto context = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    managedObjectContext_->performBlockAndWait([&] { context->setParentContext(*managedObjectContext_); });
    context->setMergeConflictHandler([this, stack = lifeline()](const MergeConflict& conflict) {
        if (!stack.expired())
            settleConflictOfChild(conflict);
    });
    return context;
}

void OVCoreDataStack::performBackgroundTask(std::function<void(NSManagedObjectContext&)> block)
{
    if (MainQueue::main().isCurrent()) {
        runInBackground(std::move(block));
        return;
    }
    MainQueue::main().async([this, stack = lifeline(), block = std::move(block)]() mutable {
        if (!stack.expired())
            runInBackground(std::move(block));
    });
}

void OVCoreDataStack::runInBackground(std::function<void(NSManagedObjectContext&)> block)
{
    std::shared_ptr<NSManagedObjectContext> child = backgroundPrivateManagedObjectContext();
    // The last reference to the main context must go on its own queue, so it travels with the task to be run there.
    const auto saveMainContext = [this, stack = lifeline()](std::shared_ptr<NSManagedObjectContext> parent) {
        NSManagedObjectContext& context = *parent;
        context.performBlock([this, stack, parent = std::move(parent)] {
            if (!stack.expired())
                saveUsingCoalescence(false);
        });
    };
    NSManagedObjectContext& context = *child;
    context.performBlock(
        [&context, block = std::move(block), saveMainContext, parent = managedObjectContext_]() mutable {
            try {
                block(context);
            } catch (...) {
                saveMainContext(std::move(parent));
                throw; // to the log of the queue
            }
            saveMainContext(std::move(parent));
        });
    // After the end of the pass of the block, where the child has its changes to tell.
    context.performBlock([child = std::move(child)]() mutable { child.reset(); });
}

// Saving --------------------------------------------------------------------------------------------------------------

void OVCoreDataStack::saveUsingCoalescence(bool coalescence)
{
    if (coalescenceSaveTimer_)
        coalescenceSaveTimer_->invalidate();
    coalescenceSaveTimer_.reset();
    if (coalescence)
        coalescenceSaveTimer_ = Timer::scheduleAfterPass(MainQueue::main(), [this] { coalescenceSaveTimerFired(); });
    else
        save();
}

void OVCoreDataStack::coalescenceSaveTimerFired()
{
    saveUsingCoalescence(false);
}

void OVCoreDataStack::save()
{
    if (!managedObjectContext_)
        return;
    NSError error;
    managedObjectContext_->performBlockAndWait([&] { saveChanges(error); });
}

/// A failure goes to the log and the delegate.
bool OVCoreDataStack::saveChanges(NSError& error)
{
    if (!managedObjectContext_->hasChanges() || managedObjectContext_->save(&error))
        return true;
    logMessage("Error while saving\n" + error.localizedDescription());
    if (OVCoreDataStackDelegate* const listener = delegate())
        listener->coreDataStackDidFailToSave(*this, error);
    return false;
}

bool OVCoreDataStack::write(const std::function<void(NSManagedObjectContext&)>& block, NSError* error)
{
    if (!managedObjectContext_) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorCannotOpen, "The store is not open."));
        return false;
    }
    bool isWritten = false;
    NSError failure;
    managedObjectContext_->performBlockAndWait([&] { isWritten = writeUnderLock(block, failure); });
    if (!isWritten)
        assignError(error, failure);
    return isWritten;
}

bool OVCoreDataStack::writeUnderLock(const std::function<void(NSManagedObjectContext&)>& block, NSError& error)
{
    NSManagedObjectContext& context = *managedObjectContext_;
    if (isWriting_) {
        block(context);
        return true;
    }
    // Before the lock: what meets changes of others is merged as in any save, so the block starts from what the store
    // has, and whatever becomes of it takes nothing else along. Observers of the save may leave changes again.
    for (int round = 0; round < kMostSavesBeforeAWrite && context.hasChanges(); ++round)
        if (!saveChanges(error))
            return false;
    isWriting_ = true;
    const auto end = [this](void*) { isWriting_ = false; };
    const std::unique_ptr<void, decltype(end)> ending(this, end);
    if (context.performExclusive([&] { block(context); }, &error))
        return true;
    logMessage("Error while writing\n" + error.localizedDescription());
    context.rollback();
    return false;
}

// The store -----------------------------------------------------------------------------------------------------------

std::shared_ptr<const NSManagedObjectModel> OVCoreDataStack::managedObjectModel(NSError* error) const
{
    return OVManagedObjectModel::current(error);
}

std::optional<std::filesystem::path> OVCoreDataStack::managedObjectModelURL() const
{
    return OVManagedObjectModel::modelURL();
}

std::filesystem::path OVCoreDataStack::persistentStoreURL() const
{
    return OVLocalFileManager::databaseURL();
}

StoreOptions OVCoreDataStack::persistentStoreOptions() const
{
    return {.pragmas = {{"journal_mode", "DELETE"}}, .inferMappingModelAutomatically = true};
}

bool OVCoreDataStack::refusesToMigrate(std::string_view domain, NSError* error) const
{
    OVLocalFileManager::removeAbandonedTemporaryDirectories(); // before the store is opened to look at it
    if (!isMigrationNeeded())
        return false;
    assignError(error, NSError(domain, kNeedsMigrationCode, kNeedsMigration));
    return true;
}

} // namespace tarn
