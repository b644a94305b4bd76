#pragma once

#include <compare>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// What is to be known of one note of the play, whose title is "Note <number>".
struct PlayedNote {
    int revision = 0;
    bool isProtected = false;
    std::string filename; ///< of its one attachment; empty for none
    int fileRevision = 0;

    friend auto operator<=>(const PlayedNote&, const PlayedNote&) = default;
};

/// All notes by their numbers.
using PlayedStore = std::map<int, PlayedNote>;

/// The text of a note: its markers are found nowhere else.
std::string textOfPlayedNote(int number, const PlayedNote& note);
/// The bytes of its attachment.
std::string bytesOfPlayedFile(int number, const PlayedNote& note);
/// What every text of this note, and every attachment of it, begins its markers with.
std::string markerOfPlayedNote(int number);
/// One line a note.
std::string describe(const PlayedStore& store);

/// round ROOT PASSWORDS WORK: opens the store as an application does and does that work in one save. PASSWORDS
/// are separated by commas; the first that opens is used. WORK is a word and numbers: "make", "show", "protect 1",
/// "unprotect 1", "edit 1 REVISION", "duplicate 1 NEW-NUMBER", "attach 1 REVISION", "rename 1 REVISION",
/// "bytes 1 REVISION", "delete 1", "change NEW-PASSWORD", "rotate".
void playRoundOfProtection(std::span<const std::string_view> arguments);

} // namespace tarn
