#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tools/tarn/import/record/ImportRecord.h"
#include "tools/tarn/import/record/TextFingerprint.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tarn {

class StoreSession;

/// Asks the store what became of an import that did not come to its end, and takes hashes of what is protected by now
/// out of the record.
void settleRecord(ImportRecord& record, StoreSession& session);
/// Takes such hashes out of a record; whether there were any.
bool forgetProtectedTexts(ImportRecord& record, StoreSession& session);

/// Whether a note still has the text that an import gave it; never of one that is protected.
bool isAsImported(
    const OVNote& note, const std::optional<TextFingerprint>& imported, const TextFingerprint::LeadsTo& leadsTo);

/// Why an import leaves a note as it is whatever its file says; "" where it may be changed. Null: it was deleted.
std::string obstacleOf(const OVNote* note);

/// What tells one state of a file from another without a hash of its bytes; "" where it cannot be looked at.
std::string stampOfFile(const std::filesystem::path& path);

} // namespace tarn
