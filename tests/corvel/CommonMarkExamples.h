#pragma once

#include <string>
#include <vector>

namespace tarn {

struct CommonMarkExample {
    int number = 0;
    std::string section;
    std::string markdown;
    std::string html;
};

/// The examples of the CommonMark text, fetched into the build folder when they are not there yet; empty when they
/// cannot be had.
const std::vector<CommonMarkExample>& commonMarkExamples();

} // namespace tarn
