#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"

#include <cstdint>
#include <vector>

namespace tarn {

class NSManagedObjectContext;

/// What is amiss between attachments and what lies on disk.
struct FileExamination {
    std::vector<StoreFinding> findings;
    std::vector<FileToMend> filesToMend; ///< those of them that a repair looks at again, one by one
};

/// Whether the files of the application's attachments are those of this store: a copy that is looked at elsewhere has
/// none, and must not cost the application its own.
bool hasFilesOfApplication(const NSManagedObjectContext& context);

/// Whether the application's thumbnails are of this store: of others that a program opens there may be some as well.
bool hasThumbsOfApplication(const NSManagedObjectContext& context);

/// Compares folders and records both ways: one listing of each kind's folder, one look into each record's, the records
/// in pages. What a living process has under way is no finding. Resets the context. Raises `DiagnosisFailure`.
FileExamination examineFiles(NSManagedObjectContext& context);

/// Bytes of all attachments on disk.
std::uintmax_t bytesOfAttachments();

} // namespace tarn
