#pragma once

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn {

class SQLiteConnection;
class SQLiteStatement;

/// What is derived from texts and stands beside them: folded values and signatures.
enum class DerivedValues : std::uint8_t {
    Written,
    LeftStale, ///< the store's were made by a newer version of folding, which makes them again
};

/// Writes rows and join rows with one connection, inside a transaction that its user holds.
///
/// Versions, folded values and signatures are written with them: the triggers that see to these are for other programs.
/// What fails throws a `StoreFailure`.
class SQLiteRowWriter {
public:
    SQLiteRowWriter(const StoreSchema& schema, SQLiteConnection& connection) : schema_(schema), connection_(connection)
    { }

    void setDerivedValues(DerivedValues derived) noexcept { derived_ = derived; }
    /// Whether it has written to attributes with signatures.
    bool hasWrittenSignatures() const noexcept { return hasWrittenSignatures_; }

    /// Its version becomes 1.
    void insert(const StoreRow& row);
    /// The same with the version that it has, and without signatures: who makes a whole store makes those at the end.
    void insertUnsigned(const StoreRow& row);
    RowWriteResult update(const StoreRow& row, PropertyMask changed);
    RowWriteResult remove(const NSEntityDescription& entity, std::int64_t key, std::int64_t version);
    void changeJoins(std::span<const JoinChange> changes);
    /// Writes nil to the to-ones whose targets did not come. Before the commit.
    void clearMissingTargets();
    /// After a commit of which nobody knows how it ended: whether the rows that were inserted are there. Keys are given
    /// out once, so nobody else can have made them. False when nothing was inserted.
    bool findsInsertedRows();

private:
    struct InsertPlan {
        std::string sql;
        std::vector<const StoreColumn*> columns;
        std::vector<const StoreColumn*> largeColumns;
    };
    /// A to-one that was written before its target: the target may still come.
    struct AwaitedTarget {
        const StoreTable* table;
        const StoreColumn* column;
        std::int64_t key;
        std::int64_t target;
    };

    void insertRow(const StoreRow& row, std::int64_t version, bool isSigned);
    const InsertPlan& insertPlan(const NSEntityDescription& entity);
    void bind(SQLiteStatement& statement, int parameter, const StoreColumn& column, const StoreRow& row);
    void bindShadow(SQLiteStatement& statement, int parameter, const StoreColumn& column, const StoreRow& row);
    void awaitTargets(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row);
    void insertLarge(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row,
        bool isSigned = true);
    void writeLarge(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row);
    /// Writes nil where the column names the target: in every row, or in one.
    void clearColumn(
        const StoreTable& table, const std::string& name, std::int64_t target, std::optional<std::int64_t> only);
    void writeSignatureOf(const SignatureTable& signature, const StoreRow& row);
    void writeSignaturesOfNewRow(const StoreTable& table, const std::string& columnTable, const StoreRow& row);
    void writeSignatures(const StoreTable& table, const std::vector<const StoreColumn*>& columns, const StoreRow& row);
    void removeSignatures(const StoreTable& table, const std::string& columnTable, std::int64_t key);
    bool exists(const StoreTable& table, std::int64_t key);

    const StoreSchema& schema_;
    SQLiteConnection& connection_;
    DerivedValues derived_ = DerivedValues::Written;
    bool hasWrittenSignatures_ = false;
    std::unordered_map<const NSEntityDescription*, InsertPlan> insertPlans_;
    const StoreTable* firstInsertedTable_ = nullptr; ///< null before the first row
    std::int64_t firstInsertedKey_ = 0;
    std::vector<AwaitedTarget> awaited_;
    std::vector<std::string> foldedTexts_; ///< what the statement in hand has bound
};

} // namespace tarn
