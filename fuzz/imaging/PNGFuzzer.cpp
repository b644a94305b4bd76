// PNG files of any bytes.

#include "fuzz/imaging/FuzzImage.h"

using namespace tarn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzzImage({data, size}, ImageFormat::PNG, readPNGHeader);
    return 0;
}
