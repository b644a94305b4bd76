#pragma once

#include "tarnmodel/platform/imaging/codecs/ByteSource.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace tarn {

/// Reads a file from its beginning or from anywhere, with a small buffer; nothing of it is held beyond that.
class ImageInput {
public:
    explicit ImageInput(std::unique_ptr<ByteSource> source) : source_(std::move(source)) { }

    std::uint64_t size() const { return source_->size(); }
    std::uint64_t position() const { return position_; }
    /// The next bytes; fewer at the end. How many.
    std::size_t read(std::span<std::uint8_t> target);
    /// Whether all of them are there.
    bool readAll(std::span<std::uint8_t> target) { return read(target) == target.size(); }
    /// Any place; beyond the end there is nothing to read.
    void seek(std::uint64_t position) { position_ = position; }
    /// Forward; stays within what numbers hold.
    void skip(std::uint64_t count);
    /// Past the buffer: for many bytes from one place. Does not move the position.
    bool readAt(std::uint64_t position, std::span<std::uint8_t> target) const
    {
        return source_->readAt(position, target) == target.size();
    }

private:
    std::unique_ptr<ByteSource> source_;
    std::uint64_t position_ = 0;
    std::uint64_t bufferBegin_ = 0;
    std::size_t bufferSize_ = 0;
    std::array<std::uint8_t, 16'384> buffer_;
};

} // namespace tarn
