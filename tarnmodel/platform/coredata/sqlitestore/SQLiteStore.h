#pragma once

#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"
#include "tarnmodel/platform/coredata/sqlite/ConnectionPool.h"
#include "tarnmodel/platform/coredata/sqlite/FlagStatistics.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteRowWriter.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSelects.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"
#include "tarnmodel/platform/coredata/sqlitestore/ReservedKeys.h"
#include "tarnmodel/platform/coredata/textsearch/SearchIndex.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

namespace tarn {

class StoreSearch;
enum class WritingEnd : std::uint8_t;

/// Records in one SQLite file, which several processes may have open at once. Any thread.
class SQLiteStore final : public RowStore {
public:
    /// Opens the file, and makes it where the options say so. Throws a `StoreFailure`.
    SQLiteStore(std::shared_ptr<const NSManagedObjectModel> model, const std::filesystem::path& file,
        const StoreOptions& options);

    const StoreIdentity& identity() const noexcept override { return *identity_; }
    const NSManagedObjectModel& model() const noexcept override { return *model_; }
    const std::filesystem::path& file() const noexcept override { return file_; }

    bool fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error) override;
    bool count(const StoreFetch& fetch, std::size_t& count, NSError* error) override;
    bool rowsForKeys(const NSEntityDescription& entity, std::span<const std::int64_t> keys, RowContents contents,
        std::vector<StoreRow>& rows, NSError* error) override;
    bool relatedKeys(const NSRelationshipDescription& relationship, std::int64_t key, std::vector<RelatedKey>& related,
        NSError* error) override;
    bool countRelated(
        const NSRelationshipDescription& relationship, std::int64_t key, std::size_t& count, NSError* error) override;
    std::uint64_t stateNumber() override;
    std::optional<std::uint64_t> dataVersion() override;
    std::uint64_t commitsMet() const noexcept override { return pool_->commitsMet(); }

    std::unique_ptr<StoreTransaction> beginTransaction(NSError* error) override;
    bool reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error) override;

    std::map<std::string, std::string> metadata(NSError* error) override;
    bool setMetadataValue(std::string_view key, std::string_view value, NSError* error) override;
    bool checkIntegrity(std::vector<std::string>& problems, NSError* error) override;
    bool checkSearchIndex(std::vector<std::string>& problems, NSError* error) override;
    bool repairSearchIndex(std::size_t& repaired, NSError* error) override;
    std::string explain(const StoreFetch& fetch) override;

private:
    friend class SQLiteTransaction;

    // Opening.
    void openFile(bool createIfMissing);
    void checkMetadata(const StoreMetadata& metadata);
    void refreshDerivedValues(const StoreMetadata& metadata);
    // Fetching (SQLiteStore+Fetching.cpp).
    SQLConditionOptions conditionOptions(const StoreFetch& fetch, SQLiteConnection& connection) const;
    std::vector<StoreRow> rowsOf(const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection);
    std::string explanationOf(const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection);
    std::optional<std::size_t> countInParallel(
        const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection);
    // Writing (SQLiteStore+Writing.cpp).
    void beginWriting();
    void endWriting(WritingEnd end) noexcept;
    /// Runs `work` in the transaction of this thread, or in a short one of its own.
    void write(const std::function<void(SQLiteConnection&)>& work);
    void rollBack() noexcept;
    void followDerivedValues(SQLiteConnection& connection);
    void fillSomeSignatures(SQLiteConnection& connection);

    std::shared_ptr<const NSManagedObjectModel> model_;
    std::filesystem::path file_;
    bool readOnly_;
    StoreSchema schema_;
    StoreSelects selects_;
    std::unique_ptr<ConnectionPool> pool_;
    SearchIndex searchIndex_;
    mutable FlagStatistics flagStatistics_;
    bool hasSearchIndex_ = true; ///< False for a file that lacks the tables and cannot be given them
    const StoreIdentity* identity_ = nullptr;
    std::atomic<bool> usesShadows_ = true;
    /// Both belong to the turn's holder.
    DerivedValues derivedValues_ = DerivedValues::Written;
    std::int64_t writerVersion_ = -1; ///< the writing connection's data version when it last looked at the folding's
    std::atomic<std::uint64_t> dataVersion_ = 0;
    std::atomic<std::uint64_t> commits_ = 0;  ///< of this store's own transactions
    std::optional<WriteTransaction> writing_; ///< of the thread whose turn it is
    ReservedKeys reservedKeys_;
};

} // namespace tarn
