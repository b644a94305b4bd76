#pragma once

#include "tools/tarn/StoreSession.h"

#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// One question about a store and what was found amiss.
struct DoctorCheck {
    std::string name;
    std::size_t found = 0;             ///< how many problems
    std::vector<std::string> problems; ///< the first of them, for people
    bool ok() const noexcept { return found == 0; }
};

/// Looks at a whole store: is the file sound, and do the notes' fields say what their texts say?
///
/// Names of checks: `integrity` (the file), `searchIndex` (whether searches find what the texts hold), `title`,
/// `subtitle`, `todos`, `flags`, `noteTags` (fields of each note against a fresh parse of its text), `links` (titles
/// and places of its wiki links, likewise, and the titles of the notes that they lead to), `tags` (tags with notes
/// against the hashtags of all texts, and the names of all tags). Protected notes are left out where their text is
/// needed.
class Doctor {
public:
    explicit Doctor(StoreSession& session);

    /// Runs all checks. Raises `CommandFailure` when notes cannot be read.
    std::vector<DoctorCheck> examine();
    /// Whether the file itself is damaged; after `examine`.
    bool fileIsDamaged() const noexcept;
    /// Gives tags the names that texts can give them. Returns how many tags were mended; before `repair`, which gives
    /// notes their tags.
    std::size_t repairTags();
    /// Derives the notes whose fields were found wrong anew. Their modification dates stay, and so do all texts.
    /// Returns how many.
    std::size_t repair();
    /// Brings the search index in step with the texts. Returns how many texts were amiss.
    std::size_t repairSearchIndex();

private:
    enum Check : std::size_t {
        Integrity,
        SearchIndex,
        Title,
        Subtitle,
        Todos,
        Flags,
        NoteTags,
        Links,
        Tags,
        CheckCount
    };

    void examineFile();
    void examineSearchIndex();
    void examineNotes();
    void examineNote(const OVNote& note);
    void examineTags();
    void report(Check check, const std::string& problem);

    StoreSession& session_;
    std::array<DoctorCheck, CheckCount> checks_;
    std::set<std::string> keysInTexts_;
    std::vector<std::string> notesToRepair_; ///< unique identifiers
};

} // namespace tarn
