#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class CVKAST;

/// Tells whether a text is still the one that an import wrote. A link that follows the new title of its note is no
/// change.
struct TextFingerprint {
    std::string whole; ///< a hash of the text
    std::string body;  ///< one of the text without the titles of its wiki links; "" where it has none
    /// Of each of these the note to which it leads, by identifier, and a hash of the title; without a note that alone.
    std::vector<std::string> links;

    /// The note that a title leads to, by identifier; none for a title that nobody has.
    using Resolver = std::function<std::optional<std::string>(const std::string& title)>;
    static TextFingerprint of(const std::string& text, const Resolver& resolve);
    /// Whether a title leads to a note, by identifier.
    using LeadsTo = std::function<bool(const std::string& title, const std::string& note)>;
    /// Whether the text is this one.
    bool matches(const std::string& text, const LeadsTo& leadsTo) const;

    friend bool operator==(const TextFingerprint&, const TextFingerprint&) = default;
};

/// BLAKE2b of 16 bytes, in hexadecimal digits.
std::string hashOfBytes(std::string_view bytes);
/// The same of the bytes of a file; none when it cannot be read.
std::optional<std::string> hashOfFile(const std::filesystem::path& path);

} // namespace tarn
