#include "tests/platform/coredata/context/merging/ConflictFixture.h"

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// What a context shows and keeps when another writer got there first.
class TwoWriters : public ConflictTest {
protected:
    std::size_t storedCount(std::string_view entity)
    {
        return contextOn(coordinator_)->countForFetchRequest(NSFetchRequest(*model_->entityNamed(entity)));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, TwoWriters, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

// The base of a change ------------------------------------------------------------------------------------------------

/// By what a context hears of the other's save below its own unsaved change.
enum class News : std::uint8_t { Merge, Refresh };

TEST_P(TwoWriters, TheBaseOfAChangeIsRenewed)
{
    struct Case {
        const char* name;
        Value mine; ///< pages, 1 when both began
        Value theirs;
        std::set<std::string> changed; ///< what still differs from the store
        bool isWritten;
    };
    const Case cases[] = {
        {"I change", 2, 1, {"pages"}, true},
        {"both change", 2, 3, {"pages"}, true},
        {"both change to the same", 2, 2, {"pages"}, false},
        {"they take away", 2, Value(), {"pages"}, true},
        {"I take away", Value(), 3, {"pages"}, true},
    };
    for (const News news : {News::Merge, News::Refresh})
        for (const Case& one : cases) {
            SCOPED_TRACE(std::string(one.name) + (news == News::Merge ? ", merged" : ", refreshed"));
            NSManagedObject& record = book("title", 1);
            save();
            elsewhere(record, [&](NSManagedObjectContext&, NSManagedObject& there) {
                there.setValueForKey("pages", one.theirs);
                there.setValueForKey("code", Value("theirs"));
            });
            record.setValueForKey("pages", one.mine);
            news == News::Merge ? mergeUpdate(record) : context_->refreshObject(record, true);

            EXPECT_EQ(record.storedValueForKey("pages"), one.mine);
            EXPECT_EQ(text(record, "code"), "theirs");
            EXPECT_EQ(record.committedValuesForKeys({"pages"}).at("pages"), one.theirs);
            for (const std::string& key : record.changedKeys())
                EXPECT_TRUE(one.changed.contains(key)) << key;
            const std::int64_t version = record.rowVersion();
            save(); // under the policy of errors: there is no conflict left
            EXPECT_EQ(record.rowVersion(), one.isWritten ? version + 1 : version);
            elsewhere(record, [&](NSManagedObjectContext&, NSManagedObject& there) {
                EXPECT_EQ(there.storedValueForKey("pages"), one.mine);
            });
        }
}

TEST_P(TwoWriters, ARollbackGoesBackToTheRenewedBase)
{
    for (const News news : {News::Merge, News::Refresh}) {
        NSManagedObject& record = book("title", 1);
        NSManagedObject& cover = insert("Cover");
        save();
        elsewhere(record, [&](NSManagedObjectContext& other, NSManagedObject& there) {
            there.setValueForKey("pages", Value(3));
            there.setValueForKey("cover", Value(other.existingObjectWithID(cover.objectID())));
        });
        record.setValueForKey("pages", Value(2));
        news == News::Merge ? mergeUpdate(record) : context_->refreshObject(record, true);
        context_->rollback();

        EXPECT_FALSE(context_->hasChanges());
        EXPECT_THAT(record.changedKeys(), IsEmpty());
        EXPECT_EQ(record.storedValueForKey("pages"), Value(3));
        EXPECT_EQ(record.storedValueForKey("cover"), Value(&cover));
        EXPECT_EQ(cover.storedValueForKey("book"), Value(&record));
    }
}

// Deleted elsewhere ---------------------------------------------------------------------------------------------------

TEST_P(TwoWriters, ARecordThatWasDeletedElsewhereLeavesTheContext)
{
    NSManagedObject& one = book("one");
    NSManagedObject& part = insert("Chapter");
    NSManagedObject& place = shelf("place");
    part.setValueForKey("book", Value(&one));
    set(place, "books").add(one);
    save();
    ASSERT_THAT(set(one, "chapters").members(), ElementsAre(&part));
    ASSERT_THAT(set(place, "books").members(), ElementsAre(&one));
    const NSManagedObjectID gone = one.objectID();
    elsewhere(one, [&](NSManagedObjectContext& other, NSManagedObject& there) {
        set(there, "chapters").set({});
        other.deleteObject(there);
    });
    part.setValueForKey("heading", Value("edited")); // names the record, and has a base that does, too

    mergeDeletion(gone);

    EXPECT_TRUE(one.isDeleted());
    EXPECT_EQ(context_->objectRegisteredForID(gone), nullptr);
    EXPECT_EQ(context_->existingObjectWithID(gone), nullptr);
    EXPECT_TRUE(part.storedValueForKey("book").isNil());
    EXPECT_TRUE(part.committedValuesForKeys({"book"}).at("book").isNil());
    EXPECT_THAT(set(place, "books").members(), IsEmpty());
    EXPECT_THAT(find("Chapter", "book == nil"), ElementsAre(&part));
    context_->rollback();
    EXPECT_TRUE(part.storedValueForKey("book").isNil());
    save();
}

TEST_P(TwoWriters, AToOneToARecordThatThisContextNeverReadNamesNobodyOnceThatIsDeleted)
{
    NSManagedObject& one = book("one");
    insert("Chapter").setValueForKey("book", Value(&one));
    save();
    restart();
    NSManagedObject& part = *all("Chapter").at(0); // names a book that is not here
    const NSManagedObjectID gone(part.objectID().store(), *model_->entityNamed("Book"),
        contextOn(coordinator_)
            ->executeFetchRequest(NSFetchRequest(*model_->entityNamed("Book")))
            .at(0)
            ->objectID()
            .key());
    const auto other = contextOn(coordinator_);
    NSManagedObject& there = *other->existingObjectWithID(gone);
    set(there, "chapters").set({});
    other->deleteObject(there);
    ASSERT_TRUE(other->save());

    mergeDeletion(gone);

    EXPECT_TRUE(part.storedValueForKey("book").isNil());
    EXPECT_FALSE(context_->hasChanges());
}

TEST_P(TwoWriters, DeletingWhatAnotherChangedGoesByThePolicy)
{
    for (const NSMergePolicy policy :
        {NSMergePolicy::Error, NSMergePolicy::MergeByPropertyStoreTrump, NSMergePolicy::MergeByPropertyObjectTrump})
        for (const bool isRead : {true, false}) {
            SCOPED_TRACE(testing::Message() << static_cast<int>(policy) << isRead);
            book("one", 1);
            save();
            restart();
            context_->setMergePolicy(policy);
            NSFetchRequest bare(*model_->entityNamed("Book"));
            bare.includesPropertyValues = isRead;
            NSManagedObject& record = *fetch(bare).at(0);
            elsewhere(record,
                [](NSManagedObjectContext&, NSManagedObject& there) { there.setValueForKey("pages", Value(2)); });
            context_->deleteObject(record);
            NSError error;
            // Nobody has seen what was changed of a record that was never read.
            const bool fails = policy == NSMergePolicy::Error && isRead;
            EXPECT_EQ(context_->save(&error), !fails);
            if (fails) {
                EXPECT_EQ(error.code(), StoreErrorMergeConflict);
                EXPECT_THAT(context_->deletedObjects(), ElementsAre(&record));
                EXPECT_EQ(storedCount("Book"), 1U);
                context_->rollback();
                EXPECT_FALSE(record.isDeleted());
                context_->refreshObject(record, false);
                EXPECT_EQ(record.storedValueForKey("pages"), Value(2));
                context_->deleteObject(record);
                save();
            }
            EXPECT_EQ(storedCount("Book"), 0U);
        }
}

TEST_P(TwoWriters, ARecordThatAnotherDeletedJoinsNothing)
{
    struct Case {
        const char* entity;
        const char* set;
        const char* inverse;
    };
    const Case cases[] = {{"Shelf", "shelves", "books"}, {"Chapter", "chapters", "book"}, {"Map", "items", "book"}};
    for (const auto& [entity, name, inverse] : cases)
        for (const bool isRead : {true, false})
            for (const bool isFromTheMember : {true, false}) {
                SCOPED_TRACE(testing::Message() << entity << isRead << isFromTheMember);
                const NSManagedObjectID bookID = [&] {
                    NSManagedObject& one = book("one");
                    save();
                    return one.objectID();
                }();
                NSManagedObject& made = insert(entity);
                save();
                const NSManagedObjectID memberID = made.objectID();
                restart();
                context_->setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump);
                NSManagedObject& one = *context_->existingObjectWithID(bookID);
                NSManagedObject* const member
                    = isRead ? context_->existingObjectWithID(memberID) : context_->objectWithID(memberID);
                ASSERT_TRUE(member);
                deleteElsewhere(*member);
                if (!isFromTheMember)
                    set(one, name).add(*member);
                else if (const auto* toOne = member->entity().relationshipNamed(inverse); !toOne->isToMany())
                    member->setToOneAt(toOne->index(), &one);
                else
                    set(*member, inverse).add(one);
                save();
                context_->refreshAllObjects();
                EXPECT_EQ(set(one, name).count(), 0U);
                EXPECT_EQ(all(entity).size(), 0U);
                restart();
                EXPECT_EQ(set(*all("Book").at(0), name).count(), 0U);
                context_->deleteObject(*all("Book").at(0));
                save();
            }
}

TEST_P(TwoWriters, AToOneToARecordThatAnotherDeletedIsWrittenAsNothing)
{
    for (const bool isRead : {true, false}) {
        SCOPED_TRACE(isRead);
        NSManagedObject& made = book("one");
        NSManagedObject& part = insert("Chapter");
        save();
        const NSManagedObjectID gone = made.objectID();
        const NSManagedObjectID partID = part.objectID();
        restart();
        NSManagedObject& chapter = *context_->existingObjectWithID(partID);
        NSManagedObject* const target = isRead ? context_->existingObjectWithID(gone) : context_->objectWithID(gone);
        deleteElsewhere(*target);
        chapter.setValueForKey("book", Value(target));
        save();
        context_->refreshAllObjects();
        EXPECT_TRUE(chapter.storedValueForKey("book").isNil());
        EXPECT_THAT(all("Book"), IsEmpty());
    }
}

TEST_P(TwoWriters, NothingNamesARecordThatAnotherDeletedWhenASaveIsAnnounced)
{
    context_->setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump);
    NSManagedObject& gone = book("gone");
    NSManagedObject& part = insert("Chapter");
    NSManagedObject& place = shelf("place");
    save();
    ASSERT_THAT(set(place, "books").members(), IsEmpty());
    deleteElsewhere(gone);
    part.setValueForKey("book", Value(&gone));
    set(place, "books").add(gone);
    NSManagedObject& made = insert("Chapter");
    made.setValueForKey("book", Value(&gone));
    bool isAnnounced = false;
    const auto willSave = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextWillSaveNotification, context_.get(), [&](const NSNotification&) {
            isAnnounced = true;
            EXPECT_TRUE(part.storedValueForKey("book").isNil());
            EXPECT_TRUE(made.storedValueForKey("book").isNil());
            EXPECT_THAT(set(place, "books").members(), IsEmpty());
        });
    save();
    EXPECT_TRUE(isAnnounced);
}

// Sets ----------------------------------------------------------------------------------------------------------------

TEST_P(TwoWriters, RemovingWhatIsNoMemberChangesNothing)
{
    const char* const cases[][2] = {{"Shelf", "shelves"}, {"Chapter", "chapters"}, {"Map", "items"}};
    for (const auto& [entity, name] : cases)
        for (const bool isLoaded : {true, false})
            for (const bool isOfAnother : {true, false}) {
                SCOPED_TRACE(testing::Message() << entity << isLoaded << isOfAnother);
                set(book("one"), name).add(insert(entity));
                NSManagedObject& loose = insert(entity);
                NSManagedObject& two = book("two");
                if (isOfAnother)
                    set(two, name).add(loose);
                save();
                const NSManagedObjectID looseID = loose.objectID();
                restart();
                NSManagedObject& one = *find("Book", "title == 'one'").at(0);
                if (isLoaded)
                    set(one, name).members();
                set(one, name).remove(*context_->existingObjectWithID(looseID));

                EXPECT_EQ(set(one, name).count(), 1U);
                EXPECT_THAT(set(one, name).removed(), IsEmpty());
                save();
                EXPECT_EQ(one.rowVersion(), 1);
                restart();
                EXPECT_EQ(set(*find("Book", "title == 'one'").at(0), name).count(), 1U);
                EXPECT_EQ(set(*find("Book", "title == 'two'").at(0), name).count(), isOfAnother ? 1U : 0U);
                for (const std::string_view left : {"Item", "Chapter", "Shelf", "Book"})
                    for (NSManagedObject* record : all(left))
                        context_->deleteObject(*record);
                save();
            }
}

/// A to-many that belongs to the text: its members follow from it.
class SetOfATextGroup : public TwoWriters {
protected:
    std::string modelText() const override
    {
        const std::string plain = R"({"name": "shelves", )";
        std::string text = ContextTest::modelText();
        return text.replace(text.find(plain), plain.size(), plain + R"("group": "text", )");
    }
};
INSTANTIATE_TEST_SUITE_P(
    Stores, SetOfATextGroup, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(SetOfATextGroup, HasTheMembersOfTheTextThatWon)
{
    for (const NSMergePolicy policy :
        {NSMergePolicy::MergeByPropertyStoreTrump, NSMergePolicy::MergeByPropertyObjectTrump}) {
        SCOPED_TRACE(static_cast<int>(policy));
        context_->setMergePolicy(policy);
        NSManagedObject& former = shelf("former");
        NSManagedObject& mine = shelf("mine");
        NSManagedObject& theirs = shelf("theirs");
        NSManagedObject& record = book("book");
        set(record, "shelves").add(former);
        save();
        elsewhere(record, [&](NSManagedObjectContext& other, NSManagedObject& there) {
            there.setValueForKey("body", Value("theirs"));
            set(there, "shelves").add(*other.existingObjectWithID(theirs.objectID()));
        });
        record.setValueForKey("body", Value("mine"));
        set(record, "shelves").remove(former);
        set(record, "shelves").add(mine);
        save();

        // Who saved first has written; what the other takes back is only its own.
        const bool storeWins = policy == NSMergePolicy::MergeByPropertyStoreTrump;
        EXPECT_EQ(text(record, "body"), storeWins ? "theirs" : "mine");
        const auto expected = storeWins ? UnorderedElementsAre(&former, &theirs) : UnorderedElementsAre(&mine, &theirs);
        EXPECT_THAT(set(record, "shelves").members(), expected);
        context_->refreshAllObjects();
        EXPECT_THAT(set(record, "shelves").members(), expected);
        EXPECT_THAT(set(mine, "books").members(), testing::SizeIs(storeWins ? 0 : 1));
    }
}

// Required values -----------------------------------------------------------------------------------------------------

constexpr std::string_view modelWithRequiredValues = R"({
  "version": "Required",
  "entities": [
    {"name": "Letter",
     "attributes": [
       {"name": "subject", "type": "string", "optional": false},
       {"name": "count", "type": "int64", "optional": false, "default": 0},
       {"name": "body", "type": "string", "storage": "large", "optional": false}],
     "relationships": [
       {"name": "sender", "to": "Person", "inverse": "letters", "optional": false, "delete": "nullify"}]},
    {"name": "Person",
     "attributes": [{"name": "name", "type": "string"}],
     "relationships": [{"name": "letters", "to": "Letter", "many": true, "inverse": "sender", "delete": "nullify"}]}
  ]})";

class RequiredValues : public TwoWriters {
protected:
    std::string modelText() const override { return std::string(modelWithRequiredValues); }
    NSManagedObject& wholeLetter()
    {
        NSManagedObject& letter = insert("Letter");
        letter.setValueForKey("subject", Value("subject"));
        letter.setValueForKey("body", Value("body"));
        letter.setValueForKey("sender", Value(&insert("Person")));
        return letter;
    }
    void expectRefusal(const NSManagedObject& letter, const std::string& key)
    {
        const NSManagedObjectID before = letter.objectID();
        NSError error;
        EXPECT_FALSE(context_->save(&error));
        EXPECT_EQ(error.code(), StoreErrorValidation);
        EXPECT_NE(error.localizedDescription().find('"' + key + '"'), std::string::npos) << error;
        EXPECT_EQ(letter.objectID(), before);
        EXPECT_TRUE(context_->hasChanges());
    }
};
INSTANTIATE_TEST_SUITE_P(
    Stores, RequiredValues, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(RequiredValues, ThatAreMissingStopASaveUntilTheyAreThere)
{
    for (const bool isNew : {true, false})
        for (const char* key : {"subject", "count", "body", "sender"}) {
            SCOPED_TRACE(std::string(key) + (isNew ? " of a new letter" : ""));
            NSManagedObject& letter = wholeLetter();
            if (!isNew)
                save();
            const Value value = letter.storedValueForKey(key);
            letter.setValueForKey(key, Value());
            insert("Person").setValueForKey("letters", Value(Value::Array{}));
            expectRefusal(letter, key);
            letter.setValueForKey(key, value);
            save();
            EXPECT_FALSE(letter.objectID().isTemporaryID());
        }
}

TEST_P(RequiredValues, AreMissedWhereTheirTargetIsDeleted)
{
    NSManagedObject& letter = wholeLetter();
    save();
    context_->deleteObject(*all("Person").at(0));
    expectRefusal(letter, "sender");
    context_->deleteObject(letter);
    save();
    EXPECT_EQ(storedCount("Letter") + storedCount("Person"), 0U);
}

TEST_P(RequiredValues, ThatWereNotReadAreNotMissing)
{
    wholeLetter();
    save();
    restart();
    NSManagedObject& letter = *all("Letter").at(0);
    letter.setValueForKey("count", Value(2)); // the body is still in the store
    save();
    EXPECT_EQ(text(letter, "body"), "body");
}

} // namespace
} // namespace tarn
