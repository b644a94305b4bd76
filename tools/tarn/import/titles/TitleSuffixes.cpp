#include "tools/tarn/import/titles/TitleSuffixes.h"

#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/Normalization.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <unordered_map>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// The last parts of a path, without the ending of the file, on one line.
std::string endOfPath(const fs::path& path, std::size_t parts)
{
    auto part = path.end();
    for (std::size_t i = 0; i < parts && part != path.begin(); ++i)
        --part;
    fs::path end;
    for (; part != path.end(); ++part)
        end /= *part;
    std::string text = canonicallyComposed(validUTF8(end.replace_extension().native()));
    for (const char lineEnd : {'\n', '\r'})
        std::ranges::replace(text, lineEnd, ' ');
    return text;
}

} // namespace

std::vector<std::string> suffixesTellingApart(const std::vector<fs::path>& paths)
{
    std::vector<std::string> suffixes(paths.size());
    std::vector<std::size_t> open(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i)
        open[i] = i;
    for (std::size_t parts = 1; !open.empty(); ++parts) {
        std::unordered_map<std::string, std::size_t> counts;
        for (const fs::path& path : paths)
            ++counts[fold(endOfPath(path, parts))];
        std::erase_if(open, [&](std::size_t i) {
            suffixes[i] = endOfPath(paths[i], parts);
            const bool isWhole = parts >= static_cast<std::size_t>(std::distance(paths[i].begin(), paths[i].end()));
            return isWhole || counts.at(fold(suffixes[i])) == 1;
        });
    }
    return suffixes;
}

} // namespace tarn
