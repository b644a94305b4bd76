#pragma once

#include "tarnmodel/model/OVNoteFile.h"

#include <set>
#include <string>
#include <string_view>

namespace tarn {

/// A file's name as the destination of a Markdown link: percent-encoded, so that it reads back as it is.
std::string linkDestinationForFilename(std::string_view filename);

/// The Markdown link by which a text names an attachment: "![](a%20b.png)" of an image, "[a b.pdf](a%20b.pdf)" of any
/// other file.
std::string linkToFile(const OVNoteFile& file);

/// What the links of a text name, as it is written and percent-decoded.
std::set<std::string> filenamesInText(std::string_view text);

} // namespace tarn
