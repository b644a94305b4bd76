#include "tests/store/StackFixture.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/foundation/events/NSProgress.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <thread>

namespace tarn {

namespace fs = std::filesystem;

// What it hears ------------------------------------------------------------------------------------------------------

namespace {

void expectMainQueue()
{
    EXPECT_TRUE(MainQueue::main().isCurrent()) << "a delegate is called on the main queue";
}

} // namespace

void StackListener::coreDataStackDidInitializeManagedObjectContext(
    OVCoreDataStack& stack, NSManagedObjectContext& context)
{
    expectMainQueue();
    EXPECT_EQ(&context, stack.managedObjectContext());
    events.emplace_back("initialized");
}

void StackListener::coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack& stack, const NSError& failure)
{
    expectMainQueue();
    EXPECT_FALSE(stack.managedObjectContext());
    error = failure;
    events.emplace_back("failed");
}

void StackListener::coreDataStackDidBeginMigrationWithProgress(
    OVCoreDataStack& stack, const std::shared_ptr<NSProgress>& begun)
{
    expectMainQueue();
    EXPECT_FALSE(stack.managedObjectContext());
    progress = begun;
    events.push_back("migration of " + std::to_string(begun->totalUnitCount()));
    if (onBegin)
        onBegin(*begun);
}

void StackListener::coreDataStackDidEndMigration(OVCoreDataStack& stack, const std::optional<NSError>& migrationError,
    const std::vector<std::string>& migratedVersions)
{
    expectMainQueue();
    EXPECT_FALSE(stack.managedObjectContext()) << "contexts come after the end is told";
    error = migrationError;
    std::string event = migrationError ? "migration failed:" : "migrated:";
    for (const std::string& version : migratedVersions)
        event += " " + version;
    events.push_back(event);
}

bool StackListener::coreDataStackShouldSetStoreAsideAtURL(
    OVCoreDataStack&, StoreStanding standing, const std::filesystem::path& place)
{
    expectMainQueue();
    asides.emplace_back(standing, place);
    if (onAside)
        onAside();
    return letsSetAside;
}

void StackListener::coreDataStackDidFailToSave(OVCoreDataStack&, const NSError& failure)
{
    expectMainQueue();
    error = failure;
    events.emplace_back("not saved");
}

void StackListener::coreDataStackDidMergeConflict(OVCoreDataStack&, const MergeConflict& conflict)
{
    expectMainQueue();
    std::string event = "conflict:";
    for (const std::string& property : conflict.properties)
        event += " " + property;
    events.push_back(event);
}

// The folder ---------------------------------------------------------------------------------------------------------

StackFixture::StackFixture()
    : folder_(fs::temp_directory_path() / ("tarn stäck " + newUUIDString())),
      caches_(fs::temp_directory_path() / ("tarn stäck cache " + newUUIDString())),
      previousHost_(setHostUUIDProvider([](std::chrono::seconds) {
          return HostUUID{HostUUIDStatus::Known, *bytesOfUUIDString("01020304-0506-4708-890A-0B0C0D0E0F10")};
      }))
{
    MainQueue::main();                                                   // this thread is its owner
    world_.setNow(dateWithMicrosecondsSince1970(1'580'465'700'250'000)); // 2020-01-31 10:15:00.25
    world_.setTimeZoneIdentifier("Europe/Berlin");
    world_.setCacheDirectory(caches_);
    fs::create_directories(folder_);
    OVLocalFileManager::setApplicationPersistentDataTestURL(folder_);
}

StackFixture::~StackFixture()
{
    OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
    setHostUUIDProvider(previousHost_);
    std::error_code failure;
    fs::remove_all(folder_, failure);
    fs::remove_all(caches_, failure);
}

void StackFixture::TearDown()
{
    MainQueue::main().drain();
    EXPECT_THAT(takeLog(), testing::IsEmpty()) << "unexpected log messages";
}

std::vector<std::string> StackFixture::files() const
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

std::vector<fs::path> StackFixture::filesBelow(const fs::path& folder)
{
    std::vector<fs::path> found;
    std::error_code failure;
    for (fs::recursive_directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure))
        if (entry->is_regular_file())
            found.push_back(entry->path());
    return found;
}

std::string StackFixture::bytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

void StackFixture::makeStore(
    const std::shared_ptr<const NSManagedObjectModel>& model, const std::vector<std::string>& titles)
{
    NSError error;
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(model);
    ASSERT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, storeFile(), {}, &error)) << error;
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    context.setPersistentStoreCoordinator(coordinator);
    context.performBlockAndWait([&] {
        for (const std::string& title : titles)
            context.insertObject("OVNote").setValueForKey("title", Value(title));
        EXPECT_TRUE(context.save(&error)) << error;
    });
}

fs::path StackFixture::leaveSecondName() const
{
    const fs::path place = OVLocalFileManager::temporaryDirectoryURL().parent_path() / "Process.ended";
    fs::create_directory(place);
    fs::create_hard_link(storeFile(), place / "second.sqlite");
    return place / "second.sqlite";
}

std::string StackFixture::versionOfStore() const
{
    NSError error;
    const auto metadata
        = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, storeFile(), &error);
    return metadata ? NSPersistentStoreCoordinator::modelVersionOfStoreMetadata(*metadata)
                    : error.localizedDescription();
}

void StackFixture::makeStoreOfVersion(std::string_view version, const std::vector<std::string>& titles)
{
    NSError error;
    const auto file = OVManagedObjectModel::modelURLForVersion(version);
    ASSERT_TRUE(file) << version;
    const auto model = NSManagedObjectModel::modelWithContentsOfFile(*file, &error);
    ASSERT_TRUE(model) << error;
    makeStore(model, titles);
}

void StackFixture::makeStoreOfUnknownModel()
{
    NSError error;
    const auto model = NSManagedObjectModel::modelWithText(
        R"({"version": "Other", "entities": [{"name": "Thing", "attributes": [{"name": "size", "type": "int64"}]}]})",
        &error);
    ASSERT_TRUE(model) << error;
    makeStore(model);
}

void StackFixture::runUntil(const std::function<bool()>& done)
{
    EXPECT_TRUE(MainQueue::main().runUntil(done, std::chrono::seconds(10))) << "it did not happen";
}

OVNote& StackFixture::noteTitled(std::string_view title, NSManagedObjectContext& context)
{
    OVNote* note = OVNote::insertInManagedObjectContext(context);
    note->setTitle(title);
    return *note;
}

std::vector<std::string> StackFixture::titlesIn(NSManagedObjectContext& context)
{
    std::vector<std::string> titles;
    for (NSManagedObject* record :
        context.executeFetchRequest(NSFetchRequest(OVNote::entityInManagedObjectContext(context))))
        titles.push_back(static_cast<OVNote*>(record)->title().value_or("-"));
    return titles;
}

std::vector<std::string> StackFixture::titlesInStore() const
{
    NSError error;
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
    EXPECT_TRUE(coordinator->addPersistentStoreWithType(
        StoreType::SQLite, storeFile(), {.readOnly = true, .createIfMissing = false}, &error))
        << error;
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context.setPersistentStoreCoordinator(coordinator);
    return titlesIn(context);
}

// Files that are left alone -------------------------------------------------------------------------------------------

void StackFixture::expectRefusesStoresThatNeedMigration(std::string_view domain, const Opening& open)
{
    for (const std::string version : {"Model", "Model 2", "another"}) {
        SCOPED_TRACE(version);
        if (version == "another")
            makeStoreOfUnknownModel();
        else
            makeStoreOfVersion(version);
        const UntouchedFile store(storeFile());
        NSError error;

        EXPECT_FALSE(open(&error));

        EXPECT_EQ(error, NSError(domain, 1, "The database need migration, open the main application"));
        store.expectUntouched();
        EXPECT_THAT(files(), testing::ElementsAre("database.sqlite"));
        fs::remove(storeFile());
    }
    makeStoreOfVersion("Model 2");
    EXPECT_FALSE(open(nullptr)) << "nobody has to take the error";
}

void StackFixture::expectRefusesAFileThatIsNoStore(const Opening& open) const
{
    std::ofstream(storeFile())
        << "This is no store, but a text that is longer than the header of one would have to be.";
    NSError error;
    EXPECT_FALSE(open(&error));
    EXPECT_EQ(error.code(), StoreErrorNotAStore);
    EXPECT_EQ(error.localizedDescription(), "The file is not a store.");
}

UntouchedFile::UntouchedFile(fs::path file) : file_(std::move(file))
{
    // Long ago, so that any change shows, however coarse the clock of the file system is.
    fs::last_write_time(file_, fs::last_write_time(file_) - std::chrono::hours(24));
    std::ifstream stream(file_, std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(stream), {});
    time_ = fs::last_write_time(file_);
}

void UntouchedFile::expectUntouched() const
{
    std::ifstream stream(file_, std::ios::binary);
    EXPECT_TRUE(stream.is_open());
    EXPECT_TRUE(bytes_ == std::string(std::istreambuf_iterator<char>(stream), {})) << "bytes of " << file_;
    EXPECT_EQ(fs::last_write_time(file_), time_) << file_;
}

} // namespace tarn
