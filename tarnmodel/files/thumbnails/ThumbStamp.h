#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

class NSError;

/// A time as a file system keeps it: since the beginning of 1970.
struct FileTime {
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0; ///< 0 to 999,999,999

    friend bool operator==(const FileTime&, const FileTime&) = default;
};

/// What a file system says of a file without reading it. A change of the file shows in it, unless it comes within one
/// tick of the file system's clock after the change before.
struct SourceState {
    std::int64_t size = 0; ///< in bytes
    FileTime modified;     ///< may be set by anyone, also back to what it was
    FileTime changed;      ///< is set by the system alone, when content, times, names or permissions change
    std::uint64_t inode = 0;

    friend bool operator==(const SourceState&, const SourceState&) = default;
};

/// The state of a picture's file; none when there is no regular file.
std::optional<SourceState> stateOfSource(const std::filesystem::path& file);

/// Whether the file's times lie so far before a moment that a change after that moment shows in them: more than 3
/// seconds. The clocks of file systems tick every 2 seconds at the slowest.
bool isSettled(const SourceState& state, NSDate moment);

/// Of which picture a thumbnail was made. A line of text in the thumbnail's file.
struct ThumbStamp {
    std::string state;  ///< that of the picture's file
    std::string sha1;   ///< of its content; empty when the state is enough to tell
    std::string look{}; ///< what was done that the thumbnail's name does not tell: without blanks, empty for nothing

    /// The stamp of a picture that is in this state at this moment; reads the file when its state is not settled. None
    /// when it cannot be read.
    static std::optional<ThumbStamp> stampOfSource(
        const std::filesystem::path& file, const SourceState& state, NSDate moment);
    /// Reads what `text` gives; none for any other text.
    static std::optional<ThumbStamp> stampFromText(std::string_view text);

    /// Whether the picture's file is in the state that it had.
    bool isOf(const SourceState& source) const;

    /// "size 5 modified 17.000000001 changed 18.000000000 inode 7", followed by " look " and that where there is one,
    /// and by " sha1 " and 40 digits where there is a sum.
    std::string text() const;
};

/// A stamp, and when the picture was in its state: last seen so, when it comes from a thumbnail's file.
struct SeenStamp {
    ThumbStamp stamp;
    NSDate seen;
};

/// Calls `read`, which reads the picture's file and tells whether it could, until the file is in the same state before
/// and after: a picture whose beginning is of one state and whose end is of another is none. None when `read` fails, or
/// with an error when the file goes or keeps changing.
std::optional<SeenStamp> readInOneState(
    const std::filesystem::path& file, const std::function<bool()>& read, NSError* error);

} // namespace tarn
