#include "tests/backup/RepresentationFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/BackwardsManager.h"
#include "tests/support/InvalidAccessor.h"

#include <array>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsNull;

class FileRepresentation : public RepresentationFixture {
protected:
    void TearDown() override
    {
        OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
        RepresentationFixture::TearDown();
    }
    void serve(BackwardsManager& manager) { OVEncryptionCoreManager::setEncryptionCoreManager(&manager, context()); }
    /// What an attachment without any of it is a dictionary of once it has loaded `entries`, in any order.
    nlohmann::json loaded(const Dictionary& entries)
    {
        auto& file = insert<OVNoteGenericFile>();
        file.loadDictionaryRepresentation(entries);
        return file.dictionaryRepresentation();
    }

    static constexpr std::array<std::string_view, 4> guardedKeys{
        "filename", "fileSize", "normalizedFileExtension", "searchText"};
};

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

TEST_P(FileRepresentation, CutsDatesToTheWholeSecond)
{
    OVNoteFile& file = aFullFile();
    file.setSearchTextDate(dateWithMicrosecondsSince1970(1'706'704'496'999'999));
    file.setEncryptionDate(dateWithMicrosecondsSince1970(1'706'704'497'500'000));
    const Dictionary dictionary = file.dictionaryRepresentation();
    const OVNoteFile* restored = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    EXPECT_EQ(restored->searchTextDate(), dateWithMicrosecondsSince1970(1'706'704'496'000'000));
    EXPECT_EQ(restored->encryptionDate(), dateWithMicrosecondsSince1970(1'706'704'497'000'000));
}

TEST_P(FileRepresentation, LoadsEachKeyByItselfAndMayLackIt)
{
    OVNoteFile& file = aFullFile();
    file.setEncryptedValue(true);
    const Dictionary full = file.dictionaryRepresentation();
    ASSERT_EQ(full.size(), 12U);
    const nlohmann::json without = loaded(Dictionary::object());
    for (const auto& [key, entry] : full.items()) {
        SCOPED_TRACE(key);
        nlohmann::json expected = without;
        EXPECT_NE(expected.value(key, nlohmann::json()), nlohmann::json(entry)) << "it would tell nothing";
        expected[key] = entry;
        EXPECT_EQ(loaded({{key, entry}}), expected);

        Dictionary rest = full;
        rest.erase(key);
        expected = rest;
        if (without.contains(key))
            expected[key] = without[key];
        EXPECT_EQ(loaded(rest), expected);
    }
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

TEST_P(FileRepresentation, WithoutAnIdentifierIsAnyAttachmentThatHasNone)
{
    aFullFile();
    auto& picture = insert<OVNoteImage>();
    picture.setUniqueIdentifier(std::nullopt);
    const nlohmann::json before = picture.dictionaryRepresentation();
    EXPECT_EQ(OVNoteFile::noteFileFromDictionaryRepresentation({{"filename", "a.pdf"}}, context()), &picture);
    EXPECT_EQ(nlohmann::json(picture.dictionaryRepresentation()), before);
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
    const auto expectLeft = [&](std::string_view key, const Dictionary& entry) {
        file.loadDictionaryRepresentation({{std::string(key), entry}});
        EXPECT_EQ(file.dictionaryRepresentation(), before) << key << " " << entry;
    };
    const std::vector<Dictionary> nothings{nullptr, Dictionary::array(), Dictionary::object(), {1, 2}};
    for (const std::string_view key : OVNoteFile::dictionaryRepresentationValueKeys()) {
        const bool isText = file.entity().attributeNamed(key)->type() == NSAttributeType::String;
        const std::vector<Dictionary> others
            = isText ? std::vector<Dictionary>{5, 7.5, true} : std::vector<Dictionary>{"5", ""};
        for (const auto& entries : {nothings, others})
            for (const Dictionary& entry : entries)
                expectLeft(key, entry);
    }
    for (const std::string_view key : OVNoteFile::dictionaryRepresentationDateKeys())
        for (const auto& entries : {nothings, {12, true, "soon"}})
            for (const Dictionary& entry : entries)
                expectLeft(key, entry);
    expectLeft("encryptedData", nullptr);
    expectLeft("unknown", "key");
}

TEST_P(FileRepresentation, HasNoDataWhereTheEntryIsNone)
{
    for (const Dictionary& entry : {Dictionary(12), Dictionary(true), Dictionary::array(), Dictionary::object()}) {
        OVNoteFile& file = aFullFile();
        file.loadDictionaryRepresentation({{"encryptedData", entry}});
        EXPECT_FALSE(file.encryptedData()) << entry;
    }
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
    BackwardsManager manager;
    OVNoteFile& file = aFullFile();
    file.setEncryptedValue(true);
    const Dictionary stored = file.dictionaryRepresentation();
    serve(manager);
    const Dictionary dictionary = file.dictionaryRepresentation();
    EXPECT_EQ(dictionary["normalizedFileExtension"], "fdp");
    EXPECT_EQ(dictionary["fileSize"].dump(), "-5000000000");
    for (const std::string_view key : guardedKeys)
        EXPECT_NE(dictionary[std::string(key)], stored[std::string(key)]) << key;
    OVNoteFile* restored = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    EXPECT_EQ(restored->dictionaryRepresentation(), dictionary);
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    EXPECT_EQ(restored->dictionaryRepresentation(), stored);
}

TEST_P(FileRepresentation, OfALockedAttachmentRaises)
{
    BackwardsManager manager;
    OVNoteFile& file = aFullFile();
    file.setEncryptedValue(true);
    const Dictionary stored = file.dictionaryRepresentation();
    save();
    serve(manager);
    manager.isLocked = true;
    expectInvalidAccessor([&] { (void)file.dictionaryRepresentation(); });
    expectInvalidAccessor([&] { (void)file.jsonRepresentation(); });
    for (const std::string_view key : guardedKeys) {
        const Dictionary entry{{std::string(key), stored[std::string(key)]}};
        expectInvalidAccessor([&] { file.loadDictionaryRepresentation(entry); });
        EXPECT_FALSE(context().hasChanges()) << key;
    }
    file.loadDictionaryRepresentation({{"index", 7}, {"searchTextDate", "2001-02-03T04:05:06Z"}});
    EXPECT_EQ(file.indexValue(), 7) << "what is not protected";
    EXPECT_NE(file.searchTextDate(), aFullFile().searchTextDate());
}

TEST_P(FileRepresentation, OfAnAttachmentThatIsNotProtectedNeedsNoPassword)
{
    BackwardsManager manager;
    manager.isLocked = true;
    OVNoteFile& file = aFullFile();
    const Dictionary dictionary = file.dictionaryRepresentation();
    serve(manager);
    EXPECT_EQ(file.dictionaryRepresentation(), dictionary);
    const OVNoteFile* restored = OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context());
    EXPECT_EQ(restored->dictionaryRepresentation(), dictionary);
}

TEST_P(FileRepresentation, ThatRaisesWhileItIsReadLeavesNoRecord)
{
    BackwardsManager manager;
    serve(manager);
    manager.isLocked = true;
    const Dictionary dictionary{{"encrypted", 1}, {"filename", "a"}};
    expectInvalidAccessor([&] { OVNoteFile::noteFileFromDictionaryRepresentation(dictionary, context()); });
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

TEST_P(FileRepresentation, AsJsonHasItsPasswordInside)
{
    OVNoteFile& file = aFullFile();
    OVPassword& password = aPassword();
    file.setPassword(&password);
    const auto json = file.jsonRepresentation();
    ASSERT_TRUE(json);
    EXPECT_THAT(
        json->text(), testing::StartsWith("{\n  \"encrypted\": 0,\n  \"encryptionUniqueIdentifier\": \"KEY-1\",\n"));
    EXPECT_THAT(
        json->text(), testing::HasSubstr("\n  \"password\": {\n    \"biometry\": 1,\n    \"creationDevice\": "));
    EXPECT_EQ(Dictionary::parse(json->text())["password"], password.dictionaryRepresentation());
}

TEST_P(FileRepresentation, AsJsonIsNothingWhereATextIsNoUTF8)
{
    BackwardsManager manager;
    OVNoteFile& file = aFullFile();
    file.setEncryptedValue(true);
    EXPECT_TRUE(file.jsonRepresentation());
    serve(manager);
    EXPECT_EQ(file.filename()->find("ü"), std::string::npos) << "its bytes are back to front";
    EXPECT_EQ(file.jsonRepresentation(), std::nullopt);
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
