#include "tarnmodel/platform/cloudkit/NSKeyedArchiver.h"

#include "tarnmodel/platform/cloudkit/ArchiveFormatInternal.h"

#include <limits>
#include <vector>

namespace tarn {
namespace {

template <typename Number> constexpr std::size_t greatest = std::numeric_limits<Number>::max();

/// Bytes that grow; a part that does not fit its length field spoils the whole.
class ArchiveWriter {
public:
    template <typename Number> void number(Number value)
    {
        for (int shift = 8 * (static_cast<int>(sizeof value) - 1); shift >= 0; shift -= 8)
            bytes_.push_back(static_cast<std::byte>((static_cast<std::uint64_t>(value) >> shift) & 0xFFU));
    }
    void plain(std::string_view text)
    {
        const auto bytes = std::as_bytes(std::span(text));
        bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    }
    void name(std::string_view text)
    {
        fits_ = fits_ && !text.empty() && text.size() <= greatest<std::uint8_t>;
        number(static_cast<std::uint8_t>(text.size()));
        plain(text);
    }
    void value(const ArchivedValue& value)
    {
        if (const auto* text = std::get_if<std::string>(&value))
            content(ArchivedKind::String, *text);
        else if (const auto* data = std::get_if<NSData>(&value))
            content(ArchivedKind::Data, data->text());
        else
            date(std::get<NSDate>(value));
    }
    void spoilUnless(bool condition) { fits_ = fits_ && condition; }

    std::optional<NSData> finish()
    {
        number(checksumOfArchive(bytes_));
        return fits_ ? std::optional(NSData(std::move(bytes_))) : std::nullopt;
    }

private:
    void content(ArchivedKind kind, std::string_view bytes)
    {
        fits_ = fits_ && bytes.size() <= greatest<std::uint32_t>;
        number(static_cast<std::uint8_t>(kind));
        number(static_cast<std::uint32_t>(bytes.size()));
        if (fits_)
            plain(bytes);
    }
    void date(NSDate date)
    {
        number(static_cast<std::uint8_t>(ArchivedKind::Date));
        number(static_cast<std::uint32_t>(sizeof(std::int64_t)));
        number(microsecondsSince1970(date));
    }

    std::vector<std::byte> bytes_;
    bool fits_ = true;
};

/// Takes bytes off the front; none once they do not suffice.
class ArchiveReader {
public:
    explicit ArchiveReader(std::span<const std::byte> bytes) : rest_(bytes) { }
    bool isAtEnd() const noexcept { return rest_.empty(); }

    std::optional<std::span<const std::byte>> take(std::size_t length)
    {
        if (length > rest_.size())
            return std::nullopt;
        const auto taken = rest_.first(length);
        rest_ = rest_.subspan(length);
        return taken;
    }
    template <typename Number> std::optional<Number> number()
    {
        const auto bytes = take(sizeof(Number));
        return bytes ? std::optional(static_cast<Number>(bigEndian(*bytes))) : std::nullopt;
    }
    std::optional<std::string> text(std::size_t length)
    {
        const auto bytes = take(length);
        return bytes ? std::optional(std::string(reinterpret_cast<const char*>(bytes->data()), length)) : std::nullopt;
    }
    std::optional<std::string> name()
    {
        const auto length = number<std::uint8_t>();
        return length && *length > 0 ? text(*length) : std::nullopt;
    }
    std::optional<ArchivedValue> value()
    {
        const auto kind = number<std::uint8_t>();
        const auto length = number<std::uint32_t>();
        const auto bytes = length ? take(*length) : std::nullopt;
        return kind && bytes ? valueOfKind(static_cast<ArchivedKind>(*kind), *bytes) : std::nullopt;
    }

private:
    static std::uint64_t bigEndian(std::span<const std::byte> bytes)
    {
        std::uint64_t value = 0;
        for (const std::byte byte : bytes)
            value = value << 8 | std::to_integer<std::uint64_t>(byte);
        return value;
    }
    static std::optional<ArchivedValue> valueOfKind(ArchivedKind kind, std::span<const std::byte> bytes)
    {
        switch (kind) {
        case ArchivedKind::String:
            return ArchivedValue(std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
        case ArchivedKind::Data:
            return ArchivedValue(NSData(bytes));
        case ArchivedKind::Date:
            if (bytes.size() != sizeof(std::int64_t))
                return std::nullopt;
            return ArchivedValue(dateWithMicrosecondsSince1970(static_cast<std::int64_t>(bigEndian(bytes))));
        }
        return std::nullopt;
    }

    std::span<const std::byte> rest_;
};

/// What lies between the checksummed ends; none when the checksum is another one.
std::optional<std::span<const std::byte>> checkedContents(std::span<const std::byte> bytes)
{
    if (bytes.size() < archiveChecksumLength)
        return std::nullopt;
    const auto contents = bytes.first(bytes.size() - archiveChecksumLength);
    const auto checksum = ArchiveReader(bytes.last(archiveChecksumLength)).number<std::uint32_t>();
    return checksum == checksumOfArchive(contents) ? std::optional(contents) : std::nullopt;
}

} // namespace

void NSKeyedArchiver::encode(std::string_view key, std::string_view text)
{
    put(key, ArchivedValue(std::string(text)));
}

void NSKeyedArchiver::encode(std::string_view key, const NSData& data)
{
    put(key, ArchivedValue(data));
}

void NSKeyedArchiver::put(std::string_view key, ArchivedValue value)
{
    values_.insert_or_assign(std::string(key), std::move(value));
}

std::optional<NSData> NSKeyedArchiver::finishEncoding() const
{
    ArchiveWriter writer;
    writer.plain(archiveMagic);
    writer.number(archiveFormat);
    writer.name(className_);
    writer.spoilUnless(values_.size() <= greatest<std::uint16_t>);
    writer.number(static_cast<std::uint16_t>(values_.size()));
    for (const auto& [key, value] : values_) {
        writer.name(key);
        writer.value(value);
    }
    return writer.finish();
}

std::optional<NSKeyedUnarchiver> NSKeyedUnarchiver::unarchiverForReadingFromData(
    std::span<const std::byte> bytes, std::string_view allowedClassName)
{
    const auto contents = checkedContents(bytes);
    if (!contents)
        return std::nullopt;
    ArchiveReader reader(*contents);
    if (reader.text(archiveMagic.size()) != archiveMagic || reader.number<std::uint8_t>() != archiveFormat
        || reader.name() != allowedClassName)
        return std::nullopt;
    const auto count = reader.number<std::uint16_t>();
    if (!count)
        return std::nullopt;
    NSKeyedUnarchiver unarchiver;
    for (std::size_t read = 0; read < *count; ++read) {
        auto key = reader.name();
        auto value = reader.value();
        if (!key || !value || (!unarchiver.values_.empty() && *key <= unarchiver.values_.rbegin()->first))
            return std::nullopt;
        unarchiver.values_.emplace_hint(unarchiver.values_.end(), std::move(*key), std::move(*value));
    }
    return reader.isAtEnd() ? std::optional(std::move(unarchiver)) : std::nullopt;
}

template <typename T> std::optional<T> NSKeyedUnarchiver::decode(std::string_view key) const
{
    const auto found = values_.find(key);
    const T* value = found == values_.end() ? nullptr : std::get_if<T>(&found->second);
    return value ? std::optional<T>(*value) : std::nullopt;
}

std::optional<std::string> NSKeyedUnarchiver::decodeString(std::string_view key) const
{
    return decode<std::string>(key);
}

std::optional<NSData> NSKeyedUnarchiver::decodeData(std::string_view key) const
{
    return decode<NSData>(key);
}

std::optional<NSDate> NSKeyedUnarchiver::decodeDate(std::string_view key) const
{
    return decode<NSDate>(key);
}

bool NSKeyedUnarchiver::containsValueForKey(std::string_view key) const
{
    return values_.contains(key);
}

} // namespace tarn
