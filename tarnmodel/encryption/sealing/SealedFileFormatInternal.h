#pragma once

#include "tarnmodel/encryption/keys/ByteFields.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"
#include "tarnmodel/encryption/sealing/ClearFields.h"
#include "tarnmodel/encryption/sealing/PaddedLength.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tarn {

// All of this is on disk: docs/encryption.md has the same table.
inline constexpr std::string_view sealedFileMagic = "TARNFILE";
inline constexpr std::byte sealedFileVersion{1};
/// Of the encrypted bytes, the last piece of them may be shorter.
inline constexpr std::size_t sealedPieceLength = std::size_t{64} << 10;
inline constexpr std::size_t sealedPieceOverhead = crypto_secretstream_xchacha20poly1305_ABYTES;
inline constexpr std::size_t sealedStreamHeadAt = 9;
inline constexpr std::size_t sealedPiecesAt = sealedStreamHeadAt + crypto_secretstream_xchacha20poly1305_HEADERBYTES;
/// Before the content, encrypted with it: of which kind it is, and how long.
inline constexpr std::size_t contentHeadLength = 1 + sizeof(std::uint64_t);

/// How many bytes are encrypted for a content of this length: with its head and the padding.
constexpr std::uint64_t sealedStreamLength(std::uint64_t contentLength) noexcept
{
    return paddedLength(contentHeadLength + contentLength);
}

constexpr std::uint64_t sealedFileLength(std::uint64_t contentLength) noexcept
{
    const std::uint64_t stream = sealedStreamLength(contentLength);
    return sealedPiecesAt + stream + (stream + sealedPieceLength - 1) / sealedPieceLength * sealedPieceOverhead;
}

/// What each piece is bound to: the format, the record and its place in the file.
inline std::vector<std::byte> contextOfPiece(std::uint64_t number, std::string_view identifier)
{
    const auto kind = littleEndian(static_cast<std::uint8_t>(RecordKind::Attachment));
    const auto version = littleEndian(static_cast<std::uint8_t>(sealedFileVersion));
    return joined({version, kind, bytesOfText("file"), littleEndian(number), bytesOfText(identifier)});
}

} // namespace tarn
