#pragma once

#include "tarnmodel/platform/coredata/context/child/ParentHandle.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

namespace tarn {

/// A context as its children see it: what is stored, with what the context has pending over it, and saves that become
/// unsaved changes of the context. Any thread.
///
/// Reads never wait for the context's queue; a commit does.
class ParentContextStore final : public RowStore {
public:
    ParentContextStore(std::shared_ptr<RowStore> base, std::shared_ptr<ParentHandle> parent)
        : held_(std::move(base)), base_(*held_), parent_(std::move(parent))
    { }

    const StoreIdentity& identity() const noexcept override { return base_.identity(); }
    const NSManagedObjectModel& model() const noexcept override { return base_.model(); }
    const std::filesystem::path& file() const noexcept override { return base_.file(); }

    bool fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error) override;
    bool count(const StoreFetch& fetch, std::size_t& count, NSError* error) override;
    bool rowsForKeys(const NSEntityDescription& entity, std::span<const std::int64_t> keys, RowContents contents,
        std::vector<StoreRow>& rows, NSError* error) override;
    bool relatedKeys(const NSRelationshipDescription& relationship, std::int64_t key, std::vector<RelatedKey>& related,
        NSError* error) override;
    bool countRelated(
        const NSRelationshipDescription& relationship, std::int64_t key, std::size_t& count, NSError* error) override;
    std::uint64_t stateNumber() override;
    std::optional<std::uint64_t> dataVersion() override { return base_.dataVersion(); }
    std::uint64_t commitsMet() const noexcept override { return base_.commitsMet(); }

    std::unique_ptr<StoreTransaction> beginTransaction(NSError* error) override;
    bool reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error) override
    {
        return base_.reserveKeys(root, count, first, error);
    }

    std::map<std::string, std::string> metadata(NSError* error) override { return base_.metadata(error); }
    bool setMetadataValue(std::string_view key, std::string_view value, NSError* error) override
    {
        return base_.setMetadataValue(key, value, error);
    }
    bool checkIntegrity(std::vector<std::string>& problems, NSError* error) override
    {
        return base_.checkIntegrity(problems, error);
    }
    std::string explain(const StoreFetch& fetch) override { return base_.explain(fetch); }

private:
    std::shared_ptr<RowStore> held_;
    RowStore& base_;
    std::shared_ptr<ParentHandle> parent_;
};

} // namespace tarn
