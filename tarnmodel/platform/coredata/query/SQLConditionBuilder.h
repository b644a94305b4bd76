#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/query/SQLScope.h"
#include "tarnmodel/platform/coredata/sqlite/PrimaryKeySet.h"
#include "tarnmodel/platform/coredata/sqlite/SQLText.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// What conditions depend on besides the predicate.
struct SQLConditionOptions {
    const StoreIdentity* store = nullptr; ///< records of other stores equal no row
    /// False while the shadow columns were made by another version of folding.
    bool usesShadows = true;
    /// Whether a SELECT gives so many rows that others should be looked at instead. Unset: never.
    std::function<bool(const SQLText& select)> isLargeSet;
    /// The same for the rows with a flag, which hardly change from one fetch to the next. Unset: never.
    std::function<bool(const SQLText& select)> isCommonFlag;
    /// The rows of an attribute's table that a test may hold for; null when nothing is known. Unset: never known.
    std::function<PrimaryKeySetPtr(const NSAttributeDescription& attribute, const StringTest& test)> rowsThatMayMatch;
    /// An order is asked for, and only its first rows: an index may be walked until there are enough.
    bool walksOrder = false;
    /// The attribute that the order begins with: its own index gives the rows in that order.
    std::string firstSortKey;
    /// Attributes by which only its ties go.
    std::vector<std::string> tieKeys;
};

/// Turns predicates into SQL conditions that pick exactly the same rows as the evaluator, or says that it cannot.
///
/// Two-valued logic: a condition that is used as it stands may be NULL for "no"; a negated one is always 0 or 1. So
/// negation is carried down to the leaves. Arguments go to the SQLText given; constants are folded first ("1", "0").
/// Raises `NSException` for keys that do not exist and for patterns that are no regular expressions.
class SQLConditionBuilder {
public:
    /// The condition that holds for every row.
    static constexpr std::string_view always = "1";
    /// The condition that holds for none.
    static constexpr std::string_view never = "0";
    static std::string literal(bool value) { return std::string(value ? always : never); }
    using Condition = std::optional<std::string>;

    SQLConditionBuilder(SQLPaths& paths, SQLText& text, SQLConditionOptions options)
        : paths_(paths), text_(text), options_(std::move(options))
    { }

    /// None when SQL cannot say it, or not within its limits of depth and size.
    Condition condition(const PredicateNode& node, SQLScope& scope, bool negated);

    /// `parts` joined by AND or OR, as a balanced tree: SQLite stops at a depth of 1,000.
    static std::string joined(const std::vector<std::string>& parts, std::string_view connective);

private:
    enum class Kind : std::uint8_t { Number, String, Date, Data, Object };
    /// Something with one value for each row: an attribute, or an object seen as its key.
    struct Operand {
        std::string sql;
        Kind kind = Kind::Number;
        const NSEntityDescription* entity = nullptr; ///< of an object
        std::string shadow;                          ///< column of the folded value, where there is one
        bool indexed = false;
        const NSAttributeDescription* searched = nullptr; ///< an attribute with signatures
        std::string key;                                  ///< its row's primary key
        bool settlesTies = false;                         ///< of the order that is walked
        std::string flagSelect; ///< of a flag that leads an index of the walked table: "SELECT 1 FROM ... WHERE <flag>"
    };
    /// Members of a collection, for `member IN (...)` or EXISTS.
    struct Members {
        const NSRelationshipDescription* relationship;
        SQLPlace owner;
        SQLScope* scope; ///< of the members
        std::string condition;
    };

    /// What a SELECT over members gives.
    enum class SelectForm : std::uint8_t {
        AllOwners,    ///< the owners of all members, for IN
        OfOwner,      ///< the members of the owner at hand, for EXISTS
        OfOwnerInSet, ///< the same, the members found first
    };

    // The tree (SQLConditionBuilder.cpp).
    Condition compound(const CompoundPredicate& predicate, SQLScope& scope, bool negated);
    Condition membersOfCompound(std::vector<PredicateNodePtr> members, bool isAnd, SQLScope& scope, bool negated);
    Condition comparison(const ComparisonPredicate& predicate, SQLScope& scope, bool negated);

    // Comparisons of single values (SQLComparisons.cpp).
    Condition comparePath(SQLPathEnd end, const ComparisonPredicate& predicate, SQLScope& scope, bool leafNegated);
    Condition compareOperand(const Operand& left, const ComparisonPredicate& predicate, SQLScope& scope, bool negated);
    Condition compareWithConstant(
        const Operand& left, const ComparisonPredicate& predicate, const Value& right, bool negated);
    Condition compareOperands(
        const Operand& left, const ComparisonPredicate& predicate, const Operand& right, bool negated);
    Condition equality(const Operand& left, const Value& right, ComparisonOptions options, bool negated);
    std::string flagPrefix(const Operand& left, std::string_view operation, const SQLBinding& wanted) const;
    Condition foldedEquality(const Operand& left, const std::string& right, bool negated);
    Condition order(
        const Operand& left, ComparisonOperator operation, const Value& right, ComparisonOptions options, bool negated);
    Condition stringCondition(
        const Operand& left, const ComparisonPredicate& predicate, const Value& right, bool negated);
    Condition beginning(const std::string& column, const std::string& prefix, bool negated);
    Condition membership(const Operand& left, const Value::Array& list, ComparisonOptions options, bool negated);
    Condition between(const Operand& left, const Value& bounds, ComparisonOptions options, bool negated);
    std::string stringTest(
        const Operand& left, ComparisonOperator operation, ComparisonOptions options, const std::string& right);
    std::string boundList(const Value::Array& values);

    // Texts (SQLTextConditions.cpp).
    class TextQuestion;
    /// Takes out the members that ask for texts, if they ask for so much that they should do so together.
    static std::vector<PredicateNodePtr> takeTexts(std::vector<PredicateNodePtr>& members, const SQLScope& scope);
    /// As few conditions for them as can be; leaves in `members` those that have to stand for themselves.
    std::vector<std::string> textConditions(
        std::vector<PredicateNodePtr>& members, bool isAnd, SQLScope& scope, bool negated);

    // Collections (SQLCollections.cpp).
    Condition quantified(
        const SQLPathEnd& end, const ComparisonPredicate& predicate, SQLScope& scope, bool leafNegated, bool negated);
    Condition count(const CountExpression& expression, ComparisonOperator operation, const Value& right,
        SQLScope& scope, bool negated);
    std::optional<Members> membersOfCollection(const CountExpression& expression, SQLScope& scope, SQLScope& member);
    std::string existence(const Members& members, bool negated) const;
    std::string numberOf(const Members& members) const;
    SelectForm selectForm(const Members& members) const;
    std::string memberSelect(const Members& members, std::string_view columns, SelectForm form) const;
    std::string columnSelect(const Members& members, std::string_view columns, SelectForm form) const;
    std::string joinSelect(const Members& members, std::string_view columns, SelectForm form) const;
    std::string memberKeys(const Members& members) const;

    // Where things stand.
    std::optional<Operand> operand(const Expression& expression, SQLScope& scope);
    Operand operandAt(SQLPathEnd& end);
    std::string searchedColumn(const SQLPathEnd& end) const;
    std::string flagSelect(const SQLPathEnd& end) const;
    std::optional<SQLPathEnd> pathEnd(const Expression& expression, SQLScope& scope);
    SQLScope* scopeOf(const Expression& base, SQLScope& scope) const;
    std::optional<std::int64_t> keyInStore(const Value& object, const NSEntityDescription& entity) const;
    std::optional<Value> sqlValue(const Operand& left, const Value& value, bool& comparable) const;

    SQLPaths& paths_;
    SQLText& text_;
    SQLConditionOptions options_;
    int depth_ = 0;
    int leafCount_ = 0;
};

} // namespace tarn
