#include "tarnmodel/model/OVNoteBackLink.h"
#include "tests/diagnosis/DiagnosisFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class NoteExamination : public DiagnosisFixture {
protected:
    /// Has a bit of everything.
    OVNote& soundNote() { return note("# Sound\n\nbody\n\n- [x] a\n- [ ] b\n\n#a/b\n"); }
    OVNoteBackLink& linkCalled(std::string_view title)
    {
        return *OVNoteBackLink::backlinksForTitle(title, false, context()).front();
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteExamination, everyStore(), storeName);

/// A field that something damages, and what is found then.
struct Damage {
    void (*inflict)(OVNote&);
    StoreFinding::Kind kind;
    StoreCheck check;
    Value stored;
    Value derived;
};

const std::vector<Damage> kDamages{
    {[](OVNote& note) { note.setTitle("Wrong"); }, StoreFinding::Kind::WrongTitle, StoreCheck::Title, "Wrong", "Sound"},
    {[](OVNote& note) { note.setSubtitle("Wrong"); }, StoreFinding::Kind::WrongSubtitle, StoreCheck::Subtitle, "Wrong",
        "body"},
    {[](OVNote& note) { note.setTodoIncompletedValue(9); }, StoreFinding::Kind::WrongOpenToDos, StoreCheck::ToDos, 9,
        1},
    {[](OVNote& note) { note.setTodoCompletedValue(8); }, StoreFinding::Kind::WrongDoneToDos, StoreCheck::ToDos, 8, 1},
    {[](OVNote& note) { note.setHasSourceCodeValue(true); }, StoreFinding::Kind::WrongCodeFlag, StoreCheck::Flags, true,
        false},
    {[](OVNote& note) { note.setHasImagesValue(true); }, StoreFinding::Kind::WrongImagesFlag, StoreCheck::Flags, true,
        false},
    {[](OVNote& note) { note.setHasFilesValue(true); }, StoreFinding::Kind::WrongFilesFlag, StoreCheck::Flags, true,
        false},
    {[](OVNote& note) { note.tagsSet().removeObject(*note.tagForName("a")); }, StoreFinding::Kind::WrongNoteTags,
        StoreCheck::NoteTags, Value::Array{"a/b"}, Value::Array{"a", "a/b"}},
};

TEST_P(NoteExamination, FindsNothingInWhatEditsLeave)
{
    soundNote();
    note("# Linking\n\n[[Sound]] [[Missing]]\n\n    code\n");
    note("");
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_TRUE(examine().isSound());
}

TEST_P(NoteExamination, FindsEachFieldThatIsNotWhatTheTextSaysAndDerivesItAnew)
{
    for (const Damage& damage : kDamages) {
        SCOPED_TRACE(static_cast<int>(damage.kind));
        OVNote& damaged = soundNote();
        // A tag that another note carries too, so that no tag is without notes.
        note("# Other\n\n#a/b");
        const auto modified = damaged.modificationDate();
        damage.inflict(damaged);

        const StoreExamination examination = examine();
        const NSManagedObjectID objectID = all<OVNote>().front()->objectID();
        ASSERT_THAT(kindsOf(examination), ElementsAre(damage.kind));
        EXPECT_EQ(examination.resultOf(damage.check).count, 1U);
        EXPECT_THAT(examination.notesToDerive, ElementsAre(objectID));
        const StoreFinding& finding = examination.resultOf(damage.check).findings.front();
        EXPECT_EQ(finding.check(), damage.check);
        EXPECT_EQ(finding.objectID, objectID);
        EXPECT_EQ(finding.uniqueIdentifier, all<OVNote>().front()->uniqueIdentifier());
        EXPECT_EQ(finding.title, all<OVNote>().front()->title());
        EXPECT_EQ(finding.stored, damage.stored);
        EXPECT_EQ(finding.derived, damage.derived);
        EXPECT_TRUE(finding.isRepairable());

        EXPECT_EQ(repair().notes, 1U);
        EXPECT_THAT(kinds(), IsEmpty());
        EXPECT_EQ(noteCalled("Sound").modificationDate(), modified);
        for (OVNote* left : all<OVNote>())
            left->permanentlyDelete();
    }
}

TEST_P(NoteExamination, FindsLinksThatTheTextDoesNotHold)
{
    note("# Target");
    note("# Source\n\n[[Target]]");
    linkCalled("Target").setLocationValue(3);
    EXPECT_THAT(kinds(), ElementsAre(Kind::WrongLinks));
    EXPECT_EQ(repair().notes, 1U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(linkCalled("Target").linkingTo(), &noteCalled("Target"));
}

TEST_P(NoteExamination, FindsLinksThatLeadToANoteOfAnotherTitle)
{
    note("# Target");
    note("# Other");
    note("# Source\n\n[[Target]]");
    linkCalled("Target").setLinkingTo(&noteCalled("Other"));
    EXPECT_THAT(kinds(), ElementsAre(Kind::WrongLinkTarget));
    EXPECT_EQ(repair().notes, 1U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(linkCalled("Target").linkingTo(), &noteCalled("Target"));
}

TEST_P(NoteExamination, TakesTheIdentifierForATitleWhereThereIsNone)
{
    const std::string identifier = *note("").uniqueIdentifier();
    note("# Source\n\n[[" + identifier + "]]");
    EXPECT_THAT(kinds(), IsEmpty());
}

TEST_P(NoteExamination, RepairsATitleWithoutRewritingLinks)
{
    note("# Target");
    note("# Source\n\n[[Target]] [[Wrong]]");
    noteCalled("Target").setTitle("Wrong");
    EXPECT_THAT(kinds(), ElementsAre(Kind::WrongTitle, Kind::WrongLinkTarget));
    repair();
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(noteCalled("Source").text(), "# Source\n\n[[Target]] [[Wrong]]");
}

TEST_P(NoteExamination, DoesNotReadProtectedTexts)
{
    OVNote& guarded = soundNote();
    guarded.setTitle("Guarded");
    guarded.setEncryptedValue(true);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_EQ(repair().notes, 0U);
}

TEST_P(NoteExamination, FindsProtectedNotesThatLackATagAboveTheirs)
{
    OVNote& guarded = soundNote();
    guarded.tagsSet().removeObject(*guarded.tagForName("a"));
    guarded.setEncryptedValue(true);
    const StoreExamination examination = examine();
    EXPECT_THAT(kindsOf(examination), ElementsAre(Kind::MissingParentTags));
    EXPECT_EQ(examination.resultOf(StoreCheck::NoteTags).count, 1U);
    EXPECT_THAT(examination.notesToDerive, IsEmpty());
    const StoreRepairs repairs = repair();
    EXPECT_EQ(repairs.tags, 1U);
    EXPECT_EQ(repairs.notes, 0U);
    EXPECT_THAT(kinds(), IsEmpty());
    EXPECT_THAT(noteCalled("Sound").tagsSet().allObjects(), SizeIs(2));
}

} // namespace
} // namespace tarn
