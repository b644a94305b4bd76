#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

/// What a sealed record belongs to. The numbers are on disk.
enum class RecordKind : std::uint8_t { Note = 1, Attachment = 2 };

/// The fields of a record that are encrypted. A note has the text, an attachment the others; none is nil.
///
/// The bytes are wiped when they go.
struct ClearFields {
    ClearFields() = default;
    ~ClearFields();
    ClearFields(ClearFields&&) = default;
    ClearFields& operator=(ClearFields&&) = default;
    ClearFields(const ClearFields&) = default;
    ClearFields& operator=(const ClearFields&) = default;

    std::optional<std::string> text;
    std::optional<std::string> filename;
    std::optional<std::string> normalizedFileExtension;
    std::optional<std::int64_t> fileSize;
    std::optional<std::string> searchText;

    bool operator==(const ClearFields&) const = default;
};

/// The fields as bytes, of a length that tells little. The caller wipes them.
std::vector<std::byte> serializedFields(const ClearFields& fields, RecordKind kind);
/// None when the bytes were not made so.
std::optional<ClearFields> fieldsFromBytes(std::span<const std::byte> bytes, RecordKind kind);

/// Wipes bytes that held something clear, however the scope is left.
class WipedAtEnd {
public:
    explicit WipedAtEnd(std::vector<std::byte>& bytes) : bytes_(bytes) { }
    ~WipedAtEnd();
    WipedAtEnd(const WipedAtEnd&) = delete;
    WipedAtEnd& operator=(const WipedAtEnd&) = delete;

private:
    std::vector<std::byte>& bytes_;
};

} // namespace tarn
