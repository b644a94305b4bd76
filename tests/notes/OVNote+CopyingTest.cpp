#include "tests/support/StoreFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

// Merging -----------------------------------------------------------------------------------------------------------

class NoteMerge : public StoreFixture {
protected:
    std::string merged(const std::vector<std::string>& texts)
    {
        std::vector<OVNote*> notes;
        for (const std::string& text : texts)
            notes.push_back(&note(text));
        return OVNote::mergeNotes(notes)->text().value_or("none");
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteMerge, everyStore(), storeName);

TEST_P(NoteMerge, JoinsTextsWithABlankLine)
{
    EXPECT_EQ(merged({"A", "B"}), "A\n\nB");
    EXPECT_EQ(merged({"A\n", "B"}), "A\n\nB");
    EXPECT_EQ(merged({"A\n\n", "B"}), "A\n\n\n\nB");
    EXPECT_EQ(merged({"A", "B\n\n"}), "AB\n\n");
    EXPECT_EQ(merged({"A\n", "B\n\n"}), "A\n\nB\n\n");
    EXPECT_EQ(merged({"A\n\n", "B\n\n"}), "A\n\nB\n\n");
    EXPECT_EQ(merged({"", "B"}), "B");
    EXPECT_EQ(merged({"A", ""}), "A\n\n");
    EXPECT_EQ(merged({"A", "", "C"}), "A\n\n\n\nC");
    EXPECT_EQ(merged({"A", "B", "C"}), "A\n\nB\n\nC");
}

TEST_P(NoteMerge, NeedsTwoNotes)
{
    OVNote& alone = note("A");
    EXPECT_EQ(OVNote::mergeNotes({&alone}), nullptr);
    EXPECT_EQ(OVNote::mergeNotes({}), nullptr);
    EXPECT_FALSE(alone.isTrashed());
    EXPECT_EQ(all<OVNote>().size(), 1U);
}

TEST_P(NoteMerge, TrashesItsSourcesAndDerivesTheNoteAnew)
{
    OVNote& first = note("# A\n#x");
    OVNote& second = note("# B\n- [ ] #y");
    OVNote* merger = OVNote::mergeNotes({&first, &second});
    EXPECT_EQ(merger->title(), "A");
    EXPECT_THAT(merger->tagsStrings(), UnorderedElementsAre("x", "y"));
    EXPECT_EQ(merger->todoIncompletedValue(), 1);
    EXPECT_TRUE(first.isTrashed());
    EXPECT_TRUE(second.isTrashed());
    EXPECT_FALSE(merger->isTrashed());
}

TEST_P(NoteMerge, IsPinnedForNoOrderOfItsSourcesUnlessAllWere)
{
    constexpr unsigned everyCombination = 16;
    for (unsigned pinned = 0; pinned < everyCombination; ++pinned) {
        std::vector<OVNote*> sources;
        for (unsigned bit = 1; bit < everyCombination; bit *= 2) {
            sources.push_back(&note("# A"));
            if ((pinned & bit) != 0)
                sources.back()->pin();
        }
        const bool areAllPinned = pinned == everyCombination - 1;
        EXPECT_EQ(OVNote::mergeNotes(sources)->isPinned(), areAllPinned) << pinned;
        const bool areFirstTwoPinned = (pinned & 3) == 3;
        EXPECT_EQ(OVNote::mergeNotes({sources[0], sources[1]})->isPinned(), areFirstTwoPinned) << pinned;
        for (std::size_t index = 0; index < sources.size(); ++index)
            EXPECT_EQ(sources[index]->isPinned(), (pinned >> index & 1) != 0) << "sources keep their pins";
    }
}

TEST_P(NoteMerge, IsPinnedWhenAllWere)
{
    OVNote& pinned = note("# A");
    OVNote& other = note("# B");
    OVNote& third = note("# C");
    pinned.pin();
    other.pin();
    const NSDate before = mark();
    const OVNote* ofPinned = OVNote::mergeNotes({&pinned, &other});
    EXPECT_TRUE(ofPinned->isPinned());
    EXPECT_GT(ofPinned->pinnedDate(), before);
    const OVNote* ofBoth = OVNote::mergeNotes({&pinned, &third});
    EXPECT_FALSE(ofBoth->isPinned());
    EXPECT_GT(ofBoth->pinnedDate(), before) << "the date says when it was decided";
}

TEST_P(NoteMerge, TakesOverTheLinksToItsFirstNote)
{
    OVNote& source = note("to [[A]]");
    OVNote& first = note("# A");
    OVNote& second = note("# B");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&first));
    OVNote* merger = OVNote::mergeNotes({&first, &second});
    EXPECT_THAT(source.linkedNotes(), ElementsAre(merger));
}

TEST_P(NoteMerge, LeavesAConflictWithItsSources)
{
    OVNote& first = note("# A");
    OVNote& second = note("# A\nchanged");
    second.markAsConflictedFromNote(first);
    OVNote* merger = OVNote::mergeNotes({&first, &second});
    EXPECT_FALSE(first.hasConflictedNotes());
    EXPECT_FALSE(second.hasConflictedNotes());
    EXPECT_FALSE(merger->hasConflictedNotes());
}

// Duplicating -------------------------------------------------------------------------------------------------------

class NoteDuplicate : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteDuplicate, everyStore(), storeName);

TEST_P(NoteDuplicate, HasTheSameContentAndAnIdentifierOfItsOwn)
{
    OVNote& target = note("# Target");
    OVNote& source = note("# A\n\n- [x] done\n\n[[Target]] #work");
    source.pin();
    source.makeReadOnly();
    source.setOrderValue(7);
    OVNoteTag& work = tag("work");
    source.pinInTag(work);
    reopen();
    OVNote* original = OVNote::noteWithTitle("A", context());

    OVNote* copy = original->duplicate();

    EXPECT_NE(copy->uniqueIdentifier(), original->uniqueIdentifier());
    EXPECT_EQ(copy->text(), original->text());
    EXPECT_EQ(copy->title(), "A");
    EXPECT_TRUE(copy->isPinned());
    EXPECT_EQ(copy->pinnedDate(), original->pinnedDate());
    EXPECT_TRUE(copy->isReadOnly());
    EXPECT_EQ(copy->orderValue(), 7);
    EXPECT_EQ(copy->todoCompletedValue(), 1);
    EXPECT_THAT(copy->tagsStrings(), ElementsAre("work"));
    EXPECT_TRUE(copy->isPinnedInTag(&tag("work")));
    EXPECT_THAT(titlesOf(copy->linkedNotes()), ElementsAre("Target"));
    EXPECT_THAT(copy->linkedByNotes(), IsEmpty());
    EXPECT_EQ(copy->creationDate(), copy->modificationDate());
    EXPECT_GT(copy->creationDate(), original->modificationDate());
    static_cast<void>(target), static_cast<void>(source);
}

TEST_P(NoteDuplicate, TakesTheAttributesThatHaveAValue)
{
    OVNote& source = note("# A");
    note("# A\nchanged").markAsConflictedFromNote(source);
    source.setVersion(std::nullopt);
    source.trash();
    source.setConflictUniqueIdentifier("ROOT/1.000000");
    source.archive();
    source.setConflictUniqueIdentifier("ROOT/1.000000");

    const OVNote* copy = source.duplicate();

    EXPECT_EQ(copy->versionValue(), 3) << "that of a new note, where the source has none";
    EXPECT_TRUE(copy->isArchived());
    EXPECT_EQ(copy->archivedDate(), source.archivedDate());
    EXPECT_EQ(copy->trashedDate(), source.trashedDate());
    EXPECT_EQ(copy->conflictUniqueIdentifier(), "ROOT/1.000000");
}

TEST_P(NoteDuplicate, OfALockedNotePassesOnWhatIsStored)
{
    OVNote& source = note("# Secret\n![](a.png)");
    OVNoteImage& attached = image(source, "a.png");
    source.setEncryptedValue(true);
    attached.setEncryptedValue(true);
    source.setEncryptedData(NSData::fromText("cipher"));
    TextKeeper keeper;
    keeper.isLocked = true;
    OVEncryptionCoreManager::setEncryptionCoreManager(&keeper, context());

    const OVNote* copy = source.duplicate();

    EXPECT_THROW(static_cast<void>(copy->text()), NSException) << "the manager is there again";
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    EXPECT_TRUE(keeper.texts.empty());
    EXPECT_EQ(copy->storedText(), source.storedText());
    EXPECT_EQ(copy->encryptedData(), source.encryptedData());
    ASSERT_EQ(copy->filesSet().count(), 1U);
    EXPECT_EQ(copy->filesSet().allObjects().front()->storedFilename(), "a.png");
}

TEST_P(NoteDuplicate, SpeaksOfItselfWhereTheSourceDid)
{
    OVNote& source = note("# A");
    const std::string own = *source.uniqueIdentifier();
    source.updateNoteWithText("# A\n[x](tarn://open?id=" + own + ") " + own);
    OVNote* copy = source.duplicate();
    const std::string identifier = *copy->uniqueIdentifier();
    EXPECT_EQ(copy->text(), "# A\n[x](tarn://open?id=" + identifier + ") " + identifier);
    EXPECT_EQ(source.text(), "# A\n[x](tarn://open?id=" + own + ") " + own);
}

TEST_P(NoteDuplicate, HasCopiesOfAllAttachments)
{
    OVNote& source = note("# A\n![](a.png)");
    OVNoteImage& used = image(source, "a.png");
    used.setWidthValue(640);
    used.setUploadedValue(true);
    file(source, "old.pdf").setUnused();
    source.updateNoteWithText("# A\n![](a.png)");

    OVNote* copy = source.duplicate();

    ASSERT_EQ(copy->filesSet().count(), 2U);
    ASSERT_EQ(copy->orderedImages().size(), 1U);
    const OVNoteImage* copied = copy->orderedImages().front();
    EXPECT_NE(copied, &used);
    EXPECT_NE(copied->uniqueIdentifier(), used.uniqueIdentifier());
    EXPECT_EQ(copied->filename(), "a.png");
    EXPECT_EQ(copied->widthValue(), 640);
    EXPECT_FALSE(copied->uploadedValue());
    EXPECT_TRUE(used.uploadedValue());
    EXPECT_TRUE(copy->hasImagesValue());
    EXPECT_EQ(source.filesSet().count(), 2U);
}

TEST_P(NoteDuplicate, OfAnEncryptedNoteKeepsWhatCannotBeDerived)
{
    OVNote& target = note("# Target");
    OVNote& source = note("# Secret\n[[Target]] #work");
    OVNote& linker = note("# Linker\n[[Secret]]");
    OVPassword* password = OVPassword::insertInManagedObjectContext(context());
    source.setPassword(password);
    source.setEncryptedValue(true);
    source.updatePrimitiveText(std::nullopt);
    source.setEncryptedData(NSData::fromText("cipher"));

    OVNote* copy = source.duplicate();

    EXPECT_EQ(copy->title(), "Secret");
    EXPECT_EQ(copy->storedText(), std::nullopt);
    EXPECT_EQ(copy->encryptedData(), source.encryptedData());
    EXPECT_EQ(copy->password(), password);
    EXPECT_THAT(copy->tagsStrings(), ElementsAre("work"));
    EXPECT_THAT(copy->linkedNotes(), ElementsAre(&target));
    EXPECT_THAT(copy->linkedByNotes(), ElementsAre(&linker));
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target));
    EXPECT_THAT(source.linkedByNotes(), ElementsAre(&linker));
    EXPECT_EQ(copy->creationDate(), source.modificationDate());
    EXPECT_EQ(copy->modificationDate(), source.modificationDate());
}

TEST_P(NoteDuplicate, OfAnEncryptedNoteLeavesNoLinkBehindWhenTheLinkerIsEdited)
{
    OVNote& source = note("# Secret");
    OVNote& linker = note("# Linker\n[[Secret]]");
    source.setEncryptedValue(true);
    source.duplicate();
    EXPECT_EQ(linker.linkingToSet().count(), 2U);
    linker.updateNoteWithText("# Linker\n[[Secret]] again");
    EXPECT_EQ(linker.linkingToSet().count(), 1U);
    linker.updateNoteWithText("# Linker");
    EXPECT_EQ(linker.linkingToSet().count(), 0U);
}

} // namespace
} // namespace tarn
