#include "tarnmodel/platform/foundation/text/FoldingPassInternal.h"

#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/FoldingSegmentInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

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

struct Step {
    char32_t codePoint;
    const char* next;
};

/// One step of reading, with short ways for sequences of two and three bytes, which are nearly all.
inline Step step(const char* source, const char* end) noexcept
{
    const auto* const bytes = reinterpret_cast<const unsigned char*>(source);
    const unsigned first = bytes[0];
    if (first < 0x80)
        return {first, source + 1};
    if (end - source >= 3 && isContinuation(bytes[1])) [[likely]] {
        if (first - 0xC2U < 0x1EU)
            return {((first & 0x1FU) << 6U) | (bytes[1] & 0x3FU), source + 2};
        const char32_t codePoint = ((first & 0x0FU) << 12U) | ((bytes[1] & 0x3FU) << 6U) | (bytes[2] & 0x3FU);
        const bool isOverlongOrSurrogate = codePoint < 0x800 || (codePoint >> 11U) == 0x1B;
        if ((first & 0xF0U) == 0xE0 && isContinuation(bytes[2]) && !isOverlongOrSurrogate) [[likely]]
            return {codePoint, source + 3};
    }
    const DecodedCodePoint decoded = decodeCodePoint({source, static_cast<std::size_t>(end - source)}, 0);
    return {decoded.codePoint, source + decoded.length};
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
    if (text.empty())
        return;
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
        if (isAsciiRunAhead())
            foldAsciiRun();
        else if (!foldByTable())
            foldInteraction();
    }
}

/// A single character of ASCII among others is cheaper by the table.
bool Pass::isAsciiRunAhead() const noexcept
{
    return isAscii(text_[position_]) && (position_ + 1 == text_.size() || isAscii(text_[position_ + 1]));
}

void Pass::foldAsciiRun()
{
    const std::size_t count = lowerRun_(text_.data() + position_, text_.size() - position_, result_.end());
    result_.grow(count);
    position_ += count;
    segmentStart_ = position_ - 1;
    segmentResult_ = result_.size() - 1;
    tail_.follow(Table::entry('a')); // all of ASCII is alike here
}

/// Folds as long as every code point can be answered alone; false when the one at `position_` cannot.
/// This is the inner loop for all texts that are not ASCII.
bool Pass::foldByTable()
{
    // Everything stands in local variables: the bytes that are written could alias any member.
    const char* const begin = text_.data();
    const char* const end = begin + text_.size();
    const char* source = begin + position_;
    const char* segmentStart = begin + segmentStart_;
    char* const result = result_.end() - result_.size();
    char* const lastRoom = result + result_.capacity() - kSlack / 2;
    char* written = result_.end();
    char* segmentResult = result + segmentResult_;
    Tail tail = tail_;
    bool isAnswered = true;
    while (source < end && written < lastRoom) {
        if (isAscii(source[0]) && source + 1 < end && isAscii(source[1]))
            break;
        const Step next = step(source, end);
        const Entry entry = Table::entry(next.codePoint);
        if (entry.kind() == EntryKind::Starter) [[likely]] {
            segmentStart = source;
            segmentResult = written;
            tail.follow(entry);
        } else if (entry.kind() == EntryKind::Removed || (entry.isAnyMark() && tail.dropsMarks())) {
            source = next.next;
            continue;
        } else if (entry.kind() == EntryKind::Mark && !entry.combinesBackward() && tail.takes(entry)) {
            tail.add(entry);
        } else {
            isAnswered = false;
            break;
        }
        entry.write(written);
        written += entry.length();
        source = next.next;
    }
    result_.truncate(static_cast<std::size_t>(written - result));
    position_ = static_cast<std::size_t>(source - begin);
    segmentStart_ = static_cast<std::size_t>(segmentStart - begin);
    segmentResult_ = static_cast<std::size_t>(segmentResult - result);
    tail_ = tail;
    return isAnswered;
}

/// Folds one code point whose answer depends on what stands around it.
void Pass::foldInteraction()
{
    const char* const begin = text_.data();
    const Step next = step(begin + position_, begin + text_.size());
    const auto nextPosition = static_cast<std::size_t>(next.next - begin);
    const Entry entry = Table::entry(next.codePoint);
    const bool isMarkThatMayCompose = entry.kind() == EntryKind::Mark && tail_.endsWithStarter() && tail_.takes(entry);
    if (entry.kind() != EntryKind::JoiningStarter && !isMarkThatMayCompose) {
        foldSegmentAround(nextPosition);
        return;
    }
    addComposing(entry, next.codePoint);
    position_ = nextPosition;
}

/// Adds a joining starter, or a mark right after a starter, and composes both when they have a composition.
void Pass::addComposing(Entry entry, char32_t codePoint)
{
    const bool isComposed = tail_.endsWithStarter() && composeWithLast(codePoint);
    if (!isComposed) {
        result_.reserve(Entry::kMostBytes);
        entry.write(result_.end());
        result_.grow(entry.length());
    }
    if (entry.kind() == EntryKind::JoiningStarter)
        tail_.follow(entry);
    else if (!isComposed)
        tail_.add(entry);
    if (isComposed)
        tail_.markComposed();
}

/// Replaces the last code point by its composition with this one, which stands right after it; false without one.
bool Pass::composeWithLast(char32_t codePoint)
{
    const std::string_view written = result_.text().substr(resultStart_);
    if (written.empty())
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
    return true;
}

/// Folds again from the start of the segment, and on to its end at or after `position`.
void Pass::foldSegmentAround(std::size_t position)
{
    position_ = startOfSegmentFrom(position);
    result_.truncate(segmentResult_);
    result_.append(foldSegment(text_.substr(segmentStart_, position_ - segmentStart_)));
    segmentStart_ = position_;
    segmentResult_ = result_.size();
}

std::size_t Pass::startOfSegmentFrom(std::size_t position) const
{
    const char* const begin = text_.data();
    const char* const end = begin + text_.size();
    while (position < text_.size() && !isAscii(text_[position])) {
        const Step next = step(begin + position, end);
        if (Table::startsSegment(next.codePoint))
            break;
        position = static_cast<std::size_t>(next.next - begin);
    }
    return position;
}

} // namespace tarn::folding
