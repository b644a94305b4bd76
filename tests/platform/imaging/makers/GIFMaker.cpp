#include "tests/platform/imaging/makers/GIFMaker.h"

#include <gif_lib.h>

#include <array>
#include <string_view>

namespace tarn {

namespace {

constexpr std::string_view kLetters = "rgbwk.";

int collectGIF(GifFileType* file, const GifByteType* bytes, int count)
{
    auto& target = *static_cast<ImageBytes*>(file->UserData);
    target.insert(target.end(), bytes, bytes + count);
    return count;
}

void writeFrame(GifFileType* file, const GIFFrame& frame)
{
    const GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 10, static_cast<int>(kLetters.find('.'))};
    std::array<GifByteType, 4> block{};
    EGifGCBToExtension(&control, block.data());
    bool isTransparent = false;
    for (const std::string& row : frame.rows)
        isTransparent = isTransparent || row.find('.') != std::string::npos;
    if (isTransparent)
        EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(block.size()), block.data());
    const auto height = static_cast<int>(frame.rows.size());
    EGifPutImageDesc(
        file, frame.left, frame.top, static_cast<int>(frame.rows[0].size()), height, frame.isInterlaced, nullptr);
    const auto put = [&](int y) {
        std::vector<GifPixelType> line;
        for (const char letter : frame.rows[static_cast<std::size_t>(y)])
            line.push_back(static_cast<GifPixelType>(kLetters.find(letter)));
        EGifPutLine(file, line.data(), static_cast<int>(line.size()));
    };
    if (!frame.isInterlaced)
        for (int y = 0; y < height; ++y)
            put(y);
    else
        for (const auto& [first, step] : {std::pair(0, 8), {4, 8}, {2, 4}, {1, 2}})
            for (int y = first; y < height; y += step)
                put(y);
}

} // namespace

ImageBytes gifOf(int width, int height, const std::vector<GIFFrame>& frames)
{
    ImageBytes bytes;
    int failure = 0;
    GifFileType* file = EGifOpen(&bytes, collectGIF, &failure);
    EGifSetGifVersion(file, true);
    const std::array<GifColorType, 8> colours{
        {{255, 0, 0}, {0, 255, 0}, {0, 0, 255}, {255, 255, 255}, {0, 0, 0}, {1, 2, 3}, {0, 0, 0}, {0, 0, 0}}};
    ColorMapObject* map = GifMakeMapObject(static_cast<int>(colours.size()), colours.data());
    EGifPutScreenDesc(file, width, height, 3, 0, map);
    for (const GIFFrame& frame : frames)
        writeFrame(file, frame);
    EGifCloseFile(file, &failure);
    GifFreeMapObject(map);
    return bytes;
}

} // namespace tarn
