#pragma once

#include "tarnmodel/platform/foundation/values/NSDate.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What an export of ours says of the note in a file.
struct ExportedIdentity {
    std::string identifier; ///< as it is written
    bool isTrashed = false;
    bool isReadOnly = false;
    std::string conflict{}; ///< the group of conflicted versions that it belongs to, and its place there; "" for none
    bool linksToFiles = false; ///< its links to notes lead to files
};

/// What the text of a file says, its front matter read and not yet used.
struct SourceText {
    /// Lines of front matter that stay in the text, unless they give the title that the note has anyway.
    struct KeptLines {
        std::string source; ///< with their line ends
        bool isTitle = false;
    };

    std::string body;           ///< what follows the front matter
    std::string lineEnd = "\n"; ///< "\n" or "\r\n", as the front matter has it
    std::optional<std::string> title;
    std::vector<std::string> aliases;
    std::vector<std::string> tags; ///< names that a hashtag takes
    std::optional<NSDate> creationDate;
    std::optional<NSDate> modificationDate;
    bool isPinned = false;
    bool isArchived = false;
    std::optional<ExportedIdentity> exported;
    std::vector<KeptLines> kept;
};

/// Takes YAML front matter off. Whatever has no use here, to the last comment, is among the lines that are kept. A text
/// with malformed front matter, or none, is all body.
SourceText sourceTextOfFile(std::string_view text);

/// The note's text, without a heading for its title: body, tags at the bottom, and the lines that are kept in a fenced
/// block. `saysTitle`: whether the text, or the heading that it is going to get, says the title of the front matter.
std::string textOfSource(const SourceText& source, std::string body, bool saysTitle);

/// The text with a hashtag for each of these names at its bottom, but for tags that it has already.
std::string textWithTags(std::string text, const std::vector<std::string>& names);

} // namespace tarn
