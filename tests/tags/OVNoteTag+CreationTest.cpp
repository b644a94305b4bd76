#include "tarnmodel/model/OVNoteCaches.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TagCreation : public StoreFixture {
protected:
    std::vector<std::string> titles() { return titlesOf(all<OVNoteTag>()); }
    static std::vector<std::string> numbered(std::string_view prefix, int count)
    {
        std::vector<std::string> names;
        for (int number = 0; number < count; ++number)
            names.push_back(std::string(prefix) + std::to_string(number));
        return names;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, TagCreation, everyStore(), storeName);

TEST_P(TagCreation, SanitizesTheNameAndKnowsRoots)
{
    const OVNoteTag& root = *OVNoteTag::addNewTagWithName(" #Work ", context());
    EXPECT_EQ(root.title(), "Work");
    EXPECT_TRUE(root.isRootValue());

    const OVNoteTag& nested = *OVNoteTag::addNewTagWithName("Work // Acme/", context());
    EXPECT_EQ(nested.title(), "Work/Acme");
    EXPECT_FALSE(nested.isRootValue());
}

TEST_P(TagCreation, MakesNothingOfAnUnusableName)
{
    for (const std::string_view name : {"", "***", " / ", "#", "\u00AD", "./?"}) {
        EXPECT_EQ(OVNoteTag::addNewTagWithName(name, context()), nullptr) << name;
        EXPECT_EQ(OVNoteTag::getOrCreateTagWithName(name, context()), nullptr) << name;
    }
    EXPECT_THAT(OVNoteTag::getOrCreateTagWithNames(std::vector<std::string>{"", "***"}, context()), IsEmpty());
    EXPECT_THAT(all<OVNoteTag>(), IsEmpty());
}

TEST_P(TagCreation, FindsATagBeforeItMakesOne)
{
    OVNoteTag* made = OVNoteTag::getOrCreateTagWithName("Café", context());
    EXPECT_EQ(OVNoteTag::getOrCreateTagWithName(" cafe ", context()), made);
    reopen();
    EXPECT_EQ(OVNoteTag::getOrCreateTagWithName("CAFÉ", context())->title(), "Café");
    EXPECT_THAT(titles(), ElementsAre("Café"));
}

TEST_P(TagCreation, TakesTheLastOfSeveralNamesForOneTag)
{
    const std::vector<std::string> names{"Tag", "other", "tag"};
    EXPECT_THAT(titlesOf(OVNoteTag::getOrCreateTagWithNames(names, context())), ElementsAre("tag", "other"));
    EXPECT_THAT(titles(), ElementsAre("tag", "other"));
}

TEST_P(TagCreation, GivesTagsThatExistFirst)
{
    tag("Old");
    tag("older");
    save();
    const std::vector<std::string> names{"new", "OLDER", "old", "newer"};

    EXPECT_THAT(
        titlesOf(OVNoteTag::getOrCreateTagWithNames(names, context())), ElementsAre("Old", "older", "new", "newer"));
    EXPECT_EQ(all<OVNoteTag>().size(), 4U);
}

TEST_P(TagCreation, GivesEveryTagOfADoubledTitle)
{
    OVNoteTag::addNewTagWithName("a", context());
    OVNoteTag::addNewTagWithName("A", context());

    EXPECT_THAT(
        titlesOf(OVNoteTag::getOrCreateTagWithNames(std::vector<std::string>{"a"}, context())), ElementsAre("a", "A"));
}

TEST_P(TagCreation, MakesNoAncestorsByItself)
{
    OVNoteTag::getOrCreateTagWithNames(std::vector<std::string>{"a/b/c"}, context());
    EXPECT_THAT(titles(), ElementsAre("a/b/c"));
}

TEST_P(TagCreation, MakesAndFindsHundredsAtOnce)
{
    const auto names = numbered("tag ", 250);
    EXPECT_EQ(OVNoteTag::getOrCreateTagWithNames(names, context()).size(), 250U);
    EXPECT_EQ(OVNoteTag::getOrCreateTagWithNames(names, context()).size(), 250U);
    reopen();
    EXPECT_EQ(OVNoteTag::getOrCreateTagWithNames(names, context()).size(), 250U);
    EXPECT_EQ(titles(), names);
}

TEST_P(TagCreation, RemovesTagsWithoutAnyNote)
{
    note("1 #kept");
    note("2 #trashed").trash();
    note("3 #archived").archive();
    tag("unused");
    noteTitled("4").pinInTag(tag("pinned only"));
    save();
    tag("new and unused");

    OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context());

    EXPECT_THAT(titles(), ElementsAre("kept", "trashed", "archived"));
    reopen();
    EXPECT_THAT(titles(), ElementsAre("kept", "trashed", "archived"));
}

/// A store whose tags cannot be read for a while.
class UnreadableTags : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        note("note #a #b");
        save();
    }
    void hideTags() { runSQL("ALTER TABLE \"OVNoteTag\" RENAME TO \"hidden\""); }
    void showTags() { runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNoteTag\""); }

private:
};
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableTags, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableTags, AreNotMadeAnew)
{
    hideTags();
    EXPECT_EQ(OVNoteTag::tagWithName("a", context()), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_EQ(OVNoteTag::getOrCreateTagWithName("a", context()), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_THAT(OVNoteTag::getOrCreateTagWithNames(std::vector<std::string>{"a", "c"}, context()), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching: ")));

    EXPECT_THAT(context().insertedObjects(), IsEmpty());
    showTags();
}

TEST_P(UnreadableTags, StayOnTheNoteThatIsEdited)
{
    OVNote& edited = *OVNote::noteWithTitle("note #a #b", context());
    const std::vector<OVNoteTag*> before = edited.tagsSet().allObjects();
    hideTags();

    edited.updateNoteWithText("changed #c");

    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching: ")));
    EXPECT_EQ(edited.title(), "changed #c");
    EXPECT_EQ(edited.tagsSet().allObjects(), before);
    EXPECT_THAT(context().insertedObjects(), IsEmpty());

    OVNote::TagsCache cache;
    edited.setTagsCache(&cache);
    edited.updateNoteWithText("changed #d");
    edited.setTagsCache(nullptr);
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_EQ(edited.tagsSet().allObjects(), before);
    showTags();

    edited.updateNoteWithText("changed #d");
    EXPECT_THAT(edited.tagsStrings(), ElementsAre("d"));
}

} // namespace
} // namespace tarn
