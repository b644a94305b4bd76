#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/sync/HostUUID.h"
#include "tests/support/LogCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class OVNoteGenericFile;
class OVNoteImage;

/// A world that stands still: a clock that moves by a millisecond whenever it is asked, one device, one name. What is
/// logged in it is collected.
class StillWorld {
public:
    StillWorld();
    ~StillWorld();
    StillWorld(const StillWorld&) = delete;
    StillWorld& operator=(const StillWorld&) = delete;

    /// The present time, by the world's clock, which it moves on.
    NSDate mark() { return tick(); }
    /// The time that the clock gave last.
    NSDate lastTime() const { return clock_; }
    /// The persistent data folder of this world, where attachments lie; it is not there before something does.
    const std::filesystem::path& filesRoot() const { return filesRoot_; }
    /// What was logged since the last time.
    std::vector<std::string> takeLog() { return log_.take(); }

    static constexpr std::string_view deviceUUID = "01020304-0506-4708-890A-0B0C0D0E0F10";
    static constexpr std::string_view deviceName = "Zoë’s test machine";

protected:
    EnvironmentOverride world_;

private:
    NSDate tick();

    std::filesystem::path filesRoot_;
    NSDate clock_;
    HostUUIDProvider previousHost_;
    LogCapture log_;
};

/// A new store in a folder of its own (with a blank and a letter outside ASCII in its name), and one context on it.
/// What fails fails the test.
class TestStore {
public:
    explicit TestStore(StoreType type, StoreOptions options = {});
    ~TestStore();
    TestStore(const TestStore&) = delete;
    TestStore& operator=(const TestStore&) = delete;

    void open();
    /// What the store finds amiss in itself.
    std::vector<std::string> problems();
    void close();

    NSManagedObjectContext& context() { return *context_; }
    NSPersistentStore& store() { return *coordinator_->persistentStore(); }
    std::filesystem::path storeFile() const { return folder_ / "database.sqlite"; }

    void save();
    /// Saves and goes on with a new context (on a file: with a newly opened store). Records from before are gone.
    void reopen();
    /// Opens the store's file once more, as another process does.
    std::shared_ptr<NSPersistentStoreCoordinator> openAgain() const;
    static std::unique_ptr<NSManagedObjectContext> contextOn(std::shared_ptr<NSPersistentStoreCoordinator> coordinator);
    /// Runs statements on the store's file behind the store's back, as another program or a damage would.
    void runSQL(const char* sql);

    // Builders; records belong to the context.
    template <typename Record> Record& insert() { return *Record::insertInManagedObjectContext(context()); }
    OVNote& note(std::string_view text) { return *OVNote::noteWithText(text, context()); }
    /// A note that has this title and no text.
    OVNote& noteTitled(std::string_view title);
    OVNoteTag& tag(std::string_view name) { return *OVNoteTag::getOrCreateTagWithName(name, context()); }
    OVNoteImage& image(OVNote& note, std::string_view filename);
    OVNoteGenericFile& file(OVNote& note, std::string_view filename);

    /// All records of an entity, in the store's order.
    template <typename Record> std::vector<Record*> all()
    {
        std::vector<Record*> records;
        for (NSManagedObject* record :
            context().executeFetchRequest(NSFetchRequest(Record::entityInManagedObjectContext(context()))))
            records.push_back(static_cast<Record*>(record));
        return records;
    }

private:
    StoreType type_;
    StoreOptions options_;
    std::filesystem::path folder_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    std::unique_ptr<NSManagedObjectContext> context_;
};

/// A new store of each kind for each test, in a world that stands still.
///
/// A test fails on log messages that it did not take, and on a store that is not sound at its end.
///
///     class TagRename : public StoreFixture { };
///     INSTANTIATE_TEST_SUITE_P(Stores, TagRename, everyStore(), storeName);
class StoreFixture : public testing::TestWithParam<StoreType>, protected StillWorld, protected TestStore {
protected:
    StoreFixture() : TestStore(GetParam()) { }
    void SetUp() override { open(); }
    void TearDown() override;
};

inline auto everyStore()
{
    return testing::Values(StoreType::SQLite, StoreType::InMemory);
}

inline std::string storeName(const testing::TestParamInfo<StoreType>& info)
{
    return info.param == StoreType::SQLite ? "SQLite" : "InMemory";
}

/// The titles of records, "-" for none.
template <typename Record> std::vector<std::string> titlesOf(const std::vector<Record*>& records)
{
    std::vector<std::string> titles;
    for (const Record* record : records)
        titles.push_back(record->title().value_or("-"));
    return titles;
}

} // namespace tarn
