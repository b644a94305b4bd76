// What each operation does to a note that is locked.

#include "tests/notes/ProtectedNotesFixture.h"

#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileWrapper.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <vector>

namespace tarn {
namespace {

using testing::SizeIs;

using LockedNotes = ProtectedNotesFixture;
INSTANTIATE_TEST_SUITE_P(Stores, LockedNotes, everyStore(), storeName);

/// The stored values of a note and its attachments, and the bytes of their files.
std::vector<std::string> sealOf(const OVNote& note)
{
    std::vector<std::string> seal{note.storedText().value_or("-"), std::string(note.sealedFields()->text())};
    for (const OVNoteFile* file : note.filesSet().allObjects()) {
        seal.push_back(file->storedFilename().value_or("-"));
        seal.emplace_back(file->sealedFields()->text());
        seal.push_back(bytesIn(*file->primitiveFileURL()));
    }
    return seal;
}

enum class Outcome : std::uint8_t { GoesOn, Raises, PassesOver };

struct LockedOperation {
    const char* name;
    Outcome outcome;
    std::function<void(OVNote& locked, OVNote& clear)> run;
};

OVNoteFile& fileOf(OVNote& note)
{
    return *note.filesSet().allObjects().front();
}

OVNoteTag& tagOf(OVNote& note)
{
    return *note.tagsSet().allObjects().front();
}

const std::vector<LockedOperation>& lockedOperations()
{
    using enum Outcome;
    static const std::vector<LockedOperation> operations{
        {"text", Raises, [](OVNote& locked, OVNote&) { (void)locked.text(); }},
        {"setText", Raises, [](OVNote& locked, OVNote&) { locked.setText("x"); }},
        {"activityItems", Raises, [](OVNote& locked, OVNote&) { (void)locked.activityItems(); }},
        {"updateNoteWithText", Raises, [](OVNote& locked, OVNote&) { locked.updateNoteWithText("x"); }},
        {"appendNoteWithText", Raises, [](OVNote& locked, OVNote&) { locked.appendNoteWithText("x"); }},
        {"prependNoteWithText", Raises, [](OVNote& locked, OVNote&) { locked.prependNoteWithText("x"); }},
        {"replaceNoteWithText", Raises, [](OVNote& locked, OVNote&) { locked.replaceNoteWithText("x"); }},
        {"mergeNotes", Raises,
            [](OVNote& locked, OVNote& clear) {
                OVNote::mergeNotes({&clear, &locked});
            }},
        {"duplicate", GoesOn, [](OVNote& locked, OVNote&) { locked.duplicate(); }},
        {"pin", GoesOn, [](OVNote& locked, OVNote&) { locked.pin(); }},
        {"pinInTag", GoesOn, [](OVNote& locked, OVNote&) { locked.pinInTag(tagOf(locked)); }},
        {"unpinEverywhere", GoesOn, [](OVNote& locked, OVNote&) { locked.unpinEverywhere(); }},
        {"makeReadOnly", GoesOn, [](OVNote& locked, OVNote&) { locked.makeReadOnly(); }},
        {"trash", GoesOn, [](OVNote& locked, OVNote&) { locked.trash(); }},
        {"restoreFromTrash", GoesOn, [](OVNote& locked, OVNote&) { locked.restoreFromTrash(); }},
        {"archive", GoesOn, [](OVNote& locked, OVNote&) { locked.archive(); }},
        {"unarchive", GoesOn, [](OVNote& locked, OVNote&) { locked.unarchive(); }},
        {"updateUniqueIdentifier", GoesOn, [](OVNote& locked, OVNote&) { locked.updateUniqueIdentifier(); }},
        {"markAsConflictedFromNote", GoesOn,
            [](OVNote& locked, OVNote& clear) { locked.markAsConflictedFromNote(clear); }},
        {"linkedNotes", GoesOn, [](OVNote& locked, OVNote&) { EXPECT_THAT(locked.linkedNotes(), SizeIs(1)); }},
        {"orderedFiles", GoesOn, [](OVNote& locked, OVNote&) { EXPECT_THAT(locked.orderedFiles(), SizeIs(1)); }},
        {"attachmentForFilename", Raises, [](OVNote& locked, OVNote&) { locked.attachmentForFilename("a.bin"); }},
        {"addAttachmentFromFileURL", Raises,
            [](OVNote& locked, OVNote&) { locked.addAttachmentFromFileURL(std::filesystem::path("/etc/hostname")); }},
        {"a new title of a note that it links to", PassesOver,
            [](OVNote& locked, OVNote& clear) {
                OVNote& target = *locked.linkedNotes().front();
                target.updateNoteWithText("# Renamed");
                EXPECT_EQ(clear.text(), "# Clear\n#work #other [[Renamed]]");
                EXPECT_THAT(locked.linkedNotes(), testing::ElementsAre(&target));
                EXPECT_EQ(locked.linkingToSet().allObjects().front()->title(), "Target");
            }},
        {"renameTagWithTagNamed", Raises, [](OVNote& locked, OVNote&) { tagOf(locked).renameTagWithTagNamed("play"); }},
        {"deleteTag", Raises, [](OVNote& locked, OVNote&) { tagOf(locked).deleteTag(); }},
        {"addTagToNotes", Raises,
            [](OVNote& locked, OVNote&) {
                OVNoteTag::tagWithName("other", locked.managedObjectContext())->addTagToNotes({&locked}, true);
            }},
        {"deleteTagInNotes", Raises,
            [](OVNote& locked, OVNote& clear) {
                tagOf(locked).deleteTagInNotes({&clear, &locked});
            }},
        {"filename", Raises, [](OVNote& locked, OVNote&) { (void)fileOf(locked).filename(); }},
        {"fileURL", Raises, [](OVNote& locked, OVNote&) { (void)fileOf(locked).fileURL(); }},
        {"searchText", Raises, [](OVNote& locked, OVNote&) { (void)fileOf(locked).searchText(); }},
        {"normalizedFileExtension", Raises,
            [](OVNote& locked, OVNote&) { (void)fileOf(locked).normalizedFileExtension(); }},
        {"fileSize", Raises, [](OVNote& locked, OVNote&) { (void)fileOf(locked).fileSize(); }},
        {"setFilename", Raises, [](OVNote& locked, OVNote&) { fileOf(locked).setFilename("x"); }},
        {"setNormalizedFileExtension", Raises,
            [](OVNote& locked, OVNote&) { fileOf(locked).setNormalizedFileExtension("x"); }},
        {"setFileSize", Raises, [](OVNote& locked, OVNote&) { fileOf(locked).setFileSize(1); }},
        {"setSearchText", Raises, [](OVNote& locked, OVNote&) { fileOf(locked).setSearchText("x"); }},
        {"dictionaryRepresentation", Raises,
            [](OVNote& locked, OVNote&) { (void)fileOf(locked).dictionaryRepresentation(); }},
        {"jsonRepresentation", Raises, [](OVNote& locked, OVNote&) { (void)fileOf(locked).jsonRepresentation(); }},
        {"loadDictionaryRepresentation", Raises,
            [](OVNote& locked, OVNote&) {
                fileOf(locked).loadDictionaryRepresentation({{"filename", "x"}});
            }},
        {"encryptableObjects", GoesOn,
            [](OVNote& locked, OVNote&) {
                EXPECT_THAT(
                    locked.password()->encryptableObjects(), testing::UnorderedElementsAre(&locked, &fileOf(locked)));
            }},
        {"filenameIsEqualTo", Raises, [](OVNote& locked, OVNote&) { (void)fileOf(locked).filenameIsEqualTo("x"); }},
        {"renameWithFilename", Raises, [](OVNote& locked, OVNote&) { fileOf(locked).renameWithFilename("x"); }},
        {"updateNormalizedExtension", Raises,
            [](OVNote& locked, OVNote&) { fileOf(locked).updateNormalizedExtension(); }},
        {"updateAttachmentWithFileWrapper", Raises,
            [](OVNote& locked, OVNote&) {
                fileOf(locked).updateAttachmentWithFileWrapper(NSFileWrapper::withContents(NSData::fromText("x")));
            }},
        {"updateFileMetadata", PassesOver, [](OVNote& locked, OVNote&) { fileOf(locked).updateFileMetadata(); }},
        {"updateAttachmentAndMarkForUpload", GoesOn,
            [](OVNote& locked, OVNote&) { fileOf(locked).updateAttachmentAndMarkForUpload(); }},
        {"setUnused", GoesOn, [](OVNote& locked, OVNote&) { fileOf(locked).setUnused(); }},
        {"markForUpload", GoesOn, [](OVNote& locked, OVNote&) { fileOf(locked).markForUpload(); }},
        {"noteFilesToUploadInManagedObjectContext", GoesOn,
            [](OVNote& locked, OVNote&) {
                fileOf(locked).markForUpload();
                EXPECT_THAT(OVNoteFile::noteFilesToUploadInManagedObjectContext(locked.managedObjectContext()),
                    testing::Contains(&fileOf(locked)));
            }},
        {"duplicate of an attachment", GoesOn, [](OVNote& locked, OVNote&) { fileOf(locked).duplicate(); }},
        {"migrateDataToCurrentVersion", PassesOver,
            [](OVNote& locked, OVNote&) { locked.migrateDataToCurrentVersion(); }},
    };
    return operations;
}

TEST_P(LockedNotes, AreNeverChangedByAnOperationWhileTheyAreLocked)
{
    note("# Target");
    OVNote& locked = savedSecret();
    OVNote& clear = note("# Clear\n#work #other [[Target]]");
    save();
    const auto seal = sealOf(locked);
    lock();
    for (const LockedOperation& operation : lockedOperations()) {
        SCOPED_TRACE(operation.name);
        bool hasRaised = false;
        try {
            operation.run(locked, clear);
        } catch (const NSException& exception) {
            hasRaised = true;
            EXPECT_EQ(exception.name(), OVInvalidAccessorException);
            EXPECT_FALSE(context().hasChanges()) << "something was changed before";
        }
        EXPECT_EQ(hasRaised, operation.outcome == Outcome::Raises);
        EXPECT_EQ(sealOf(locked), seal);
        context().rollback();
    }
    save();
    EXPECT_EQ(sealOf(locked), seal);
    unlock();
    EXPECT_EQ(locked.text(), "# Secret\nbody #work [[Target]] [f](a.bin)");
    locked.permanentlyDelete();
    save();
    EXPECT_THAT(all<OVNote>(), SizeIs(2)) << "also that needs no clear text";
}

TEST_P(LockedNotes, CountAsLockedWhenTheirDataIsDamaged)
{
    OVNote& secret = savedSecret();
    std::string bytes(secret.sealedFields()->text());
    bytes.back() = static_cast<char>(bytes.back() ^ 1);
    secret.setSealedFields(NSData::fromText(bytes));
    save();
    EXPECT_TRUE(secret.hasEncryptionAndIsLocked());
    EXPECT_THROW(secret.updateNoteWithText("# New"), NSException);
    EXPECT_THROW(tag("work").renameTagWithTagNamed("play"), NSException);
    EXPECT_EQ(secret.sealedFields(), NSData::fromText(bytes));
    EXPECT_FALSE(context().hasChanges());
}

} // namespace
} // namespace tarn
