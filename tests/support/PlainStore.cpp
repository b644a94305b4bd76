#include "tests/support/PlainStore.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <stdexcept>
#include <utility>

namespace tarn {

namespace {

std::shared_ptr<const NSManagedObjectModel> installedModel(std::string_view version)
{
    NSError error;
    const auto file = OVManagedObjectModel::modelURLForVersion(version);
    auto model = file ? NSManagedObjectModel::modelWithContentsOfFile(*file, &error) : nullptr;
    EXPECT_TRUE(model) << version << ": " << error;
    return model;
}

} // namespace

PlainStore::PlainStore(const std::filesystem::path& file, std::shared_ptr<const NSManagedObjectModel> model)
    : model_(std::move(model)), coordinator_(std::make_shared<NSPersistentStoreCoordinator>(model_)),
      context_(NSManagedObjectContext::ConcurrencyType::MainQueue)
{
    NSError error;
    if (!coordinator_->addPersistentStoreWithType(StoreType::SQLite, file, {}, &error))
        throw std::runtime_error("no store: " + error.localizedDescription());
    context_.setPersistentStoreCoordinator(coordinator_);
}

PlainStore::PlainStore(const std::filesystem::path& file, std::string_view version)
    : PlainStore(file, installedModel(version))
{ }

NSManagedObject& PlainStore::insert(std::string_view entity)
{
    return context_.insertObject(*model_->entityNamed(entity));
}

std::vector<NSManagedObject*> PlainStore::records(std::string_view entity)
{
    NSError error;
    auto records = context_.executeFetchRequest(NSFetchRequest(*model_->entityNamed(entity)), &error);
    EXPECT_EQ(error, NSError());
    return records;
}

void PlainStore::save()
{
    NSError error;
    EXPECT_TRUE(context_.save(&error)) << error;
}

std::vector<std::string> PlainStore::problems()
{
    NSError error;
    std::vector<std::string> problems;
    EXPECT_TRUE(coordinator_->persistentStore()->checkIntegrity(problems, &error)) << error;
    return problems;
}

std::vector<std::string> statementsOfSchema(const std::filesystem::path& database)
{
    std::vector<std::string> statements;
    const auto take = [](void* result, int, char** values, char**) {
        static_cast<std::vector<std::string>*>(result)->emplace_back(values[0]);
        return 0;
    };
    sqlite3* connection = nullptr;
    EXPECT_EQ(sqlite3_open(database.c_str(), &connection), SQLITE_OK);
    constexpr const char* kStatements = "SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY sql";
    EXPECT_EQ(sqlite3_exec(connection, kStatements, take, &statements, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection);
    sqlite3_close(connection);
    return statements;
}

} // namespace tarn
