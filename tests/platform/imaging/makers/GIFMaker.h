#pragma once

#include "tests/platform/imaging/makers/ImageBytes.h"

#include <string>
#include <vector>

namespace tarn {

/// One frame: letters as pixels, rows one below the other. 'r', 'g', 'b', 'w' and 'k' are colours, '.' is transparent.
struct GIFFrame {
    int left = 0;
    int top = 0;
    std::vector<std::string> rows;
    bool isInterlaced = false;
};

ImageBytes gifOf(int width, int height, const std::vector<GIFFrame>& frames);

} // namespace tarn
