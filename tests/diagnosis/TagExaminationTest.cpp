#include "tests/diagnosis/DiagnosisFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TagExamination : public DiagnosisFixture {
protected:
    /// The first finding about a tag; one of a damaged file when there is none.
    static StoreFinding findingOf(const StoreExamination& examination)
    {
        const auto& findings = examination.resultOf(StoreCheck::Tags).findings;
        return findings.empty() ? StoreFinding() : findings.front();
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, TagExamination, everyStore(), storeName);

TEST_P(TagExamination, FindsATagThatNoTextNames)
{
    note("# One").tagsSet().addObject(tag("stray"));
    const StoreExamination examination = examine();
    EXPECT_THAT(kindsOf(examination), ElementsAre(Kind::WrongNoteTags, Kind::TagWithoutText));
    EXPECT_EQ(findingOf(examination).title, "stray");
    EXPECT_EQ(findingOf(examination).objectID, tagCalled("stray").objectID());
    EXPECT_EQ(repair().notes, 1U);
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(TagExamination, FindsATagThatATextNamesAndNobodyHas)
{
    note("# One\n\n#gone");
    context().deleteObject(tagCalled("gone"));
    const StoreExamination examination = examine();
    EXPECT_THAT(kindsOf(examination), ElementsAre(Kind::WrongNoteTags, Kind::MissingTag));
    EXPECT_EQ(findingOf(examination).title, "gone");
    EXPECT_FALSE(findingOf(examination).objectID);
    EXPECT_EQ(repair().notes, 1U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(tagCalled("gone").notesSet().count(), 1U);
}

TEST_P(TagExamination, FindsTwoTagsOfOneName)
{
    note("# One\n\n#a");
    OVNote& other = note("# Two\n\n#A");
    OVNoteTag& twin = *OVNoteTag::addNewTagWithName("A", context());
    other.tagsSet().removeObject(tagCalled("a"));
    other.tagsSet().addObject(twin);
    const StoreExamination examination = examine();
    EXPECT_THAT(kindsOf(examination), ElementsAre(Kind::DuplicateTag));
    EXPECT_EQ(repair().tags, 1U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(all<OVNoteTag>().size(), 1U);
    EXPECT_EQ(all<OVNoteTag>().front()->notesSet().count(), 2U);
}

TEST_P(TagExamination, FindsATitleThatNoTextCanGive)
{
    note("# One\n\n#Miller & Co/Bills#");
    tagCalled("Miller & Co/Bills").setTitle("Miller & Co./Bills");
    noteCalled("One").setEncryptedValue(true);
    const StoreExamination examination = examine();
    EXPECT_EQ(examination.resultOf(StoreCheck::Tags).count, 1U);
    EXPECT_EQ(findingOf(examination).kind, Kind::UnusableTagTitle);
    EXPECT_EQ(findingOf(examination).title, "Miller & Co./Bills");
    repair();
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_THAT(titlesOf(all<OVNoteTag>()), UnorderedElementsAre("Miller & Co", "Miller & Co/Bills"));
}

TEST_P(TagExamination, TakesTagsOfProtectedNotesOnTrust)
{
    note("# One\n\n#a").setEncryptedValue(true);
    EXPECT_THAT(kinds(), IsEmpty());
}

} // namespace
} // namespace tarn
