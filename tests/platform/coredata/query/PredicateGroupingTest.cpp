#include "tarnmodel/platform/coredata/query/PredicateGrouping.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

/// The predicate with its top-level members grouped, printed.
std::string grouped(std::string_view format)
{
    const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
    auto compound = std::get<CompoundPredicate>(predicate.node().form);
    compound.members = groupedMembers(compound);
    return NSPredicate(std::make_shared<PredicateNode>(PredicateNode{compound})).predicateFormat();
}

struct GroupingCase {
    std::string_view format;
    std::string_view result;
};
constexpr GroupingCase kCases[]{
    {"a == 1 OR a == 2 OR b == 3", "a IN {1, 2} OR b == 3"},
    {"a ==[cd] \"x\" OR c > 1 OR a ==[cd] \"y\"", "a IN[cd] {\"x\", \"y\"} OR c > 1"},
    {"a == \"x\" OR a ==[cd] \"y\"", "a == \"x\" OR a ==[cd] \"y\""},
    {"a == 1 OR a == nil", "a == 1 OR a == nil"},
    {"a == 1 AND a == 2", "a == 1 AND a == 2"},
    {"ANY a.b == 1 OR ANY a.b == 2", "ANY a.b IN {1, 2}"},
    {"ANY a.b == 1 AND ANY a.b == 2", "ANY a.b == 1 AND ANY a.b == 2"},
    {"NONE a.b == 1 AND NONE a.b == 2", "NONE a.b IN {1, 2}"},
    {"NONE a.b == 1 OR NONE a.b == 2", "NONE a.b == 1 OR NONE a.b == 2"},
    {"a != 1 OR a != 2", "a != 1 OR a != 2"},
};

TEST(PredicateGrouping, GathersComparisonsOfOneKeyPath)
{
    for (const auto& [format, result] : kCases)
        EXPECT_EQ(grouped(format), NSPredicate::predicateWithFormat(result).predicateFormat()) << format;
}

TEST(PredicateGrouping, TurnsInequalitiesOfAnAndIntoOneList)
{
    EXPECT_EQ(grouped("a != 1 AND a != 2 AND b == 1"),
        NSPredicate::predicateWithFormat("(NOT (a IN {1, 2})) AND b == 1").predicateFormat());
}

} // namespace
} // namespace tarn
