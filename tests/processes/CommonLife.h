#pragma once

#include <span>
#include <string_view>

namespace tarn {

// What processes do that share one store for some seconds. Each takes the arguments FILE NAME SECONDS, and tells on
// standard output, line by line, what it did:
//
//     made UID SERIAL         a note of its own that is there now, with this number in its text
//     deleted UID
//     added SHARED LINE       a line that it added to a note which all of them write to
//     saved TOKEN ENTRIES     a save, its name in the change log, and how many records it names
//     queued COUNT            records of which a save of the extension tells the application
//     news COUNT              records of which the application has heard so
//     waited MICROSECONDS     the longest time that a save took (or a fetch, of readers)
//     read COUNT              notes that were fetched and found whole

/// Makes, edits and deletes notes of its own, adds lines to the shared ones, and merges what an extension has saved.
void liveAsApplication(std::span<const std::string_view> arguments);
/// The same without merging; its saves are news for the application.
void liveAsExtension(std::span<const std::string_view> arguments);
/// Counts, fetches and searches.
void liveAsReader(std::span<const std::string_view> arguments);

/// How many notes all of them write to: "Shared 0", "Shared 1", ...
inline constexpr int sharedNotes = 3;

} // namespace tarn
