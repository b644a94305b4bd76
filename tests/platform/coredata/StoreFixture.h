#pragma once

#include "tarnmodel/platform/coredata/IdentifiedObject.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace tarn {

/// The model that the tests of the stores share: every type of attribute and every shape of relationship.
std::shared_ptr<const NSManagedObjectModel> storeTestModel();

/// A fresh folder, with a blank and a letter beyond ASCII in its name, that goes with its owner.
class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path file() const { return path_ / "database.sqlite"; }

private:
    std::filesystem::path path_;
};

/// An opened store with shorthands that fail the test when the store fails.
class OpenStore {
public:
    OpenStore(StoreType type, const std::filesystem::path& file, const StoreOptions& options = {});

    RowStore& operator*() const { return *store_; }
    RowStore* operator->() const { return store_; }
    explicit operator bool() const { return store_ != nullptr; }
    const NSError& error() const { return error_; }
    const NSPersistentStoreCoordinator& coordinator() const { return *coordinator_; }

    const NSEntityDescription& entity(std::string_view name) const;
    const NSRelationshipDescription& relationship(std::string_view entity, std::string_view name) const;
    std::int64_t newKey(std::string_view entity) const;
    /// Inserts one row in a transaction of its own; its key.
    std::int64_t insert(std::string_view entity, const std::vector<std::pair<std::string, Value>>& values) const;
    /// Joins in a transaction of its own.
    void join(std::string_view entity, std::string_view relationship, std::int64_t owner, std::int64_t member) const;
    bool update(std::string_view entity, std::int64_t key, const std::string& name, const Value& value) const;
    void remove(std::string_view entity, std::int64_t key) const;

    StoreRow row(std::string_view entity, std::int64_t key, RowContents contents = RowContents::WholeRow) const;
    Value value(std::string_view entity, std::int64_t key, std::string_view name) const;
    std::vector<std::int64_t> related(std::string_view entity, std::string_view name, std::int64_t key) const;
    std::vector<std::int64_t> keys(std::string_view entity, const std::optional<NSPredicate>& predicate = std::nullopt,
        const std::vector<NSSortDescriptor>& sort = {}, std::size_t limit = 0, std::size_t offset = 0) const;
    template <typename... Arguments>
    std::vector<std::int64_t> keysWhere(
        std::string_view entity, std::string_view format, const Arguments&... arguments) const
    {
        return keys(entity, NSPredicate::predicateWithFormat(format, arguments...));
    }
    std::size_t count(std::string_view entity, std::string_view format) const;
    /// Everything that `checkIntegrity` finds.
    std::vector<std::string> problems() const;

private:
    NSError error_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    RowStore* store_ = nullptr;
};

/// A row ready to be inserted: attributes by value, to-ones by key (an integer).
StoreRow makeRow(
    const NSEntityDescription& entity, std::int64_t key, const std::vector<std::pair<std::string, Value>>& values);

/// A record given to a predicate as an argument.
class RecordReference final : public IdentifiedObject {
public:
    RecordReference(const RowStore& store, const NSEntityDescription& entity, std::int64_t key)
        : id_(store.identity(), entity, key)
    { }
    NSManagedObjectID identifyingObjectID() const override { return id_; }
    Value storedValueForKey(std::string_view) const override { return {}; }

private:
    NSManagedObjectID id_;
};

} // namespace tarn
