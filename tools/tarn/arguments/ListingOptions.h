#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tools/tarn/commandline/CommandLine.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What every list of notes can be told: its order, from which day on, and what stands behind each note.
struct ListingOptions {
    std::optional<std::string> sort;
    bool reverse = false;
    std::optional<std::string> since;
    bool endsWithNUL = false;

    /// Declares --sort, --reverse, --since and -0; the option for the last, which some others exclude.
    CommandOption addTo(const Command& command);
    /// Raises `CommandFailure` (usage) for -0 with --json, where there are no lines.
    void refuseNULInJSON(const Invocation& invocation) const;

    std::vector<NSSortDescriptor> order() const;
    /// The notes changed since the beginning of the day; none without one. Raises `CommandFailure` (usage) for what is
    /// no day.
    std::optional<NSPredicate> predicate() const;
    std::string_view end() const;
};

} // namespace tarn
