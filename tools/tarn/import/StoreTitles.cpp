#include "tools/tarn/import/StoreTitles.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>

namespace tarn {

namespace {

/// Titles of one question to the store.
constexpr std::size_t kTitlesAtOnce = 500;

} // namespace

void StoreTitles::lookUp(std::span<const std::string> titles)
{
    std::vector<std::string> unknown;
    for (const std::string& title : titles) {
        if (!title.empty() && notes_.try_emplace(fold(title)).second)
            unknown.push_back(title);
    }
    if (!session_ || !session_->exists())
        return;
    for (std::size_t from = 0; from < unknown.size(); from += kTitlesAtOnce) {
        const std::size_t end = std::min(from + kTitlesAtOnce, unknown.size());
        const std::vector<std::string> some(
            unknown.begin() + static_cast<std::ptrdiff_t>(from), unknown.begin() + static_cast<std::ptrdiff_t>(end));
        for (const OVNote* note : OVNote::notesWithTitlesOrUUIDs(some, session_->context())) {
            const auto known = note->isTrashed() ? notes_.end() : notes_.find(fold(note->title().value_or("")));
            if (known != notes_.end() && note->uniqueIdentifier())
                known->second.push_back(*note->uniqueIdentifier());
        }
    }
}

const std::vector<std::string>& StoreTitles::notesOf(const std::string& title)
{
    lookUp(std::span(&title, 1));
    return notes_[fold(title)];
}

std::optional<std::string> StoreTitles::onlyNoteOf(const std::string& title)
{
    const std::vector<std::string>& notes = notesOf(title);
    return notes.size() == 1 ? std::optional(notes.front()) : std::nullopt;
}

} // namespace tarn
