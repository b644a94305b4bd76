#pragma once

#include "tools/tarn/listing/SearchHints.h"
#include "tools/tarn/session/StoreSession.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tarn {

/// The titles and the tags of notes that are nearest to the words of a search that found nothing, as hints; none where
/// nothing is near. `among`: the notes that the search looked at.
///
/// A title is near when one of its words is a few slips of the keyboard away from a word of the search. Comparing with
/// every title would take longer than the search did, so only those are looked at that hold a half of such a word (a
/// third of a long one): who slipped once has left one of them as it was, and the store finds them by its index of
/// titles. Of very many the latest modified count.
std::vector<SearchHint> hintsOfNearestNames(
    std::string_view searchString, const std::optional<NSPredicate>& among, StoreSession& session);

} // namespace tarn
