#include "tarnmodel/files/thumbnails/ImageComment.h"

#include <array>
#include <cstdint>

namespace tarn {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kKeyword = "tarn-source";

// A PNG is its signature and chunks: length, type, data, CRC of type and data; the header comes first and has 13 bytes.
constexpr std::string_view kPNGSignature = "\x89PNG\r\n\x1A\n"sv;
constexpr std::string_view kTextChunk = "tEXt";
constexpr std::size_t kEndOfPNGHeader = 8 + 4 + 4 + 13 + 4;

// A JPEG begins with SOI and, as a rule, a JFIF header. Lengths of segments count themselves.
constexpr std::string_view kJPEGStart = "\xFF\xD8\xFF"sv;
constexpr std::string_view kJFIFMarker = "\xFF\xE0"sv;
constexpr std::string_view kCommentMarker = "\xFF\xFE"sv;
constexpr std::size_t kEndOfSOI = 2;

std::string bigEndian(std::size_t number, int bytes)
{
    std::string text;
    for (int byte = bytes - 1; byte >= 0; --byte)
        text += static_cast<char>(static_cast<std::uint8_t>(number >> (8 * byte)));
    return text;
}

/// What so many bytes at this place count; none beyond the end.
std::optional<std::size_t> numberAt(std::string_view image, std::size_t place, std::size_t bytes)
{
    if (place > image.size() || image.size() - place < bytes)
        return std::nullopt;
    std::size_t number = 0;
    for (const char byte : image.substr(place, bytes))
        number = number << 8 | static_cast<std::uint8_t>(byte);
    return number;
}

/// The check sum of PNG chunks. Bit by bit: a comment is short.
std::uint32_t crc32(std::string_view bytes)
{
    constexpr std::uint32_t kPolynomial = 0xEDB88320;
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum ^= static_cast<std::uint8_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ ((sum & 1) != 0 ? kPolynomial : 0);
    }
    return ~sum;
}

bool isPNG(std::string_view image)
{
    return image.size() >= kEndOfPNGHeader && image.starts_with(kPNGSignature);
}

bool isJPEG(std::string_view image)
{
    return image.starts_with(kJPEGStart);
}

/// Where the comment of a JPEG stands.
std::size_t placeInJPEG(std::string_view image)
{
    if (image.substr(kEndOfSOI, kJFIFMarker.size()) != kJFIFMarker)
        return kEndOfSOI;
    const std::size_t length = kEndOfSOI + kJFIFMarker.size();
    return length + numberAt(image, length, 2).value_or(0);
}

/// What lies behind a marker, its length and the keyword.
std::optional<std::string> textOf(std::string_view content, char separator)
{
    if (!content.starts_with(kKeyword) || content.size() == kKeyword.size() || content[kKeyword.size()] != separator)
        return std::nullopt;
    return std::string(content.substr(kKeyword.size() + 1));
}

} // namespace

std::optional<std::string> imageWithComment(std::string_view image, std::string_view comment)
{
    if (comment.size() > LongestImageComment)
        return std::nullopt;
    const auto with = [&](std::size_t place, const std::string& piece) {
        return std::string(image.substr(0, place)) + piece + std::string(image.substr(place));
    };
    if (isPNG(image)) {
        const std::string content = std::string(kKeyword) + '\0' + std::string(comment);
        const std::string chunk = std::string(kTextChunk) + content;
        return with(kEndOfPNGHeader, bigEndian(content.size(), 4) + chunk + bigEndian(crc32(chunk), 4));
    }
    if (!isJPEG(image) || placeInJPEG(image) > image.size())
        return std::nullopt;
    const std::string content = std::string(kKeyword) + ' ' + std::string(comment);
    return with(placeInJPEG(image), std::string(kCommentMarker) + bigEndian(content.size() + 2, 2) + content);
}

std::optional<std::string> commentOfImage(std::string_view image)
{
    if (isPNG(image)) {
        const auto length = numberAt(image, kEndOfPNGHeader, 4);
        if (!length || image.substr(kEndOfPNGHeader + 4).substr(0, 4) != kTextChunk)
            return std::nullopt;
        const std::string_view content = image.substr(kEndOfPNGHeader + 8);
        return content.size() < *length ? std::nullopt : textOf(content.substr(0, *length), '\0');
    }
    if (!isJPEG(image))
        return std::nullopt;
    const std::size_t place = placeInJPEG(image);
    const auto length = numberAt(image, place + 2, 2);
    if (!length || *length < 2 || image.substr(place, 2) != kCommentMarker)
        return std::nullopt;
    const std::string_view content = image.substr(place + 4);
    return content.size() < *length - 2 ? std::nullopt : textOf(content.substr(0, *length - 2), ' ');
}

} // namespace tarn
