#pragma once

#include <cctype>
#include <string>
#include <string_view>

namespace tarn {

/// The sentence of a case file as a part of a test's name: "a word, twice" is AWordTwice.
inline std::string nameOfCase(std::string_view sentence)
{
    std::string name;
    bool beginsWord = true;
    for (const char c : sentence) {
        const auto byte = static_cast<unsigned char>(c);
        const bool isPartOfWord = std::isalnum(byte) != 0;
        if (isPartOfWord)
            name += beginsWord ? static_cast<char>(std::toupper(byte)) : c;
        beginsWord = !isPartOfWord;
    }
    return name;
}

} // namespace tarn
