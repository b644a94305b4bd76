#pragma once

#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace tarn {

/// An opaque string of bytes, owned.
class NSData {
public:
    NSData() = default;
    /// A copy of these bytes.
    explicit NSData(std::vector<std::byte> bytes) : bytes_(std::move(bytes)) { }
    explicit NSData(std::span<const std::byte> bytes) : bytes_(bytes.begin(), bytes.end()) { }
    /// The bytes of `text`, as they are.
    static NSData fromText(std::string_view text)
    {
        NSData data;
        data.bytes_.resize(text.size());
        if (!text.empty())
            std::memcpy(data.bytes_.data(), text.data(), text.size());
        return data;
    }

    /// The bytes; valid while this value lives.
    const std::byte* bytes() const noexcept { return bytes_.data(); }
    /// How many bytes.
    std::size_t length() const noexcept { return bytes_.size(); }
    /// Whether there is none.
    bool isEmpty() const noexcept { return bytes_.empty(); }
    /// The bytes; valid while this value lives.
    std::span<const std::byte> span() const noexcept { return bytes_; }
    /// The bytes seen as characters; valid while this value lives.
    std::string_view text() const noexcept { return {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()}; }

    friend bool operator==(const NSData&, const NSData&) = default;
    friend auto operator<=>(const NSData&, const NSData&) = default;

private:
    std::vector<std::byte> bytes_;
};

} // namespace tarn
