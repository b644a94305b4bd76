#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// So many bytes from the beginning of a file hold its comment, if it has one.
inline constexpr std::size_t ImageCommentReach = 1024;
/// The longest comment, in bytes.
inline constexpr std::size_t LongestImageComment = 512;

// A comment is a line of ASCII that programs which show the image pass over. In a PNG it is a tEXt chunk behind the
// header, with the keyword "tarn-source"; in a JPEG a comment segment behind the JFIF header, which begins with the
// same word and a blank. Part of the format of thumbnails.

/// The bytes of a PNG or JPEG file with this comment put in; none when they are neither, or the comment is too long.
std::optional<std::string> imageWithComment(std::string_view image, std::string_view comment);
/// The comment that `imageWithComment` put in; none when there is none. The beginning of the file is enough.
std::optional<std::string> commentOfImage(std::string_view image);

} // namespace tarn
