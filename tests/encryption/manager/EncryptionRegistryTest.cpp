#include "tarnmodel/encryption/keys/KeyArena.h"
#include "tests/encryption/EncryptionFixture.h"
#include "tests/support/TextKeeper.h"

#include <optional>

namespace tarn {
namespace {

using Registry = OVEncryptionCoreManager;

class EncryptionRegistry : public EncryptionFixture {
protected:
    static OVEncryptionCoreManagerProtocol* managerOf(const NSManagedObjectContext& context)
    {
        return Registry::encryptionCoreManagerForManagedObjectContext(context);
    }
};

TEST_F(EncryptionRegistry, KnowsAManagerWhileItLives)
{
    EXPECT_EQ(managerOf(context()), manager.get());
    manager.reset();
    EXPECT_EQ(managerOf(context()), nullptr);
}

TEST_F(EncryptionRegistry, ServesChildrenOfChildren)
{
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
    child.setParentContext(context());
    NSManagedObjectContext grandchild(NSManagedObjectContext::ConcurrencyType::MainQueue);
    grandchild.setParentContext(child);
    EXPECT_EQ(managerOf(grandchild), manager.get());
    TextKeeper nearer;
    Registry::setEncryptionCoreManager(&nearer, child);
    EXPECT_EQ(managerOf(grandchild), &nearer);
    EXPECT_EQ(managerOf(context()), manager.get());
    Registry::setEncryptionCoreManager(nullptr, child);
    EXPECT_EQ(managerOf(grandchild), manager.get());
}

TEST_F(EncryptionRegistry, HidesAManagerForExactlyOneContext)
{
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
    child.setParentContext(context());
    Registry::performInManagedObjectContext(context(), [&] {
        EXPECT_EQ(managerOf(context()), nullptr);
        EXPECT_EQ(managerOf(child), manager.get());
    });
    Registry::performInManagedObjectContext(child, [&] {
        EXPECT_EQ(managerOf(child), nullptr);
        EXPECT_EQ(managerOf(context()), manager.get());
    });
    EXPECT_EQ(managerOf(child), manager.get());
}

TEST_F(EncryptionRegistry, HidesAsLongAsTheOutermostBlock)
{
    Registry::performInManagedObjectContext(context(), [&] {
        Registry::performInManagedObjectContext(context(), [] {});
        EXPECT_EQ(managerOf(context()), nullptr);
    });
    EXPECT_EQ(managerOf(context()), manager.get());
    EXPECT_THROW(Registry::performInManagedObjectContext(context(), [] { throw 1; }), int);
    EXPECT_EQ(managerOf(context()), manager.get());
}

TEST_F(EncryptionRegistry, SaysThatFilesCanBeProtected)
{
    EXPECT_TRUE(Registry::isFileEncryptionEnabled());
    Registry::setFileEncryptionEnabled(false);
    OVPassword& password = passwordOf("secret");
    NSError error;
    PlainNoteFile& file = plainFile("file.txt", "bytes");
    EXPECT_FALSE(manager->addEncryptionToObject(file, password, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_EQ(file.filename, "file.txt");
    Registry::setFileEncryptionEnabled(true);
}

TEST_F(EncryptionRegistry, SaysWhetherKeysAreLockedInMemory)
{
    const auto refusing = [](std::span<std::byte>) { return false; };
    const auto agreeing = [](std::span<std::byte>) { return true; };
    {
        const KeyArenaOverride arena(std::make_shared<KeyArena>(KeyArena::defaultSize, refusing));
        EXPECT_FALSE(manager->areKeysLockedInMemory());
        EXPECT_TRUE(manager->hasCachedPassword(passwordOf("secret")));
        manager->lock();
    }
    const KeyArenaOverride arena(std::make_shared<KeyArena>(KeyArena::defaultSize, agreeing));
    EXPECT_TRUE(manager->areKeysLockedInMemory());
}

TEST_F(EncryptionRegistry, TellsWhenThereIsNoRoomForKeys)
{
    const KeyArenaOverride arena(std::make_shared<KeyArena>(8 * KeyArena::slotSize));
    {
        OVPassword& password = passwordOf("secret");
        PlainNote& note = plainNote("text");
        std::vector<std::optional<SecretBytes>> others;
        while (KeyArena::shared()->freeSlots() > 1)
            others.push_back(KeyArena::shared()->take(1, nullptr));
        NSError error;
        EXPECT_FALSE(manager->addEncryptionToObject(note, password, &error));
        EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory);
        EXPECT_EQ(note.text, "text");
        EXPECT_FALSE(manager->unlock(password, "secret", &error));
        EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory);
        EXPECT_FALSE(manager->setPassword(insert<OVPassword>(), "secret", std::nullopt, &error));
        EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory);
    }
    manager->lock();
}

} // namespace
} // namespace tarn
