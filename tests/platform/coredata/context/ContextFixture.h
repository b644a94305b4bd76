#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/context/records/ToManySet.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Books on shelves, with chapters, a cover, and things of two kinds that they lend: every kind of property and
/// relationship.
inline constexpr std::string_view libraryModel = R"({
  "version": "Library",
  "entities": [
    {"name": "Book",
     "attributes": [
       {"name": "title", "type": "string", "index": ["folded"], "group": "text"},
       {"name": "code", "type": "string", "index": ["value"]},
       {"name": "body", "type": "string", "storage": "large", "index": ["substring"], "group": "text", "leads": true},
       {"name": "pages", "type": "int64", "default": 0},
       {"name": "copies", "type": "int16", "default": 0},
       {"name": "weight", "type": "double"},
       {"name": "lent", "type": "bool", "default": false},
       {"name": "printed", "type": "date"},
       {"name": "stamp", "type": "data"}],
     "relationships": [
       {"name": "shelves", "to": "Shelf", "many": true, "inverse": "books", "owner": true, "delete": "nullify"},
       {"name": "chapters", "to": "Chapter", "many": true, "inverse": "book", "delete": "cascade"},
       {"name": "cover", "to": "Cover", "inverse": "book", "column": true, "delete": "cascade"},
       {"name": "items", "to": "Item", "many": true, "inverse": "book", "delete": "deny"}],
     "indexes": [{"columns": ["lent desc", "printed desc", "pages"], "unique": false}]},
    {"name": "Shelf",
     "attributes": [
       {"name": "name", "type": "string", "index": ["folded"]},
       {"name": "floor", "type": "int64", "default": 0}],
     "relationships": [{"name": "books", "to": "Book", "many": true, "inverse": "shelves", "delete": "nullify"}]},
    {"name": "Chapter",
     "attributes": [
       {"name": "heading", "type": "string"},
       {"name": "number", "type": "int64", "default": 0}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "chapters", "delete": "nullify"}]},
    {"name": "Cover",
     "attributes": [{"name": "color", "type": "string"}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "cover", "delete": "nullify"}]},
    {"name": "Item", "abstract": true,
     "attributes": [{"name": "label", "type": "string"}],
     "relationships": [{"name": "book", "to": "Book", "inverse": "items", "delete": "nullify"}]},
    {"name": "Map", "parent": "Item", "attributes": [{"name": "scale", "type": "int64"}]},
    {"name": "Disc", "parent": "Item"}
  ]})";

/// A store of each kind with one main-queue context on it. It stands beside the fixture of notes, and not on it, since
/// the object store is tested without them and with models of its own.
class ContextTest : public testing::TestWithParam<StoreType> {
protected:
    void SetUp() override
    {
        NSError error;
        model_ = NSManagedObjectModel::modelWithText(modelText(), &error);
        ASSERT_TRUE(model_) << error;
        coordinator_ = open();
        context_ = contextOn(coordinator_);
    }

    void TearDown() override
    {
        context_.reset();
        coordinator_.reset();
    }

    virtual std::string modelText() const { return std::string(libraryModel); }

    std::shared_ptr<NSPersistentStoreCoordinator> open()
    {
        auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model_);
        NSError error;
        EXPECT_TRUE(coordinator->addPersistentStoreWithType(GetParam(), folder_.file(), {}, &error)) << error;
        return coordinator;
    }

    static std::unique_ptr<NSManagedObjectContext> contextOn(
        const std::shared_ptr<NSPersistentStoreCoordinator>& coordinator)
    {
        auto context = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
        context->setPersistentStoreCoordinator(coordinator);
        return context;
    }

    /// Another context on the same store, as if the program had been started again.
    void restart() { context_ = contextOn(coordinator_); }

    NSManagedObject& insert(std::string_view entity) { return context_->insertObject(entity); }

    NSManagedObject& book(std::string_view title, std::int64_t pages = 0)
    {
        NSManagedObject& record = insert("Book");
        record.setValueForKey("title", Value(title));
        record.setValueForKey("pages", Value(pages));
        return record;
    }

    NSManagedObject& shelf(std::string_view name)
    {
        NSManagedObject& record = insert("Shelf");
        record.setValueForKey("name", Value(name));
        return record;
    }

    void save()
    {
        NSError error;
        ASSERT_TRUE(context_->save(&error)) << error;
    }

    template <typename... Arguments>
    std::vector<NSManagedObject*> find(std::string_view entity, std::string_view format, const Arguments&... arguments)
    {
        NSFetchRequest request(*model_->entityNamed(entity));
        request.predicate = NSPredicate::predicateWithFormat(format, arguments...);
        return fetch(request);
    }

    std::vector<NSManagedObject*> all(std::string_view entity)
    {
        return fetch(NSFetchRequest(*model_->entityNamed(entity)));
    }

    std::vector<NSManagedObject*> fetch(const NSFetchRequest& request)
    {
        NSError error;
        auto found = context_->fetch(request, &error);
        EXPECT_TRUE(found) << error;
        return found.value_or(std::vector<NSManagedObject*>());
    }

    static ToManySet& set(const NSManagedObject& record, std::string_view key)
    {
        return record.toManyAt(record.entity().relationshipNamed(key)->index());
    }

    static std::string text(const NSManagedObject& record, std::string_view key)
    {
        const Value value = record.storedValueForKey(key);
        return value.kind() == Value::Kind::String ? value.asString() : "(none)";
    }

    static std::vector<std::string> texts(const std::vector<NSManagedObject*>& records, std::string_view key)
    {
        std::vector<std::string> found;
        for (const NSManagedObject* record : records)
            found.push_back(text(*record, key));
        return found;
    }

    TestFolder folder_;
    std::shared_ptr<NSManagedObjectModel> model_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    std::unique_ptr<NSManagedObjectContext> context_;
};

inline std::string storeTypeName(const testing::TestParamInfo<StoreType>& info)
{
    return info.param == StoreType::SQLite ? "SQLite" : "InMemory";
}

} // namespace tarn
