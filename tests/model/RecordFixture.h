#pragma once

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace tarn {

/// A store of each kind on the current model, with one context; the clock moves a second at every look.
class RecordTest : public testing::TestWithParam<StoreType> {
protected:
    void SetUp() override
    {
        world_.setClock([this] { return clock_ += std::chrono::seconds(1); });
        world_.setHostName("Desk of Ada");
        std::filesystem::create_directories(folder_);
        NSError error;
        auto model = OVManagedObjectModel::current(&error);
        ASSERT_TRUE(model) << error;
        coordinator_ = std::make_shared<NSPersistentStoreCoordinator>(model);
        ASSERT_TRUE(coordinator_->addPersistentStoreWithType(GetParam(), folder_ / "notes.sqlite", {}, &error))
            << error;
        restart();
    }

    void TearDown() override
    {
        context_.reset();
        coordinator_.reset();
        std::filesystem::remove_all(folder_);
    }

    /// Another context on the same store, as if the program had been started again.
    void restart()
    {
        context_ = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
        context_->setPersistentStoreCoordinator(coordinator_);
    }

    void save()
    {
        NSError error;
        ASSERT_TRUE(context_->save(&error)) << error;
    }

    template <typename Record> Record& insert() { return *Record::insertInManagedObjectContext(*context_); }

    template <typename Record> std::vector<Record*> all()
    {
        NSError error;
        auto found = context_->fetch(NSFetchRequest(Record::entityInManagedObjectContext(*context_)), &error);
        EXPECT_TRUE(found) << error;
        std::vector<Record*> records;
        for (NSManagedObject* record : found.value_or(std::vector<NSManagedObject*>()))
            records.push_back(dynamic_cast<Record*>(record));
        return records;
    }

    NSManagedObjectContext& context() { return *context_; }

    std::filesystem::path folder_ = std::filesystem::temp_directory_path() / ("tarn records é " + newUUIDString());
    NSDate clock_ = *dateFromISO8601String("2024-02-29T12:00:00Z");
    EnvironmentOverride world_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    std::unique_ptr<NSManagedObjectContext> context_;
};

inline std::string storeTypeName(const testing::TestParamInfo<StoreType>& info)
{
    return info.param == StoreType::SQLite ? "SQLite" : "InMemory";
}

} // namespace tarn
