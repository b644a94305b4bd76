#pragma once

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tarnmodel/sync/HostUUID.h"
#include "tests/support/LogCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

class NSProgress;
class OVNote;

/// Writes down what a stack tells it, in order.
class StackListener : public OVCoreDataStackDelegate {
public:
    std::vector<std::string> events;
    std::shared_ptr<NSProgress> progress;
    std::optional<NSError> error;                                        ///< the last one
    std::vector<std::pair<StoreStanding, std::filesystem::path>> asides; ///< what it was asked to set aside, and where
    bool letsSetAside = true;
    std::function<void(NSProgress&)> onBegin; ///< when a migration begins
    std::function<void()> onAside;            ///< when it is asked

    void coreDataStackDidInitializeManagedObjectContext(
        OVCoreDataStack& stack, NSManagedObjectContext& context) override;
    void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack& stack, const NSError& failure) override;
    void coreDataStackDidBeginMigrationWithProgress(
        OVCoreDataStack& stack, const std::shared_ptr<NSProgress>& begun) override;
    void coreDataStackDidEndMigration(OVCoreDataStack& stack, const std::optional<NSError>& migrationError,
        const std::vector<std::string>& migratedVersions) override;
    bool coreDataStackShouldSetStoreAsideAtURL(
        OVCoreDataStack& stack, StoreStanding standing, const std::filesystem::path& place) override;
    void coreDataStackDidFailToSave(OVCoreDataStack& stack, const NSError& failure) override;
    void coreDataStackDidMergeConflict(OVCoreDataStack& stack, const MergeConflict& conflict) override;
};

/// An empty persistent data folder (with a blank and a letter outside ASCII in its name) for the stacks of a test, and
/// a clock that stands still. The stacks open the stores: that is what is tested. A test fails on log messages that it
/// did not take.
class StackFixture : public testing::Test {
protected:
    StackFixture();
    ~StackFixture() override;
    void TearDown() override;

    const std::filesystem::path& folder() const { return folder_; }
    std::filesystem::path storeFile() const { return folder_ / "database.sqlite"; }
    /// The user's cache folder, in which the temporary folders lie.
    const std::filesystem::path& caches() const { return caches_; }
    /// All files below a folder.
    static std::vector<std::filesystem::path> filesBelow(const std::filesystem::path& folder);
    /// The names of all files in the folder, sorted.
    std::vector<std::string> files() const;
    static std::string bytesOf(const std::filesystem::path& file);

    /// Makes the store with an installed version of the model ("Model 2"), and notes in it.
    void makeStoreOfVersion(std::string_view version, const std::vector<std::string>& titles = {});
    /// A second name of the store, as a migration leaves it that was killed, in the temporary folder of a process that
    /// has ended.
    std::filesystem::path leaveSecondName() const;
    /// What the store says of the model that it has.
    std::string versionOfStore() const;
    /// Makes the store with a model that this library has never had.
    void makeStoreOfUnknownModel();

    /// Opens a stack that never migrates; whether that gave one.
    using Opening = std::function<bool(NSError*)>;
    /// Stores of older and of unknown models are refused with the error of the stack's class, and stay as they are.
    void expectRefusesStoresThatNeedMigration(std::string_view domain, const Opening& open);
    void expectRefusesAFileThatIsNoStore(const Opening& open) const;

    /// Drains the main queue until the condition holds; fails the test after ten seconds.
    static void runUntil(const std::function<bool()>& done);
    static OVNote& noteTitled(std::string_view title, NSManagedObjectContext& context);
    /// As another process finds them in the file.
    std::vector<std::string> titlesInStore() const;
    static std::vector<std::string> titlesIn(NSManagedObjectContext& context);
    std::vector<std::string> takeLog() { return log_.take(); }

    EnvironmentOverride world_;
    StackListener listener_;

private:
    void makeStore(
        const std::shared_ptr<const NSManagedObjectModel>& model, const std::vector<std::string>& titles = {});

    std::filesystem::path folder_;
    std::filesystem::path caches_;
    HostUUIDProvider previousHost_;
    LogCapture log_;
};

/// What an extension and a widget must leave alone: the bytes of the store and the time of its last change.
class UntouchedFile {
public:
    explicit UntouchedFile(std::filesystem::path file);
    void expectUntouched() const;

private:
    std::filesystem::path file_;
    std::string bytes_;
    std::filesystem::file_time_type time_;
};

} // namespace tarn
