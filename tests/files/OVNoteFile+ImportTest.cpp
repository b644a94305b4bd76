#include "tests/files/FilesFixture.h"

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Import : public FilesFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, Import, everyStore(), storeName);

TEST_P(Import, CopiesAFileIntoTheRecordsOwnFolder)
{
    OVNote& owner = note("# T\n");
    const auto source = aFile("report.bin", "bytes");

    OVNoteFile* const file = owner.addAttachmentFromFileURL(source);

    ASSERT_TRUE(file);
    EXPECT_TRUE(dynamic_cast<OVNoteGenericFile*>(file));
    EXPECT_EQ(file->note(), &owner);
    EXPECT_EQ(file->filename(), "report.bin");
    EXPECT_EQ(file->fileSize(), 5);
    EXPECT_TRUE(file->downloadedValue());
    EXPECT_FALSE(file->uploadedValue());
    EXPECT_FALSE(file->isUnused());
    EXPECT_EQ(file->fileURL(), filesRoot() / "Local Files" / "Note Files" / *file->uniqueIdentifier() / "report.bin");
    EXPECT_EQ(contentsOf(*file->fileURL()), "bytes");
    EXPECT_EQ(contentsOf(source), "bytes") << "a copy, not the file itself";
}

TEST_P(Import, GivesANameInUseACounterAgainAndAgain)
{
    OVNote& owner = note("# T\n");
    const auto source = aFile("a.bin", "one");
    EXPECT_EQ(owner.addAttachmentFromFileURL(source)->filename(), "a.bin");
    EXPECT_EQ(owner.addAttachmentFromFileURL(source)->filename(), "a (2).bin") << "in use, so also of equal bytes";
    const OVNoteFile* const third = owner.addAttachmentFromFileURL(source);
    EXPECT_EQ(third->filename(), "a (3).bin");
    EXPECT_EQ(contentsOf(*third->fileURL()), "one");
    EXPECT_THAT(namesIn(third->fileURL()->parent_path()), ElementsAre("a (3).bin"));
}

TEST_P(Import, RevivesAnUnusedFileOfTheSameBytes)
{
    OVNote& owner = note("# T\n");
    OVNoteFile* const first = owner.addAttachmentFromFileURL(aFile("a.bin", "one"));
    first->setUnused();
    EXPECT_EQ(owner.addAttachmentFromFileURL(aFile("a.bin", "one")), first);
    EXPECT_FALSE(first->isUnused());
    EXPECT_EQ(all<OVNoteFile>().size(), 1);

    first->setUnused();
    const OVNoteFile* const second = owner.addAttachmentFromFileURL(aFile("a.bin", "two"));
    EXPECT_NE(second, first);
    EXPECT_EQ(second->filename(), "a.bin") << "beside an unused one the name is free";
    EXPECT_TRUE(first->isUnused());
    EXPECT_EQ(contentsOf(*second->fileURL()), "two");
}

TEST_P(Import, TrimsWhiteSpaceAroundANameAlsoOnDisk)
{
    OVNote& owner = note("# T\n");
    const OVNoteFile* const file = owner.addAttachmentFromFileURL(aFile(" \ta.bin ", "x"));
    EXPECT_EQ(file->filename(), "a.bin");
    EXPECT_THAT(namesIn(file->fileURL()->parent_path()), ElementsAre("a.bin"));
}

TEST_P(Import, ComparesNamesComposedAndDecodedButNotFolded)
{
    OVNote& owner = note("# T\n");
    EXPECT_EQ(owner.addAttachmentFromFileURL(aFile("Café 1.bin", "x"))->filename(), "Café 1.bin");
    EXPECT_EQ(owner.addAttachmentFromFileURL(aFile("Cafe\u0301 1.bin", "x"))->filename(), "Cafe\u0301 1 (2).bin");
    EXPECT_EQ(owner.addAttachmentFromFileURL(aFile("Caf%C3%A9%201.bin", "x"))->filename(), "Caf%C3%A9%201 (3).bin");
    EXPECT_EQ(owner.addAttachmentFromFileURL(aFile("café 1.bin", "x"))->filename(), "café 1.bin");
}

TEST_P(Import, LeavesNothingWhenItFails)
{
    OVNote& owner = note("# T\n");
    NSError error;
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL(scratch() / "missing.bin", owner, &error));
    EXPECT_EQ(error.domain(), NSPOSIXErrorDomain);
    EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("missing.bin"));
    EXPECT_THAT(owner.filesSet().allObjects(), IsEmpty());
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
    EXPECT_THAT(namesIn(filesRoot() / "Local Files" / "Note Files"), IsEmpty());

    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL(scratch() / "", owner, &error));
    EXPECT_FALSE(OVNoteFile::getOrCreateFileFromURL("/dev/null", owner, &error)) << "no file";
    EXPECT_THAT(all<OVNoteFile>(), IsEmpty());
}

TEST_P(Import, TakesWhatAnApplicationHandsOver)
{
    OVNote& owner = note("# T\n");
    NSFileWrapper wrapper = NSFileWrapper::withContents(NSData::fromText("handed"));
    EXPECT_FALSE(owner.addAttachmentFromFileWrapper(wrapper)) << "without a name";
    wrapper.setPreferredFilename("folder/plan.bin");
    OVNoteFile* const file = owner.addAttachmentFromFileWrapper(wrapper);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->filename(), "plan.bin");
    EXPECT_EQ(contentsOf(*file->fileURL()), "handed");
    wrapper.setFilename("other.bin");
    EXPECT_EQ(owner.addAttachmentFromFileWrapper(wrapper)->filename(), "other.bin") << "before the preferred one";
    file->setUnused();
    wrapper.setFilename("plan.bin");
    EXPECT_EQ(owner.addAttachmentFromFileWrapper(wrapper), file);
}

TEST_P(Import, TakesAFolderWithAllThatIsInIt)
{
    OVNote& owner = note("# T\n");
    NSFileWrapper inner = NSFileWrapper::withContents(NSData::fromText("deep"));
    inner.setFilename("text.txt");
    NSFileWrapper wrapper = NSFileWrapper::withFileWrappers({inner});
    wrapper.setFilename("bundle.rtfd");
    const OVNoteFile* const file = owner.addAttachmentFromFileWrapper(wrapper);
    ASSERT_TRUE(file);
    EXPECT_EQ(contentsOf(*file->fileURL() / "text.txt"), "deep");
    EXPECT_EQ(file->fileSize(), 4);
    const OVNoteFile* const again = owner.addAttachmentFromFileURL(*file->fileURL());
    ASSERT_TRUE(again);
    EXPECT_EQ(contentsOf(*again->fileURL() / "text.txt"), "deep");
}

TEST_P(Import, MakesAPictureThatCannotBeOpenedAGenericFile)
{
    OVNote& owner = note("# T\n");
    EXPECT_TRUE(OVNoteImage::canImportFileURL("a.png"));
    EXPECT_TRUE(dynamic_cast<OVNoteGenericFile*>(owner.addAttachmentFromFileURL(aFile("a.png", "no picture"))));
    EXPECT_FALSE(OVNoteImage::canImportFileURL("a.svg"));
    EXPECT_TRUE(dynamic_cast<OVNoteGenericFile*>(owner.addAttachmentFromFileURL(aFile("a.svg", "<svg/>"))));
    EXPECT_FALSE(OVNoteImage::canImportFileURL("a"));
    EXPECT_FALSE(OVNoteImage::canImportFileURL("a.unheardof"));
    EXPECT_EQ(all<OVNoteFile>().size(), 2);
}

} // namespace
} // namespace tarn
