#include "tarnmodel/encryption/sealing/SealedFile.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/encryption/sealing/FileSealer.h"
#include "tarnmodel/encryption/sealing/SealedFileFormatInternal.h"
#include "tarnmodel/encryption/sealing/SealedFileReader.h"
#include "tests/encryption/EncryptionFixture.h"

#include <sys/resource.h>

#include <random>
#include <set>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFileEncryption = "ENCRYPTION-1";

class SealedFiles : public EncryptionFixture {
protected:
    SealedFiles() : key_(*newKey(nullptr)) { }

    fs::path place(std::string_view name) const { return scratchFolder() / name; }
    /// A new sealed file of this content.
    fs::path sealed(std::string_view content)
    {
        const fs::path clear = place("clear");
        const fs::path made = place("sealed" + std::to_string(++made_));
        writeFile(clear, content);
        NSError error;
        EXPECT_TRUE(sealItem(clear, made, key_, kFileEncryption, &error)) << error;
        return made;
    }
    long codeOfVerifying(const fs::path& file, std::string_view identifier = kFileEncryption)
    {
        NSError error;
        return verifySealedItem(file, key_, identifier, &error) ? 0 : error.code();
    }
    long codeOfVerifying(const std::string& bytes)
    {
        writeFile(place("changed"), bytes);
        return codeOfVerifying(place("changed"));
    }
    static std::string noise(std::size_t length)
    {
        std::mt19937 random(static_cast<unsigned>(length));
        std::string bytes(length, '\0');
        std::ranges::generate(bytes, [&] { return static_cast<char>(random()); });
        return bytes;
    }
    /// Its head and its pieces.
    static std::vector<std::string> piecesOf(const fs::path& file)
    {
        const std::string bytes = contentsOf(file);
        std::vector<std::string> pieces{bytes.substr(0, sealedPiecesAt)};
        for (std::size_t at = sealedPiecesAt; at < bytes.size(); at += sealedPieceLength + sealedPieceOverhead)
            pieces.push_back(bytes.substr(at, sealedPieceLength + sealedPieceOverhead));
        return pieces;
    }
    static std::string joinedPieces(const std::vector<std::string>& pieces)
    {
        std::string bytes;
        for (const std::string& piece : pieces)
            bytes += piece;
        return bytes;
    }

    SecretBytes key_;
    int made_ = 0;
};

TEST_F(SealedFiles, GiveBackTheirContent)
{
    for (const std::size_t length :
        {0U, 1U, 246U, 247U, 248U, 65526U, 65527U, 65528U, 65536U, 131071U, 200'000U, 1U << 20U}) {
        const std::string content = noise(length);
        const fs::path file = sealed(content);
        EXPECT_EQ(fs::file_size(file), sealedFileLength(length)) << length;
        NSError error;
        ASSERT_TRUE(unsealItem(file, place("back"), key_, kFileEncryption, &error)) << length << error;
        EXPECT_TRUE(contentsOf(place("back")) == content) << length;
        fs::remove(place("back"));
    }
}

TEST_F(SealedFiles, TellLittleOfTheirLength)
{
    std::set<std::uintmax_t> lengths;
    for (std::size_t length = 1000; length < 1050; ++length)
        lengths.insert(fs::file_size(sealed(noise(length))));
    EXPECT_LE(lengths.size(), 2U);
}

TEST_F(SealedFiles, HoldNothingClear)
{
    const std::string content = noise(100'000) + "the marker" + noise(100'000);
    const std::string bytes = contentsOf(sealed(content));
    EXPECT_EQ(bytes.find("the marker"), std::string::npos);
    EXPECT_EQ(bytes.find(content.substr(0, 8)), std::string::npos);
}

TEST_F(SealedFiles, KeepTheDateAndAreTheirOwnersAlone)
{
    const fs::path clear = place("clear");
    writeFile(clear, "content");
    const NSDate date = dateWithMicrosecondsSince1970(1'500'000'000'123'456);
    NSFileManager::setModificationDate(date, clear);
    ASSERT_TRUE(sealItem(clear, place("sealed"), key_, kFileEncryption, nullptr));
    ASSERT_TRUE(unsealItem(place("sealed"), place("back"), key_, kFileEncryption, nullptr));
    for (const char* const name : {"sealed", "back"}) {
        EXPECT_EQ(NSFileManager::attributesOfItemAtURL(place(name))->modificationDate, date);
        EXPECT_EQ(fs::status(place(name)).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    }
}

TEST_F(SealedFiles, AreRefusedWithAnyByteChanged)
{
    const std::string small = contentsOf(sealed("content"));
    for (std::size_t at = 0; at < small.size(); ++at) {
        std::string changed = small;
        changed[at] = static_cast<char>(changed[at] ^ 0x20);
        EXPECT_EQ(codeOfVerifying(changed), at <= 8 ? OVEncryptionErrorUnknownVersion : OVEncryptionErrorDamaged) << at;
    }
}

TEST_F(SealedFiles, OfThreePiecesAreRefusedWithAByteChanged)
{
    const std::string bytes = contentsOf(sealed(noise(150'000)));
    constexpr std::size_t whole = sealedPieceLength + sealedPieceOverhead;
    ASSERT_GT(bytes.size(), sealedPiecesAt + 2 * whole);
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const std::size_t inPiece = at < sealedPiecesAt ? 0 : (at - sealedPiecesAt) % whole;
        if (inPiece > 20 && inPiece < whole - 20 && at % 1009 != 0 && at + 20 < bytes.size())
            continue;
        std::string changed = bytes;
        changed[at] = static_cast<char>(changed[at] ^ 0x01);
        EXPECT_NE(codeOfVerifying(changed), 0) << at;
    }
}

TEST_F(SealedFiles, AreRefusedAtEveryOtherLength)
{
    const std::string small = contentsOf(sealed("content"));
    for (std::size_t length = 0; length < small.size(); ++length)
        EXPECT_NE(codeOfVerifying(small.substr(0, length)), 0) << length;
    EXPECT_EQ(codeOfVerifying(small + '\0'), OVEncryptionErrorDamaged);
    const std::vector<std::string> pieces = piecesOf(sealed(noise(150'000)));
    std::string bytes;
    for (const std::string& piece : pieces) {
        EXPECT_NE(codeOfVerifying(bytes), 0);
        bytes += piece;
        EXPECT_NE(codeOfVerifying(bytes.substr(0, bytes.size() - 1)), 0);
    }
    EXPECT_EQ(codeOfVerifying(bytes), 0);
    EXPECT_EQ(codeOfVerifying(bytes + pieces.back()), OVEncryptionErrorDamaged);
}

TEST_F(SealedFiles, KeepTheirPiecesInOrder)
{
    const std::vector<std::string> pieces = piecesOf(sealed(noise(250'000)));
    ASSERT_EQ(pieces.size(), 5U);
    auto changed = pieces;
    std::swap(changed[1], changed[2]);
    EXPECT_EQ(codeOfVerifying(joinedPieces(changed)), OVEncryptionErrorDamaged);
    changed = pieces;
    std::swap(changed[2], changed[3]);
    EXPECT_EQ(codeOfVerifying(joinedPieces(changed)), OVEncryptionErrorDamaged);
    changed = pieces;
    changed[3] = changed[2];
    EXPECT_EQ(codeOfVerifying(joinedPieces(changed)), OVEncryptionErrorDamaged);
    changed = pieces;
    changed.erase(changed.begin() + 2);
    EXPECT_EQ(codeOfVerifying(joinedPieces(changed)), OVEncryptionErrorDamaged);
}

TEST_F(SealedFiles, TakeNoPieceOfAnotherFile)
{
    const std::vector<std::string> one = piecesOf(sealed(noise(150'000)));
    const std::vector<std::string> other = piecesOf(sealed(noise(150'000)));
    for (std::size_t index = 0; index < one.size(); ++index) {
        auto mixed = one;
        mixed[index] = other[index];
        EXPECT_EQ(codeOfVerifying(joinedPieces(mixed)), OVEncryptionErrorDamaged) << index;
    }
}

TEST_F(SealedFiles, AreBoundToRecordAndKey)
{
    const fs::path file = sealed("content");
    EXPECT_EQ(codeOfVerifying(file, "ENCRYPTION-2"), OVEncryptionErrorDamaged);
    NSError error;
    EXPECT_FALSE(verifySealedItem(file, *newKey(nullptr), kFileEncryption, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorDamaged);
}

TEST_F(SealedFiles, WithBytesInThePaddingAreRefused)
{
    // Written as the format wants it, but for the padding.
    const auto key = keyForUse(key_, KeyUse::FileEncryption, nullptr);
    std::vector<std::byte> clear(256);
    clear[0] = std::byte{1};
    std::vector<std::byte> head(crypto_secretstream_xchacha20poly1305_HEADERBYTES, std::byte{3});
    for (const std::size_t at : {0U, 9U, 255U}) {
        std::vector<std::byte> stream = clear;
        if (at > 0)
            stream[at] = std::byte{1};
        crypto_secretstream_xchacha20poly1305_state state;
        crypto_secretstream_xchacha20poly1305_init_pull(&state, octets(std::span(head)), octets(key->span()));
        std::vector<std::byte> piece(stream.size() + sealedPieceOverhead);
        const auto context = contextOfPiece(0, kFileEncryption);
        crypto_secretstream_xchacha20poly1305_push(&state, octets(std::span(piece)), nullptr, octets(std::span(stream)),
            stream.size(), octets(std::span(context)), context.size(), crypto_secretstream_xchacha20poly1305_TAG_FINAL);
        const auto bytes = joined({bytesOfText(sealedFileMagic), std::span(&sealedFileVersion, 1), head, piece});
        const long expected = at > 0 ? long{OVEncryptionErrorDamaged} : 0;
        EXPECT_EQ(codeOfVerifying(std::string(NSData(bytes).text())), expected) << at;
    }
}

TEST_F(SealedFiles, AreNotReadInPartsAsAWhole)
{
    std::string bytes = contentsOf(sealed(noise(150'000)));
    bytes.back() = static_cast<char>(bytes.back() ^ 1);
    writeFile(place("changed"), bytes);
    EXPECT_FALSE(unsealItem(place("changed"), place("back"), key_, kFileEncryption, nullptr));
    EXPECT_FALSE(fs::exists(place("back")));
}

TEST_F(SealedFiles, AreSealedWithAnotherKey)
{
    const fs::path file = sealed(noise(100'000));
    const SecretBytes other = *newKey(nullptr);
    ASSERT_TRUE(resealItem(file, place("other"), key_, other, kFileEncryption, nullptr));
    EXPECT_NE(codeOfVerifying(place("other")), 0);
    ASSERT_TRUE(unsealItem(place("other"), place("back"), other, kFileEncryption, nullptr));
    EXPECT_TRUE(contentsOf(place("back")) == noise(100'000));
    EXPECT_EQ(fs::last_write_time(place("other")), fs::last_write_time(file));
}

TEST_F(SealedFiles, TellWhatIsNotThere)
{
    NSError error;
    EXPECT_FALSE(sealItem(place("none"), place("sealed"), key_, kFileEncryption, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorFile);
    EXPECT_NE(error.localizedDescription().find("none"), std::string::npos);
    EXPECT_FALSE(fs::exists(place("sealed")));
    EXPECT_EQ(codeOfVerifying(place("none")), OVEncryptionErrorFile);
    fs::create_directory(place("folder"));
    EXPECT_EQ(codeOfVerifying(place("folder")), OVEncryptionErrorFile);
}

TEST_F(SealedFiles, CoverNothing)
{
    const fs::path file = sealed("content");
    writeFile(place("taken"), "mine");
    EXPECT_FALSE(sealItem(file, place("taken"), key_, kFileEncryption, nullptr));
    EXPECT_FALSE(unsealItem(file, place("taken"), key_, kFileEncryption, nullptr));
    EXPECT_EQ(contentsOf(place("taken")), "mine");
}

TEST_F(SealedFiles, HaveTheLengthThatWasSaid)
{
    for (const std::string_view content : {"too short", "much too long for it"}) {
        FileSealer sealer(place("sealed"), ContentKind::Bytes, 12, kFileEncryption);
        ASSERT_TRUE(sealer.begin(key_, nullptr));
        NSError error;
        EXPECT_FALSE(sealer.write(bytesOfText(content), &error) && sealer.finish(&error));
        EXPECT_EQ(error.code(), OVEncryptionErrorFile);
        fs::remove(place("sealed"));
    }
}

TEST_F(SealedFiles, UseNoOtherRandomBytesThanTheEnvironments)
{
    world_.setRandomBytes([](std::span<std::byte> bytes) { std::ranges::fill(bytes, std::byte{0x5A}); });
    EXPECT_EQ(contentsOf(sealed("content")), contentsOf(sealed("content")));
}

#ifndef TARN_SANITIZED
/// How many MiB a large file has.
std::uintmax_t largeFile()
{
    return std::stoul(Environment::current().variable("TARN_SEALED_MEBIBYTES").value_or("64"));
}

TEST_F(SealedFiles, AreNeverHeldInMemory)
{
    const fs::path clear = place("large");
    writeFile(clear, "begin");
    fs::resize_file(clear, largeFile() << 20U);
    rusage before{};
    ::getrusage(RUSAGE_SELF, &before);
    ASSERT_TRUE(sealItem(clear, place("sealed"), key_, kFileEncryption, nullptr));
    EXPECT_EQ(codeOfVerifying(place("sealed")), 0);
    rusage after{};
    ::getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 8 << 10); // KiB
}
#endif

} // namespace
} // namespace tarn
