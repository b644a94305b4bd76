#include "tarnmodel/platform/foundation/text/PropertyList.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string_view>
#include <vector>

using namespace tarn;
using namespace std::string_literals;

namespace {

int digitValue(char digit)
{
    return digit <= '9' ? digit - '0' : digit - 'a' + 10;
}

std::vector<std::byte> bytesOfHexadecimal(std::string_view digits)
{
    std::vector<std::byte> bytes;
    for (std::size_t index = 0; index + 1 < digits.size(); index += 2)
        bytes.push_back(static_cast<std::byte>(digitValue(digits[index]) * 16 + digitValue(digits[index + 1])));
    return bytes;
}

std::string hexadecimalOfBytes(std::span<const std::byte> bytes)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string digits;
    for (const std::byte byte : bytes) {
        digits += kDigits[std::to_integer<std::size_t>(byte >> 4)];
        digits += kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
    }
    return digits;
}

struct GoldenCase {
    const char* name;
    IntegerDictionary dictionary;
    std::string_view hexadecimal;
};

// As an independent writer, python3's plistlib, gives them: plistlib.dumps({...}, fmt=plistlib.FMT_BINARY).
const std::vector<GoldenCase> kGolden = {
    {"empty", {}, "62706c6973743030d0080000000000000101000000000000000100000000000000000000000000000009"},
    {"small", {{"a", 1U}},
        "62706c6973743030d1010251611001080b0d000000000000010100000000000000030000000000000000000000000000000f"},
    {"widths", {{"b1", 255U}, {"b2", 65535U}, {"b4", 4294967295U}, {"b8", 9223372036854775807U}},
        "62706c6973743030d4010203040506070852623152623252623452623810ff11ffff12ffffffff137fffffffffffffff0811"
        "14171a1d1f22270000000000000101000000000000000900000000000000000000000000000030"},
    {"edges", {{"a", 0U}, {"b", 256U}, {"c", 65536U}, {"d", 4294967296U}},
        "62706c6973743030d40102030405060708516151625163516410001101001200010000130000000100000000081113151719"
        "1b1e23000000000000010100000000000000090000000000000000000000000000002c"},
    {"above the signed range", {{"top", 9223372036854775808U}, {"topmost", 18446744073709551615U}},
        "62706c6973743030d20102030453746f7057746f706d6f737414000000000000000080000000000000001400000000000000"
        "00ffffffffffffffff080d11192a000000000000010100000000000000050000000000000000000000000000003b"},
    {"shared number", {{"a", 5U}, {"b", 5U}, {"c", 5U}},
        "62706c6973743030d30102030404045161516251631005080f11131500000000000001010000000000000005000000000000"
        "00000000000000000017"},
    {"UTF-16 keys", {{"Ä", 1U}, {"日本", 2U}, {"😀", 3U}},
        "62706c6973743030d30102030405066100c46265e5672c62d83dde00100110021003080f12171c1e20000000000000010100"
        "0000000000000700000000000000000000000000000022"},
    {"long key", {{"0123456789ABCDEF", 7U}},
        "62706c6973743030d101025f1010303132333435363738394142434445461007080b1e000000000000010100000000000000"
        "0300000000000000000000000000000020"},
    {"a vector clock",
        {{"01234567-89AB-CDEF-0123-456700000000", 0U}, {"01234567-89AB-CDEF-0123-456700000001", 1000U},
            {"01234567-89AB-CDEF-0123-456700000002", 2000U}, {"01234567-89AB-CDEF-0123-456700000003", 3000U},
            {"01234567-89AB-CDEF-0123-456700000004", 4000U}},
        "62706c6973743030d50102030405060708090a5f102430313233343536372d383941422d434445462d303132332d34353637"
        "30303030303030305f102430313233343536372d383941422d434445462d303132332d3435363730303030303030315f1024"
        "30313233343536372d383941422d434445462d303132332d3435363730303030303030325f102430313233343536372d3839"
        "41422d434445462d303132332d3435363730303030303030335f102430313233343536372d383941422d434445462d303132"
        "332d34353637303030303030303410001103e81107d0110bb8110fa008133a6188afd6d8dbdee10000000000000101000000"
        "000000000b000000000000000000000000000000e4"},
    {"many devices",
        {{"01234567-89AB-CDEF-0123-456700000000", 0U}, {"01234567-89AB-CDEF-0123-456700000001", 1U},
            {"01234567-89AB-CDEF-0123-456700000002", 2U}, {"01234567-89AB-CDEF-0123-456700000003", 3U},
            {"01234567-89AB-CDEF-0123-456700000004", 4U}, {"01234567-89AB-CDEF-0123-456700000005", 5U},
            {"01234567-89AB-CDEF-0123-456700000006", 6U}, {"01234567-89AB-CDEF-0123-456700000007", 7U},
            {"01234567-89AB-CDEF-0123-456700000008", 8U}, {"01234567-89AB-CDEF-0123-456700000009", 9U},
            {"01234567-89AB-CDEF-0123-45670000000A", 10U}, {"01234567-89AB-CDEF-0123-45670000000B", 11U},
            {"01234567-89AB-CDEF-0123-45670000000C", 12U}, {"01234567-89AB-CDEF-0123-45670000000D", 13U},
            {"01234567-89AB-CDEF-0123-45670000000E", 14U}, {"01234567-89AB-CDEF-0123-45670000000F", 15U},
            {"01234567-89AB-CDEF-0123-456700000010", 16U}, {"01234567-89AB-CDEF-0123-456700000011", 17U},
            {"01234567-89AB-CDEF-0123-456700000012", 18U}, {"01234567-89AB-CDEF-0123-456700000013", 19U}},
        "62706c6973743030df10140102030405060708090a0b0c0d0e0f101112131415161718191a1b1c1d1e1f2021222324252627"
        "285f102430313233343536372d383941422d434445462d303132332d3435363730303030303030305f102430313233343536"
        "372d383941422d434445462d303132332d3435363730303030303030315f102430313233343536372d383941422d43444546"
        "2d303132332d3435363730303030303030325f102430313233343536372d383941422d434445462d303132332d3435363730"
        "303030303030335f102430313233343536372d383941422d434445462d303132332d3435363730303030303030345f102430"
        "313233343536372d383941422d434445462d303132332d3435363730303030303030355f102430313233343536372d383941"
        "422d434445462d303132332d3435363730303030303030365f102430313233343536372d383941422d434445462d30313233"
        "2d3435363730303030303030375f102430313233343536372d383941422d434445462d303132332d34353637303030303030"
        "30385f102430313233343536372d383941422d434445462d303132332d3435363730303030303030395f1024303132333435"
        "36372d383941422d434445462d303132332d3435363730303030303030415f102430313233343536372d383941422d434445"
        "462d303132332d3435363730303030303030425f102430313233343536372d383941422d434445462d303132332d34353637"
        "30303030303030435f102430313233343536372d383941422d434445462d303132332d3435363730303030303030445f1024"
        "30313233343536372d383941422d434445462d303132332d3435363730303030303030455f102430313233343536372d3839"
        "41422d434445462d303132332d3435363730303030303030465f102430313233343536372d383941422d434445462d303132"
        "332d3435363730303030303031305f102430313233343536372d383941422d434445462d303132332d343536373030303030"
        "3031315f102430313233343536372d383941422d434445462d303132332d3435363730303030303031325f10243031323334"
        "3536372d383941422d434445462d303132332d34353637303030303030313310001001100210031004100510061007100810"
        "09100a100b100c100d100e100f101010111012101300080033005a008100a800cf00f6011d0144016b019201b901e0020702"
        "2e0255027c02a302ca02f10318033f03410343034503470349034b034d034f03510353035503570359035b035d035f036103"
        "6303650000000000000201000000000000002900000000000000000000000000000367"},
};

TEST(PropertyList, WritesTheBytesOfAnIndependentWriter)
{
    for (const GoldenCase& row : kGolden)
        EXPECT_EQ(hexadecimalOfBytes(binaryPropertyListWithDictionary(row.dictionary).span()), row.hexadecimal)
            << row.name;
}

TEST(PropertyList, ReadsTheBytesOfAnIndependentWriter)
{
    for (const GoldenCase& row : kGolden)
        EXPECT_EQ(dictionaryFromBinaryPropertyList(bytesOfHexadecimal(row.hexadecimal)), row.dictionary) << row.name;
}

struct RefusedCase {
    const char* name;
    std::string_view hexadecimal;
};

// By the same writer, but no flat dictionaries of integers.
const std::vector<RefusedCase> kRefused = {
    {"an array",
        "62706c6973743030a2010210011002080b0d000000000000010100000000000000030000000000000000000000000000000f"},
    {"an integer", "62706c6973743030100108000000000000010100000000000000010000000000000000000000000000000a"},
    {"a string", "62706c6973743030516108000000000000010100000000000000010000000000000000000000000000000a"},
    {"a value that is a string",
        "62706c6973743030d1010251615162080b0d000000000000010100000000000000030000000000000000000000000000000f"},
    {"a value that is a truth value",
        "62706c6973743030d10102516109080b0d000000000000010100000000000000030000000000000000000000000000000e"},
    {"a nested dictionary",
        "62706c6973743030d101025161d1030451621001080b0d1012000000000000010100000000000000050000000000000000000000000000"
        "0014"},
    {"a real number",
        "62706c6973743030d101025161233ff8000000000000080b0d000000000000010100000000000000030000000000000000000000000000"
        "0016"},
    {"data", "62706c6973743030d101025161427879080b0d0000000000000101000000000000000300000000000000000000000000000010"},
    {"a nested array",
        "62706c6973743030d101025161a1031001080b0d0f0000000000000101000000000000000400000000000000000000000000000011"},
};

TEST(PropertyList, RefusesEverythingElse)
{
    for (const RefusedCase& row : kRefused)
        EXPECT_EQ(dictionaryFromBinaryPropertyList(bytesOfHexadecimal(row.hexadecimal)), std::nullopt) << row.name;
    EXPECT_EQ(dictionaryFromBinaryPropertyList({}), std::nullopt);
    EXPECT_EQ(
        dictionaryFromBinaryPropertyList(NSData::fromText("<?xml version=\"1.0\"?><plist/>").span()), std::nullopt);
    EXPECT_EQ(dictionaryFromBinaryPropertyList(NSData::fromText("{ a = 1; }").span()), std::nullopt);
    EXPECT_EQ(dictionaryFromBinaryPropertyList(NSData::fromText(std::string(1'000, '\0')).span()), std::nullopt);
}

/// A list of one-byte offsets made by hand; `root` is the number of the top object.
std::vector<std::byte> listOfObjects(const std::vector<std::string>& objects, std::uint8_t root = 0)
{
    std::string text = "bplist00";
    std::string offsets;
    for (const std::string& object : objects) {
        offsets.push_back(static_cast<char>(text.size()));
        text += object;
    }
    const auto table = static_cast<char>(text.size());
    text += offsets;
    text += "\0\0\0\0\0\0\1\1"s;
    text += "\0\0\0\0\0\0\0"s + static_cast<char>(objects.size());
    text += "\0\0\0\0\0\0\0"s + static_cast<char>(root);
    text += "\0\0\0\0\0\0\0"s + table;
    const auto span = std::as_bytes(std::span(text));
    return {span.begin(), span.end()};
}

TEST(PropertyList, ReadsListsMadeByHand)
{
    EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects({"\xD1\1\2"s,
                  "\x51"
                  "a",
                  "\x10\x07"s})),
        (IntegerDictionary{{"a", 7}}));
    // The top object may stand anywhere.
    EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects({"\x51"
                                                              "a",
                                                                 "\x10\x07"s, "\xD1\0\1"s},
                  2)),
        (IntegerDictionary{{"a", 7}}));
    // Of equal keys the last counts.
    EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects({"\xD2\1\2\3\4"s,
                  "\x51"
                  "a",
                  "\x51"
                  "a",
                  "\x10\1"s, "\x10\2"s})),
        (IntegerDictionary{{"a", 2}}));
    // A negative number arrives as its two's complement, in the 8-byte and in the 16-byte form.
    EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects({"\xD1\1\2"s,
                  "\x51"
                  "a",
                  "\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})),
        (IntegerDictionary{{"a", std::numeric_limits<std::uint64_t>::max()}}));
    // Lone surrogates in a key become U+FFFD.
    EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects({"\xD1\1\2"s, "\x61\xD8\x00"s, "\x10\1"s})),
        (IntegerDictionary{{"\uFFFD", 1}}));
    // A count may take the long form.
    EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects({"\xDF\x10\1\1\2"s,
                  "\x5F\x10\1"
                  "a"s,
                  "\x10\1"s})),
        (IntegerDictionary{{"a", 1}}));
}

TEST(PropertyList, RefusesHostileListsMadeByHand)
{
    const std::vector<std::vector<std::string>> hostile = {
        {"\xD1\0\0"s}, // its own key
        {"\xD1\1\0"s,
            "\x51"
            "a"}, // its own value
        {"\xD1\1\7"s,
            "\x51"
            "a"},                                                              // a value that is not there
        {"\xD1\7\1"s, "\x10\1"s},                                              // a key that is not there
        {"\xD1\1\2"s, "\x51\x80"s, "\x10\1"s},                                 // an ASCII key that is not ASCII
        {"\xD1\1\2"s, "\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s, "\x10\1"s}, // a key of 2^63 - 1 characters
        {"\xDF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s},                         // as many entries
        {"\xDF\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s},
        {"\xDF\x14\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s}, // a count in a form that counts do not take
        {"\xDF\x51\x01"s},                             // a count that is no integer
        {"\xD1\1\2"s,
            "\x51"
            "a",
            "\x15" + std::string(32, '\0')}, // an integer of 32 bytes
        {"\xD1\1\2"s,
            "\x51"
            "a",
            "\x14\0\0\0\0\0\0\0\1\0\0\0\0\0\0\0\0"s}, // 2^64
        {"\xD1\1\2"s,
            "\x51"
            "a",
            "\x22\0\0\0\0"s}, // a real number
        {"\xD1\1\2"s,
            "\x51"
            "a",
            "\x09"},            // a truth value
        {"\xA1\1"s, "\x10\1"s}, // an array
        {"\xD2\1\2"s,
            "\x51"
            "a",
            "\x10\1"s}, // more entries than there are bytes
    };
    for (const auto& objects : hostile)
        EXPECT_EQ(dictionaryFromBinaryPropertyList(listOfObjects(objects)), std::nullopt)
            << hexadecimalOfBytes(listOfObjects(objects));
}

TEST(PropertyList, SurvivesCutAndChangedBytes)
{
    const std::vector<std::byte> good = bytesOfHexadecimal(kGolden.back().hexadecimal);
    for (std::size_t length = 0; length < good.size(); ++length)
        EXPECT_EQ(dictionaryFromBinaryPropertyList(std::span(good).first(length)), std::nullopt);
    std::mt19937 random(1234);
    int readable = 0;
    for (int round = 0; round < 100'000; ++round) {
        std::vector<std::byte> bytes = good;
        for (std::uint32_t change = random() % 4; change > 0; --change)
            bytes[random() % bytes.size()] = static_cast<std::byte>(random());
        readable += dictionaryFromBinaryPropertyList(bytes).has_value() ? 1 : 0;
    }
    EXPECT_GT(readable, 0);
    EXPECT_LT(readable, 100'000);
}

TEST(PropertyList, ReadsBackWhatItWrites)
{
    std::mt19937_64 random(99);
    for (const std::size_t count : {0U, 1U, 14U, 15U, 16U, 120U, 130U, 300U, 40'000U}) {
        IntegerDictionary dictionary;
        while (dictionary.size() < count) {
            const std::string key = (random() % 3 == 0 ? "é😀" : "device-") + std::to_string(random() % 1'000'000);
            dictionary[key] = random() >> (random() % 64);
        }
        EXPECT_EQ(dictionaryFromBinaryPropertyList(binaryPropertyListWithDictionary(dictionary).span()), dictionary)
            << count << " entries, seed 99";
    }
}

TEST(PropertyList, RepairsIllFormedKeys)
{
    const IntegerDictionary dictionary = {{"a\xFF", 1}};
    EXPECT_EQ(dictionaryFromBinaryPropertyList(binaryPropertyListWithDictionary(dictionary).span()),
        (IntegerDictionary{{"a\uFFFD", 1}}));
}

} // namespace
