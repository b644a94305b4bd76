#include "platform/foundation/FoldingPassInternal.h"

#include "platform/foundation/FoldingInternal.h"
#include "platform/foundation/FoldingSegmentInternal.h"
#include "platform/foundation/UTF.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace tarn::folding {

namespace {

/// Room beyond one byte of result for each byte of text, enough for one code point and the blocks of ASCII.
constexpr std::size_t kSlack = kAsciiSlack + 32;

bool isAscii(char byte) noexcept
{
    return static_cast<signed char>(byte) >= 0;
}

bool isContinuation(unsigned char byte) noexcept
{
    return (byte & 0xC0U) == 0x80U;
}

/// `decodeCodePoint` with short ways for sequences of two and three bytes, which are nearly all.
DecodedCodePoint decode(std::string_view text, std::size_t offset) noexcept
{
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data()) + offset;
    const std::size_t left = text.size() - offset;
    const unsigned first = bytes[0];
    if (left >= 2 && first >= 0xC2 && first < 0xE0 && isContinuation(bytes[1]))
        return {((first & 0x1FU) << 6U) | (bytes[1] & 0x3FU), 2, true};
    if (left >= 3 && first >= 0xE0 && first < 0xF0 && first != 0xED && isContinuation(bytes[1])
        && isContinuation(bytes[2]) && (first != 0xE0 || bytes[1] >= 0xA0))
        return {((first & 0x0FU) << 12U) | ((bytes[1] & 0x3FU) << 6U) | (bytes[2] & 0x3FU), 3, true};
    return decodeCodePoint(text, offset);
}

std::size_t startOfLastCodePoint(std::string_view validText) noexcept
{
    std::size_t start = validText.size() - 1;
    while (start > 0 && isContinuation(static_cast<unsigned char>(validText[start])))
        --start;
    return start;
}

} // namespace

void Buffer::append(std::string_view text)
{
    reserve(text.size());
    std::memcpy(end(), text.data(), text.size());
    grow(text.size());
}

void Buffer::release() noexcept
{
    bytes_.reset();
    size_ = 0;
    capacity_ = 0;
}

void Buffer::reallocate(std::size_t count)
{
    const std::size_t capacity = std::max(size_ + count, capacity_ + capacity_ / 2);
    std::unique_ptr<char[]> bytes(new char[capacity]);
    if (size_ > 0)
        std::memcpy(bytes.get(), bytes_.get(), size_);
    bytes_ = std::move(bytes);
    capacity_ = capacity;
}

Pass::Pass(std::string_view text, Buffer& result) noexcept
    : text_(text), result_(result), lowerRun_(lowerAsciiRun()), resultStart_(result.size()),
      segmentResult_(result.size())
{ }

void Pass::run()
{
    while (position_ < text_.size()) {
        result_.reserve(text_.size() - position_ + kSlack);
        if (isAscii(text_[position_]))
            foldAsciiRun();
        else
            foldCodePoint();
    }
}

void Pass::foldAsciiRun()
{
    const std::size_t count = lowerRun_(text_.data() + position_, text_.size() - position_, result_.end());
    result_.grow(count);
    position_ += count;
    segmentStart_ = position_ - 1;
    segmentResult_ = result_.size() - 1;
    dropsMarks_ = true;
    isComposed_ = false;
    lastClass_ = 0;
}

void Pass::foldCodePoint()
{
    const DecodedCodePoint decoded = decode(text_, position_);
    next_ = position_ + decoded.length;
    const Entry& entry = Table::entry(decoded.codePoint);
    switch (entry.kind) {
    case EntryKind::Starter:
        if (entry.combinesBackward && composeWithLast(decoded.codePoint))
            dropsMarks_ = entry.dropsMarks;
        else
            addStarter(entry);
        break;
    case EntryKind::Mark:
        if (!dropsMarks_)
            addMark(entry, decoded.codePoint);
        break;
    case EntryKind::ComplexMark:
        if (!dropsMarks_)
            foldSegmentAround(next_);
        break;
    case EntryKind::Removed:
        break;
    case EntryKind::Complex:
        foldSegmentAround(next_);
        break;
    }
    position_ = next_;
}

void Pass::appendEntry(const Entry& entry)
{
    std::memcpy(result_.end(), entry.bytes.data(), entry.bytes.size());
    result_.grow(entry.length);
}

void Pass::addStarter(const Entry& entry)
{
    if (!entry.combinesBackward) {
        segmentStart_ = position_;
        segmentResult_ = result_.size();
    }
    appendEntry(entry);
    dropsMarks_ = entry.dropsMarks;
    isComposed_ = entry.isComposed;
    lastClass_ = 0;
}

void Pass::addMark(const Entry& entry, char32_t codePoint)
{
    const bool isOutOfOrder = entry.combiningClass != 0 && entry.combiningClass < lastClass_;
    const bool mayReachOverMarks = entry.combinesBackward && lastClass_ != 0;
    const bool mayTakeApart = entry.combiningClass != 0 && isComposed_;
    if (isOutOfOrder || mayReachOverMarks || mayTakeApart) {
        foldSegmentAround(next_);
        return;
    }
    if (entry.combinesBackward && composeWithLast(codePoint))
        return;
    appendEntry(entry);
    lastClass_ = entry.combiningClass;
    if (lastClass_ == 0)
        isComposed_ = false;
}

/// Replaces the last code point by its composition with this one, which stands right after it; false without one.
bool Pass::composeWithLast(char32_t codePoint)
{
    const std::string_view written = result_.text().substr(resultStart_);
    if (written.empty() || lastClass_ != 0)
        return false;
    const std::size_t start = startOfLastCodePoint(written);
    const char32_t last = decodeCodePoint(written, start).codePoint;
    const UChar32 composite = canonicalComposition().composePair(icuCodePoint(last), icuCodePoint(codePoint));
    if (composite < 0)
        return false;
    std::string bytes;
    appendCodePoint(bytes, static_cast<char32_t>(composite));
    result_.truncate(resultStart_ + start);
    result_.append(bytes);
    isComposed_ = true;
    return true;
}

/// Folds again from the start of the segment, and on to its end at or after `position`.
void Pass::foldSegmentAround(std::size_t position)
{
    next_ = startOfSegmentFrom(position);
    result_.truncate(segmentResult_);
    result_.append(foldSegment(text_.substr(segmentStart_, next_ - segmentStart_)));
    segmentStart_ = next_;
    segmentResult_ = result_.size();
}

std::size_t Pass::startOfSegmentFrom(std::size_t position) const
{
    while (position < text_.size() && !isAscii(text_[position])) {
        const DecodedCodePoint decoded = decode(text_, position);
        if (Table::startsSegment(decoded.codePoint))
            break;
        position += decoded.length;
    }
    return position;
}

} // namespace tarn::folding
