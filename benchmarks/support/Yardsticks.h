#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tarn {

/// What the machine itself takes, measured in the same run and the same folder as what is compared with it. Seconds.
struct Yardsticks {
    double write = 0;  ///< write() and fsync of the texts into a plain file
    double read = 0;   ///< one SQLite pass over the text table that only takes lengths
    double commit = 0; ///< create, write, fsync, unlink: the floor of a rollback-journal commit
    double point = 0;  ///< primary-key look-up, prepared
};

double secondsToWrite(const std::filesystem::path& folder, const std::vector<std::string>& texts);
double secondsToCommit(const std::filesystem::path& folder);
/// Over the store file of a closed (or idle) store with the tables of notes.
double secondsToReadTexts(const std::filesystem::path& database);
double secondsForPointLookup(const std::filesystem::path& database);

/// Heap that this process has in use, in bytes.
std::size_t allocatedMemory();

/// Runs `work` several times and gives the median of the seconds that it took.
template <typename Work> double medianSeconds(int times, Work&& work);

} // namespace tarn

#include <algorithm>
#include <chrono>

template <typename Work> double tarn::medianSeconds(int times, Work&& work)
{
    std::vector<double> seconds;
    for (int run = 0; run < times; ++run) {
        const auto begin = std::chrono::steady_clock::now();
        work(run);
        seconds.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
    std::nth_element(seconds.begin(), seconds.begin() + times / 2, seconds.end());
    return seconds[static_cast<std::size_t>(times) / 2];
}
