// What a context allows, refuses and outlives: nested locks, resets in the midst of things, records of others.

#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <array>
#include <atomic>
#include <chrono>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <thread>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ContextLife : public ContextTest {
protected:
    NSNotificationSubscription observe(std::string_view name, std::function<void(const ObjectChanges*)> block)
    {
        return NSNotificationCenter::defaultCenter().addObserver(
            name, context_.get(), [block = std::move(block)](const NSNotification& notification) {
                block(notification.userInfoAs<ObjectChanges>());
            });
    }
    /// Whether nobody holds the lock for writing.
    /// What a context of its own gives for the counter.
    std::int64_t countIn(const std::shared_ptr<NSPersistentStoreCoordinator>& coordinator) const
    {
        return counterIn(*contextOn(coordinator)).storedValueForKey("pages").asInteger();
    }
    NSManagedObject& counterIn(NSManagedObjectContext& context) const
    {
        NSFetchRequest request(*model_->entityNamed("Book"));
        request.predicate = NSPredicate::predicateWithFormat("title == 'counter'");
        return *context.executeFetchRequest(request).at(0);
    }
    /// Of the two writers: whether each asks for the lock.
    using Asking = std::array<std::atomic<bool>, 2>;
    /// Reads the counter, rests, and writes one more, under the lock. How often the other one was asking for it then.
    int count(const std::shared_ptr<NSPersistentStoreCoordinator>& coordinator, int steps, Asking& asking,
        std::size_t place) const
    {
        NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
        context.setPersistentStoreCoordinator(coordinator);
        context.setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump); // a step that is lost is no error
        int contested = 0;
        context.performBlockAndWait([&] {
            NSManagedObject& counter = counterIn(context);
            for (int step = 0; step < steps; ++step) {
                NSError error;
                asking[place] = true;
                const bool saved = context.performExclusive(
                    [&] {
                        asking[place] = false;
                        const std::int64_t before = counter.storedValueForKey("pages").asInteger();
                        std::this_thread::sleep_for(std::chrono::milliseconds(2));
                        contested += asking[1 - place] ? 1 : 0;
                        counter.setValueForKey("pages", Value(before + 1));
                    },
                    &error);
                EXPECT_TRUE(saved) << error;
            }
        });
        return contested;
    }

    bool isLockFree() const
    {
        bool isFree = false;
        std::thread([&] {
            const auto transaction = coordinator_->rowStore()->beginTransaction(nullptr);
            isFree = transaction != nullptr;
        }).join();
        return isFree;
    }
    std::vector<std::string> titlesInStore()
    {
        restart();
        return texts(all("Book"), "title");
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ContextLife, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

// The lock ------------------------------------------------------------------------------------------------------------

TEST_P(ContextLife, ExclusiveWorkInsideAnotherJoinsIt)
{
    NSError error;
    bool inner = false;
    ASSERT_TRUE(context_->performExclusive(
        [&] {
            book("outer");
            inner = context_->performExclusive([&] { book("inner"); }, &error);
            EXPECT_TRUE(context_->core().exclusiveTransaction) << "the lock is given up";
            EXPECT_EQ(context_->insertedObjects().size(), 2U) << "saved before its end";
            book("after");
        },
        &error))
        << error;
    EXPECT_TRUE(inner) << error;
    EXPECT_FALSE(context_->core().exclusiveTransaction);
    EXPECT_TRUE(isLockFree());
    EXPECT_THAT(titlesInStore(), ElementsAre("outer", "inner", "after"));
}

TEST_P(ContextLife, ExclusiveWorkOfTwoWritersLosesNoStep)
{
    constexpr int steps = 60;
    book("counter");
    save();
    const bool isFile = GetParam() == StoreType::SQLite;
    const auto other = isFile ? open() : coordinator_; // a store in memory has one
    Asking asking{};
    int contestedThere = 0;
    std::thread writer([&] { contestedThere = count(other, steps, asking, 1); });
    const int contestedHere = count(coordinator_, steps, asking, 0);
    writer.join();

    EXPECT_EQ(countIn(coordinator_), 2 * steps);
    EXPECT_GT(contestedHere + contestedThere, steps / 2) << "they did not count at the same time";
}

TEST_P(ContextLife, AnExceptionOfInnerExclusiveWorkTakesBackTheOuterWhereItLeavesThat)
{
    const auto fail = [] { throw std::runtime_error("enough"); };
    EXPECT_THROW(context_->performExclusive([&] {
        book("outer");
        context_->performExclusive([&] {
            book("inner");
            fail();
        });
    }),
        std::runtime_error);
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_TRUE(isLockFree());
    EXPECT_THAT(titlesInStore(), IsEmpty());
}

// Resets --------------------------------------------------------------------------------------------------------------

TEST_P(ContextLife, MayBeResetByObserversOfASave)
{
    book("deleted");
    NSManagedObject& kept = book("kept");
    set(kept, "shelves").add(shelf("blue"));
    save();
    for (const auto name :
        {NSManagedObjectContextDidSaveNotification, NSManagedObjectContextObjectsDidChangeNotification}) {
        context_->reset();
        for (NSManagedObject* record : all("Book")) {
            if (text(*record, "title") == "deleted")
                context_->deleteObject(*record);
            else
                record->setValueForKey("pages", Value(7));
        }
        book("new").setValueForKey("cover", Value(&insert("Cover")));
        int later = 0;
        const auto resets = observe(name, [&](const ObjectChanges*) { context_->reset(); });
        const auto looks = observe(name, [&](const ObjectChanges* changes) {
            for (const auto* list : {&changes->inserted, &changes->updated, &changes->deleted, &changes->refreshed})
                for (const NSManagedObject* record : *list) {
                    EXPECT_TRUE(record->isDeleted()) << "a record of before the reset";
                    EXPECT_TRUE(record->storedValueForKey(record->entity().properties().front()->name()).isNil());
                    ++later;
                }
        });
        NSError error;
        EXPECT_TRUE(context_->save(&error)) << error;
        EXPECT_GT(later, 0);
        EXPECT_FALSE(context_->hasChanges());
        EXPECT_THAT(context_->registeredObjects(), IsEmpty());
    }
    // The second time the changes were dropped before the save came to them.
    EXPECT_THAT(titlesInStore(), ElementsAre("kept", "new"));
}

TEST_P(ContextLife, GoesOnAfterAResetByAnObserverThatReadAgain)
{
    book("one");
    save();
    int pages = 3;
    all("Book").at(0)->setValueForKey("pages", Value(pages));
    const auto resets = observe(NSManagedObjectContextDidSaveNotification, [&](const ObjectChanges*) {
        context_->reset();
        EXPECT_EQ(all("Book").at(0)->storedValueForKey("pages"), Value(pages));
    });
    save();
    NSManagedObject& again = *all("Book").at(0);
    EXPECT_EQ(context_->objectRegisteredForID(again.objectID()), &again);
    pages = 4;
    again.setValueForKey("pages", Value(pages));
    save();
    restart();
    EXPECT_EQ(all("Book").at(0)->storedValueForKey("pages"), Value(4));
}

// Records -------------------------------------------------------------------------------------------------------------

TEST_P(ContextLife, DeletesNoRecordOfAnotherContext)
{
    book("theirs");
    save();
    const auto other = contextOn(coordinator_);
    NSManagedObject& theirs = *other->executeFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))).at(0);
    EXPECT_THROW(context_->deleteObject(theirs), NSException);
    EXPECT_FALSE(theirs.isDeleted());
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_FALSE(other->hasChanges());
}

TEST_P(ContextLife, TellsNothingOfARecordThatCameAndWentInOnePass)
{
    int calls = 0;
    const auto listens
        = observe(NSManagedObjectContextObjectsDidChangeNotification, [&](const ObjectChanges*) { ++calls; });
    context_->deleteObject(book("short-lived"));
    context_->processPendingChanges();
    EXPECT_EQ(calls, 0);
    NSManagedObject& stays = book("stays");
    context_->deleteObject(book("short-lived too"));
    context_->processPendingChanges();
    EXPECT_EQ(calls, 1);
    context_->deleteObject(stays);
    context_->processPendingChanges();
    EXPECT_EQ(calls, 2) << "observers know this one";
}

class DamagedContextLife : public ContextLife { };
INSTANTIATE_TEST_SUITE_P(Stores, DamagedContextLife, testing::Values(StoreType::SQLite), storeTypeName);

TEST_P(DamagedContextLife, ExistingObjectIsNullWhereItCannotBeRead)
{
    for (int number = 0; number < 2; ++number)
        book("Book " + std::to_string(number));
    save();
    restart();
    NSFetchRequest keys(*model_->entityNamed("Book"));
    keys.includesPropertyValues = false;
    NSManagedObject& fault = *fetch(keys).at(0);
    ASSERT_TRUE(fault.isFault());
    const NSManagedObjectID known = fault.objectID();
    const NSManagedObjectID unknown(known.store(), known.entity(), known.key() + 1);
    std::filesystem::rename(folder_.file(), folder_.path() / "moved away");
    std::ofstream(folder_.file()) << "another file";

    for (const NSManagedObjectID& id : {known, unknown}) {
        NSError error;
        EXPECT_EQ(context_->existingObjectWithID(id, &error), nullptr);
        EXPECT_EQ(error.code(), StoreErrorReplaced);
    }
    EXPECT_FALSE(fault.isDeleted()) << "nobody knows that it is gone";
    EXPECT_THROW(static_cast<void>(fault.storedValueForKey("title")), NSException);
}

// Values --------------------------------------------------------------------------------------------------------------

/// Each way in which a value gets into a record.
using WayIn = std::function<void(NSManagedObject&, std::string_view key, const Value&)>;

const std::vector<std::pair<const char*, WayIn>>& waysIn()
{
    static const std::vector<std::pair<const char*, WayIn>> ways{
        {"setValueForKey",
            [](NSManagedObject& record, auto key, const Value& value) { record.setValueForKey(key, value); }},
        {"setPrimitiveValueForKey",
            [](NSManagedObject& record, auto key, const Value& value) { record.setPrimitiveValueForKey(key, value); }},
        {"setter",
            [](NSManagedObject& record, auto key, const Value& value) {
                const PropertyIndex index = record.entity().propertyNamed(key)->index();
                if (value.kind() == Value::Kind::String)
                    record.setStringAt(index, value.asString());
                else
                    record.setIntegerAt(index, value.asInteger());
            }},
        {"primitive setter",
            [](NSManagedObject& record, auto key, const Value& value) {
                const PropertyIndex index = record.entity().propertyNamed(key)->index();
                if (value.kind() == Value::Kind::String)
                    record.setPrimitiveStringAt(index, value.asString());
                else
                    record.setPrimitiveIntegerAt(index, value.asInteger());
            }},
    };
    return ways;
}

TEST_P(ContextLife, TakesNoIllFormedTextOnAnyWay)
{
    const std::string given = "a\xFFz\xE2\x82 \xED\xA0\x80";
    const std::string held = "a\uFFFDz\uFFFD \uFFFD\uFFFD\uFFFD";
    for (const auto& [name, put] : waysIn()) {
        for (const char* key : {"title", "code", "body"}) {
            NSManagedObject& record = book("");
            put(record, key, Value(given));
            EXPECT_EQ(text(record, key), held) << name << " of " << key;
            save();
            put(record, key, Value(given));
            EXPECT_FALSE(record.hasChanges()) << name << " of " << key << ": what it holds already is no change";
            EXPECT_EQ(find("Book", std::string(key) + " == %@", held).size(), 1U) << name << " of " << key;
            restart();
            NSManagedObject& again = *all("Book").at(0);
            EXPECT_EQ(text(again, key), held) << name << " of " << key;
            context_->deleteObject(again);
            save();
        }
    }
    NSManagedObject& record = book("data");
    record.setValueForKey("stamp", Value(NSData::fromText(given)));
    EXPECT_EQ(record.storedValueForKey("stamp").asData().text(), given) << "data is no text";
}

TEST_P(ContextLife, TakesTheNearestNumberThatFitsOnEveryWay)
{
    const std::pair<std::int64_t, std::int64_t> cases[]{{7, 7}, {32767, 32767}, {32768, 32767}, {65536, 32767},
        {-32768, -32768}, {-32769, -32768}, {std::numeric_limits<std::int64_t>::max(), 32767},
        {std::numeric_limits<std::int64_t>::min(), -32768}};
    for (const auto& [name, put] : waysIn())
        for (const auto& [given, held] : cases) {
            NSManagedObject& record = book("");
            put(record, "copies", Value(given));
            EXPECT_EQ(record.storedValueForKey("copies"), Value(held)) << name << " of " << given;
        }
    NSManagedObject& record = book("");
    record.setValueForKey("copies", Value(1e18));
    EXPECT_EQ(record.storedValueForKey("copies"), Value(32767));
}

TEST_P(ContextLife, TakesNoTextThatIsTooLongOnAnyWay)
{
    const Value tooLong(std::string((std::size_t{512} << 20U) + 1, 'x'));
    NSManagedObject& record = book("short");
    for (const auto& [name, put] : waysIn())
        EXPECT_THROW(put(record, "title", tooLong), NSException) << name;
    EXPECT_EQ(text(record, "title"), "short");
}

} // namespace
} // namespace tarn
