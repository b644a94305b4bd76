#include "tarnmodel/platform/imaging/resampling/Turning.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

struct Turn {
    bool isSideways = false; ///< rows become columns
    bool isFromRight = false;
    bool isFromBottom = false;
};

/// Where the upright picture's top left corner is found, and which way its rows run, by number.
constexpr std::array<Turn, 9> kTurns{{
    {},
    {},
    {false, true, false},
    {false, true, true},
    {false, false, true},
    {true, false, false},
    {true, false, true},
    {true, true, true},
    {true, true, false},
}};

Turn turnOf(int orientation)
{
    return orientation >= 1 && orientation <= 8 ? kTurns[static_cast<std::size_t>(orientation)] : Turn();
}

bool isTurned(const Turn& turn)
{
    return turn.isSideways || turn.isFromRight || turn.isFromBottom;
}

/// Copies the pixels of four values each, from where each comes from.
template <typename Picture> void copyTurned(const Picture& stored, const Turn& turn, Picture& upright)
{
    for (std::int32_t y = 0; y < upright.height(); ++y) {
        auto* target = upright.row(y);
        for (std::int32_t x = 0; x < upright.width(); ++x, target += 4) {
            const std::int32_t along = turn.isSideways ? y : x;
            const std::int32_t across = turn.isSideways ? x : y;
            const std::int32_t column = turn.isFromRight ? stored.width() - 1 - along : along;
            const std::int32_t row = turn.isFromBottom ? stored.height() - 1 - across : across;
            std::copy_n(stored.row(row) + std::size_t{4} * static_cast<std::size_t>(column), 4, target);
        }
    }
}

ImageSamples::Extent along(ImageSamples::Extent extent, bool isReversed)
{
    return isReversed ? ImageSamples::Extent{1 - extent.end, 1 - extent.begin} : extent;
}

} // namespace

Bitmap turned(Bitmap stored, int orientation)
{
    const Turn turn = turnOf(orientation);
    if (!isTurned(turn))
        return stored;
    Bitmap upright(turn.isSideways ? stored.height() : stored.width(),
        turn.isSideways ? stored.width() : stored.height(),
        stored.hasAlpha() ? Bitmap::Alpha::Premultiplied : Bitmap::Alpha::None);
    copyTurned(stored, turn, upright);
    return upright;
}

ImageSamples turned(ImageSamples stored, int orientation)
{
    const Turn turn = turnOf(orientation);
    if (!isTurned(turn))
        return stored;
    ImageSamples::Extent horizontal = along(stored.horizontal(), turn.isFromRight);
    ImageSamples::Extent vertical = along(stored.vertical(), turn.isFromBottom);
    std::int32_t width = stored.width();
    std::int32_t height = stored.height();
    if (turn.isSideways) {
        std::swap(horizontal, vertical);
        std::swap(width, height);
    }
    ImageSamples upright(width, height, stored.hasAlpha(), horizontal, vertical);
    copyTurned(stored, turn, upright);
    return upright;
}

} // namespace tarn
