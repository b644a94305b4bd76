#pragma once

#include "platform/coredata/NSPersistentStore.h"
#include "platform/coredata/StoreSchema.h"

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
    /// The rows of `entity`, with the columns that `contents` wants.
    RowLayout(const StoreSchema& schema, const NSEntityDescription& entity, RowContents contents);

    /// The columns of a SELECT; `alias` names the table, `largeAlias` the one with the large attributes.
    std::string columns(std::string_view alias, std::string_view largeAlias) const;
    bool readsLargeTable() const noexcept { return contents_ == RowContents::WholeRow && hasLargeColumns_; }
    /// The row on which the statement stands.
    StoreRow read(const SQLiteStatement& statement) const;

private:
    struct Column {
        const StoreColumn* stored; ///< of the schema
        const NSPropertyDescription* property;
        bool large;
    };

    void addColumns(const std::vector<StoreColumn>& columns, bool large);
    const NSEntityDescription& concreteEntity(const SQLiteStatement& statement) const;

    const NSEntityDescription& entity_;
    RowContents contents_;
    bool hasDiscriminator_;
    bool hasLargeColumns_;
    int firstValue_ = 0;
    std::vector<Column> columns_;
};

} // namespace tarn
