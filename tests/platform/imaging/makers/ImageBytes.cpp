#include "tests/platform/imaging/makers/ImageBytes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>

namespace tarn {

namespace {

std::filesystem::path aFreshFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tarn-imaging-XXXXXX").string();
    return ::mkdtemp(pattern.data());
}

void appendNumber(ImageBytes& bytes, std::uint32_t number, int count, ByteOrder order)
{
    for (int position = 0; position < count; ++position) {
        const int shift = 8 * (order == ByteOrder::Little ? position : count - 1 - position);
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
    }
}

} // namespace

void append(ImageBytes& bytes, std::string_view text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

void append(ImageBytes& bytes, const ImageBytes& more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void appendBigEndian32(ImageBytes& bytes, std::uint32_t number)
{
    appendNumber(bytes, number, 4, ByteOrder::Big);
}

void appendLittleEndian16(ImageBytes& bytes, std::uint32_t number)
{
    appendNumber(bytes, number, 2, ByteOrder::Little);
}

void appendLittleEndian32(ImageBytes& bytes, std::uint32_t number)
{
    appendNumber(bytes, number, 4, ByteOrder::Little);
}

ImageBytes prefix(const ImageBytes& bytes, std::size_t count)
{
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(std::min(count, bytes.size()))};
}

ImageBytes exifWith(int orientation, ByteOrder order)
{
    ImageBytes bytes;
    append(bytes, order == ByteOrder::Little ? "II" : "MM");
    appendNumber(bytes, 42, 2, order);
    appendNumber(bytes, 8, 4, order);
    appendNumber(bytes, 2, 2, order);
    // Tag, type, count, value: an image of 1 pixel's width that is said to be turned.
    for (const auto& [tag, value] : {std::pair(0x0100, 1), {0x0112, orientation}}) {
        appendNumber(bytes, static_cast<std::uint32_t>(tag), 2, order);
        appendNumber(bytes, 3, 2, order);
        appendNumber(bytes, 1, 4, order);
        appendNumber(bytes, static_cast<std::uint32_t>(value), 2, order);
        appendNumber(bytes, 0, 2, order);
    }
    appendNumber(bytes, 0, 4, order);
    return bytes;
}

ImageOnDisk::ImageOnDisk(const ImageBytes& bytes, std::string_view name)
    : folder_(aFreshFolder()), path_(folder_ / name)
{
    std::ofstream file(path_, std::ios::binary);
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

ImageOnDisk::~ImageOnDisk()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

} // namespace tarn
