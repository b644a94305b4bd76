#include "tools/tarn/arguments/ListingOptions.h"

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

struct NamedOrder {
    std::string_view name;
    std::string_view key;
    bool ascending;
    SortComparison comparison;
};

/// Times begin with the latest, as the standard order does.
constexpr std::array kOrders{
    NamedOrder{"modified", "modificationDate", false, SortComparison::Standard},
    NamedOrder{"created", "creationDate", false, SortComparison::Standard},
    NamedOrder{"title", "title", true, SortComparison::LocalizedStandard},
};

std::vector<std::string> namesOfOrders()
{
    std::vector<std::string> names;
    for (const NamedOrder& order : kOrders)
        names.emplace_back(order.name);
    return names;
}

} // namespace

CommandOption ListingOptions::addTo(const Command& command)
{
    command
        .addOption("--sort", sort,
            "By the date of the last change or by that of the making, the latest first, or by title, whether pinned or "
            "not")
        .oneOf(namesOfOrders())
        .called("modified|created|title");
    command.addFlag("--reverse", reverse, "The last note first");
    command
        .addOption("--since", since, "Only notes changed since the beginning of this day, month or year, as 2021-03-15")
        .called("DAY");
    return command.addFlag(
        "-0,--null", endsWithNUL, "A NUL behind each note in place of a line end; not with --json, which has no lines");
}

void ListingOptions::refuseNULInJSON(const Invocation& invocation) const
{
    if (endsWithNUL && invocation.json)
        throw CommandFailure(ExitCode::Usage, "-0 and --json do not go together: a document has no lines");
}

std::vector<NSSortDescriptor> ListingOptions::order() const
{
    std::vector<NSSortDescriptor> order = OVNote::standardSortDescriptors();
    if (sort) {
        const NamedOrder& named = *std::ranges::find(kOrders, *sort, &NamedOrder::name);
        order = {{.key = std::string(named.key), .ascending = named.ascending, .comparison = named.comparison}};
    }
    for (NSSortDescriptor& key : order)
        key.ascending = key.ascending != reverse;
    return order;
}

std::optional<NSPredicate> ListingOptions::predicate() const
{
    if (!since)
        return std::nullopt;
    std::optional<NSDate> begin;
    OVNoteSearchManager::endAndBeginPeriodDatesFromDateString(*since, &begin, nullptr);
    if (!begin)
        throw CommandFailure(ExitCode::Usage,
            "--since: \"" + *since + "\" is no day; write it as 2021-03-15, or a month as 2021-03, or a year as 2021");
    return NSPredicate::predicateWithFormat("modificationDate >= %@", *begin);
}

std::string_view ListingOptions::end() const
{
    return endsWithNUL ? std::string_view("\0", 1) : std::string_view("\n");
}

} // namespace tarn
