#pragma once

#include <optional>
#include <string_view>

namespace tarn {

/// The words of a search string: what stands between single blanks (U+0020), empty words included. Borrows the string.
///
///     for (WordSplitter words(string); const auto word = words.next();)
class WordSplitter {
public:
    explicit WordSplitter(std::string_view string) : rest_(string) { }
    /// None behind the last word; an empty string has one empty word.
    std::optional<std::string_view> next();

private:
    std::optional<std::string_view> rest_;
};

/// Whether there is a tab or a space separator in the text.
bool containsBlank(std::string_view text);

} // namespace tarn
