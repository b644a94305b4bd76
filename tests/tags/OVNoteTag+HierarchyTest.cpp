#include "tests/support/StoreFixture.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

#include <array>
#include <random>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TagHierarchy : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TagHierarchy, everyStore(), storeName);

TEST_P(TagHierarchy, NamesThePartsOfAPath)
{
    struct Case {
        std::string title;
        std::vector<std::string> components;
        std::optional<std::string> leaf;
        std::optional<std::string> father;
        std::string normalized;
        std::string hashtag;
    };
    const std::vector<Case> cases{
        {"a", {"a"}, "a", std::nullopt, "a", "#a"},
        {"a/b/c", {"a", "b", "c"}, "c", "a/b", "a/b/c", "#a/b/c"},
        {"Größe/My Trips", {"Größe", "My Trips"}, "My Trips", "Größe", "grosse/my trips", "#Größe/My Trips#"},
    };
    for (const Case& expected : cases) {
        const OVNoteTag& named = tag(expected.title);
        SCOPED_TRACE(expected.title);
        EXPECT_EQ(named.tagComponents(), expected.components);
        EXPECT_EQ(named.leafTagName(), expected.leaf);
        EXPECT_EQ(named.fatherTagName(), expected.father);
        EXPECT_EQ(named.displayTitle(), expected.title);
        EXPECT_EQ(named.normalizedTitle(), expected.normalized);
        EXPECT_EQ(named.hashTagString(), expected.hashtag);
        EXPECT_EQ(named.tagStringFromComponents({"x", "y"}), "x/y");
    }
}

TEST_P(TagHierarchy, NormalizesLeafAndFather)
{
    const OVNoteTag& nested = tag("Ä/É b");
    EXPECT_EQ(nested.normalizedLeafTagName(), "e b");
    EXPECT_EQ(nested.normalizedFatherTagName(), "a");
    EXPECT_EQ(tag("Ö").normalizedFatherTagName(), std::nullopt);
}

TEST_P(TagHierarchy, HasNoNamesWithoutATitle)
{
    const OVNoteTag& untitled = *OVNoteTag::insertInManagedObjectContext(context());
    EXPECT_THAT(untitled.tagComponents(), IsEmpty());
    EXPECT_EQ(untitled.leafTagName(), std::nullopt);
    EXPECT_EQ(untitled.fatherTagName(), std::nullopt);
    EXPECT_EQ(untitled.normalizedTitle(), "");
    EXPECT_EQ(untitled.displayTitle(), "");
    EXPECT_EQ(untitled.fatherTag(), nullptr);
    EXPECT_EQ(untitled.rootFatherTag(), nullptr);
}

TEST_P(TagHierarchy, FindsFatherAndRootByTheirNames)
{
    OVNoteTag& leaf = tag("Work/Clients/Acme");
    EXPECT_EQ(leaf.fatherTag(), nullptr);
    EXPECT_EQ(leaf.rootFatherTag(), nullptr);

    OVNoteTag& father = tag("work/clients");
    OVNoteTag& root = tag("wörk");
    EXPECT_EQ(leaf.fatherTag(), &father);
    EXPECT_EQ(leaf.rootFatherTag(), &root);
    EXPECT_EQ(father.fatherTag(), &root);
    EXPECT_EQ(root.fatherTag(), nullptr);
    EXPECT_EQ(root.rootFatherTag(), nullptr) << "a root has no root above it";
}

TEST_P(TagHierarchy, HasEveryAncestorOfATagThatATextNames)
{
    constexpr std::array<std::string_view, 17> pieces{
        "a", "Bc", "Ä", "/", "/", "/", "-", ".", "?", ")", "(", "*", " ", "facade", "\u00AD", "\u0301", "!"};
    constexpr unsigned seed = 4711;
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t bound) { return static_cast<std::size_t>(random() % bound); };
    for (int number = 0; number < 300 && !HasFailure(); ++number) {
        std::string name;
        for (std::size_t count = 1 + below(9); count > 0; --count)
            name += pieces[below(pieces.size())];
        SCOPED_TRACE("seed " + std::to_string(seed) + ": #" + name + "#");
        OVNote& tagged = note("text #" + name + "#");
        for (OVNoteTag* tag : tagged.tagsSet().allObjects()) {
            EXPECT_EQ(tag->isRootValue(), tag->tagComponents().size() == 1);
            EXPECT_EQ(tag->normalizedTitle(), fold(*tag->title()));
            EXPECT_NE(tag->normalizedTitle(), "");
            if (!tag->fatherTagName())
                continue;
            OVNoteTag* father = tag->fatherTag();
            ASSERT_NE(father, nullptr) << *tag->title();
            EXPECT_TRUE(tag->isChildOfTag(*father));
            EXPECT_TRUE(tagged.tagsSet().containsObject(*father)) << *father->title();
            EXPECT_EQ(father->normalizedTitle(), tag->normalizedFatherTagName());
            ASSERT_NE(tag->rootFatherTag(), nullptr);
            EXPECT_TRUE(tagged.tagsSet().containsObject(*tag->rootFatherTag()));
        }
        tagged.permanentlyDelete();
        OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context());
    }
}

TEST_P(TagHierarchy, TellsChildrenFromDescendants)
{
    struct Case {
        std::string tag;
        std::string other;
        bool isChild;
        bool isDescendant;
    };
    const std::vector<Case> cases{
        {"a/b/c", "a", false, true},
        {"a/b/c", "a/b", true, true},
        {"a/b/c", "a/b/c", false, false},
        {"a", "a/b", false, false},
        {"Ä/b", "a", true, true},
        {"Work/Acme", "work", true, true},
        {"ab/c", "a", false, false},
        {"a", "b", false, false},
    };
    for (const Case& expected : cases) {
        SCOPED_TRACE(expected.tag + " and " + expected.other);
        OVNoteTag& first = tag(expected.tag);
        OVNoteTag& second = tag(expected.other);
        EXPECT_EQ(first.isChildOfTag(second), expected.isChild);
        EXPECT_EQ(first.isDescendantOfTag(second), expected.isDescendant);
    }
}

TEST_P(TagHierarchy, KeepsItsFoldedComponentsUntilItIsReadAgain)
{
    OVNoteTag& renamed = tag("Ä/B");
    EXPECT_THAT(renamed.tagComponentsLowerCaseDiacritic(), ElementsAre("a", "b"));

    renamed.setTitle("C");
    EXPECT_THAT(renamed.tagComponentsLowerCaseDiacritic(), ElementsAre("a", "b"));
    EXPECT_THAT(renamed.tagComponents(), ElementsAre("C"));

    reopen();
    EXPECT_THAT(tag("C").tagComponentsLowerCaseDiacritic(), ElementsAre("c"));
}

TEST_P(TagHierarchy, ListsTagsBelowThatHaveActiveNotes)
{
    note("# 1\n#a/b/c");
    note("# 2\n#A/d");
    note("# 3\n#ab");
    note("# 4\n#a/trashed").trash();
    note("# 5\n#a/archived").archive();
    tag("a/empty");

    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        const std::vector<NSSortDescriptor> byTitle{{"title", true, SortComparison::LocalizedStandard}};
        EXPECT_THAT(
            titlesOf(tag("a").childsAndSubChildsTagsWithSortDescriptors(byTitle)), ElementsAre("a/b", "a/b/c", "A/d"));
        EXPECT_THAT(
            titlesOf(tag("a").childTagsWithSortDescriptors({{"title", false, SortComparison::LocalizedStandard}})),
            ElementsAre("A/d", "a/b"));
        EXPECT_EQ(tag("a").childsAndSubChildsTagsWithSortDescriptors().size(), 3U);
        EXPECT_THAT(tag("a/b/c").childTagsWithSortDescriptors(), IsEmpty());
    }
}

} // namespace
} // namespace tarn
