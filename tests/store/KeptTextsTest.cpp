#include "tests/store/StackFixture.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

namespace tarn {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;
using testing::UnorderedElementsAre;

/// Two stacks on one store, as of an application and of a small program that writes while a person types.
class KeptTexts : public StackFixture {
protected:
    struct Keeper : OVCoreDataStackDelegate {
        std::vector<std::string> kept;
        std::vector<MergeConflict::Cause> causes;
        bool takesOver = false;
        void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack&, const NSError&) override { }
        bool coreDataStackShouldKeepLosingText(OVCoreDataStack&, const MergeConflict& conflict) override
        {
            causes.push_back(conflict.cause);
            return !takesOver;
        }
        void coreDataStackDidKeepLosingText(OVCoreDataStack&, OVNote& copy) override
        {
            kept.push_back(copy.text().value_or(""));
        }
    };

    void SetUp() override
    {
        stack_.setupStackWithDelegate(&keeper_);
        note_ = OVNote::noteWithText("# Groceries\n\npears #home", *stack_.managedObjectContext());
        stack_.saveUsingCoalescence(false);
        other_.setupStack();
        there_ = OVNote::noteWithUniqueIdentifier(*note_->uniqueIdentifier(), *other_.managedObjectContext());
        ASSERT_TRUE(there_);
    }
    void TearDown() override
    {
        takeLog(); // what gives way is logged; here it is the outcome that counts
        StackFixture::TearDown();
    }

    static std::vector<std::string> textsIn(const OVCoreDataStack& stack)
    {
        std::vector<std::string> texts;
        for (const OVNote* note : OVNote::notesInManagedObjectContext(*stack.managedObjectContext(), std::nullopt))
            texts.push_back(note->text().value_or(""));
        return texts;
    }
    std::vector<std::string> storedTexts() const
    {
        OVCoreDataStack fresh;
        fresh.setupStack();
        return textsIn(fresh);
    }

    Keeper keeper_;
    OVCoreDataStack stack_;
    OVCoreDataStack other_;
    OVNote* note_ = nullptr;
    OVNote* there_ = nullptr;
};

TEST_F(KeptTexts, OfASaveThatMetAnotherTextAreAConflictedCopy)
{
    note_->updateNoteWithText("# Groceries\n\npears, typed here #home");
    const auto typed = note_->modificationDate();
    there_->updateNoteWithText("# Groceries\n\npears\n\nplums #garden");
    other_.saveUsingCoalescence(false);
    stack_.saveUsingCoalescence(false);

    EXPECT_EQ(note_->text(), "# Groceries\n\npears\n\nplums #garden") << "the store's text counts";
    EXPECT_THAT(note_->tagsStrings(), ElementsAre("garden"));
    EXPECT_THAT(keeper_.kept, ElementsAre("# Groceries\n\npears, typed here #home"));
    const std::vector<OVNote*> group = note_->conflictedNotes();
    ASSERT_THAT(group, SizeIs(2));
    EXPECT_EQ(group.front()->text(), keeper_.kept.front());
    EXPECT_EQ(group.front()->modificationDate(), typed);
    EXPECT_THAT(group.front()->tagsStrings(), ElementsAre("home"));
    EXPECT_TRUE(note_->isConflictRoot());
    EXPECT_FALSE(stack_.managedObjectContext()->hasChanges()) << "the copy belongs to the same save";
    EXPECT_THAT(storedTexts(), UnorderedElementsAre(*note_->text(), keeper_.kept.front()));
}

TEST_F(KeptTexts, ThatAPassFindsUnderATypedOneAreAConflictedCopy)
{
    note_->updateNoteWithText("# Groceries\n\ntyped #home");
    there_->appendNoteWithText("appended by a program");
    const std::string appended = *there_->text();
    other_.saveUsingCoalescence(false);
    MainQueue::main().drain();

    EXPECT_EQ(note_->text(), "# Groceries\n\ntyped #home") << "what is typed is not exchanged under the typing";
    EXPECT_THAT(keeper_.kept, ElementsAre(appended));
    stack_.saveUsingCoalescence(false);
    EXPECT_THAT(storedTexts(), UnorderedElementsAre(*note_->text(), appended));
}

TEST_F(KeptTexts, AreTheDelegatesWhenItSaysSo)
{
    keeper_.takesOver = true;
    note_->updateNoteWithText("# Groceries\n\ntyped");
    there_->updateNoteWithText("# Groceries\n\ntheirs");
    other_.saveUsingCoalescence(false);
    stack_.saveUsingCoalescence(false);

    EXPECT_THAT(keeper_.causes, ElementsAre(MergeConflict::Cause::ChangedByBoth));
    EXPECT_THAT(keeper_.kept, IsEmpty());
    EXPECT_THAT(storedTexts(), ElementsAre("# Groceries\n\ntheirs"));
}

TEST_F(KeptTexts, OfANoteThatAnotherDeletedAreANoteOfTheirOwn)
{
    note_->updateNoteWithText("# Groceries\n\ntyped #home");
    other_.managedObjectContext()->deleteObject(*there_);
    other_.saveUsingCoalescence(false);
    stack_.saveUsingCoalescence(false);

    EXPECT_THAT(keeper_.causes, ElementsAre(MergeConflict::Cause::DeletedElsewhere));
    EXPECT_THAT(storedTexts(), ElementsAre("# Groceries\n\ntyped #home"));
    EXPECT_TRUE(note_->isDeleted());
}

TEST_F(KeptTexts, OfANoteThatIsDeletedHereAreANoteOfTheirOwn)
{
    there_->updateNoteWithText("# Groceries\n\ntheirs");
    other_.saveUsingCoalescence(false);
    stack_.managedObjectContext()->deleteObject(*note_);
    stack_.saveUsingCoalescence(false);

    EXPECT_THAT(keeper_.causes, ElementsAre(MergeConflict::Cause::DeletedHere));
    EXPECT_THAT(storedTexts(), ElementsAre("# Groceries\n\ntheirs"));
}

TEST_F(KeptTexts, AreNoneWhereOnlyATagWasRenamed)
{
    there_->updateNoteWithText("# Groceries\n\npears\n\nplums #home");
    other_.saveUsingCoalescence(false);
    OVNoteTag* home = OVNoteTag::tagWithName("home", *stack_.managedObjectContext());
    ASSERT_TRUE(home);
    home->renameTagWithTagNamed("house");
    stack_.saveUsingCoalescence(false);

    EXPECT_THAT(keeper_.kept, IsEmpty());
    EXPECT_THAT(keeper_.causes, IsEmpty()) << "nothing was lost";
    EXPECT_EQ(note_->text(), "# Groceries\n\npears\n\nplums #house") << "the rename is made in the text that won";
    EXPECT_THAT(note_->tagsStrings(), ElementsAre("house"));
    EXPECT_THAT(storedTexts(), ElementsAre("# Groceries\n\npears\n\nplums #house"));
}

TEST_F(KeptTexts, AreNoneWhereOnlyALinkFollowedATitle)
{
    OVNote* linked = OVNote::noteWithText("# Market", *stack_.managedObjectContext());
    note_->updateNoteWithText("# Groceries\n\n[[Market]]");
    stack_.saveUsingCoalescence(false);
    other_.managedObjectContext()->refreshAllObjects();
    there_->updateNoteWithText("# Groceries\n\nplums at [[Market]]");
    other_.saveUsingCoalescence(false);
    linked->updateNoteWithText("# Shop");
    stack_.saveUsingCoalescence(false);

    EXPECT_THAT(keeper_.kept, IsEmpty());
    EXPECT_EQ(note_->text(), "# Groceries\n\nplums at [[Shop]]");
    EXPECT_THAT(note_->linkedNotes(), ElementsAre(linked));
}

TEST_F(KeptTexts, HaveAttachmentsOfTheirOwn)
{
    OVNoteImage* image = OVNoteImage::insertInManagedObjectContext(*stack_.managedObjectContext());
    image->setFilename("p.png");
    image->setNote(note_);
    note_->updateNoteWithText("# Groceries\n\n![](p.png)");
    stack_.saveUsingCoalescence(false);
    other_.managedObjectContext()->refreshAllObjects();
    there_->updateNoteWithText("# Groceries\n\nno picture");
    other_.saveUsingCoalescence(false);
    note_->updateNoteWithText("# Groceries\n\ntyped ![](p.png)");
    stack_.saveUsingCoalescence(false);

    EXPECT_TRUE(image->isUnused()) << "the text that won has no picture";
    const std::vector<OVNote*> group = note_->conflictedNotes();
    ASSERT_THAT(group, SizeIs(2));
    EXPECT_THAT(group.front()->orderedImages(), SizeIs(1));
    EXPECT_TRUE(group.front()->hasImagesValue());
}

TEST_F(KeptTexts, OfTheMainContextOutliveAChildThatIsSavedIntoIt)
{
    note_->updateNoteWithText("# Groceries\n\ntyped in the main context");
    const auto child = stack_.backgroundPrivateManagedObjectContext();
    const std::string identifier = *note_->uniqueIdentifier();
    child->performBlockAndWait([&] {
        OVNote* seen = OVNote::noteWithUniqueIdentifier(identifier, *child);
        seen->updateNoteWithText("# Groceries\n\nwritten in the background");
    });
    note_->updateNoteWithText("# Groceries\n\ntyped on");
    child->performBlockAndWait([&] {
        NSError error;
        EXPECT_TRUE(child->save(&error)) << error;
    });
    runUntil([&] { return !keeper_.kept.empty(); });

    EXPECT_EQ(note_->text(), "# Groceries\n\nwritten in the background");
    EXPECT_THAT(keeper_.kept, ElementsAre("# Groceries\n\ntyped on"));
    EXPECT_THAT(takeLog(), Contains(StartsWith("Two writers changed ")));
}

} // namespace
} // namespace tarn
