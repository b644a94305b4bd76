#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/blocks/Document.h"
#include "tarnmodel/corvel/output/HtmlEscaping.h"
#include "tarnmodel/corvel/output/TextSummary.h"
#include "tarnmodel/corvel/rewriting/TextEdits.h"
#include "tarnmodel/corvel/scanning/CharacterClasses.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <map>
#include <utility>

namespace tarn {

namespace corvel {

namespace {

// A backtick could close a code span that is open before the link.
constexpr ByteSet kEncodedInAngles("<>\\&%`");
constexpr ByteSet kEncodedBare("<>\\&%`()\"[]*");

int hexValue(char c) noexcept
{
    return isASCIIDigit(c) ? c - '0' : lowerASCII(c) - 'a' + 10;
}

std::string percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEncoded
            = text[i] == '%' && i + 2 < text.size() && isASCIIHexDigit(text[i + 1]) && isASCIIHexDigit(text[i + 2]);
        decoded += isEncoded ? static_cast<char>(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2])) : text[i];
        i += isEncoded ? 2 : 0;
    }
    return decoded;
}

/// A destination as it is written, between angle brackets or bare.
std::string encodedDestination(std::string_view destination, bool inAngles)
{
    if (destination.empty() && !inAngles)
        return "<>";
    std::string encoded;
    for (std::size_t i = 0; i < destination.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(destination, i);
        const char c = destination[i];
        const bool isEncoded = isControl(decoded.codePoint)
            || (inAngles ? kEncodedInAngles.contains(c) : kEncodedBare.contains(c) || isWhiteSpace(decoded.codePoint));
        for (const char byte : destination.substr(i, decoded.length)) {
            if (isEncoded)
                appendPercentEncoded(encoded, byte);
            else
                encoded += byte;
        }
        i += decoded.length;
    }
    return encoded;
}

bool isAutolink(const Link& link)
{
    return link.kind == LinkKind::Autolink || link.kind == LinkKind::EmailAutolink;
}

bool leadsTo(const std::string& destination, std::string_view wanted)
{
    return destination == wanted || percentDecoded(destination) == wanted;
}

bool isBetweenAngles(std::string_view text, SourceRange destination)
{
    return destination.begin > 0 && text[destination.begin - 1] == '<' && destination.end < text.size()
        && text[destination.end] == '>';
}

} // namespace

} // namespace corvel

CVKTextOperationResult CVKAST::updateLinksURL(std::string_view from, std::string_view to, CVKRange selectionRange) const
{
    const auto newURL = [&](const std::string& destination) {
        return corvel::leadsTo(destination, from) ? std::optional<std::string>(to) : std::nullopt;
    };
    return updateLinksURLs(newURL, selectionRange);
}

CVKTextOperationResult CVKAST::updateLinksURLs(
    const std::function<std::optional<std::string>(const std::string&)>& newURL, CVKRange selectionRange) const
{
    // References share the destination of their definition, which may stand before or after them.
    std::map<std::size_t, const corvel::Link*> links;
    for (const corvel::Link& link : document_->links) {
        if (!corvel::isAutolink(link))
            links.emplace(link.destination.begin, &link);
    }
    CVKTextOperationResult result;
    const std::string_view text = document_->text;
    for (const auto& [begin, link] : links) {
        const auto url = newURL(corvel::decodedDestination(link->kind, document_->slice(link->destination)));
        if (!url)
            continue;
        std::string written = corvel::encodedDestination(*url, corvel::isBetweenAngles(text, link->destination));
        if (written != document_->slice(link->destination))
            result.edits.push_back({{begin, link->destination.length()}, std::move(written)});
    }
    result.selectionRange = corvel::movedSelection(text, result.edits, selectionRange);
    return result;
}

CVKAST CVKAST::applyTextOperationResults(const CVKTextOperationResult& result) const
{
    return fromMarkdown(corvel::appliedEdits(document_->text, result.edits));
}

} // namespace tarn
