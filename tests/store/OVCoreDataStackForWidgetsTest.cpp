#include "tarnmodel/store/OVCoreDataStackForWidgets.h"

#include "tarnmodel/model/OVNote.h"
#include "tests/store/StackFixture.h"

#include <fstream>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class WidgetStack : public StackFixture {
protected:
    void open()
    {
        NSError error;
        stack_ = OVCoreDataStackForWidgets::initStack(&error);
        ASSERT_TRUE(stack_) << error;
    }
    void saveNote(std::string_view title)
    {
        OVCoreDataStack application;
        application.setupStack();
        noteTitled(title, *application.managedObjectContext());
        application.saveUsingCoalescence(false);
    }
    std::vector<std::string> titles()
    {
        std::vector<std::string> found;
        stack_->managedObjectContext()->performBlockAndWait([&] { found = titlesIn(*stack_->managedObjectContext()); });
        return found;
    }

    std::unique_ptr<OVCoreDataStackForWidgets> stack_;
};

TEST_F(WidgetStack, ReadsWhatTheApplicationSaved)
{
    saveNote("one");
    open();
    EXPECT_THAT(titles(), ElementsAre("one"));
    saveNote("two");
    EXPECT_THAT(titles(), ElementsAre("one", "two"));
}

TEST_F(WidgetStack, HasOneContextOnAQueueOfItsOwn)
{
    open();
    EXPECT_NE(&stack_->managedObjectContext()->queue(), &MainQueue::main());
    EXPECT_EQ(stack_->managedObjectContext()->parentContext(), nullptr);
    EXPECT_EQ(stack_->managedObjectContext()->mergePolicy(), NSMergePolicy::MergeByPropertyStoreTrump);
    EXPECT_FALSE(stack_->inMemoryManagedObjectContext());
}

TEST_F(WidgetStack, MakesAnEmptyStoreWhenItComesFirst)
{
    open();
    EXPECT_THAT(titles(), IsEmpty());
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    EXPECT_FALSE(OVCoreDataStack().isMigrationNeeded());
}

TEST_F(WidgetStack, MakesAStoreOfAnEmptyFile)
{
    std::ofstream(storeFile()).flush();
    open();
    EXPECT_THAT(titles(), IsEmpty());
    saveNote("one");
    EXPECT_THAT(titles(), ElementsAre("one"));
}

TEST_F(WidgetStack, NeverWrites)
{
    saveNote("one");
    const UntouchedFile store(storeFile());
    open();
    EXPECT_THAT(titles(), ElementsAre("one"));
    stack_->managedObjectContext()->performBlockAndWait([&] { noteTitled("two", *stack_->managedObjectContext()); });
    stack_->saveUsingCoalescence(false);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("The store is read-only.")));
    stack_.reset();
    store.expectUntouched();
}

TEST_F(WidgetStack, RefusesAStoreThatNeedsMigration)
{
    expectRefusesStoresThatNeedMigration("OVCoreDataStackForWidgets",
        [](NSError* error) { return OVCoreDataStackForWidgets::initStack(error) != nullptr; });
}

TEST_F(WidgetStack, TellsWhyTheStoreCannotBeOpened)
{
    expectRefusesAFileThatIsNoStore(
        [](NSError* error) { return OVCoreDataStackForWidgets::initStack(error) != nullptr; });

    std::filesystem::remove_all(folder());
    NSError error;
    EXPECT_FALSE(OVCoreDataStackForWidgets::initStack(&error));
    EXPECT_EQ(error.code(), StoreErrorCannotOpen) << "without the folder";
    std::filesystem::create_directories(folder());
}

TEST_F(WidgetStack, IsNeitherSharedNorSetUpAgainNorMigrates)
{
    open();
    EXPECT_EQ(OVCoreDataStackForWidgets::sharedStack(), nullptr);
    OVCoreDataStack& stack = *stack_;
    stack.setupStackWithDelegate(&listener_);
    stack.setupStack();
    stack.migrate();
    MainQueue::main().drain();
    EXPECT_THAT(listener_.events, IsEmpty());
    EXPECT_FALSE(stack.inMemoryManagedObjectContext());
}

} // namespace
} // namespace tarn
