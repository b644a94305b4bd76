#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <functional>
#include <string>

namespace tarn {

/// The processor time of the quickest of several runs: the machine may be busy with other work.
inline double processorSeconds(const std::function<void(const std::string&)>& work, const std::string& text, int runs)
{
    double best = 1e9;
    for (int run = 0; run < runs; ++run) {
        const std::clock_t begin = std::clock();
        work(text);
        best = std::min(best, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    return best;
}

/// For work that does nothing that can be counted. Four times the text takes four times as long if time is linear,
/// sixteen times if it is quadratic; both are measured in one run, so that the machine does not matter.
inline void expectLinear(const std::function<void(const std::string&)>& work,
    const std::function<std::string(std::size_t)>& textOfBytes, std::size_t bytes)
{
    constexpr double kMostGrowth = 9;
    constexpr double kTooShortToMeasure = 0.0005;
    const std::string small = textOfBytes(bytes);
    const std::string large = textOfBytes(bytes * 4);
    double growth = 0;
    for (int attempt = 0; attempt < 4; ++attempt) {
        const double before = std::max(processorSeconds(work, small, 3), kTooShortToMeasure);
        const double after = processorSeconds(work, large, 2);
        growth = after / before;
        if (growth < kMostGrowth)
            return;
    }
    ADD_FAILURE() << "four times the text took " << growth << " times as long";
}

} // namespace tarn
