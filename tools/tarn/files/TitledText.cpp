#include "tools/tarn/files/TitledText.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/commandline/CommandFailure.h"

namespace tarn {

namespace {

// What is markup mostly, and all that a backslash may stand before.
constexpr std::string_view kMarksInTitles = "\\`*_[]<>#&~=!|";
constexpr std::string_view kASCIIPunctuation = "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~";

std::string escaped(std::string_view title, std::string_view marks)
{
    std::string text;
    for (const char letter : title) {
        if (marks.find(letter) != std::string_view::npos)
            text += '\\';
        text += letter;
    }
    return text;
}

bool headingMeans(const std::string& heading, std::string_view title)
{
    const CVKAST document = CVKAST::fromMarkdown(heading);
    const CVKTextSummary& summary = document.textSummary();
    return summary.title == title && summary.tags.empty() && summary.links.empty() && summary.wikiLinks.empty();
}

} // namespace

std::optional<std::string> headingForTitle(std::string_view title)
{
    for (const std::string_view marks : {std::string_view(), kMarksInTitles, kASCIIPunctuation}) {
        std::string heading = "# " + escaped(title, marks);
        if (!title.empty() && headingMeans(heading, title))
            return heading;
    }
    return std::nullopt;
}

std::string textWithTitle(std::string_view title)
{
    if (const auto heading = headingForTitle(trimmed(title)))
        return *heading + "\n\n";
    throw CommandFailure(ExitCode::Usage, "no text can have the title \"" + std::string(title) + "\"");
}

} // namespace tarn
