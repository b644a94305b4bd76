#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

namespace tarn {

class NSError;

/// The bytes of a file, wherever they lie.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// How many there are.
    virtual std::uint64_t size() const = 0;
    /// Copies those from this offset on. Fewer than asked for at the end, or when they cannot be read; how many.
    virtual std::size_t readAt(std::uint64_t offset, std::span<std::uint8_t> target) const = 0;
};

/// Opens a file, which is closed with the source. Null with an error for what is not there, cannot be read, or is no
/// plain file. Later changes of the file show.
std::unique_ptr<ByteSource> openFile(const std::filesystem::path& path, NSError* error);

/// Bytes in memory, which must outlive the source.
std::unique_ptr<ByteSource> sourceOfBytes(std::span<const std::uint8_t> bytes);

/// Makes a file of these bytes, or writes them over the one that is there. False with an error, of which parts may be
/// written.
bool writeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes, NSError* error);

} // namespace tarn
