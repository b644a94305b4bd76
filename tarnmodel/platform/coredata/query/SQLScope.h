#pragma once

#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A table that a SELECT walks, and the tables that key paths have joined to it.
struct SQLScope {
    struct Join {
        std::string path; ///< from the walked row: "note.password", "note#large"
        std::string alias;
        std::string sql;
    };

    SQLScope* outer = nullptr; ///< the SELECT around this one
    std::string variable;      ///< of a SUBQUERY; empty elsewhere
    std::string alias;
    const NSEntityDescription* entity = nullptr;
    std::vector<Join> joins;
    bool readsTexts = false; ///< something in it looks texts up
    bool readsOuter = false; ///< something in it depends on the row of an outer scope

    std::string joinSQL() const;
};

/// An object that a key path has come to.
struct SQLPlace {
    SQLScope* scope = nullptr;
    std::string path; ///< from the scope's row; empty for the row itself
    const NSEntityDescription* entity = nullptr;
    std::string key;   ///< SQL of its primary key; NULL where there is no object
    std::string alias; ///< of its row; empty as long as nothing but its key was asked for
};

/// Where a key path ends: at an attribute, at an object, or before the first to-many relationship on its way.
struct SQLPathEnd {
    SQLPlace place; ///< the object that has the attribute or the collection, or the object itself
    const NSAttributeDescription* attribute = nullptr;
    const NSRelationshipDescription* toMany = nullptr;
    std::span<const std::string> rest; ///< keys after the to-many one
    bool passedToOne = false;
};

/// Finds the columns that key paths name, joining tables as needed.
class SQLPaths {
public:
    explicit SQLPaths(const StoreSchema& schema) : schema_(schema) { }

    std::string newAlias() { return "t" + std::to_string(aliasCount_++); }
    SQLPlace placeOf(SQLScope& scope) const;
    /// Raises `NSUndefinedKeyException` with the name of a key that its entity does not have.
    SQLPathEnd follow(SQLPlace place, std::span<const std::string> keys);
    /// The column of an attribute.
    std::string column(SQLPlace& place, const NSAttributeDescription& attribute);
    /// The shadow column of a folded attribute.
    std::string shadowColumn(SQLPlace& place, const NSAttributeDescription& attribute);

    const StoreSchema& schema() const noexcept { return schema_; }

private:
    SQLPlace toOne(SQLPlace& place, const NSRelationshipDescription& relationship);
    const std::string& rowAlias(SQLPlace& place);
    std::string joinedAlias(SQLScope& scope, const std::string& path, const std::string& table, const std::string& key);

    const StoreSchema& schema_;
    int aliasCount_ = 0;
};

} // namespace tarn
