#include "tarnmodel/platform/coredata/query/SQLGenerator.h"

#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/coredata/sqlite/RowLayout.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tarn {

namespace {

std::vector<std::string> splitKeyPath(std::string_view keyPath)
{
    std::vector<std::string> keys;
    std::size_t start = 0;
    while (start <= keyPath.size()) {
        const std::size_t end = std::min(keyPath.find('.', start), keyPath.size());
        keys.emplace_back(keyPath.substr(start, end - start));
        start = end + 1;
    }
    return keys;
}

/// What has to be read so that the evaluator finds the values of the row itself there.
RowContents contentsForRemainder(const NSPredicate& remainder, const NSEntityDescription& entity, RowContents wanted)
{
    if (readsLargeAttribute(remainder, entity))
        return RowContents::WholeRow;
    return wanted == RowContents::Keys ? RowContents::Row : wanted;
}

/// The members of a top-level AND; the predicate itself where it is none.
std::vector<PredicateNodePtr> conjuncts(const NSPredicate& predicate)
{
    const auto* compound = std::get_if<CompoundPredicate>(&predicate.node().form);
    if (compound && compound->type == CompoundType::And)
        return compound->members;
    return {predicate.nodePtr()};
}

/// WHERE with these conditions, or nothing.
std::string where(const std::vector<std::string>& conditions)
{
    return conditions.empty() ? std::string() : " WHERE " + SQLConditionBuilder::joined(conditions, " AND ");
}

} // namespace

std::string_view nameOfPlan(SearchPlan::Kind kind)
{
    constexpr std::array<std::string_view, 5> kNames{
        "no index", "check candidates", "sort candidates", "walk the order", "scan"};
    return kNames[static_cast<std::size_t>(kind)];
}

struct SQLGenerator::Parts {
    Parts(const StoreSchema& schema, const NSEntityDescription& entity) : paths(schema)
    {
        scope.alias = paths.newAlias();
        scope.entity = &entity;
    }

    SQLPaths paths;
    SQLScope scope;
    GeneratedSelect select;
};

GeneratedSelect SQLGenerator::rows(const StoreFetch& fetch, RowContents& contents) const
{
    Parts parts(selects_.schema(), *fetch.entity);
    const std::string condition = where(conditions(fetch, parts));
    const std::string order = orderBy(fetch, parts);
    if (parts.select.remainder)
        contents = contentsForRemainder(*parts.select.remainder, *fetch.entity, contents);
    const RowLayout& layout = selects_.layout(*fetch.entity, contents);
    const StoreTable& table = selects_.schema().table(*fetch.entity);
    std::string sql = "SELECT " + layout.columnList() + " FROM " + from(table, parts) + parts.scope.joinSQL();
    if (layout.readsLargeTable())
        sql += " LEFT JOIN " + quotedIdentifier(table.largeName) + " AS large ON large.\"pk\" = " + parts.scope.alias
            + ".\"pk\"";
    sql += condition + order;
    if (!parts.select.remainder && (fetch.limit > 0 || fetch.offset > 0)) {
        // Numbers that SQLite does not have are as good as its largest.
        constexpr std::size_t kMost = std::numeric_limits<std::int64_t>::max();
        const std::int64_t limit = fetch.limit > 0 ? static_cast<std::int64_t>(std::min(fetch.limit, kMost)) : -1;
        sql += " LIMIT " + parts.select.text.bind(limit);
        if (fetch.offset > 0)
            sql += " OFFSET " + parts.select.text.bind(static_cast<std::int64_t>(std::min(fetch.offset, kMost)));
    }
    parts.select.text.sql = std::move(sql);
    return std::move(parts.select);
}

GeneratedSelect SQLGenerator::count(const StoreFetch& fetch) const
{
    const bool readsTexts = options_.rowsThatMayMatch && !startsWithCandidates();
    if (!readsTexts)
        return unsorted(fetch, Result::Count, std::nullopt);
    // Texts lie in the order of keys; without a range SQLite walks whatever index is the smallest.
    constexpr KeyRange kAll{std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()};
    return unsorted(fetch, Result::Count, kAll);
}

GeneratedSelect SQLGenerator::countInRange(const StoreFetch& fetch, KeyRange range) const
{
    return unsorted(fetch, Result::Count, range);
}

GeneratedSelect SQLGenerator::keysInRange(const StoreFetch& fetch, KeyRange range) const
{
    return unsorted(fetch, Result::Keys, range);
}

GeneratedSelect SQLGenerator::unsorted(const StoreFetch& fetch, Result result, std::optional<KeyRange> range) const
{
    Parts parts(selects_.schema(), *fetch.entity);
    std::vector<std::string> all = conditions(fetch, parts);
    const StoreTable& table = selects_.schema().table(*fetch.entity);
    const std::string source = from(table, parts);
    const std::string key = parts.scope.alias + ".\"pk\"";
    if (range) {
        const std::string first = parts.select.text.bind(range->first);
        const std::string last = parts.select.text.bind(range->last);
        all.insert(all.begin(), key + " BETWEEN " + first + " AND " + last);
    }
    const bool isCount = result == Result::Count;
    parts.select.text.sql = "SELECT " + (isCount ? "count(*)" : key) + " FROM " + source + parts.scope.joinSQL()
        + where(all) + (isCount ? "" : " ORDER BY " + key);
    return std::move(parts.select);
}

GeneratedSelect SQLGenerator::candidatesInOrder(const StoreFetch& fetch) const
{
    Parts parts(selects_.schema(), *fetch.entity);
    StoreFetch all = fetch;
    all.predicate = nullptr;
    const std::string condition = where(conditions(all, parts));
    const std::string order = orderBy(fetch, parts);
    const std::string source = from(selects_.schema().table(*fetch.entity), parts);
    parts.select.text.sql
        = "SELECT " + parts.scope.alias + ".\"pk\" FROM " + source + parts.scope.joinSQL() + condition + order;
    return std::move(parts.select);
}

bool SQLGenerator::startsWithCandidates() const noexcept
{
    return plan_.kind == SearchPlan::Kind::CheckCandidates || plan_.kind == SearchPlan::Kind::SortCandidates;
}

/// A CROSS JOIN keeps its order: the candidates lead to the rows.
std::string SQLGenerator::from(const StoreTable& table, Parts& parts) const
{
    std::string rows = quotedIdentifier(table.name) + " AS " + parts.scope.alias;
    if (!startsWithCandidates())
        return rows;
    return "value_list(" + parts.select.text.bind(SQLKeyList{plan_.candidates}) + ") AS c CROSS JOIN " + rows + " ON "
        + parts.scope.alias + ".\"pk\" = c.\"value\"";
}

std::vector<std::string> SQLGenerator::conditions(const StoreFetch& fetch, Parts& parts) const
{
    std::vector<std::string> all;
    if (fetch.predicate)
        addPredicate(*fetch.predicate, parts, all);
    if (plan_.kind == SearchPlan::Kind::WalkOrder || plan_.kind == SearchPlan::Kind::Scan)
        all.insert(
            all.begin(), "key_in(" + parts.select.text.bind(plan_.candidates) + ", " + parts.scope.alias + ".\"pk\")");
    if (auto entity = entityCondition(*fetch.entity, fetch.includesSubentities, parts.scope.alias); !entity.empty())
        all.insert(all.begin(), std::move(entity));
    if (!fetch.excludedKeys.empty())
        all.push_back(parts.scope.alias + ".\"pk\" NOT IN (SELECT \"value\" FROM value_list("
            + parts.select.text.bind(fetch.excludedKeys) + "))");
    return all;
}

void SQLGenerator::addPredicate(const NSPredicate& predicate, Parts& parts, std::vector<std::string>& conditions) const
{
    SQLConditionBuilder builder(parts.paths, parts.select.text, options_);
    // One condition for the whole keeps lists of alternatives together; only where SQL cannot say all of it, each
    // member of the AND stands for itself.
    if (auto whole = builder.condition(predicate.node(), parts.scope, false)) {
        if (*whole != SQLConditionBuilder::always)
            conditions.push_back(std::move(*whole));
        return;
    }
    parts.select.text.bindings.clear();
    parts.scope.joins.clear();
    // What can be said is said as one again: words that stand side by side are one question.
    std::vector<PredicateNodePtr> said;
    std::vector<NSPredicate> remainder;
    SQLText trial;
    for (const PredicateNodePtr& member : conjuncts(predicate)) {
        Parts alone(selects_.schema(), *parts.scope.entity);
        SQLConditionBuilder partial(alone.paths, trial, options_);
        if (partial.condition(*member, alone.scope, false))
            said.push_back(member);
        else
            remainder.emplace_back(member);
        trial.bindings.clear();
    }
    std::optional<std::string> condition;
    for (;;) {
        SQLConditionBuilder together(parts.paths, parts.select.text, options_);
        condition = together.condition(PredicateNode{CompoundPredicate{CompoundType::And, said}}, parts.scope, false);
        if (condition)
            break;
        // Each by itself can be said, but not all of them.
        parts.select.text.bindings.clear();
        parts.scope.joins.clear();
        for (std::size_t half = said.size() - said.size() / 2; half > 0; --half) {
            remainder.emplace_back(said.back());
            said.pop_back();
        }
    }
    parts.select.remainder = NSPredicate::andPredicateWithSubpredicates(remainder);
    if (*condition != SQLConditionBuilder::always)
        conditions.push_back(std::move(*condition));
}

std::string SQLGenerator::orderBy(const StoreFetch& fetch, Parts& parts) const
{
    std::vector<std::string> terms;
    const CompleteOrder order = completeOrder(fetch.sortDescriptors, *fetch.entity);
    for (const NSSortDescriptor& descriptor : order.descriptors) {
        const auto keys = splitKeyPath(descriptor.key);
        SQLPathEnd end = parts.paths.follow(parts.paths.placeOf(parts.scope), keys);
        if (!end.attribute)
            throw NSException(NSInvalidArgumentException,
                "\"" + fetch.entity->name() + "\" cannot be sorted by \"" + descriptor.key + "\"");
        std::string term = parts.paths.column(end.place, *end.attribute);
        if (descriptor.comparison == SortComparison::LocalizedStandard
            && end.attribute->type() == NSAttributeType::String)
            term += " COLLATE localized_standard";
        terms.push_back(term + (descriptor.ascending ? "" : " DESC"));
    }
    terms.push_back(parts.scope.alias + ".\"pk\"" + (order.keysAscend ? "" : " DESC"));
    std::string sql = " ORDER BY ";
    for (std::size_t i = 0; i < terms.size(); ++i)
        sql += (i == 0 ? "" : ", ") + terms[i];
    return sql;
}

} // namespace tarn
