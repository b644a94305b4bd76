#include "tests/vectors/EncryptionVectors.h"

#include "tarnmodel/encryption/keys/PasswordBlob.h"
#include "tarnmodel/encryption/sealing/SealedFile.h"
#include "tarnmodel/encryption/sealing/SealedRecord.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <fstream>
#include <utility>

namespace tarn {
namespace {

constexpr std::string_view kPassword = "caf\u00e9 \U0001F511";
constexpr std::string_view kPasswordIdentifier = "8C4B9E6A-0F0D-4B6B-9A51-2F6C1D0E7A01";
constexpr std::string_view kNoteIdentifier = "8C4B9E6A-0F0D-4B6B-9A51-2F6C1D0E7A02";
constexpr std::string_view kAttachmentIdentifier = "8C4B9E6A-0F0D-4B6B-9A51-2F6C1D0E7A03";
constexpr std::string_view kText = "# Größe\n\nA text that nobody reads.";
constexpr std::size_t kFileLength = 70'000;

/// Bytes that look random and are always the same.
class FixedBytes {
public:
    void operator()(std::span<std::byte> bytes)
    {
        for (std::byte& byte : bytes) {
            state_ = state_ * 6364136223846793005U + 1442695040888963407U;
            byte = static_cast<std::byte>(state_ >> 56U);
        }
    }

private:
    std::uint64_t state_ = 1;
};

bool writeBytes(const std::filesystem::path& file, std::span<const std::byte> bytes)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return stream.good();
}

MasterKey masterKey()
{
    auto key = *newKey(nullptr);
    return {randomArray<MasterKeyIdentifier>(), std::make_shared<const SecretBytes>(std::move(key))};
}

ClearFields attachmentFields()
{
    ClearFields fields;
    fields.filename = "Größe.pdf";
    fields.normalizedFileExtension = "pdf";
    fields.fileSize = static_cast<std::int64_t>(kFileLength);
    fields.searchText = "";
    return fields;
}

std::string description()
{
    return std::string("{\n  \"password\": \"") + std::string(kPassword) + "\",\n  \"passwordIdentifier\": \""
        + std::string(kPasswordIdentifier) + "\",\n  \"formerKeys\": 2,\n  \"noteIdentifier\": \""
        + std::string(kNoteIdentifier) + "\",\n  \"text\": \"# Größe\\n\\nA text that nobody reads.\",\n"
        + "  \"attachmentIdentifier\": \"" + std::string(kAttachmentIdentifier)
        + "\",\n  \"filename\": \"Größe.pdf\",\n  \"extension\": \"pdf\",\n  \"fileSize\": "
        + std::to_string(kFileLength) + ",\n  \"searchText\": \"\"\n}\n";
}

} // namespace

bool writeEncryptionVectors(const std::filesystem::path& folder)
{
    EnvironmentOverride world;
    world.setRandomBytes(FixedBytes());
    const auto password = passwordInUse(kPassword, nullptr);
    const auto derived = deriveNewKey(*password, {2, 64}, nullptr);
    const KeyRing ring{masterKey(), masterKey(), masterKey()};
    const auto blob = PasswordBlob::write(ring, *derived, kPasswordIdentifier, nullptr);
    ClearFields noteFields;
    noteFields.text = kText;
    // The note is under a former key, the attachment under the newest one.
    const auto note = SealedRecord::seal(noteFields, RecordKind::Note, kNoteIdentifier, ring[1], nullptr);
    const auto attachment
        = SealedRecord::seal(attachmentFields(), RecordKind::Attachment, kAttachmentIdentifier, ring.front(), nullptr);
    std::vector<std::byte> content(kFileLength);
    for (std::size_t index = 0; index < content.size(); ++index)
        content[index] = static_cast<std::byte>(index * 7 % 251);
    std::filesystem::remove(folder / "file");
    return writeBytes(folder / "password", blob->span()) && writeBytes(folder / "note", note->data().span())
        && writeBytes(folder / "attachment", attachment->data().span())
        && sealBytes(content, folder / "file", attachment->objectKey(), kAttachmentIdentifier, nullptr)
        && writeBytes(folder / "vectors.json", NSData::fromText(description()).span());
}

} // namespace tarn
