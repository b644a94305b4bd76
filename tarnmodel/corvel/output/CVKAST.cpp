#include "tarnmodel/corvel/CVKAST.h"

#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/BlockList.h"
#include "tarnmodel/corvel/output/HtmlRenderer.h"
#include "tarnmodel/corvel/output/LinkList.h"
#include "tarnmodel/corvel/output/TextSummary.h"

namespace tarn {

CVKAST::CVKAST(std::shared_ptr<const Document> document) : document_(std::move(document)) { }

CVKAST CVKAST::fromMarkdown(std::string_view text)
{
    corvel::requireParsableLength(text.size());
    return fromMarkdown(std::string(text));
}

CVKAST CVKAST::fromMarkdown(std::string&& text)
{
    return CVKAST(corvel::parseDocument(std::move(text)));
}

const std::string& CVKAST::markdown() const noexcept
{
    return document_->text;
}

const CVKTextSummary& CVKAST::textSummary() const
{
    std::call_once(document_->summaryOnce, [this] { document_->summary = corvel::makeTextSummary(*document_); });
    return document_->summary;
}

std::vector<CVKLink> CVKAST::links() const
{
    return corvel::listLinks(*document_);
}

std::vector<CVKLinkDefinition> CVKAST::linkDefinitions() const
{
    return corvel::listDefinitions(*document_).all;
}

std::vector<CVKBlock> CVKAST::topLevelBlocks(std::size_t limit) const
{
    return corvel::listTopLevelBlocks(*document_, limit);
}

std::string CVKAST::html() const
{
    return corvel::renderHtml(*document_);
}

} // namespace tarn
