#include "tools/tarn/commandline/Progress.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::size_t kBarColumns = 30;
constexpr std::size_t kWorthShowing = 50; ///< shorter work is over before anybody looks

} // namespace

Progress::Progress(std::string_view label, std::size_t total)
    : label_(label), total_(total), visible_(total >= kWorthShowing && ::isatty(STDERR_FILENO) == 1)
{ }

Progress::~Progress()
{
    if (visible_ && drawnPercent_ <= 100)
        std::fputs("\r\x1b[K", stderr);
}

void Progress::advance(std::size_t steps)
{
    done_ = std::min(total_, done_ + steps);
    if (visible_)
        draw();
}

void Progress::draw()
{
    const std::size_t percent = done_ * 100 / total_;
    if (percent == drawnPercent_)
        return;
    drawnPercent_ = percent;
    const std::size_t filled = percent * kBarColumns / 100;
    const std::string bar = std::string(filled, '#') + std::string(kBarColumns - filled, '.');
    std::fprintf(stderr, "\r%s [%s] %zu of %zu", label_.c_str(), bar.c_str(), done_, total_);
    std::fflush(stderr);
}

} // namespace tarn
