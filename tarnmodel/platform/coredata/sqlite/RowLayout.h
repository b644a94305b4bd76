#pragma once

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn {

class SQLiteStatement;

/// Which columns a SELECT over an entity asks for, and where they go in a row.
///
/// Rows of sub-entities come too, each with the properties of its own entity. Immutable; lives no longer than the
/// schema.
class RowLayout {
public:
    static constexpr std::string_view rowAlias = "t0";
    static constexpr std::string_view largeAlias = "large";

    /// The rows of `entity`, with the columns that `contents` wants.
    RowLayout(const StoreSchema& schema, const NSEntityDescription& entity, RowContents contents);

    /// The columns of a SELECT in which `rowAlias` names the table, and `largeAlias` the one with the large attributes.
    const std::string& columnList() const noexcept { return columnList_; }
    bool readsLargeTable() const noexcept { return contents_ == RowContents::WholeRow && hasLargeColumns_; }
    /// The row on which the statement stands. `before` is the row that was read before, with which it shares equal
    /// strings; null for none.
    StoreRow read(const SQLiteStatement& statement, const StoreRow* before = nullptr) const;

private:
    struct Column {
        const StoreColumn* stored; ///< of the schema
        const NSPropertyDescription* property;
        bool large;
    };

    void addColumns(const std::vector<StoreColumn>& columns, bool large);
    std::string listOfColumns() const;
    const NSEntityDescription& concreteEntity(const SQLiteStatement& statement) const;

    const NSEntityDescription& entity_;
    RowContents contents_;
    bool hasDiscriminator_;
    bool hasLargeColumns_;
    int firstValue_ = 0;
    std::vector<Column> columns_;
    std::string columnList_;
};

} // namespace tarn
