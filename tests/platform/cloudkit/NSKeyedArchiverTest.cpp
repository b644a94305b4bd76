#include "tarnmodel/platform/cloudkit/NSKeyedArchiver.h"
#include "tarnmodel/platform/cloudkit/CKRecord.h"
#include "tarnmodel/platform/cloudkit/CKServerChangeToken.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::byte> bytesOf(const std::optional<NSData>& archive)
{
    return archive ? std::vector<std::byte>(archive->span().begin(), archive->span().end()) : std::vector<std::byte>();
}

CKRecord aRecord()
{
    CKRecord record("Note", {"12345678-ABCD", {"Notes", "_owner"}});
    record.recordChangeTag = "ta\xC3\xA4g";
    record.creationDate = dateWithMicrosecondsSince1970(-1);
    record.modificationDate = dateWithMicrosecondsSince1970(1'700'000'000'123'456);
    return record;
}

bool readsAsAnything(std::span<const std::byte> bytes)
{
    return CKRecord::recordWithArchivedSystemFields(bytes) || CKRecordZoneID::unarchivedFromData(bytes)
        || CKServerChangeToken::unarchivedFromData(bytes);
}

std::vector<std::vector<std::byte>> archives()
{
    const CKRecordZoneID zone{"Notes", "_owner"};
    return {bytesOf(aRecord().archivedSystemFields()), bytesOf(zone.archivedData()),
        bytesOf(CKServerChangeToken(NSData::fromText("opaque")).archivedData())};
}

TEST(KeyedArchive, GivesAZoneBack)
{
    for (const CKRecordZoneID& zone :
        {CKRecordZoneID{"Notes"}, CKRecordZoneID{"", ""}, CKRecordZoneID{"Zo\xC3\xAB\n\"", "_owner"},
            CKRecordZoneID{std::string(70'000, 'x'), std::string("\0", 1)}})
        EXPECT_EQ(CKRecordZoneID::unarchivedFromData(zone.archivedData()->span()), zone);
    EXPECT_EQ(CKRecordZoneID{"Notes"}.ownerName, "__defaultOwner__");
}

TEST(KeyedArchive, GivesATokenBack)
{
    for (const char* text : {"", "opaque"}) {
        const CKServerChangeToken token(NSData::fromText(text));
        EXPECT_EQ(CKServerChangeToken::unarchivedFromData(token.archivedData()->span()), token);
    }
}

TEST(KeyedArchive, GivesSystemFieldsBackAndNoValues)
{
    CKRecord record = aRecord();
    record.setValueForKey("title", "secret title");

    const auto archive = record.archivedSystemFields();

    EXPECT_EQ(CKRecord::recordWithArchivedSystemFields(archive->span()), aRecord());
    EXPECT_THAT(std::string(archive->text()), testing::Not(testing::HasSubstr("secret")));
}

TEST(KeyedArchive, GivesARecordBackThatTheServerHasNotSeen)
{
    const CKRecord record("Note", {"a", {"Notes"}});

    const auto read = CKRecord::recordWithArchivedSystemFields(record.archivedSystemFields()->span());

    EXPECT_EQ(read, record);
    EXPECT_FALSE(read->recordChangeTag || read->creationDate || read->modificationDate);
}

TEST(KeyedArchive, HasAFormThatStays)
{
    // Archives lie in stores: when this fails the format has changed, and needs a new number.
    constexpr std::string_view expected("TarnKArc\1\016CKRecordZoneID\0\2"
                                        "\011ownerName\1\0\0\0\6_owner"
                                        "\010zoneName\1\0\0\0\5Notes"
                                        "\x6E\x69\xD8\xAF",
        8 + 1 + 15 + 2 + 10 + 5 + 6 + 9 + 5 + 5 + 4);

    const NSData archive = *CKRecordZoneID{"Notes", "_owner"}.archivedData();

    EXPECT_EQ(archive.text().substr(0, archive.length() - 4), expected.substr(0, expected.size() - 4));
    EXPECT_EQ(archive.text(), expected);
}

TEST(KeyedArchive, IsReadAsTheClassThatItHolds)
{
    const auto all = archives();
    EXPECT_TRUE(CKRecord::recordWithArchivedSystemFields(all[0]));
    EXPECT_FALSE(CKRecordZoneID::unarchivedFromData(all[0]));
    EXPECT_FALSE(CKServerChangeToken::unarchivedFromData(all[0]));
    EXPECT_TRUE(CKRecordZoneID::unarchivedFromData(all[1]));
    EXPECT_FALSE(CKRecord::recordWithArchivedSystemFields(all[1]));
    EXPECT_TRUE(CKServerChangeToken::unarchivedFromData(all[2]));
    EXPECT_FALSE(CKRecordZoneID::unarchivedFromData(all[2]));
}

TEST(KeyedArchive, NeedsEveryFieldInItsKind)
{
    NSKeyedArchiver lacking("CKRecordZoneID");
    lacking.encode("zoneName", "Notes");
    EXPECT_FALSE(CKRecordZoneID::unarchivedFromData(lacking.finishEncoding()->span()));
    NSKeyedArchiver ofOtherKind("CKRecordZoneID");
    ofOtherKind.encode("zoneName", NSData::fromText("Notes"));
    ofOtherKind.encode("ownerName", "_owner");
    EXPECT_FALSE(CKRecordZoneID::unarchivedFromData(ofOtherKind.finishEncoding()->span()));
    NSKeyedArchiver dateAsText("CKRecord");
    aRecord().encodeSystemFieldsWithCoder(dateAsText);
    dateAsText.encode("creationDate", "yesterday");
    EXPECT_FALSE(CKRecord::recordWithArchivedSystemFields(dateAsText.finishEncoding()->span()));
    NSKeyedArchiver tagAsData("CKRecord");
    aRecord().encodeSystemFieldsWithCoder(tagAsData);
    tagAsData.encode("recordChangeTag", NSData());
    EXPECT_FALSE(CKRecord::recordWithArchivedSystemFields(tagAsData.finishEncoding()->span()));
}

TEST(KeyedArchive, LeavesRoomForFieldsOfLaterVersions)
{
    NSKeyedArchiver later("CKRecordZoneID");
    later.encode("zoneName", "Notes");
    later.encode("ownerName", "_owner");
    later.encode("anotherField", "value");

    EXPECT_EQ(CKRecordZoneID::unarchivedFromData(later.finishEncoding()->span()), (CKRecordZoneID{"Notes", "_owner"}));
}

TEST(KeyedArchive, RefusesNamesThatDoNotFit)
{
    EXPECT_FALSE(NSKeyedArchiver("").finishEncoding());
    EXPECT_FALSE(NSKeyedArchiver(std::string(256, 'c')).finishEncoding());
    EXPECT_TRUE(NSKeyedArchiver(std::string(255, 'c')).finishEncoding());
    NSKeyedArchiver unnamedValue("C");
    unnamedValue.encode("", "value");
    EXPECT_FALSE(unnamedValue.finishEncoding());
}

TEST(KeyedArchive, RefusesEveryTruncationAndEveryAddedByte)
{
    for (std::vector<std::byte> archive : archives()) {
        for (std::size_t length = 0; length < archive.size(); ++length)
            EXPECT_FALSE(readsAsAnything(std::span(archive).first(length))) << length;
        archive.push_back(std::byte{0});
        EXPECT_FALSE(readsAsAnything(archive));
    }
}

TEST(KeyedArchive, RefusesEveryFlippedBit)
{
    for (std::vector<std::byte> archive : archives()) {
        for (std::size_t bit = 0; bit < archive.size() * 8; ++bit) {
            const auto mask = static_cast<std::byte>(1U << (bit % 8));
            archive[bit / 8] ^= mask;
            EXPECT_FALSE(readsAsAnything(archive)) << bit;
            archive[bit / 8] ^= mask;
        }
        EXPECT_TRUE(readsAsAnything(archive));
    }
}

TEST(KeyedArchive, RefusesRandomBytes)
{
    constexpr std::uint32_t seed = 20'241'121;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 20'000; ++round) {
        std::vector<std::byte> bytes(random() % 80);
        for (std::byte& byte : bytes)
            byte = static_cast<std::byte>(random());
        ASSERT_FALSE(readsAsAnything(bytes)) << round;
    }
}

std::uint32_t checksumByBits(std::span<const std::byte> bytes)
{
    std::uint32_t checksum = ~std::uint32_t{0};
    for (const std::byte byte : bytes) {
        checksum ^= std::to_integer<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            checksum = checksum & 1 ? (checksum >> 1) ^ 0xEDB88320U : checksum >> 1;
    }
    return ~checksum;
}

void sign(std::vector<std::byte>& archive)
{
    const std::uint32_t checksum = checksumByBits(std::span(archive).first(archive.size() - 4));
    for (std::size_t index = 0; index < 4; ++index)
        archive[archive.size() - 4 + index] = static_cast<std::byte>(checksum >> (24 - 8 * index));
}

TEST(KeyedArchive, SurvivesForgedContentsUnderACorrectChecksum)
{
    constexpr std::uint32_t seed = 11'221'963;
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (const std::vector<std::byte>& archive : archives()) {
        for (int round = 0; round < 5'000; ++round) {
            std::vector<std::byte> forged = archive;
            for (unsigned change = random() % 4; change <= 4; ++change)
                forged[random() % (forged.size() - 4)] = static_cast<std::byte>(random());
            if (random() % 2)
                forged.erase(forged.begin() + static_cast<std::ptrdiff_t>(random() % (forged.size() - 4)));
            sign(forged);
            readsAsAnything(forged); // whatever it says: the sanitizers watch
            forged[8] = std::byte{2};
            sign(forged);
            ASSERT_FALSE(readsAsAnything(forged)) << "a format of the future, round " << round;
        }
    }
}

TEST(KeyedArchive, RefusesLengthsBeyondItsEnd)
{
    std::vector<std::byte> archive = archives()[1];
    const std::size_t lengthOfFirstValue = 8 + 1 + 15 + 2 + 10 + 1;
    for (std::size_t index = 0; index < 4; ++index)
        archive[lengthOfFirstValue + index] = std::byte{0xFF};
    sign(archive);

    EXPECT_FALSE(readsAsAnything(archive));
}

TEST(CKRecordValues, AreKeptByName)
{
    CKRecord record = aRecord();
    EXPECT_TRUE(record.valueForKey("title").isNil());
    record.setValueForKey("title", "a");
    record.setValueForKey("count", 3);
    record.setValueForKey("tags", Value::Array{"a", "b"});
    EXPECT_THAT(record.allKeys(), ElementsAre("count", "tags", "title"));
    EXPECT_EQ(record.valueForKey("title"), Value("a"));

    record.setValueForKey("title", nullptr);
    EXPECT_THAT(record.allKeys(), ElementsAre("count", "tags"));
}

TEST(CKRecordValues, AreNoObjects)
{
    struct AnObject : NSKeyValueCoding {
        Value storedValueForKey(std::string_view) const override { return {}; }
    } object;
    CKRecord record = aRecord();

    EXPECT_THROW(record.setValueForKey("note", &object), NSException);
    EXPECT_THROW(record.setValueForKey("notes", Value::Array{1, &object}), NSException);
    EXPECT_THAT(record.allKeys(), IsEmpty());
}

} // namespace
} // namespace tarn
