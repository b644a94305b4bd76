#include "tests/tarn/ForeignWriter.h"

#include "tarnmodel/TarnModel.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarn::test {

void ForeignWriter::changeTextWhileLocked(
    std::string_view note, std::string_view text, const std::function<void()>& block) const
{
    NSError error;
    const auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current(&error));
    ASSERT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, database_, {}, &error)) << error;
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    context.setPersistentStoreCoordinator(coordinator);
    context.performBlockAndWait([&] {
        const bool saved = context.performExclusive(
            [&] {
                block();
                OVNote* record = OVNote::noteWithUniqueIdentifier(note, context);
                ASSERT_TRUE(record);
                record->updateNoteWithText(text);
            },
            &error);
        EXPECT_TRUE(saved) << error;
    });
}

LockedDatabase::LockedDatabase(const std::filesystem::path& database)
{
    EXPECT_EQ(sqlite3_open(database.c_str(), &connection_), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection_, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
}

LockedDatabase::~LockedDatabase()
{
    sqlite3_close(connection_);
}

HeldLock::HeldLock(const std::filesystem::path& file) : descriptor_(::open(file.c_str(), O_RDWR | O_CLOEXEC))
{
    EXPECT_EQ(::flock(descriptor_, LOCK_EX | LOCK_NB), 0);
}

HeldLock::~HeldLock()
{
    ::close(descriptor_);
}

} // namespace tarn::test
