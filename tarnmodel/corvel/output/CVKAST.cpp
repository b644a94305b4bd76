#include "tarnmodel/corvel/CVKAST.h"

#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/HtmlRenderer.h"
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

std::string CVKAST::html() const
{
    return corvel::renderHtml(*document_);
}

} // namespace tarn
