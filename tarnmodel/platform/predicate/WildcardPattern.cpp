#include "tarnmodel/platform/predicate/WildcardPattern.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

namespace tarn {

namespace {

constexpr std::size_t kNoMatch = std::string_view::npos;

} // namespace

WildcardPattern::WildcardPattern(std::string_view pattern) : parts_(1)
{
    for (std::size_t offset = 0; offset < pattern.size(); ++offset) {
        char byte = pattern[offset];
        const bool escaped = byte == '\\' && offset + 1 < pattern.size();
        if (escaped)
            byte = pattern[++offset];
        if (byte == '*' && !escaped) {
            parts_.emplace_back();
            continue;
        }
        parts_.back().text += byte;
        parts_.back().anyCodePoint.push_back(byte == '?' && !escaped);
    }
}

bool WildcardPattern::matches(std::string_view text) const
{
    std::size_t offset = lengthOfMatch(parts_.front(), text, 0);
    if (offset == kNoMatch)
        return false;
    if (parts_.size() == 1)
        return offset == text.size();
    // The first place that a middle part fits is as good as any: a star follows.
    for (std::size_t index = 1; index + 1 < parts_.size(); ++index) {
        std::size_t length = kNoMatch;
        while ((length = lengthOfMatch(parts_[index], text, offset)) == kNoMatch) {
            if (offset == text.size())
                return false;
            offset += decodeCodePoint(text, offset).length;
        }
        offset += length;
    }
    for (;; offset += decodeCodePoint(text, offset).length) {
        const std::size_t length = lengthOfMatch(parts_.back(), text, offset);
        if (length != kNoMatch && offset + length == text.size())
            return true;
        if (offset == text.size())
            return false;
    }
}

std::size_t WildcardPattern::lengthOfMatch(const Part& part, std::string_view text, std::size_t offset)
{
    std::size_t position = offset;
    for (std::size_t index = 0; index < part.text.size(); ++index) {
        if (position == text.size())
            return kNoMatch;
        if (part.anyCodePoint[index])
            position += decodeCodePoint(text, position).length;
        else if (text[position++] != part.text[index])
            return kNoMatch;
    }
    return position - offset;
}

} // namespace tarn
