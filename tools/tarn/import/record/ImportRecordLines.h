#pragma once

#include "tools/tarn/import/record/ImportRecord.h"

#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// A line of the record of imports.
struct RecordEntry {
    enum class Kind {
        Format,    ///< the first: of which format the lines are
        Source,    ///< what became of a file
        Announced, ///< what is going to become of one
        Moved,     ///< a path that has nothing any more when what was announced is saved
        Confirmed, ///< what was announced is saved
        Withdrawn, ///< what was announced was not saved
    };
    Kind kind = Kind::Format;
    ImportedSource source{}; ///< of a path that has moved the path alone
    bool isOfLaterFormat = false;
};

/// One line of JSON with its line feed. A path that is no UTF-8 stands in hexadecimal digits.
std::string lineOfEntry(const RecordEntry& entry);
/// The next line without its line feed, at most so much of it as an entry can have; false at the end. The stream is at
/// its end behind a line that has no line feed.
bool readRecordLine(std::istream& stream, std::string& line);
/// None for a line that is none.
std::optional<RecordEntry> recordEntryOfLine(std::string_view line);

} // namespace tarn
