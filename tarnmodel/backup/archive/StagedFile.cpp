#include "tarnmodel/backup/archive/StagedFile.h"
#include "tarnmodel/backup/BackupFailureInternal.h"

#include <cerrno>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace tarn {

namespace {

constexpr std::size_t kStagedPiece = std::size_t(256) << 10;
constexpr int kOwnerOnlyFile = 0600;

} // namespace

StagedWriter::StagedWriter(std::filesystem::path file)
    : file_(std::move(file)),
      descriptor_(::open(file_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kOwnerOnlyFile))
{
    if (!descriptor_)
        failWithSystem(file_, "written");
}

void StagedWriter::write(std::string_view bytes)
{
    size_ += bytes.size();
    if (bytes.size() >= kStagedPiece) {
        flush(buffer_);
        buffer_.clear();
        flush(bytes);
        return;
    }
    buffer_ += bytes;
    if (buffer_.size() >= kStagedPiece) {
        flush(buffer_);
        buffer_.clear();
    }
}

void StagedWriter::write(std::span<const std::byte> bytes)
{
    write(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

void StagedWriter::finish()
{
    flush(buffer_);
    buffer_.clear();
    descriptor_.reset();
}

void StagedWriter::flush(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor_.get(), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failWithSystem(file_, "written");
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void readStagedFile(const std::filesystem::path& file, const std::function<void(std::span<const std::byte>)>& take)
{
    if (file.empty())
        return;
    const FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!descriptor)
        failWithSystem(file, "read");
    std::vector<std::byte> buffer(kStagedPiece);
    while (true) {
        const ssize_t count = ::read(descriptor.get(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            failWithSystem(file, "read");
        if (count == 0)
            return;
        take(std::span(buffer).first(static_cast<std::size_t>(count)));
    }
}

void readLinesOfStagedFile(
    const std::filesystem::path& file, std::uint64_t maximumLength, const std::function<void(std::string_view)>& take)
{
    std::string line;
    const auto takePiece = [&](std::span<const std::byte> bytes) {
        std::string_view rest(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
            line += rest.substr(0, end);
            take(line);
            line.clear();
            rest.remove_prefix(end + 1);
        }
        line += rest;
        if (line.size() > maximumLength)
            throw BackupFailure(BackupErrorTooLarge, "the backup holds a record that is too long");
    };
    readStagedFile(file, takePiece);
    if (!line.empty())
        take(line);
}

} // namespace tarn
