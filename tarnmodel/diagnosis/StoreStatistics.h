#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarn {

class NSError;
class NSManagedObjectContext;

/// How much there is of what in a store.
struct StoreStatistics {
    std::size_t notes = 0;               ///< all of them
    std::size_t activeNotes = 0;         ///< neither trashed nor archived
    std::size_t archivedNotes = 0;       ///< and not trashed
    std::size_t trashedNotes = 0;        ///< archived or not
    std::size_t pinnedNotes = 0;         ///< wherever they are; so do all that follow
    std::size_t readOnlyNotes = 0;       ///< `OVNote::locked`
    std::size_t encryptedNotes = 0;      ///< whose text is held encrypted
    std::size_t conflictedNotes = 0;     ///< conflicted copies of other notes
    std::size_t untaggedNotes = 0;       ///< that carry no tag
    std::size_t notesWithOpenToDos = 0;  ///< with one that is not done, at least
    std::size_t notesWithSourceCode = 0; ///< with a block of code, at least
    std::size_t tags = 0;                ///< records of tags, those without notes included
    std::size_t files = 0;               ///< attachments, unused ones included
    std::uintmax_t attachmentBytes = 0;  ///< of files on disk; 0 for a store that is not the application's own
    std::uintmax_t fileBytes = 0;        ///< of the store's own file, without attachments; 0 in memory
};

/// Counts without loading records, unsaved changes included. None and an error when the store cannot be read. Call on
/// the context's queue.
std::optional<StoreStatistics> statisticsOfStore(NSManagedObjectContext& context, NSError* error = nullptr);

} // namespace tarn
