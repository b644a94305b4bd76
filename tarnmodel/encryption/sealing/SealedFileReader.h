#pragma once

#include "tarnmodel/encryption/sealing/FileSealer.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace tarn {

/// Reads a sealed file piece by piece. Whatever it gives was written so for this record; only `finish` says that it
/// was all.
class SealedFileReader {
public:
    SealedFileReader(std::filesystem::path file, std::string_view identifier);
    ~SealedFileReader();
    SealedFileReader(const SealedFileReader&) = delete;
    SealedFileReader& operator=(const SealedFileReader&) = delete;

    // False, or none, and an error when the file cannot be read, or was not written so.
    bool begin(const SecretBytes& objectKey, NSError* error);
    ContentKind kind() const noexcept { return kind_; }
    /// Bytes of the content.
    std::uint64_t length() const noexcept { return length_; }
    /// The next bytes of the content; valid until the next call. Empty at its end.
    std::optional<std::span<const std::byte>> next(NSError* error);
    /// Reads what is left, and makes sure that nothing is missing at its end or stands behind it.
    bool finish(NSError* error);

private:
    struct Stream;
    bool readHead(const SecretBytes& key, NSError* error);
    bool readPiece(NSError* error);
    bool readContentHead(NSError* error);
    bool readPadding(NSError* error);

    std::filesystem::path file_;
    ContentKind kind_ = ContentKind::Bytes;
    std::uint64_t length_ = 0;
    std::uint64_t restOfContent_ = 0;
    std::unique_ptr<Stream> stream_;
};

} // namespace tarn
