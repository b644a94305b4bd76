#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/PropertyValues.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectContext;

/// A row as a store hands it out: identity, row version, and values.
///
/// Rows of a fetch hold every attribute that is not large and the to-one keys that stand in columns; large attributes
/// are unloaded. A to-one that lives in its inverse's column is unloaded too.
struct StoreRow {
    const NSEntityDescription* entity = nullptr; ///< the concrete one
    std::int64_t key = 0;
    std::int64_t version = 0;
    PropertyValues values; ///< empty when only keys were asked for
};

/// The other end of a relationship.
struct RelatedKey {
    const NSEntityDescription* entity = nullptr; ///< the concrete one
    std::int64_t key = 0;
    friend bool operator==(const RelatedKey&, const RelatedKey&) = default;
};

enum class RowContents : std::uint8_t {
    Keys,     ///< no values
    Row,      ///< what `StoreRow` says
    WholeRow, ///< large attributes as well
};

/// A fetch as the store answers it. Sort descriptors with `LocalizedStandard` are sorted by the store too.
struct StoreFetch {
    const NSEntityDescription* entity = nullptr;
    bool includesSubentities = true;
    const NSPredicate* predicate = nullptr; ///< null: every row
    std::span<const NSSortDescriptor> sortDescriptors;
    std::size_t limit = 0; ///< 0: no limit
    std::size_t offset = 0;
    RowContents contents = RowContents::Row;
    /// Primary keys left out of the answer (before limit and offset count), ascending.
    std::span<const std::int64_t> excludedKeys;
};

/// One member more or less in a many-to-many relationship; both keys permanent.
struct JoinChange {
    const NSRelationshipDescription* relationship = nullptr; ///< the end that owns the join table
    std::int64_t ownerKey = 0;
    std::int64_t memberKey = 0;
    bool added = true;
};

enum class RowWriteResult : std::uint8_t {
    Written,
    Conflict, ///< the row's version is another one than expected; nothing was written
    Gone,     ///< the row does not exist any more
    Failed,   ///< see the error
};

/// A store's one write transaction: everything of it or nothing.
///
/// Made by `RowStore::beginTransaction`, which holds the lock. Destroying it without `commit` rolls back.
/// While it lives, the store's reading operations called on the same thread see its writes.
class StoreTransaction {
public:
    virtual ~StoreTransaction() = default;
    /// The store's state number: of the state from which the transaction started, after a commit of the one it made.
    virtual std::uint64_t stateNumber() const = 0;
    /// Inserts a row with its key; version becomes 1. To-one keys must be permanent.
    virtual bool insertRow(const StoreRow& row, NSError* error) = 0;
    /// Writes the properties of `changed` (attributes and column to-ones) where the row still has `row.version`; the
    /// version grows by one.
    virtual RowWriteResult updateRow(const StoreRow& row, PropertyMask changed, NSError* error) = 0;
    /// Deletes the row, its large part and its join rows, and writes nil to every column that names it. A version of 0
    /// deletes any version.
    virtual RowWriteResult deleteRow(
        const NSEntityDescription& entity, std::int64_t key, std::int64_t version, NSError* error)
        = 0;
    /// Adds or removes join rows; one that is there (or gone) already is no error. Members whose rows vanished are left
    /// out.
    virtual bool changeJoins(std::span<const JoinChange> changes, NSError* error) = 0;
    /// The version that a row has which this transaction wrote as `written`, once it is committed.
    virtual std::int64_t versionAfterCommit(
        const NSEntityDescription&, std::int64_t /*key*/, std::int64_t written) const
    {
        return written;
    }
    /// Whether nobody else can commit while the transaction lives. Else a commit may fail with
    /// `StoreErrorMergeConflict`, because a row has moved since it was read here, and be tried again in another one.
    virtual bool isExclusive() const { return true; }
    /// Where what is written becomes unsaved changes of another context, that one is told of at the commit, on its
    /// queue.
    virtual void whenTakenByContext(std::function<void(NSManagedObjectContext&)> /*tell*/) { }
    /// A busy commit is retried. After a failure nothing was written and the transaction is over.
    virtual bool commit(NSError* error) = 0;
};

/// A store as contexts read and write it: the interface of the SQLite store, of the store in memory, and of a parent
/// context.
///
/// Any thread; reads run side by side, one transaction at a time. Every failure gives false (or none) and an error.
class RowStore : public NSPersistentStore {
public:
    virtual const StoreIdentity& identity() const noexcept = 0;
    const std::string& identifier() const noexcept override { return identity().uuid(); }
    virtual const NSManagedObjectModel& model() const noexcept = 0;

    // Reading ---------------------------------------------------------------------------------------------------------
    virtual bool fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error) = 0;
    virtual bool count(const StoreFetch& fetch, std::size_t& count, NSError* error) = 0;
    /// The rows of these keys that exist, in any order.
    virtual bool rowsForKeys(const NSEntityDescription& entity, std::span<const std::int64_t> keys,
        RowContents contents, std::vector<StoreRow>& rows, NSError* error)
        = 0;
    /// The members of a to-many relationship, or the target of a to-one whose column is the inverse's; ascending by
    /// key.
    virtual bool relatedKeys(const NSRelationshipDescription& relationship, std::int64_t key,
        std::vector<RelatedKey>& related, NSError* error)
        = 0;
    /// How many members a to-many relationship has.
    virtual bool countRelated(
        const NSRelationshipDescription& relationship, std::int64_t key, std::size_t& count, NSError* error)
        = 0;
    /// Names what is stored now: any commit, of this process or another, leads to another number. Without a transaction
    /// of this thread it may lag behind.
    virtual std::uint64_t stateNumber() = 0;
    /// Moves whenever another process, or another store object of this one, has committed. Never waits: none while
    /// another thread writes or another process commits.
    virtual std::optional<std::uint64_t> dataVersion() = 0;
    /// Grows when a read met a commit, of anyone, this store's own ones included. Costs nothing to ask: only when it
    /// has grown can `dataVersion` have moved under what was read.
    virtual std::uint64_t commitsMet() const noexcept { return 0; }
    /// The plan of a fetch, for people and tests: generated SQL with its arguments, how it is walked, and for a search
    /// in texts what the index left of the rows and how long it took.
    virtual std::string explain(const StoreFetch& fetch) = 0;

    // Writing ---------------------------------------------------------------------------------------------------------
    /// Takes the write lock, waiting for other processes. Null and an error when it cannot be had.
    virtual std::unique_ptr<StoreTransaction> beginTransaction(NSError* error) = 0;
    /// Reserves `count` keys for an inheritance chain: first, first + 1, ... Never handed out again. Joins the
    /// transaction of this thread where there is one.
    virtual bool reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error)
        = 0;

    bool checkSearchIndex(std::vector<std::string>& problems, NSError* error) override;
    bool repairSearchIndex(std::size_t& repaired, NSError* error) override;
};

} // namespace tarn
