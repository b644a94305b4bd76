#pragma once

#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tarn {

/// One value of a keyed archive.
using ArchivedValue = std::variant<std::string, NSData, NSDate>;

/// Writes the archived form of one object: its class and named values. A plain value; any thread.
///
/// Equal contents give equal bytes. The form, numbers in network byte order:
///
///     8 bytes   "TarnKArc"
///     1 byte    format, 1
///     name      of the class
///     2 bytes   number of values, then for each, in ascending order of keys:
///         name      the key
///         1 byte    kind: 1 string (UTF-8), 2 data, 3 date (microseconds since 1970, 8 bytes, signed)
///         4 bytes   length, then that many bytes
///     4 bytes   CRC-32 of all bytes before
///
/// where a name is one byte for its length (1 to 255) and that many bytes.
class NSKeyedArchiver {
public:
    /// Begins the archive of an object of this class.
    explicit NSKeyedArchiver(std::string_view className) : className_(className) { }

    /// Replaces a value of that key. None writes nothing, and reads as none.
    template <typename T> void encode(std::string_view key, const std::optional<T>& value)
    {
        if (value)
            put(key, ArchivedValue(*value));
    }
    void encode(std::string_view key, std::string_view text);
    void encode(std::string_view key, const NSData& data);
    /// Ends the archive. None when a name does not fit, a value is 4 GiB or larger, or there are more than 65,535.
    std::optional<NSData> finishEncoding() const;

private:
    void put(std::string_view key, ArchivedValue value);

    std::string className_;
    std::map<std::string, ArchivedValue, std::less<>> values_;
};

/// Reads what `NSKeyedArchiver` wrote, for one class only. A plain value; any thread.
class NSKeyedUnarchiver {
public:
    /// None unless the bytes are, from first to last, an archive of this class and of a known format. The work is
    /// linear in the number of bytes, whatever they say.
    static std::optional<NSKeyedUnarchiver> unarchiverForReadingFromData(
        std::span<const std::byte> bytes, std::string_view allowedClassName);

    /// None when there is no such value, or one of another kind.
    std::optional<std::string> decodeString(std::string_view key) const;
    std::optional<NSData> decodeData(std::string_view key) const;
    std::optional<NSDate> decodeDate(std::string_view key) const;
    /// Whether there is a value of that key, of any kind.
    bool containsValueForKey(std::string_view key) const;

private:
    NSKeyedUnarchiver() = default;
    template <typename T> std::optional<T> decode(std::string_view key) const;

    std::map<std::string, ArchivedValue, std::less<>> values_;
};

} // namespace tarn
