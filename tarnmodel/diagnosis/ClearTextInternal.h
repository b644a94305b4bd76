#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectContext;
class OVNote;
class OVNoteFile;

/// What a protected note stores in clear beside what is encrypted. Nothing of one that has nothing encrypted: what is
/// clear there is all that there is.
std::vector<StoreFinding> clearTextsOfNote(const OVNote& note);
/// The same of all attachments, those in memory and in the file alike. Resets the context. Raises `DiagnosisFailure`.
std::vector<StoreFinding> clearTextsOfFiles(NSManagedObjectContext& context);
/// The name of an attachment, to be told: none where it is protected and yet stored with a name of its own.
std::optional<std::string> tellableNameOf(const OVNoteFile& record);

/// Takes the clear fields from these records where they are still there and can be missed; how many records that were.
/// Unsaved. Raises `DiagnosisFailure`.
std::size_t clearRecords(std::span<const NSManagedObjectID> records, NSManagedObjectContext& context);

} // namespace tarn
