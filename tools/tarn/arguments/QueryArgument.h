#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tools/tarn/commandline/CommandLine.h"

#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A search string given as arguments; several are its words.
struct QueryArgument {
    std::vector<std::string> words;
    bool ocr = false; ///< --ocr: the recognised text of attachments counts too

    std::string text() const;
    /// What the string asks for; none when it asks for nothing. Raises `CommandFailure` (usage) for a string that makes
    /// no predicate.
    std::optional<NSPredicate> predicate() const;
    /// Adds the argument QUERY, and --ocr where it is wanted.
    void addTo(const Command& command);
    void addOCRFlagTo(const Command& command);
};

} // namespace tarn
