#include "tarnmodel/encryption/keys/PasswordBlob.h"

#include "tarnmodel/encryption/keys/ByteFields.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>

namespace tarn {
namespace {

constexpr std::string_view kRecordIdentifier = "0A0B0C0D-0000-4000-8000-000000000001";

MasterKey aMasterKey()
{
    return {randomArray<MasterKeyIdentifier>(), std::make_shared<const SecretBytes>(*newKey(nullptr))};
}

class PasswordBlobs : public testing::Test {
protected:
    PasswordBlobs() : derived_(*deriveNewKey(*passwordInUse("secret", nullptr), {1, 8}, nullptr)) { }

    NSData written(const KeyRing& ring) { return *PasswordBlob::write(ring, derived_, kRecordIdentifier, nullptr); }
    /// What reading and trying the right password ends in; 0 when it opens.
    long codeOf(const NSData& data, std::string_view identifier = kRecordIdentifier)
    {
        NSError error;
        const auto blob = PasswordBlob::read(data, &error);
        const auto key = blob ? deriveKey(*passwordInUse("secret", nullptr), blob->derivation(), &error) : std::nullopt;
        return key && blob->open(*key, identifier, &error) ? 0 : error.code();
    }
    /// The same data with the sum that anybody can make set right.
    static NSData withRightSum(std::vector<std::byte> bytes)
    {
        const auto content = std::span(bytes).first(bytes.size() - 16);
        crypto_generichash(octets(std::span(bytes).last(16)), 16, octets(content), content.size(), nullptr, 0);
        return NSData(std::move(bytes));
    }
    static std::vector<std::byte> bytesOf(const NSData& data) { return {data.span().begin(), data.span().end()}; }

    DerivedKey derived_;
};

TEST_F(PasswordBlobs, GiveBackEveryKey)
{
    for (const int formerKeys : {0, 1, 5}) {
        KeyRing ring{aMasterKey()};
        for (int count = 0; count < formerKeys; ++count)
            ring.push_back(aMasterKey());
        const auto blob = PasswordBlob::read(written(ring), nullptr);
        const auto read = blob->open(derived_.key, kRecordIdentifier, nullptr);
        ASSERT_EQ(read->size(), ring.size());
        for (std::size_t index = 0; index < ring.size(); ++index) {
            EXPECT_EQ((*read)[index].identifier, ring[index].identifier);
            EXPECT_TRUE(std::ranges::equal((*read)[index].key->span(), ring[index].key->span()));
        }
        EXPECT_EQ(blob->newestKey(), ring.front().identifier);
        EXPECT_TRUE(blob->isVouchedForBy(ring.front()));
    }
}

TEST_F(PasswordBlobs, AreNeverTheSameTwice)
{
    const KeyRing ring{aMasterKey(), aMasterKey()};
    EXPECT_NE(written(ring), written(ring));
}

TEST_F(PasswordBlobs, HoldNoKeyInTheClear)
{
    const KeyRing ring{aMasterKey(), aMasterKey()};
    const NSData data = written(ring);
    const auto isIn = [bytes = data.span()](std::span<const std::byte> key) {
        return std::search(bytes.begin(), bytes.end(), key.begin(), key.end()) != bytes.end();
    };
    for (const MasterKey& key : ring)
        EXPECT_FALSE(isIn(key.key->span()));
    EXPECT_FALSE(isIn(derived_.key.span()));
}

TEST_F(PasswordBlobs, TellAWrongPasswordFromDamage)
{
    const NSData data = written({aMasterKey()});
    NSError error;
    const auto blob = PasswordBlob::read(data, nullptr);
    const auto wrong = deriveKey(*passwordInUse("wrong", nullptr), blob->derivation(), nullptr);
    EXPECT_FALSE(blob->open(*wrong, kRecordIdentifier, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorWrongPassword);
    std::vector<std::byte> bytes = bytesOf(data);
    bytes[120] ^= std::byte{1};
    EXPECT_EQ(codeOf(NSData(bytes)), OVEncryptionErrorDamaged);
}

TEST_F(PasswordBlobs, TellAnotherVersion)
{
    std::vector<std::byte> bytes = bytesOf(written({aMasterKey()}));
    bytes[8] = std::byte{2};
    EXPECT_EQ(codeOf(withRightSum(bytes)), OVEncryptionErrorUnknownVersion);
    bytes[8] = std::byte{1};
    bytes[9] = std::byte{2};
    EXPECT_EQ(codeOf(withRightSum(bytes)), OVEncryptionErrorUnknownVersion);
    bytes[0] = std::byte{'t'};
    EXPECT_EQ(codeOf(withRightSum(bytes)), OVEncryptionErrorUnknownVersion);
    EXPECT_EQ(codeOf(NSData()), OVEncryptionErrorUnknownVersion);
    EXPECT_EQ(codeOf(NSData::fromText("TARNKEYS")), OVEncryptionErrorUnknownVersion);
    EXPECT_EQ(codeOf(NSData::fromText("TARNKEYS\x01")), OVEncryptionErrorDamaged);
}

TEST_F(PasswordBlobs, AreNotTriedWhereTheyAskForTooMuch)
{
    const std::vector<std::byte> bytes = bytesOf(written({aMasterKey()}));
    const auto codeWith = [&](std::size_t at, std::uint32_t number) {
        std::vector<std::byte> changed = bytes;
        std::ranges::copy(littleEndian(number), changed.begin() + static_cast<std::ptrdiff_t>(at));
        NSError error;
        return PasswordBlob::read(withRightSum(changed), &error) ? 0 : error.code();
    };
    EXPECT_EQ(codeWith(10, 11), OVEncryptionErrorTooMuchWork);
    EXPECT_EQ(codeWith(10, 10), 0);
    EXPECT_EQ(codeWith(10, 0xFFFF'FFFF), OVEncryptionErrorTooMuchWork);
    EXPECT_EQ(codeWith(10, 0), OVEncryptionErrorDamaged);
    EXPECT_EQ(codeWith(14, (1U << 20U) + 1), OVEncryptionErrorTooMuchWork);
    EXPECT_EQ(codeWith(14, 1U << 20U), 0);
    EXPECT_EQ(codeWith(14, 1U << 30U), OVEncryptionErrorTooMuchWork); // a tebibyte
    EXPECT_EQ(codeWith(14, 7), OVEncryptionErrorDamaged);
    EXPECT_EQ(codeWith(14, 0), OVEncryptionErrorDamaged);
}

TEST_F(PasswordBlobs, AreRefusedWithAnyByteChanged)
{
    const std::vector<std::byte> bytes = bytesOf(written({aMasterKey(), aMasterKey()}));
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        std::vector<std::byte> changed = bytes;
        changed[at] ^= std::byte{0x10};
        EXPECT_NE(codeOf(NSData(changed)), 0) << at;
    }
}

TEST_F(PasswordBlobs, AreRefusedWithAnyByteChangedAndTheSumSetRight)
{
    const std::vector<std::byte> bytes = bytesOf(written({aMasterKey(), aMasterKey()}));
    std::set<long> codes;
    for (std::size_t at = 0; at < bytes.size() - 16; ++at) {
        if (at == 17) // would ask for memory up to the limit
            continue;
        std::vector<std::byte> changed = bytes;
        changed[at] ^= std::byte{0x01};
        const long code = codeOf(withRightSum(changed));
        EXPECT_NE(code, 0) << at;
        codes.insert(code);
    }
    EXPECT_THAT(codes,
        testing::IsSupersetOf({long{OVEncryptionErrorWrongPassword}, long{OVEncryptionErrorDamaged},
            long{OVEncryptionErrorUnknownVersion}}));
}

TEST_F(PasswordBlobs, AreRefusedAtEveryOtherLength)
{
    std::vector<std::byte> bytes = bytesOf(written({aMasterKey(), aMasterKey()}));
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        const NSData cut(std::span<const std::byte>(bytes).first(length));
        EXPECT_NE(codeOf(cut), 0) << length;
        if (length > 25) {
            EXPECT_NE(codeOf(withRightSum(bytesOf(cut))), 0) << length;
        }
    }
    bytes.push_back({});
    EXPECT_NE(codeOf(NSData(bytes)), 0);
    EXPECT_NE(codeOf(withRightSum(bytes)), 0);
}

TEST_F(PasswordBlobs, AreBoundToTheirRecord)
{
    EXPECT_EQ(codeOf(written({aMasterKey()}), "another"), OVEncryptionErrorWrongPassword);
}

TEST_F(PasswordBlobs, TakeNoFormerKeyOfAnotherRing)
{
    const MasterKey newest = aMasterKey();
    std::vector<std::byte> bytes = bytesOf(written({newest, aMasterKey()}));
    const std::vector<std::byte> other = bytesOf(written({newest, aMasterKey()}));
    std::copy_n(other.begin() + 156, 88, bytes.begin() + 156);
    EXPECT_EQ(codeOf(withRightSum(bytes)), OVEncryptionErrorDamaged);
}

TEST_F(PasswordBlobs, AreVouchedForByTheNewestKeyAlone)
{
    const KeyRing ring{aMasterKey(), aMasterKey()};
    const auto blob = PasswordBlob::read(written(ring), nullptr);
    EXPECT_FALSE(blob->isVouchedForBy(ring[1]));
    const MasterKey impostor{ring[0].identifier, ring[1].key};
    EXPECT_FALSE(blob->isVouchedForBy(impostor));
}

TEST_F(PasswordBlobs, TellThatThereIsNoRoomForKeys)
{
    const KeyRing ring{aMasterKey()};
    const NSData data = written(ring);
    const auto blob = PasswordBlob::read(data, nullptr);
    for (std::size_t slots = 0; slots < 5; ++slots) {
        const KeyArenaOverride small(std::make_shared<KeyArena>(std::max<std::size_t>(slots, 1) * KeyArena::slotSize));
        const auto taken = slots == 0 ? KeyArena::shared()->take(1, nullptr) : std::nullopt;
        NSError error;
        EXPECT_FALSE(PasswordBlob::write(ring, derived_, kRecordIdentifier, &error) && slots < 4);
        if (slots < 4) {
            EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory) << slots;
        }
        error = {};
        if (!blob->open(derived_.key, kRecordIdentifier, &error)) {
            EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory) << slots;
        }
    }
}

} // namespace
} // namespace tarn
