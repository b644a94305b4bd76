#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

class NoteMigration : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteMigration, everyStore(), storeName);

TEST_P(NoteMigration, LeavesANoteOfTheCurrentVersionAsItIs)
{
    OVNote& note = this->note("# Trip\n\n#rome [[Groceries]]");
    save();
    note.migrateDataToCurrentVersion();
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(NoteMigration, LeavesAProtectedNoteAlone)
{
    OVNote& note = this->note("# Trip\n\n#rome");
    OVEncryptionState state;
    state.encrypted = true;
    state.encryptedData = NSData::fromText("cipher");
    note.setEncryptionState(state);
    note.updatePrimitiveText(std::nullopt);
    save();
    note.migrateDataToCurrentVersion();
    EXPECT_FALSE(context().hasChanges());
    EXPECT_EQ(note.encryptedData(), NSData::fromText("cipher"));
}

TEST_P(NoteMigration, HasHooksThatChangeNothing)
{
    OVNote& note = this->note("# Trip");
    save();
    ManagedMigrationRecord record(note);
    OVNote::migrateManagedObjectToVersion2(record);
    OVNote::migrateManagedObjectToVersion3(record);
    EXPECT_FALSE(context().hasChanges());
}

} // namespace
} // namespace tarn
