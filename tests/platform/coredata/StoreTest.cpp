// What the store in memory and the SQLite store promise alike.

#include "tests/platform/coredata/StoreFixture.h"

#include <cmath>
#include <future>
#include <gmock/gmock.h>
#include <limits>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Store : public testing::TestWithParam<StoreType> {
protected:
    ~Store() override { EXPECT_THAT(store.problems(), IsEmpty()); }

    TestFolder folder;
    OpenStore store{GetParam(), folder.file()};
};

INSTANTIATE_TEST_SUITE_P(BothKinds, Store, testing::Values(StoreType::SQLite, StoreType::InMemory),
    [](const auto& kind) { return kind.param == StoreType::SQLite ? "SQLite" : "InMemory"; });

const NSDate kDay = dateWithMicrosecondsSince1970(1'600'000'000'123'456);

// Rows ----------------------------------------------------------------------------------------------------------------

TEST_P(Store, KeepsEveryTypeOfAttribute)
{
    const std::string withNul("a\0b", 3);
    const NSData bytes = NSData::fromText(std::string("\x00\xFF\x01", 3));
    const auto key = store.insert("Document",
        {{"title", "Ämter"}, {"body", withNul}, {"raw", bytes}, {"created", kDay}, {"flag", true}, {"order", -32768},
            {"size", std::numeric_limits<std::int64_t>::max()}, {"ratio", 0.1}, {"code", ""}});
    EXPECT_EQ(store.value("Document", key, "title"), Value("Ämter"));
    EXPECT_EQ(store.value("Document", key, "body"), Value(withNul));
    EXPECT_EQ(store.value("Document", key, "raw"), Value(bytes));
    EXPECT_EQ(store.value("Document", key, "created"), Value(kDay));
    EXPECT_EQ(store.value("Document", key, "flag"), Value(true));
    EXPECT_EQ(store.value("Document", key, "order"), Value(-32768));
    EXPECT_EQ(store.value("Document", key, "size"), Value(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ(store.value("Document", key, "ratio"), Value(0.1));
    EXPECT_EQ(store.value("Document", key, "code"), Value("")) << "an empty string is not nil";
    EXPECT_EQ(store.value("Document", key, "summary"), Value());
}

TEST_P(Store, KeepsNothingOfWhatIsNoNumber)
{
    StoreRow row = makeRow(store.entity("Document"), store.newKey("Document"), {});
    row.values.setDouble(store.entity("Document").propertyNamed("ratio")->index(), std::nan(""));
    auto transaction = store->beginTransaction(nullptr);
    ASSERT_TRUE(transaction->insertRow(row, nullptr));
    ASSERT_TRUE(transaction->commit(nullptr));
    EXPECT_EQ(store.value("Document", row.key, "ratio"), Value());
}

TEST_P(Store, LeavesLargeAttributesUnloadedUntilTheWholeRowIsAskedFor)
{
    const auto key = store.insert("Document", {{"title", "a"}, {"body", "long"}});
    const auto body = store.entity("Document").propertyNamed("body")->index();
    EXPECT_FALSE(store.row("Document", key, RowContents::Row).values.isLoaded(body));
    EXPECT_TRUE(store.row("Document", key, RowContents::WholeRow).values.isLoaded(body));
    EXPECT_TRUE(store.row("Document", key, RowContents::Keys).values.isEmpty());
}

TEST_P(Store, LeavesAToOneUnloadedThatItsInverseHolds)
{
    const auto document = store.insert("Document", {});
    const auto record = store.insert("Record", {{"document", document}});
    EXPECT_FALSE(store.row("Document", document).values.isLoaded(store.relationship("Document", "record").index()));
    EXPECT_THAT(store.related("Document", "record", document), ElementsAre(record));
}

TEST_P(Store, HandsOutRowsOfSubentitiesAsSuch)
{
    const auto picture = store.insert("Picture", {{"name", "p"}, {"width", 5}});
    const auto recording = store.insert("Recording", {{"name", "r"}, {"seconds", 1.5}, {"transcript", "t"}});
    EXPECT_EQ(store.row("Attachment", picture).entity, &store.entity("Picture"));
    EXPECT_EQ(store.row("Attachment", recording).entity, &store.entity("Recording"));
    EXPECT_EQ(store.value("Attachment", picture, "width"), Value(5));
    EXPECT_EQ(store.value("Attachment", recording, "transcript"), Value("t"));
    EXPECT_THAT(store.keys("Attachment"), ElementsAre(picture, recording));
    EXPECT_THAT(store.keys("Picture"), ElementsAre(picture));
    EXPECT_EQ(store.row("Picture", recording).entity, nullptr) << "no row of this entity";
}

TEST_P(Store, FetchesAnAbstractEntityAloneWhenSubentitiesAreNotWanted)
{
    const auto own = store.insert("Attachment", {{"name", "a"}});
    store.insert("Picture", {});
    StoreFetch fetch;
    fetch.entity = &store.entity("Attachment");
    fetch.includesSubentities = false;
    std::vector<StoreRow> rows;
    ASSERT_TRUE(store->fetch(fetch, rows, nullptr));
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].key, own);
}

TEST_P(Store, GivesTheRowsOfManyKeysThatExist)
{
    std::vector<std::int64_t> wanted;
    for (int i = 0; i < 20; ++i)
        wanted.push_back(store.insert("Label", {{"weight", i}}));
    wanted.push_back(99'999);
    std::vector<StoreRow> rows;
    ASSERT_TRUE(store->rowsForKeys(store.entity("Label"), wanted, RowContents::Row, rows, nullptr));
    EXPECT_EQ(rows.size(), 20U);
}

// Updates and versions ------------------------------------------------------------------------------------------------

TEST_P(Store, RaisesTheVersionWithEveryUpdate)
{
    const auto key = store.insert("Label", {{"name", "a"}});
    EXPECT_EQ(store.row("Label", key).version, 1);
    ASSERT_TRUE(store.update("Label", key, "name", "b"));
    EXPECT_EQ(store.row("Label", key).version, 2);
    EXPECT_EQ(store.value("Label", key, "name"), Value("b"));
}

TEST_P(Store, WritesOnlyTheChangedProperties)
{
    const auto key = store.insert("Document", {{"title", "a"}, {"body", "long"}, {"order", 4}});
    StoreRow changed = makeRow(store.entity("Document"), key, {{"title", "b"}, {"order", 9}});
    auto transaction = store->beginTransaction(nullptr);
    const PropertyMask mask = propertyBit(store.entity("Document").propertyNamed("title")->index());
    ASSERT_EQ(transaction->updateRow(changed, mask, nullptr), RowWriteResult::Written);
    ASSERT_TRUE(transaction->commit(nullptr));
    EXPECT_EQ(store.value("Document", key, "title"), Value("b"));
    EXPECT_EQ(store.value("Document", key, "order"), Value(4));
    EXPECT_EQ(store.value("Document", key, "body"), Value("long"));
}

TEST_P(Store, UpdatesLargeAttributesAlsoWhereThereWereNone)
{
    const auto key = store.insert("Document", {{"title", "a"}});
    ASSERT_TRUE(store.update("Document", key, "body", "new"));
    EXPECT_EQ(store.value("Document", key, "body"), Value("new"));
    ASSERT_TRUE(store.update("Document", key, "body", nullptr));
    EXPECT_EQ(store.value("Document", key, "body"), Value());
}

TEST_P(Store, RefusesAnUpdateOfAnotherVersionAndOfARowThatIsGone)
{
    const auto key = store.insert("Label", {{"name", "a"}});
    StoreRow stale = makeRow(store.entity("Label"), key, {{"name", "mine"}});
    ASSERT_TRUE(store.update("Label", key, "name", "theirs"));
    auto transaction = store->beginTransaction(nullptr);
    const PropertyMask mask = propertyBit(store.entity("Label").propertyNamed("name")->index());
    EXPECT_EQ(transaction->updateRow(stale, mask, nullptr), RowWriteResult::Conflict);
    EXPECT_EQ(transaction->deleteRow(store.entity("Label"), key, 1, nullptr), RowWriteResult::Conflict);
    stale.key = 99'999;
    EXPECT_EQ(transaction->updateRow(stale, mask, nullptr), RowWriteResult::Gone);
    EXPECT_EQ(transaction->deleteRow(store.entity("Label"), 99'999, 0, nullptr), RowWriteResult::Gone);
    transaction.reset();
    EXPECT_EQ(store.value("Label", key, "name"), Value("theirs"));
}

TEST_P(Store, RefusesASecondRowWithTheSameKey)
{
    const auto key = store.insert("Label", {{"name", "a"}});
    auto transaction = store->beginTransaction(nullptr);
    NSError error;
    EXPECT_FALSE(transaction->insertRow(makeRow(store.entity("Label"), key, {}), &error));
    EXPECT_EQ(error.domain(), TarnStoreErrorDomain);
}

// Relationships -------------------------------------------------------------------------------------------------------

TEST_P(Store, ReadsJoinsFromBothEnds)
{
    const auto first = store.insert("Document", {});
    const auto second = store.insert("Document", {});
    const auto red = store.insert("Label", {});
    const auto blue = store.insert("Label", {});
    store.join("Document", "labels", second, blue);
    store.join("Document", "labels", second, red);
    store.join("Document", "labels", first, red);
    store.join("Document", "labels", first, red); // is there already
    EXPECT_THAT(store.related("Document", "labels", second), ElementsAre(red, blue));
    EXPECT_THAT(store.related("Label", "documents", red), ElementsAre(first, second));
    std::size_t count = 0;
    ASSERT_TRUE(store->countRelated(store.relationship("Label", "documents"), red, count, nullptr));
    EXPECT_EQ(count, 2U);
}

TEST_P(Store, RemovesJoins)
{
    const auto document = store.insert("Document", {});
    const auto red = store.insert("Label", {});
    store.join("Document", "labels", document, red);
    auto transaction = store->beginTransaction(nullptr);
    const JoinChange removed{&store.relationship("Document", "labels"), document, red, false};
    ASSERT_TRUE(transaction->changeJoins({&removed, 1}, nullptr));
    ASSERT_TRUE(transaction->changeJoins({&removed, 1}, nullptr)) << "one that is gone is no error";
    ASSERT_TRUE(transaction->commit(nullptr));
    EXPECT_THAT(store.related("Document", "labels", document), IsEmpty());
    EXPECT_THAT(store.related("Label", "documents", red), IsEmpty());
}

TEST_P(Store, LeavesOutJoinsWithRowsThatVanished)
{
    const auto document = store.insert("Document", {});
    store.join("Document", "labels", document, 99'999);
    EXPECT_THAT(store.related("Document", "labels", document), IsEmpty());
}

TEST_P(Store, ReadsOneToManyFromBothEnds)
{
    const auto document = store.insert("Document", {});
    const auto picture = store.insert("Picture", {{"document", document}});
    const auto recording = store.insert("Recording", {{"document", document}});
    std::vector<RelatedKey> related;
    ASSERT_TRUE(store->relatedKeys(store.relationship("Document", "attachments"), document, related, nullptr));
    EXPECT_THAT(related,
        ElementsAre(RelatedKey{&store.entity("Picture"), picture}, RelatedKey{&store.entity("Recording"), recording}));
    EXPECT_EQ(store.value("Picture", picture, "document"), Value(document));
}

TEST_P(Store, MovesAMemberFromOneOwnerToAnother)
{
    const auto first = store.insert("Document", {});
    const auto second = store.insert("Document", {});
    const auto picture = store.insert("Picture", {{"document", first}});
    ASSERT_TRUE(store.update("Picture", picture, "document", second));
    EXPECT_THAT(store.related("Document", "attachments", first), IsEmpty());
    EXPECT_THAT(store.related("Document", "attachments", second), ElementsAre(picture));
    ASSERT_TRUE(store.update("Picture", picture, "document", nullptr));
    EXPECT_THAT(store.related("Document", "attachments", second), IsEmpty());
}

TEST_P(Store, TakesAToOneWhoseTargetComesLaterInTheTransaction)
{
    auto transaction = store->beginTransaction(nullptr);
    const auto document = store.newKey("Document");
    const auto picture = store.newKey("Attachment");
    ASSERT_TRUE(transaction->insertRow(makeRow(store.entity("Picture"), picture, {{"document", document}}), nullptr));
    ASSERT_TRUE(transaction->insertRow(makeRow(store.entity("Document"), document, {}), nullptr));
    NSError error;
    ASSERT_TRUE(transaction->commit(&error)) << error;
    EXPECT_EQ(store.value("Picture", picture, "document"), Value(document));
}

TEST_P(Store, WritesNilForATargetThatVanished)
{
    const auto inserted = store.insert("Picture", {{"document", 99'999}});
    EXPECT_EQ(store.value("Picture", inserted, "document"), Value());
    const auto document = store.insert("Document", {});
    const auto updated = store.insert("Picture", {{"document", document}});
    store.remove("Document", document);
    ASSERT_TRUE(store.update("Picture", updated, "document", document));
    EXPECT_EQ(store.value("Picture", updated, "document"), Value());
}

TEST_P(Store, DeletingARowTakesItOutOfAllRelationships)
{
    const auto document = store.insert("Document", {{"body", "x"}});
    const auto label = store.insert("Label", {});
    const auto picture = store.insert("Picture", {{"document", document}});
    store.join("Document", "labels", document, label);
    store.remove("Document", document);
    EXPECT_THAT(store.related("Label", "documents", label), IsEmpty());
    EXPECT_EQ(store.value("Picture", picture, "document"), Value());
    EXPECT_EQ(store.row("Picture", picture).version, 1) << "no change of its own";
    EXPECT_EQ(store.row("Document", document).entity, nullptr);
}

TEST_P(Store, DeletesARowThatIsRelatedToItself)
{
    const auto label = store.insert("Label", {});
    const auto child = store.insert("Label", {{"parent", label}});
    ASSERT_TRUE(store.update("Label", label, "parent", label));
    EXPECT_THAT(store.related("Label", "children", label), ElementsAre(label, child));
    store.remove("Label", label);
    EXPECT_EQ(store.value("Label", child, "parent"), Value());
}

// Transactions --------------------------------------------------------------------------------------------------------

TEST_P(Store, ForgetsATransactionThatIsNotCommitted)
{
    const auto kept = store.insert("Label", {{"name", "kept"}});
    auto transaction = store->beginTransaction(nullptr);
    ASSERT_TRUE(transaction->insertRow(makeRow(store.entity("Label"), store.newKey("Label"), {}), nullptr));
    ASSERT_EQ(transaction->deleteRow(store.entity("Label"), kept, 0, nullptr), RowWriteResult::Written);
    EXPECT_EQ(store.keys("Label").size(), 1U) << "this thread sees its writes";
    transaction.reset();
    EXPECT_THAT(store.keys("Label"), ElementsAre(kept));
}

TEST_P(Store, ShowsUncommittedWritesToNoOtherThread)
{
    auto transaction = store->beginTransaction(nullptr);
    ASSERT_TRUE(transaction->insertRow(makeRow(store.entity("Label"), store.newKey("Label"), {}), nullptr));
    EXPECT_EQ(store.keys("Label").size(), 1U);
    EXPECT_EQ(std::async(std::launch::async, [&] { return store.keys("Label").size(); }).get(), 0U);
    ASSERT_TRUE(transaction->commit(nullptr));
    EXPECT_EQ(std::async(std::launch::async, [&] { return store.keys("Label").size(); }).get(), 1U);
}

TEST_P(Store, GivesAThreadOneTransactionAtATime)
{
    auto transaction = store->beginTransaction(nullptr);
    NSError error;
    EXPECT_FALSE(store->beginTransaction(&error));
    EXPECT_EQ(error.code(), StoreErrorBusy);
    transaction.reset();
    EXPECT_TRUE(store->beginTransaction(&error));
}

TEST_P(Store, LetsThreadsWriteOneAfterTheOther)
{
    constexpr int kThreads = 4;
    constexpr int kRows = 10;
    std::vector<std::future<void>> writers;
    for (int i = 0; i < kThreads; ++i)
        writers.push_back(std::async(std::launch::async, [&] {
            for (int row = 0; row < kRows; ++row)
                store.insert("Label", {{"weight", row}});
        }));
    for (auto& writer : writers)
        writer.get();
    EXPECT_EQ(store.keys("Label").size(), std::size_t{kThreads * kRows});
}

TEST_P(Store, NumbersTheStateThatATransactionMadeWhateverFollows)
{
    const auto begin = [&] {
        NSError error;
        auto transaction = store->beginTransaction(&error);
        EXPECT_TRUE(transaction) << error;
        return transaction;
    };
    const auto first = begin();
    const std::uint64_t before = first->stateNumber();
    ASSERT_TRUE(first->commit(nullptr));
    const std::uint64_t made = first->stateNumber();
    EXPECT_NE(made, before);
    ASSERT_TRUE(begin()->commit(nullptr));
    EXPECT_EQ(first->stateNumber(), made) << "who asks has not seen what came after";
    EXPECT_NE(store->stateNumber(), made);
}

TEST_P(Store, RefusesWritesAfterTheEndOfATransaction)
{
    auto transaction = store->beginTransaction(nullptr);
    ASSERT_TRUE(transaction->commit(nullptr));
    NSError error;
    EXPECT_FALSE(transaction->commit(&error));
    EXPECT_FALSE(error.localizedDescription().empty());
}

// Keys ----------------------------------------------------------------------------------------------------------------

TEST_P(Store, NeverReusesAKey)
{
    const auto first = store.insert("Label", {});
    store.remove("Label", first);
    EXPECT_GT(store.insert("Label", {}), first);
}

TEST_P(Store, KeepsReservedKeysOfAFailedTransactionReserved)
{
    std::int64_t reserved = 0;
    {
        auto transaction = store->beginTransaction(nullptr);
        ASSERT_TRUE(store->reserveKeys(store.entity("Label"), 10, reserved, nullptr));
    }
    std::int64_t next = 0;
    ASSERT_TRUE(store->reserveKeys(store.entity("Label"), 1, next, nullptr));
    EXPECT_EQ(next, reserved + 10);
}

TEST_P(Store, CountsKeysByInheritanceChain)
{
    EXPECT_EQ(store.newKey("Picture"), 1);
    EXPECT_EQ(store.newKey("Recording"), 2);
    EXPECT_EQ(store.newKey("Label"), 1);
}

// Fetches -------------------------------------------------------------------------------------------------------------

TEST_P(Store, AnswersUnsortedFetchesByKeyAndSortsTiesByKey)
{
    const auto a = store.insert("Label", {{"name", "b"}, {"weight", 1}});
    const auto b = store.insert("Label", {{"name", "a"}, {"weight", 2}});
    const auto c = store.insert("Label", {{"name", "c"}, {"weight", 1}});
    const auto nil = store.insert("Label", {});
    EXPECT_THAT(store.keys("Label"), ElementsAre(a, b, c, nil));
    EXPECT_THAT(store.keys("Label", {}, {{"weight", true}}), ElementsAre(nil, a, c, b));
    EXPECT_THAT(store.keys("Label", {}, {{"weight", false}}), ElementsAre(b, a, c, nil));
    EXPECT_THAT(store.keys("Label", {}, {{"weight", false}, {"name", false}}), ElementsAre(b, c, a, nil));
}

TEST_P(Store, SortsStringsByCodePointOrAsPeopleDo)
{
    EnvironmentOverride world;
    world.setLocaleIdentifier("en_US");
    const auto upper = store.insert("Label", {{"name", "Zebra"}});
    const auto lower = store.insert("Label", {{"name", "ant"}});
    const auto ten = store.insert("Label", {{"name", "file10"}});
    const auto two = store.insert("Label", {{"name", "file2"}});
    EXPECT_THAT(store.keys("Label", {}, {{"name", true}}), ElementsAre(upper, lower, ten, two));
    EXPECT_THAT(store.keys("Label", {}, {{"name", true, SortComparison::LocalizedStandard}}),
        ElementsAre(lower, two, ten, upper));
}

TEST_P(Store, SortsOverToOnePathsWithMissingOnesFirst)
{
    const auto zoe = store.insert("Person", {{"name", "Zoe"}});
    const auto abe = store.insert("Person", {{"name", "Abe"}});
    const auto zoes = store.insert("Document", {{"owner", zoe}});
    const auto none = store.insert("Document", {});
    const auto abes = store.insert("Document", {{"owner", abe}});
    EXPECT_THAT(store.keys("Document", {}, {{"owner.name", true}}), ElementsAre(none, abes, zoes));
    const auto record = store.insert("Record", {{"document", none}, {"state", 3}});
    EXPECT_GT(record, 0);
    EXPECT_THAT(store.keys("Document", {}, {{"record.state", false}}), ElementsAre(none, zoes, abes));
}

TEST_P(Store, CutsToLimitAndOffset)
{
    for (int i = 0; i < 10; ++i)
        store.insert("Label", {{"weight", i}, {"name", "x"}});
    EXPECT_THAT(store.keys("Label", {}, {{"weight", false}}, 3, 2), ElementsAre(8, 7, 6));
    EXPECT_THAT(store.keys("Label", {}, {}, 0, 8), ElementsAre(9, 10));
    EXPECT_THAT(store.keys("Label", {}, {}, 5, 20), IsEmpty());
    // A predicate that SQL cannot say: the cut counts what it leaves.
    const auto odd = NSPredicate::predicateWithFormat("name BETWEEN {name, name} AND weight > 4");
    EXPECT_THAT(store.keys("Label", odd, {}, 2, 1), ElementsAre(7, 8));
}

TEST_P(Store, LeavesOutExcludedKeysBeforeTheLimitCounts)
{
    for (int i = 0; i < 6; ++i)
        store.insert("Label", {});
    const std::vector<std::int64_t> excluded{1, 3, 4};
    StoreFetch fetch;
    fetch.entity = &store.entity("Label");
    fetch.excludedKeys = excluded;
    fetch.limit = 2;
    std::vector<StoreRow> rows;
    ASSERT_TRUE(store->fetch(fetch, rows, nullptr));
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].key, 2);
    EXPECT_EQ(rows[1].key, 5);
}

TEST_P(Store, ComparesWithRecords)
{
    const auto person = store.insert("Person", {});
    const auto mine = store.insert("Document", {{"owner", person}});
    store.insert("Document", {});
    const auto label = store.insert("Label", {});
    store.join("Document", "labels", mine, label);
    const RecordReference owner(*store, store.entity("Person"), person);
    const RecordReference unsaved(*store, store.entity("Person"), -5);
    const RecordReference tag(*store, store.entity("Label"), label);
    const auto reference = [](const RecordReference& record) { return static_cast<const NSKeyValueCoding*>(&record); };
    EXPECT_THAT(store.keysWhere("Document", "owner == %@", reference(owner)), ElementsAre(mine));
    EXPECT_THAT(store.keysWhere("Document", "owner == %@", reference(unsaved)), IsEmpty());
    EXPECT_EQ(store.keysWhere("Document", "owner != %@", reference(unsaved)).size(), 2U);
    EXPECT_THAT(store.keysWhere("Document", "%@ IN labels", reference(tag)), ElementsAre(mine));
    EXPECT_THAT(store.keysWhere("Document", "labels CONTAINS %@", reference(tag)), ElementsAre(mine));
    EXPECT_THAT(store.keysWhere("Document", "NOT labels CONTAINS %@", reference(tag)), testing::SizeIs(1));
    EXPECT_THAT(store.keysWhere("Label", "SELF == %@", reference(tag)), ElementsAre(label));
    EXPECT_THAT(store.keysWhere("Document", "owner == %@", reference(tag)), IsEmpty()) << "another entity's key 1";
}

TEST_P(Store, TakesAHundredThousandIdentifiersInOneFetch)
{
    const auto key = store.insert("Label", {});
    store.insert("Label", {});
    std::vector<RecordReference> references;
    references.reserve(100'000);
    references.emplace_back(*store, store.entity("Label"), key);
    for (std::int64_t i = 10; references.size() < 100'000; ++i)
        references.emplace_back(*store, store.entity("Label"), i);
    Value::Array list;
    for (const auto& reference : references)
        list.emplace_back(&reference);
    // The store in memory compares one by one: a part of the list is enough there.
    if (GetParam() == StoreType::InMemory)
        list.resize(1000);
    EXPECT_THAT(store.keysWhere("Label", "SELF IN %@", list), ElementsAre(key));
    EXPECT_THAT(store.keysWhere("Label", "NOT SELF IN %@", list), ElementsAre(key + 1));
}

TEST_P(Store, TakesLongChainsOfWords)
{
    const auto key = store.insert("Document", {{"body", "alpha beta gamma"}, {"title", "t5"}});
    store.insert("Document", {{"body", "delta"}, {"title", "u"}});
    std::vector<NSPredicate> words;
    for (int i = 0; i < 50'000; ++i)
        words.push_back(NSPredicate::predicateWithFormat("body CONTAINS[cd] %@", i % 2 ? "ALPHA" : "bêta"));
    EXPECT_THAT(store.keys("Document", NSPredicate::andPredicateWithSubpredicates(words)), ElementsAre(key));
    std::vector<NSPredicate> titles;
    for (int i = 0; i < 5'000; ++i)
        titles.push_back(NSPredicate::predicateWithFormat("title ==[cd] %@", "T" + std::to_string(i)));
    EXPECT_THAT(store.keys("Document", NSPredicate::orPredicateWithSubpredicates(titles)), ElementsAre(key));
}

TEST_P(Store, TakesDeeplyNestedPredicates)
{
    const auto key = store.insert("Label", {{"weight", 3}});
    std::string format = "weight == 3";
    for (int i = 0; i < 120; ++i)
        format = (i % 2 ? "(name == nil AND (" : "(weight == 7 OR (") + format + "))";
    EXPECT_THAT(store.keysWhere("Label", format), ElementsAre(key));
}

TEST_P(Store, NamesAnUnknownKeyAlsoWhenThereAreNoRows)
{
    for (const char* format : {"wrong == 1", "owner.wrong == 1", "ANY labels.wrong == 1", "title.wrong == 1",
             "SUBQUERY(labels, $l, $l.wrong == 1).@count > 0", "wrong BETWEEN {order, size}"}) {
        const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
        StoreFetch fetch;
        fetch.entity = &store.entity("Document");
        fetch.predicate = &predicate;
        std::vector<StoreRow> rows;
        NSError error;
        EXPECT_FALSE(store->fetch(fetch, rows, &error)) << format;
        EXPECT_THAT(error.localizedDescription(), HasSubstr("wrong")) << format;
        std::size_t count = 0;
        EXPECT_FALSE(store->count(fetch, count, &error)) << format;
    }
}

TEST_P(Store, RefusesToSortByWhatHasNoOrder)
{
    for (const char* key : {"wrong", "labels", "owner", "labels.name", "owner.wrong", "title.x"}) {
        const std::vector<NSSortDescriptor> sort{{key, true}};
        StoreFetch fetch;
        fetch.entity = &store.entity("Document");
        fetch.sortDescriptors = sort;
        std::vector<StoreRow> rows;
        NSError error;
        EXPECT_FALSE(store->fetch(fetch, rows, &error)) << key;
        EXPECT_FALSE(error.localizedDescription().empty()) << key;
    }
}

TEST_P(Store, ReportsAPatternThatIsNone)
{
    const NSPredicate predicate = NSPredicate::predicateWithFormat("title MATCHES %@", "(");
    StoreFetch fetch;
    fetch.entity = &store.entity("Document");
    fetch.predicate = &predicate;
    std::vector<StoreRow> rows;
    NSError error;
    EXPECT_FALSE(store->fetch(fetch, rows, &error));
    EXPECT_FALSE(error.localizedDescription().empty());
}

TEST_P(Store, CountsLikeItFetches)
{
    for (int i = 0; i < 5; ++i)
        store.insert("Document", {{"order", i}, {"title", i % 2 ? "odd" : "even"}});
    EXPECT_EQ(store.count("Document", "title == 'odd'"), 2U);
    EXPECT_EQ(store.count("Document", "order BETWEEN {order, 3}"), 4U);
}

// Metadata and identity -----------------------------------------------------------------------------------------------

TEST_P(Store, KeepsValuesOfTheHost)
{
    ASSERT_TRUE(store->setMetadataValue("host.setting", "7", nullptr));
    const auto metadata = store->metadata(nullptr);
    EXPECT_EQ(metadata.at("host.setting"), "7");
    EXPECT_EQ(metadata.at("storeUUID"), store->identity().uuid());
    EXPECT_TRUE(NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*storeTestModel(), metadata));
    auto other = metadata;
    other.at("entityHash.Label") = "0";
    EXPECT_FALSE(NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*storeTestModel(), other));
    other.erase("entityHash.Label");
    EXPECT_FALSE(NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(*storeTestModel(), other));
}

TEST_P(Store, ReadsTheURIsOfIdentifiersBack)
{
    const auto& coordinator = store.coordinator();
    const NSManagedObjectID saved(store->identity(), store.entity("Picture"), 42);
    const NSManagedObjectID temporary = NSManagedObjectID::makeTemporary(store->identity(), store.entity("Label"));
    EXPECT_EQ(saved.URIRepresentation(), "tarn-store://" + store->identity().uuid() + "/Picture/p42");
    EXPECT_EQ(coordinator.managedObjectIDForURIRepresentation(saved.URIRepresentation()), saved);
    EXPECT_EQ(coordinator.managedObjectIDForURIRepresentation(temporary.URIRepresentation()), temporary);
    const std::string start = "tarn-store://" + store->identity().uuid();
    for (const std::string& text : {std::string(), std::string("tarn-store://"), start, start + "/", start + "/Label",
             start + "/Label/", start + "/Label/p", start + "/Label/p0", start + "/Label/p-3", start + "/Label/p+3",
             start + "/Label/p3x", start + "/Label/p99999999999999999999", start + "/Wrong/p3", start + "/Label/x3",
             start + "/Label/t00000000-0000-4000-8000-000000000001",
             std::string("tarn-store://00000000-0000-4000-8000-000000000001/Label/p3")})
        EXPECT_FALSE(coordinator.managedObjectIDForURIRepresentation(text)) << text;
}

} // namespace
} // namespace tarn
