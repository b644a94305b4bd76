#pragma once

#include "tarnmodel/model/OVNote.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn {

/// Whether the note's first line, where a title is, holds a link to this title. False for a protected note.
bool titleLineLinksTo(const OVNote& note, std::string_view title);

/// Says whether the title line of a note may follow the new title of a note that it links to.
///
/// A changed title line is a changed title, which is to be followed by those that link to it, and so on; when such a
/// walk comes to a note twice, the title line stays as it is. What a walk found is kept, so that a chain of title
/// links is walked once and not once from each of its notes; who changes a note's text or links tells `forget`.
class TitleLineGuard {
public:
    /// Whether links to `title` in the note's title line may be rewritten. An encrypted note is never read.
    bool allows(OVNote& note, std::string_view title);
    /// The text of the note, or which links lead to it, changed.
    void forget(const OVNote& note);

    /// The bare walk: adds all notes that it comes to.
    static bool walk(OVNote& note, std::string_view title, OVNote::VisitedNotes& visited);

private:
    /// A note that a walk came to and that did not end it.
    struct Passed {
        const OVNote* note;
        const OVNote* cameFrom; ///< null for the first one
        std::string title;      ///< that was looked for in its title line
    };
    static bool walk(OVNote& note, std::string_view title, OVNote::VisitedNotes& visited, std::vector<Passed>* passed);
    void remember(std::vector<Passed> passed);

    std::unordered_map<const OVNote*, Passed> passed_;
};

} // namespace tarn
