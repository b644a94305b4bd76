#include "tarnmodel/platform/predicate/WholeWordPattern.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <unicode/uchar.h>

#include <utility>

namespace tarn {

namespace {

constexpr std::string_view kBefore = R"((?mis).*?(?:^|[^\w]))";
constexpr std::string_view kAfter = R"((?:[^\w]|$).*)";
constexpr std::string_view kMetacharacters = "*?+[(){}^$|.";

bool isASCIILetterOrDigit(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
}

bool endsWithWordCharacter(std::string_view text)
{
    if (text.empty())
        return false;
    std::size_t start = text.size() - 1;
    while (start > 0 && (static_cast<unsigned char>(text[start]) & 0xC0) == 0x80)
        --start;
    return isWordCharacter(decodeCodePoint(text, start).codePoint);
}

bool beginsWithWordCharacter(std::string_view text)
{
    return !text.empty() && isWordCharacter(decodeCodePoint(text, 0).codePoint);
}

/// The characters that an escaped literal stands for. None when the text is more than that.
std::optional<std::string> unescaped(std::string_view text)
{
    std::string result;
    for (std::size_t offset = 0; offset < text.size(); ++offset) {
        if (text[offset] == '\\') {
            if (++offset == text.size() || isASCIILetterOrDigit(text[offset]))
                return std::nullopt;
        } else if (kMetacharacters.find(text[offset]) != std::string_view::npos) {
            return std::nullopt;
        }
        result += text[offset];
    }
    return result;
}

} // namespace

bool isWordCharacter(char32_t codePoint)
{
    if (codePoint < 0x80)
        return isASCIILetterOrDigit(static_cast<char>(codePoint)) || codePoint == '_';
    const auto character = static_cast<UChar32>(codePoint);
    constexpr std::uint32_t kCategories = U_GC_M_MASK | U_GC_ND_MASK | U_GC_PC_MASK;
    return u_hasBinaryProperty(character, UCHAR_ALPHABETIC) || (U_GET_GC_MASK(character) & kCategories) != 0
        || codePoint == 0x200C || codePoint == 0x200D;
}

WholeWordPattern::WholeWordPattern(std::string literal) : literal_(std::move(literal)) { }

std::optional<WholeWordPattern> WholeWordPattern::recognise(std::string_view pattern, ComparisonOptions options)
{
    if (!options.caseInsensitive || !pattern.starts_with(kBefore) || !pattern.ends_with(kAfter)
        || pattern.size() <= kBefore.size() + kAfter.size())
        return std::nullopt;
    pattern.remove_prefix(kBefore.size());
    pattern.remove_suffix(kAfter.size());
    const std::optional<std::string> word = unescaped(pattern);
    std::string literal = word ? folded(*word, options) : std::string();
    if (literal.empty())
        return std::nullopt;
    return WholeWordPattern(std::move(literal));
}

bool WholeWordPattern::matches(std::string_view foldedText) const
{
    for (std::size_t from = 0;;) {
        const std::size_t found = foldedText.find(literal_, from);
        if (found == std::string_view::npos)
            return false;
        if (!endsWithWordCharacter(foldedText.substr(0, found))
            && !beginsWithWordCharacter(foldedText.substr(found + literal_.size())))
            return true;
        from = found + 1;
    }
}

} // namespace tarn
