#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <gmock/gmock.h>
#include <random>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// All of a folded text's, ascending.
std::vector<std::uint32_t> gramHashes(std::string_view foldedText)
{
    auto hashes = gramHashesOfNeedle(foldedText, std::string_view::npos);
    std::ranges::sort(hashes);
    return hashes;
}

bool mayContain(const std::string& signature, std::string_view needle)
{
    const auto* bits = reinterpret_cast<const std::uint8_t*>(signature.data()) + signatureHeaderSize;
    return hasGrams(bits, signature.size() - signatureHeaderSize, gramHashesOfNeedle(fold(needle), 48));
}

std::string hex(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes)
        text += fmt::format("{:02x}", static_cast<unsigned char>(byte));
    return text;
}

TEST(SubstringSignature, HashesEveryThreeCodePointsOnce)
{
    EXPECT_THAT(gramHashes("abc"), ElementsAre(0x9f2b0e30));
    EXPECT_EQ(gramHashes("abcabc").size(), 3U) << "abc, bca, cab";
    EXPECT_THAT(gramHashes("ab"), IsEmpty());
    EXPECT_THAT(gramHashes("\xC3\xA9t"), IsEmpty()) << "two code points of three bytes";
    EXPECT_THAT(gramHashes(""), IsEmpty());
}

TEST(SubstringSignature, HashesPairsThreeTimesWhereWordsAreShort)
{
    EXPECT_EQ(gramHashes("日本").size(), 3U);
    EXPECT_EQ(gramHashes("日本語").size(), 7U) << "two pairs and the three together";
    EXPECT_EQ(gramHashes("a日").size(), 3U);
    EXPECT_EQ(gramHashes("\xE2\xBA\x80x").size(), 3U) << "U+2E80";
    EXPECT_THAT(gramHashes("\xE2\xB9\xBFx"), IsEmpty()) << "U+2E7F";
}

// What stands in files of users: a change of these bytes is a change of the format.
TEST(SubstringSignature, HasItsDocumentedBytes)
{
    const std::string signature = signatureOfText("Grüße, 日本!");
    const auto version = static_cast<unsigned>(foldingVersion());
    EXPECT_EQ(hex(signature.substr(0, 4)),
        fmt::format("01{:02x}{:02x}{:02x}", version & 0xFFU, (version >> 8U) & 0xFFU, (version >> 16U) & 0xFFU));
    EXPECT_EQ(hex(signature.substr(4)), "4216ca1a28");
}

TEST(SubstringSignature, TakesTwoBitsForEachHashInWholeBytes)
{
    EXPECT_EQ(signatureOfText("abc").size(), signatureHeaderSize + 1);
    EXPECT_EQ(signatureOfText("abcdef").size(), signatureHeaderSize + 1) << "four hashes";
    EXPECT_EQ(signatureOfText("abcdefg").size(), signatureHeaderSize + 2) << "five hashes";
}

TEST(SubstringSignature, OfAShortTextIsTheHeaderAloneAndHasNoGrams)
{
    EXPECT_EQ(signatureOfText(""), signatureOfNothing());
    EXPECT_EQ(signatureOfText("ab"), signatureOfNothing());
    EXPECT_FALSE(mayContain(signatureOfNothing(), "abc"));
    EXPECT_TRUE(mayContain(signatureOfNothing(), "ab")) << "nothing is known about two letters";
}

TEST(SubstringSignature, IsStaleWithAnotherVersionOrWithoutOne)
{
    std::string signature = signatureOfText("pears");
    EXPECT_TRUE(isCurrentSignature(signature));
    EXPECT_FALSE(isCurrentSignature(""));
    EXPECT_FALSE(isCurrentSignature(signature.substr(0, 3)));
    signature[1] = static_cast<char>(signature[1] ^ 1);
    EXPECT_FALSE(isCurrentSignature(signature));
}

TEST(SubstringSignature, ChoosesGramsOfALongNeedleFromAllOverIt)
{
    std::string needle;
    for (int i = 0; i < 500; ++i)
        needle += fmt::format("{} ", i);
    const auto all = gramHashes(needle);
    const auto chosen = gramHashesOfNeedle(needle, 48);
    EXPECT_LE(chosen.size(), 48U);
    EXPECT_GT(chosen.size(), 24U);
    for (const std::uint32_t hash : chosen)
        EXPECT_TRUE(std::binary_search(all.begin(), all.end(), hash));
}

TEST(SubstringSignature, NeverHidesAPartOfItsText)
{
    constexpr std::uint64_t kSeed = 20261121;
    SCOPED_TRACE(fmt::format("seed {}", kSeed));
    constexpr std::array<std::string_view, 20> kPieces{"a", "B", "ß", "e\xCC\x81", "É", "Ж", "й", "日", "本語",
        "か\xE3\x82\x99", "각", "한", "ไ", "ท้", "ع", "\xE2\x80\x8D", "😀", " ", "\n", "\xC2\xAD"};
    std::mt19937_64 random(kSeed);
    int contained = 0;
    for (int i = 0; i < 20'000; ++i) {
        std::string text;
        for (auto length = random() % 30; length > 0; --length)
            text += kPieces[random() % kPieces.size()];
        std::string needle;
        for (auto length = random() % 5; length > 0; --length)
            needle += kPieces[random() % kPieces.size()];
        if (random() % 2 == 0 && !text.empty()) {
            const std::size_t start = random() % text.size();
            needle = text.substr(start, random() % 12);
        }
        if (!foldedContains(text, fold(needle)))
            continue;
        ++contained;
        ASSERT_TRUE(mayContain(signatureOfText(text), needle)) << text << " / " << needle;
    }
    EXPECT_GT(contained, 2'500);
}

/// The bits as the format says, from the hashes one by one.
std::string signatureByHand(std::string_view text)
{
    const auto hashes = gramHashes(fold(text));
    std::string signature = signatureOfNothing();
    signature.resize(signatureHeaderSize + (hashes.size() + 3) / 4);
    const std::uint64_t bits = (signature.size() - signatureHeaderSize) * 8;
    for (const std::uint64_t hash : hashes) {
        const std::uint64_t index = hash * bits >> 32U;
        signature[signatureHeaderSize + index / 8] |= static_cast<char>(1U << index % 8);
    }
    return signature;
}

TEST(SubstringSignature, IsTheSameWhicheverWayItsGramsAreCollected)
{
    using namespace std::literals;
    for (const std::string_view text : {""sv, "pears"sv, "\0\0\0\0"sv, "a\0\0\0b"sv, "\x7f\x7f\x7f"sv, "Straße"sv,
             "éabcé"sv, "abé"sv, "日本ab日本abc語"sv, "\xFF\xFE ab"sv, "Ж да Ж да нет, yes yes 日本"sv})
        EXPECT_EQ(hex(signatureOfText(text)), hex(signatureByHand(text))) << text;
    std::mt19937 random(20261121);
    std::string text;
    for (int i = 0; i < 20'000; ++i)
        text += i % 5 ? std::string(1, static_cast<char>(random() % 128)) : fmt::format("é日{} ", random() % 1000);
    EXPECT_EQ(signatureOfText(text), signatureByHand(text));
    EXPECT_EQ(signatureOfText("after another"), signatureByHand("after another"));
}

TEST(SubstringSignature, LeavesOutNearlyAllTextsWithoutTheNeedle)
{
    std::mt19937_64 random(7);
    int wrong = 0;
    for (int i = 0; i < 500; ++i) {
        std::string text;
        for (int word = 0; word < 300; ++word) {
            for (auto length = 2 + random() % 7; length > 0; --length)
                text += static_cast<char>('a' + random() % 26);
            text += ' ';
        }
        wrong += mayContain(signatureOfText(text), "zygomorphic") ? 1 : 0;
    }
    EXPECT_LE(wrong, 3);
}

TEST(SubstringSignature, OfTenMegabytesIsMadeInOneGo)
{
    std::string text;
    std::mt19937_64 random(3);
    while (text.size() < 10'000'000)
        text += fmt::format("{:x} 文字{} ", random(), random() % 100'000);
    const std::string signature = signatureOfText(text);
    EXPECT_LT(signature.size(), text.size());
    EXPECT_TRUE(mayContain(signature, text.substr(5'000'000, 14)));
}

} // namespace
} // namespace tarn
