#include "tarnmodel/store/OVManagedObjectObserver.h"

#include "tarnmodel/model/OVNoteServerData.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

using KeyNames = OVManagedObjectObserver::KeyNames;

class RecordObserver : public StoreFixture {
protected:
    struct Call {
        std::optional<KeyNames> keys;
        std::vector<NSManagedObject*> related;
        bool refreshed = false;
    };

    void SetUp() override
    {
        StoreFixture::SetUp();
        watched_ = &noteTitled("watched");
        save();
        settle();
    }
    void TearDown() override
    {
        observer_.reset();
        StoreFixture::TearDown();
    }

    OVNote& watched() { return *watched_; }
    OVManagedObjectObserver& observer() { return *observer_; }
    void observe(std::optional<KeyNames> keys, const std::map<std::string, KeyNames>& relationships = {})
    {
        observer_ = OVManagedObjectObserver::observerForManagedObject(watched(), std::move(keys), relationships,
            [this](const auto& changed, const auto& related, bool refreshed) {
                calls_.push_back({changed, related, refreshed});
            });
    }
    /// Ends the pass of the queue, in which changes gather; gives the calls since the last time.
    std::vector<Call> settle()
    {
        context().processPendingChanges();
        return std::exchange(calls_, {});
    }
    /// A tag of this title, saved; of the watched note if it is `attached`.
    OVNoteTag& savedTag(std::string_view title, bool attached)
    {
        OVNoteTag& made = tag(title);
        if (attached)
            watched().tagsSet().addObject(made);
        save();
        settle();
        return made;
    }

    OVNote* watched_ = nullptr;
    std::unique_ptr<OVManagedObjectObserver> observer_;
    std::vector<Call> calls_;
};
INSTANTIATE_TEST_SUITE_P(Stores, RecordObserver, everyStore(), storeName);

TEST_P(RecordObserver, HearsOfTheKeysThatItWatches)
{
    observe(KeyNames{"title"});
    watched().setText("changed");
    EXPECT_THAT(settle(), IsEmpty());

    watched().setTitle("changed");
    watched().setSubtitle("changed");
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U) << "one call for one pass";
    EXPECT_EQ(calls[0].keys, (KeyNames{"subtitle", "text", "title"})) << "with all names since the last save";
    EXPECT_THAT(calls[0].related, IsEmpty());
    EXPECT_FALSE(calls[0].refreshed);
}

TEST_P(RecordObserver, HearsOfEveryKeyWithoutASet)
{
    observe(std::nullopt);
    watched().setPinnedValue(true);
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].keys, KeyNames{"pinned"});
}

TEST_P(RecordObserver, HearsOfNoKeyWithAnEmptySet)
{
    observe(KeyNames());
    watched().setTitle("changed");

    EXPECT_THAT(settle(), IsEmpty());
}

TEST_P(RecordObserver, HearsNothingOfOtherRecords)
{
    observe(std::nullopt);
    OVNote& other = noteTitled("other");
    settle();
    other.setTitle("changed");

    EXPECT_THAT(settle(), IsEmpty());
}

TEST_P(RecordObserver, HearsOfItsRelationships)
{
    OVNoteTag& tagged = savedTag("t", false);
    observe(KeyNames{"tags"});
    watched().tagsSet().addObject(tagged);
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_THAT(*calls[0].keys, Contains("tags"));
}

TEST_P(RecordObserver, HearsOfRelatedRecordsByTheirKeys)
{
    OVNoteTag& attached = savedTag("attached", true);
    OVNoteTag& other = savedTag("other", false);
    observe(KeyNames{"title"}, {{"tags", {"title"}}});

    attached.setTagcon("icon");
    other.setTitle("renamed");
    EXPECT_THAT(settle(), IsEmpty());
    attached.setTitle("renamed");
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].keys, std::nullopt);
    EXPECT_THAT(calls[0].related, ElementsAre(&attached));
    EXPECT_FALSE(calls[0].refreshed);
}

TEST_P(RecordObserver, HearsOnlyOfRecordsThatAreRelatedNow)
{
    OVNoteTag& detached = savedTag("detached", true);
    observe(KeyNames{"title"}, {{"tags", {"title"}}});
    watched().tagsSet().removeObject(detached);
    detached.setTitle("renamed");

    EXPECT_THAT(settle(), IsEmpty());
}

TEST_P(RecordObserver, HearsOfTheOneRelatedRecord)
{
    OVNoteServerData* mine = OVNoteServerData::insertInManagedObjectContext(context());
    OVNoteServerData* other = OVNoteServerData::insertInManagedObjectContext(context());
    watched().setServerData(mine);
    save();
    settle();
    observe(KeyNames{"title"}, {{"serverData", {"systemFields"}}});
    other->setSystemFields(NSData::fromText("other"));
    EXPECT_THAT(settle(), IsEmpty());

    mine->setSystemFields(NSData::fromText("mine"));
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_THAT(calls[0].related, ElementsAre(mine));
}

TEST_P(RecordObserver, CountsRecordsOfSubEntities)
{
    image(watched(), "a.png");
    save();
    settle();
    observe(KeyNames{"title"}, {{"files", {"unused"}}});
    OVNoteFile* attached = all<OVNoteFile>().at(0);
    attached->setUnusedValue(true);
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_THAT(calls[0].related, ElementsAre(attached));
}

TEST_P(RecordObserver, NamesARecordOnceForEachEntry)
{
    OVNoteTag& attached = savedTag("t", true);
    watched().pinnedInTagsSet().addObject(attached);
    save();
    settle();
    observe(KeyNames{"title"}, {{"tags", {"title"}}, {"pinnedInTags", {"title"}}});
    attached.setTitle("renamed");
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_THAT(calls[0].related, ElementsAre(&attached, &attached));
}

TEST_P(RecordObserver, IgnoresARelationshipThatTheEntityLacks)
{
    observe(KeyNames{"title"}, {{"nonsense", {"title"}}, {"subtitle", {"title"}}, {"tags", {"title"}}});

    EXPECT_THAT(observer().relationships(), ElementsAre(testing::Pair("tags", KeyNames{"title"})));
    tag("t").setTitle("renamed");
    EXPECT_THAT(settle(), IsEmpty());
}

TEST_P(RecordObserver, HearsOfARefreshBeforeAllElse)
{
    OVNoteTag& attached = savedTag("t", true);
    observe(KeyNames{"title"}, {{"tags", {"title"}}});
    attached.setTitle("renamed");
    context().refreshObject(watched(), false);
    const auto calls = settle();

    ASSERT_EQ(calls.size(), 1U);
    EXPECT_EQ(calls[0].keys, std::nullopt);
    EXPECT_THAT(calls[0].related, IsEmpty());
    EXPECT_TRUE(calls[0].refreshed);
    watched().setTitle("and goes on");
    EXPECT_EQ(settle().size(), 1U);
}

TEST_P(RecordObserver, TakesMoreRelationshipsLater)
{
    OVNoteTag& attached = savedTag("t", true);
    observe(KeyNames{"title"});
    observer().observeObjectsInRelationshipName("tags", {"title"});
    attached.setTitle("renamed");

    EXPECT_EQ(settle().size(), 1U);
}

TEST_P(RecordObserver, StopsAndStarts)
{
    observe(std::nullopt);
    observer().stopObserving();
    watched().setTitle("unheard");
    EXPECT_THAT(settle(), IsEmpty());

    observer().startObserving();
    observer().startObserving();
    watched().setTitle("heard");
    EXPECT_EQ(settle().size(), 1U) << "once, however often it was started";

    observer_.reset();
    watched().setTitle("unheard");
    EXPECT_THAT(settle(), IsEmpty());
}

TEST_P(RecordObserver, MayBeDestroyedByItsBlock)
{
    int calls = 0;
    observer_ = OVManagedObjectObserver::observerForManagedObject(
        watched(), std::nullopt, {}, [&](const auto&, const auto&, bool) {
            ++calls;
            observer_.reset();
        });
    for (const char* title : {"a", "b"}) {
        watched().setTitle(title);
        context().processPendingChanges();
    }
    EXPECT_EQ(calls, 1);
}

TEST_P(RecordObserver, ReadsRelationshipsOfADeletedRecordAsNone)
{
    OVNoteTag& attached = savedTag("t", true);
    observe(std::nullopt, {{"tags", {"title"}}});
    context().deleteObject(watched());
    attached.setTitle("renamed");

    EXPECT_THAT(settle(), IsEmpty());
    save();
    attached.setTitle("renamed again");
    EXPECT_THAT(settle(), IsEmpty());
}

TEST_P(RecordObserver, OutlivesTheContextOfItsRecord)
{
    observe(std::nullopt);
    EXPECT_EQ(observer().observedObject(), &watched());
    reopen();

    EXPECT_EQ(observer().observedObject(), nullptr);
    noteTitled("of the new context");
    EXPECT_THAT(settle(), IsEmpty());
    observer().observeObjectsInRelationshipName("tags", {"title"});
    observer().stopObserving();
    observer().startObserving();
    EXPECT_THAT(observer().relationships(), IsEmpty());
}

TEST_P(RecordObserver, HearsNothingAfterTheContextWasReset)
{
    observe(std::nullopt);
    context().reset();

    EXPECT_EQ(observer().observedObject(), nullptr);
    noteTitled("another");
    EXPECT_THAT(settle(), IsEmpty());
}

} // namespace
} // namespace tarn
