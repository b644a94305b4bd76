#include "tarnmodel/platform/foundation/text/PropertyList.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

// The form: "bplist00", the objects, a table of their offsets, and a trailer of 32 bytes that says how wide offsets and
// references are, how many objects there are, which one is the root, and where the table stands. All numbers are
// big-endian.

namespace tarn {

namespace {

constexpr std::string_view kMagic = "bplist00";
constexpr std::size_t kTrailerSize = 32;
constexpr std::uint64_t kFirstUnsignedOnly = std::uint64_t(1) << 63U;

enum Marker : std::uint8_t { Integer = 0x10, ASCIIString = 0x50, UTF16String = 0x60, Dictionary = 0xD0 };
constexpr std::uint8_t kLongCount = 0x0F; ///< in a marker: the count follows as an integer

/// Bytes for a count of objects or an offset.
std::size_t widthFor(std::uint64_t largest) noexcept
{
    if (largest < 0x100)
        return 1;
    if (largest < 0x10000)
        return 2;
    return largest < 0x100000000 ? 4 : 8;
}

bool isAscii(std::string_view text) noexcept
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

// Writing -------------------------------------------------------------------------------------------------------------

class Writer {
public:
    explicit Writer(const IntegerDictionary& dictionary)
    {
        appendText(kMagic);
        numberValues(dictionary);
        referenceWidth_ = widthFor(1 + dictionary.size() + values_.size());
        appendRoot(dictionary);
        for (const auto& [key, value] : dictionary)
            appendString(key);
        for (const std::uint64_t value : values_)
            appendInteger(value);
        appendTableAndTrailer();
    }
    NSData data() && { return NSData(std::move(bytes_)); }

private:
    /// Equal values are one object; keys come first.
    void numberValues(const IntegerDictionary& dictionary)
    {
        for (const auto& [key, value] : dictionary) {
            if (numbers_.try_emplace(value, 1 + dictionary.size() + values_.size()).second)
                values_.push_back(value);
        }
    }
    void appendRoot(const IntegerDictionary& dictionary)
    {
        startObject(Marker::Dictionary, dictionary.size());
        for (std::size_t number = 1; number <= dictionary.size(); ++number)
            appendNumber(number, referenceWidth_);
        for (const auto& [key, value] : dictionary)
            appendNumber(numbers_.at(value), referenceWidth_);
    }
    void appendString(const std::string& text)
    {
        if (isAscii(text)) {
            startObject(Marker::ASCIIString, text.size());
            appendText(text);
            return;
        }
        const std::u16string units = utf16FromUTF8(text);
        startObject(Marker::UTF16String, units.size());
        for (const char16_t unit : units)
            appendNumber(unit, 2);
    }
    void appendInteger(std::uint64_t value)
    {
        offsets_.push_back(bytes_.size());
        appendIntegerForm(value);
    }
    void startObject(Marker marker, std::size_t count)
    {
        offsets_.push_back(bytes_.size());
        appendNumber(marker | std::min<std::size_t>(count, kLongCount), 1);
        if (count >= kLongCount)
            appendIntegerForm(count);
    }
    void appendIntegerForm(std::uint64_t value)
    {
        if (value >= kFirstUnsignedOnly) {
            appendNumber(Marker::Integer | 4U, 1);
            appendNumber(0, 8);
            appendNumber(value, 8);
            return;
        }
        const std::size_t width = widthFor(value);
        const std::array<std::uint8_t, 9> powers = {0, 0, 1, 0, 2, 0, 0, 0, 3};
        appendNumber(Marker::Integer | powers[width], 1);
        appendNumber(value, width);
    }
    void appendTableAndTrailer()
    {
        const std::size_t table = bytes_.size();
        const std::size_t offsetWidth = widthFor(table);
        for (const std::size_t offset : offsets_)
            appendNumber(offset, offsetWidth);
        appendNumber(0, 6);
        appendNumber(offsetWidth, 1);
        appendNumber(referenceWidth_, 1);
        appendNumber(offsets_.size(), 8);
        appendNumber(0, 8);
        appendNumber(table, 8);
    }
    void appendNumber(std::uint64_t number, std::size_t width)
    {
        while (width-- > 0)
            bytes_.push_back(static_cast<std::byte>(number >> (8 * width)));
    }
    void appendText(std::string_view text)
    {
        for (const char byte : text)
            bytes_.push_back(static_cast<std::byte>(byte));
    }

    std::vector<std::byte> bytes_;
    std::vector<std::size_t> offsets_;
    std::vector<std::uint64_t> values_;
    std::unordered_map<std::uint64_t, std::size_t> numbers_; ///< of the objects of `values_`
    std::size_t referenceWidth_ = 1;
};

// Reading -------------------------------------------------------------------------------------------------------------

/// Reads hostile bytes: every place and count is checked before use, and no byte is read more than a fixed number of
/// times.
class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : bytes_(bytes) { }

    std::optional<IntegerDictionary> dictionary()
    {
        if (!readTrailer())
            return std::nullopt;
        auto position = positionOfObject(root_);
        if (!position)
            return std::nullopt;
        const auto count = readMarker(*position, Marker::Dictionary);
        if (!count || *count > (table_ - *position) / (2 * referenceWidth_))
            return std::nullopt;
        return entries(*position, static_cast<std::size_t>(*count));
    }

private:
    bool readTrailer()
    {
        const std::string_view text(reinterpret_cast<const char*>(bytes_.data()), bytes_.size());
        if (text.size() < kMagic.size() + kTrailerSize || !text.starts_with(kMagic))
            return false;
        const std::size_t trailer = bytes_.size() - kTrailerSize;
        offsetWidth_ = static_cast<std::size_t>(number(trailer + 6, 1));
        referenceWidth_ = static_cast<std::size_t>(number(trailer + 7, 1));
        objectCount_ = number(trailer + 8, 8);
        root_ = number(trailer + 16, 8);
        const std::uint64_t table = number(trailer + 24, 8);
        const auto isWidth = [](std::size_t width) { return width >= 1 && width <= 8; };
        if (!isWidth(offsetWidth_) || !isWidth(referenceWidth_) || table < kMagic.size() || table > trailer)
            return false;
        table_ = static_cast<std::size_t>(table);
        keyBytesLeft_ = table_;
        return objectCount_ <= (trailer - table_) / offsetWidth_;
    }

    std::optional<IntegerDictionary> entries(std::size_t references, std::size_t count)
    {
        IntegerDictionary result;
        std::unordered_map<std::uint64_t, IntegerDictionary::iterator> keys; // by object: each is decoded once
        for (std::size_t index = 0; index < count; ++index) {
            const std::uint64_t keyNumber = number(references + index * referenceWidth_, referenceWidth_);
            const auto value = integer(number(references + (count + index) * referenceWidth_, referenceWidth_));
            if (!value)
                return std::nullopt;
            auto known = keys.find(keyNumber);
            if (known == keys.end()) {
                auto key = string(keyNumber);
                if (!key)
                    return std::nullopt;
                known = keys.emplace(keyNumber, result.try_emplace(std::move(*key)).first).first;
            }
            known->second->second = *value;
        }
        return result;
    }

    std::optional<std::uint64_t> integer(std::uint64_t object) const
    {
        auto position = positionOfObject(object);
        return position ? readInteger(*position) : std::nullopt;
    }

    /// Reads marker and bytes (2 to the power that the marker gives) and moves on behind them.
    std::optional<std::uint64_t> readInteger(std::size_t& position, unsigned highestPower = 4) const
    {
        const auto marker = static_cast<unsigned>(position < table_ ? number(position, 1) : 0);
        const unsigned power = marker & 0x0FU;
        if ((marker & 0xF0U) != Marker::Integer || power > highestPower
            || table_ - position - 1 < (std::size_t(1) << power))
            return std::nullopt;
        std::size_t width = std::size_t(1) << power;
        ++position;
        if (width == 16) { // the lower half counts, the upper one has to be zero
            if (number(position, 8) != 0)
                return std::nullopt;
            position += 8;
            width = 8;
        }
        const std::uint64_t value = number(position, width);
        position += width;
        return value;
    }

    /// Reads the marker of an object with a count and moves on to its content.
    std::optional<std::uint64_t> readMarker(std::size_t& position, Marker wanted) const
    {
        const auto marker = static_cast<unsigned>(number(position, 1));
        if ((marker & 0xF0U) != wanted)
            return std::nullopt;
        ++position;
        const unsigned count = marker & 0x0FU;
        return count == kLongCount ? readInteger(position, 3) : count; // counts take 8 bytes at most
    }

    std::optional<std::string> string(std::uint64_t object)
    {
        auto position = positionOfObject(object);
        if (!position)
            return std::nullopt;
        const bool isWide = (number(*position, 1) & 0xF0U) == Marker::UTF16String;
        const auto count = readMarker(*position, isWide ? Marker::UTF16String : Marker::ASCIIString);
        const std::size_t width = isWide ? 2 : 1;
        if (!count || *count > (table_ - *position) / width || !spendKeyBytes(*count * width))
            return std::nullopt;
        return isWide ? wideText(*position, *count) : narrowText(*position, *count);
    }
    /// Strings that overlap could cost the square of the bytes; those of a real list never do.
    bool spendKeyBytes(std::uint64_t count)
    {
        if (count > keyBytesLeft_)
            return false;
        keyBytesLeft_ -= static_cast<std::size_t>(count);
        return true;
    }
    std::optional<std::string> narrowText(std::size_t position, std::uint64_t count) const
    {
        std::string text(reinterpret_cast<const char*>(bytes_.data() + position), static_cast<std::size_t>(count));
        return isAscii(text) ? std::optional(std::move(text)) : std::nullopt;
    }
    std::string wideText(std::size_t position, std::uint64_t count) const
    {
        std::u16string units;
        for (std::size_t index = 0; index < count; ++index)
            units.push_back(static_cast<char16_t>(number(position + 2 * index, 2)));
        return utf8FromUTF16(units);
    }

    std::optional<std::size_t> positionOfObject(std::uint64_t object) const
    {
        if (object >= objectCount_)
            return std::nullopt;
        const std::uint64_t position = number(table_ + static_cast<std::size_t>(object) * offsetWidth_, offsetWidth_);
        if (position < kMagic.size() || position >= table_)
            return std::nullopt;
        return static_cast<std::size_t>(position);
    }

    std::uint64_t number(std::size_t position, std::size_t width) const
    {
        std::uint64_t value = 0;
        for (std::size_t index = 0; index < width; ++index)
            value = (value << 8U) | std::to_integer<std::uint64_t>(bytes_[position + index]);
        return value;
    }

    std::span<const std::byte> bytes_;
    std::size_t offsetWidth_ = 0;
    std::size_t referenceWidth_ = 0;
    std::uint64_t objectCount_ = 0;
    std::uint64_t root_ = 0;
    std::size_t table_ = 0; ///< where the objects end and the offsets begin
    std::size_t keyBytesLeft_ = 0;
};

} // namespace

NSData binaryPropertyListWithDictionary(const IntegerDictionary& dictionary)
{
    return Writer(dictionary).data();
}

std::optional<IntegerDictionary> dictionaryFromBinaryPropertyList(std::span<const std::byte> bytes)
{
    return Reader(bytes).dictionary();
}

} // namespace tarn
