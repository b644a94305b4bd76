#include "tools/tarn/import/links/LinkComparison.h"

#include "tarnmodel/corvel/CVKLink.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace tarn {

namespace {

/// The lines of a range with their line ends; none where something else stands in them.
std::optional<CVKRange> wholeLines(std::string_view text, CVKRange range)
{
    const std::size_t lineEnd = range.location == 0 ? std::string_view::npos : text.rfind('\n', range.location - 1);
    const std::size_t begin = lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
    const std::size_t end = std::min(text.find('\n', range.end()), text.size() - 1) + 1;
    const bool isAlone = trimmed(text.substr(begin, range.location - begin)).empty()
        && trimmed(text.substr(range.end(), end - range.end())).empty();
    return isAlone ? std::optional(CVKRange{begin, end - begin}) : std::nullopt;
}

} // namespace

std::vector<LinkTarget> linkTargetsOf(const CVKAST& document)
{
    std::vector<LinkTarget> links;
    for (CVKLink& link : document.links())
        links.push_back({link.form == CVKLinkForm::Wiki, std::move(link.decodedDestination)});
    return links;
}

bool saysTheSame(const CVKAST& before, const CVKAST& after)
{
    const CVKTextSummary& old = before.textSummary();
    const CVKTextSummary& now = after.textSummary();
    return old.title == now.title && old.tags == now.tags && old.todoCount == now.todoCount
        && old.doneCount == now.doneCount && old.codeBlockCount == now.codeBlockCount;
}

std::string withoutUnusedDefinitions(const CVKAST& before, const CVKAST& after)
{
    const std::vector<CVKLinkDefinition> old = before.linkDefinitions();
    const std::vector<CVKLinkDefinition> now = after.linkDefinitions();
    if (old.size() != now.size())
        return after.markdown();
    std::vector<CVKTextEdit> edits;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const auto lines
            = old[i].uses > 0 && now[i].uses == 0 ? wholeLines(after.markdown(), now[i].range) : std::nullopt;
        if (lines)
            edits.push_back({*lines, ""});
    }
    if (edits.empty())
        return after.markdown();
    const std::vector<LinkTarget> expected = linkTargetsOf(after);
    return after
        .applyEdits(edits,
            [&](const CVKAST& shorter, const std::vector<bool>&) {
                return saysTheSame(after, shorter) && linkTargetsOf(shorter) == expected;
            })
        .document.markdown();
}

} // namespace tarn
