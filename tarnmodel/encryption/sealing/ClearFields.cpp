#include "tarnmodel/encryption/sealing/ClearFields.h"

#include "tarnmodel/encryption/keys/ByteFields.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"
#include "tarnmodel/encryption/sealing/PaddedLength.h"

#include <algorithm>
#include <string_view>

namespace tarn {
namespace {

/// The numbers are on disk. 0 is no field: padding begins with it.
enum class FieldNumber : std::uint8_t { Text = 1, Filename = 2, FileExtension = 3, FileSize = 4, SearchText = 5 };

struct TextField {
    FieldNumber number;
    RecordKind kind;
    std::optional<std::string> ClearFields::*member;
};

// In order of their numbers, which is the order on disk.
constexpr TextField kTextFields[] = {
    {FieldNumber::Text, RecordKind::Note, &ClearFields::text},
    {FieldNumber::Filename, RecordKind::Attachment, &ClearFields::filename},
    {FieldNumber::FileExtension, RecordKind::Attachment, &ClearFields::normalizedFileExtension},
    {FieldNumber::SearchText, RecordKind::Attachment, &ClearFields::searchText},
};

constexpr std::size_t kFieldHead = 1 + sizeof(std::uint32_t);

void appendField(std::vector<std::byte>& bytes, FieldNumber number, std::span<const std::byte> value)
{
    bytes.push_back(static_cast<std::byte>(number));
    append(bytes, littleEndian(static_cast<std::uint32_t>(value.size())));
    append(bytes, value);
}

bool takeField(ClearFields& fields, RecordKind kind, FieldNumber number, std::span<const std::byte> value)
{
    if (number == FieldNumber::FileSize) {
        if (kind != RecordKind::Attachment || value.size() != sizeof(std::int64_t))
            return false;
        fields.fileSize = numberFromLittleEndian<std::int64_t>(value);
        return true;
    }
    const auto* field = std::ranges::find_if(
        kTextFields, [&](const TextField& known) { return known.number == number && known.kind == kind; });
    if (field == std::end(kTextFields))
        return false;
    (fields.*field->member).emplace(reinterpret_cast<const char*>(value.data()), value.size());
    return true;
}

bool isAllZero(std::span<const std::byte> bytes)
{
    return std::ranges::all_of(bytes, [](std::byte byte) { return byte == std::byte{0}; });
}

void wipe(std::optional<std::string>& text)
{
    if (text)
        sodium_memzero(text->data(), text->size());
}

} // namespace

ClearFields::~ClearFields()
{
    for (const TextField& field : kTextFields)
        wipe(this->*field.member);
}

WipedAtEnd::~WipedAtEnd()
{
    sodium_memzero(bytes_.data(), bytes_.size());
}

std::vector<std::byte> serializedFields(const ClearFields& fields, RecordKind kind)
{
    std::size_t length = kFieldHead + sizeof(std::int64_t);
    for (const TextField& field : kTextFields)
        length += (fields.*field.member) ? kFieldHead + (fields.*field.member)->size() : 0;
    std::vector<std::byte> bytes;
    bytes.reserve(paddedLength(length)); // so that nothing clear is left behind in an outgrown piece of memory
    for (const TextField& field : kTextFields) {
        if (field.number > FieldNumber::FileSize && kind == RecordKind::Attachment && fields.fileSize)
            appendField(bytes, FieldNumber::FileSize, littleEndian(*fields.fileSize));
        if (const auto& value = fields.*field.member; value && field.kind == kind)
            appendField(bytes, field.number, bytesOfText(*value));
    }
    bytes.resize(paddedLength(bytes.size()));
    return bytes;
}

std::optional<ClearFields> fieldsFromBytes(std::span<const std::byte> bytes, RecordKind kind)
{
    ClearFields fields;
    auto last = std::byte{0};
    while (!bytes.empty() && bytes.front() != std::byte{0}) {
        if (bytes.size() < kFieldHead || bytes.front() <= last)
            return std::nullopt;
        last = bytes.front();
        const std::size_t length = numberFromLittleEndian<std::uint32_t>(bytes.subspan(1));
        bytes = bytes.subspan(kFieldHead);
        if (bytes.size() < length || !takeField(fields, kind, static_cast<FieldNumber>(last), bytes.first(length)))
            return std::nullopt;
        bytes = bytes.subspan(length);
    }
    return isAllZero(bytes) ? std::optional(std::move(fields)) : std::nullopt;
}

} // namespace tarn
