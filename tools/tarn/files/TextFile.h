#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarn {

/// A text file as it was found.
struct TextFile {
    std::string text;    ///< valid UTF-8, without a byte order mark
    NSDate creationDate; ///< never after the modification date
    NSDate modificationDate;
};

/// Why a file gives no text: a sentence for people, without the file's name.
class TextFileError : public std::runtime_error {
public:
    enum class Kind { CannotRead, NoText };
    TextFileError(Kind kind, const std::string& message) : std::runtime_error(message), kind_(kind) { }
    Kind kind() const noexcept { return kind_; }

private:
    Kind kind_;
};

/// That a text is longer than a note can hold.
TextFileError tooLongForANote();

/// Reads a file whole. Raises `TextFileError` for one that cannot be read, is no regular file, is too large or holds no
/// text. Never waits for a pipe or a device.
TextFile readTextFile(const std::filesystem::path& path);

/// The text of a file's bytes: UTF-8, or UTF-16 that begins with a byte order mark; the mark is dropped. Raises
/// `TextFileError` for anything else, with the place of the first byte that is wrong.
std::string textFromFileContents(std::string_view bytes);

/// Reads a descriptor to its end. Raises `CommandFailure` on errors and beyond the longest text.
std::string readDescriptor(int descriptor, std::string_view name);

/// The offset of the first byte that is no valid UTF-8; `npos` when all is well.
std::size_t firstInvalidByte(std::string_view text) noexcept;

} // namespace tarn
