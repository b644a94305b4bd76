#include "tarnmodel/platform/imaging/codecs/ImageDecoder.h"
#include "tarnmodel/platform/imaging/codecs/ImageInput.h"
#include "tarnmodel/platform/imaging/codecs/LimitChecks.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <vector>

namespace tarn {

namespace {

struct CloseGIF {
    void operator()(GifFileType* file) const { DGifCloseFile(file, nullptr); }
};
using GIFFile = std::unique_ptr<GifFileType, CloseGIF>;

int readGIFBytes(GifFileType* file, GifByteType* target, int count)
{
    return static_cast<int>(
        static_cast<ImageInput*>(file->UserData)->read(std::span(target, static_cast<std::size_t>(count))));
}

/// Rows of an interlaced frame, in the order that they are stored.
struct Pass {
    int first;
    int step;
};
constexpr std::array<Pass, 4> kPasses{{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};

/// Everything up to the first frame, whose place is `file.Image` then. False when there is none.
bool findFrame(GifFileType& file, int& transparentIndex)
{
    transparentIndex = NO_TRANSPARENT_COLOR;
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (DGifGetRecordType(&file, &record) == GIF_OK && record == EXTENSION_RECORD_TYPE) {
        int code = 0;
        GifByteType* block = nullptr;
        GraphicsControlBlock control = {};
        if (DGifGetExtension(&file, &code, &block) != GIF_OK)
            return false;
        if (code == GRAPHICS_EXT_FUNC_CODE && block && DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK)
            transparentIndex = control.TransparentColor;
        while (block)
            if (DGifGetExtensionNext(&file, &block) != GIF_OK)
                return false;
    }
    return record == IMAGE_DESC_RECORD_TYPE && DGifGetImageDesc(&file) == GIF_OK;
}

/// The first frame, on the screen that it is shown on.
class Frame {
public:
    Frame(GifFileType& file, int transparentIndex)
        : file_(file), place_(file.Image), indexes_(static_cast<std::size_t>(place_.Width)),
          pixels_(static_cast<std::size_t>(file.SWidth) * 4)
    {
        const ColorMapObject* colours = place_.ColorMap ? place_.ColorMap : file.SColorMap;
        // An index without a colour is black.
        palette_.fill({0, 0, 0, 255});
        for (int index = 0; colours && index < std::min(colours->ColorCount, 256); ++index)
            palette_[static_cast<std::size_t>(index)]
                = {colours->Colors[index].Red, colours->Colors[index].Green, colours->Colors[index].Blue, 255};
        if (transparentIndex >= 0 && transparentIndex < 256)
            palette_[static_cast<std::size_t>(transparentIndex)] = {};
    }

    bool isInterlaced() const { return place_.Interlace; }
    bool coversTheScreen() const
    {
        return place_.Left == 0 && place_.Top == 0 && place_.Width >= file_.SWidth && place_.Height >= file_.SHeight;
    }

    /// False with an error when not even the first of its rows is there.
    bool deliver(RowDelivery& rows, NSError* error)
    {
        for (int y = 0; y < file_.SHeight; ++y) {
            const int row = y - place_.Top;
            if (row >= 0 && row < place_.Height) {
                if (DGifGetLine(&file_, indexes_.data(), place_.Width) != GIF_OK)
                    return row > 0 ? rows.complete(error) : failAsDamaged(error, "its first row is missing");
                setPixels(indexes_);
            } else {
                std::ranges::fill(pixels_, std::uint8_t{0});
            }
            rows.add(pixels_.data());
        }
        return rows.complete(error);
    }

    /// The same of an interlaced one: its rows have to be held until all that stand between them are there.
    bool deliverInterlaced(RowDelivery& rows, NSError* error)
    {
        const auto width = static_cast<std::size_t>(place_.Width);
        std::vector<std::uint8_t> held(width * static_cast<std::size_t>(place_.Height));
        const auto line
            = [&](int row) { return std::span(held).subspan(width * static_cast<std::size_t>(row), width); };
        std::vector<bool> isThere(static_cast<std::size_t>(place_.Height));
        bool isSound = true;
        for (const Pass& pass : kPasses)
            for (int row = pass.first; row < place_.Height && isSound; row += pass.step) {
                isSound = DGifGetLine(&file_, line(row).data(), place_.Width) == GIF_OK;
                isThere[static_cast<std::size_t>(row)] = isSound;
            }
        if (place_.Height > 0 && !isThere[0])
            return failAsDamaged(error, "its first row is missing");
        int latest = 0;
        for (int y = 0; y < file_.SHeight; ++y) {
            const int row = y - place_.Top;
            std::ranges::fill(pixels_, std::uint8_t{0});
            if (row >= 0 && row < place_.Height) {
                // Where a file ends early, the row above stands for one that is missing.
                latest = isThere[static_cast<std::size_t>(row)] ? row : latest;
                setPixels(line(latest));
            }
            rows.add(pixels_.data());
        }
        return rows.complete(error);
    }

private:
    /// A row of the screen of a row of the frame, which may reach beyond it.
    void setPixels(std::span<const std::uint8_t> indexes)
    {
        std::ranges::fill(pixels_, std::uint8_t{0});
        const int left = std::min(place_.Left, file_.SWidth);
        const auto visible = static_cast<std::size_t>(std::min(file_.SWidth - left, place_.Width));
        std::uint8_t* pixel = pixels_.data() + 4 * static_cast<std::size_t>(left);
        for (const std::uint8_t index : indexes.first(visible))
            pixel = std::ranges::copy(palette_[index], pixel).out;
    }

    GifFileType& file_;
    GifImageDesc place_;
    std::array<std::array<std::uint8_t, 4>, 256> palette_;
    std::vector<std::uint8_t> indexes_;
    std::vector<std::uint8_t> pixels_;
};

} // namespace

bool decodeGIF(ImageInput& input, const DecodeRequest& request, RowDelivery& rows, NSError* error)
{
    input.seek(0);
    int failure = 0;
    const GIFFile file(DGifOpen(&input, readGIFBytes, &failure));
    if (!file || file->SWidth <= 0 || file->SHeight <= 0)
        return failAsDamaged(error, "it has no screen");
    if (!isWithinLimits(file->SWidth, file->SHeight, request.limits, error))
        return false;
    int transparentIndex = NO_TRANSPARENT_COLOR;
    if (!findFrame(*file, transparentIndex))
        return failAsDamaged(error, "it has no frame");
    const GifImageDesc& place = file->Image;
    if (!isWithinLimits(place.Width, place.Height, request.limits, error))
        return false;
    const std::int64_t pixels = std::int64_t{place.Width} * place.Height;
    if (place.Interlace && !mayBeHeld(pixels, place.Width, place.Height, request.limits, error))
        return false;
    Frame frame(*file, transparentIndex);
    rows.begin(
        {file->SWidth, file->SHeight, 1, 1, transparentIndex != NO_TRANSPARENT_COLOR || !frame.coversTheScreen()});
    return frame.isInterlaced() ? frame.deliverInterlaced(rows, error) : frame.deliver(rows, error);
}

} // namespace tarn
