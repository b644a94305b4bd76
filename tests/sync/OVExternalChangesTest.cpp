#include "tests/sync/ChangeLogFixture.h"

#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVPassword.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A context of another process on the same store, which records what it saves as an extension does.
class Extension {
public:
    explicit Extension(NSPersistentStoreCoordinator& coordinator)
        : context_(NSManagedObjectContext::ConcurrencyType::MainQueue)
    {
        context_.setPersistentStoreCoordinator({std::shared_ptr<void>(), &coordinator});
        willSave_ = NSNotificationCenter::defaultCenter().addObserver(
            NSManagedObjectContextWillSaveNotification, &context_, [this](const NSNotification&) {
                OVExternalChanges::updateExternalChangesInManagedObjectContext(context_);
                OVChange::updateChangesInInManagedObjectContext(context_);
            });
    }
    NSManagedObjectContext& context() { return context_; }
    OVNote& noteTitled(std::string_view title)
    {
        OVNote* note = OVNote::insertInManagedObjectContext(context_);
        note->setTitle(title);
        return *note;
    }
    OVNote& foundNote(std::string_view title) { return *OVNote::noteWithTitle(title, context_); }
    void save()
    {
        NSError error;
        ASSERT_TRUE(context_.save(&error)) << error;
    }

private:
    NSManagedObjectContext context_;
    NSNotificationSubscription willSave_;
};

class ExternalChanges : public ChangeLogFixture {
protected:
    std::vector<OVExternalChanges*> queue()
    {
        return OVExternalChanges::externalChangesInManagedObjectContext(context());
    }
    auto merge() { return OVExternalChanges::mergeExternalChangesInManagedObjectContext(context()); }
    /// "0 OVNote": codes and entities.
    std::vector<std::string> textsOfQueue()
    {
        std::vector<std::string> texts;
        for (const OVExternalChanges* change : queue())
            texts.push_back(std::to_string(change->itemChangeValue()) + " " + change->itemEntity().value_or("-"));
        return texts;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ExternalChanges, everyStore(), storeName);

TEST_P(ExternalChanges, AreRecordedByTheSaveOfAnExtension)
{
    tag("t");
    save();
    Extension extension(context().persistentStoreCoordinator());
    const OVNote& inserted = extension.noteTitled("inserted");
    extension.context().deleteObject(*OVNoteTag::tagWithName("t", extension.context()));
    extension.save();

    EXPECT_THAT(textsOfQueue(), ElementsAre("0 OVNote", "2 OVNoteTag"));
    EXPECT_EQ(queue().front()->itemObjectID(), inserted.objectID().URIRepresentation());
    for (const OVExternalChanges* change : queue()) {
        EXPECT_FALSE(change->managedObjectIDInManagedObjectContext(context())->isTemporaryID());
        EXPECT_THAT(*change->itemObjectID(), testing::HasSubstr("/p"));
    }
    EXPECT_THAT(textsOf(*latest()), testing::SizeIs(2)) << "and in the change log";
}

TEST_P(ExternalChanges, CountEveryRecord)
{
    Extension extension(context().persistentStoreCoordinator());
    OVPassword::insertInManagedObjectContext(extension.context());
    extension.noteTitled("nameless").setUniqueIdentifier(std::nullopt);
    extension.save();

    EXPECT_THAT(textsOfQueue(), UnorderedElementsAre("0 OVPassword", "0 OVNote"));
}

TEST_P(ExternalChanges, AreMadeInTheOrderOfTheirCodes)
{
    const std::vector<NSManagedObject*> inserted{&noteTitled("a"), &noteTitled("b")};
    const std::vector<NSManagedObject*> updated{&noteTitled("c")};
    const std::vector<NSManagedObject*> deleted{&tag("d")};

    const auto changes = OVExternalChanges::newExternalChangesForInsertedObjects(inserted, updated, deleted, context());

    ASSERT_EQ(changes.size(), 4U);
    EXPECT_THAT(textsOfQueue(), ElementsAre("0 OVNote", "0 OVNote", "1 OVNote", "2 OVNoteTag"));
    EXPECT_EQ(changes[2]->itemObjectID(), updated.front()->objectID().URIRepresentation());
}

TEST_P(ExternalChanges, AreMergedIntoTheMainContext)
{
    OVNote& updated = noteTitled("updated");
    OVNote& deleted = noteTitled("deleted");
    save();
    Extension extension(context().persistentStoreCoordinator());
    extension.context().deleteObject(extension.foundNote("deleted"));
    extension.foundNote("updated").setSubtitle("by the extension");
    const OVNote& inserted = extension.noteTitled("inserted");
    extension.save();
    EXPECT_EQ(updated.subtitle(), std::nullopt) << "before the merge";

    const auto merged = merge();

    EXPECT_EQ(merged, (std::vector<NSManagedObjectID>{inserted.objectID(), updated.objectID(), deleted.objectID()}));
    EXPECT_EQ(updated.subtitle(), "by the extension");
    EXPECT_TRUE(deleted.isDeleted());
    EXPECT_THAT(context().deletedObjects(),
        testing::Each(testing::ResultOf(
            [](const NSManagedObject* record) { return record->entity().name(); }, "OVExternalChanges")));
    EXPECT_TRUE(context().objectRegisteredForID(inserted.objectID()));
    recordSaves();
    save();
    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_FALSE(merge());
    EXPECT_EQ(latest()->orderValue(), 0) << "the merge is not logged a second time";
}

TEST_P(ExternalChanges, OfAnEmptyQueueMergeNothing)
{
    EXPECT_EQ(merge(), std::nullopt);
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(ExternalChanges, GiveInsertedBeforeUpdatedBeforeDeletedWhateverTheQueueHeld)
{
    OVNote& a = noteTitled("a");
    OVNote& b = noteTitled("b");
    OVNote& c = noteTitled("c");
    save();
    OVExternalChanges::newExternalChangeForModelObject(a, OVExternalChanges::deleted);
    OVExternalChanges::newExternalChangeForModelObject(b, OVExternalChanges::updated);
    OVExternalChanges::newExternalChangeForModelObject(c, OVExternalChanges::inserted);
    save();

    EXPECT_EQ(merge(), (std::vector<NSManagedObjectID>{c.objectID(), b.objectID(), a.objectID()}));
}

TEST_P(ExternalChanges, OfOtherCodesAreDroppedFromTheMergeAndDeleted)
{
    OVNote& note = noteTitled("a");
    save();
    for (const std::uint32_t code : {3U, 99U, 0xFFFFU})
        OVExternalChanges::newExternalChangeForModelObject(note, code);
    save();

    EXPECT_EQ(merge(), std::vector<NSManagedObjectID>());
    save();
    EXPECT_THAT(queue(), IsEmpty());
}

TEST_P(ExternalChanges, ThatNameNoRecordOfTheStoreAreSkippedAndDeleted)
{
    OVNote& note = noteTitled("a");
    save();
    const std::string uri = note.objectID().URIRepresentation();
    for (const std::optional<std::string_view> named : std::vector<std::optional<std::string_view>>{
             std::nullopt, "", "no address", "tarn-store://00000000-0000-4000-8000-000000000000/OVNote/p1", uri}) {
        OVExternalChanges* change = OVExternalChanges::insertInManagedObjectContext(context());
        change->setItemObjectID(named);
        EXPECT_EQ(change->managedObjectIDInManagedObjectContext(context()).has_value(), named == uri);
    }
    save();

    EXPECT_EQ(merge(), std::vector<NSManagedObjectID>{note.objectID()});
    save();
    EXPECT_THAT(queue(), IsEmpty());
}

TEST_P(ExternalChanges, AreDeletedTogether)
{
    OVExternalChanges::newExternalChangeForModelObject(noteTitled("a"), 0);
    OVExternalChanges::newExternalChangeForModelObject(noteTitled("b"), 0);
    save();

    OVExternalChanges::deleteExternalChangesInManagedObjectContext(context());
    reopen();

    EXPECT_THAT(queue(), IsEmpty());
    EXPECT_EQ(all<OVNote>().size(), 2U);
}

class UnreadableQueue : public ExternalChanges { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableQueue, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableQueue, MergesAndDeletesNothing)
{
    OVExternalChanges::newExternalChangeForModelObject(noteTitled("a"), 0);
    save();
    runSQL("ALTER TABLE \"OVExternalChanges\" RENAME TO \"hidden\"");

    EXPECT_FALSE(merge());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    OVExternalChanges::deleteExternalChangesInManagedObjectContext(context());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_FALSE(context().hasChanges());

    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVExternalChanges\"");
    EXPECT_EQ(queue().size(), 1U);
}

TEST_P(UnreadableQueue, RecordsNothingWithoutPermanentIdentifiers)
{
    noteTitled("a");
    runSQL("ALTER TABLE \"store_keys\" RENAME TO \"hidden\"");

    OVExternalChanges::updateExternalChangesInManagedObjectContext(context());

    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while trying to save object from extension ")));
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"store_keys\"");
    EXPECT_THAT(queue(), IsEmpty());
}

} // namespace
} // namespace tarn
