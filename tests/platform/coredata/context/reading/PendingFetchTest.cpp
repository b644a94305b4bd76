#include "tests/platform/coredata/context/ContextFixture.h"

#include <algorithm>
#include <limits>
#include <random>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FetchWithPendingChanges : public ContextTest {
protected:
    NSFetchRequest request(std::string_view entity, std::vector<NSSortDescriptor> order = {})
    {
        NSFetchRequest wanted(*model_->entityNamed(entity));
        wanted.sortDescriptors = std::move(order);
        return wanted;
    }
};
INSTANTIATE_TEST_SUITE_P(
    Stores, FetchWithPendingChanges, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(FetchWithPendingChanges, SeesInsertedChangedAndDeletedRecords)
{
    NSManagedObject& stays = book("stays", 1);
    NSManagedObject& changes = book("changes", 1);
    NSManagedObject& goes = book("goes", 1);
    save();
    NSManagedObject& comes = book("comes", 1);
    changes.setValueForKey("pages", Value(2));
    context_->deleteObject(goes);

    EXPECT_THAT(find("Book", "pages == 1"), ElementsAre(&stays, &comes));
    EXPECT_THAT(find("Book", "pages == 2"), ElementsAre(&changes));
    EXPECT_THAT(all("Book"), ElementsAre(&stays, &changes, &comes));
    NSFetchRequest counting = request("Book");
    counting.predicate = NSPredicate::predicateWithFormat("pages == 1");
    EXPECT_EQ(context_->countForFetchRequest(counting), 2U);
    counting.includesPendingChanges = false;
    EXPECT_EQ(context_->countForFetchRequest(counting), 3U);
}

TEST_P(FetchWithPendingChanges, SortsAndLimitsTheMergedResult)
{
    for (const std::int64_t pages : {10, 20, 30, 40})
        book("b" + std::to_string(pages), pages);
    save();
    find("Book", "pages == 10").at(0)->setValueForKey("pages", Value(35));
    context_->deleteObject(*find("Book", "pages == 20").at(0));
    book("new", 25);

    NSFetchRequest wanted = request("Book", {{"pages", false}});
    EXPECT_THAT(texts(fetch(wanted), "title"), ElementsAre("b40", "b10", "b30", "new"));
    wanted.fetchLimit = 2;
    EXPECT_THAT(texts(fetch(wanted), "title"), ElementsAre("b40", "b10"));
    wanted.fetchOffset = 1;
    EXPECT_THAT(texts(fetch(wanted), "title"), ElementsAre("b10", "b30"));
    wanted.fetchOffset = 3;
    EXPECT_THAT(texts(fetch(wanted), "title"), ElementsAre("new"));
    wanted.fetchOffset = 9;
    EXPECT_THAT(fetch(wanted), IsEmpty());
}

/// Whether few or most of what a page shows is unsaved, each page is a piece of the whole list.
TEST_P(FetchWithPendingChanges, GivesEachPageOfTheWholeList)
{
    for (const int saved : {0, 3, 60}) {
        for (const int unsaved : {1, 60}) {
            SCOPED_TRACE(testing::Message() << saved << " saved, " << unsaved << " not");
            restart();
            for (NSManagedObject* former : all("Book"))
                context_->deleteObject(*former);
            save();
            std::mt19937_64 random(saved * 100 + unsaved);
            const auto some = [&] { return static_cast<std::int64_t>(random() % 40); };
            for (int i = 0; i < saved; ++i)
                book("saved", some());
            save();
            for (int i = 0; i < unsaved; ++i)
                book("unsaved", some());
            for (NSManagedObject* changed : find("Book", "title == 'saved' AND pages < 10"))
                changed->setValueForKey("pages", Value(some()));

            for (const bool ascending : {true, false}) {
                NSFetchRequest wanted = request("Book", {{"pages", ascending}});
                const auto list = fetch(wanted);
                ASSERT_EQ(list.size(), static_cast<std::size_t>(saved + unsaved));
                const auto pages
                    = [](const NSManagedObject* book) { return book->storedValueForKey("pages").asInteger(); };
                ASSERT_TRUE(ascending ? std::ranges::is_sorted(list, {}, pages)
                                      : std::ranges::is_sorted(list, std::ranges::greater(), pages));
                for (const std::size_t limit : {1U, 5U, 59U, 200U}) {
                    for (const std::size_t offset : {0U, 1U, 58U, 130U}) {
                        wanted.fetchLimit = limit;
                        wanted.fetchOffset = offset;
                        const std::size_t first = std::min(offset, list.size());
                        const std::size_t end = std::min(first + limit, list.size());
                        EXPECT_EQ(fetch(wanted),
                            std::vector<NSManagedObject*>(list.begin() + static_cast<std::ptrdiff_t>(first),
                                list.begin() + static_cast<std::ptrdiff_t>(end)));
                        EXPECT_EQ(context_->countForFetchRequest(wanted), end - first);
                    }
                }
            }
        }
    }
}

TEST_P(FetchWithPendingChanges, CountsWithoutLoadingRecords)
{
    for (std::int64_t i = 0; i < 100; ++i)
        book("b" + std::to_string(i), i);
    save();
    restart();
    NSManagedObject& lower = *find("Book", "title == 'b70'").at(0);
    NSManagedObject& gone = *find("Book", "title == 'b80'").at(0);
    lower.setValueForKey("pages", Value(2));
    context_->deleteObject(gone);
    book("new", 60);

    NSFetchRequest counting = request("Book");
    counting.predicate = NSPredicate::predicateWithFormat("pages >= 50");
    EXPECT_EQ(context_->countForFetchRequest(counting), 49U); // 50 that are stored, less two, and the new one
    EXPECT_EQ(context_->countForFetchRequest(request("Book")), 100U);
    EXPECT_LE(context_->registeredObjects().size(), 3U);
}

TEST_P(FetchWithPendingChanges, TakesTheLargestNumbersForAsManyAsThereAre)
{
    constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max();
    for (const std::int64_t pages : {10, 20, 30})
        book("b" + std::to_string(pages), pages);
    save();
    NSFetchRequest wanted = request("Book", {{"pages", true}});
    const auto expectTheSame = [&] {
        const auto all = texts(fetch(wanted), "title");
        for (const std::size_t limit : {kMost, kMost - 1, kMost / 2, kMost / 2 + 1}) {
            wanted.fetchLimit = limit;
            wanted.fetchOffset = 0;
            EXPECT_EQ(texts(fetch(wanted), "title"), all);
            wanted.fetchOffset = 2;
            EXPECT_EQ(texts(fetch(wanted), "title"), std::vector(all.begin() + 2, all.end()));
            wanted.fetchOffset = limit;
            EXPECT_THAT(fetch(wanted), IsEmpty());
        }
        wanted.fetchLimit = wanted.fetchOffset = 0;
    };
    expectTheSame();
    find("Book", "pages == 10").at(0)->setValueForKey("pages", Value(35));
    book("new", 25);
    expectTheSame();
}

TEST_P(FetchWithPendingChanges, BreaksTiesByKeyThenByInsertion)
{
    book("first");
    book("second");
    save();
    book("third");
    book("fourth");
    EXPECT_THAT(
        texts(fetch(request("Book", {{"pages", true}})), "title"), ElementsAre("first", "second", "third", "fourth"));
    EXPECT_THAT(
        texts(fetch(request("Book", {{"pages", false}})), "title"), ElementsAre("first", "second", "third", "fourth"));
}

TEST_P(FetchWithPendingChanges, ReachesAlongKeyPaths)
{
    NSManagedObject& one = book("One");
    NSManagedObject& two = book("Two");
    NSManagedObject& red = shelf("red");
    NSManagedObject& chapter = insert("Chapter");
    set(one, "shelves").add(red);
    chapter.setValueForKey("book", Value(&one));
    save();

    red.setValueForKey("name", Value("blue"));
    EXPECT_THAT(find("Book", "ANY shelves.name == 'red'"), IsEmpty());
    EXPECT_THAT(find("Book", "ANY shelves.name == 'blue'"), ElementsAre(&one));
    EXPECT_THAT(find("Book", "NONE shelves.name == 'blue'"), ElementsAre(&two));
    EXPECT_THAT(find("Chapter", "ANY book.shelves.name == 'blue'"), ElementsAre(&chapter));

    one.setValueForKey("lent", Value(true));
    EXPECT_THAT(find("Chapter", "book.lent == YES"), ElementsAre(&chapter));
    EXPECT_THAT(find("Shelf", "SUBQUERY(books, $book, $book.lent == YES).@count > 0"), ElementsAre(&red));

    chapter.setValueForKey("book", Value(&two));
    EXPECT_THAT(find("Chapter", "book.lent == YES"), IsEmpty());
    EXPECT_THAT(find("Book", "chapters.@count == 0"), ElementsAre(&one));

    context_->deleteObject(red);
    EXPECT_THAT(find("Book", "shelves.@count == 0"), ElementsAre(&one, &two));
    EXPECT_THAT(find("Chapter", "ANY book.shelves.name == 'blue'"), IsEmpty());
}

TEST_P(FetchWithPendingChanges, SortsByAChangedRecordElsewhere)
{
    NSManagedObject& one = book("a");
    NSManagedObject& two = book("b");
    for (NSManagedObject* owner : {&one, &two})
        insert("Chapter").setValueForKey("book", Value(owner));
    save();
    one.setValueForKey("title", Value("z"));

    const auto chapters = fetch(request("Chapter", {{"book.title", true}}));
    ASSERT_EQ(chapters.size(), 2U);
    EXPECT_EQ(&chapters.at(0)->storedValueForKey("book").asObject(), &two);
}

TEST_P(FetchWithPendingChanges, TakesUnsavedRecordsAsArguments)
{
    NSManagedObject& one = book("One");
    save();
    NSManagedObject& red = shelf("red");
    set(one, "shelves").add(red);

    EXPECT_THAT(find("Book", "%@ IN shelves", &red), ElementsAre(&one));
    EXPECT_THAT(find("Book", "ANY shelves == %@", &red), ElementsAre(&one));
    EXPECT_THAT(find("Book", "ANY shelves IN %@", Value::Array{Value(&red)}), ElementsAre(&one));
    EXPECT_THAT(find("Shelf", "self != %@", &red), IsEmpty());
    EXPECT_THAT(find("Shelf", "SELF == %@", &red), ElementsAre(&red));
}

TEST_P(FetchWithPendingChanges, FindsAnUnsavedTitleWithoutCaseAndDiacritics)
{
    NSManagedObject& one = book("Écritures");
    EXPECT_THAT(find("Book", "title ==[cd] %@", "ecritures"), ElementsAre(&one));
    one.setValueForKey("title", Value("Other"));
    EXPECT_THAT(find("Book", "title ==[cd] %@", "ecritures"), IsEmpty());
    EXPECT_THAT(find("Book", "title ==[cd] %@ OR code == %@", "OTHER", "x"), ElementsAre(&one));
    save();
    EXPECT_THAT(find("Book", "title ==[cd] %@", "ÒTHER"), ElementsAre(&one));
    one.setValueForKey("title", Value("Third"));
    EXPECT_THAT(find("Book", "title ==[cd] %@", "other"), IsEmpty());
    EXPECT_THAT(find("Book", "title ==[cd] %@", "third"), ElementsAre(&one));
}

TEST_P(FetchWithPendingChanges, ReturnsBothKindsOfAnAbstractEntity)
{
    NSManagedObject& map = insert("Map");
    NSManagedObject& disc = insert("Disc");
    save();
    NSManagedObject& plain = insert("Item");

    EXPECT_THAT(all("Item"), ElementsAre(&map, &disc, &plain));
    EXPECT_THAT(all("Map"), ElementsAre(&map));
    NSFetchRequest alone = request("Item");
    alone.includesSubentities = false;
    EXPECT_THAT(fetch(alone), ElementsAre(&plain));
    EXPECT_EQ(context_->countForFetchRequest(request("Item")),
        context_->countForFetchRequest(request("Map")) + context_->countForFetchRequest(request("Disc")) + 1);
}

TEST_P(FetchWithPendingChanges, LeavesRecordsUnreadWhenAskedTo)
{
    book("One");
    save();
    restart();
    NSFetchRequest bare = request("Book");
    bare.includesPropertyValues = false;
    NSManagedObject& record = *fetch(bare).at(0);
    EXPECT_TRUE(record.isFault());
    EXPECT_EQ(text(record, "title"), "One");
    EXPECT_FALSE(record.isFault());
}

TEST_P(FetchWithPendingChanges, GivesDictionaries)
{
    NSManagedObject& one = book("One", 3);
    NSManagedObject& cover = insert("Cover");
    one.setValueForKey("cover", Value(&cover));
    save();
    book("Two", 3);

    NSFetchRequest wanted = request("Book");
    wanted.propertiesToFetch = {"title", "cover"};
    const auto rows = context_->executeDictionaryFetchRequest(wanted);
    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->size(), 2U);
    EXPECT_EQ(rows->at(0),
        (DictionaryResult{{"title", Value("One")}, {"cover", Value(cover.objectID().URIRepresentation())}}));
    EXPECT_TRUE(rows->at(1).at("cover").isNil());

    wanted.propertiesToFetch = {"pages"};
    wanted.returnsDistinctResults = true;
    EXPECT_EQ(context_->executeDictionaryFetchRequest(wanted)->size(), 1U);
}

TEST_P(FetchWithPendingChanges, LeavesOutDistinctResultsOnce)
{
    for (const int pages : {1, 2, 3})
        book("stored", pages);
    NSFetchRequest wanted = request("Book");
    wanted.propertiesToFetch = {"pages"};
    wanted.returnsDistinctResults = true;
    wanted.fetchOffset = 1;
    EXPECT_EQ(context_->executeDictionaryFetchRequest(wanted)->size(), 2U);
    save();
    EXPECT_EQ(context_->executeDictionaryFetchRequest(wanted)->size(), 2U);
}

TEST_P(FetchWithPendingChanges, MakesResultsDistinctBeforeTheLimit)
{
    for (const int pages : {1, 1, 2, 2, 3})
        book("stored", pages);
    NSFetchRequest wanted = request("Book");
    wanted.propertiesToFetch = {"pages"};
    wanted.returnsDistinctResults = true;
    wanted.sortDescriptors = {{"pages", true}};
    const auto pages = [&] {
        std::vector<std::int64_t> found;
        const auto rows = context_->executeDictionaryFetchRequest(wanted);
        for (const DictionaryResult& row : *rows)
            found.push_back(row.at("pages").asInteger());
        return found;
    };
    for (const bool saved : {false, true}) {
        if (saved)
            save();
        wanted.fetchLimit = 2;
        wanted.fetchOffset = 0;
        EXPECT_THAT(pages(), ElementsAre(1, 2));
        wanted.fetchOffset = 1;
        EXPECT_THAT(pages(), ElementsAre(2, 3));
        wanted.fetchLimit = 0;
        EXPECT_THAT(pages(), ElementsAre(2, 3));
        wanted.fetchOffset = 4;
        EXPECT_THAT(pages(), testing::IsEmpty());
    }
}

TEST_P(FetchWithPendingChanges, OfAnUnknownKeyFailsWithAnError)
{
    book("One");
    NSFetchRequest wrong = request("Book");
    wrong.predicate = NSPredicate::predicateWithFormat("author == 'x'");
    NSError error;
    EXPECT_FALSE(context_->fetch(wrong, &error));
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("author"));
    EXPECT_FALSE(context_->count(wrong, &error));
    save();
    EXPECT_FALSE(context_->fetch(wrong, &error));
}

TEST_P(FetchWithPendingChanges, BringsACleanRecordUpToDate)
{
    NSManagedObject& one = book("Old");
    save();
    const auto other = contextOn(coordinator_);
    NSManagedObject& seen = *other->executeFetchRequest(request("Book")).at(0);
    one.setValueForKey("title", Value("New"));
    save();

    EXPECT_EQ(text(seen, "title"), "Old");
    other->executeFetchRequest(request("Book"));
    EXPECT_EQ(text(seen, "title"), "New");
}

} // namespace
} // namespace tarn
