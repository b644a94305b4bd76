#include "tarnmodel/store/StoreCompaction.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/notes/OwedCompaction.h"
#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tests/store/StackFixture.h"
#include "tests/support/FreedPages.h"

#include <filesystem>
#include <fstream>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr std::string_view kMarker = "what was deleted before free pages were wiped";

class CompactedStore : public StackFixture {
protected:
    /// A store with two notes, and a text in pages that are free.
    void SetUp() override
    {
        makeStoreOfVersion("Model 3", {"One", "Two"});
        leaveInFreedPages(storeFile(), kMarker);
        ASSERT_TRUE(isMarkerThere());
    }
    bool isMarkerThere() const { return bytesOf(storeFile()).find(kMarker) != std::string::npos; }
    std::map<std::string, std::string> metadata() const
    {
        return NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, storeFile()).value();
    }
    std::string compaction() const
    {
        const auto all = metadata();
        const auto found = all.find(std::string(StoreCompactionKey));
        return found == all.end() ? "-" : found->second;
    }
    void owe()
    {
        OVCoreDataStack stack;
        stack.initializeCoreData();
        ASSERT_TRUE(stack.managedObjectContext()->persistentStoreCoordinator().persistentStore()->setMetadataValue(
            StoreCompactionKey, StoreCompactionOwed, nullptr));
    }
    void openApplication()
    {
        OVCoreDataStack stack;
        stack.setupStackWithDelegate(&listener_);
        EXPECT_TRUE(stack.managedObjectContext());
    }
    /// Protects a note, as an application does.
    void protectOne(OVCoreDataStack& stack, bool saves)
    {
        NSManagedObjectContext& context = *stack.managedObjectContext();
        OVEncryptionOptions options;
        options.cost = {1, 8};
        options.scratchDirectory = [this] { return caches(); };
        OVEncryptionCoreManager manager(context, options);
        OVPassword* const password = OVPassword::insertInManagedObjectContext(context);
        NSError error;
        ASSERT_TRUE(manager.setPassword(*password, "correct horse", std::nullopt, &error)) << error;
        ASSERT_TRUE(manager.addEncryptionToObject(noteTitled("One", context), *password, &error)) << error;
        if (saves)
            ASSERT_TRUE(context.save(&error)) << error;
        else
            context.rollback();
    }
};

TEST_F(CompactedStore, IsOwedFromTheFirstProtectionOn)
{
    {
        OVCoreDataStack stack;
        stack.setupStackWithDelegate(&listener_);
        EXPECT_EQ(compaction(), "-");
        protectOne(stack, false);
        EXPECT_EQ(compaction(), "-") << "nothing was protected after all";
        protectOne(stack, true);
        EXPECT_EQ(compaction(), "owed");
        EXPECT_TRUE(StoreCompaction::isOwed(storeFile()));
    }
    openApplication();
    EXPECT_EQ(compaction(), "done");
    OVCoreDataStack stack;
    stack.setupStackWithDelegate(&listener_);
    stack.managedObjectContext()->rollback();
    OVNote::noteWithText("# One", *stack.managedObjectContext());
    protectOne(stack, true);
    EXPECT_EQ(compaction(), "done") << "free pages are wiped since";
}

TEST_F(CompactedStore, IsOwedAlsoWhenTheSaveIsOneOfAWrite)
{
    OVCoreDataStack stack;
    stack.setupStackWithDelegate(&listener_);
    NSManagedObjectContext& context = *stack.managedObjectContext();
    ASSERT_TRUE(stack.write([](NSManagedObjectContext& written) { noteTitled("One", written).didAddEncryption(); }));
    EXPECT_EQ(compaction(), "owed");
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(CompactedStore, IsOwedByAChildOnceItIsSaved)
{
    OVCoreDataStack stack;
    stack.setupStackWithDelegate(&listener_);
    NSManagedObjectContext& context = *stack.managedObjectContext();
    {
        NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child.setParentContext(context);
        noteTitled("One", child).didAddEncryption();
        ASSERT_TRUE(child.save());
    }
    EXPECT_EQ(compaction(), "-");
    noteTitled("Two", context).pin();
    ASSERT_TRUE(context.save());
    EXPECT_EQ(compaction(), "owed");
}

TEST_F(CompactedStore, HoldsNothingInFreePagesOnceTheApplicationHasOpenedIt)
{
    owe();
    const auto before = metadata();
    std::filesystem::permissions(storeFile(),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write | std::filesystem::perms::group_read);
    openApplication();
    EXPECT_FALSE(isMarkerThere());
    EXPECT_EQ(compaction(), "done");
    auto expected = before;
    expected[std::string(StoreCompactionKey)] = "done";
    EXPECT_EQ(metadata(), expected);
    EXPECT_EQ(std::filesystem::status(storeFile()).permissions(),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write | std::filesystem::perms::group_read);
    EXPECT_THAT(titlesInStore(), testing::UnorderedElementsAre("One", "Two"));
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    EXPECT_EQ(std::filesystem::hard_link_count(storeFile()), 1U);
    OVCoreDataStack stack;
    stack.initializeCoreData();
    std::vector<std::string> problems;
    EXPECT_TRUE(stack.managedObjectContext()->persistentStoreCoordinator().persistentStore()->checkIntegrity(
        problems, nullptr));
    EXPECT_THAT(problems, IsEmpty());
}

TEST_F(CompactedStore, IsLeftAloneWhereNothingIsOwed)
{
    const UntouchedFile untouched(storeFile());
    openApplication();
    untouched.expectUntouched();
}

TEST_F(CompactedStore, IsNoneOfAnExtension)
{
    owe();
    NSError error;
    EXPECT_TRUE(OVCoreDataStackForExtensions::initStackOutputError(&error)) << error;
    EXPECT_TRUE(isMarkerThere());
    EXPECT_EQ(compaction(), "owed");
}

TEST_F(CompactedStore, IsOwedStillWhenAnotherHoldsTheStore)
{
    owe();
    NSError error;
    const auto other = OVCoreDataStackForExtensions::initStackOutputError(&error);
    ASSERT_TRUE(other) << error;
    // A transaction that writes keeps everybody from holding the file.
    ASSERT_TRUE(other->write([&](NSManagedObjectContext& context) {
        noteTitled("Two", context).pin();
        EXPECT_FALSE(StoreCompaction::compact(
            storeFile(), [](std::chrono::milliseconds waited) { return waited < std::chrono::milliseconds(50); },
            &error));
        EXPECT_EQ(error.code(), StoreErrorBusy);
    }));
    EXPECT_EQ(compaction(), "owed");
    EXPECT_TRUE(isMarkerThere());
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
}

TEST_F(CompactedStore, IsOwedStillWhenThereIsNoRoom)
{
    owe();
    world_.setAvailableSpace(1000);
    openApplication();
    EXPECT_THAT(takeLog(), ElementsAre(HasSubstr("it could not be done now")));
    EXPECT_EQ(compaction(), "owed");
    EXPECT_TRUE(isMarkerThere());
    world_.setAvailableSpace(std::uintmax_t{1} << 40);
    openApplication();
    EXPECT_EQ(compaction(), "done");
}

TEST_F(CompactedStore, IsAnotherFileForWhoHasItOpen)
{
    owe();
    OVCoreDataStackForExtensions* extension = nullptr;
    NSError error;
    const auto opened = OVCoreDataStackForExtensions::initStackOutputError(&error);
    extension = opened.get();
    ASSERT_TRUE(extension) << error;
    openApplication();
    noteTitled("One", *extension->managedObjectContext()).pin();
    EXPECT_FALSE(extension->managedObjectContext()->save(&error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
    EXPECT_EQ(compaction(), "done");
}

TEST_F(CompactedStore, RemovesWhatADeadProcessLeft)
{
    owe();
    std::ofstream(folder() / "database.compacted.sqlite") << "half";
    std::ofstream(folder() / "database.compacted.sqlite-journal") << "half";
    std::filesystem::create_hard_link(storeFile(), folder() / "database.uncompacted.sqlite");
    openApplication();
    EXPECT_THAT(files(), ElementsAre("database.sqlite"));
    EXPECT_EQ(compaction(), "done");
    EXPECT_THAT(titlesInStore(), SizeIs(2));
}

TEST_F(CompactedStore, IsNotMadeWhereThereIsNoStore)
{
    std::filesystem::remove(storeFile());
    EXPECT_FALSE(StoreCompaction::isOwed(storeFile()));
    NSError error;
    EXPECT_FALSE(StoreCompaction::compact(storeFile(), {}, &error));
    EXPECT_EQ(error.code(), StoreErrorCannotOpen);
    StoreCompaction::removeLeftovers(storeFile());
    EXPECT_THAT(files(), IsEmpty());
}

} // namespace
} // namespace tarn
