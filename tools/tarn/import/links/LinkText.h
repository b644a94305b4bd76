#pragma once

#include <string>
#include <string_view>

namespace tarn {

// The texts and destinations of links, as an import writes them.

/// A text on one line; what begins the lines of a quote is no part of it.
std::string withoutLineBreaks(std::string_view text, bool isInQuote);
/// What a text means that was written with backslashes before its marks.
std::string unescapedLinkText(std::string_view text);
/// A text as it is written between the brackets of a Markdown link.
std::string escapedLinkText(std::string_view text);
/// "Note > Heading > Lower", as readers know it from other programs.
std::string nameWithAnchor(const std::string& name, const std::string& anchor);
/// What stands behind the last slash.
std::string lastPartOfName(const std::string& name);
/// Percent-encoded but for what paths are made of.
std::string percentEncodedPath(std::string_view path);

} // namespace tarn
