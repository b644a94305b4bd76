#include "tests/store/ScratchVersions.h"

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include <cctype>
#include <fstream>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <system_error>
#include <utility>

namespace tarn {

namespace fs = std::filesystem;

namespace {

/// "inModel2" of "Model 2".
std::string ownAttribute(std::string_view version)
{
    std::string name = "in";
    for (const char letter : version)
        if (std::isalnum(static_cast<unsigned char>(letter)) != 0)
            name += letter;
    return name;
}

std::string textOfModel(std::string_view version)
{
    return R"({"version": ")" + std::string(version)
        + R"(", "entities": [{"name": "Thing", "attributes": [{"name": "label", "type": "string"}, {"name": ")"
        + ownAttribute(version) + R"(", "type": "int64"}]}]})";
}

void write(const fs::path& file, std::string_view text)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

} // namespace

ScratchVersions::ScratchVersions(fs::path folder) : folder_(std::move(folder))
{
    fs::create_directories(folder_);
}

ScratchVersions::~ScratchVersions()
{
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void ScratchVersions::addModel(std::string_view version, const fs::path& file) const
{
    write(folder_ / file, textOfModel(version));
}

void ScratchVersions::addModel(std::string_view version) const
{
    addModel(version, fs::path("Model.momd") / (std::string(version) + ".json"));
}

std::string ScratchVersions::mapping(std::string_view from, std::string_view to, std::string_view policy)
{
    const std::string named = policy.empty() ? "" : R"("policy": ")" + std::string(policy) + R"(", )";
    return R"({"source": ")" + std::string(from) + R"(", "destination": ")" + std::string(to) + R"(", "entities": [)"
        + R"({"kind": "transform", "source": "Thing", "destination": "Thing", )" + named
        + R"("attributes": [{"name": ")" + ownAttribute(to) + R"(", "value": "$default"}], "dropped": [")"
        + ownAttribute(from) + R"("]}]})";
}

void ScratchVersions::addMapping(std::string_view from, std::string_view to, std::string_view policy) const
{
    write(folder_ / "Model.momd" / (std::string(from) + " to " + std::string(to) + ".mapping.json"),
        mapping(from, to, policy));
}

std::shared_ptr<const NSManagedObjectModel> ScratchVersions::model(std::string_view version)
{
    NSError error;
    auto model = NSManagedObjectModel::modelWithText(textOfModel(version), &error);
    EXPECT_TRUE(model) << error;
    return model;
}

void ScratchVersions::makeStore(const fs::path& file, std::string_view version, const std::vector<std::string>& labels)
{
    NSError error;
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model(version));
    ASSERT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, file, {}, &error)) << error;
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context.setPersistentStoreCoordinator(coordinator);
    for (const std::string& label : labels)
        context.insertObject("Thing").setValueForKey("label", Value(label));
    ASSERT_TRUE(context.save(&error)) << error;
}

std::vector<std::string> ScratchVersions::labels(const fs::path& file)
{
    std::vector<std::string> labels;
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    const auto collect = [](void* found, int, char** values, char**) {
        static_cast<std::vector<std::string>*>(found)->emplace_back(values[0] ? values[0] : "NULL");
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, "SELECT \"label\" FROM \"Thing\" ORDER BY \"pk\"", collect, &labels, nullptr),
        SQLITE_OK);
    sqlite3_close(database);
    return labels;
}

} // namespace tarn
