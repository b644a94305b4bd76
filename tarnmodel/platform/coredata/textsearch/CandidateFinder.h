#pragma once

#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"
#include "tarnmodel/platform/coredata/textsearch/SearchIndex.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <functional>

namespace tarn {

class SQLiteConnection;

/// Narrows the rows that a predicate may pick, by signatures, flags and constants. It only ever leaves out rows for
/// which the predicate cannot hold; what is left has to pass the predicate.
///
///     candidates(A AND B) = those of both, candidates(A OR B) = those of either, candidates(NOT A) = all rows
///
/// One thread, within one transaction.
class CandidateFinder {
public:
    /// `options` are those with which the conditions of flagged rows are turned into SQL.
    CandidateFinder(
        const StoreSchema& schema, SearchLook& look, SQLiteConnection& connection, SQLConditionOptions options)
        : schema_(schema), look_(look), connection_(connection), options_(std::move(options))
    { }

    /// Null when all rows are.
    KeySetPtr candidates(const NSPredicate& predicate, const NSEntityDescription& entity);

private:
    /// The rows that a (sub)predicate is about.
    struct Rows {
        const NSEntityDescription& entity;
        std::string variable; ///< of the SUBQUERY; empty for the fetched rows
    };

    KeySetPtr of(const PredicateNode& node, const Rows& rows, bool negated);
    KeySetPtr ofCompound(const CompoundPredicate& predicate, const Rows& rows, bool negated);
    KeySetPtr ofAll(const CompoundPredicate& predicate, const Rows& rows, bool negated);
    KeySetPtr ofAny(const CompoundPredicate& predicate, const Rows& rows, bool negated);
    KeySetPtr ofComparison(const ComparisonPredicate& predicate, const Rows& rows, bool negated);
    KeySetPtr ofAttribute(const NSAttributeDescription& attribute, const ComparisonPredicate& predicate, bool negated);
    KeySetPtr ofFolded(const NSAttributeDescription& attribute, const StringTest& test);
    KeySetPtr ofMembers(const NSRelationshipDescription& relationship,
        const std::function<KeySetPtr(const Rows&)>& members, const std::string& variable);
    KeySetPtr ofCount(const CountExpression& count, const ComparisonPredicate& predicate, const Rows& rows);
    KeySetPtr flagged(const CompoundPredicate& predicate, const NSAttributeDescription& flag, const Rows& rows);
    const NSAttributeDescription* flagAmong(const CompoundPredicate& predicate, const Rows& rows) const;
    KeySetPtr ownersOf(const NSRelationshipDescription& relationship, const KeySetPtr& members);
    KeySetPtr keysOf(const SQLText& select);

    bool mayAsk();

    /// Each question costs a walk; a predicate of very many words asks for the first of them only.
    static constexpr int kMostQuestions = 64;
    static constexpr int kMostScans = 4;

    const StoreSchema& schema_;
    SearchLook& look_;
    SQLiteConnection& connection_;
    SQLConditionOptions options_;
    int questions_ = 0;
    int scans_ = 0;          ///< of indexes of folded values
    bool isFlagged_ = false; ///< within an AND whose flag has an index: its rows are few enough
};

} // namespace tarn
