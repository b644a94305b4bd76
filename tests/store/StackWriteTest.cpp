// What `write` of a stack promises to who changes a little of what others change too.

#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tarnmodel/store/OVCoreDataStackForWidgets.h"
#include "tests/store/StackFixture.h"

#include <stdexcept>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class StackWrite : public StackFixture {
protected:
    void SetUp() override
    {
        stack_.setupStackWithDelegate(&listener_);
        listener_.events.clear();
        OVNote::noteWithText("# Groceries\n\n- pears", context());
        stack_.saveUsingCoalescence(false);
        MainQueue::main().drain();
    }

    NSManagedObjectContext& context() { return *stack_.managedObjectContext(); }
    static OVNote& groceries(NSManagedObjectContext& context) { return *OVNote::noteWithTitle("Groceries", context); }
    /// Another process appends a line.
    static void appendElsewhere(std::string_view line)
    {
        OVCoreDataStack other;
        other.setupStack();
        groceries(*other.managedObjectContext()).appendNoteWithText(line);
        other.saveUsingCoalescence(false);
    }
    static std::string storedText()
    {
        OVCoreDataStack other;
        other.setupStack();
        return groceries(*other.managedObjectContext()).text().value_or("(none)");
    }
    void append(std::string_view line)
    {
        NSError error;
        EXPECT_TRUE(
            stack_.write([&](NSManagedObjectContext& context) { groceries(context).appendNoteWithText(line); }, &error))
            << error;
    }

    OVCoreDataStack stack_;
};

TEST_F(StackWrite, SavesWhatItsBlockDid)
{
    append("- plums");
    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- plums");
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(StackWrite, StartsFromWhatOthersSaved)
{
    OVNote& note = groceries(context());
    ASSERT_EQ(note.text(), "# Groceries\n\n- pears");
    appendElsewhere("- figs");

    // The record that the caller holds, without another look into the store.
    ASSERT_TRUE(stack_.write([&](NSManagedObjectContext&) { note.appendNoteWithText("- plums"); }));

    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- figs\n- plums");
    EXPECT_THAT(listener_.events, IsEmpty()) << "nothing met anything";
}

TEST_F(StackWrite, SavesWhatIsUnsavedBeforeItsBlock)
{
    OVNote& note = groceries(context());
    note.pin();
    OVNote::noteWithText("# Unsaved", context());
    appendElsewhere("- figs");

    append("- plums");

    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- figs\n- plums");
    EXPECT_TRUE(note.pinnedValue());
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries", "Unsaved"));
}

TEST_F(StackWrite, KeepsUnsavedTextThatNobodyElseChanged)
{
    groceries(context()).appendNoteWithText("- typed");
    append("- plums");
    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- typed\n- plums");
}

TEST_F(StackWrite, NeverWritesOverAnotherTextOnTheGroundOfAnUnsavedOne)
{
    groceries(context()).appendNoteWithText("- typed");
    appendElsewhere("- figs");

    append("- plums");

    EXPECT_THAT(listener_.events, ElementsAre(HasSubstr("conflict:"))) << "of the typed text, before the block";
    EXPECT_THAT(takeLog(), testing::Contains(HasSubstr("Two writers changed ")));
    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- figs\n- plums");
}

TEST_F(StackWrite, IsJoinedByWritesAndSavesInside)
{
    int saves = 0;
    const auto saving = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextDidSaveNotification, &context(), [&](const NSNotification&) { ++saves; });
    NSError error;
    ASSERT_TRUE(stack_.write(
        [&](NSManagedObjectContext& context) {
            groceries(context).appendNoteWithText("- plums");
            EXPECT_TRUE(context.save());
            stack_.saveUsingCoalescence(false);
            append("- figs");
            EXPECT_EQ(saves, 0) << "all of it or nothing";
        },
        &error))
        << error;
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- plums\n- figs");
}

TEST_F(StackWrite, LeavesNothingOfABlockThatThrew)
{
    OVNote::noteWithText("# Unsaved", context());
    const auto writing = [&] {
        stack_.write([](NSManagedObjectContext& context) {
            groceries(context).appendNoteWithText("- plums");
            OVNote::noteWithText("# New", context);
            throw std::runtime_error("tripped");
        });
    };
    EXPECT_THROW(writing(), std::runtime_error);

    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(groceries(context()).text(), "# Groceries\n\n- pears");
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries", "Unsaved")) << "what was there before is saved";
    append("- figs");
    EXPECT_EQ(storedText(), "# Groceries\n\n- pears\n- figs") << "the lock is free";
}

TEST_F(StackWrite, LeavesNothingOfABlockThatCannotBeSavedAndSaysWhy)
{
    // Will-save observers are the last who can be in the way.
    const auto breaking = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification,
        &context(), [this](const NSNotification&) { std::filesystem::rename(storeFile(), folder() / "away"); });
    NSError error;
    EXPECT_FALSE(stack_.write(
        [&](NSManagedObjectContext& context) {
            groceries(context).appendNoteWithText("- plums");
            OVNote::noteWithText("# New", context);
        },
        &error));
    std::filesystem::rename(folder() / "away", storeFile());

    EXPECT_EQ(error.code(), StoreErrorReplaced);
    EXPECT_THAT(takeLog(), testing::Contains(HasSubstr("Error while writing\n")));
    EXPECT_FALSE(context().hasChanges()) << "who tries again does not write it twice";
    EXPECT_EQ(storedText(), "# Groceries\n\n- pears");
}

TEST_F(StackWrite, SaysWhyTheLockCouldNotBeHad)
{
    OVNote::noteWithText("# Unsaved", context());
    std::filesystem::rename(storeFile(), folder() / "away");
    bool wasCalled = false;
    NSError error;
    EXPECT_FALSE(stack_.write([&](NSManagedObjectContext&) { wasCalled = true; }, &error));
    EXPECT_FALSE(stack_.write([&](NSManagedObjectContext&) { wasCalled = true; })) << "nobody has to take the error";
    std::filesystem::rename(folder() / "away", storeFile());

    EXPECT_FALSE(wasCalled);
    EXPECT_EQ(error.code(), StoreErrorReplaced);
    EXPECT_EQ(takeLog().size(), 2U);
    EXPECT_TRUE(context().hasChanges()) << "what was unsaved is still there";
    append("- figs");
    EXPECT_THAT(titlesInStore(), ElementsAre("Groceries", "Unsaved"));
}

TEST_F(StackWrite, NeedsAStore)
{
    OVCoreDataStack unset;
    NSError error;
    EXPECT_FALSE(unset.write([](NSManagedObjectContext&) { FAIL(); }, &error));
    EXPECT_EQ(error.code(), StoreErrorCannotOpen);
}

TEST_F(StackWrite, OfAnExtensionIsRecordedForTheApplication)
{
    const auto extension = OVCoreDataStackForExtensions::initStackOutputError();
    ASSERT_TRUE(extension);
    ASSERT_TRUE(
        extension->write([](NSManagedObjectContext& context) { groceries(context).appendNoteWithText("- plums"); }));

    const auto news = OVExternalChanges::externalChangesInManagedObjectContext(context());
    ASSERT_EQ(news.size(), 1U);
    EXPECT_EQ(news[0]->itemEntity(), "OVNote");
}

TEST_F(StackWrite, OfAWidgetIsRefused)
{
    const auto widget = OVCoreDataStackForWidgets::initStack();
    ASSERT_TRUE(widget);
    NSError error;
    EXPECT_FALSE(widget->write([](NSManagedObjectContext&) { FAIL(); }, &error));
    EXPECT_EQ(error.code(), StoreErrorReadOnly);
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("The store is read-only.")));
}

// Without a write -----------------------------------------------------------------------------------------------------

TEST_F(StackWrite, IsNotNeededToSeeWhatOthersWrote)
{
    OVNote& note = groceries(context());
    ASSERT_EQ(note.text(), "# Groceries\n\n- pears");
    MainQueue::main().drain();
    appendElsewhere("- figs");
    MainQueue::main().drain();
    EXPECT_EQ(note.text(), "# Groceries\n\n- pears\n- figs");
}

TEST_F(StackWrite, StartsWithoutChangesAlsoWhereObserversOfASaveMakeMore)
{
    int saves = 0;
    const auto observer = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextDidSaveNotification, &context(), [&](const NSNotification&) {
            if (++saves <= 2)
                OVNote::noteWithText("# Seen " + std::to_string(saves), context());
        });
    groceries(context()).pin();
    bool wasClean = false;
    NSError error;
    EXPECT_THROW(stack_.write(
                     [&](NSManagedObjectContext& context) {
                         wasClean = !context.hasChanges();
                         throw std::runtime_error("given up");
                     },
                     &error),
        std::runtime_error);
    EXPECT_TRUE(wasClean);
    EXPECT_THAT(titlesInStore(), testing::UnorderedElementsAre("Groceries", "Seen 1", "Seen 2"));
}

} // namespace
} // namespace tarn
