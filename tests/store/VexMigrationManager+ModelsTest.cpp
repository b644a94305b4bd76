#include "tests/store/MigrationManagerFixture.h"

#include <fstream>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

// Models --------------------------------------------------------------------------------------------------------------

TEST_F(MigrationManager, KnowsEveryVersionOfTheModel)
{
    std::vector<std::string> names;
    for (const auto& path : VexMigrationManager::modelPaths())
        names.push_back(path.stem().string());
    EXPECT_THAT(names, ElementsAre("Model", "Model 2", "Model 3"));

    for (const std::string_view version : {"Model", "Model 2", "Model 3"}) {
        makeStoreOfVersion(version);
        const auto metadata
            = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, storeFile());
        const auto source = VexMigrationManager::sourceModelForSourceMetadata(*metadata);
        ASSERT_TRUE(source) << version;
        EXPECT_EQ(source->versionIdentifier(), version);
        fs::remove(storeFile());
    }
}

TEST_F(ScratchMigration, ListsModelsByVersionAndThoseAtTheTopLast)
{
    for (const char* version : {"Model 10", "Model 2", "Model"})
        versions_.addModel(version);
    versions_.addModel("Another", "Another.momd/Another.json");
    versions_.addModel("Top 2", "Top 2.model.json");
    versions_.addModel("Top", "Top.model.json");
    versions_.addModel("None", "None.json");
    versions_.addMapping("Model", "Model 2");
    std::ofstream(versions_.folder() / "Model.momd" / "VersionInfo.json") << "{}";
    std::vector<std::string> names;
    for (const auto& path : VexMigrationManager::modelPaths())
        names.push_back(path.lexically_relative(versions_.folder()).string());
    EXPECT_THAT(names,
        ElementsAre("Another.momd/Another.json", "Model.momd/Model.json", "Model.momd/Model 2.json",
            "Model.momd/Model 10.json", "Top.model.json", "Top 2.model.json"));
}

TEST_F(ScratchMigration, GoesToTheFirstModelWithAMapping)
{
    addThreeVersions();
    versions_.addMapping("Model", "Model 3");
    std::shared_ptr<const NSManagedObjectModel> destination;
    std::shared_ptr<const NSMappingModel> mapping;
    std::string name;
    NSError error;
    ASSERT_TRUE(
        VexMigrationManager::getDestinationModel(destination, mapping, name, *ScratchVersions::model("Model"), &error))
        << error;
    EXPECT_EQ(name, "Model 2");
    EXPECT_EQ(destination->versionIdentifier(), "Model 2");
    EXPECT_EQ(mapping->destinationVersion(), "Model 2");
}

TEST_F(ScratchMigration, GoesToAModelAtTheTopAsWell)
{
    versions_.addModel("Model");
    versions_.addModel("Model 2", "Model 2.model.json");
    versions_.addMapping("Model", "Model 2");
    std::shared_ptr<const NSManagedObjectModel> destination;
    std::shared_ptr<const NSMappingModel> mapping;
    std::string name;
    EXPECT_TRUE(VexMigrationManager::getDestinationModel(destination, mapping, name, *ScratchVersions::model("Model")));
    EXPECT_EQ(name, "Model 2");
}

TEST_F(ScratchMigration, PassesOverAModelThatCannotBeRead)
{
    addThreeVersions();
    std::ofstream(versions_.folder() / "Model.momd" / "Model 1.json") << "{";
    makeThings("Model");
    EXPECT_TRUE(migrate()) << error_;
}

// Mapping models of the delegate --------------------------------------------------------------------------------------

TEST_F(ScratchMigration, GoesByTheMappingModelsOfItsDelegate)
{
    addThreeVersions("RefusingPolicy");
    makeThings("Model 2");
    watcher_.mappings = {mapping("Model 2", "Model 3")};
    ASSERT_TRUE(migrate()) << error_;
    EXPECT_THAT(watcher_.sources, ElementsAre("Model 2"));
    EXPECT_THAT(things(), ElementsAre("one", "two", "three"));
}

TEST_F(ScratchMigration, KeepsTheInstalledMappingModelWhereTheDelegateHasNone)
{
    addThreeVersions();
    makeThings("Model 2");
    watcher_.mappings = {nullptr};
    EXPECT_TRUE(migrate()) << error_;
}

TEST_F(ScratchMigration, IsDecidedByTheLastMappingModel)
{
    addThreeVersions();
    makeThings("Model 2");
    watcher_.mappings = {mapping("Model 2", "Model 3", "RefusingPolicy"), mapping("Model 2", "Model 3")};
    ASSERT_TRUE(migrate()) << error_;
    EXPECT_THAT(things(), ElementsAre("one", "two", "three"));
    EXPECT_EQ(watcher_.progresses.back().back(), 1.0F);
}

TEST_F(ScratchMigration, HasFailedWhenTheLastMappingModelHas)
{
    addThreeVersions();
    makeThings("Model 2");
    watcher_.mappings = {mapping("Model 2", "Model 3"), mapping("Model 2", "Model 3", "RefusingPolicy")};
    expectFailsWithoutATrace();
}

} // namespace
} // namespace tarn
