#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace tarn {

using ImageBytes = std::vector<std::uint8_t>;

void append(ImageBytes& bytes, std::string_view text);
void append(ImageBytes& bytes, const ImageBytes& more);
void appendBigEndian32(ImageBytes& bytes, std::uint32_t number);
void appendLittleEndian16(ImageBytes& bytes, std::uint32_t number);
void appendLittleEndian32(ImageBytes& bytes, std::uint32_t number);
/// The first bytes, so many.
ImageBytes prefix(const ImageBytes& bytes, std::size_t count);

enum class ByteOrder { Little, Big };
/// EXIF data of one directory with two entries, of which the second is the orientation.
ImageBytes exifWith(int orientation, ByteOrder order = ByteOrder::Little);

/// A file of its own in a folder for tests, gone with the object.
class ImageOnDisk {
public:
    explicit ImageOnDisk(const ImageBytes& bytes, std::string_view name = "imäge ø.dat");
    ~ImageOnDisk();
    ImageOnDisk(const ImageOnDisk&) = delete;
    ImageOnDisk& operator=(const ImageOnDisk&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path folder_;
    std::filesystem::path path_;
};

} // namespace tarn
