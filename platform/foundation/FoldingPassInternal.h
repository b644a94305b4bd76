#pragma once

#include "platform/foundation/AsciiCaseInternal.h"
#include "platform/foundation/FoldingTableInternal.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace tarn::folding {

/// Bytes that grow without being cleared first.
class Buffer {
public:
    std::string_view text() const noexcept { return {bytes_.get(), size_}; }
    std::size_t size() const noexcept { return size_; }
    std::size_t capacity() const noexcept { return capacity_; }
    char* end() noexcept { return bytes_.get() + size_; }

    void clear() noexcept { size_ = 0; }
    void truncate(std::size_t size) noexcept { size_ = size; }
    /// Counts bytes that were written at `end()`.
    void grow(std::size_t count) noexcept { size_ += count; }
    /// Makes room for `count` bytes at `end()`.
    void reserve(std::size_t count)
    {
        if (capacity_ - size_ < count) [[unlikely]]
            reallocate(count);
    }
    void append(std::string_view text);
    void release() noexcept;

private:
    void reallocate(std::size_t count);

    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

/// One walk over one text that appends its folded form to a buffer: ASCII by blocks, other code points by the table,
/// and only what really interacts (marks out of order, compositions at a distance) by `foldSegment`.
class Pass {
public:
    Pass(std::string_view text, Buffer& result) noexcept;
    void run();

private:
    void foldAsciiRun();
    void foldCodePoint();
    void addStarter(const Entry& entry);
    void addMark(const Entry& entry, char32_t codePoint);
    void appendEntry(const Entry& entry);
    bool composeWithLast(char32_t codePoint);
    void foldSegmentAround(std::size_t position);
    std::size_t startOfSegmentFrom(std::size_t position) const;

    const std::string_view text_;
    Buffer& result_;
    const LowerAsciiRun lowerRun_;
    const std::size_t resultStart_;
    std::size_t position_ = 0; ///< in the text: what is folded so far
    std::size_t next_ = 0;     ///< the end of the code point at hand

    // Where the last segment starts, in the text and in the result: from there on it can be folded again.
    std::size_t segmentStart_ = 0;
    std::size_t segmentResult_;

    // What the last code points were.
    bool dropsMarks_ = false;
    bool isComposed_ = false;
    std::uint8_t lastClass_ = 0; ///< of the last mark that was kept; 0 after a starter
};

} // namespace tarn::folding
