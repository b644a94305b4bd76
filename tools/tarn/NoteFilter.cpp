#include "tools/tarn/NoteFilter.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

constexpr std::array kFilters{
    NoteFilter{"active", "trashed == NO AND archived == NO"},
    NoteFilter{"trashed", "trashed == YES"},
    NoteFilter{"archived", "archived == YES AND trashed == NO"},
    NoteFilter{"pinned", "pinned == YES AND trashed == NO AND archived == NO"},
    NoteFilter{"conflicted", "conflictUniqueIdentifier != nil"},
    NoteFilter{"encrypted", "encrypted == YES"},
    NoteFilter{"all", ""},
};

} // namespace

std::optional<NSPredicate> predicateOfFilter(std::string_view name)
{
    const auto* filter = std::ranges::find(kFilters, name, &NoteFilter::name);
    if (filter == kFilters.end() || filter->format.empty())
        return std::nullopt;
    return NSPredicate::predicateWithFormat(filter->format);
}

std::vector<std::string> namesOfFilters()
{
    std::vector<std::string> names;
    names.reserve(kFilters.size());
    for (const NoteFilter& filter : kFilters)
        names.emplace_back(filter.name);
    return names;
}

std::optional<NSPredicate> conjunction(const std::optional<NSPredicate>& left, const std::optional<NSPredicate>& right)
{
    if (!left || !right)
        return left ? left : right;
    const std::array both{*left, *right};
    return NSPredicate::andPredicateWithSubpredicates(both);
}

} // namespace tarn
