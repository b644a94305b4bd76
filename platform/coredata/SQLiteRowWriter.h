#pragma once

#include "platform/coredata/NSPersistentStore.h"
#include "platform/coredata/StoreSchema.h"

#include <cstdint>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn {

class SQLiteConnection;
class SQLiteStatement;

/// Writes rows and join rows with one connection, inside a transaction that its user holds.
///
/// What fails throws a `StoreFailure`.
class SQLiteRowWriter {
public:
    SQLiteRowWriter(const StoreSchema& schema, SQLiteConnection& connection) : schema_(schema), connection_(connection)
    { }

    void insert(const StoreRow& row);
    RowWriteResult update(const StoreRow& row, PropertyMask changed);
    RowWriteResult remove(const NSEntityDescription& entity, std::int64_t key, std::int64_t version);
    void changeJoins(std::span<const JoinChange> changes);
    /// Writes nil to the to-ones whose targets did not come, and removes join rows without both ends. Before the
    /// commit; costs nothing when all is well.
    void clearMissingEnds();

private:
    struct InsertPlan {
        std::string sql;
        std::vector<const StoreColumn*> columns;
        std::vector<const StoreColumn*> largeColumns;
    };
    struct WrittenTarget {
        const StoreTable* table;
        const StoreColumn* column;
        std::int64_t key;
        std::int64_t target;
    };
    struct JoinStatements {
        std::string add;
        std::string remove;
    };

    const InsertPlan& insertPlan(const NSEntityDescription& entity);
    void bind(SQLiteStatement& statement, int parameter, const StoreColumn& column, const StoreRow& row);
    void bindShadow(SQLiteStatement& statement, int parameter, const StoreColumn& column, const StoreRow& row);
    void noteTargets(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row);
    void clearTarget(const WrittenTarget& written);
    void removeBrokenJoin(const JoinChange& change);
    const JoinStatements& joinStatements(const JoinTable& join);
    void writeLarge(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row);
    void rewriteShadows(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row);
    bool exists(const StoreTable& table, std::int64_t key);

    const StoreSchema& schema_;
    SQLiteConnection& connection_;
    std::unordered_map<const NSEntityDescription*, InsertPlan> insertPlans_;
    std::unordered_map<const JoinTable*, JoinStatements> joinStatements_;
    std::vector<WrittenTarget> writtenTargets_; ///< in this transaction; the targets may come after
    std::vector<JoinChange> addedJoins_;
    std::vector<std::string> foldedTexts_; ///< what the statement in hand has bound
};

} // namespace tarn
