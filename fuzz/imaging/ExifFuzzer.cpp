// EXIF data of any bytes, and headers of files of any format.

#include "fuzz/imaging/FuzzImage.h"
#include "tarnmodel/platform/imaging/codecs/ExifOrientation.h"

using namespace tarn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::span bytes(data, size);
    const int orientation = exifOrientation(bytes);
    require(orientation >= 1 && orientation <= 8);
    ImageInput input(sourceOfBytes(bytes));
    const auto header = readHeader(input, nullptr);
    require(!header || formatOf(input) == header->format);
    return 0;
}
