#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tarn {

/// A bar on standard error while long work runs; nothing when that is no terminal.
///
///     Progress progress("Importing", files.size());
///     for (...) progress.advance();
class Progress {
public:
    Progress(std::string_view label, std::size_t total);
    /// Takes the bar away.
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void advance(std::size_t steps = 1);

private:
    void draw();

    std::string label_;
    std::size_t total_;
    std::size_t done_ = 0;
    std::size_t drawnPercent_ = 101; ///< nothing is drawn yet
    bool visible_;
};

} // namespace tarn
