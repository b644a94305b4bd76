#pragma once

#include "tarnmodel/encryption/keys/KeyArena.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace tarn {

class NSError;

/// What a sealed file was. The numbers are on disk.
enum class ContentKind : std::uint8_t { Bytes = 1, Folder = 2 };

/// Writes a sealed file piece by piece, so that its length does not matter. A file that is not finished is removed.
class FileSealer {
public:
    /// `identifier` is that of the record's encryption; the length is that of the content, in bytes.
    FileSealer(std::filesystem::path place, ContentKind kind, std::uint64_t length, std::string_view identifier);
    ~FileSealer();
    FileSealer(const FileSealer&) = delete;
    FileSealer& operator=(const FileSealer&) = delete;

    // False and an error when something cannot be written, and when the content has another length than was said.
    bool begin(const SecretBytes& objectKey, NSError* error);
    bool write(std::span<const std::byte> content, NSError* error);
    bool finish(NSError* error);

private:
    struct Stream;
    bool put(std::span<const std::byte> bytes, NSError* error);
    bool putPadding(NSError* error);
    bool writePiece(NSError* error);

    std::filesystem::path place_;
    ContentKind kind_;
    std::uint64_t restOfContent_;
    std::uint64_t restOfStream_;
    std::unique_ptr<Stream> stream_;
};

} // namespace tarn
