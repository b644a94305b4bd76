#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Texts by which a migration could stumble: characters and Markdown of every kind.
std::vector<std::string> unusualTexts();
/// Texts of everyday notes, with tags, to-dos, code and links to each other; the same ones for the same count.
std::vector<std::string> everydayTexts(std::size_t count);

/// A text of megabytes, which a dump writes as an expression: a beginning, one piece many times, and an end.
struct LongText {
    std::string beginning;
    std::string piece;
    std::size_t count = 0;
    std::string end;

    std::string text() const;
};
std::vector<LongText> longTexts();

} // namespace tarn
