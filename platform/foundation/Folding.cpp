#include "platform/foundation/Folding.h"

#include "platform/foundation/FoldingInternal.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

/// To be raised with every change of the rules.
constexpr int kRules = 1;

} // namespace

int foldingVersion() noexcept
{
    std::array<std::uint8_t, U_MAX_VERSION_LENGTH> unicode{};
    u_getUnicodeVersion(unicode.data());
    return kRules * 0x10000 + unicode[0] * 0x100 + unicode[1];
}

std::string fold(std::string_view text)
{
    return foldByReference(text);
}

void appendFolded(std::string& result, std::string_view text)
{
    result += foldByReference(text);
}

std::string foldCase(std::string_view text)
{
    return folding::foldByICU(text, {.caseInsensitive = true, .diacriticInsensitive = false});
}

std::string foldDiacritics(std::string_view text)
{
    return folding::foldByICU(text, {.caseInsensitive = false, .diacriticInsensitive = true});
}

std::string folded(std::string_view text, ComparisonOptions options)
{
    if (options.caseInsensitive)
        return options.diacriticInsensitive ? fold(text) : foldCase(text);
    return options.diacriticInsensitive ? foldDiacritics(text) : std::string(text);
}

bool foldedContains(std::string_view text, std::string_view foldedNeedle)
{
    return !foldedNeedle.empty() && fold(text).find(foldedNeedle) != std::string::npos;
}

} // namespace tarn
