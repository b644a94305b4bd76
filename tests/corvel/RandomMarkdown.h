#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// Texts made of pieces that mean something to the parser, the same for the same seed.
class RandomMarkdown {
public:
    RandomMarkdown(std::uint64_t seed, std::span<const std::string_view> pieces) : random_(seed), pieces_(pieces) { }

    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    /// Up to `most` pieces.
    std::string text(std::size_t most)
    {
        std::string result;
        for (std::size_t count = below(most + 1); count > 0; --count)
            result += pieces_[below(pieces_.size())];
        return result;
    }
    std::string bytes(std::size_t most)
    {
        std::string result;
        for (std::size_t count = below(most + 1); count > 0; --count)
            result += static_cast<char>(random_());
        return result;
    }

private:
    std::mt19937_64 random_;
    std::span<const std::string_view> pieces_;
};

/// How many random texts a test tries: `usual`, times TARN_FUZZ_FACTOR of the environment.
std::size_t fuzzCount(std::size_t usual);

/// Pieces of CommonMark, and those that the hashtags and wiki links add.
std::span<const std::string_view> commonMarkPieces();
std::span<const std::string_view> notePieces();

} // namespace tarn
