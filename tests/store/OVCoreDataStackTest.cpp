#include "tarnmodel/store/OVCoreDataStack.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/store/StackFixture.h"

#include <atomic>
#include <fstream>
#include <thread>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Type = NSManagedObjectContext::ConcurrencyType;

class StoreStack : public StackFixture {
protected:
    void setUp() { stack_->setupStackWithDelegate(&listener_); }
    NSManagedObjectContext& context() { return *stack_->managedObjectContext(); }
    /// Counts the saves of the main context from now on.
    void countSaves()
    {
        saving_ = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextDidSaveNotification,
            stack_->managedObjectContext(), [this](const NSNotification&) { ++saves_; });
    }

    std::unique_ptr<OVCoreDataStack> stack_ = std::make_unique<OVCoreDataStack>();
    NSNotificationSubscription saving_;
    int saves_ = 0;
};

// Setting up ----------------------------------------------------------------------------------------------------------

TEST_F(StoreStack, MakesANewStoreWhereThereIsNone)
{
    EXPECT_FALSE(stack_->isMigrationNeeded());

    setUp();

    EXPECT_THAT(listener_.events, ElementsAre("initialized"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    EXPECT_FALSE(stack_->isMigrationNeeded());
}

TEST_F(StoreStack, MakesAStoreOfAnEmptyFile)
{
    std::ofstream(storeFile()).flush();
    EXPECT_FALSE(stack_->isMigrationNeeded());

    setUp();

    EXPECT_THAT(listener_.events, ElementsAre("initialized"));
    EXPECT_THAT(titlesInStore(), IsEmpty());
}

TEST_F(StoreStack, OpensTheStoreThatIsThere)
{
    setUp();
    noteTitled("kept", context());
    stack_->saveUsingCoalescence(false);

    stack_ = std::make_unique<OVCoreDataStack>();
    setUp();

    EXPECT_THAT(titlesIn(context()), ElementsAre("kept"));
}

TEST_F(StoreStack, HasTheStatedParameters)
{
    EXPECT_EQ(stack_->persistentStoreType(), StoreType::SQLite);
    EXPECT_EQ(stack_->persistentStoreURL(), folder() / "database.sqlite");
    EXPECT_EQ(stack_->managedObjectModelURL()->filename(), "Model.momd");
    const StoreOptions options = stack_->persistentStoreOptions();
    EXPECT_THAT(options.pragmas, ElementsAre(testing::Pair("journal_mode", "DELETE")));
    EXPECT_TRUE(options.inferMappingModelAutomatically);
    EXPECT_FALSE(options.readOnly);
    EXPECT_EQ(stack_->managedObjectModel()->versionIdentifier(), "Model 3");
}

TEST_F(StoreStack, GivesAMainAndAScratchContext)
{
    EXPECT_FALSE(stack_->managedObjectContext());
    EXPECT_FALSE(stack_->inMemoryManagedObjectContext());

    setUp();

    NSManagedObjectContext& scratch = *stack_->inMemoryManagedObjectContext();
    EXPECT_EQ(context().mergePolicy(), NSMergePolicy::MergeByPropertyStoreTrump);
    EXPECT_EQ(scratch.mergePolicy(), NSMergePolicy::MergeByPropertyObjectTrump);
    EXPECT_EQ(&context().queue(), &MainQueue::main());
    EXPECT_EQ(&scratch.queue(), &MainQueue::main());
    noteTitled("scratched", scratch);
    EXPECT_TRUE(scratch.save());
    EXPECT_THAT(titlesIn(scratch), ElementsAre("scratched"));
    EXPECT_THAT(titlesInStore(), IsEmpty());
}

TEST_F(StoreStack, KeepsItsContextsWhenItIsSetUpAgain)
{
    setUp();
    NSManagedObjectContext* const main = stack_->managedObjectContext();
    NSManagedObjectContext* const scratch = stack_->inMemoryManagedObjectContext();

    stack_->setupStack();

    EXPECT_EQ(stack_->managedObjectContext(), main);
    EXPECT_EQ(stack_->inMemoryManagedObjectContext(), scratch);
}

TEST_F(StoreStack, TellsWhyTheStoreCannotBeOpened)
{
    std::ofstream(storeFile())
        << "This is no store, but a text that is longer than the header of one would have to be.";

    EXPECT_FALSE(stack_->isMigrationNeeded()) << "what cannot be read needs no migration";
    setUp();

    EXPECT_THAT(listener_.events, ElementsAre("failed"));
    EXPECT_EQ(listener_.error->code(), StoreErrorNotAStore);
    EXPECT_FALSE(stack_->managedObjectContext());
}

TEST_F(StoreStack, TellsThatTheModelIsMissing)
{
    world_.setVariable("TARN_RESOURCES", folder().string());
    setUp();

    EXPECT_THAT(listener_.events, ElementsAre("failed"));
    EXPECT_EQ(listener_.error->code(), StoreErrorInvalidModel);
    EXPECT_FALSE(stack_->inMemoryManagedObjectContext());
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(StoreStack, LogsAFailureThatNobodyHears)
{
    std::ofstream(storeFile())
        << "This is no store, but a text that is longer than the header of one would have to be.";
    stack_->setupStackWithDelegate(nullptr);

    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("Error while opening the store\n")));
}

TEST_F(StoreStack, ForgetsADelegateThatHasEnded)
{
    {
        StackListener shortLived;
        stack_->setupStackWithDelegate(&shortLived);
        EXPECT_EQ(stack_->delegate(), &shortLived);
    }
    EXPECT_EQ(stack_->delegate(), nullptr);
    stack_->setupStack();
}

TEST_F(StoreStack, IsOneForTheWholeProcess)
{
    std::atomic<OVCoreDataStack*> other = nullptr;
    std::thread([&] { other = &OVCoreDataStack::sharedStack(); }).join();
    EXPECT_EQ(&OVCoreDataStack::sharedStack(), other);
}

// Saving --------------------------------------------------------------------------------------------------------------

TEST_F(StoreStack, SavesOnceForAllRequestsOfAPass)
{
    setUp();
    MainQueue::main().drain();
    countSaves();
    noteTitled("one", context());
    stack_->saveUsingCoalescence(true);
    noteTitled("two", context());
    stack_->saveUsingCoalescence(true);
    EXPECT_TRUE(stack_->coalescenceSaveTimer()->isValid());
    EXPECT_EQ(saves_, 0);

    MainQueue::main().drain();

    EXPECT_EQ(saves_, 1);
    EXPECT_FALSE(stack_->coalescenceSaveTimer());
    EXPECT_THAT(titlesInStore(), ElementsAre("one", "two"));
}

TEST_F(StoreStack, SavesAtTheStartOfThePassAfterTheRequest)
{
    setUp();
    MainQueue::main().drain();
    countSaves();
    std::vector<int> seen;
    MainQueue::main().async([&] {
        noteTitled("asked for in a pass", context());
        stack_->saveUsingCoalescence(true);
        MainQueue::main().async([&] { seen.push_back(saves_); });
    });

    MainQueue::main().drain();
    EXPECT_EQ(saves_, 0) << "not in the same pass";
    MainQueue::main().drain();
    EXPECT_THAT(seen, ElementsAre(1)) << "before the tasks of the next one";
}

TEST_F(StoreStack, SavesAtOnceInPlaceOfAPendingSave)
{
    setUp();
    MainQueue::main().drain();
    countSaves();
    noteTitled("one", context());
    stack_->saveUsingCoalescence(true);
    const Timer pending = *stack_->coalescenceSaveTimer();

    stack_->saveUsingCoalescence(false);

    EXPECT_EQ(saves_, 1);
    EXPECT_FALSE(pending.isValid());
    EXPECT_FALSE(stack_->coalescenceSaveTimer());
    noteTitled("not asked for", context());
    MainQueue::main().drain();
    EXPECT_EQ(saves_, 1) << "the pending save was taken back";
}

TEST_F(StoreStack, SavesNothingWithoutChanges)
{
    setUp();
    countSaves();
    stack_->saveUsingCoalescence(false);
    stack_->saveUsingCoalescence(true);
    MainQueue::main().drain();
    EXPECT_EQ(saves_, 0);
}

TEST_F(StoreStack, SavesNothingBeforeItIsSetUp)
{
    stack_->saveUsingCoalescence(false);
    stack_->saveUsingCoalescence(true);
    MainQueue::main().drain();
    EXPECT_FALSE(stack_->managedObjectContext());
    EXPECT_THAT(listener_.events, IsEmpty());
    EXPECT_THAT(files(), IsEmpty());
}

TEST_F(StoreStack, TriesAgainWhatCouldNotBeSaved)
{
    setUp();
    noteTitled("persistent", context());
    std::filesystem::rename(storeFile(), folder() / "elsewhere.sqlite");
    stack_->saveUsingCoalescence(true);
    MainQueue::main().drain();

    EXPECT_THAT(listener_.events, ElementsAre("initialized", "not saved"));
    EXPECT_EQ(listener_.error->code(), StoreErrorReplaced);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("Error while saving\n")));
    EXPECT_TRUE(context().hasChanges());

    std::filesystem::rename(folder() / "elsewhere.sqlite", storeFile());
    stack_->saveUsingCoalescence(true);
    MainQueue::main().drain();

    EXPECT_FALSE(context().hasChanges());
    EXPECT_THAT(titlesInStore(), ElementsAre("persistent"));
}

TEST_F(StoreStack, TellsOfValuesThatGaveWayToAnotherWriter)
{
    setUp();
    OVNote& note = noteTitled("from the start", context());
    stack_->saveUsingCoalescence(false);
    OVCoreDataStack other;
    other.setupStack();
    OVNote::noteWithTitle("from the start", *other.managedObjectContext())->setShownInTodayWidgetValue(true);
    OVNote::noteWithTitle("from the start", *other.managedObjectContext())->setTitle("theirs");
    other.saveUsingCoalescence(false);

    note.setTitle("ours");
    stack_->saveUsingCoalescence(false);

    EXPECT_EQ(note.title(), "theirs") << "the store's value counts";
    EXPECT_THAT(listener_.events, ElementsAre("initialized", HasSubstr("conflict: ")));
    EXPECT_THAT(listener_.events.back(), HasSubstr("title"));
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("Two writers changed ")));
}

TEST_F(StoreStack, TakesItsPendingSaveBackWhenItEnds)
{
    setUp();
    noteTitled("never asked for again", context());
    stack_->saveUsingCoalescence(true);
    const Timer pending = *stack_->coalescenceSaveTimer();
    stack_.reset();
    EXPECT_FALSE(pending.isValid());
    MainQueue::main().drain();
    EXPECT_THAT(titlesInStore(), IsEmpty());
}

// Work in the background ----------------------------------------------------------------------------------------------

TEST_F(StoreStack, WritesWhatABackgroundTaskSavedIntoTheMainContext)
{
    setUp();
    countSaves();
    bool wasOnItsQueue = false;
    stack_->performBackgroundTask([&](NSManagedObjectContext& child) {
        wasOnItsQueue = child.queue().isCurrent() && !MainQueue::main().isCurrent();
        EXPECT_EQ(child.parentContext(), stack_->managedObjectContext());
        noteTitled("from behind", child);
        EXPECT_TRUE(child.save());
    });
    runUntil([&] { return saves_ == 1; });

    EXPECT_TRUE(wasOnItsQueue);
    EXPECT_THAT(titlesIn(context()), ElementsAre("from behind"));
    EXPECT_THAT(titlesInStore(), ElementsAre("from behind"));
}

TEST_F(StoreStack, KeepsNothingOfABackgroundTaskThatDidNotSave)
{
    setUp();
    noteTitled("pending here", context());
    countSaves();
    stack_->performBackgroundTask([](NSManagedObjectContext& child) { noteTitled("lost", child); });
    runUntil([&] { return saves_ == 1; });
    EXPECT_THAT(titlesInStore(), ElementsAre("pending here")) << "the main context is saved all the same";
}

TEST_F(StoreStack, SavesAlsoAfterABackgroundTaskThatThrew)
{
    setUp();
    noteTitled("pending here", context());
    countSaves();
    stack_->performBackgroundTask([](NSManagedObjectContext&) { throw std::runtime_error("tripped"); });
    runUntil([&] { return saves_ == 1; });
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("tripped")));
}

TEST_F(StoreStack, TakesBackgroundTasksFromAnyThread)
{
    setUp();
    countSaves();
    std::thread([&] {
        stack_->performBackgroundTask([](NSManagedObjectContext& child) {
            noteTitled("from a thread", child);
            EXPECT_TRUE(child.save());
        });
    }).join();
    runUntil([&] { return saves_ == 1; });
    EXPECT_THAT(titlesInStore(), ElementsAre("from a thread"));
}

TEST_F(StoreStack, RunsManyBackgroundTasksAtOnce)
{
    setUp();
    std::atomic<int> done = 0;
    for (int i = 0; i < 20; ++i)
        stack_->performBackgroundTask([&, i](NSManagedObjectContext& child) {
            noteTitled("task " + std::to_string(i), child);
            EXPECT_TRUE(child.save());
            ++done;
        });
    runUntil([&] { return done == 20 && !MainQueue::main().hasWork() && !context().hasChanges(); });
    EXPECT_EQ(titlesInStore().size(), 20U);
}

TEST_F(StoreStack, LetsABackgroundTaskEndAfterIt)
{
    setUp();
    std::atomic<bool> mayGo = false;
    std::atomic<bool> hasSaved = false;
    stack_->performBackgroundTask([&](NSManagedObjectContext& child) {
        while (!mayGo)
            std::this_thread::yield();
        noteTitled("too late", child);
        child.save();
        hasSaved = true;
    });
    stack_.reset();
    mayGo = true;
    runUntil([&] { return hasSaved && !MainQueue::main().hasWork(); });
    EXPECT_THAT(titlesInStore(), IsEmpty());
}

TEST_F(StoreStack, HasNoBackgroundContextBeforeItIsSetUp)
{
    EXPECT_THROW(stack_->backgroundPrivateManagedObjectContext(), NSException);
}

TEST_F(StoreStack, GivesBackgroundContextsToTheirCaller)
{
    setUp();
    const auto child = stack_->backgroundPrivateManagedObjectContext();
    EXPECT_EQ(child->parentContext(), stack_->managedObjectContext());
    EXPECT_NE(&child->queue(), &MainQueue::main());
    child->performBlockAndWait([&] {
        noteTitled("pushed", *child);
        EXPECT_TRUE(child->save());
    });
    EXPECT_TRUE(context().hasChanges()) << "only the main context writes to the store";
}

TEST_F(StoreStack, StopsAContextThatIsUsedOnAWrongQueueWhenAskedTo)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            setLogSink({});
            OVCoreDataStack::setQueueChecks(QueueChecks::Abort);
            setUp();
            stack_->performBackgroundTask([&](NSManagedObjectContext&) { titlesIn(context()); });
            MainQueue::main().runUntil([] { return false; });
        },
        R"(A context of the queue "main" was used on the queue "NSManagedObjectContext" \(thread 0x)");
}

} // namespace
} // namespace tarn
