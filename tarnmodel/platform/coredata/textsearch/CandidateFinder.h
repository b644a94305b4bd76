#pragma once

#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"
#include "tarnmodel/platform/coredata/textsearch/SearchIndex.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

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
        const StoreSchema& schema, SearchIndexReader& look, SQLiteConnection& connection, SQLConditionOptions options)
        : schema_(schema), look_(look), connection_(connection), options_(std::move(options))
    { }

    /// Null when all rows are.
    PrimaryKeySetPtr candidates(const NSPredicate& predicate, const NSEntityDescription& entity);

private:
    /// The rows that a (sub)predicate is about.
    struct Rows {
        const NSEntityDescription& entity;
        std::string variable; ///< of the SUBQUERY; empty for the fetched rows
    };

    PrimaryKeySetPtr of(const PredicateNode& node, const Rows& rows, bool negated);
    PrimaryKeySetPtr ofCompound(const CompoundPredicate& predicate, const Rows& rows, bool negated);
    PrimaryKeySetPtr ofAll(const CompoundPredicate& predicate, const Rows& rows, bool negated);
    PrimaryKeySetPtr ofAny(const CompoundPredicate& predicate, const Rows& rows, bool negated);
    PrimaryKeySetPtr ofComparison(const ComparisonPredicate& predicate, const Rows& rows, bool negated);
    PrimaryKeySetPtr ofAttribute(
        const NSAttributeDescription& attribute, const ComparisonPredicate& predicate, bool negated);
    PrimaryKeySetPtr ofFolded(const NSAttributeDescription& attribute, const StringTest& test);
    PrimaryKeySetPtr ofMembers(const NSRelationshipDescription& relationship,
        const std::function<PrimaryKeySetPtr(const Rows&)>& members, const std::string& variable);
    PrimaryKeySetPtr ofCount(const CountExpression& count, const ComparisonPredicate& predicate, const Rows& rows);
    PrimaryKeySetPtr flagged(const CompoundPredicate& predicate, const NSAttributeDescription& flag, const Rows& rows);
    const NSAttributeDescription* flagAmong(const CompoundPredicate& predicate, const Rows& rows) const;
    PrimaryKeySetPtr ownersOf(const NSRelationshipDescription& relationship, const PrimaryKeySetPtr& members);
    PrimaryKeySetPtr keysOf(const SQLText& select);

    bool mayAsk();

    /// Each question costs a walk; a predicate of very many words asks for the first of them only.
    static constexpr int kMostQuestions = 64;
    static constexpr int kMostScans = 4;

    const StoreSchema& schema_;
    SearchIndexReader& look_;
    SQLiteConnection& connection_;
    SQLConditionOptions options_;
    int questions_ = 0;
    int scans_ = 0;          ///< of indexes of folded values
    bool isFlagged_ = false; ///< within an AND whose flag has an index: its rows are few enough
};

} // namespace tarn
