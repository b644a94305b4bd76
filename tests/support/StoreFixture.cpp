#include "tests/support/StoreFixture.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <sqlite3.h>

namespace tarn {

StoreFixture::StoreFixture()
    : folder_(std::filesystem::temp_directory_path() / ("tarn störe " + newUUIDString())),
      clock_(dateWithMicrosecondsSince1970(1'700'000'000'000'000)),
      previousHost_(setHostUUIDProvider([](std::chrono::seconds) {
          return HostUUID{HostUUIDStatus::Known, *bytesOfUUIDString(deviceUUID)};
      }))
{
    world_.setClock([this] { return tick(); });
    world_.setHostName(std::string(deviceName));
    world_.setLocaleIdentifier("en_US");
    world_.setTimeZoneIdentifier("UTC");
}

StoreFixture::~StoreFixture()
{
    setHostUUIDProvider(previousHost_);
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
}

void StoreFixture::SetUp()
{
    std::filesystem::create_directories(folder_);
    open();
}

void StoreFixture::TearDown()
{
    NSError error;
    std::vector<std::string> problems;
    EXPECT_TRUE(store().checkIntegrity(problems, &error)) << error;
    EXPECT_THAT(problems, testing::IsEmpty());
    context_.reset();
    coordinator_.reset();
    EXPECT_THAT(takeLog(), testing::IsEmpty()) << "unexpected log messages";
}

void StoreFixture::open()
{
    NSError error;
    if (!coordinator_) {
        const auto model = OVManagedObjectModel::current(&error);
        ASSERT_TRUE(model) << error;
        coordinator_ = std::make_shared<NSPersistentStoreCoordinator>(model);
        ASSERT_TRUE(coordinator_->addPersistentStoreWithType(GetParam(), storeFile(), {}, &error)) << error;
    }
    context_ = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context_->setPersistentStoreCoordinator(coordinator_);
}

void StoreFixture::save()
{
    NSError error;
    ASSERT_TRUE(context().save(&error)) << error;
}

void StoreFixture::reopen()
{
    save();
    context_.reset();
    if (GetParam() == StoreType::SQLite)
        coordinator_.reset();
    open();
}

void StoreFixture::runSQL(const char* sql)
{
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open(storeFile().c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
}

OVNote& StoreFixture::noteTitled(std::string_view title)
{
    OVNote* note = OVNote::insertInManagedObjectContext(context());
    note->setTitle(title);
    return *note;
}

OVNoteImage& StoreFixture::image(OVNote& note, std::string_view filename)
{
    OVNoteImage* image = OVNoteImage::insertInManagedObjectContext(context());
    image->setFilename(filename);
    image->setNote(&note);
    return *image;
}

OVNoteGenericFile& StoreFixture::file(OVNote& note, std::string_view filename)
{
    OVNoteGenericFile* file = OVNoteGenericFile::insertInManagedObjectContext(context());
    file->setFilename(filename);
    file->setNote(&note);
    return *file;
}

NSDate StoreFixture::tick()
{
    clock_ += std::chrono::milliseconds(1);
    return clock_;
}

} // namespace tarn
