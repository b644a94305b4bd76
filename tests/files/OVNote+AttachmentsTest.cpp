#include "tests/support/StoreFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NoteAttachments : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteAttachments, everyStore(), storeName);

TEST_P(NoteAttachments, AreFoundByNameUsedOnesFirst)
{
    OVNote& owner = note("# T");
    OVNoteGenericFile& unused = file(owner, "a.pdf");
    unused.setUnused();
    EXPECT_EQ(owner.attachmentForFilename("a.pdf"), nullptr);
    EXPECT_EQ(owner.attachmentIncludingUnusedForFilename("a.pdf"), &unused);

    OVNoteGenericFile& used = file(owner, "a.pdf");
    EXPECT_EQ(owner.attachmentForFilename("a.pdf"), &used);
    EXPECT_EQ(owner.attachmentIncludingUnusedForFilename("a.pdf"), &used);
    EXPECT_EQ(owner.attachmentForFilename("A.pdf"), nullptr);
    EXPECT_EQ(owner.attachmentIncludingUnusedForFilename("b.pdf"), nullptr);
}

TEST_P(NoteAttachments, HaveNamesThatAreEqualHoweverTheyAreWritten)
{
    OVNote& owner = note("# T");
    const OVNoteGenericFile& composed = file(owner, "Café 1.pdf");
    EXPECT_TRUE(composed.filenameIsEqualTo("Café 1.pdf"));
    EXPECT_TRUE(composed.filenameIsEqualTo("Cafe\u0301 1.pdf"));
    EXPECT_TRUE(composed.filenameIsEqualTo("Caf%C3%A9%201.pdf"));
    EXPECT_FALSE(composed.filenameIsEqualTo("café 1.pdf"));
    EXPECT_FALSE(composed.filenameIsEqualTo("Cafe 1.pdf"));
    EXPECT_TRUE(file(owner, "my%20file").filenameIsEqualTo("my file"));
    EXPECT_FALSE(file(owner, "100%").filenameIsEqualTo("100%")) << "a malformed name is equal to none";
    EXPECT_FALSE(OVNoteImage::insertInManagedObjectContext(context())->filenameIsEqualTo("")) << "has no name";
}

TEST_P(NoteAttachments, AreCopiedAsRecordsOfNoNote)
{
    OVNote& owner = note("# T");
    OVNoteImage& source = image(owner, "a.png");
    source.setHeightValue(480);
    source.setUploadedValue(true);
    source.setPassword(OVPassword::insertInManagedObjectContext(context()));

    const auto* copy = dynamic_cast<const OVNoteImage*>(source.duplicate());

    ASSERT_TRUE(copy);
    EXPECT_NE(copy->uniqueIdentifier(), source.uniqueIdentifier());
    EXPECT_EQ(copy->filename(), "a.png");
    EXPECT_EQ(copy->heightValue(), 480);
    EXPECT_FALSE(copy->uploadedValue());
    EXPECT_EQ(copy->password(), source.password());
    EXPECT_EQ(copy->note(), nullptr);
    EXPECT_EQ(owner.filesSet().count(), 1U);
}

/// Remembers what it was asked to protect.
class FileKeeper : public TextKeeper {
public:
    bool hasPassword = false;
    std::vector<const OVEncryptableObject*> kept;

    bool hasCachedPassword(const OVEncryptingPassword&) const override { return hasPassword; }
    bool addEncryptionToObject(OVEncryptableObject& object, OVEncryptingPassword&, NSError*) override
    {
        kept.push_back(&object);
        return true;
    }
};

TEST_P(NoteAttachments, AreProtectedWithTheirNoteWhenThePasswordIsAtHand)
{
    OVNote& owner = note("# T");
    OVNoteGenericFile& attached = file(owner, "a.pdf");
    FileKeeper keeper;
    owner.encryptFileIfNeeded(&attached); // no manager
    OVEncryptionCoreManager::setEncryptionCoreManager(&keeper, context());
    keeper.hasPassword = true;
    owner.encryptFileIfNeeded(&attached); // not protected
    owner.setEncryptedValue(true);
    owner.encryptFileIfNeeded(&attached); // no password
    owner.setPassword(OVPassword::insertInManagedObjectContext(context()));
    owner.encryptFileIfNeeded(nullptr);
    keeper.hasPassword = false;
    owner.encryptFileIfNeeded(&attached); // would have to ask
    EXPECT_THAT(keeper.kept, IsEmpty());

    keeper.hasPassword = true;
    owner.encryptFileIfNeeded(&attached);
    EXPECT_THAT(keeper.kept, ElementsAre(&attached));
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
}

} // namespace
} // namespace tarn
