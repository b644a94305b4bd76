// A new title changes the links to the old one and nothing else.

#include "fuzz/corvel/FuzzInput.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKWikiLink.h"

#include "tarnmodel/platform/foundation/text/Folding.h"

using namespace tarn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::string newTitle = input.takeLine();
    const std::string text = input.rest();
    const CVKAST before = CVKAST::fromMarkdown(std::string_view(text));
    const auto& was = before.textSummary().wikiLinks;
    const std::string title = was.empty() ? "none" : was.back().decodedTitle();

    for (const bool skipInTitle : {false, true}) {
        const CVKAST after = CVKWikiLink::updateWikiLinkWithTitle(title, newTitle, skipInTitle, text);
        const auto& is = after.textSummary().wikiLinks;
        require(was.size() == is.size());
        for (std::size_t i = 0; i < was.size(); ++i) {
            require(was[i].decodedTitle() == is[i].decodedTitle() || fold(was[i].decodedTitle()) == fold(title));
        }
        require(before.textSummary().links == after.textSummary().links);
        require(before.textSummary().tags == after.textSummary().tags);
    }
    return 0;
}
