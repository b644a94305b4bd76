#pragma once

#include "tarnmodel/platform/coredata/description/EqualityProbes.h"
#include "tarnmodel/platform/coredata/memory/SnapshotMap.h"
#include "tarnmodel/platform/coredata/rows/RowObject.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace tarn {

/// Everything that a store in memory holds: rows by key, and both directions of every relationship.
///
/// A value type whose copies are cheap: a transaction works on one and puts it in the place of the other.
class InMemoryState {
public:
    using RowPointer = std::shared_ptr<const StoreRow>;

    /// Null when there is no such row.
    const StoreRow* row(const NSEntityDescription& entity, std::int64_t key) const;
    const RowPointer& rowPointer(const NSEntityDescription& entity, std::int64_t key) const;
    /// Rows of the inheritance chain in order of keys.
    std::vector<RowPointer> rowsOfRoot(const NSEntityDescription& root) const;
    /// Keys at the other end of a relationship that is not a column of its own, ascending.
    std::vector<std::int64_t> relatedKeys(const NSRelationshipDescription& relationship, std::int64_t key) const;
    std::size_t countRelated(const NSRelationshipDescription& relationship, std::int64_t key) const;
    /// Whether `keysWithValue` knows this property: an indexed text, or a to-one.
    static bool hasIndex(const NSPropertyDescription& property, bool folded);
    /// Keys of the rows that have this value, and of few others, ascending.
    std::vector<std::int64_t> keysWithValue(const EqualityProbe& probe) const;

    /// Puts the row in the place of one with its key.
    void setRow(StoreRow row);
    /// Takes the row out of its relationships and then away.
    void removeRow(const NSEntityDescription& entity, std::int64_t key);
    void setJoined(const NSRelationshipDescription& owning, std::int64_t owner, std::int64_t member, bool joined);
    /// Writes nil to the to-ones of these rows whose targets do not exist.
    void clearMissingTargets(const std::vector<NSManagedObjectID>& written);

    std::map<std::string, std::string> metadata;
    std::map<std::string, std::int64_t> nextKeys; ///< by root entity

private:
    using RowKeys = SnapshotMap<bool>;
    using KeysByKey = SnapshotMap<RowKeys>;

    /// What one index is over: an attribute, by the entity that declares it, its text folded or as it is.
    using IndexSubject = std::tuple<const NSEntityDescription*, PropertyIndex, bool>;

    void index(const StoreRow* old, const StoreRow* row);
    void indexText(const NSAttributeDescription& attribute, bool folded, const StoreRow& row, bool present);
    static void setMember(KeysByKey& keys, std::int64_t key, std::int64_t other, bool present);
    void setIndexed(const NSRelationshipDescription& from, std::int64_t key, std::int64_t other, bool present);
    void removeFromRelationships(const NSEntityDescription& entity, std::int64_t key);

    std::unordered_map<const NSEntityDescription*, SnapshotMap<RowPointer>> rows_; ///< by root entity
    /// For relationships that are not columns: keys at the other end.
    std::unordered_map<const NSRelationshipDescription*, KeysByKey> related_;
    /// Keys by a short hash of the text.
    std::map<IndexSubject, KeysByKey> texts_;
};

/// A state, row by row, for row objects.
class InMemoryRowReader final : public RowReader {
public:
    InMemoryRowReader(const StoreIdentity& identity, const InMemoryState& state)
        : identity_(identity), state_(state) { }
    const StoreIdentity& storeIdentity() const override { return identity_; }
    std::optional<StoreRow> readRow(
        const NSEntityDescription& entity, std::int64_t key, RowContents contents) const override;
    std::vector<RelatedKey> readRelatedKeys(
        const NSRelationshipDescription& relationship, std::int64_t key) const override;

private:
    const StoreIdentity& identity_;
    const InMemoryState& state_;
};

/// The row as a store hands it out for these contents.
StoreRow rowWithContents(const StoreRow& row, RowContents contents);
/// The other ends of a relationship, with their entities.
std::vector<RelatedKey> relatedKeysInState(
    const InMemoryState& state, const NSRelationshipDescription& relationship, std::int64_t key);

} // namespace tarn
