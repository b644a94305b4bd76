#pragma once

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/store/VexMigrationManager.h"
#include "tests/store/ScratchVersions.h"
#include "tests/store/StackFixture.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Writes the progress down, and does what a test says at each.
class ProgressWatcher : public VexMigrationManagerDelegate {
public:
    void migrationManagerMigrationProgress(VexMigrationManager& manager, float progress) override
    {
        if (!progresses.empty() && progress < progresses.back().back())
            progresses.emplace_back();
        if (progresses.empty())
            progresses.emplace_back();
        progresses.back().push_back(progress);
        if (atProgress)
            atProgress(manager, progress);
    }
    std::vector<std::shared_ptr<const NSMappingModel>> migrationManagerMappingModelsForSourceModel(
        VexMigrationManager&, const std::shared_ptr<const NSManagedObjectModel>& sourceModel) override
    {
        sources.push_back(sourceModel->versionIdentifier());
        return mappings;
    }

    std::vector<std::vector<float>> progresses; ///< one list for each step
    std::vector<std::string> sources;
    std::vector<std::shared_ptr<const NSMappingModel>> mappings;
    std::function<void(VexMigrationManager&, float)> atProgress;
};

/// Fails at the second record of a source.
class RefusingPolicy : public NSEntityMigrationPolicy {
public:
    bool createDestinationInstancesForSourceInstance(const MigrationRecord& source, const NSEntityMapping& mapping,
        NSMigrationManager& manager, NSError* error) override
    {
        if (++records_ == 2) {
            assignError(error, NSError("Test", 5, "refused"));
            return false;
        }
        return NSEntityMigrationPolicy::createDestinationInstancesForSourceInstance(source, mapping, manager, error);
    }

private:
    int records_ = 0;
};

class ThrowingPolicy : public NSEntityMigrationPolicy {
public:
    bool createRelationshipsForDestinationInstance(
        MigrationRecord&, const NSEntityMapping&, NSMigrationManager&, NSError*) override
    {
        throw std::runtime_error("out of order");
    }
};

class MigrationManager : public StackFixture {
protected:
    MigrationManager() { manager_.setDelegate(&watcher_); }

    bool migrate() { return migrate(manager_); }
    bool migrate(VexMigrationManager& manager)
    {
        error_ = NSError("before", 1, "");
        return manager.progressivelyMigrateURL(storeFile(), StoreType::SQLite, model_, &error_);
    }
    std::filesystem::path sideFile(std::string_view version = "Model 2") const
    {
        return folder() / ("database." + std::string(version) + ".sqlite");
    }
    std::vector<std::filesystem::path> backups() const { return filesBelow(caches()); }
    /// Whether the migration fails and leaves the store, and nothing else, as it was.
    void expectFailsWithoutATrace()
    {
        const UntouchedFile store(storeFile());
        EXPECT_FALSE(migrate());
        EXPECT_THAT(manager_.migratedVersions(), testing::IsEmpty());
        EXPECT_THAT(files(), testing::ElementsAre("database.sqlite"));
        EXPECT_THAT(backups(), testing::IsEmpty());
        store.expectUntouched();
    }

    std::shared_ptr<const NSManagedObjectModel> model_ = OVManagedObjectModel::current();
    ProgressWatcher watcher_;
    VexMigrationManager manager_;
    NSError error_;
};

/// With models and mappings of its own.
class ScratchMigration : public MigrationManager {
protected:
    ScratchMigration()
    {
        world_.setVariable("TARN_RESOURCES", versions_.folder().string());
        NSEntityMigrationPolicy::registerClass<RefusingPolicy>("RefusingPolicy");
        NSEntityMigrationPolicy::registerClass<ThrowingPolicy>("ThrowingPolicy");
    }
    /// "Model" to "Model 3", with mappings of each step.
    void addThreeVersions(std::string_view policyOfTheLastStep = {})
    {
        for (const char* version : {"Model", "Model 2", "Model 3"})
            versions_.addModel(version);
        versions_.addMapping("Model", "Model 2");
        versions_.addMapping("Model 2", "Model 3", policyOfTheLastStep);
        model_ = ScratchVersions::model("Model 3");
    }
    void makeThings(std::string_view version)
    {
        ScratchVersions::makeStore(storeFile(), version, {"one", "two", "three"});
    }
    std::vector<std::string> things() const { return ScratchVersions::labels(storeFile()); }
    static std::shared_ptr<const NSMappingModel> mapping(
        std::string_view from, std::string_view to, std::string_view policy = {})
    {
        NSError error;
        auto mapping = NSMappingModel::mappingModelWithText(ScratchVersions::mapping(from, to, policy),
            *ScratchVersions::model(from), *ScratchVersions::model(to), &error);
        EXPECT_TRUE(mapping) << error;
        return mapping;
    }

    ScratchVersions versions_{std::filesystem::path(folder()) += " resources"};
};

} // namespace tarn
