#pragma once

#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tests/platform/imaging/TestPictures.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tarn {

/// Writes a JPEG whose rows are of this size, and which is to be looked at as EXIF's `orientation` says.
inline void writePicture(const std::filesystem::path& file, int width, int height, int orientation = 1)
{
    ASSERT_TRUE(writeJPEG(aPhotograph(width, height), file));
    std::string bytes;
    {
        std::ifstream written(file, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(written), {});
    }
    // One directory with one entry: the orientation, a short.
    std::string exif("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0?\0\0\0\0\0\0\0", 32);
    exif[24] = static_cast<char>(orientation);
    const std::string segment = std::string("\xFF\xE1\0", 3) + static_cast<char>(exif.size() + 2) + exif;
    bytes.insert(2, segment);
    std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}

} // namespace tarn
