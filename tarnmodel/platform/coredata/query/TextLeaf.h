#pragma once

#include "tarnmodel/platform/coredata/query/SQLScope.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// A test of one text of a row, or of the texts of its members at the other end of a relationship.
struct TextLeaf {
    const ComparisonPredicate* comparison = nullptr; ///< operator, options and needle; stands in the predicate
    const NSAttributeDescription* attribute = nullptr;
    const NSRelationshipDescription* relationship = nullptr; ///< null for the row's own text
    std::string variable;                                    ///< of the members, where there is a filter
    std::vector<PredicateNodePtr> filter;                    ///< what else the member must be
    bool isNegated = false;                                  ///< whether no member must match

    /// What it looks for.
    const std::string& needle() const;
};

/// What a comparison asks of the texts of a scope's row; none for what it asks of anything else.
std::optional<TextLeaf> textLeaf(const ComparisonPredicate& comparison, const SQLScope& scope);

/// How many tests of texts there are, by attribute.
using TextCounts = std::map<const NSAttributeDescription*, std::size_t>;
void countTexts(const PredicateNode& node, const SQLScope& scope, TextCounts& counts);

} // namespace tarn
