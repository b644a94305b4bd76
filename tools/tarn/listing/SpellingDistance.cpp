#include "tools/tarn/listing/SpellingDistance.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <vector>

namespace tarn {

namespace {

constexpr std::size_t kMostSlips = 3;

} // namespace

std::u32string spellingOf(std::string_view text)
{
    const std::string folded = fold(text);
    std::u32string spelling;
    for (std::size_t offset = 0; offset < folded.size();) {
        const DecodedCodePoint next = decodeCodePoint(folded, offset);
        spelling += next.codePoint;
        offset += next.length;
    }
    return spelling;
}

std::size_t spellingDistance(std::u32string_view left, std::u32string_view right, std::size_t limit)
{
    const std::size_t difference = std::max(left.size(), right.size()) - std::min(left.size(), right.size());
    if (difference > limit)
        return limit + 1;
    // The row of the letter before the last, that of the last, and that of this one.
    std::array<std::vector<std::size_t>, 3> rows;
    rows.fill(std::vector<std::size_t>(right.size() + 1));
    std::iota(rows[1].begin(), rows[1].end(), 0);
    for (std::size_t row = 1; row <= left.size(); ++row) {
        std::vector<std::size_t>& now = rows[2];
        now[0] = row;
        for (std::size_t column = 1; column <= right.size(); ++column) {
            const bool isSame = left[row - 1] == right[column - 1];
            now[column] = std::min({rows[1][column] + 1, now[column - 1] + 1, rows[1][column - 1] + (isSame ? 0 : 1)});
            const bool isSwapped
                = row > 1 && column > 1 && left[row - 1] == right[column - 2] && left[row - 2] == right[column - 1];
            if (isSwapped)
                now[column] = std::min(now[column], rows[0][column - 2] + 1);
        }
        if (*std::ranges::min_element(now) > limit)
            return limit + 1;
        std::ranges::rotate(rows, rows.begin() + 1);
    }
    return std::min(rows[1].back(), limit + 1);
}

std::size_t slipsIn(std::size_t length) noexcept
{
    return std::min(length / 3, kMostSlips);
}

} // namespace tarn
