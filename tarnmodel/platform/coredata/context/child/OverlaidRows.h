#pragma once

#include "tarnmodel/platform/coredata/context/child/UnsavedSnapshot.h"
#include "tarnmodel/platform/coredata/rows/RowObject.h"

namespace tarn {

/// A store's rows with what a context has pending laid over them. One moment of the context; one thread.
class OverlaidRows final : public RowReader {
public:
    OverlaidRows(RowStore& base, const UnsavedSnapshot& snapshot) : base_(base), snapshot_(snapshot) { }

    const StoreIdentity& storeIdentity() const override { return base_.identity(); }
    std::optional<StoreRow> readRow(
        const NSEntityDescription& entity, std::int64_t key, RowContents contents) const override;
    std::vector<RelatedKey> readRelatedKeys(
        const NSRelationshipDescription& relationship, std::int64_t key) const override;
    /// The rows of these keys that exist.
    std::vector<StoreRow> readRows(
        const NSEntityDescription& entity, std::span<const std::int64_t> keys, RowContents contents) const;
    /// What the context has not read of a pending row, the store still has.
    StoreRow rowOfEntry(const UnsavedSnapshot::Entry& entry, RowContents contents) const;

private:
    std::vector<RelatedKey> storedRelatedKeys(const NSRelationshipDescription& relationship, std::int64_t key) const;
    bool isDeleted(const NSEntityDescription& root, std::int64_t key) const;

    RowStore& base_;
    const UnsavedSnapshot& snapshot_;
};

} // namespace tarn
