#include "tools/tarn/arguments/NoteFilter.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

struct NamedFilter {
    std::string_view name;
    NoteFilter filter;
};

constexpr std::array kFilters{
    NamedFilter{"active", NoteFilter::Active},
    NamedFilter{"trashed", NoteFilter::Trashed},
    NamedFilter{"archived", NoteFilter::Archived},
    NamedFilter{"pinned", NoteFilter::ActivePinned},
    NamedFilter{"conflicted", NoteFilter::Conflicted},
    NamedFilter{"encrypted", NoteFilter::Encrypted},
    NamedFilter{"all", NoteFilter::All},
};

} // namespace

std::optional<NSPredicate> predicateOfFilter(std::string_view name)
{
    const auto* named = std::ranges::find(kFilters, name, &NamedFilter::name);
    return named == kFilters.end() ? std::nullopt : predicateForNoteFilter(named->filter);
}

std::vector<std::string> namesOfFilters()
{
    std::vector<std::string> names;
    names.reserve(kFilters.size());
    for (const NamedFilter& named : kFilters)
        names.emplace_back(named.name);
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
