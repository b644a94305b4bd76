#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// What the URL of a note names it by. Either may be empty.
struct NoteURL {
    std::string identifier;
    std::string title;
};

/// A URL that opens a note, as `tarn url` writes it, with other parameters or without; none for any other text.
/// Percent escapes are decoded, "+" stands for itself.
std::optional<NoteURL> noteURLFromText(std::string_view text);

} // namespace tarn
