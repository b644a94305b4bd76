#pragma once

#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/session/StoreSession.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarn {

/// What becomes of the attachments that count as unused.
struct Pruning {
    std::vector<OVNoteFile*> unused; ///< to be deleted
    JSON files = JSON::array();      ///< these as JSON
    JSON skipped = JSON::array();    ///< the others, each with a `reason`
    std::vector<std::string> lines;  ///< both, for people
    std::uintmax_t bytes = 0;        ///< of those to be deleted
};

/// Looks at each attachment that is marked as unused. One whose note is locked, cannot be read or names it after all is
/// skipped.
Pruning pruningOf(StoreSession& session);
/// Deletes what may be deleted; unsaved.
void deleteUnused(Pruning& pruning);

} // namespace tarn
