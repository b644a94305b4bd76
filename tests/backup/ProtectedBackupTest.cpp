#include "tests/backup/BackupFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVPassword.h"

#include <fstream>

namespace tarn {
namespace {

/// Backups of notes and attachments that a password protects.
class ProtectedBackup : public BackupFixture {
protected:
    ProtectedBackup() { world_.setRuntimeDirectory(place()); }
    ~ProtectedBackup() override { OVEncryptionCoreManager::setFileEncryptionEnabled(false); }

    static OVEncryptionOptions quickly()
    {
        OVEncryptionOptions options;
        options.cost = {1, 8};
        return options;
    }
    /// A protected note with an attachment, saved and locked.
    void protectANote()
    {
        OVEncryptionCoreManager manager(context(), quickly());
        OVPassword& password = insert<OVPassword>();
        NSError error;
        ASSERT_TRUE(manager.setPassword(password, "correct horse", "a hint", &error)) << error;
        OVNote& secret = note("# Secret\n\nunspoken words\n\n[](plan.txt)");
        attach(secret, "plan.txt", "unspoken bytes");
        secret.updateNoteWithText("# Secret\n\nunspoken words\n\n[](plan.txt)");
        save();
        ASSERT_TRUE(manager.addEncryptionToObject(secret, password, &error)) << error;
        save();
        manager.lock();
    }
    /// The text of the protected note and the bytes of its attachment, once it is unlocked.
    static std::pair<std::string, std::string> contentsWithPassword(NSManagedObjectContext& context)
    {
        OVEncryptionCoreManager manager(context, quickly());
        OVNote* secret = OVNote::allEncryptedNotesInManagedObjectContext(context).front();
        NSError error;
        EXPECT_TRUE(manager.unlock(*secret->password(), "correct horse", &error)) << error;
        const auto files = secret->filesSet().allObjects();
        if (files.empty())
            return {secret->text().value_or("-"), "-"};
        EXPECT_EQ(files.front()->filename(), "plan.txt");
        const auto bytes = files.front()->fileURL();
        return {secret->text().value_or("-"), bytes ? bytesOf(*bytes) : "-"};
    }
};

TEST_F(ProtectedBackup, HoldsNoClearTextAndIsReadWithThePasswordAfterARestore)
{
    protectANote();
    backUp();
    std::string all;
    ASSERT_EQ(
        std::system(("cd '" + place().string() + "' && zstd -q -d -f -o plain '" + archive().string() + "'").c_str()),
        0);
    all = bytesOf(place() / "plain");
    EXPECT_EQ(all.find("unspoken"), std::string::npos);
    EXPECT_EQ(all.find("plan.txt"), std::string::npos);

    TestStore& other = otherStore();
    const auto records = contentsOfStore(context());
    EXPECT_EQ(restore(other).restored, 1U);
    EXPECT_EQ(contentsOfStore(other.context()), records);
    EXPECT_EQ(contentsWithPassword(other.context()),
        std::pair(std::string("# Secret\n\nunspoken words\n\n[](plan.txt)"), std::string("unspoken bytes")));
}

TEST_F(ProtectedBackup, IsRestoredBesideAManagerThatIsLocked)
{
    protectANote();
    backUp();
    TestStore& other = otherStore();
    const OVEncryptionCoreManager manager(other.context(), quickly());
    EXPECT_EQ(restore(other).restored, 1U);
    EXPECT_EQ(restore(other).kept, 1U);
}

TEST_F(ProtectedBackup, KeepsBothStatesOfAProtectedNoteReadable)
{
    protectANote();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    {
        OVEncryptionCoreManager manager(other.context(), quickly());
        OVNote* secret = OVNote::allEncryptedNotesInManagedObjectContext(other.context()).front();
        ASSERT_TRUE(manager.unlock(*secret->password(), "correct horse", nullptr));
        secret->setText("# Secret\n\nothers' words");
        makeUnrelated(*secret);
        other.save();
    }
    EXPECT_EQ(restore(other).conflicts, 1U);
    EXPECT_EQ(restore(other).conflicts, 0U);
    OVEncryptionCoreManager manager(other.context(), quickly());
    std::vector<std::string> texts;
    for (OVNote* version : OVNote::allEncryptedNotesInManagedObjectContext(other.context())) {
        NSError error;
        ASSERT_TRUE(manager.unlock(*version->password(), "correct horse", &error)) << error;
        texts.push_back(version->text().value_or("-"));
        ASSERT_EQ(version->filesSet().allObjects().size(), 1U);
        EXPECT_EQ(bytesOf(version->filesSet().allObjects().front()->fileURL().value_or("")), "unspoken bytes");
    }
    EXPECT_THAT(texts,
        testing::UnorderedElementsAre("# Secret\n\nunspoken words\n\n[](plan.txt)", "# Secret\n\nothers' words"));
}

TEST_F(ProtectedBackup, NamesWhatStaysLockedSinceAKeyIsNotInTheStore)
{
    protectANote();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    const auto protectUnderANewKey = [this] {
        OVEncryptionCoreManager manager(context(), quickly());
        OVPassword& password = *OVPassword::passwordsInManagedObjectContext(context(), std::nullopt).front();
        ASSERT_TRUE(manager.unlock(password, "correct horse", nullptr));
        ASSERT_TRUE(manager.rotateMasterKey(password, "correct horse", nullptr));
        OVNote& later = note("# Later");
        ASSERT_TRUE(manager.addEncryptionToObject(later, password, nullptr));
        save();
    };
    protectUnderANewKey();
    std::filesystem::remove(archive());
    backUp();
    const BackupRestoration restoration = restore(other);
    ASSERT_EQ(restoration.skipped.size(), 2U);
    EXPECT_THAT(restoration.skipped.front().reason, testing::HasSubstr("another state of this password"));
    EXPECT_EQ(restoration.skipped.back().title, "Later");
    EXPECT_THAT(restoration.skipped.back().reason, testing::HasSubstr("stays locked"));
    EXPECT_EQ(restoration.restored, 1U);
    OVEncryptionCoreManager manager(other.context(), quickly());
    OVNote* const secret = OVNote::noteWithTitle("Secret", other.context());
    ASSERT_TRUE(manager.unlock(*secret->password(), "correct horse", nullptr));
    EXPECT_FALSE(manager.isObjectLocked(*secret)) << "the former key is in both";
    EXPECT_TRUE(manager.isObjectLocked(*OVNote::noteWithTitle("Later", other.context())));
}

TEST_F(ProtectedBackup, SaysNothingOfAPasswordThatHasAllKeysInTheStore)
{
    protectANote();
    backUp();
    TestStore& other = otherStore();
    restore(other);
    {
        OVEncryptionCoreManager manager(other.context(), quickly());
        OVPassword& password = *OVPassword::passwordsInManagedObjectContext(other.context(), std::nullopt).front();
        NSError error;
        ASSERT_TRUE(manager.changePassword(password, "correct horse", "another", &error)) << error;
        ASSERT_TRUE(manager.rotateMasterKey(password, "another", &error)) << error;
        other.context().deleteObject(*OVNote::noteWithTitle("Secret", other.context()));
        other.save();
    }
    const BackupRestoration restoration = restore(other);
    EXPECT_THAT(restoration.skipped, testing::IsEmpty());
    EXPECT_EQ(restoration.restored, 1U);
    OVEncryptionCoreManager manager(other.context(), quickly());
    OVNote* const secret = OVNote::noteWithTitle("Secret", other.context());
    ASSERT_TRUE(manager.unlock(*secret->password(), "another", nullptr)) << "the store's password opens it";
    EXPECT_FALSE(manager.isObjectLocked(*secret));
}

} // namespace
} // namespace tarn
