#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/sync/TolVectorClock.h"

#include <sys/mman.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NoteParsing : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteParsing, everyStore(), storeName);

TEST_P(NoteParsing, DerivesTheFieldsFromTheText)
{
    note("# Trip to *Rome*\n\nPack light.\n\n- [ ] tickets\n- [x] hotel\n- [ ] "
         "shoes\n\n```\ncode\n```\n\n#travel/italy");
    reopen();

    const OVNote& found = *OVNote::noteWithTitle("Trip to Rome", context());
    EXPECT_EQ(found.title(), "Trip to Rome");
    EXPECT_EQ(found.subtitle(), "Pack light.");
    EXPECT_EQ(found.todoIncompletedValue(), 2);
    EXPECT_EQ(found.todoCompletedValue(), 1);
    EXPECT_TRUE(found.hasSourceCodeValue());
    EXPECT_FALSE(found.hasImagesValue());
    EXPECT_FALSE(found.hasFilesValue());
    EXPECT_THAT(found.tagsStrings(), testing::UnorderedElementsAre("travel", "travel/italy"));
    EXPECT_EQ(found.lastEditingDevice(), deviceName);
}

TEST_P(NoteParsing, EmptiesTheFieldsWithTheText)
{
    OVNote& changed = note("# Title\n\nsubtitle\n\n- [ ] a\n- [x] b\n\n    code\n\n#tag");
    changed.updateNoteWithText("");

    EXPECT_EQ(changed.text(), "");
    EXPECT_EQ(changed.title(), "");
    EXPECT_EQ(changed.subtitle(), "");
    EXPECT_EQ(changed.todoIncompletedValue(), 0);
    EXPECT_EQ(changed.todoCompletedValue(), 0);
    EXPECT_FALSE(changed.hasSourceCodeValue());
    EXPECT_THAT(changed.tagsStrings(), IsEmpty());
}

TEST_P(NoteParsing, KeepsTheTextByteForByte)
{
    const std::string text = "\r\n# A\u0308\t \n\n\u2028x\0y\n\n"; // ends at the zero byte
    const std::string whole = "\r\n  # é\te\u0301 \n\n\xF0\x9F\x98\x80\r";
    note(text).setTitle("first");
    note(whole).setTitle("second");
    reopen();

    EXPECT_EQ(OVNote::noteWithTitle("first", context())->text(), text);
    EXPECT_EQ(OVNote::noteWithTitle("second", context())->text(), whole);
}

TEST_P(NoteParsing, ReplacesIllFormedBytesWhenTheyEnter)
{
    EXPECT_EQ(note("a\xFF"
                   "b\xC3")
                  .text(),
        "a\uFFFDb\uFFFD");
}

TEST_P(NoteParsing, StampsTheEdit)
{
    OVNote& edited = note("one");
    NSDate before = mark();

    edited.updateNoteWithText("two");
    EXPECT_GT(edited.modificationDate(), before);

    before = mark();
    edited.updateNoteWithAST(CVKAST::fromMarkdown("three"));
    EXPECT_GT(edited.modificationDate(), before);
    EXPECT_EQ(edited.text(), "three");
    EXPECT_EQ(edited.noteVectorClock()->clockValueForID(deviceUUID), 3U);
}

TEST_P(NoteParsing, CountsAnEditThatKeepsTheModificationDate)
{
    OVNote& edited = note("one");
    edited.setLastEditingDevice("another");
    const auto modified = edited.modificationDate();

    edited.updateNoteWithText("two", false);

    EXPECT_EQ(edited.modificationDate(), modified);
    EXPECT_EQ(edited.noteVectorClock()->clockValueForID(deviceUUID), 2U);
    EXPECT_EQ(edited.lastEditingDevice(), deviceName);
}

TEST_P(NoteParsing, CountsAnEditThatChangesNothing)
{
    OVNote& edited = note("same");
    const NSDate before = mark();

    edited.updateNoteWithText("same");

    EXPECT_GT(edited.modificationDate(), before);
    EXPECT_EQ(edited.noteVectorClock()->clockValueForID(deviceUUID), 2U);
}

TEST_P(NoteParsing, StopsCountingWhereTheRecordDoes)
{
    std::string text;
    for (int item = 0; item < 32768; ++item)
        text += "- [ ] a\n";
    for (int item = 0; item < 32767; ++item)
        text += "- [x] b\n";

    const OVNote& counted = note(text);

    EXPECT_EQ(counted.todoIncompletedValue(), 32767);
    EXPECT_EQ(counted.todoCompletedValue(), 32767);
}

TEST_P(NoteParsing, RefusesATextOfMoreThanHalfAGibibyte)
{
    constexpr std::size_t length = 512UL * 1024 * 1024 + 1;
    ASSERT_EQ(OVNote::maximumTextLength, length - 1);
    void* memory = mmap(nullptr, length, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    const std::string_view huge(static_cast<const char*>(memory), length);
    OVNote& edited = note("before");

    EXPECT_THROW(edited.updateNoteWithText(huge), NSException);
    EXPECT_THROW(edited.setText(huge), NSException);
    EXPECT_THROW(OVNote::noteWithText(huge, context()), NSException);
    EXPECT_EQ(edited.text(), "before");
    EXPECT_EQ(all<OVNote>().size(), 1U);
    munmap(memory, length);
}

// Attachments -------------------------------------------------------------------------------------------------------

TEST_P(NoteParsing, NumbersAttachmentsByTheirFirstLink)
{
    OVNote& linking = noteTitled("a");
    OVNoteImage& picture = image(linking, "p.png");
    OVNoteGenericFile& paper = file(linking, "d.pdf");

    linking.updateNoteWithText("# T\n\n[web](http://example.org) ![](p.png) [d](d.pdf) ![](p.png)");

    EXPECT_EQ(picture.indexValue(), 1);
    EXPECT_EQ(paper.indexValue(), 2);
    EXPECT_TRUE(linking.hasImagesValue());
    EXPECT_TRUE(linking.hasFilesValue());
    EXPECT_TRUE(linking.hasAttachments());
}

TEST_P(NoteParsing, WritesANumberOnlyWhenItChanges)
{
    OVNote& linking = noteTitled("a");
    OVNoteImage& picture = image(linking, "p.png");
    linking.updateNoteWithText("![](p.png)");
    save();
    int writes = 0;
    const auto observation = picture.addObserver("index", [&writes](NSManagedObject&, std::string_view) { ++writes; });

    linking.updateNoteWithText("![](p.png) again");
    EXPECT_EQ(writes, 0);
    EXPECT_FALSE(picture.hasChanges());

    linking.updateNoteWithText("[x](y) ![](p.png)");
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(picture.indexValue(), 1);
}

TEST_P(NoteParsing, MarksAnAttachmentUnusedWithItsLastLink)
{
    OVNote& linking = noteTitled("a");
    OVNoteGenericFile& paper = file(linking, "d.pdf");
    linking.updateNoteWithText("[one](d.pdf) [two](d.pdf)");
    EXPECT_FALSE(paper.isUnused());
    EXPECT_FALSE(paper.unusedDate());

    linking.updateNoteWithText("[one](d.pdf)");
    EXPECT_FALSE(paper.isUnused());
    EXPECT_TRUE(linking.hasFilesValue());

    NSDate before = mark();
    linking.updateNoteWithText("none");
    EXPECT_TRUE(paper.isUnused());
    EXPECT_GT(paper.unusedDate(), before);
    EXPECT_FALSE(linking.hasFilesValue());
    EXPECT_FALSE(linking.hasAttachments());
    EXPECT_THAT(linking.orderedFiles(), IsEmpty());
    EXPECT_FALSE(paper.isDeleted());

    const auto unusedDate = paper.unusedDate();
    linking.updateNoteWithText("still none");
    EXPECT_EQ(paper.unusedDate(), unusedDate);

    before = mark();
    linking.updateNoteWithText("[again](d.pdf)");
    EXPECT_FALSE(paper.isUnused());
    EXPECT_GT(paper.unusedDate(), before);
}

TEST_P(NoteParsing, FindsAnAttachmentByAPercentEncodedLink)
{
    OVNote& linking = noteTitled("a");
    OVNoteGenericFile& spaced = file(linking, "my paper ü.pdf");
    OVNoteGenericFile& percent = file(linking, "100%.pdf");
    OVNoteGenericFile& escaped = file(linking, "a%2Fb.pdf");

    linking.updateNoteWithText("[a](my%20paper%20%C3%BC.pdf) [b](100%.pdf) [c](a%2Fb.pdf)");

    EXPECT_FALSE(spaced.isUnused());
    EXPECT_EQ(spaced.indexValue(), 0);
    EXPECT_FALSE(percent.isUnused());
    EXPECT_EQ(percent.indexValue(), 1);
    EXPECT_FALSE(escaped.isUnused());
    EXPECT_EQ(escaped.indexValue(), 2);
}

TEST_P(NoteParsing, PrefersTheDecodedNameAndTakesBothOutOfTheRace)
{
    OVNote& linking = noteTitled("a");
    OVNoteGenericFile& decoded = file(linking, "a b.pdf");
    OVNoteGenericFile& literal = file(linking, "a%20b.pdf");

    linking.updateNoteWithText("[x](a%20b.pdf) [y](a%20b.pdf)");

    EXPECT_EQ(decoded.indexValue(), 0);
    EXPECT_FALSE(literal.isUnused());
    EXPECT_EQ(literal.indexValue(), 0) << "never numbered";
    EXPECT_THAT(linking.filesSet().allObjects(), ElementsAre(&decoded, &literal));
}

TEST_P(NoteParsing, PrefersAUsedAttachmentAmongEqualNames)
{
    OVNote& linking = noteTitled("a");
    OVNoteGenericFile& unusedBefore = file(linking, "d.pdf");
    OVNoteGenericFile& used = file(linking, "d.pdf");
    OVNoteGenericFile& unusedAfter = file(linking, "d.pdf");
    unusedBefore.setUnused();
    unusedAfter.setUnused();

    linking.updateNoteWithText("[x](y) [d](d.pdf)");

    EXPECT_EQ(used.indexValue(), 1);
    EXPECT_FALSE(used.isUnused());
    EXPECT_TRUE(unusedBefore.isUnused());
    EXPECT_TRUE(unusedAfter.isUnused());
}

TEST_P(NoteParsing, TakesTheLastOfSeveralUsedAttachmentsOfOneName)
{
    OVNote& linking = noteTitled("a");
    file(linking, "d.pdf");
    OVNoteGenericFile& last = file(linking, "d.pdf");

    linking.updateNoteWithText("[x](y) [d](d.pdf)");

    EXPECT_EQ(last.indexValue(), 1);
}

TEST_P(NoteParsing, PassesOverAttachmentsWithoutAName)
{
    OVNote& linking = noteTitled("a");
    OVNoteGenericFile* nameless = OVNoteGenericFile::insertInManagedObjectContext(context());
    nameless->setNote(&linking);

    linking.updateNoteWithText("[empty]() none");

    EXPECT_FALSE(nameless->isUnused());
}

template <typename File> std::vector<std::string> namesOf(const std::vector<File*>& files)
{
    std::vector<std::string> names;
    for (const File* each : files)
        names.push_back(each->filename().value_or("-"));
    return names;
}

TEST_P(NoteParsing, ListsUsedAttachmentsInTheOrderOfTheText)
{
    OVNote& linking = noteTitled("a");
    image(linking, "1.png");
    file(linking, "2.pdf");
    image(linking, "3.png");
    image(linking, "4.png");

    linking.updateNoteWithText("![](3.png) ![](2.pdf) ![](1.png)");
    reopen();

    const OVNote& found = *OVNote::allNotesInManagedObjectContext(context()).front();
    EXPECT_THAT(namesOf(found.orderedFiles()), ElementsAre("3.png", "2.pdf", "1.png"));
    EXPECT_THAT(namesOf(found.orderedImages()), ElementsAre("3.png", "1.png"));
    EXPECT_THAT(namesOf(found.orderedFilesWithoutImages()), ElementsAre("2.pdf"));
}

} // namespace
} // namespace tarn
