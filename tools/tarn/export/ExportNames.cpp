#include "tools/tarn/export/ExportNames.h"

#include "tarnmodel/files/FileNames.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/import/reading/ExportedFiles.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kIllegal = "<>:\"/\\|?*";
/// Names of devices, with whatever extension.
constexpr std::array<std::string_view, 24> kDevices{"con", "prn", "aux", "nul", "conin$", "conout$", "com1", "com2",
    "com3", "com4", "com5", "com6", "com7", "com8", "com9", "lpt1", "lpt2", "lpt3", "lpt4", "lpt5", "lpt6", "lpt7",
    "lpt8", "lpt9"};
constexpr std::size_t kLongestFileName = 255;
constexpr std::size_t kLongestNoteName = kLongestFileName - kNoteEnding.size();

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

std::string portableNoteName(std::string_view title)
{
    return portableFileName(title, kLongestNoteName);
}

fs::path portableFolder(const fs::path& folder)
{
    fs::path portable;
    for (const fs::path& part : folder) {
        std::string name = portableFileName(part.native(), kLongestFileName - 1);
        if (comparedForm(name) == kAttachmentsFolder)
            name.insert(name.begin(), '_');
        portable /= name;
    }
    return portable;
}

bool ExportNames::take(const fs::path& path)
{
    return taken_.insert(comparedForm(path.native())).second;
}

fs::path ExportNames::folder(const fs::path& wanted)
{
    fs::path folder;
    for (const fs::path& part : wanted) {
        const std::string key = comparedForm((folder / part).native());
        folder = folders_.try_emplace(key, (folder / part).native()).first->second;
        taken_.insert(key);
    }
    return folder;
}

fs::path ExportNames::noteFile(
    const fs::path& folder, const std::string& name, const std::function<bool(const fs::path&)>& isOthers)
{
    const std::string ending(kNoteEnding);
    std::size_t& counter = lastCounter_[comparedForm((folder / name).native())];
    while (true) {
        const std::string number = ++counter == 1 ? std::string() : " " + std::to_string(counter);
        const std::string stem(cutBetweenCharacters(name, kLongestNoteName - number.size()));
        fs::path path = folder / (stem + number + ending);
        if (!isOthers(path) && take(path))
            return path;
    }
}

} // namespace tarn
