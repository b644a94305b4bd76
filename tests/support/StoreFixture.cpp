#include "tests/support/StoreFixture.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <sqlite3.h>

namespace tarn {

// World ---------------------------------------------------------------------------------------------------------------

StillWorld::StillWorld()
    : filesRoot_(std::filesystem::temp_directory_path() / ("tarn datën " + newUUIDString())),
      clock_(dateWithMicrosecondsSince1970(1'700'000'000'000'000)),
      previousHost_(setHostUUIDProvider([](std::chrono::seconds) {
          return HostUUID{HostUUIDStatus::Known, *bytesOfUUIDString(deviceUUID)};
      }))
{
    world_.setClock([this] { return tick(); });
    world_.setHostName(std::string(deviceName));
    world_.setLocaleIdentifier("en_US");
    world_.setTimeZoneIdentifier("UTC");
    world_.setCacheDirectory(filesRoot_ / "Cache");
    world_.setVariable("XDG_DATA_HOME", (filesRoot_ / "Data").string());
    OVLocalFileManager::setApplicationPersistentDataTestURL(filesRoot_);
}

StillWorld::~StillWorld()
{
    OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
    setHostUUIDProvider(previousHost_);
    std::error_code ignored;
    std::filesystem::remove_all(filesRoot_, ignored);
}

NSDate StillWorld::tick()
{
    clock_ += std::chrono::milliseconds(1);
    return clock_;
}

// Store ---------------------------------------------------------------------------------------------------------------

TestStore::TestStore(StoreType type, StoreOptions options)
    : type_(type), options_(std::move(options)),
      folder_(std::filesystem::temp_directory_path() / ("tarn störe " + newUUIDString()))
{
    std::filesystem::create_directories(folder_);
}

TestStore::~TestStore()
{
    close();
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
}

void TestStore::open()
{
    NSError error;
    if (!coordinator_) {
        const auto model = OVManagedObjectModel::current(&error);
        ASSERT_TRUE(model) << error;
        coordinator_ = std::make_shared<NSPersistentStoreCoordinator>(model);
        ASSERT_TRUE(coordinator_->addPersistentStoreWithType(type_, storeFile(), options_, &error)) << error;
    }
    context_ = contextOn(coordinator_);
}

std::vector<std::string> TestStore::problems()
{
    NSError error;
    std::vector<std::string> problems;
    EXPECT_TRUE(store().checkIntegrity(problems, &error)) << error;
    return problems;
}

void TestStore::close()
{
    context_.reset();
    coordinator_.reset();
}

void TestStore::save()
{
    NSError error;
    ASSERT_TRUE(context().save(&error)) << error;
}

void TestStore::reopen()
{
    save();
    context_.reset();
    if (type_ == StoreType::SQLite)
        coordinator_.reset();
    open();
}

std::shared_ptr<NSPersistentStoreCoordinator> TestStore::openAgain() const
{
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
    NSError error;
    EXPECT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, storeFile(), options_, &error)) << error;
    return coordinator;
}

std::unique_ptr<NSManagedObjectContext> TestStore::contextOn(std::shared_ptr<NSPersistentStoreCoordinator> coordinator)
{
    auto context = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context->setPersistentStoreCoordinator(std::move(coordinator));
    return context;
}

void TestStore::runSQL(const char* sql)
{
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(storeFile().c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

OVNote& TestStore::noteTitled(std::string_view title)
{
    OVNote* note = OVNote::insertInManagedObjectContext(context());
    note->setTitle(title);
    return *note;
}

OVNoteImage& TestStore::image(OVNote& note, std::string_view filename)
{
    OVNoteImage* image = OVNoteImage::insertInManagedObjectContext(context());
    image->setFilename(filename);
    image->setNote(&note);
    return *image;
}

OVNoteGenericFile& TestStore::file(OVNote& note, std::string_view filename)
{
    OVNoteGenericFile* file = OVNoteGenericFile::insertInManagedObjectContext(context());
    file->setFilename(filename);
    file->setNote(&note);
    return *file;
}

// Fixture -------------------------------------------------------------------------------------------------------------

void StoreFixture::TearDown()
{
    EXPECT_THAT(problems(), testing::IsEmpty());
    close();
    EXPECT_THAT(takeLog(), testing::IsEmpty()) << "unexpected log messages";
}

} // namespace tarn
