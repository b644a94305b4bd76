#include "tests/platform/coredata/context/RandomLibrary.h"

#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>

namespace tarn {
namespace {

/// What a context says of every record: by identifier, one text with all attributes and the identifiers it relates to.
using Snapshot = std::map<std::string, std::string>;

/// What the one says otherwise than the other, a line a record.
std::string differences(const Snapshot& found, const Snapshot& expected)
{
    std::string text;
    const auto add = [&](std::string_view side, const Snapshot& those, const Snapshot& others) {
        for (const auto& [identifier, record] : those)
            if (const auto other = others.find(identifier); other == others.end() || other->second != record)
                text += std::string(side) + identifier + " " + record + '\n';
    };
    add("found    ", found, expected);
    add("expected ", expected, found);
    return text;
}

std::string textOfValue(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? "YES" : "NO";
    case Value::Kind::Integer:
        return std::to_string(value.asInteger());
    case Value::Kind::Double:
        return std::to_string(value.asDouble());
    case Value::Kind::String:
        return '"' + value.asString() + '"';
    case Value::Kind::Date:
        return std::to_string(microsecondsSince1970(value.asDate()));
    case Value::Kind::Data:
        return "data " + std::string(value.asData().text());
    default:
        return "nil";
    }
}

std::string textOfRelated(const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    if (!relationship.isToMany()) {
        const NSManagedObject* target = record.toOneAt(relationship.index());
        return target ? target->objectID().URIRepresentation() : "-";
    }
    std::vector<std::string> members;
    for (const NSManagedObject* member : record.toManyAt(relationship.index()).members())
        members.push_back(member->objectID().URIRepresentation());
    std::sort(members.begin(), members.end());
    std::string text = std::to_string(record.toManyAt(relationship.index()).count()) + ":";
    for (const std::string& member : members)
        text += ' ' + member;
    return text;
}

std::string textOfRecord(const NSManagedObject& record)
{
    std::string text;
    for (const NSAttributeDescription* attribute : record.entity().attributes())
        text += attribute->name() + '=' + textOfValue(record.storedValueForKey(attribute->name())) + "; ";
    for (const NSRelationshipDescription* relationship : record.entity().relationships())
        text += relationship->name() + '=' + textOfRelated(record, *relationship) + "; ";
    return text;
}

std::set<const NSManagedObject*> relatedTo(const NSManagedObject& record, const NSRelationshipDescription& relationship)
{
    std::set<const NSManagedObject*> related;
    if (relationship.isToMany()) {
        const auto& members = record.toManyAt(relationship.index()).members();
        related.insert(members.begin(), members.end());
    } else if (const NSManagedObject* target = record.toOneAt(relationship.index())) {
        related.insert(target);
    }
    return related;
}

/// Where an end of a relationship of this record says what the other does not, a line each.
std::string disagreementsOf(const NSManagedObject& record)
{
    std::string text;
    const auto note
        = [&](const NSManagedObject& one, const NSRelationshipDescription& relationship, const NSManagedObject& other) {
              text += one.objectID().URIRepresentation() + ' ' + relationship.name() + " names "
                  + other.objectID().URIRepresentation() + ", which does not know\n";
          };
    for (const NSRelationshipDescription* relationship : record.entity().relationships()) {
        const auto related = relatedTo(record, *relationship);
        const NSRelationshipDescription& inverse = relationship->inverseRelationship();
        for (const NSManagedObject* other : related)
            if (!relatedTo(*other, inverse).contains(&record))
                note(record, *relationship, *other);
        for (const NSManagedObject* other : record.managedObjectContext().registeredObjects())
            if (other->entity().isKindOfEntity(relationship->destinationEntity()) && !other->isDeleted()
                && !related.contains(other) && relatedTo(*other, inverse).contains(&record))
                note(*other, inverse, record);
    }
    return text;
}

std::string disagreements(NSManagedObjectContext& context)
{
    std::string text;
    for (const NSManagedObject* record : context.registeredObjects())
        if (!record->isDeleted())
            text += disagreementsOf(*record);
    return text;
}

/// Two contexts on one store, as of an application and an extension: `context_` merges what `other_` saves.
class RemoteMergeDifferential : public ContextTest {
protected:
    void SetUp() override
    {
        ContextTest::SetUp();
        // What gives way is logged; here only the outcome counts.
        former_ = setLogSink([](std::string_view) {});
    }
    void TearDown() override
    {
        saved_ = NSNotificationSubscription();
        other_.reset();
        setLogSink(former_);
        ContextTest::TearDown();
    }

    void begin(RandomLibrary& library)
    {
        restart();
        for (const std::string_view entity : {"Item", "Book", "Shelf", "Chapter", "Cover"})
            for (NSManagedObject* record : all(entity))
                context_->deleteObject(*record);
        save();
        library.setContext(*context_);
        library.populate(30);
        save();
        restart();
        other_ = contextOn(theirs_ ? theirs_ : coordinator_);
        context_->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
        other_->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
        saved_ = NSNotificationCenter::defaultCenter().addObserver(
            NSManagedObjectContextDidSaveNotification, other_.get(), [this](const NSNotification& notification) {
                const auto& changes = *notification.userInfoAs<ObjectChanges>();
                const auto add = [](auto& identifiers, const auto& records) {
                    for (const NSManagedObject* record : records)
                        identifiers.push_back(record->objectID());
                };
                add(news_.inserted, changes.inserted);
                add(news_.updated, changes.updated);
                add(news_.deleted, changes.deleted);
            });
    }

    Snapshot snapshotOf(NSManagedObjectContext& context) const
    {
        Snapshot snapshot;
        for (const std::string_view entity : {"Item", "Book", "Shelf", "Chapter", "Cover"})
            for (const NSManagedObject* record :
                context.executeFetchRequest(NSFetchRequest(*model_->entityNamed(entity))))
                snapshot.emplace(record->objectID().URIRepresentation(), textOfRecord(*record));
        return snapshot;
    }
    Snapshot snapshotOfStore() const { return snapshotOf(*contextOn(coordinator_)); }

    void saveThere(RandomLibrary& library, std::size_t changes)
    {
        other_->refreshAllObjects();
        library.setContext(*other_);
        library.change(changes);
        NSError error;
        ASSERT_TRUE(other_->save(&error)) << error;
    }
    /// The records that were changed elsewhere since the last time.
    std::vector<NSManagedObjectID> takeNews() { return std::exchange(news_, {}).updated; }
    void merge()
    {
        NSManagedObjectContext* const contexts[] = {context_.get()};
        NSManagedObjectContext::mergeChangesFromRemoteContextSave(std::exchange(news_, {}), contexts);
    }

    /// Edits here and there, of which this side then hears, or not, and saves or takes back its own: it shows the
    /// store.
    void editOnBothSides(unsigned firstSeed, unsigned seeds, const std::function<void(RandomLibrary&)>& hear)
    {
        for (unsigned seed = firstSeed; seed < firstSeed + seeds; ++seed) {
            SCOPED_TRACE(testing::Message() << "seed " << seed);
            RandomLibrary library(*context_, seed);
            begin(library);
            for (int round = 0; round < 6; ++round) {
                snapshotOf(*context_);
                library.setContext(*context_);
                library.change(library.below(6));
                saveThere(library, 1 + library.below(6));
                hear(library);
                const bool isSaved = library.below(3) != 0;
                if (isSaved)
                    save();
                else
                    context_->rollback();
                endPass();

                ASSERT_EQ(differences(snapshotOf(*context_), snapshotOfStore()), "")
                    << (isSaved ? "saved" : "rolled back") << " in round " << round;
            }
        }
    }

    /// Nothing: what was merged has to be there at once.
    virtual void endPass() { }

    /// Two writers gave one cover to two books of which each knew one: the rows say what no other end can say.
    bool aCoverIsStoredTwice() const
    {
        const auto fresh = contextOn(coordinator_);
        std::set<const NSKeyValueCoding*> covers;
        for (const NSManagedObject* book : fresh->executeFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))))
            if (const Value cover = book->storedValueForKey("cover"); !cover.isNil())
                if (!covers.insert(&cover.asObject()).second)
                    return true;
        return false;
    }
    /// `TARN_MERGE_WALKS` sets another number.
    static unsigned numberOfSeeds(unsigned usual)
    {
        const auto number = Environment::current().variable("TARN_MERGE_WALKS");
        return number ? static_cast<unsigned>(std::stoul(*number)) : usual;
    }
    /// Something happens here, or elsewhere and is merged, or is read again.
    void walk(RandomLibrary& library)
    {
        const auto known = context_->registeredObjects();
        NSManagedObject* const any = known.empty() ? nullptr : known.at(library.below(known.size()));
        switch (library.below(6)) {
        case 0:
            saveThere(library, 1 + library.below(4));
            return library.below(3) == 0 ? void() : merge();
        case 1:
            return any ? context_->refreshObject(*any, library.below(2) == 0) : void();
        case 2:
            return library.below(3) == 0 ? context_->refreshAllObjects() : void();
        case 3:
            // A book that still lends things cannot be saved as deleted.
            return any && any->entity().name() != "Book" ? context_->deleteObject(*any) : void();
        default:
            library.change(1 + library.below(3));
        }
    }

    std::unique_ptr<NSManagedObjectContext> other_;
    std::shared_ptr<NSPersistentStoreCoordinator> theirs_; ///< of the other context; null: the same one

private:
    LogSink former_;
    NSNotificationSubscription saved_;
    RemoteChanges news_;
};
INSTANTIATE_TEST_SUITE_P(
    Stores, RemoteMergeDifferential, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(RemoteMergeDifferential, ACleanContextShowsTheStoreAfterIt)
{
    const unsigned seeds = GetParam() == StoreType::SQLite ? 25 : 60;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        RandomLibrary library(*context_, seed);
        begin(library);
        for (int round = 0; round < 6; ++round) {
            snapshotOf(*context_); // everything is loaded, so everything can be out of date
            saveThere(library, 1 + library.below(6));
            merge();

            ASSERT_FALSE(context_->hasChanges()) << "round " << round;
            ASSERT_EQ(differences(snapshotOf(*context_), snapshotOfStore()), "") << "round " << round;
        }
    }
}

TEST_P(RemoteMergeDifferential, AnEditedContextShowsTheStoreOnceItIsSavedOrRolledBack)
{
    const unsigned seeds = GetParam() == StoreType::SQLite ? 30 : 90;
    editOnBothSides(101, seeds, [this](RandomLibrary&) { merge(); });
}

TEST_P(RemoteMergeDifferential, AWalkOfChangesMergesRefreshesAndDeletionsEndsAtTheStore)
{
    const unsigned seeds = numberOfSeeds(GetParam() == StoreType::SQLite ? 6 : 90);
    for (unsigned seed = 501; seed <= 500 + seeds; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        RandomLibrary library(*context_, seed);
        begin(library);
        if (seed % 2 == 0)
            context_->setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump);
        for (int round = 0; round < 6; ++round) {
            if (library.below(2) == 0)
                snapshotOf(*context_);
            for (int step = 0; step < 6; ++step) {
                library.setContext(*context_);
                ASSERT_NO_FATAL_FAILURE(walk(library));
                for (const NSManagedObject* record : context_->registeredObjects())
                    ASSERT_FALSE(RecordAccess::isGone(*record)) << record->objectID().URIRepresentation();
            }
            merge();
            const bool isSaved = library.below(3) != 0;
            if (isSaved)
                save();
            else
                context_->rollback();
            if (aCoverIsStoredTwice())
                break;
            ASSERT_EQ(disagreements(*context_), "") << (isSaved ? "saved" : "rolled back") << " in round " << round;
            ASSERT_EQ(differences(snapshotOf(*context_), snapshotOfStore()), "")
                << (isSaved ? "saved" : "rolled back") << " in round " << round;
            other_->reset();
        }
    }
}

TEST_P(RemoteMergeDifferential, ARefreshedContextShowsTheStoreUnderItsChanges)
{
    const unsigned seeds = GetParam() == StoreType::SQLite ? 8 : 60;
    for (unsigned seed = 301; seed <= 300 + seeds; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        RandomLibrary library(*context_, seed);
        begin(library);
        for (int round = 0; round < 6; ++round) {
            snapshotOf(*context_);
            library.setContext(*context_);
            const bool isEdited = library.below(3) != 0;
            if (isEdited)
                library.change(1 + library.below(5));
            saveThere(library, 1 + library.below(6));
            context_->refreshAllObjects();

            ASSERT_EQ(disagreements(*context_), "") << "round " << round;
            const std::string differing = differences(snapshotOf(*context_), snapshotOfStore());
            ASSERT_TRUE(context_->hasChanges() || differing.empty()) << differing << "round " << round;
            library.below(3) != 0 ? save() : context_->rollback();
            ASSERT_EQ(disagreements(*context_), "") << "round " << round;
            ASSERT_EQ(differences(snapshotOf(*context_), snapshotOfStore()), "") << "round " << round;
            other_->reset();
        }
    }
}

TEST_P(RemoteMergeDifferential, ARefreshedRecordAgreesWithTheOtherEnds)
{
    const unsigned seeds = GetParam() == StoreType::SQLite ? 8 : 60;
    for (unsigned seed = 401; seed <= 400 + seeds; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        RandomLibrary library(*context_, seed);
        begin(library);
        for (int round = 0; round < 6; ++round) {
            snapshotOf(*context_);
            library.setContext(*context_);
            if (library.below(2) == 0)
                library.change(1 + library.below(3));
            saveThere(library, 1 + library.below(4));
            const auto news = takeNews();
            if (news.empty())
                continue;
            NSManagedObject* const refreshed = context_->objectRegisteredForID(news.at(library.below(news.size())));
            if (refreshed && !refreshed->isDeleted()) {
                context_->refreshObject(*refreshed, library.below(2) == 0);
                ASSERT_EQ(disagreementsOf(*refreshed), "") << "round " << round;
            }
            context_->rollback();
            context_->refreshAllObjects();
            ASSERT_EQ(differences(snapshotOf(*context_), snapshotOfStore()), "") << "round " << round;
            other_->reset();
        }
    }
}

/// The same with two processes, as far as the store can tell: nobody says what was saved, the context notices.
class OtherWritersDifferential : public RemoteMergeDifferential {
protected:
    void SetUp() override
    {
        RemoteMergeDifferential::SetUp();
        theirs_ = open();
    }
    void TearDown() override
    {
        theirs_.reset();
        RemoteMergeDifferential::TearDown();
    }
    void endPass() override { MainQueue::main().drain(); }
};
INSTANTIATE_TEST_SUITE_P(Stores, OtherWritersDifferential, testing::Values(StoreType::SQLite), storeTypeName);

TEST_P(OtherWritersDifferential, ACleanContextShowsTheStoreAfterAPass)
{
    for (unsigned seed = 201; seed <= 225; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        RandomLibrary library(*context_, seed);
        begin(library);
        for (int round = 0; round < 6; ++round) {
            snapshotOf(*context_);
            saveThere(library, 1 + library.below(6));
            MainQueue::main().drain();

            ASSERT_FALSE(context_->hasChanges()) << "round " << round;
            // Before any fetch, which would bring rows by itself.
            const Snapshot expected = snapshotOfStore();
            for (const NSManagedObject* record : context_->registeredObjects()) {
                const auto stored = expected.find(record->objectID().URIRepresentation());
                ASSERT_EQ(record->isDeleted(), stored == expected.end()) << "round " << round;
                if (!record->isDeleted()) {
                    ASSERT_EQ(textOfRecord(*record), stored->second) << "round " << round;
                }
            }
            ASSERT_EQ(differences(snapshotOf(*context_), expected), "") << "round " << round;
        }
    }
}

TEST_P(OtherWritersDifferential, AnEditedContextShowsTheStoreOnceItIsSavedOrRolledBack)
{
    editOnBothSides(301, 30, [this](RandomLibrary& library) {
        // At a fetch in the middle, at the pass, at both, or not before the save.
        const std::size_t looks = library.below(4);
        if (looks & 1U)
            all("Shelf");
        if (looks & 2U)
            MainQueue::main().drain();
    });
}

} // namespace
} // namespace tarn
