#include "tarnmodel/encryption/sealing/FileSealer.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/KeyWrapping.h"
#include "tarnmodel/encryption/sealing/FileAccessInternal.h"
#include "tarnmodel/encryption/sealing/SealedFileFormatInternal.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <string>

namespace tarn {

struct FileSealer::Stream {
    FileDescriptor file;
    std::string identifier;
    crypto_secretstream_xchacha20poly1305_state state;
    std::uint64_t pieces = 0;
    std::vector<std::byte> clear; ///< of the piece that is being filled
    std::vector<std::byte> encrypted;

    ~Stream()
    {
        sodium_memzero(&state, sizeof state);
        sodium_memzero(clear.data(), clear.size());
    }
};

FileSealer::FileSealer(std::filesystem::path place, ContentKind kind, std::uint64_t length, std::string_view identifier)
    : place_(std::move(place)), kind_(kind), restOfContent_(length), restOfStream_(sealedStreamLength(length)),
      stream_(std::make_unique<Stream>())
{
    stream_->identifier = identifier;
}

FileSealer::~FileSealer()
{
    if (stream_->file)
        ::unlink(place_.c_str());
}

bool FileSealer::begin(const SecretBytes& objectKey, NSError* error)
{
    const auto key = keyForUse(objectKey, KeyUse::FileEncryption, error);
    if (!key)
        return false;
    stream_->file.reset(::open(place_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!stream_->file)
        return failFileAccess(error, errno, place_, "written");
    std::array<std::byte, crypto_secretstream_xchacha20poly1305_HEADERBYTES> head;
    fillWithRandom(head);
    // Both ends of a stream begin alike. The end that writes would take its head from another source of random bytes.
    crypto_secretstream_xchacha20poly1305_init_pull(&stream_->state, octets(std::span(head)), octets(key->span()));
    stream_->clear.reserve(sealedPieceLength);
    const auto contentLength = littleEndian(restOfContent_);
    const std::byte kind{static_cast<std::uint8_t>(kind_)};
    return writeAll(stream_->file,
               joined({bytesOfText(sealedFileMagic), std::span(&sealedFileVersion, 1), std::span(head)}), place_, error)
        && put(std::span(&kind, 1), error) && put(contentLength, error);
}

bool FileSealer::write(std::span<const std::byte> content, NSError* error)
{
    if (content.size() > restOfContent_)
        return failEncryption(error, OVEncryptionErrorFile, "The file was changed while it was read");
    restOfContent_ -= content.size();
    return put(content, error);
}

bool FileSealer::put(std::span<const std::byte> bytes, NSError* error)
{
    while (!bytes.empty()) {
        const auto some = bytes.first(std::min(bytes.size(), sealedPieceLength - stream_->clear.size()));
        append(stream_->clear, some);
        bytes = bytes.subspan(some.size());
        restOfStream_ -= some.size();
        if ((stream_->clear.size() == sealedPieceLength || restOfStream_ == 0) && !writePiece(error))
            return false;
    }
    return true;
}

bool FileSealer::writePiece(NSError* error)
{
    stream_->encrypted.resize(stream_->clear.size() + sealedPieceOverhead);
    const std::vector<std::byte> context = contextOfPiece(stream_->pieces++, stream_->identifier);
    const unsigned char tag = restOfStream_ == 0 ? crypto_secretstream_xchacha20poly1305_TAG_FINAL
                                                 : crypto_secretstream_xchacha20poly1305_TAG_MESSAGE;
    crypto_secretstream_xchacha20poly1305_push(&stream_->state, octets(std::span(stream_->encrypted)), nullptr,
        octets(std::span(stream_->clear)), stream_->clear.size(), octets(std::span(context)), context.size(), tag);
    stream_->clear.clear();
    return writeAll(stream_->file, stream_->encrypted, place_, error);
}

bool FileSealer::putPadding(NSError* error)
{
    const std::vector<std::byte> zeros(std::min<std::uint64_t>(restOfStream_, sealedPieceLength));
    while (restOfStream_ > 0)
        if (!put(std::span(zeros).first(std::min<std::uint64_t>(restOfStream_, zeros.size())), error))
            return false;
    return true;
}

bool FileSealer::finish(NSError* error)
{
    if (restOfContent_ > 0)
        return failEncryption(error, OVEncryptionErrorFile, "The file was changed while it was read");
    if (!putPadding(error) || !closeWritten(stream_->file, place_, error))
        return false;
    return true;
}

} // namespace tarn
