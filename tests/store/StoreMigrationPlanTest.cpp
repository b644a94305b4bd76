#include "tarnmodel/store/StoreMigrationPlan.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tests/store/ScratchVersions.h"
#include "tests/store/StackFixture.h"

#include <fstream>
#include <sqlite3.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

namespace fs = std::filesystem;

class MigrationPlan : public StackFixture {
protected:
    StoreMigrationPlan plan() { return StoreMigrationPlan::planForStoreAtURL(storeFile(), *model_); }
    /// As a later or an earlier version of the library would have written it.
    void setMetadata(std::string_view key, std::string_view value)
    {
        sqlite3* other = nullptr;
        ASSERT_EQ(sqlite3_open(storeFile().c_str(), &other), SQLITE_OK);
        const std::string sql
            = "UPDATE store_metadata SET value = '" + std::string(value) + "' WHERE key = '" + std::string(key) + "'";
        ASSERT_EQ(sqlite3_exec(other, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
        ASSERT_EQ(sqlite3_changes(other), 1);
        sqlite3_close(other);
    }

    std::shared_ptr<const NSManagedObjectModel> model_ = OVManagedObjectModel::current();
};

TEST_F(MigrationPlan, KnowsThatThereIsNoStore)
{
    EXPECT_EQ(plan().standing, StoreStanding::Missing);
    EXPECT_EQ(plan().currentVersion, "Model 3");
    EXPECT_THAT(files(), IsEmpty());
    std::ofstream(storeFile()).flush();
    EXPECT_EQ(plan().standing, StoreStanding::Missing) << "an empty file becomes a store";
}

TEST_F(MigrationPlan, KnowsACurrentStore)
{
    makeStoreOfVersion("Model 3");
    const StoreMigrationPlan found = plan();
    EXPECT_EQ(found.standing, StoreStanding::Current);
    EXPECT_EQ(found.storeVersion, "Model 3");
    EXPECT_EQ(found.storeSize, fs::file_size(storeFile()));
    EXPECT_EQ(found.neededSpace, 0U);
    EXPECT_THAT(found.versions, IsEmpty());
}

TEST_F(MigrationPlan, NamesTheStepsOfAnOlderStoreAndWhatTheyNeed)
{
    world_.setAvailableSpace(5'000'000'000);
    makeStoreOfVersion("Model");
    const UntouchedFile store(storeFile());
    const StoreMigrationPlan both = plan();
    EXPECT_EQ(both.standing, StoreStanding::Older);
    EXPECT_EQ(both.storeVersion, "Model");
    EXPECT_THAT(both.versions, ElementsAre("Model 2", "Model 3"));
    EXPECT_EQ(both.availableSpace, 5'000'000'000U);
    EXPECT_GE(both.neededSpace, 2 * both.storeSize) << "the stores before each step are kept";
    store.expectUntouched();
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    EXPECT_THAT(filesBelow(caches()), IsEmpty());
    fs::remove(storeFile());

    makeStoreOfVersion("Model 2");
    EXPECT_THAT(plan().versions, ElementsAre("Model 3"));
    EXPECT_LT(plan().neededSpace, both.neededSpace);
    EXPECT_TRUE(plan().fits());
    world_.setAvailableSpace(plan().neededSpace);
    EXPECT_TRUE(plan().fits());
    world_.setAvailableSpace(plan().neededSpace - 1);
    EXPECT_FALSE(plan().fits());
    world_.setAvailableSpace(std::nullopt);
    EXPECT_EQ(plan().availableSpace, std::nullopt);
    EXPECT_TRUE(plan().fits()) << "as the migration itself takes it";
}

TEST_F(MigrationPlan, TellsANewerStoreFromOneWithoutAPath)
{
    makeStoreOfUnknownModel();
    EXPECT_EQ(plan().standing, StoreStanding::Unknown);
    EXPECT_EQ(plan().storeVersion, "Other");
    for (const auto& [version, standing] :
        {std::pair("Model 4", StoreStanding::Newer), std::pair("Model 10", StoreStanding::Newer),
            std::pair("Model 3", StoreStanding::Unknown), std::pair("Model", StoreStanding::Unknown),
            std::pair("Other 9", StoreStanding::Unknown), std::pair("Model x4", StoreStanding::Unknown),
            std::pair("Model 99999999999999999999999", StoreStanding::Unknown)}) {
        setMetadata("modelVersion", version);
        EXPECT_EQ(plan().standing, standing) << version;
        EXPECT_EQ(plan().storeVersion, version);
    }
}

TEST_F(MigrationPlan, KnowsStoresOfAnotherFormat)
{
    for (const char* version : {"Model", "Model 3"}) {
        makeStoreOfVersion(version);
        setMetadata("formatVersion", "2");
        EXPECT_EQ(plan().standing, StoreStanding::Newer) << version;
        setMetadata("formatVersion", "0");
        EXPECT_EQ(plan().standing, StoreStanding::Unknown) << version;
        setMetadata("formatVersion", "1a");
        EXPECT_EQ(plan().standing, StoreStanding::Unknown) << version;
        fs::remove(storeFile());
    }
}

TEST_F(MigrationPlan, TellsWhyAStoreCannotBeRead)
{
    std::ofstream(storeFile()) << "This is no store, but a text that is longer than a header would have to be.";
    EXPECT_EQ(plan().standing, StoreStanding::Unreadable);
    EXPECT_EQ(plan().error.code(), StoreErrorNotAStore);
    fs::remove(storeFile());
    fs::create_directory(storeFile());
    EXPECT_EQ(plan().standing, StoreStanding::Unreadable);
    EXPECT_EQ(plan().error.code(), StoreErrorCannotOpen);
}

TEST_F(MigrationPlan, KnowsNoPathThatStopsOnTheWayOrTurnsBack)
{
    const ScratchVersions versions(fs::path(folder()) += " resources");
    world_.setVariable("TARN_RESOURCES", versions.folder().string());
    for (const char* version : {"Model", "Model 2", "Model 3"})
        versions.addModel(version);
    model_ = ScratchVersions::model("Model 3");
    ScratchVersions::makeStore(storeFile(), "Model", {});
    versions.addMapping("Model", "Model 2");
    EXPECT_EQ(plan().standing, StoreStanding::Unknown);
    versions.addMapping("Model 2", "Model");
    EXPECT_EQ(plan().standing, StoreStanding::Unknown);
    fs::remove(versions.folder() / "Model.momd" / "Model 2 to Model.mapping.json");
    versions.addMapping("Model 2", "Model 3");
    EXPECT_EQ(plan().standing, StoreStanding::Older);
}

} // namespace
} // namespace tarn
