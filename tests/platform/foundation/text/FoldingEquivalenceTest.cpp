// The fast path against the plain chain: the same bytes for every text, however nasty.

#include "tarnmodel/platform/foundation/text/AsciiCaseInternal.h"
#include "tarnmodel/platform/foundation/text/FoldingInternal.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tests/support/LinearGrowth.h"

#include <gtest/gtest.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <random>
#include <thread>
#include <vector>

using namespace tarn;

namespace {

constexpr std::uint32_t kSeed = 20'260'321;
constexpr int kRandomTexts = 250'000;

constexpr char32_t kNastyCodePoints[] = {
    // letters of all kinds
    'a', 'A', 'i', 'I', 's', ' ', '\n', '\0', 0x00DF, 0x0130, 0x0131, 0x0149, 0x017F, 0x01C5, 0x01F0, 0x0390, 0x03A3,
    0x03C2, 0x03D3, 0x03F4, 0x0410, 0x0419, 0x0451, 0x0587, 0x1E9E, 0x1F80, 0x1F88, 0x1FB7, 0x1FFC, 0x212A, 0x212B,
    0x2126, 0x023A, 0x2C65, 0x10D0, 0x1C90, 0x13A0, 0x13F8, 0xAB70, 0xFB00, 0xFB03, 0xFB05, 0xFB13, 0xFB17, 0x10400,
    0x1E900, 0x1D15E, 0x1D1BF, 0x2ADC, 0xFB1D, 0xFB1F, 0xFB2C, 0xFB4E, 0x0958, 0x0344, 0x0387, 0x037E, 0xF900, 0x2F800,
    // marks: of all classes, composing and not
    0x0300, 0x0301, 0x0307, 0x0308, 0x0323, 0x0327, 0x031B, 0x0334, 0x0338, 0x0340, 0x0341, 0x0343, 0x0345, 0x035F,
    0x0360, 0x0488, 0x20D0, 0x20DD, 0x20E5, 0x05B0, 0x05BC, 0x05C1, 0x064B, 0x0651, 0x0653, 0x0654, 0x0655, 0x0670,
    0x093C, 0x094D, 0x09BE, 0x09C7, 0x09D7, 0x0BBE, 0x0BC6, 0x0CC2, 0x0CC6, 0x0CD5, 0x0D3E, 0x0D46, 0x0DCA, 0x0DCF,
    0x0DD9, 0x0E31, 0x0E38, 0x0E48, 0x0E4D, 0x0EB8, 0x0F39, 0x0F71, 0x0F72, 0x0F73, 0x0F74, 0x0F75, 0x0F80, 0x0F81,
    0x0FB5, 0x0FB7, 0x102E, 0x1037, 0x1039, 0x17B6, 0x17D2, 0x17DD, 0x1B35, 0x3099, 0x309A, 0x302A, 0x302E, 0xFB1E,
    0xFE0F, 0x110BA, 0x11127, 0x1133E, 0x114B0, 0x115AF, 0x11930, 0x16FF0, 0x1D165, 0x1D16D, 0x1D172, 0xE0100,
    // bases that keep marks
    0x05D0, 0x05E9, 0x0627, 0x0648, 0x0915, 0x0928, 0x09A1, 0x0E01, 0x1025, 0x1780, 0x304B, 0x304C, 0x30A6, 0x30CF,
    0x4E00, 0x2190, 0x219A, 0x1100, 0x1112, 0x1161, 0x1175, 0x11A8, 0x11C2, 0xAC00, 0xAC01, 0xD7A3, 0xA960, 0xD7B0,
    0x1B05, 0x11099, 0x11131, 0x1F600, 0xE000, 0xFFFD, 0xFFFF, 0x10FFFF, 0x0378, 0x0510, 0x050F,
    // format characters
    0x00AD, 0x0600, 0x061C, 0x06DD, 0x070F, 0x180E, 0x200B, 0x200C, 0x200D, 0x200E, 0x202E, 0x2060, 0x2066, 0xFEFF,
    0xFFF9, 0x110BD, 0x1D173, 0xE0001, 0xE0061};

constexpr std::string_view kIllFormed[]
    = {"\xFF", "\xC3", "\xE3\x81", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80", "\xF0\x9F"};

std::string textOf(std::initializer_list<char32_t> codePoints)
{
    std::string text;
    for (const char32_t codePoint : codePoints)
        appendCodePoint(text, codePoint);
    return text;
}

bool isCodePoint(char32_t codePoint)
{
    return codePoint < 0xD800 || codePoint > 0xDFFF;
}

std::string hexadecimal(std::string_view text)
{
    std::string result;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        char buffer[16];
        std::snprintf(buffer, sizeof buffer, "%04X ", static_cast<unsigned>(decoded.codePoint));
        result += buffer;
        offset += decoded.length;
    }
    return result;
}

class RandomTexts {
public:
    explicit RandomTexts(std::uint32_t seed) : random_(seed) { }
    std::string next()
    {
        std::string text;
        for (std::size_t count = random_() % 14; count > 0; --count)
            appendPiece(text);
        return text;
    }

private:
    void appendPiece(std::string& text)
    {
        switch (random_() % 40) {
        case 0:
            text += kIllFormed[random_() % std::size(kIllFormed)];
            break;
        case 1:
            text += std::string(random_() % 70, 'X');
            break;
        case 2:
        case 3:
            appendCodePoint(text, random_() % 0x30000);
            break;
        default:
            appendCodePoint(text, kNastyCodePoints[random_() % std::size(kNastyCodePoints)]);
        }
    }
    std::mt19937 random_;
};

std::string lowered(const std::string& text)
{
    std::string result;
    icu::UnicodeString::fromUTF8(text).toLower(icu::Locale::getRoot()).toUTF8String(result);
    return result;
}

/// The same for every code point of a block, which is looked at as one text, since that is faster.
void expectEquivalenceOfBlock(char32_t first, char32_t letterBefore)
{
    std::string texts;
    for (char32_t codePoint = first; codePoint < first + 0x100; ++codePoint) {
        if (isCodePoint(codePoint))
            texts += textOf({letterBefore, codePoint, '\n'});
    }
    ASSERT_EQ(fold(texts), foldByReference(texts)) << "block " << hexadecimal(textOf({first}));
}

TEST(FoldingEquivalence, HoldsForEveryCodePointAlone)
{
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (!isCodePoint(codePoint))
            continue;
        const std::string text = textOf({codePoint});
        ASSERT_EQ(fold(text), foldByReference(text)) << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, HoldsForEveryCodePointAfterALetter)
{
    for (char32_t first = 0; first <= 0x10FFFF; first += 0x100) {
        expectEquivalenceOfBlock(first, 'a');    // drops marks
        expectEquivalenceOfBlock(first, 0x304B); // keeps them
    }
}

TEST(FoldingEquivalence, HoldsForEveryMarkAmongOtherMarks)
{
    for (char32_t codePoint = 0; codePoint <= 0x1F000; ++codePoint) {
        if (!isCodePoint(codePoint) || (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & U_GC_M_MASK) == 0)
            continue;
        for (const std::string& text :
            {textOf({0x304B, 0x3099, codePoint}), textOf({0x4E00, 0x0301, codePoint, 0x0323}),
                textOf({codePoint, 0x0345, 0x20DD}), textOf({0xAC00, codePoint, 0x11A8}),
                textOf({0x1100, codePoint, 0x1161}), textOf({0x09C7, codePoint, 0x09BE})})
            ASSERT_EQ(fold(text), foldByReference(text)) << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, HoldsForRandomTexts)
{
    RandomTexts texts(kSeed);
    for (int round = 0; round < kRandomTexts; ++round) {
        const std::string text = texts.next();
        ASSERT_EQ(fold(text), foldByReference(text))
            << "round " << round << " of seed " << kSeed << ": " << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, IsStable)
{
    RandomTexts texts(kSeed + 1);
    for (int round = 0; round < kRandomTexts; ++round) {
        const std::string text = texts.next();
        const std::string once = fold(text);
        ASSERT_EQ(fold(once), once) << "round " << round << " of seed " << kSeed + 1 << ": " << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, DoesNotSeeLowerCasing)
{
    RandomTexts texts(kSeed + 2);
    for (int round = 0; round < kRandomTexts; ++round) {
        const std::string text = validUTF8(texts.next());
        ASSERT_EQ(fold(lowered(text)), fold(text))
            << "round " << round << " of seed " << kSeed + 2 << ": " << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, IsStableForEveryCodePointAndItsLowerCase)
{
    for (char32_t codePoint = 0; codePoint <= 0x323AF; ++codePoint) {
        if (!isCodePoint(codePoint))
            continue;
        const std::string text = textOf({codePoint});
        const std::string once = fold(text);
        ASSERT_EQ(fold(once), once) << hexadecimal(text);
        ASSERT_EQ(fold(lowered(text)), once) << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, IsCaseFoldingOfWhatIsLeftWithoutDiacritics)
{
    RandomTexts texts(kSeed + 3);
    for (int round = 0; round < kRandomTexts / 5; ++round) {
        const std::string text = texts.next();
        ASSERT_EQ(foldCase(foldDiacritics(text)), fold(text))
            << "round " << round << " of seed " << kSeed + 3 << ": " << hexadecimal(text);
    }
}

TEST(FoldingEquivalence, HoldsOnSeveralThreads)
{
    std::vector<std::thread> threads;
    std::vector<std::string> failures(4);
    for (std::size_t index = 0; index < failures.size(); ++index) {
        threads.emplace_back([&failures, index] {
            RandomTexts texts(kSeed + 4 + static_cast<std::uint32_t>(index));
            for (int round = 0; round < 3'000 && failures[index].empty(); ++round) {
                const std::string text = texts.next();
                if (fold(text) != foldByReference(text))
                    failures[index] = hexadecimal(text);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (const std::string& failure : failures)
        EXPECT_EQ(failure, "");
}

TEST(FoldingEquivalence, HoldsForLongRunsOfMarks)
{
    std::string text = "か";
    std::mt19937 random(kSeed);
    for (int mark = 0; mark < 2'000; ++mark)
        appendCodePoint(text, mark % 2 ? 0x0301 + random() % 0x40 : 0x0323);
    EXPECT_EQ(fold(text), foldByReference(text));
}

TEST(Folding, TakesTimeInProportionToHostileTexts)
{
    const auto marksOutOfOrder = [](std::size_t bytes) {
        std::string text = "か";
        while (text.size() < bytes)
            text += "\u0301\u0323";
        return text;
    };
    expectLinear([](const std::string& text) { EXPECT_EQ(fold(text).size(), text.size()); }, marksOutOfOrder, 32'768);
}

// The blocks of ASCII -------------------------------------------------------------------------------------------------

std::vector<LowerAsciiRun> lowerAsciiRuns()
{
    std::vector<LowerAsciiRun> runs = {lowerAsciiRunScalar, lowerAsciiRun()};
#if defined(__x86_64__)
    runs.push_back(lowerAsciiRunSSE2);
    if (hasAVX2())
        runs.push_back(lowerAsciiRunAVX2);
#endif
    return runs;
}

TEST(AsciiCase, IsLoweredAlikeOnEveryPath)
{
    std::string all;
    for (int byte = 0; byte < 0x80; ++byte)
        all.push_back(static_cast<char>(byte));
    for (const LowerAsciiRun run : lowerAsciiRuns()) {
        for (std::size_t start = 0; start < all.size(); ++start) {
            const std::string source = all.substr(start);
            std::string destination(source.size() + kAsciiSlack, '?');
            ASSERT_EQ(run(source.data(), source.size(), destination.data()), source.size());
            for (std::size_t index = 0; index < source.size(); ++index) {
                const char byte = source[index];
                ASSERT_EQ(destination[index], byte >= 'A' && byte <= 'Z' ? byte + 32 : byte);
            }
        }
    }
}

TEST(AsciiCase, StopsAtTheFirstOtherByte)
{
    for (const LowerAsciiRun run : lowerAsciiRuns()) {
        for (std::size_t size = 1; size < 100; ++size) {
            for (std::size_t position = 0; position < size; ++position) {
                std::string source(size, 'Q');
                source[position] = static_cast<char>(0x80 + position % 0x80);
                std::string destination(size + kAsciiSlack, '?');
                ASSERT_EQ(run(source.data(), size, destination.data()), position);
                ASSERT_EQ(destination.substr(0, position), std::string(position, 'q'));
            }
        }
    }
}

} // namespace
