#pragma once

#include "tarnmodel/platform/coredata/memory/InMemoryState.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/rows/WriterLock.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>

namespace tarn {

/// Records in plain containers, gone with the store. Any thread.
///
/// Readers take the last committed state and are never kept waiting; a transaction works on a copy.
class InMemoryStore final : public RowStore {
public:
    explicit InMemoryStore(std::shared_ptr<const NSManagedObjectModel> model);

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
    std::uint64_t stateNumber() override { return commits_; }
    /// Always the same: nobody else has this store open.
    std::optional<std::uint64_t> dataVersion() override { return 0; }

    std::unique_ptr<StoreTransaction> beginTransaction(NSError* error) override;
    bool reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error) override;

    std::map<std::string, std::string> metadata(NSError* error) override;
    bool setMetadataValue(std::string_view key, std::string_view value, NSError* error) override;
    bool checkIntegrity(std::vector<std::string>& problems, NSError* error) override;
    std::string explain(const StoreFetch& fetch) override;

private:
    friend class InMemoryTransaction;
    using StatePointer = std::shared_ptr<const InMemoryState>;

    /// What this thread reads: its own transaction's state, else the last committed one.
    StatePointer state() const;
    void write(const std::function<void(InMemoryState&)>& work);
    void setState(StatePointer state);

    std::shared_ptr<const NSManagedObjectModel> model_;
    std::filesystem::path file_;
    const StoreIdentity* identity_;
    mutable std::mutex mutex_;
    StatePointer committed_;
    WriterLock turn_;
    std::atomic<std::uint64_t> commits_ = 0;
    std::shared_ptr<InMemoryState> working_; ///< of the open transaction; belongs to the turn's holder
};

} // namespace tarn
