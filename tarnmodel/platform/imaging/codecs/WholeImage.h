#pragma once

#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/resampling/RowSink.h"

namespace tarn {

/// Collects the rows of an image, premultiplied.
class WholeImage : public RowSink {
public:
    void begin(const RowLayout& layout) override;
    void addRow(const std::uint8_t* pixels) override;

    /// Leaves nothing behind.
    Bitmap takeBitmap();

private:
    Bitmap bitmap_;
    std::int32_t nextRow_ = 0;
};

} // namespace tarn
