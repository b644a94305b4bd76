// eventfd is Linux's own; another system gets a file like this one over a pipe.

#include "tarnmodel/platform/foundation/events/WakeDescriptorInternal.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace tarn {

WakeDescriptor::~WakeDescriptor()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

int WakeDescriptor::open()
{
    if (descriptor_ < 0)
        descriptor_ = ::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return descriptor_;
}

void WakeDescriptor::makeReadable() const noexcept
{
    const std::uint64_t one = 1;
    // It fails only when the counter is at its end, and then it is readable.
    if (descriptor_ >= 0 && ::write(descriptor_, &one, sizeof one) < 0)
        return;
}

void WakeDescriptor::makeUnreadable() const noexcept
{
    std::uint64_t count = 0;
    // It fails only when the counter is zero, and then it is unreadable.
    if (descriptor_ >= 0 && ::read(descriptor_, &count, sizeof count) < 0)
        return;
}

} // namespace tarn
