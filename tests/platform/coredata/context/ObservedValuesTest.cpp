// Observers of single keys hear of values that come whole: by a merge, a refresh, a rollback, or what others saved.

#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/system/Log.h"

#include <utility>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ObservedValuesTest : public ContextTest {
protected:
    void TearDown() override
    {
        observations_.clear();
        other_.reset();
        ContextTest::TearDown();
    }

    void observe(NSManagedObject& record, std::initializer_list<const char*> keys)
    {
        for (const char* key : keys)
            observations_.push_back(record.addObserver(key, [this](NSManagedObject& changed, std::string_view heard) {
                heard_.emplace_back(heard);
                if (heard == "title")
                    titleThen_ = text(changed, "title") + ", " + text(changed, "code");
            }));
    }
    std::vector<std::string> heard() { return std::exchange(heard_, {}); }

    NSManagedObject& there(const NSManagedObject& record)
    {
        if (!other_)
            other_ = contextOn(coordinator_);
        return *other_->existingObjectWithID(record.objectID());
    }
    void mergeWhatIsSavedThere(const RemoteChanges& changes)
    {
        ASSERT_TRUE(other_->save());
        NSManagedObjectContext* const contexts[] = {context_.get()};
        NSManagedObjectContext::mergeChangesFromRemoteContextSave(changes, contexts);
    }

    std::unique_ptr<NSManagedObjectContext> other_;
    std::string titleThen_;

private:
    std::vector<KeyValueObservation> observations_;
    std::vector<std::string> heard_;
};
INSTANTIATE_TEST_SUITE_P(
    Stores, ObservedValuesTest, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(ObservedValuesTest, OfAMergeAreToldWhereTheyAreOther)
{
    NSManagedObject& seen = book("before", 1);
    seen.setValueForKey("body", Value("text"));
    save();
    ASSERT_EQ(text(seen, "body"), "text");
    observe(seen, {"title", "pages", "pagesValue", "copies", "copiesValue", "body"});
    there(seen).setValueForKey("title", Value("after"));
    there(seen).setValueForKey("code", Value("code"));
    there(seen).setValueForKey("pages", Value(2));

    mergeWhatIsSavedThere({{}, {seen.objectID()}, {}});

    EXPECT_THAT(heard(), UnorderedElementsAre("title", "pages", "pagesValue")) << "each once, the others never";
    EXPECT_EQ(titleThen_, "after, code") << "once all values are there";

    there(seen).setValueForKey("body", Value("another"));
    mergeWhatIsSavedThere({{}, {seen.objectID()}, {}});
    EXPECT_THAT(heard(), ElementsAre("body"));
}

TEST_P(ObservedValuesTest, OfAMergeUnderUnsavedChangesAreTold)
{
    NSManagedObject& seen = book("before", 1);
    save();
    observe(seen, {"title", "pages"});
    seen.setValueForKey("pages", Value(3));
    EXPECT_THAT(heard(), ElementsAre("pages"));
    there(seen).setValueForKey("title", Value("after"));

    mergeWhatIsSavedThere({{}, {seen.objectID()}, {}});

    EXPECT_THAT(heard(), ElementsAre("title"));
}

TEST_P(ObservedValuesTest, ThatASaveTakesFromTheStoreAreTold)
{
    NSManagedObject& seen = book("before", 1);
    save();
    observe(seen, {"title", "pages"});
    there(seen).setValueForKey("title", Value("after"));
    ASSERT_TRUE(other_->save());
    context_->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    seen.setValueForKey("pages", Value(2));
    heard();

    save();

    EXPECT_THAT(heard(), ElementsAre("title"));
}

TEST_P(ObservedValuesTest, OfARollbackAreTold)
{
    NSManagedObject& seen = book("before", 1);
    NSManagedObject& home = shelf("home");
    save();
    observe(seen, {"title", "pages", "pagesValue", "code", "shelves"});
    seen.setValueForKey("title", Value("unsaved"));
    seen.setValueForKey("pages", Value(2));
    set(seen, "shelves").add(home);
    heard();

    context_->rollback();

    EXPECT_THAT(heard(), UnorderedElementsAre("title", "pages", "pagesValue", "shelves"));
    EXPECT_EQ(titleThen_, "before, (none)");
    context_->rollback();
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(ObservedValuesTest, OfARefreshAreTold)
{
    NSManagedObject& seen = book("before", 1);
    save();
    observe(seen, {"title", "pages", "code"});
    there(seen).setValueForKey("code", Value("theirs"));
    ASSERT_TRUE(other_->save());
    seen.setValueForKey("title", Value("unsaved"));
    heard();

    context_->refreshObject(seen, true);
    EXPECT_THAT(heard(), ElementsAre("code"));
    context_->refreshObject(seen, false);
    EXPECT_THAT(heard(), ElementsAre("title"));
    context_->refreshAllObjects();
    EXPECT_THAT(heard(), IsEmpty()) << "nothing is other";
}

TEST_P(ObservedValuesTest, OfATargetThatWasDeletedElsewhereAreTold)
{
    NSManagedObject& seen = book("seen");
    NSManagedObject& chapter = insert("Chapter");
    chapter.setValueForKey("book", Value(&seen));
    save();
    observe(chapter, {"book", "heading"});
    other_ = contextOn(coordinator_);
    other_->deleteObject(there(seen));

    mergeWhatIsSavedThere({{}, {}, {seen.objectID()}});

    EXPECT_THAT(heard(), ElementsAre("book"));
}

TEST_P(ObservedValuesTest, ThatAFetchBringsAreToldAtTheEndOfThePass)
{
    NSManagedObject& seen = book("before");
    save();
    MainQueue::main().drain();
    observe(seen, {"title"});
    there(seen).setValueForKey("title", Value("after"));
    ASSERT_TRUE(other_->save());

    all("Book");
    EXPECT_EQ(text(seen, "title"), "after");
    EXPECT_THAT(heard(), IsEmpty());
    MainQueue::main().drain();
    EXPECT_THAT(heard(), ElementsAre("title"));
}

TEST_P(ObservedValuesTest, MayBeChangedByTheirObserver)
{
    NSManagedObject& seen = book("before");
    save();
    const auto correcting = seen.addObserver("title", [](NSManagedObject& record, std::string_view) {
        if (text(record, "code") == "(none)")
            record.setValueForKey("code", Value("noted"));
    });
    there(seen).setValueForKey("title", Value("after"));

    mergeWhatIsSavedThere({{}, {seen.objectID()}, {}});

    EXPECT_EQ(text(seen, "code"), "noted");
    save();
    restart();
    EXPECT_EQ(text(*all("Book").at(0), "code"), "noted");
}

} // namespace
} // namespace tarn
