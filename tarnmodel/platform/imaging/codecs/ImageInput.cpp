#include "tarnmodel/platform/imaging/codecs/ImageInput.h"

#include <algorithm>
#include <limits>

namespace tarn {

std::size_t ImageInput::read(std::span<std::uint8_t> target)
{
    std::size_t count = 0;
    while (count < target.size()) {
        if (position_ < bufferBegin_ || position_ - bufferBegin_ >= bufferSize_) {
            bufferBegin_ = position_;
            bufferSize_ = source_->readAt(position_, buffer_);
            if (bufferSize_ == 0)
                break;
        }
        const auto at = static_cast<std::size_t>(position_ - bufferBegin_);
        const std::size_t step = std::min(bufferSize_ - at, target.size() - count);
        std::copy_n(buffer_.begin() + static_cast<std::ptrdiff_t>(at), step,
            target.begin() + static_cast<std::ptrdiff_t>(count));
        position_ += step;
        count += step;
    }
    return count;
}

void ImageInput::skip(std::uint64_t count)
{
    position_ += std::min(count, std::numeric_limits<std::uint64_t>::max() - position_);
}

} // namespace tarn
