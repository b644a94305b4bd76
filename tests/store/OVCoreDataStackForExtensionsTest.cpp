#include "tarnmodel/store/OVCoreDataStackForExtensions.h"

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVNote.h"
#include "tests/store/StackFixture.h"

#include <fstream>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ExtensionStack : public StackFixture {
protected:
    void open()
    {
        NSError error;
        stack_ = OVCoreDataStackForExtensions::initStackOutputError(&error);
        ASSERT_TRUE(stack_) << error;
    }
    NSManagedObjectContext& context() { return *stack_->managedObjectContext(); }
    std::vector<std::string> queue()
    {
        std::vector<std::string> texts;
        for (const OVExternalChanges* change : OVExternalChanges::externalChangesInManagedObjectContext(context()))
            texts.push_back(std::to_string(change->itemChangeValue()) + " " + change->itemEntity().value_or("-"));
        return texts;
    }

    std::unique_ptr<OVCoreDataStackForExtensions> stack_;
};

TEST_F(ExtensionStack, HasTheContextsOfAnApplication)
{
    open();
    EXPECT_EQ(&context().queue(), &MainQueue::main());
    EXPECT_EQ(context().mergePolicy(), NSMergePolicy::MergeByPropertyStoreTrump);
    EXPECT_TRUE(stack_->inMemoryManagedObjectContext());
    EXPECT_THAT(files(), ElementsAre("database.sqlite")) << "made where there was none";
}

TEST_F(ExtensionStack, RecordsWhatItSavesInTheSameSave)
{
    open();
    noteTitled("shared", context());
    stack_->saveUsingCoalescence(true);
    MainQueue::main().drain();

    EXPECT_THAT(queue(), ElementsAre("0 OVNote"));
    const OVChange* change = OVChange::latestChangeInManagedObjectContext(context());
    ASSERT_TRUE(change);
    EXPECT_EQ(change->orderValue(), 0);
    const auto items = OVChange::changeItemsSinceChange(nullptr, context());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0]->itemEntity(), "OVNote");
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(ExtensionStack, RecordsWhatABackgroundTaskSaves)
{
    open();
    stack_->performBackgroundTask([](NSManagedObjectContext& child) {
        noteTitled("shared from behind", child);
        EXPECT_TRUE(child.save());
    });
    runUntil([&] { return !titlesInStore().empty(); });
    EXPECT_THAT(queue(), ElementsAre("0 OVNote"));
}

TEST_F(ExtensionStack, RecordsNothingOnceItsObserverIsGone)
{
    open();
    EXPECT_TRUE(stack_->saveObserver().isActive());
    stack_->tearDownObservers();
    EXPECT_FALSE(stack_->saveObserver().isActive());
    noteTitled("unrecorded", context());
    stack_->saveUsingCoalescence(false);
    EXPECT_THAT(queue(), IsEmpty());

    stack_->setupObserver();
    noteTitled("recorded", context());
    stack_->saveUsingCoalescence(false);
    EXPECT_THAT(queue(), ElementsAre("0 OVNote"));
}

TEST_F(ExtensionStack, LeavesTheSavesOfOtherContextsAlone)
{
    open();
    OVCoreDataStack application;
    application.setupStack();
    noteTitled("the application's own", *application.managedObjectContext());
    application.saveUsingCoalescence(false);
    EXPECT_THAT(queue(), IsEmpty());
}

TEST_F(ExtensionStack, TellsTheApplicationWhatItSaved)
{
    OVCoreDataStack application;
    application.setupStackWithDelegate(&listener_);
    NSManagedObjectContext& main = *application.managedObjectContext();
    OVNote& note = noteTitled("before", main);
    application.saveUsingCoalescence(false);
    open();
    OVNote::noteWithTitle("before", context())->setTitle("after");
    noteTitled("new", context());
    stack_->saveUsingCoalescence(false);
    EXPECT_EQ(note.title(), "before");

    const auto merged = OVExternalChanges::mergeExternalChangesInManagedObjectContext(main);
    application.saveUsingCoalescence(false);

    ASSERT_TRUE(merged);
    EXPECT_EQ(merged->size(), 2U);
    EXPECT_EQ(note.title(), "after");
    EXPECT_THAT(titlesIn(main), ElementsAre("after", "new"));
    EXPECT_THAT(queue(), IsEmpty());
}

TEST_F(ExtensionStack, RefusesAStoreThatNeedsMigration)
{
    expectRefusesStoresThatNeedMigration("OVCoreDataStackForExtensions",
        [](NSError* error) { return OVCoreDataStackForExtensions::initStackOutputError(error) != nullptr; });
}

TEST_F(ExtensionStack, TellsWhyTheStoreCannotBeOpened)
{
    expectRefusesAFileThatIsNoStore(
        [](NSError* error) { return OVCoreDataStackForExtensions::initStackOutputError(error) != nullptr; });
}

TEST_F(ExtensionStack, IsNeitherSharedNorSetUpAgainNorMigrates)
{
    open();
    EXPECT_EQ(OVCoreDataStackForExtensions::sharedStack(), nullptr);
    OVCoreDataStack& stack = *stack_;
    stack.setupStackWithDelegate(&listener_);
    stack.migrate();
    MainQueue::main().drain();
    EXPECT_EQ(stack.delegate(), nullptr);
    EXPECT_THAT(listener_.events, IsEmpty());
}

} // namespace
} // namespace tarn
