// Conditions on the texts of a row: those of several words are one question, which reads each text once.

#include "tarnmodel/platform/coredata/query/PredicateGrouping.h"
#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"
#include "tarnmodel/platform/coredata/query/TextLeaf.h"
#include "tarnmodel/platform/coredata/sqlite/RowTextTests.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/predicate/PredicateEquality.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace tarn {

namespace {

/// Short texts of the row itself cost little: fewer tests of them are made one by one.
constexpr std::size_t kManyShortTexts = 8;
/// With more words in one text nothing is known about the rows that may have them.
constexpr std::size_t kMostNarrowedWords = 48;
constexpr std::size_t kMostSources = 8;
/// Members of one AND or OR that share no conditions make one question each few of them.
constexpr int kMostGroups = 64;

using Node = TestFormula::Node;

bool hasTexts(const PredicateNode& node, const SQLScope& scope)
{
    TextCounts counts;
    countTexts(node, scope, counts);
    return !counts.empty();
}

bool isWorthOneQuestion(const TextCounts& counts)
{
    return std::ranges::any_of(
        counts, [](const auto& counted) { return counted.second >= (counted.first->isLarge() ? 2 : kManyShortTexts); });
}

} // namespace

// One question --------------------------------------------------------------------------------------------------------

/// What members of one AND or OR ask of the texts of a row, as it grows.
class SQLConditionBuilder::TextQuestion {
public:
    TextQuestion(SQLConditionBuilder& builder, SQLScope& scope) : builder_(builder), scope_(scope) { }

    /// Takes a member in; false when it asks for too much else, or for something that SQL cannot say.
    bool add(const PredicateNode& member, bool negated)
    {
        const std::size_t bindingCount = builder_.text_.bindings.size();
        const std::size_t joinCount = scope_.joins.size();
        const std::size_t conditionCount = conditions_.size();
        const auto added = node(member, negated);
        if (added) {
            members_.push_back(*added);
            return true;
        }
        builder_.text_.bindings.resize(bindingCount);
        scope_.joins.resize(joinCount);
        std::erase_if(known_, [&](const Known& known) { return known.number >= static_cast<int>(conditionCount); });
        conditions_.resize(conditionCount);
        return false;
    }

    std::string condition(CompoundType type)
    {
        const Node root = formula_.compound(type, std::move(members_));
        if (formula_.isConstant(root))
            return literal(formula_.valueOfConstant(root));
        formula_.setRoot(root);
        narrow();
        scope_.readsTexts = true;
        // SQLite looks last at what has a SELECT of its own: conditions on tags go first.
        std::string arguments = ", (SELECT " + scope_.alias + ".\"pk\")";
        for (const std::string& condition : conditions_)
            arguments += ", " + condition;
        for (const std::string& value : values_)
            arguments += ", " + value;
        return "texts_hold("
            + builder_.text_.bind(std::make_shared<RowTextTests>(std::move(sources_), std::move(tests_),
                std::move(formula_), static_cast<int>(conditions_.size()), static_cast<int>(values_.size())))
            + arguments + ")";
    }

private:
    /// A condition that was met before.
    struct Known {
        PredicateNodePtr predicate;
        std::optional<bool> value; ///< of one that comes out constant
        int number = -1;           ///< of any other
    };
    struct SourceKey {
        const NSAttributeDescription* attribute;
        const NSRelationshipDescription* relationship;
        std::string variable;
        std::vector<PredicateNodePtr> filter;
    };

    std::optional<Node> node(const PredicateNode& predicate, bool negated)
    {
        return std::visit(Overloaded{
                              [&](const ComparisonPredicate& comparison) -> std::optional<Node> {
                                  const auto leaf = textLeaf(comparison, scope_);
                                  return leaf ? testNode(*leaf, negated) : conditionNode(predicate, negated);
                              },
                              [&](const CompoundPredicate& compound) -> std::optional<Node> {
                                  return hasTexts(predicate, scope_) ? compoundNode(compound, negated)
                                                                     : conditionNode(predicate, negated);
                              },
                              [&](const NotPredicate& negation) { return node(*negation.operand, !negated); },
                              [&](const ConstantPredicate& constant) -> std::optional<Node> {
                                  return formula_.constant(constant.value != negated);
                              },
                          },
            predicate.form);
    }

    std::optional<Node> compoundNode(const CompoundPredicate& compound, bool negated)
    {
        const bool isAnd = (compound.type == CompoundType::And) != negated;
        const std::vector<PredicateNodePtr> members = groupedMembers(compound);
        std::vector<Node> nodes;
        // "1 == 0 AND ..." asks for nothing.
        for (const bool withTexts : {false, true}) {
            for (const PredicateNodePtr& member : members) {
                if (hasTexts(*member, scope_) != withTexts)
                    continue;
                const auto made = node(*member, negated);
                if (!made)
                    return std::nullopt;
                if (formula_.isConstant(*made) && formula_.valueOfConstant(*made) != isAnd)
                    return made;
                nodes.push_back(*made);
            }
        }
        return formula_.compound(isAnd ? CompoundType::And : CompoundType::Or, std::move(nodes));
    }

    // Conditions: what SQL says by itself. There are few, and each comes with every word.

    std::optional<Node> conditionNode(const PredicateNode& predicate, bool negated)
    {
        for (const Known& known : known_)
            if (isSamePredicate(*known.predicate, predicate))
                return nodeOf(known, negated);
        auto sql = builder_.condition(predicate, scope_, false);
        if (!sql)
            return std::nullopt;
        Known known{std::make_shared<PredicateNode>(predicate), std::nullopt, -1};
        if (*sql == always || *sql == never) {
            known.value = *sql == always;
        } else {
            if (conditions_.size() == TestFormula::mostConditions)
                return std::nullopt;
            known.number = static_cast<int>(conditions_.size());
            conditions_.push_back(std::move(*sql));
        }
        known_.push_back(std::move(known));
        return nodeOf(known_.back(), negated);
    }
    Node nodeOf(const Known& known, bool negated)
    {
        return known.value ? formula_.constant(*known.value != negated)
                           : formula_.condition(static_cast<std::size_t>(known.number), negated);
    }

    // Tests.

    std::optional<Node> testNode(const TextLeaf& leaf, bool negated)
    {
        const auto source = sourceOf(leaf);
        if (!source)
            return std::nullopt;
        const ComparisonPredicate& comparison = *leaf.comparison;
        const std::string& needle = leaf.needle();
        const bool isPattern = comparison.operation == ComparisonOperator::Matches;
        auto key = std::make_tuple(*source, comparison.operation, comparison.options.caseInsensitive,
            comparison.options.diacriticInsensitive, isPattern ? needle : folded(needle, comparison.options));
        const auto [known, isNew] = testNumbers_.try_emplace(std::move(key), tests_.size());
        if (isNew)
            tests_.push_back({*source, StringTest(comparison.operation, comparison.options, needle)});
        return formula_.test(known->second, negated != leaf.isNegated);
    }

    std::optional<std::size_t> sourceOf(const TextLeaf& leaf)
    {
        for (std::size_t i = 0; i < sourceKeys_.size(); ++i) {
            const SourceKey& known = sourceKeys_[i];
            const auto isSame = [](const PredicateNodePtr& left, const PredicateNodePtr& right) {
                return isSamePredicate(*left, *right);
            };
            if (known.attribute == leaf.attribute && known.relationship == leaf.relationship
                && known.variable == leaf.variable && std::ranges::equal(known.filter, leaf.filter, isSame))
                return i;
        }
        if (sourceKeys_.size() == kMostSources)
            return std::nullopt;
        auto source = leaf.relationship ? membersSource(leaf) : rowSource(*leaf.attribute);
        if (!source)
            return std::nullopt;
        sourceKeys_.push_back({leaf.attribute, leaf.relationship, leaf.variable, leaf.filter});
        sources_.push_back(std::move(*source));
        return sources_.size() - 1;
    }

    std::optional<RowTextTests::Source> rowSource(const NSAttributeDescription& attribute)
    {
        RowTextTests::Source source;
        SQLPlace row = builder_.paths_.placeOf(scope_);
        if (!attribute.isLarge()) {
            source.value = values_.size();
            values_.push_back(builder_.paths_.column(row, attribute));
            return source;
        }
        const std::string key = source.select.bind(std::int64_t{0});
        source.select.sql = "SELECT " + quotedIdentifier(attribute.name()) + " FROM "
            + quotedIdentifier(builder_.paths_.schema().table(*scope_.entity).largeName) + " WHERE \"pk\" = " + key;
        return source;
    }

    /// None when the filter asks for more than the member itself.
    std::optional<RowTextTests::Source> membersSource(const TextLeaf& leaf)
    {
        RowTextTests::Source source;
        SQLConditionOptions options;
        options.store = builder_.options_.store;
        options.usesShadows = builder_.options_.usesShadows;
        SQLConditionBuilder inner(builder_.paths_, source.select, options);
        SQLPlace owner = builder_.paths_.placeOf(scope_);
        owner.key = source.select.bind(std::int64_t{0});
        SQLScope member;
        member.outer = &scope_;
        member.variable = leaf.variable;
        member.alias = builder_.paths_.newAlias();
        member.entity = &leaf.relationship->destinationEntity();
        SQLPlace place = builder_.paths_.placeOf(member);
        const std::string column = builder_.paths_.column(place, *leaf.attribute);
        // Names the column, so that a table of pairs is joined with the members' own.
        std::string condition = column + " IS NOT NULL";
        if (!leaf.filter.empty()) {
            const auto said
                = inner.condition(PredicateNode{CompoundPredicate{CompoundType::And, leaf.filter}}, member, false);
            if (!said || member.readsOuter)
                return std::nullopt;
            condition = "(" + condition + " AND " + *said + ")";
        }
        source.select.sql
            = inner.memberSelect({leaf.relationship, owner, &member, condition}, column, SelectForm::OfOwner);
        return source;
    }

    /// Rows in which no signature leaves room for any of the words need not be read.
    void narrow()
    {
        if (!builder_.options_.rowsThatMayMatch)
            return;
        std::vector<std::vector<std::size_t>> bySource(sources_.size());
        for (const std::size_t test : formula_.tests())
            bySource[tests_[test].source].push_back(test);
        for (std::size_t i = 0; i < sources_.size(); ++i) {
            const NSAttributeDescription& attribute = *sourceKeys_[i].attribute;
            if (sourceKeys_[i].relationship || !hasSignature(attribute) || bySource[i].size() > kMostNarrowedWords)
                continue;
            PrimaryKeySetPtr rows = noKeys();
            for (const std::size_t test : bySource[i])
                if (rows)
                    rows = unionOf(rows, builder_.options_.rowsThatMayMatch(attribute, tests_[test].test));
            sources_[i].rows = rows;
        }
    }

    SQLConditionBuilder& builder_;
    SQLScope& scope_;
    TestFormula formula_;
    std::vector<Node> members_;
    std::vector<Known> known_;
    std::vector<std::string> conditions_;
    std::vector<std::string> values_;
    std::vector<SourceKey> sourceKeys_;
    std::vector<RowTextTests::Source> sources_;
    std::vector<RowTextTests::Test> tests_;
    std::map<std::tuple<std::size_t, ComparisonOperator, bool, bool, std::string>, std::size_t> testNumbers_;
};

std::vector<PredicateNodePtr> SQLConditionBuilder::takeTexts(
    std::vector<PredicateNodePtr>& members, const SQLScope& scope)
{
    TextCounts counts;
    std::vector<PredicateNodePtr> texts;
    std::vector<PredicateNodePtr> others;
    for (const PredicateNodePtr& member : members) {
        TextCounts ofMember;
        countTexts(*member, scope, ofMember);
        for (const auto& [attribute, count] : ofMember)
            counts[attribute] += count;
        (ofMember.empty() ? others : texts).push_back(member);
    }
    if (!isWorthOneQuestion(counts))
        return {};
    members = std::move(others);
    return texts;
}

std::vector<std::string> SQLConditionBuilder::textConditions(
    std::vector<PredicateNodePtr>& members, bool isAnd, SQLScope& scope, bool negated)
{
    std::vector<std::string> conditions;
    for (int i = 0; i < kMostGroups && !members.empty(); ++i) {
        TextQuestion question(*this, scope);
        const std::size_t count = members.size();
        std::erase_if(members, [&](const PredicateNodePtr& member) { return question.add(*member, negated); });
        if (members.size() == count)
            break;
        conditions.push_back(question.condition(isAnd ? CompoundType::And : CompoundType::Or));
    }
    return conditions;
}

} // namespace tarn
