#include "tarnmodel/encryption/sealing/SealedFileReader.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/encryption/sealing/FileAccessInternal.h"
#include "tarnmodel/encryption/sealing/SealedFileFormatInternal.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <string>

namespace tarn {

struct SealedFileReader::Stream {
    FileDescriptor file;
    std::string identifier;
    std::uint64_t fileLength = 0;
    crypto_secretstream_xchacha20poly1305_state state;
    std::uint64_t pieces = 0;
    bool isFinal = false;         ///< the last piece was read
    std::vector<std::byte> clear; ///< of the piece that was read last
    std::size_t used = 0;         ///< of those
    std::vector<std::byte> encrypted;

    std::span<const std::byte> unused() const { return std::span(clear).subspan(used); }
    ~Stream()
    {
        sodium_memzero(&state, sizeof state);
        sodium_memzero(clear.data(), clear.size());
    }
};

SealedFileReader::SealedFileReader(std::filesystem::path file, std::string_view identifier)
    : file_(std::move(file)), stream_(std::make_unique<Stream>())
{
    stream_->identifier = identifier;
}

SealedFileReader::~SealedFileReader() = default;

bool SealedFileReader::begin(const SecretBytes& objectKey, NSError* error)
{
    const auto key = keyForUse(objectKey, KeyUse::FileEncryption, error);
    if (!key)
        return false;
    stream_->file.reset(::open(file_.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status { };
    if (!stream_->file || ::fstat(stream_->file.get(), &status) != 0)
        return failFileAccess(error, errno, file_, "read");
    if (!S_ISREG(status.st_mode))
        return failFileAccess(error, EISDIR, file_, "read");
    stream_->fileLength = static_cast<std::uint64_t>(status.st_size);
    stream_->clear.reserve(sealedPieceLength);
    return readHead(*key, error) && readPiece(error) && readContentHead(error);
}

bool SealedFileReader::readHead(const SecretBytes& key, NSError* error)
{
    std::array<std::byte, sealedPiecesAt> head{};
    const auto length = readFully(stream_->file, head, file_, error);
    if (!length)
        return false;
    const std::string_view magic(reinterpret_cast<const char*>(head.data()), sealedFileMagic.size());
    if (*length <= sealedFileMagic.size() || magic != sealedFileMagic
        || head[sealedFileMagic.size()] != sealedFileVersion)
        return failEncryption(error, OVEncryptionErrorUnknownVersion);
    if (*length < head.size()
        || crypto_secretstream_xchacha20poly1305_init_pull(
               &stream_->state, octets(std::span(head).subspan(sealedStreamHeadAt)), octets(key.span()))
            != 0)
        return failEncryption(error, OVEncryptionErrorDamaged);
    return true;
}

bool SealedFileReader::readPiece(NSError* error)
{
    Stream& stream = *stream_;
    stream.encrypted.resize(sealedPieceLength + sealedPieceOverhead);
    const auto length = readFully(stream.file, stream.encrypted, file_, error);
    if (!length)
        return false;
    if (stream.isFinal || *length <= sealedPieceOverhead)
        return failEncryption(error, OVEncryptionErrorDamaged);
    stream.clear.resize(*length - sealedPieceOverhead);
    stream.used = 0;
    unsigned char tag = 0;
    const std::vector<std::byte> context = contextOfPiece(stream.pieces++, stream.identifier);
    if (crypto_secretstream_xchacha20poly1305_pull(&stream.state, octets(std::span(stream.clear)), nullptr, &tag,
            octets(std::span(stream.encrypted)), *length, octets(std::span(context)), context.size())
        != 0)
        return failEncryption(error, OVEncryptionErrorDamaged);
    stream.isFinal = tag == crypto_secretstream_xchacha20poly1305_TAG_FINAL;
    if (!stream.isFinal
        && (tag != crypto_secretstream_xchacha20poly1305_TAG_MESSAGE || *length != stream.encrypted.size()))
        return failEncryption(error, OVEncryptionErrorDamaged);
    return true;
}

bool SealedFileReader::readContentHead(NSError* error)
{
    const std::span<const std::byte> head = stream_->unused();
    if (head.size() < contentHeadLength)
        return failEncryption(error, OVEncryptionErrorDamaged);
    kind_ = static_cast<ContentKind>(head[0]);
    length_ = restOfContent_ = numberFromLittleEndian<std::uint64_t>(head.subspan(1));
    stream_->used = contentHeadLength;
    if (kind_ != ContentKind::Bytes && kind_ != ContentKind::Folder)
        return failEncryption(error, OVEncryptionErrorUnknownVersion);
    // Told before anything is made of it: how long the file has to be follows from the content.
    if (length_ > stream_->fileLength || sealedFileLength(length_) != stream_->fileLength)
        return failEncryption(error, OVEncryptionErrorDamaged);
    return true;
}

std::optional<std::span<const std::byte>> SealedFileReader::next(NSError* error)
{
    if (restOfContent_ == 0)
        return std::span<const std::byte>();
    if (stream_->unused().empty() && !readPiece(error))
        return std::nullopt;
    const auto unused = stream_->unused();
    const auto some = unused.first(std::min<std::uint64_t>(unused.size(), restOfContent_));
    stream_->used += some.size();
    restOfContent_ -= some.size();
    return some;
}

bool SealedFileReader::finish(NSError* error)
{
    while (restOfContent_ > 0)
        if (!next(error))
            return false;
    return readPadding(error);
}

bool SealedFileReader::readPadding(NSError* error)
{
    while (true) {
        if (!std::ranges::all_of(stream_->unused(), [](std::byte byte) { return byte == std::byte{0}; }))
            return failEncryption(error, OVEncryptionErrorDamaged);
        if (stream_->isFinal)
            break;
        if (!readPiece(error))
            return false;
    }
    std::byte more{};
    const auto length = readFully(stream_->file, std::span(&more, 1), file_, error);
    if (!length)
        return false;
    return *length == 0 || failEncryption(error, OVEncryptionErrorDamaged);
}

} // namespace tarn
