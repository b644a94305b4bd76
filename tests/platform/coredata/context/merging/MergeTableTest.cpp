#include "tests/platform/coredata/context/merging/ConflictFixture.h"

#include <array>
#include <set>

namespace tarn {
namespace {

/// What one side does to a book; bits.
enum Change : unsigned { Nothing = 0, Text = 1, Flag = 2, Shelf = 4, Deletion = 8 };
constexpr std::array changes{
    unsigned{Nothing}, unsigned{Text}, unsigned{Flag}, unsigned{Shelf}, Text | Flag | Shelf, unsigned{Deletion}};

/// How the two meet; in each the other side has saved before.
enum class Way { SaveWithoutPolicy, SaveWithStoreTrump, SaveWithObjectTrump, RemoteMerge, ChildIntoParent };
constexpr std::array ways{
    Way::SaveWithoutPolicy, Way::SaveWithStoreTrump, Way::SaveWithObjectTrump, Way::RemoteMerge, Way::ChildIntoParent};

struct Book {
    std::string text = "before"; ///< title and body
    std::int64_t pages = 0;
    std::set<std::string> shelves;
    friend bool operator==(const Book&, const Book&) = default;
};
void PrintTo(const Book& book, std::ostream* stream)
{
    *stream << book.text << ", " << book.pages << " pages, on " << testing::PrintToString(book.shelves);
}

/// What shall come of it, by the rules alone.
struct Outcome {
    bool isSaved = true;
    std::optional<Book> book = Book(); ///< none when it is deleted
    std::set<std::string> lost;        ///< properties that are told
};

Outcome expected(unsigned mine, unsigned theirs, Way way)
{
    const bool ownRow = mine & (Text | Flag);
    const bool otherRow = theirs & (Text | Flag);
    Outcome outcome;
    outcome.isSaved = way != Way::SaveWithoutPolicy
        || !((ownRow && (otherRow || theirs & Deletion)) || (mine & Deletion && otherRow));
    if (!outcome.isSaved)
        return outcome;
    const bool storeWins = way == Way::SaveWithStoreTrump;
    const auto lose = [&](unsigned changed) {
        if (changed & Text)
            outcome.lost.merge(std::set<std::string>{"title", "body"});
        if (changed & Flag)
            outcome.lost.insert("pages");
    };
    if ((mine | theirs) & Deletion) {
        outcome.book.reset();
        if (!(mine & Deletion))
            lose(mine);
        else if (!(theirs & Deletion))
            lose(theirs);
        return outcome;
    }
    const auto isMine = [&](unsigned bit) { return (mine & bit) && !((theirs & bit) && storeWins); };
    if ((mine | theirs) & Text)
        outcome.book->text = isMine(Text) ? "mine" : "theirs";
    if ((mine | theirs) & Flag)
        outcome.book->pages = isMine(Flag) ? 1 : 2;
    if (mine & Shelf)
        outcome.book->shelves.insert("mine");
    if (theirs & Shelf)
        outcome.book->shelves.insert("theirs");
    lose(mine & theirs);
    return outcome;
}

class MergeTable : public ConflictTest {
protected:
    static void change(NSManagedObject& book, unsigned what, std::string_view side)
    {
        NSManagedObjectContext& context = book.managedObjectContext();
        if (what & Text) {
            book.setValueForKey("title", Value(side));
            book.setValueForKey("body", Value(side));
        }
        if (what & Flag)
            book.setValueForKey("pages", Value(side == "mine" ? 1 : 2));
        if (what & Shelf)
            set(book, "shelves").add(*shelfNamed(context, side));
        if (what & Deletion)
            context.deleteObject(book);
    }
    static NSManagedObject* shelfNamed(NSManagedObjectContext& context, std::string_view name)
    {
        NSFetchRequest request(*context.managedObjectModel().entityNamed("Shelf"));
        request.predicate = NSPredicate::predicateWithFormat("name == %@", name);
        return context.executeFetchRequest(request).at(0);
    }
    static Book bookOf(const NSManagedObject& record)
    {
        Book book{
            text(record, "title"), record.integerAt(record.entity().propertyNamed("pages")->index()).value_or(0), {}};
        EXPECT_EQ(text(record, "body"), book.text) << "title and body of different texts";
        for (const NSManagedObject* shelf : set(record, "shelves").members()) {
            book.shelves.insert(text(*shelf, "name"));
            EXPECT_TRUE(set(*shelf, "books").contains(record)) << "the other end disagrees";
        }
        return book;
    }

    void meet(unsigned mine, unsigned theirs, Way way, bool isRead);
};
INSTANTIATE_TEST_SUITE_P(Stores, MergeTable, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

void MergeTable::meet(unsigned mine, unsigned theirs, Way way, bool isRead)
{
    restart();
    for (const std::string_view entity : {"Book", "Shelf"})
        for (NSManagedObject* record : all(entity))
            context_->deleteObject(*record);
    NSManagedObject& made = book("before");
    made.setValueForKey("body", Value("before"));
    shelf("mine");
    shelf("theirs");
    save();
    const NSManagedObjectID id = made.objectID();

    // A child meets what its parent has not saved; the others what another context has.
    restart();
    const bool isChild = way == Way::ChildIntoParent;
    const auto here = isChild
        ? std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue)
        : contextOn(coordinator_);
    const auto there = isChild ? nullptr : contextOn(coordinator_);
    if (isChild)
        here->setParentContext(*context_);
    NSManagedObjectContext& other = isChild ? *context_ : *there;
    if (!isChild)
        here->setMergePolicy(way == Way::SaveWithStoreTrump ? NSMergePolicy::MergeByPropertyStoreTrump
                : way == Way::SaveWithoutPolicy             ? NSMergePolicy::Error
                                                            : NSMergePolicy::MergeByPropertyObjectTrump);
    std::set<std::string> told;
    here->setMergeConflictHandler([&](const MergeConflict& conflict) {
        told.insert(conflict.properties.begin(), conflict.properties.end());
        for (const auto& [property, value] : conflict.lostValues)
            EXPECT_EQ(value.kind() == Value::Kind::String ? value.asString() : "",
                property == "pages"                        ? ""
                    : conflict.loser == MergeSide::Context ? "mine"
                                                           : "theirs");
    });

    NSManagedObject& own = *here->existingObjectWithID(id);
    if (isRead) {
        bookOf(own);
        set(*shelfNamed(*here, "mine"), "books").members();
    }
    change(own, mine, "mine");
    change(*other.existingObjectWithID(id), theirs, "theirs");
    if (isChild)
        other.processPendingChanges();
    else
        ASSERT_TRUE(other.save());
    if (way == Way::RemoteMerge) {
        NSManagedObjectContext* const contexts[] = {here.get()};
        RemoteChanges news;
        (theirs & Deletion ? news.deleted : news.updated).push_back(id);
        NSManagedObjectContext::mergeChangesFromRemoteContextSave(news, contexts);
    }

    const Outcome outcome = expected(mine, theirs, way);
    NSError error;
    ASSERT_EQ(here->save(&error), outcome.isSaved) << error;
    if (!outcome.isSaved) {
        EXPECT_EQ(error.code(), StoreErrorMergeConflict);
        EXPECT_TRUE(here->hasChanges());
        return;
    }
    EXPECT_FALSE(here->hasChanges());
    EXPECT_EQ(told, outcome.lost);
    const auto compare = [&](NSManagedObjectContext& context, std::string_view where) {
        SCOPED_TRACE(where);
        const NSManagedObject* found = context.existingObjectWithID(id);
        ASSERT_EQ(found != nullptr, outcome.book.has_value());
        if (found) {
            EXPECT_EQ(bookOf(*found), *outcome.book);
        }
    };
    if (mine == Nothing)
        here->refreshAllObjects(); // saved nothing, and so was not told
    compare(*here, "here");
    if (isChild) {
        compare(other, "in the parent");
        ASSERT_TRUE(other.save());
    }
    compare(*contextOn(coordinator_), "in the store");
}

TEST_P(MergeTable, ComesToWhatItsRulesSay)
{
    for (const Way way : ways)
        for (const unsigned mine : changes)
            for (const unsigned theirs : changes)
                for (const bool isRead : {false, true}) {
                    SCOPED_TRACE(testing::Message() << "way " << static_cast<int>(way) << ", mine " << mine
                                                    << ", theirs " << theirs << (isRead ? ", read" : ", unread"));
                    meet(mine, theirs, way, isRead);
                    if (HasFailure())
                        return;
                }
}

} // namespace
} // namespace tarn
