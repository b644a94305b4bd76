#include "tarnmodel/store/VexMigrationManager.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tests/store/StackFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MigrationManager : public StackFixture {
protected:
    bool migrate()
    {
        error_ = NSError("before", 1, "");
        return manager_.progressivelyMigrateURL(storeFile(), StoreType::SQLite, *model_, &error_);
    }

    const std::shared_ptr<const NSManagedObjectModel> model_ = OVManagedObjectModel::current();
    VexMigrationManager manager_;
    NSError error_;
};

TEST_F(MigrationManager, HasNothingToDoForACurrentStore)
{
    makeStoreOfVersion("Model 3");
    EXPECT_TRUE(migrate());
    EXPECT_EQ(error_, NSError());
    EXPECT_THAT(manager_.migratedVersions(), IsEmpty());
}

TEST_F(MigrationManager, HasNoPathFromAModelThatNobodyKnows)
{
    makeStoreOfUnknownModel();
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_, NSError("Kelpa", 8001, "No mapping model found in bundle"));
}

TEST_F(MigrationManager, HasNoPathWithoutModels)
{
    makeStoreOfVersion("Model 2");
    world_.setVariable("TARN_RESOURCES", folder().string());
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_, NSError("Kelpa", 8001, "No models found!"));
}

TEST_F(MigrationManager, TellsWhyAStoreCannotBeRead)
{
    EXPECT_FALSE(migrate());
    EXPECT_EQ(error_.domain(), TarnStoreErrorDomain);
    EXPECT_EQ(error_.code(), StoreErrorCannotOpen);
    EXPECT_THAT(files(), IsEmpty()) << "looking makes no file";
}

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
        std::filesystem::remove(storeFile());
    }
}

TEST_F(MigrationManager, ForgetsADelegateThatHasEnded)
{
    {
        VexMigrationManagerDelegate delegate;
        manager_.setDelegate(&delegate);
        EXPECT_EQ(manager_.delegate(), &delegate);
    }
    EXPECT_EQ(manager_.delegate(), nullptr);
}

} // namespace
} // namespace tarn
