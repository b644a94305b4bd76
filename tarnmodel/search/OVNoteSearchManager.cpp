#include "tarnmodel/search/OVNoteSearchManager.h"

#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/search/SearchCompiler.h"

#include <atomic>

namespace tarn {

namespace {

constexpr std::string_view kQuotedPattern = R"((?<=^|\s)[-]?("|“)(.+?)("|”)(?=$|\s))";
constexpr std::string_view kTagPattern
    = R"((?!#{2,}|#[0-9a-fA-F]{6}\s|#[0-9a-fA-F]{6}$)(!|-)?#([^#\n\s]{1}|[^#\n\s]{1}[^#\n]{1,500}?[^#\n\s-!]{1})#)"
      R"(|(?<=^|\s|[\(\[\{"'])(!|-)?(?!#{2,}|#[0-9a-fA-F]{6}\s|#[0-9a-fA-F]{6}$)#(?!/))"
      R"re((?![0-9-]+(?=$|\s|[:;,،、…!.?\)\]\}"']))\S{1,500}?(?=$|\s|[:;,،、…!.?\)\]\}"']))re";

std::atomic<bool> allowsOCRSearch = false;

} // namespace

std::optional<NSPredicate> OVNoteSearchManager::predicateForSearchString(std::string_view searchString)
{
    const std::string text = SearchCompiler(searchString, allowOCRSearch()).predicateText();
    return text.empty() ? std::nullopt : std::optional(NSPredicate::predicateWithFormat(text));
}

const RegularExpression& OVNoteSearchManager::quotedSearchRegularExpression()
{
    static const RegularExpression expression(kQuotedPattern, {.anchorsMatchLines = true});
    return expression;
}

const RegularExpression& OVNoteSearchManager::tagSearchRegularExpression()
{
    static const RegularExpression expression(kTagPattern, {.anchorsMatchLines = true});
    return expression;
}

bool OVNoteSearchManager::allowOCRSearch() noexcept
{
    return allowsOCRSearch.load(std::memory_order_relaxed);
}

void OVNoteSearchManager::setAllowOCRSearch(bool allowOCRSearch) noexcept
{
    allowsOCRSearch.store(allowOCRSearch, std::memory_order_relaxed);
}

} // namespace tarn
