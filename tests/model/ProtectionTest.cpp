#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/StoreFixture.h"

#include <algorithm>

namespace tarn {
namespace {

/// Keeps values back to front in the record: enough to tell what went through it.
class BackwardsManager : public OVEncryptionCoreManagerProtocol {
public:
    bool locked = false;

    bool isObjectLocked(const OVEncryptableObject& object) const override { return locked && object.hasEncryption(); }
    bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword& password, NSError*) override
    {
        object.setEncryptionState({true, NSData::fromText("cipher"), now(), "key 1", &password});
        return true;
    }
    bool hasCachedPassword(const OVEncryptingPassword&) const override { return !locked; }

    std::optional<std::string> textForNote(const OVEncryptableNote& note, NSError*) override
    {
        return backwards(note.storedText());
    }
    void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override
    {
        note.updatePrimitiveText(backwards(text));
    }
    std::optional<std::string> filenameForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return backwards(file.storedFilename());
    }
    void setFilename(std::optional<std::string_view> filename, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveFilename(backwards(filename));
    }
    std::optional<std::string> normalizedFileExtensionForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return backwards(file.storedNormalizedFileExtension());
    }
    void setNormalizedFileExtension(std::optional<std::string_view> extension, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveNormalizedFileExtension(backwards(extension));
    }
    std::optional<std::int64_t> fileSizeForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return -file.storedFileSize().value_or(0);
    }
    void setFileSize(std::optional<std::int64_t> bytes, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveFileSize(-bytes.value_or(0));
    }
    std::optional<std::string> searchTextForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return backwards(file.storedSearchText());
    }
    void setSearchText(std::optional<std::string_view> text, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveSearchText(backwards(text));
    }
    std::optional<std::filesystem::path> fileURLForNoteFile(const OVEncryptableNoteFile&, NSError*) override
    {
        return {};
    }

private:
    template <typename Text> static std::optional<std::string> backwards(const std::optional<Text>& text)
    {
        return text ? std::optional<std::string>(std::in_place, text->rbegin(), text->rend()) : std::nullopt;
    }
};

class Protection : public StoreFixture {
protected:
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        StoreFixture::TearDown();
    }
    void serve(BackwardsManager& manager) { OVEncryptionCoreManager::setEncryptionCoreManager(&manager, context()); }
};

template <typename Call> void expectInvalidAccessor(Call call)
{
    try {
        call();
        ADD_FAILURE() << "nothing was raised";
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), "Invalid accessor");
        EXPECT_EQ(exception.reason(),
            "Called an encrypted accessor with Encryption Manager available and the object locked. Unlock the object "
            "using the Encryption Manager first, or use the primitive accessor (primitive accessors should be used in "
            "very special cases, so be fully aware of what you are doing).");
    }
}

TEST_P(Protection, WithoutAManagerGivesWhatIsStored)
{
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    note.setEncryptedValue(true);
    file.setEncryptedValue(true);
    note.setText("text");
    file.setFilename("a.pdf");
    EXPECT_EQ(note.text(), "text");
    EXPECT_EQ(file.filename(), "a.pdf");
    EXPECT_EQ(note.encryptionCoreManager(), nullptr);
    EXPECT_TRUE(note.hasEncryptionAndIsLocked());
    EXPECT_TRUE(file.hasEncryptionAndIsLocked());
}

TEST_P(Protection, OfALockedRecordRaises)
{
    BackwardsManager manager;
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    note.setText("text");
    file.setFilename("a.pdf");
    note.setEncryptedValue(true);
    file.setEncryptedValue(true);
    serve(manager);
    manager.locked = true;
    expectInvalidAccessor([&] { (void)note.text(); });
    expectInvalidAccessor([&] { note.setText("other"); });
    expectInvalidAccessor([&] { (void)note.valueForKey("text"); });
    expectInvalidAccessor([&] { (void)file.filename(); });
    expectInvalidAccessor([&] { file.setFilename("b.pdf"); });
    expectInvalidAccessor([&] { (void)file.normalizedFileExtension(); });
    expectInvalidAccessor([&] { file.setNormalizedFileExtension("pdf"); });
    expectInvalidAccessor([&] { (void)file.fileSizeValue(); });
    expectInvalidAccessor([&] { file.setFileSizeValue(1); });
    expectInvalidAccessor([&] { (void)file.searchText(); });
    expectInvalidAccessor([&] { (void)file.valueForKey("searchText"); });
    expectInvalidAccessor([&] { file.setSearchText("words"); });
    EXPECT_EQ(note.primitiveText(), "text");
    EXPECT_EQ(note.storedValueForKey("text"), Value("text"));
    EXPECT_EQ(file.storedFilename(), "a.pdf");
    EXPECT_TRUE(note.hasEncryptionAndIsLocked());
}

TEST_P(Protection, OfAnOpenRecordGoesThroughTheManager)
{
    BackwardsManager manager;
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    note.setEncryptedValue(true);
    file.setEncryptedValue(true);
    serve(manager);
    note.setText("abc");
    file.setFilename("a.pdf");
    file.setNormalizedFileExtension("pdf");
    file.setFileSizeValue(7);
    EXPECT_EQ(note.primitiveText(), "cba");
    EXPECT_EQ(file.primitiveFilename(), "fdp.a");
    EXPECT_EQ(file.primitiveNormalizedFileExtension(), "fdp");
    EXPECT_EQ(file.primitiveFileSize(), -7);
    file.setSearchText("ab");
    EXPECT_EQ(file.primitiveSearchText(), "ba");
    EXPECT_EQ(file.searchText(), "ab");
    EXPECT_EQ(file.valueForKey("searchText"), Value("ab"));
    EXPECT_EQ(note.text(), "abc");
    EXPECT_EQ(file.filename(), "a.pdf");
    EXPECT_EQ(file.normalizedFileExtension(), "pdf");
    EXPECT_EQ(file.fileSizeValue(), 7);
    EXPECT_FALSE(note.hasEncryptionAndIsLocked());
}

TEST_P(Protection, LeavesUnprotectedRecordsAlone)
{
    BackwardsManager manager;
    manager.locked = true;
    serve(manager);
    auto& note = insert<OVNote>();
    int heard = 0;
    auto observation = note.addObserver("text", [&](NSManagedObject&, std::string_view) { ++heard; });
    note.setText("abc");
    EXPECT_EQ(note.primitiveText(), "abc");
    EXPECT_EQ(note.text(), "abc");
    EXPECT_EQ(heard, 1);
    EXPECT_FALSE(note.hasEncryption());
}

TEST_P(Protection, DoesNotKeepANewTextFromObservers)
{
    /// Keeps texts elsewhere than in the record's own field, as one that encrypts does.
    struct SealingManager : BackwardsManager {
        void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override
        {
            note.setSealedFields(NSData::fromText(text.value_or("")));
        }
    } manager;
    auto& note = insert<OVNote>();
    note.setEncryptedValue(true);
    serve(manager);
    int heard = 0;
    auto observation = note.addObserver("text", [&](NSManagedObject&, std::string_view) { ++heard; });
    note.setText("abc");
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(note.primitiveText(), std::nullopt);
    EXPECT_EQ(note.encryptedData(), NSData::fromText("abc"));
}

TEST_P(Protection, IsOutOfSightInsideABlock)
{
    BackwardsManager manager;
    manager.locked = true;
    auto& note = insert<OVNote>();
    note.setText("stored");
    note.setEncryptedValue(true);
    serve(manager);
    int runs = 0;
    OVEncryptionCoreManager::performInManagedObjectContext(context(), [&] {
        OVEncryptionCoreManager::performInManagedObjectContext(context(), [&] { ++runs; });
        EXPECT_EQ(note.encryptionCoreManager(), nullptr);
        EXPECT_EQ(note.text(), "stored");
    });
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(note.encryptionCoreManager(), &manager);
    EXPECT_THROW(
        OVEncryptionCoreManager::performInManagedObjectContext(context(), [] { throw std::runtime_error("x"); }),
        std::runtime_error);
    EXPECT_EQ(note.encryptionCoreManager(), &manager);
}

TEST_P(Protection, BelongsToOneContext)
{
    BackwardsManager manager;
    serve(manager);
    NSManagedObjectContext other(NSManagedObjectContext::ConcurrencyType::MainQueue);
    EXPECT_EQ(OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(other), nullptr);
    EXPECT_EQ(OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(context()), &manager);
}

TEST_P(Protection, EndsWithItsManager)
{
    {
        BackwardsManager manager;
        serve(manager);
    }
    EXPECT_EQ(OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(context()), nullptr);
}

TEST_P(Protection, OfANoteIsSeenInItsAttachments)
{
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    file.setNote(&note);
    EXPECT_FALSE(note.hasEncryption());
    file.setEncryptedValue(true);
    EXPECT_TRUE(note.hasEncryption());
    save();
    EXPECT_TRUE(note.hasEncryption());
}

TEST_P(Protection, IsWrittenAndReadAsAWhole)
{
    BackwardsManager manager;
    auto& note = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    auto& password = insert<OVPassword>();
    ASSERT_TRUE(manager.addEncryptionToObject(note, password, nullptr));
    ASSERT_TRUE(manager.addEncryptionToObject(file, password, nullptr));
    EXPECT_TRUE(note.encryptedValue());
    EXPECT_EQ(note.encryptedData(), NSData::fromText("cipher"));
    EXPECT_EQ(note.password(), &password);
    EXPECT_EQ(file.encryptionState().encryptionUniqueIdentifier, "key 1");
    EXPECT_EQ(file.encryptionState().password, &password);
    note.setEncryptionState({});
    EXPECT_FALSE(note.encryptionState().encrypted);
    EXPECT_EQ(note.password(), nullptr);
}

TEST_P(Protection, HasAPasswordThatKnowsWhatItProtects)
{
    auto& password = insert<OVPassword>();
    auto& first = insert<OVNote>();
    auto& second = insert<OVNote>();
    auto& file = insert<OVNoteGenericFile>();
    first.setPassword(&password);
    second.setPassword(&password);
    file.setPassword(&password);
    EXPECT_THAT(password.encryptableObjects(), testing::UnorderedElementsAre(&first, &second, &file));
    password.encryptableObjects().clear();
    EXPECT_EQ(password.encryptableObjects().size(), 3u);
}

TEST_P(Protection, HasPasswordsThatAreFound)
{
    auto& password = insert<OVPassword>();
    insert<OVPassword>();
    save();
    EXPECT_EQ(OVPassword::passwordWithUniqueIdentifier(*password.uniqueIdentifier(), context()), &password);
    EXPECT_EQ(OVPassword::passwordWithUniqueIdentifier("none", context()), nullptr);
    EXPECT_EQ(OVPassword::passwordsInManagedObjectContext(context(), std::nullopt).size(), 2u);
}

TEST_P(Protection, OfFilesIsTheHostsToAllow)
{
    EXPECT_FALSE(OVEncryptionCoreManager::isFileEncryptionEnabled());
    OVEncryptionCoreManager::setFileEncryptionEnabled(true);
    EXPECT_TRUE(OVEncryptionCoreManager::isFileEncryptionEnabled());
    OVEncryptionCoreManager::setFileEncryptionEnabled(false);
}

// Use of attachments ------------------------------------------------------------------------------------------------

using AttachmentUse = StoreFixture;

TEST_P(AttachmentUse, IsDatedWhenItChangesOnly)
{
    auto& file = insert<OVNoteGenericFile>();
    file.setInUse();
    EXPECT_EQ(file.unusedDate(), std::nullopt);
    file.setUnused();
    EXPECT_TRUE(file.isUnused());
    EXPECT_EQ(file.unusedDate(), lastTime());
    const auto date = file.unusedDate();
    file.setUnused();
    EXPECT_EQ(file.unusedDate(), date);
    file.setInUse();
    EXPECT_FALSE(file.isUnused());
    EXPECT_GT(file.unusedDate(), date);
}

INSTANTIATE_TEST_SUITE_P(Stores, Protection, everyStore(), storeName);
INSTANTIATE_TEST_SUITE_P(Stores, AttachmentUse, everyStore(), storeName);

} // namespace
} // namespace tarn
