#pragma once

#include "tarnmodel/platform/foundation/text/AsciiCaseInternal.h"
#include "tarnmodel/platform/foundation/text/FoldingTableInternal.h"

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

/// What the code points at the end of the result mean for the next one: the entry of the last starter, with the class
/// of the last mark that was kept after it. One word, so that the inner loop keeps it in a register.
class Tail {
public:
    void follow(Entry starter) noexcept { entry_ = starter; }
    void markComposed() noexcept { entry_.setIsComposed(true); }

    /// Marks are dropped here.
    bool dropsMarks() const noexcept { return entry_.dropsMarks(); }
    /// The last code point is a starter, or a mark like one.
    bool endsWithStarter() const noexcept { return entry_.combiningClass() == 0; }
    /// Whether a mark that is kept can simply be added: nothing is put in order or taken apart by it.
    bool takes(Entry mark) const noexcept
    {
        return mark.combiningClass() == 0 || (mark.combiningClass() >= entry_.combiningClass() && !entry_.isComposed());
    }
    void add(Entry mark) noexcept
    {
        entry_.setCombiningClass(mark.combiningClass());
        entry_.setIsComposed(entry_.isComposed() && mark.combiningClass() != 0);
    }

private:
    Entry entry_; // without a base marks stay, and none came yet
};

/// One walk over one text that appends its folded form to a buffer: ASCII by blocks, other code points by the table,
/// and only what really interacts (marks out of order, compositions at a distance) by `foldSegment`.
class Pass {
public:
    Pass(std::string_view text, Buffer& result) noexcept;
    void run();

private:
    bool isAsciiRunAhead() const noexcept;
    void foldAsciiRun();
    bool foldByTable();
    void foldInteraction();
    void addComposing(Entry entry, char32_t codePoint);
    bool composeWithLast(char32_t codePoint);
    void foldSegmentAround(std::size_t position);
    std::size_t startOfSegmentFrom(std::size_t position) const;

    const std::string_view text_;
    Buffer& result_;
    const LowerAsciiRun lowerRun_;
    const std::size_t resultStart_;
    std::size_t position_ = 0; ///< in the text: what is folded so far
    Tail tail_;

    // Where the last segment starts, in the text and in the result: from there on it can be folded again.
    std::size_t segmentStart_ = 0;
    std::size_t segmentResult_;
};

} // namespace tarn::folding
