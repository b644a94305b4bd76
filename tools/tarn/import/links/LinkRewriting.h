#pragma once

#include "tarnmodel/corvel/CVKAST.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The note that a link of a text leads to, and how the text is to say so.
struct LinkedNote {
    std::string title;
    std::string identifier;
    bool isKnownByTitle = false; ///< nobody else has the title
};

/// What a link of a text that is being imported means.
struct LinkMeaning {
    enum class Kind {
        NoPath,  ///< a URL, an anchor, nothing
        Missing, ///< nothing is there
        Outside, ///< a path that leads out of what is imported
        Note,
        File, ///< any other file
    };
    Kind kind = Kind::NoPath;
    LinkedNote note{};
    std::string name{};   ///< of a wiki link: what it names, without an anchor
    std::string anchor{}; ///< what stands behind "#"; "" for none
    std::string path{};   ///< of a file: from the folder of the text
    bool isOneOfSeveral = false;
};

/// How a link came out.
struct RewrittenLink {
    enum class Outcome {
        Wiki,         ///< leads to a note by its title
        ByIdentifier, ///< leads to one by its identifier
        File,         ///< leads to a file
        Heading,      ///< leads to a heading of its own note
        Waiting,      ///< a wiki link to a note that is not there
        Missing,      ///< a path where nothing is
        Outside,      ///< a path that leads out of what is imported
        Kept,         ///< is as it was, since its text would have become another one
        Other,        ///< a URL
    };
    std::string destination; ///< as the text had it
    Outcome outcome = Outcome::Other;
    std::string title{}; ///< of the note that it leads to
    bool isOneOfSeveral = false;
    bool hasAnchor = false;
};

struct RewrittenText {
    std::string text;
    std::vector<RewrittenLink> links; ///< in the order of the text
};

/// What links mean where a text lies.
class LinkMeanings {
public:
    virtual ~LinkMeanings() = default;
    /// Of the destination of a Markdown link, decoded.
    virtual LinkMeaning ofDestination(const std::string& destination) = 0;
    /// Of the title of a wiki link, decoded.
    virtual LinkMeaning ofName(const std::string& name) = 0;
    /// Whether a wiki link of this title leads to a note without anybody's help.
    virtual bool leadsSomewhere(const std::string& title) = 0;
};

/// The text with links that lead to notes by title, or by identifier where a title cannot say it, wherever its links
/// name the files that the notes were made of. A link is edited only where the text says the same as before but for
/// this link: title, tags, to-do items, blocks of code and all others; else it stays, and is told.
RewrittenText textWithLinksToNotes(const std::string& text, LinkMeanings& meanings);
/// The text as it is, and what its links come to like that.
RewrittenText textWithLinksKept(const std::string& text, LinkMeanings& meanings);

} // namespace tarn
