#include "tarnmodel/platform/imaging/ImageLimits.h"

#include <mutex>

namespace tarn {

namespace {

struct SharedLimits {
    std::mutex guard;
    ImageLimits limits;
};

SharedLimits& sharedLimits()
{
    static SharedLimits shared;
    return shared;
}

} // namespace

ImageLimits ImageLimits::current()
{
    SharedLimits& shared = sharedLimits();
    const std::scoped_lock lock(shared.guard);
    return shared.limits;
}

void ImageLimits::setCurrent(const ImageLimits& limits)
{
    SharedLimits& shared = sharedLimits();
    const std::scoped_lock lock(shared.guard);
    shared.limits = limits;
}

} // namespace tarn
