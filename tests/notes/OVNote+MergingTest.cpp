// What becomes of a note whose text two writers changed: the text of the store wins, and the other is kept as a note.

#include "tests/support/StoreFixture.h"

#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/RecordMerge.h"

namespace tarn {
namespace {

using testing::UnorderedElementsAre;

class MergedText : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        prepare(context());
    }
    void TearDown() override
    {
        takeLog(); // of what gave way
        other_.reset();
        StoreFixture::TearDown();
    }

    /// Saves, and opens the store a second time, as another process does.
    NSManagedObjectContext& saveAndOpenElsewhere()
    {
        save();
        other_ = contextOn(openAgain());
        prepare(*other_);
        return *other_;
    }
    void saveElsewhere()
    {
        NSError error;
        ASSERT_TRUE(other_->save(&error)) << error;
    }
    OVNote& elsewhere(const OVNote& note)
    {
        return *OVNote::noteWithUniqueIdentifier(note.uniqueIdentifier().value_or(""), *other_);
    }
    std::vector<std::string> texts()
    {
        std::vector<std::string> found;
        for (const OVNote* note : all<OVNote>())
            found.push_back(note->text().value_or("-"));
        return found;
    }

private:
    static void prepare(NSManagedObjectContext& context)
    {
        context.setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
        context.setMergeConflictHandler([](const MergeConflict& conflict) { OVNote::keepLosingText(conflict); });
    }

    std::unique_ptr<NSManagedObjectContext> other_;
};
INSTANTIATE_TEST_SUITE_P(Files, MergedText, testing::Values(StoreType::SQLite), storeName);

TEST_P(MergedText, IsKeptWhereAPersonWroteWhatARenamingWouldWrite)
{
    OVNote& links = note("# T\n\n[[A]]");
    saveAndOpenElsewhere();
    links.updateNoteWithText("# T\n\n[[B]]");
    elsewhere(links).updateNoteWithText("# T\n\n[[A]] too");
    saveElsewhere();
    save();
    EXPECT_THAT(texts(), UnorderedElementsAre("# T\n\n[[A]] too", "# T\n\n[[B]]"));
}

TEST_P(MergedText, OfANoteThatIsGoneIsKeptWhereAPersonWroteWhatARenamingWouldWrite)
{
    OVNote& links = note("# T\n\n[[A]]");
    NSManagedObjectContext& other = saveAndOpenElsewhere();
    links.updateNoteWithText("# T\n\n[[B]]");
    other.deleteObject(elsewhere(links));
    saveElsewhere();
    save();
    EXPECT_THAT(texts(), UnorderedElementsAre("# T\n\n[[B]]"));
}

TEST_P(MergedText, LeadsLinksToTheTitleThatGaveWayToTheOneThatWon)
{
    OVNote& target = note("# A");
    saveAndOpenElsewhere();
    target.updateNoteWithText("# Ours");
    OVNote& links = note("# T\n\n[[Ours]]");
    elsewhere(target).updateNoteWithText("# Theirs");
    saveElsewhere();
    save();
    EXPECT_EQ(target.title(), "Theirs");
    EXPECT_EQ(links.text(), "# T\n\n[[Theirs]]");
}

TEST_P(MergedText, IsKeptWithThePasswordThatReadsItWhereItIsProtected)
{
    OVNote& secret = note("# T");
    OVPassword* password = OVPassword::insertInManagedObjectContext(context());
    secret.setPassword(password);
    secret.updatePrimitiveText(std::nullopt);
    secret.setEncryptedValue(true);
    secret.setEncryptedData(NSData::fromText("before"));
    saveAndOpenElsewhere();
    secret.setEncryptedData(NSData::fromText("here"));
    elsewhere(secret).setEncryptedData(NSData::fromText("there"));
    saveElsewhere();
    save();

    EXPECT_EQ(secret.encryptedData(), NSData::fromText("there"));
    const std::vector<OVNote*> notes = all<OVNote>();
    ASSERT_EQ(notes.size(), 2U);
    const OVNote& copy = *(notes.front() == &secret ? notes.back() : notes.front());
    EXPECT_EQ(copy.encryptedData(), NSData::fromText("here"));
    EXPECT_TRUE(copy.encryptedValue());
    EXPECT_EQ(copy.password(), password);
    EXPECT_FALSE(copy.storedText()) << "nothing in clear";
}

TEST_P(MergedText, LosesALinkThatNoTextHasWhenOthersHaveSaved)
{
    OVNote& links = note("# T\n\n[[A]]");
    saveAndOpenElsewhere();
    OVNoteBackLink* surplus = OVNoteBackLink::insertInManagedObjectContext(context());
    surplus->setTitle("A");
    surplus->setLocationValue(99);
    surplus->setLinkedBy(&links);
    OVNote::noteWithText("# elsewhere", elsewhere(links).managedObjectContext());
    saveElsewhere();
    save();
    EXPECT_EQ(links.linkingToSet().count(), 1U);
}

TEST_P(MergedText, GetsOneTagWhereTheStoreHasTwoOfAName)
{
    OVNoteTag* first = OVNoteTag::addNewTagWithName("rome", context());
    OVNoteTag::addNewTagWithName("Rome", context());
    save();
    OVNote& tagged = note("#rome");
    EXPECT_THAT(tagged.tagsSet().allObjects(), testing::ElementsAre(first));
}

TEST_P(MergedText, TakesTheLinksAlongThatOthersMadeInANoteThatIsDeleted)
{
    OVNote& links = note("# T");
    saveAndOpenElsewhere();
    elsewhere(links).updateNoteWithText("# T\n\n[[A]]");
    saveElsewhere();
    context().deleteObject(links);
    save();
    EXPECT_EQ(all<OVNote>().size(), 1U) << "the text is kept";
    const std::vector<OVNoteBackLink*> left = all<OVNoteBackLink>();
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(left.front()->linkedBy(), all<OVNote>().front());
}

} // namespace
} // namespace tarn
