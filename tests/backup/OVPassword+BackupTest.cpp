#include "tests/backup/RepresentationFixture.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsNull;

class PasswordRepresentation : public RepresentationFixture { };

TEST_P(PasswordRepresentation, ListsItsKeysByKind)
{
    EXPECT_THAT(OVPassword::dictionaryRepresentationDateKeys(), ElementsAre("creationDate"));
    EXPECT_THAT(OVPassword::dictionaryRepresentationDataKeys(), ElementsAre("encryptedData", "hint"));
    EXPECT_THAT(OVPassword::dictionaryRepresentationValueKeys(),
        ElementsAre("biometry", "creationDevice", "encryptionVersion", "uniqueIdentifier"));
}

TEST_P(PasswordRepresentation, LeavesOutWhatIsNotThere)
{
    OVPassword& password = aPassword();
    const Dictionary dictionary = password.dictionaryRepresentation();
    EXPECT_THAT(keysOf(dictionary),
        ElementsAre(
            "biometry", "creationDevice", "encryptionVersion", "uniqueIdentifier", "creationDate", "encryptedData"));
    EXPECT_EQ(dictionary["uniqueIdentifier"], *password.uniqueIdentifier());
    EXPECT_EQ(dictionary["creationDevice"], StillWorld::deviceName);
}

TEST_P(PasswordRepresentation, WritesFlagsAsNumbersAndDataInBase64)
{
    OVPassword& password = aPassword();
    password.setHint(NSData::fromText("\xFF\xFE?"));
    const Dictionary dictionary = password.dictionaryRepresentation();
    EXPECT_EQ(dictionary["biometry"].dump(), "1");
    EXPECT_EQ(dictionary["encryptionVersion"].dump(), "2");
    EXPECT_EQ(dictionary["encryptedData"], "dmVyaWZpZXI=");
    EXPECT_EQ(dictionary["hint"], "//4/");
}

TEST_P(PasswordRepresentation, CutsDatesToTheWholeSecond)
{
    OVPassword& password = aPassword();
    const auto written = [&](std::int64_t microseconds) {
        password.setCreationDate(dateWithMicrosecondsSince1970(microseconds));
        return password.dictionaryRepresentation()["creationDate"];
    };
    EXPECT_EQ(written(1'706'704'496'999'999), "2024-01-31T12:34:56Z");
    EXPECT_EQ(written(1'706'704'496'000'000), "2024-01-31T12:34:56Z");
    EXPECT_EQ(written(-1), "1969-12-31T23:59:59Z");
}

TEST_P(PasswordRepresentation, ComesBackWithEveryField)
{
    OVPassword& password = aPassword();
    password.setHint(NSData::fromText("a hint"));
    password.setCreationDate(dateWithMicrosecondsSince1970(1'706'704'496'789'000));
    const Dictionary dictionary = password.dictionaryRepresentation();
    context().deleteObject(password);
    save();

    OVPassword* restored = OVPassword::passwordFromDictionaryRepresentation(dictionary, context());
    ASSERT_NE(restored, nullptr);
    EXPECT_EQ(restored->uniqueIdentifier(), dictionary["uniqueIdentifier"].get<std::string>());
    EXPECT_EQ(restored->creationDate(), dateWithMicrosecondsSince1970(1'706'704'496'000'000));
    EXPECT_EQ(restored->encryptedData(), NSData::fromText("verifier"));
    EXPECT_EQ(restored->hint(), NSData::fromText("a hint"));
    EXPECT_TRUE(restored->biometryValue());
    EXPECT_EQ(restored->encryptionVersionValue(), 2);
    EXPECT_EQ(restored->dictionaryRepresentation(), dictionary);
    save();
}

TEST_P(PasswordRepresentation, LosesToAnExistingPassword)
{
    OVPassword& password = aPassword();
    const Dictionary before = password.dictionaryRepresentation();
    Dictionary other = before;
    other["creationDevice"] = "another device";
    other["encryptedData"] = "AAAA";
    other["hint"] = "AAAA";
    other["biometry"] = 0;
    other["encryptionVersion"] = 9;
    other["creationDate"] = "1999-01-01T00:00:00Z";
    EXPECT_EQ(OVPassword::passwordFromDictionaryRepresentation(other, context()), &password);
    EXPECT_EQ(password.dictionaryRepresentation(), before);
}

TEST_P(PasswordRepresentation, WithoutAnIdentifierMakesAPasswordWithANewOne)
{
    OVPassword& password = aPassword();
    OVPassword* other = OVPassword::passwordFromDictionaryRepresentation(Dictionary::object(), context());
    ASSERT_NE(other, nullptr);
    EXPECT_NE(other, &password);
    EXPECT_TRUE(other->uniqueIdentifier());
    EXPECT_TRUE(other->creationDate());
    EXPECT_EQ(other->creationDevice(), StillWorld::deviceName);
}

TEST_P(PasswordRepresentation, MayLackAnyKey)
{
    OVPassword& password = aPassword();
    password.setHint(NSData::fromText("a hint"));
    password.setCreationDate(dateWithMicrosecondsSince1970(0));
    password.setCreationDevice("another device");
    const Dictionary full = password.dictionaryRepresentation();
    ASSERT_EQ(full.size(), 7U);
    const nlohmann::json defaults{
        {"biometry", 0}, {"creationDevice", StillWorld::deviceName}, {"encryptionVersion", 0}};
    for (const auto& [key, entry] : full.items()) {
        SCOPED_TRACE(key);
        Dictionary rest = full;
        rest["uniqueIdentifier"] = "without " + key;
        rest.erase(key);
        const Dictionary restored
            = OVPassword::passwordFromDictionaryRepresentation(rest, context())->dictionaryRepresentation();
        nlohmann::json expected = rest;
        if (key == "uniqueIdentifier" || key == "creationDate") { // those of a new record
            ASSERT_TRUE(restored.contains(key));
            EXPECT_NE(restored[key], entry);
            expected[key] = restored[key];
        } else if (defaults.contains(key)) {
            expected[key] = defaults[key];
        }
        EXPECT_EQ(nlohmann::json(restored), expected);
    }
}

TEST_P(PasswordRepresentation, IgnoresValuesOfAnotherType)
{
    const Dictionary dictionary{{"uniqueIdentifier", 5}, {"creationDevice", 7.5}, {"biometry", "yes"},
        {"encryptionVersion", "2"}, {"creationDate", 12}};
    OVPassword* password = OVPassword::passwordFromDictionaryRepresentation(dictionary, context());
    ASSERT_NE(password, nullptr);
    EXPECT_EQ(password->uniqueIdentifier()->size(), 36U);
    EXPECT_EQ(password->creationDevice(), StillWorld::deviceName);
    EXPECT_FALSE(password->biometryValue());
    EXPECT_EQ(password->encryptionVersionValue(), 0);
    EXPECT_TRUE(password->creationDate());
}

TEST_P(PasswordRepresentation, TakesNumbersAsTheStoreDoes)
{
    const auto read = [&](const Dictionary& entry) {
        return OVPassword::passwordFromDictionaryRepresentation({{"encryptionVersion", entry}}, context())
            ->encryptionVersionValue();
    };
    EXPECT_EQ(read(2.9), 2);
    EXPECT_EQ(read(true), 1);
    EXPECT_EQ(read(-3), -3);
    EXPECT_EQ(read(18'446'744'073'709'551'615U), static_cast<std::int16_t>(INT64_MAX));
}

TEST_P(PasswordRepresentation, LeavesADateThatCannotBeRead)
{
    for (const char* text : {"", "2024-01-31", "2024-01-31T12:34Z", "2024-01-31T12:34:56", "2024-01-31T12:34:56.5Z",
             "2024-01-31 12:34:56Z", "2024-02-30T12:34:56Z", "yesterday", "20240131T123456Z"}) {
        OVPassword* password = OVPassword::passwordFromDictionaryRepresentation({{"creationDate", text}}, context());
        EXPECT_EQ(password->creationDate(), lastTime()) << text;
    }
}

TEST_P(PasswordRepresentation, ReadsADateOfAnotherZone)
{
    for (const char* text : {"2024-01-31T12:34:56Z", "2024-01-31T14:04:56+01:30", "2024-01-31T07:34:56-0500"}) {
        OVPassword* password = OVPassword::passwordFromDictionaryRepresentation({{"creationDate", text}}, context());
        EXPECT_EQ(password->creationDate(), dateWithMicrosecondsSince1970(1'706'704'496'000'000)) << text;
    }
}

TEST_P(PasswordRepresentation, HasNoDataWhereItCannotBeDecoded)
{
    for (const Dictionary& entry : {Dictionary("a"), Dictionary("AAA"), Dictionary("AA A"), Dictionary("AAAA\n"),
             Dictionary("AA-_"), Dictionary("AAAA="), Dictionary(12), Dictionary::array()}) {
        OVPassword* password = OVPassword::passwordFromDictionaryRepresentation({{"encryptedData", entry}}, context());
        EXPECT_FALSE(password->encryptedData()) << entry;
    }
    EXPECT_EQ(OVPassword::passwordFromDictionaryRepresentation({{"hint", ""}}, context())->hint(), NSData());
}

TEST_P(PasswordRepresentation, AsJsonStandsOnAKeyALine)
{
    OVPassword& password = aPassword();
    password.setUniqueIdentifier("ONE");
    password.setCreationDate(dateWithMicrosecondsSince1970(0));
    EXPECT_EQ(password.jsonRepresentation()->text(),
        "{\n  \"biometry\": 1,\n  \"creationDevice\": \"Zoë’s test machine\",\n  \"encryptionVersion\": 2,\n"
        "  \"uniqueIdentifier\": \"ONE\",\n  \"creationDate\": \"1970-01-01T00:00:00Z\",\n"
        "  \"encryptedData\": \"dmVyaWZpZXI=\"\n}");
}

TEST_P(PasswordRepresentation, AsJsonComesBack)
{
    OVPassword& password = aPassword();
    const auto json = password.jsonRepresentation();
    EXPECT_EQ(OVPassword::passwordFromJsonRepresentation(json, context()), &password);
    context().deleteObject(password);
    save();
    OVPassword* restored = OVPassword::passwordFromJsonRepresentation(json, context());
    ASSERT_NE(restored, nullptr);
    EXPECT_EQ(restored->jsonRepresentation(), json);
}

TEST_P(PasswordRepresentation, IsNothingFromWhatIsNoJsonObject)
{
    EXPECT_THAT(OVPassword::passwordFromJsonRepresentation(std::nullopt, context()), IsNull());
    for (const char* text :
        {"", "{", "[]", "null", "5", "\"text\"", "{} {}", "{\"hint\": \"\xFF\"}", "{\"hint\":1e999}"})
        EXPECT_THAT(OVPassword::passwordFromJsonRepresentation(NSData::fromText(text), context()), IsNull()) << text;
    EXPECT_TRUE(all<OVPassword>().empty());
}

TEST_P(PasswordRepresentation, RaisesForWhatIsNoDictionary)
{
    EXPECT_THROW(OVPassword::passwordFromDictionaryRepresentation(Dictionary::array(), context()), NSException);
    EXPECT_THROW(OVPassword::passwordFromDictionaryRepresentation(nullptr, context()), NSException);
}

INSTANTIATE_TEST_SUITE_P(Stores, PasswordRepresentation, everyStore(), storeName);

// Where the store cannot be read --------------------------------------------------------------------------------------

class UnreadableRecords : public RepresentationFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableRecords, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableRecords, AreNotMadeASecondTime)
{
    const Dictionary password = aPassword().dictionaryRepresentation();
    const Dictionary file = aFullFile().dictionaryRepresentation();
    save();
    for (const std::string table : {"OVPassword", "OVNoteFile"})
        runSQL(("ALTER TABLE \"" + table + "\" RENAME TO \"hidden " + table + "\"").c_str());
    EXPECT_THAT(OVPassword::passwordFromDictionaryRepresentation(password, context()), IsNull());
    EXPECT_THAT(OVNoteFile::noteFileFromDictionaryRepresentation(file, context()), IsNull());
    EXPECT_FALSE(context().hasChanges());
    for (const std::string table : {"OVPassword", "OVNoteFile"})
        runSQL(("ALTER TABLE \"hidden " + table + "\" RENAME TO \"" + table + "\"").c_str());
    const auto failure = testing::StartsWith("Error while fetching\n");
    EXPECT_THAT(takeLog(), ElementsAre(failure, failure));
}

} // namespace
} // namespace tarn
