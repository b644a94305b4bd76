#include "tools/tarn/files/AttachmentLinks.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

#include <utility>

namespace tarn {

namespace {

/// What could end the text of a link, or begin something else in it.
constexpr std::string_view kMarkup = "\\`*[]<>#&~=!|$";

std::string escapedForLinkText(std::string_view name)
{
    std::string escaped;
    for (const char byte : name) {
        if (kMarkup.find(byte) != std::string_view::npos)
            escaped += '\\';
        escaped += byte;
    }
    return escaped;
}

} // namespace

std::string linkDestinationForFilename(std::string_view filename)
{
    std::string destination = stringByAddingPercentEncoding(filename, UnescapedCharacters::URLQueryHeader);
    // What stands before a colon reads as the scheme of a URL.
    for (std::size_t at = 0; (at = destination.find(':', at)) != std::string::npos;)
        destination.replace(at, 1, "%3A");
    return destination;
}

std::string linkToFile(const OVNoteFile& file)
{
    const std::string name = file.filename().value_or("");
    const std::string destination = "(" + linkDestinationForFilename(name) + ")";
    return dynamic_cast<const OVNoteImage*>(&file) ? "![]" + destination
                                                   : "[" + escapedForLinkText(name) + "]" + destination;
}

std::set<std::string> filenamesInText(std::string_view text)
{
    std::set<std::string> names;
    const CVKAST document = CVKAST::fromMarkdown(text);
    for (const std::string& link : document.textSummary().links) {
        names.insert(link);
        if (auto decoded = stringByRemovingPercentEncoding(link))
            names.insert(std::move(*decoded));
    }
    return names;
}

} // namespace tarn
