#include "tools/tarn/ExportNames.h"

#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::string_view kIllegal = "<>:\"/\\|?*";
/// Names of devices, with whatever extension.
constexpr std::array<std::string_view, 24> kDevices{"con", "prn", "aux", "nul", "conin$", "conout$", "com1", "com2",
    "com3", "com4", "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7",
    "lpt8", "lpt9"};
/// Room for ".assets" behind the name of a note.
constexpr std::size_t kLongestNoteName = 240;

std::string withoutIllegalCharacters(std::string_view name)
{
    std::string legal;
    const std::string valid = validUTF8(name);
    for (std::size_t at = 0; at < valid.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(valid, at);
        const bool isControl = decoded.codePoint < 0x20 || (decoded.codePoint >= 0x7F && decoded.codePoint < 0xA0);
        const bool isIllegal = isControl || kIllegal.find(valid[at]) != std::string_view::npos;
        legal += isIllegal ? "_" : valid.substr(at, decoded.length);
        at += decoded.length;
    }
    return legal;
}

bool isDevice(std::string_view name)
{
    std::string stem = foldCase(name.substr(0, name.find('.')));
    while (stem.ends_with(' '))
        stem.pop_back();
    // Superscript digits count as digits there.
    for (const auto& [superscript, digit] :
        {std::pair("\u00B9", "1"), std::pair("\u00B2", "2"), std::pair("\u00B3", "3")})
        if (stem.ends_with(superscript))
            stem = stem.substr(0, stem.size() - 2) + digit;
    return std::ranges::find(kDevices, stem) != kDevices.end();
}

std::string comparedForm(std::string_view name)
{
    return canonicallyComposed(foldCase(canonicallyComposed(name)));
}

} // namespace

std::string portableFileName(std::string_view name, std::size_t longest)
{
    std::string portable = withoutIllegalCharacters(name);
    if (portable.empty())
        return "Untitled";
    if (portable.front() == '.')
        portable.front() = '_';
    if (isDevice(portable))
        portable.insert(portable.begin(), '_');
    if (portable.size() > longest) {
        const std::string extension = portable.substr(beginOfExtension(portable));
        portable.resize(portable.size() - extension.size());
        portable = std::string(cutBetweenCharacters(portable, longest - extension.size())) + extension;
    }
    if (portable.back() == '.' || portable.back() == ' ')
        portable.back() = '_';
    return portable;
}

std::string ExportNames::fileName(std::string_view name, std::size_t longest)
{
    const std::string portable = portableFileName(name, longest);
    const std::size_t begin = beginOfExtension(portable);
    return unique(std::string_view(portable).substr(0, begin), std::string_view(portable).substr(begin), longest);
}

std::string ExportNames::noteName(std::string_view title)
{
    return unique(portableFileName(title, kLongestNoteName), "", kLongestNoteName);
}

std::string ExportNames::unique(std::string_view stem, std::string_view extension, std::size_t longest)
{
    std::string name = std::string(stem) + std::string(extension);
    const auto [first, isFirst] = counters_.try_emplace(comparedForm(name), 1);
    if (isFirst)
        return name;
    while (true) {
        const std::string end = " (" + std::to_string(++first->second) + ")" + std::string(extension);
        name = std::string(cutBetweenCharacters(stem, longest - end.size())) + end;
        if (counters_.try_emplace(comparedForm(name), 1).second)
            return name;
    }
}

} // namespace tarn
