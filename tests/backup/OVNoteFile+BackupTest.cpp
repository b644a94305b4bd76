#include "tests/backup/RepresentationFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsNull;

/// Keeps names back to front, and all else as it is.
class TurningManager final : public OVEncryptionCoreManagerProtocol {
public:
    bool isLocked = false;

    bool isObjectLocked(const OVEncryptableObject&) const override { return isLocked; }
    bool addEncryptionToObject(OVEncryptableObject&, OVEncryptingPassword&, NSError*) override { return false; }
    bool hasCachedPassword(const OVEncryptingPassword&) const override { return !isLocked; }
    std::optional<std::string> textForNote(const OVEncryptableNote& note, NSError*) override
    {
        return note.storedText();
    }
    void setText(std::optional<std::string_view> text, OVEncryptableNote& note) override
    {
        note.updatePrimitiveText(text);
    }
    std::optional<std::string> filenameForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return turned(file.storedFilename().value_or(""));
    }
    void setFilename(std::optional<std::string_view> filename, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveFilename(turned(filename.value_or("")));
    }
    std::optional<std::string> normalizedFileExtensionForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return file.storedNormalizedFileExtension();
    }
    void setNormalizedFileExtension(std::optional<std::string_view> extension, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveNormalizedFileExtension(extension);
    }
    std::optional<std::int64_t> fileSizeForNoteFile(const OVEncryptableNoteFile& file, NSError*) override
    {
        return file.storedFileSize();
    }
    void setFileSize(std::optional<std::int64_t> bytes, OVEncryptableNoteFile& file) override
    {
        file.updatePrimitiveFileSize(bytes);
    }
    std::optional<std::filesystem::path> fileURLForNoteFile(const OVEncryptableNoteFile&, NSError*) override
    {
        return {};
    }

private:
    static std::string turned(std::string_view text) { return {text.rbegin(), text.rend()}; }
};

class FileRepresentation : public RepresentationFixture {
protected:
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        RepresentationFixture::TearDown();
    }
    void serve(TurningManager& manager) { OVEncryptionCoreManager::setEncryptionCoreManager(&manager, context()); }
};

template <typename Call> void expectGuarded(Call call)
{
    try {
        call();
        ADD_FAILURE() << "nothing was raised";
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), OVInvalidAccessorException);
    }
}

TEST_P(FileRepresentation, ListsItsKeysByKind)
{
    EXPECT_THAT(OVNoteFile::dictionaryRepresentationDateKeys(), ElementsAre("encryptionDate", "searchTextDate"));
    EXPECT_THAT(OVNoteFile::dictionaryRepresentationDataKeys(), ElementsAre("encryptedData"));
    EXPECT_THAT(OVNoteFile::dictionaryRepresentationValueKeys(),
        ElementsAre("encrypted", "encryptionUniqueIdentifier", "filename", "fileSize", "index", "lastEditingDevice",
            "normalizedFileExtension", "searchText", "version"));
}

TEST_P(FileRepresentation, HoldsWhatIsStoredButNoIdentifier)
{
    const Dictionary dictionary = aFullFile().dictionaryRepresentation();
    EXPECT_THAT(keysOf(dictionary),
        ElementsAre("encrypted", "encryptionUniqueIdentifier", "filename", "fileSize", "index", "lastEditingDevice",
            "normalizedFileExtension", "searchText", "version", "encryptionDate", "searchTextDate", "encryptedData"));
    EXPECT_EQ(dictionary["encrypted"].dump(), "0");
    EXPECT_EQ(dictionary["fileSize"].dump(), "5000000000");
    EXPECT_EQ(dictionary["searchTextDate"], "2024-01-31T12:34:56Z");
}

TEST_P(FileRepresentation, ComesBackWithEveryField)
{
    OVNoteFile& file = aFullFile();
    file.setPassword(&aPassword());
    const Dictionary dictionary = file.dictionaryRepresentation();

    OVNoteFile* restored = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    ASSERT_NE(restored, nullptr);
    EXPECT_NE(restored, &file);
    EXPECT_EQ(restored->dictionaryRepresentation(), dictionary);
    EXPECT_EQ(restored->entity().name(), "OVNoteFile");
    EXPECT_FALSE(restored->uniqueIdentifier());
    EXPECT_FALSE(restored->insertionDate());
    save();
    reopen();
    ASSERT_EQ(all<OVNoteFile>().size(), 2U);
    EXPECT_EQ(all<OVNoteFile>().back()->dictionaryRepresentation(), dictionary);
}

TEST_P(FileRepresentation, LoadsIntoAnAttachmentAndLeavesWhatIsNotInIt)
{
    OVNoteFile& file = aFullFile();
    file.loadDictionaryRepresentation({{"filename", "other.txt"}, {"searchTextDate", "not a date"}});
    EXPECT_EQ(file.filename(), "other.txt");
    EXPECT_EQ(file.fileSizeValue(), 5'000'000'000);
    EXPECT_EQ(file.searchTextDate(), dateWithMicrosecondsSince1970(1'706'704'496'000'000));
    EXPECT_EQ(file.encryptedData(), NSData::fromText("sealed"));
}

TEST_P(FileRepresentation, HasNoDataWhereItCannotBeDecoded)
{
    OVNoteFile& file = aFullFile();
    file.loadDictionaryRepresentation({{"encryptedData", "no base64!"}});
    EXPECT_FALSE(file.encryptedData());
}

TEST_P(FileRepresentation, LinksThePasswordThatIsThere)
{
    OVPassword& password = aPassword();
    OVNoteFile& file = insert<OVNoteGenericFile>();
    Dictionary nested = password.dictionaryRepresentation();
    nested["creationDevice"] = "another device";
    file.loadDictionaryRepresentation({{"password", nested}});
    EXPECT_EQ(file.password(), &password);
    EXPECT_EQ(password.creationDevice(), StillWorld::deviceName);
    EXPECT_EQ(all<OVPassword>().size(), 1U);
}

TEST_P(FileRepresentation, LinksANewPasswordWhenThereIsNone)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    file.loadDictionaryRepresentation({{"password", {{"uniqueIdentifier", "PASSWORD-1"}, {"encryptionVersion", 4}}}});
    ASSERT_NE(file.password(), nullptr);
    EXPECT_EQ(file.password()->uniqueIdentifier(), "PASSWORD-1");
    EXPECT_EQ(file.password()->encryptionVersionValue(), 4);
}

TEST_P(FileRepresentation, IgnoresAPasswordThatIsNoDictionary)
{
    OVNoteFile& file = insert<OVNoteGenericFile>();
    for (const Dictionary& nested : {Dictionary(5), Dictionary("text"), Dictionary::array(), Dictionary(nullptr)})
        file.loadDictionaryRepresentation({{"password", nested}});
    EXPECT_THAT(file.password(), IsNull());
    EXPECT_TRUE(all<OVPassword>().empty());
}

TEST_P(FileRepresentation, FindsTheAttachmentOfItsIdentifierAndLeavesIt)
{
    OVNoteFile& file = aFullFile();
    const Dictionary before = file.dictionaryRepresentation();
    EXPECT_EQ(OVNoteFile::noteFileFromDictionaryRepresentation(
                  {{"uniqueIdentifier", *file.uniqueIdentifier()}, {"filename", "other.txt"}}, context()),
        &file);
    EXPECT_EQ(file.dictionaryRepresentation(), before);
}

TEST_P(FileRepresentation, WithoutAnIdentifierIsTheAttachmentThatHasNone)
{
    const Dictionary dictionary = aFullFile().dictionaryRepresentation();
    OVNoteFile* first = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    first->setFilename("renamed.pdf");
    EXPECT_EQ(OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context()), first);
    EXPECT_EQ(first->filename(), "renamed.pdf");
    EXPECT_EQ(all<OVNoteFile>().size(), 2U);
}

TEST_P(FileRepresentation, OfAnUnknownIdentifierMakesARecordWithoutOne)
{
    const Dictionary dictionary{{"uniqueIdentifier", "NOWHERE"}, {"filename", "a.txt"}};
    OVNoteFile* file = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    EXPECT_FALSE(file->uniqueIdentifier());
    EXPECT_EQ(file->versionValue(), 0);
}

TEST_P(FileRepresentation, IgnoresValuesOfAnotherType)
{
    OVNoteFile& file = aFullFile();
    const Dictionary before = file.dictionaryRepresentation();
    file.loadDictionaryRepresentation({{"filename", 5}, {"fileSize", "5"}, {"index", Dictionary::array()},
        {"searchText", Dictionary::object()}, {"encrypted", "yes"}, {"version", nullptr}, {"encryptedData", nullptr},
        {"encryptionDate", 12}, {"unknown", "key"}});
    EXPECT_EQ(file.dictionaryRepresentation(), before);
}

TEST_P(FileRepresentation, OfAProtectedAttachmentWithoutAManagerIsWhatIsStored)
{
    OVNoteFile& file = aFullFile();
    file.setEncryptedValue(true);
    const Dictionary dictionary = file.dictionaryRepresentation();
    EXPECT_EQ(dictionary["filename"], "Bericht ü.pdf");
    EXPECT_EQ(dictionary["encrypted"].dump(), "1");
    OVNoteFile* restored = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    EXPECT_EQ(restored->storedFilename(), "Bericht ü.pdf");
    EXPECT_TRUE(restored->encryptedValue());
}

TEST_P(FileRepresentation, OfAnUnlockedAttachmentGoesThroughTheManager)
{
    TurningManager manager;
    OVNoteFile& file = aFullFile();
    file.setFilename("fdp.a");
    file.setEncryptedValue(true);
    serve(manager);
    const Dictionary dictionary = file.dictionaryRepresentation();
    EXPECT_EQ(dictionary["filename"], "a.pdf");
    OVNoteFile* restored = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    EXPECT_EQ(restored->storedFilename(), "fdp.a");
    EXPECT_EQ(restored->dictionaryRepresentation(), dictionary);
}

TEST_P(FileRepresentation, OfALockedAttachmentRaises)
{
    TurningManager manager;
    OVNoteFile& file = aFullFile();
    file.setEncryptedValue(true);
    serve(manager);
    manager.isLocked = true;
    expectGuarded([&] { (void)file.dictionaryRepresentation(); });
    expectGuarded([&] { (void)file.jsonRepresentation(); });
    expectGuarded([&] { file.loadDictionaryRepresentation({{"filename", "a"}}); });
    EXPECT_EQ(file.storedFilename(), "Bericht ü.pdf");
}

TEST_P(FileRepresentation, ThatRaisesWhileItIsReadLeavesNoRecord)
{
    TurningManager manager;
    serve(manager);
    manager.isLocked = true;
    const Dictionary dictionary{{"encrypted", 1}, {"filename", "a"}};
    expectGuarded([&] { OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context()); });
    EXPECT_TRUE(all<OVNoteFile>().empty());
    OVEncryptionCoreManager::performInManagedObjectContext(
        context(), [&] { EXPECT_TRUE(OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context())); });
}

TEST_P(FileRepresentation, AsJsonComesBack)
{
    OVNoteFile& file = aFullFile();
    file.setPassword(&aPassword());
    const auto json = file.jsonRepresentation();
    ASSERT_TRUE(json);
    OVNoteFile* restored = OVNoteFile::noteFileFromJsonRepresentation(json, context());
    ASSERT_NE(restored, nullptr);
    EXPECT_EQ(restored->jsonRepresentation(), json);
    EXPECT_EQ(restored->password(), file.password());
}

TEST_P(FileRepresentation, IsNothingFromWhatIsNoJsonObject)
{
    EXPECT_THAT(OVNoteFile::noteFileFromJsonRepresentation(std::nullopt, context()), IsNull());
    for (const char* text : {"", "{", "[]", "null", "true", "{\"filename\":", "{\"filename\": \"\xC3\"}"})
        EXPECT_THAT(OVNoteFile::noteFileFromJsonRepresentation(NSData::fromText(text), context()), IsNull()) << text;
    EXPECT_TRUE(all<OVNoteFile>().empty());
}

TEST_P(FileRepresentation, TakesDeepNestingForNothingOfItsOwn)
{
    const std::string deep = "{\"filename\":" + std::string(100'000, '[') + std::string(100'000, ']') + "}";
    OVNoteFile* file = OVNoteFile::noteFileFromJsonRepresentation(NSData::fromText(deep), context());
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(file->filename());
}

TEST_P(FileRepresentation, RaisesForWhatIsNoDictionary)
{
    OVNoteFile& file = aFullFile();
    EXPECT_THROW(file.loadDictionaryRepresentation(Dictionary::array()), NSException);
    EXPECT_THROW(OVNoteFile::noteFileFromDictionaryRepresentation("text", context()), NSException);
}

INSTANTIATE_TEST_SUITE_P(Stores, FileRepresentation, everyStore(), storeName);

} // namespace
} // namespace tarn
