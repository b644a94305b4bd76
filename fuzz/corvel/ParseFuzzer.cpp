// Any bytes parse; every range lies in the text, in order, and means what the summary says.

#include "fuzz/corvel/FuzzInput.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/scanning/Unescape.h"

using namespace tarn;

namespace {

void requireSoundLists(const CVKAST& document)
{
    const std::string& text = document.markdown();
    const auto lies = [&](CVKRange range) { return range.location <= text.size() && range.end() <= text.size(); };
    const auto definitions = document.linkDefinitions();
    for (const CVKLinkDefinition& definition : definitions)
        require(lies(definition.range) && lies(definition.destination) && lies(definition.title));
    const auto links = document.links();
    require(links.size() == document.document().links.size() + document.document().wikiLinks.size());
    for (std::size_t i = 0; i < links.size(); ++i) {
        const CVKLink& link = links[i];
        require(lies(link.range) && lies(link.text) && lies(link.destination) && lies(link.title));
        require(i == 0 || links[i - 1].range.location < link.range.location);
        require(!link.definition || definitions[*link.definition].destination == link.destination);
    }
    std::size_t endOfBlock = 0;
    for (const CVKBlock& block : document.topLevelBlocks(text.size())) {
        require(lies(block.range) && block.range.location >= endOfBlock);
        endOfBlock = block.range.end();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    const CVKAST document = CVKAST::fromMarkdown(std::string_view(text));
    const CVKAST::Document& parse = document.document();
    const CVKTextSummary& summary = document.textSummary();
    require(document.markdown() == text);
    document.html();

    require(parse.links.size() == summary.links.size());
    for (std::size_t i = 0; i < parse.links.size(); ++i) {
        const corvel::Link& link = parse.links[i];
        require(link.range.begin < link.range.end && link.range.end <= text.size());
        require(link.destination.begin <= link.destination.end && link.destination.end <= text.size());
        require(i == 0 || parse.links[i - 1].range.begin < link.range.begin);
        const bool isWritten = link.kind == corvel::LinkKind::Inline || link.kind == corvel::LinkKind::Reference;
        require(!isWritten || corvel::unescaped(parse.slice(link.destination)) == summary.links[i]);
    }
    for (std::size_t i = 0; i < parse.wikiLinks.size(); ++i) {
        require(parse.slice(parse.wikiLinks[i].range).starts_with("[["));
        require(i == 0 || parse.wikiLinks[i - 1].range.end <= parse.wikiLinks[i].range.begin);
        require(!summary.wikiLinks[i].decodedTitle().empty());
    }
    requireSoundLists(document);
    for (std::size_t i = 0; i < parse.hashtags.size(); ++i) {
        require(parse.slice(parse.hashtags[i].range).starts_with('#'));
        require(i == 0 || parse.hashtags[i - 1].range.end <= parse.hashtags[i].range.begin);
    }
    return 0;
}
