#pragma once

#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/model/_OVNote.h"
#include "tarnmodel/platform/coredata/ValueLength.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSFileWrapper;
class CVKAST;
class CVKWikiLink;
class MigrationRecord;
class NSPredicate;
class OVNoteGenericFile;
class OVNoteImage;
class TolVectorClock;
struct CVKTextSummary;
struct FileURL;
struct MergeConflict;
struct NSSortDescriptor;

/// One note: a Markdown text and everything that is derived from it.
///
/// Edit it only through its text operations; the derived fields follow. Confined to its context's queue.
///
///     OVNote* note = OVNote::noteWithText("# Trip\n\n#rome", context);
///     note->appendNoteWithText("- [ ] tickets");
class OVNote : public _OVNote, public OVEncryptableNote {
public:
    using _OVNote::_OVNote;

    class TagsCache;    ///< in "OVNoteCaches.h"
    class NotesCache;   ///< likewise
    class VisitedNotes; ///< likewise

    /// A new note without text, with an identifier; made and modified at one and the same time.
    static OVNote* insertInManagedObjectContext(NSManagedObjectContext& context);

    // Fetching (tarnmodel/notes/OVNote+Fetching.cpp) -----------------------------------------------------------------
    // Lists are in no order but the store's unless it is named; the standard order is pinned notes first, then the
    // latest modified. Titles are compared without case and diacritics. A failed fetch is logged and gives an empty
    // list or null.

    /// The standard order.
    static const std::vector<NSSortDescriptor>& standardSortDescriptors();
    /// The notes that the predicate finds; all without one.
    static std::vector<OVNote*> notesInManagedObjectContext(
        NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate);
    /// Trashed and archived notes included.
    static std::vector<OVNote*> allNotesInManagedObjectContext(NSManagedObjectContext& context);
    /// Archived notes included.
    static std::vector<OVNote*> allUntrashedNotesInManagedObjectContext(NSManagedObjectContext& context);
    /// The notes in the trash.
    static std::vector<OVNote*> allTrashedNotesInManagedObjectContext(NSManagedObjectContext& context);
    /// Those that are not in the trash as well.
    static std::vector<OVNote*> allArchivedNotesInManagedObjectContext(NSManagedObjectContext& context);
    /// The members of all groups of conflicted versions.
    static std::vector<OVNote*> allConflictedNotesInManagedObjectContext(NSManagedObjectContext& context);
    /// The protected notes.
    static std::vector<OVNote*> allEncryptedNotesInManagedObjectContext(NSManagedObjectContext& context);
    /// At most 15 notes for a small screen, in the standard order: neither trashed, archived nor protected (attachments
    /// included), with a title or a subtitle.
    static std::vector<OVNote*> watchNotesInManagedObjectContext(NSManagedObjectContext& context);

    /// The notes that carry any of the tags.
    static std::vector<OVNote*> notesForTags(const std::vector<OVNoteTag*>& tags, NSManagedObjectContext& context);
    /// The notes with one of these identifiers; in the given order where descriptors are given.
    static std::vector<OVNote*> notesWithUniqueIdentifiers(
        const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context);
    static std::vector<OVNote*> notesWithUUIDs(const std::vector<std::string>& uniqueIdentifiers,
        const std::vector<NSSortDescriptor>& sortDescritors, NSManagedObjectContext& context);
    /// The note with this identifier, or null. The last of several, should there be more.
    static OVNote* noteWithUniqueIdentifier(std::string_view uniqueIdentifier, NSManagedObjectContext& context);
    /// Deletes every note with one of these identifiers; nothing happens when the fetch fails.
    static void deleteNotesWithUniqueIdentifiers(
        const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context);

    /// In the standard order.
    static std::vector<OVNote*> notesWithTitle(std::string_view title, NSManagedObjectContext& context);
    /// The first of them, or null.
    static OVNote* noteWithTitle(std::string_view title, NSManagedObjectContext& context);
    /// The notes with this title or this identifier, in the standard order.
    static std::vector<OVNote*> notesWithTitleOrUUID(std::string_view titleOrUUID, NSManagedObjectContext& context);
    /// The first of them, or null.
    static OVNote* noteWithTitleOrUUID(std::string_view titleOrUUID, NSManagedObjectContext& context);
    /// The notes with any of these as title or identifier, in the standard order.
    static std::vector<OVNote*> notesWithTitlesOrUUIDs(
        const std::vector<std::string>& titlesOrUUIDs, NSManagedObjectContext& context);
    /// The same in the given order.
    static std::vector<OVNote*> notesWithTitlesOrUUIDs(const std::vector<std::string>& titlesOrUUIDs,
        const std::vector<NSSortDescriptor>& sortDescritors, NSManagedObjectContext& context);
    /// The first in the standard order that is not in the trash, or null.
    static OVNote* untrashedNoteWithTitle(std::string_view title, NSManagedObjectContext& context);
    /// The same for a title or an identifier.
    static OVNote* untrashedNoteWithTitleOrUUID(std::string_view titleOrUUID, NSManagedObjectContext& context);

    // Text (tarnmodel/notes/OVNote+Parsing.cpp) ----------------------------------------------------------------------
    // All raise "Invalid accessor" while the note is locked, and `NSInvalidArgumentException` for a text of more than
    // `maximumTextLength`; then nothing has changed. Ill-formed UTF-8 becomes U+FFFD.

    /// Bytes of the longest text that a note can hold.
    static constexpr std::size_t maximumTextLength = maximumValueLength;

    /// A new note with this text.
    static OVNote* noteWithText(std::string_view text, NSManagedObjectContext& context);
    /// Replaces the text and derives title, subtitle, tags, to-do counts, flags, links and the use of attachments from
    /// it; a changed title is carried into the notes that link to it. Counts the edit in the vector clock and names
    /// this device. The modification date becomes now unless `updateModificationDate` is false.
    void updateNoteWithText(std::string_view text);
    void updateNoteWithText(std::string_view text, bool updateModificationDate);
    /// What both come to.
    void _updateNoteWithText(std::string_view text, bool updateModificationDate);
    /// The same with a text that is parsed already.
    void updateNoteWithAST(const CVKAST& document);
    void updateNoteWithAST(const CVKAST& document, bool updateModificationDate);
    /// Writes what a text came to into the record, and into its attachments. Counts stop at 32,767; a protected note
    /// gets no subtitle. When tags, or the notes that links lead to, cannot be looked up (which is logged) the note
    /// keeps those that it has.
    void updateNoteFromTextSummary(const CVKTextSummary& summary);
    /// Marks attachments used or unused by the links of the text, and numbers the used ones by their first link.
    void updateFilesFromTextSummary(const CVKTextSummary& summary);

    // When others save too (tarnmodel/notes/OVNote+Merging.cpp) ------------------------------------------------------
    /// A merge decided what the text is: what follows from it follows from the text that won. The clock does not
    /// advance. Where the losing side had only renamed, added or removed a tag or renamed a linked note, that is done
    /// again to the text that won.
    void awakeFromMerge(RecordMerge& merge) override;
    /// Others saved notes and tags that this note's unsaved text, title or tags may have to do with.
    void deriveFromOthers() override;
    /// Keeps a text that a merge dropped as a conflicted copy of the note, or as a note of its own where the note is
    /// gone; a protected one as it is stored. Null where no text was lost, or none that a person wrote. The copy is
    /// unsaved.
    static OVNote* keepLosingText(const MergeConflict& conflict);

    // Text editing (tarnmodel/notes/OVNote+TextEditing.cpp) ----------------------------------------------------------
    // They end in `updateNoteWithText`.

    /// Puts the text below a first line that begins with "# ", else in front.
    void prependNoteWithText(std::string_view addition);
    /// Puts the text at the end, but above a last line of this note's tags. Nothing happens for an empty text. Unless
    /// `newLine` is false it stands on lines of its own, with a blank line before the tags.
    void appendNoteWithText(std::string_view addition);
    void appendNoteWithText(std::string_view addition, bool newLine);
    /// Replaces all but a heading of level 1 to 3 on the first of several lines; without one the new text begins with a
    /// line feed.
    void replaceNoteWithText(std::string_view replacement);

    // Copies (tarnmodel/notes/OVNote+Copying.cpp) --------------------------------------------------------------------
    /// A new note of the texts of all, a blank line between them, with their attachments; the notes go to the trash. It
    /// is pinned when all were. Where one is protected, it is so with the password of the first such note. Null, and
    /// nothing changes, for fewer than two notes, and with an error when it cannot be protected. Raises "Invalid
    /// accessor", and nothing has changed, when one of them is locked, or protected without a manager.
    static OVNote* mergeNotes(const std::vector<OVNote*>& notes, NSError* error = nullptr);
    /// A new note like this one, with copies of its attachments and an identifier of its own, which also takes the
    /// place of this note's identifier in the text. It counts as made when it was modified.
    OVNote* duplicate() const;

    // Guarded text (tarnmodel/notes/OVNote+Encryption.cpp) -----------------------------------------------------------
    /// The text; through the encryption manager of the context when the note is protected and there is one. None when
    /// there is no text or the manager fails. Raises "Invalid accessor" while the note is locked.
    std::optional<std::string> text() const override;
    /// Stores the text likewise, without deriving anything from it. Raises likewise, and for a text that is too long.
    void setText(std::optional<std::string_view> text) override;
    std::optional<std::string> storedText() const override;
    /// Stores the text as it is, unguarded, and tells observers.
    void updatePrimitiveText(std::optional<std::string_view> text) override;
    /// Whether the note, or one of its attachments, is protected. False when the attachments cannot be counted.
    bool hasEncryption() const override;
    bool hasEncryptionAndIsLocked() const override;
    OVEncryptionCoreManagerProtocol* encryptionCoreManager() const override;
    NSManagedObject& encryptableRecord() noexcept override { return *this; }
    const NSManagedObject& encryptableRecord() const noexcept override { return *this; }
    OVEncryptionState encryptionState() const override;
    void setEncryptionState(const OVEncryptionState& state) override;
    bool isEncrypted() const override { return encryptedValue(); }
    std::optional<NSData> sealedFields() const override { return encryptedData(); }
    void setSealedFields(const NSData& sealed) override { setEncryptedData(sealed); }
    std::optional<std::string> encryptionIdentifier() const override { return encryptionUniqueIdentifier(); }
    std::vector<OVEncryptableNoteFile*> encryptableFiles() const override;
    bool prepareToAddEncryption(NSError* error) override;
    void didAddEncryption() override;
    void didRemoveEncryption() override;
    /// Takes the subtitle from the text, unless the note or one of its attachments is protected.
    void deriveSubtitle();
    /// Whether any of them, or of their attachments, is protected.
    static bool anyNoteHasEncryption(const std::vector<OVNote*>& notes);
    /// False for a protected note where attachments cannot be protected.
    bool allowsAttachments() const;
    /// What a note hands over when it is shared: its text. Raises "Invalid accessor" while the note is locked.
    std::vector<std::string> activityItems() const;

    // State (tarnmodel/notes/OVNote+State.cpp) -----------------------------------------------------------------------
    // Whoever sets a state sets its companion date to now, also when nothing changes.

    /// Whether it has an identifier that stays.
    bool isPersistent() const;
    /// A new random identifier.
    void updateUniqueIdentifier();
    /// Puts the note on top of the note list.
    void pin();
    /// Takes it from there.
    void unpin();
    /// Whether it stands on top of the note list.
    bool isPinned() const;
    /// Puts the note on top of the tag's list.
    void pinInTag(OVNoteTag& tag);
    /// Takes it from there.
    void unpinInTag(OVNoteTag& tag);
    /// False for null.
    bool isPinnedInTag(const OVNoteTag* tag) const;
    /// Takes it from the top of the note list and of every tag's list.
    void unpinEverywhere();
    /// Makes the note refuse to be edited by people; the text operations do not look at it.
    void makeReadOnly();
    /// Takes that back.
    void makeEditable();
    /// Whether the note is read-only.
    bool isReadOnly() const;
    /// Always false: for kinds of notes that are never edited.
    virtual bool isStatic() const;
    /// Neither trashed, archived, static nor read-only.
    bool isEditable() const;
    /// How much of 100 is done, rounded down; 0 without to-do items.
    unsigned completedToDoPercentage() const;
    /// Leaving for the trash or the archive takes the note out of its conflict; archiving takes it out of the trash.
    void trash();
    void restoreFromTrash();
    bool isTrashed() const;
    void archive();
    void unarchive();
    bool isArchived() const;
    // A real change sets the modification date of every tag of the note.
    void setTrashed(std::optional<bool> trashed) override;
    void setArchived(std::optional<bool> archived) override;
    /// Deletes the note and its attachments from its context.
    void permanentlyDelete();
    void prepareForDeletion() override;
    /// The notes that this one links to, and those that link to it; each once.
    std::vector<OVNote*> linkedNotes() const;
    /// The notes that link to this one, each once.
    std::vector<OVNote*> linkedByNotes() const;

    // Wiki links (tarnmodel/notes/OVNote+WikiLinks.cpp) --------------------------------------------------------------
    /// Brings the records of this note's links in step with the links of its text. A record stays where its link stands
    /// at the same offset with the same title and its target still has that title; each other link is looked up anew:
    /// of several notes with its title an untrashed one counts first, then the one made first. A link that finds no
    /// note waits for one. When the notes cannot be looked up (which is logged) all records stay as they are.
    void setLinkedNotesFromWikiLinks(std::span<const CVKWikiLink> wikiLinks);
    /// Rewrites links to the old title in the notes that link here, without touching their modification dates, and so
    /// on where that changes a title; then links that wait for the new title, or lead to a trashed note, lead here. An
    /// empty title stands for the identifier. Encrypted notes are never rewritten. None: had no title.
    void updateLinkedByNoteForNewTitle(
        std::optional<std::string_view> newTitle, std::optional<std::string_view> oldTitle);
    /// Whether links to `title` in this note's first line may be rewritten: false when following its own title from
    /// there would come to a note twice. Adds the notes that it comes to to `parentLinkedBy`; null: none yet.
    bool canReplaceWikiLinkWithTitle(std::string_view title, VisitedNotes* parentLinkedBy = nullptr);

    // Links from outside (tarnmodel/notes/OVNote+XCallbackURL.cpp) ---------------------------------------------------
    // Percent-encoded URLs of the application.
    /// Opens the note by its identifier.
    std::string openNoteXCallbackURLString() const;
    /// Opens a note of this title.
    std::string openNoteWithTitleXCallbackURLString() const;
    /// Opens the note in a window of its own.
    std::string openNoteInNewWindowXCallbackURLString() const;
    /// Opens the note at a heading.
    std::string openNoteXCallbackURLStringWithHeader(std::string_view header) const;
    /// The link with a heading added to it.
    static std::string appendHeader(std::string_view header, std::string_view noteLink);

    // Conflicted copies (tarnmodel/notes/OVNote+Conflict.cpp) --------------------------------------------------------
    // Versions of one note that are kept side by side form a group. A member holds the identifier of the note that
    // the group is rooted at, a slash, and the time at which it was stamped: seconds since 1970 with six decimals.

    /// The members of a group, the latest stamped first. A failed fetch is logged and gives an empty list.
    static std::vector<OVNote*> conflictedNotesForUniqueIdentifier(
        std::string_view uniqueIdentifier, NSManagedObjectContext& context);
    /// The members of this note's group.
    std::vector<OVNote*> conflictedNotes() const;
    /// Whether it is a member of a group.
    bool hasConflictedNotes() const;
    /// Whether it is the note that its group is rooted at.
    bool isConflictRoot() const;
    /// The identifier that its group is rooted at; its own outside of a group.
    std::string conflictedRootUUID() const;
    /// A stamp for a member of this group. Each is later than the one before.
    std::string conflictedUUIDFromRootUUID(std::string_view rootUUID) const;
    /// Joins the group of `note`, which is made when there is none, as its latest member, and leaves the one that it
    /// was in. Nothing happens for the note itself.
    void markAsConflictedFromNote(OVNote& note);
    /// Leaves its group: one that is left alone is no group any more, of several the latest stamped becomes the root.
    void unmarkAsConflicted();

    // Vector clock (tarnmodel/sync/OVNote+VectorClock.cpp) -----------------------------------------------------------
    /// The counts of edits; an empty clock when there are none yet, none when the stored bytes are damaged.
    std::optional<TolVectorClock> noteVectorClock() const;
    /// Counts one edit of this device; a damaged clock is replaced. Nothing changes when the device is unknown.
    void updateNoteVectorClock();
    /// Takes the higher count of both for every device; a damaged clock is replaced.
    void mergeVectorClockWithClock(const TolVectorClock& clock);

    // Tags (tarnmodel/tags/OVNote+Tags.cpp) --------------------------------------------------------------------------
    /// The titles of its tags, in the order of the set.
    std::vector<std::string> tagsStrings() const;
    /// Gives the note exactly the tags of these names, which are made where they are missing; others stay as records.
    /// When they cannot be looked up (which is logged) the note keeps the tags that it has.
    void setTagsFromStrings(std::span<const std::string> names);
    /// Its tag of this name, compared folded; null when it has none.
    OVNoteTag* tagForName(std::string_view name) const;
    /// Whether it has a tag of this name, compared folded.
    bool hasTag(std::string_view name) const;

    // Attachments (tarnmodel/files/OVNote+Attachments.cpp) -----------------------------------------------------------
    /// Whether the text refers to any.
    bool hasAttachments() const;
    /// Those that the text refers to, in the order of its links.
    std::vector<OVNoteFile*> orderedFiles() const;
    /// The pictures among them, in the same order.
    std::vector<OVNoteImage*> orderedImages() const;
    /// Those of them that are no pictures, in the same order.
    std::vector<OVNoteFile*> orderedFilesWithoutImages() const;
    /// The attachment of this name, compared as `OVNoteFile::filenameIsEqualTo` does; a used one before an unused one.
    /// Null when there is none.
    OVNoteFile* attachmentIncludingUnusedForFilename(std::string_view filename) const;
    /// The first used one of them.
    OVNoteFile* attachmentForFilename(std::string_view filename) const;
    /// The attachment made from a file, or the unused one that holds the same. Null when it cannot be attached.
    OVNoteFile* addAttachmentFromFileURL(const FileURL& url);
    /// The same of what an application hands over.
    OVNoteFile* addAttachmentFromFileWrapper(const NSFileWrapper& fileWrapper);
    /// Protects an attachment of a protected note with the note's password, when that is at hand. Null: does nothing.
    void encryptFileIfNeeded(OVNoteFile* file);

    // Migration (tarnmodel/notes/OVNote+Migration.cpp) ---------------------------------------------------------------
    // What a step to a version of the model does to each note besides what its mapping says. The record belongs to that
    // version of the model, which may be an older one than the library's.

    /// Called for each note that a step to version 2 has made. Does nothing so far.
    static void migrateManagedObjectToVersion2(MigrationRecord& record);
    /// Called for each note that a step to version 3 has made and tied to others. Does nothing so far.
    static void migrateManagedObjectToVersion3(MigrationRecord& record);
    /// Does both to this note, the one of version 2 first, as for one that came from a device with an older version.
    /// A protected note is left alone.
    void migrateDataToCurrentVersion();

    // Beside the record, never stored -------------------------------------------------------------------------------
    /// A slot for callers; the model does not use it.
    std::int64_t searchIndex() const noexcept { return searchIndex_; }
    void setSearchIndex(std::int64_t searchIndex) noexcept { searchIndex_ = searchIndex; }
    /// What an operation on many notes lends each of them, so that names are looked up once: see `OVNoteCacheLoan`.
    /// Borrowed; null for none.
    TagsCache* tagsCache() const noexcept { return tagsCache_; }
    void setTagsCache(TagsCache* cache) noexcept { tagsCache_ = cache; }
    NotesCache* notesCache() const noexcept { return notesCache_; }
    void setNotesCache(NotesCache* cache) noexcept { notesCache_ = cache; }

private:
    static void checkTextLength(std::string_view text);
    void updateModificationDateOfTags();
    void leaveConflict();
    void setConflictUUID(std::optional<std::string_view> conflictUUID);
    bool protectAsFirstOf(const std::vector<OVNote*>& notes, NSError* error);
    bool takeAttachmentsOf(const OVNote& note, std::string& text, NSError* error);
    bool takeAttachment(const OVNoteFile& file, std::string& text, NSError* error);
    void takeBack();
    void takeDocument(const CVKAST& document, bool updateModificationDate);
    void copyInto(OVNote& copy) const;
    void deriveFromTextSummary(const CVKTextSummary& summary, const std::optional<std::string>& oldTitle);
    bool leadsWhereLinksSay(std::span<const CVKWikiLink> wikiLinks) const;
    void takeAttachmentsAsIn(const OVNote& note);
    void takeNewAttachmentsOf(const CVKAST& document);
    void takeProtectedValues(const MergeConflict& conflict);
    bool protectWhereAtHand(OVPassword* password);

    std::int64_t searchIndex_ = 0;
    TagsCache* tagsCache_ = nullptr;
    NotesCache* notesCache_ = nullptr;
};

} // namespace tarn
