#include "tests/processes/MigrationWork.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tarnmodel/store/OVCoreDataStackForWidgets.h"
#include "tests/processes/KnownWorld.h"
#include "tests/processes/Worker.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace tarn {

namespace {

namespace fs = std::filesystem;

constexpr int kNotesOfOldStore = 12;

std::shared_ptr<const NSManagedObjectModel> modelOfVersion(std::string_view version)
{
    NSError error;
    auto model = NSManagedObjectModel::modelWithContentsOfFile(
        OVManagedObjectModel::modelURLForVersion(version).value_or(""), &error);
    require(model != nullptr, error);
    return model;
}

void makeOldStore()
{
    NSError error;
    const auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(modelOfVersion("Model"));
    require(coordinator->addPersistentStoreWithType(StoreType::SQLite, OVLocalFileManager::databaseURL(), {}, &error)
            != nullptr,
        error);
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context.setPersistentStoreCoordinator(coordinator);
    for (int number = 0; number < kNotesOfOldStore; ++number) {
        NSManagedObject& note = context.insertObject("OVNote");
        const std::string title = "Note " + std::to_string(number);
        note.setValueForKey("uniqueIdentifier", Value("NOTE-" + std::to_string(number)));
        note.setValueForKey("title", Value(title));
        note.setValueForKey("text",
            Value("# " + title + "\n\nsee [[Note " + std::to_string(number / 2) + "]], `code`\n"
                + std::string(static_cast<std::size_t>(number) * 700, 'x')));
    }
    require(context.save(&error), error);
}

void bringToVersion2()
{
    NSError error;
    VexMigrationManager manager;
    require(manager.progressivelyMigrateURL(
                OVLocalFileManager::databaseURL(), StoreType::SQLite, modelOfVersion("Model 2"), &error),
        error);
}

void exchangeFiles(const fs::path& backup)
{
    NSError error;
    const fs::path store = OVLocalFileManager::databaseURL();
    const auto held = HeldStoreFile::hold(store, {}, &error);
    require(held && held->replaceWith(store.parent_path() / "next.sqlite", backup, &error), error);
}

/// Stops in the middle of a step until it is told to go on.
class PausingMigration : public VexMigrationManager {
public:
    explicit PausingMigration(std::size_t step) : step_(step) { }

    void observeValueForKeyPath(std::string_view keyPath, NSMigrationManager& object, float change) override
    {
        VexMigrationManager::observeValueForKeyPath(keyPath, object, change);
        if (migratedVersions().size() + 1 != step_ || change == 0 || hasPaused_)
            return;
        hasPaused_ = true;
        const fs::path folder = OVLocalFileManager::applicationPersistentDataURL();
        std::ofstream(folder / "paused").flush();
        while (!fs::exists(folder / "go on"))
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }

private:
    std::size_t step_;
    bool hasPaused_ = false;
};

class Application : public OVCoreDataStackDelegate {
public:
    void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack&, const NSError& error) override
    {
        failure = "the store could not be opened: " + error.localizedDescription();
    }
    void coreDataStackDidEndMigration(OVCoreDataStack&, const std::optional<NSError>& error,
        const std::vector<std::string>& migratedVersions) override
    {
        if (error)
            failure = "migration failed: " + error->localizedDescription();
        std::string line = "migrated:";
        for (const std::string& version : migratedVersions)
            line += " " + version;
        std::cout << line << '\n';
    }
    bool coreDataStackShouldSetStoreAsideAtURL(OVCoreDataStack&, StoreStanding, const fs::path&) override
    {
        failure = "the store was to be set aside";
        return false;
    }
    std::string failure;
};

void startApplication(std::size_t pausingStep)
{
    Application application;
    OVCoreDataStack stack;
    if (pausingStep > 0)
        stack.setMigrationManagerMaker([pausingStep] { return std::make_unique<PausingMigration>(pausingStep); });
    stack.setupStackWithDelegate(&application);
    MainQueue::main().runUntil(
        [&] { return stack.managedObjectContext() || !application.failure.empty(); }, std::chrono::seconds(60));
    require(application.failure.empty() && stack.managedObjectContext(), NSError("", 0, application.failure));
}

void tellOfNotes(NSManagedObjectContext& context)
{
    context.performBlockAndWait(
        [&] { std::cout << OVNote::allNotesInManagedObjectContext(context).size() << " notes\n"; });
}

void openAsExtension()
{
    NSError error;
    const auto stack = OVCoreDataStackForExtensions::initStackOutputError(&error);
    require(stack != nullptr, error);
    tellOfNotes(*stack->managedObjectContext());
}

void openAsWidget()
{
    NSError error;
    const auto stack = OVCoreDataStackForWidgets::initStack(&error);
    require(stack != nullptr, error);
    tellOfNotes(*stack->managedObjectContext());
}

} // namespace

void workOnMigration(std::span<const std::string_view> arguments)
{
    const fs::path folder(arguments[0]);
    const std::string_view work = arguments[1];
    const KnownWorld world(work == "make" ? 5 : 6);
    EnvironmentOverride caches;
    caches.setCacheDirectory(folder / "Cache");
    OVLocalFileManager::setApplicationPersistentDataTestURL(folder);
    MainQueue::main();
    if (work == "make")
        makeOldStore();
    else if (work == "step")
        bringToVersion2();
    else if (work.starts_with("exchange "))
        exchangeFiles(work.substr(9));
    else if (work == "extension")
        openAsExtension();
    else if (work == "widget")
        openAsWidget();
    else
        startApplication(work.starts_with("pause ") ? static_cast<std::size_t>(numberOf(work.substr(6))) : 0);
}

} // namespace tarn
