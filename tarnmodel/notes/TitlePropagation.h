#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/notes/TitleLineGuard.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Carries a changed title into the notes that link to it, and on from their changed titles along chains of links.
///
/// One run lives as long as the outermost change of a title that caused it. It keeps its own stack, so that a chain may
/// be as long as it likes. A run belongs to the thread that began it.
class TitlePropagation {
public:
    /// The title of the note was `oldTitle` and is `newTitle` now; none: never had one. Returns when all has followed.
    static void titleChanged(
        OVNote& note, std::optional<std::string_view> newTitle, std::optional<std::string_view> oldTitle);
    /// Whether the note is being rewritten for a title on its way: what it comes to was asked for when that began.
    static bool isRewriting(const OVNote& note) { return current_ && current_->beingRewritten_ == &note; }
    /// The text of the note, or which links lead to it, changed: whatever run is on its way looks again.
    static void forget(const OVNote& note);

    TitlePropagation(const TitlePropagation&) = delete;
    TitlePropagation& operator=(const TitlePropagation&) = delete;

private:
    /// One changed title, and what of it is still to be done.
    struct Change {
        OVNote* note;
        std::optional<std::string> newTitle;
        std::optional<std::string> oldTitle;
        std::vector<OVNote*> sources; ///< notes that link to it
        std::size_t next = 0;         ///< of the sources
    };

    TitlePropagation();
    ~TitlePropagation();
    void add(OVNote& note, std::optional<std::string> newTitle, std::optional<std::string> oldTitle);
    void run();
    void rewrite(OVNote& source, const Change& change);
    static void attachWaitingLinks(OVNote& note, const std::string& title);

    static thread_local TitlePropagation* current_;
    TitlePropagation* outer_;
    std::deque<Change> changes_; ///< a stack; its members stay where they are
    const OVNote* beingRewritten_ = nullptr;
    TitleLineGuard guard_;
};

} // namespace tarn
