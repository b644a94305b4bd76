#include "tarnmodel/platform/coredata/textsearch/StoreSearch.h"

#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/coredata/rows/SaturatingSum.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/textsearch/CandidateFinder.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarn {

namespace {

/// Where all hits are wanted, so many are checked and sorted faster than anything else; in a large store a hundredth of
/// the rows.
constexpr std::size_t kFewCandidates = 500;
constexpr std::size_t kSmallShare = 100;
/// Above this share of the rows a walk by key is faster than looking candidates up.
constexpr std::size_t kLargeShare = 5;
/// Where only the first hits are wanted: so few are checked at once.
constexpr std::size_t kOneBlock = 64;
/// Looking up what a candidate is sorted by takes so many times as long as passing over a row of an index.
constexpr std::size_t kCostOfSorting = 10;
/// The guess before anything is known: one candidate in so many is a hit.
constexpr std::size_t kCandidatesForAHit = 4;

bool isSearched(const Expression& expression, const std::vector<const NSAttributeDescription*>& searched);

/// Whether some test in the predicate may be narrowed by signatures. Looks at names only: it may say yes in vain.
bool mayUseIndex(const PredicateNode& node, const std::vector<const NSAttributeDescription*>& searched)
{
    return std::visit(Overloaded{
                          [&](const ComparisonPredicate& predicate) { return isSearched(*predicate.left, searched); },
                          [&](const CompoundPredicate& predicate) {
                              return std::any_of(predicate.members.begin(), predicate.members.end(),
                                  [&](const PredicateNodePtr& member) { return mayUseIndex(*member, searched); });
                          },
                          [&](const NotPredicate& predicate) { return mayUseIndex(*predicate.operand, searched); },
                          [](const ConstantPredicate&) { return false; },
                      },
        node.form);
}

bool isSearched(const Expression& expression, const std::vector<const NSAttributeDescription*>& searched)
{
    if (const auto* path = std::get_if<KeyPathExpression>(&expression.form))
        return std::any_of(searched.begin(), searched.end(),
            [&](const NSAttributeDescription* attribute) { return attribute->name() == path->keys.back(); });
    const auto* count = std::get_if<CountExpression>(&expression.form);
    const auto* subquery = count ? std::get_if<SubqueryExpression>(&count->collection->form) : nullptr;
    return subquery && mayUseIndex(*subquery->predicate, searched);
}

bool searchesTextsIn(const StoreFetch& fetch, const StoreSchema& schema)
{
    if (!fetch.predicate)
        return false;
    std::vector<const NSAttributeDescription*> searched;
    for (const auto& table : schema.tables())
        for (const auto& signature : table->signatures)
            searched.push_back(signature->attribute);
    return !searched.empty() && mayUseIndex(fetch.predicate->node(), searched);
}

/// Whether it is cheaper to pass over the rows of an index until enough candidates were met than to sort them all.
bool isWalkCheaper(const SearchPlan& plan, const StoreFetch& fetch)
{
    if (!completeOrder(fetch.sortDescriptors, *fetch.entity).isIndexed)
        return false;
    const std::size_t count = plan.candidates->size();
    const std::size_t wanted = std::min(count, saturatingSum(fetch.offset, fetch.limit));
    const std::size_t met = std::min(count, kCandidatesForAHit * wanted);
    return plan.rowCount / count * met < kCostOfSorting * count;
}

SearchPlan::Kind chosenKind(const SearchPlan& plan, const StoreFetch& fetch, FetchPurpose purpose)
{
    const std::size_t count = plan.candidates->size();
    if (purpose == FetchPurpose::Rows && fetch.limit > 0) {
        if (count <= kOneBlock)
            return SearchPlan::Kind::CheckCandidates;
        return isWalkCheaper(plan, fetch) ? SearchPlan::Kind::WalkOrder : SearchPlan::Kind::SortCandidates;
    }
    if (count <= std::max(kFewCandidates, plan.rowCount / kSmallShare))
        return SearchPlan::Kind::CheckCandidates;
    return count < plan.rowCount / kLargeShare ? SearchPlan::Kind::CheckCandidates : SearchPlan::Kind::Scan;
}

} // namespace

// Search --------------------------------------------------------------------------------------------------------------

StoreSearch::StoreSearch(const SearchIndex* index, const StoreSelects& selects, SQLiteConnection& connection,
    const StoreFetch& fetch, FetchPurpose purpose, SQLConditionOptions options)
{
    if (!index || !searchesTextsIn(fetch, selects.schema())) {
        generator_.emplace(selects, std::move(options));
        return;
    }
    pass_.emplace(connection);
    wantsFirstRows_ = purpose == FetchPurpose::Rows && fetch.limit > 0;
    look_.emplace(*index, connection);
    options.rowsThatMayMatch = [look = &*look_](const NSAttributeDescription& attribute, const StringTest& test) {
        return look->rowsThatMayMatch(attribute, test);
    };
    const auto start = std::chrono::steady_clock::now();
    SearchPlan chosen = plan(selects.schema(), connection, fetch, purpose, options);
    probeTime_ = std::chrono::steady_clock::now() - start;
    generator_.emplace(selects, std::move(options), std::move(chosen));
}

SearchPlan StoreSearch::plan(const StoreSchema& schema, SQLiteConnection& connection, const StoreFetch& fetch,
    FetchPurpose purpose, const SQLConditionOptions& options)
{
    SearchPlan plan;
    plan.candidates = CandidateFinder(schema, *look_, connection, options).candidates(*fetch.predicate, *fetch.entity);
    for (const auto& signature : schema.table(*fetch.entity).signatures)
        plan.rowCount = std::max(plan.rowCount, look_->rowCount(*signature->attribute));
    // Signatures that were not asked for may not be in memory.
    if (plan.candidates && plan.rowCount == 0)
        plan.rowCount = static_cast<std::size_t>(
            connection.integerOf("SELECT count(*) FROM " + quotedIdentifier(schema.table(*fetch.entity).name)));
    if (plan.candidates)
        plan.kind = chosenKind(plan, fetch, purpose);
    return plan;
}

bool StoreSearch::goesByOrder() const noexcept
{
    const SearchPlan::Kind kind = generator_->plan().kind;
    return kind == SearchPlan::Kind::SortCandidates || kind == SearchPlan::Kind::WalkOrder
        || (kind == SearchPlan::Kind::NoIndex && wantsFirstRows_);
}

std::string StoreSearch::description() const
{
    if (!searchesTexts())
        return {};
    const SearchPlan& plan = generator_->plan();
    const double milliseconds = std::chrono::duration<double, std::milli>(probeTime_).count();
    if (!plan.candidates)
        return fmt::format(
            "search: {}, every row is a candidate, probe {:.2f} ms", nameOfPlan(plan.kind), milliseconds);
    return fmt::format("search: {}, {} candidates of {} rows, probe {:.2f} ms", nameOfPlan(plan.kind),
        plan.candidates->size(), plan.rowCount, milliseconds);
}

} // namespace tarn
