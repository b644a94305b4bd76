#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <memory>
#include <utility>
#include <vector>

namespace tarn {

class ContextCore;

/// One save: everything that is pending in one transaction, or nothing.
///
/// Takes the lock, catches up with what others have saved, lets will-save observers add to it, gives keys, writes
/// inserted, updated and deleted rows in that order, commits, and only then calls the records saved. On any failure the
/// context keeps its changes as they were.
class SavePlan {
public:
    explicit SavePlan(ContextCore& core);
    /// `transaction`: the lock, if it is held already.
    bool run(std::unique_ptr<StoreTransaction> transaction, NSError* error);

private:
    bool write(std::unique_ptr<StoreTransaction>& transaction, NSError* error);
    bool writeRows(StoreTransaction& transaction, NSError* error);
    void announce();
    bool prepareParticipants(NSError* error) const;
    void tellOfSave() const;
    bool commit(StoreTransaction& transaction, NSError* error) const;
    bool assignKeys(NSError* error);
    bool validate(NSError* error) const;
    bool deletionsAllowed(NSError* error) const;
    bool insertRows(StoreTransaction& transaction, NSError* error);
    bool updateRows(StoreTransaction& transaction, NSError* error);
    bool updateRow(StoreTransaction& transaction, NSManagedObject& record, NSError* error);
    bool changeJoins(StoreTransaction& transaction, NSError* error);
    bool deleteRows(StoreTransaction& transaction, NSError* error);
    void finish();
    void takeBack();

    ContextCore& core_;
    std::vector<NSManagedObject*> inserted_;
    std::vector<NSManagedObject*> updated_;
    std::vector<NSManagedObject*> deleted_;
    std::vector<std::pair<NSManagedObject*, NSManagedObjectID>> formerIDs_; ///< of records that were given a key here
    std::vector<std::pair<NSManagedObject*, std::int64_t>> newVersions_;
    std::vector<NSManagedObject*> announcedBefore_; ///< inserted before will-save observers ran
};

} // namespace tarn
