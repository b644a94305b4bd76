#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// The questions that an examination puts to a store, in its order.
enum class StoreCheck : std::uint8_t {
    Integrity,   ///< is the file sound?
    SearchIndex, ///< does the index of texts know what the texts hold?
    // Are the fields of each note what a fresh parse of its text gives?
    Title,
    Subtitle,
    ToDos,
    Flags,
    NoteTags,
    Links,      ///< and do they lead to notes of the titles that they name?
    Tags,       ///< are tags what texts name, and can texts name each?
    Protection, ///< is nothing of what is protected stored in clear as well?
    Files,      ///< is what lies on disk what the attachments say, and nothing else?
};
inline constexpr std::size_t kStoreCheckCount = 11;

/// One thing that is amiss in a store.
struct StoreFinding {
    /// What is amiss.
    enum class Kind : std::uint8_t {
        DamagedFile,          ///< `description` says how
        SearchIndexAmiss,     ///< `description` says how
        WrongTitle,           ///< of a note, like all that follow
        WrongSubtitle,        ///<
        WrongOpenToDos,       ///< the number of to-dos that are not done
        WrongDoneToDos,       ///< the number of those that are
        WrongCodeFlag,        ///< whether there is source code
        WrongImagesFlag,      ///< whether there are images
        WrongFilesFlag,       ///< whether there are other attachments
        WrongNoteTags,        ///< the note carries other tags than its text names
        WrongLinks,           ///< links are missing, superfluous or at another place
        WrongLinkTarget,      ///< a link leads to a note of another title
        MissingParentTags,    ///< a protected note carries a tag without every tag above it
        DuplicateTag,         ///< another tag has the same name, compared folded; of a tag, like all that follow
        TagWithoutText,       ///< no text names it, but it has notes
        MissingTag,           ///< a text names it, but no tag with notes is so called; there is no record
        UnusableTagTitle,     ///< no text can give a tag this name
        MissingFile,          ///< bytes that are said to be here are not; of an attachment, as the two that follow
        MisnamedFile,         ///< they have another name than the attachment
        WrongFileSize,        ///< there are more or fewer of them
        FolderWithoutRecord,  ///< of no attachment; `description` says where, as of the two that follow
        UnfinishedFile,       ///< a file that was never written whole
        AbandonedFileChanges, ///< a process died while it was changing files
        // In clear although it is protected; no finding repeats it.
        ClearText,      ///< of a note, beside its encrypted text
        ClearSubtitle,  ///< of a note
        ClearFilename,  ///< of an attachment, like the two that follow
        ClearFields,    ///< its recognised text, extension or size
        ClearFile,      ///< something lies beside its encrypted file; `description` says in which folder
        ClearThumbnail, ///< of no picture that may have one; `description` says where
    };

    Kind kind = Kind::DamagedFile; ///< what is amiss
    /// The note or tag; none where there is none.
    std::optional<NSManagedObjectID> objectID;
    std::optional<std::string> uniqueIdentifier;
    /// Of a note as it is stored; of a tag as `displayTitle` gives it, an unusable one as it is stored; of a missing
    /// tag its name, folded; of an attachment its name as it is stored, of a protected one none that tells something.
    std::optional<std::string> title;
    /// What the note holds, and what its text says: texts, numbers or booleans, of tags the folded names as a sorted
    /// array. Nil for findings that are not of one field.
    Value stored;
    Value derived;
    /// What the store says of its file and index, for people; of files without a record their path.
    std::string description;

    /// The question that it answers.
    StoreCheck check() const noexcept;
    /// Whether `StoreDoctor::repair` makes it good: all but damage of the file and clear names of protected files; a
    /// clear text only where the encrypted one can be read, and says the same.
    bool isRepairable() const noexcept { return kind != Kind::DamagedFile && kind != Kind::ClearFilename; }
};

/// Something on disk that is not as the store has it.
struct FileToMend {
    StoreFinding::Kind kind = StoreFinding::Kind::MissingFile; ///< what is amiss
    std::optional<NSManagedObjectID> objectID;                 ///< of the attachment; none without a record
    std::filesystem::path item;                                ///< where it lies, or should lie
};

/// What one check found: how many findings, and the first of them.
struct StoreCheckResult {
    std::size_t count = 0;              ///< all that there are
    std::vector<StoreFinding> findings; ///< as many as the examination keeps
};

/// What an examination found.
struct StoreExamination {
    std::array<StoreCheckResult, kStoreCheckCount> results; ///< by `StoreCheck`
    std::vector<NSManagedObjectID> notesToDerive;           ///< those whose fields are not what their texts say
    std::vector<FileToMend> filesToMend;                    ///< all that the check of files found on disk
    std::vector<NSManagedObjectID> recordsToClear;          ///< protected ones that store something in clear

    /// What that check found.
    const StoreCheckResult& resultOf(StoreCheck check) const noexcept
    {
        return results[static_cast<std::size_t>(check)];
    }
    /// Whether the file itself is unsound: then nothing is repaired.
    bool fileIsDamaged() const noexcept { return resultOf(StoreCheck::Integrity).count > 0; }
    /// Whether nothing was found.
    bool isSound() const noexcept;
};

/// How much a repair changed.
struct StoreRepairs {
    std::size_t tags = 0;         ///< renamed, united with another or deleted, and protected notes given tags
    std::size_t notes = 0;        ///< derived anew
    std::size_t indexedTexts = 0; ///< that the index of texts did not know, or knew wrongly
    std::size_t files = 0;        ///< renamed, moved away or removed, and attachments told what is there
    std::size_t clearItems = 0;   ///< protected records and thumbnails of such, of which nothing clear is left now
    /// Whether nothing had to be changed.
    bool isEmpty() const noexcept { return tags + notes + indexedTexts + files + clearItems == 0; }
};

} // namespace tarn
