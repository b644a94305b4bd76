// A new destination changes the links to the old one and nothing else.

#include "fuzz/corvel/FuzzInput.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/blocks/Document.h"

using namespace tarn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzInput input(data, size);
    const std::string target = input.takeLine();
    const std::string text = input.rest();
    const CVKAST before = CVKAST::fromMarkdown(std::string_view(text));
    const auto& was = before.textSummary().links;
    const std::string from = was.empty() ? "none" : was.back();

    const CVKTextOperationResult result = before.updateLinksURL(from, target, {0, text.size()});
    const CVKAST after = before.applyTextOperationResults(result);
    const auto& is = after.textSummary().links;
    require(was.size() == is.size());
    for (std::size_t i = 0; i < was.size(); ++i)
        require(was[i] == is[i] || before.document().links[i].kind != corvel::LinkKind::Autolink);
    return 0;
}
