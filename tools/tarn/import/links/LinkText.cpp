#include "tools/tarn/import/links/LinkText.h"

#include "tarnmodel/platform/foundation/text/PercentEncoding.h"

#include <algorithm>

namespace tarn {

std::string withoutLineBreaks(std::string_view text, bool isInQuote)
{
    std::string line;
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] != '\n' && text[i] != '\r') {
            line += text[i++];
            continue;
        }
        line += ' ';
        i = std::min(text.find_first_not_of(isInQuote ? "\r\n\t >" : "\r\n\t ", i), text.size());
    }
    return line;
}

std::string unescapedLinkText(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool escapes = text[i] == '\\' && i + 1 < text.size()
            && std::string_view("!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~").find(text[i + 1]) != std::string_view::npos;
        i += escapes ? 1 : 0;
        plain += text[i];
    }
    return plain;
}

std::string escapedLinkText(std::string_view text)
{
    std::string escaped;
    for (const char character : text) {
        if (std::string_view("\\`*_[]<>&#|!").find(character) != std::string_view::npos)
            escaped += '\\';
        escaped += character;
    }
    return escaped;
}

std::string nameWithAnchor(const std::string& name, const std::string& anchor)
{
    std::string text = name;
    for (std::size_t offset = 0; offset <= anchor.size();) {
        const std::size_t end = std::min(anchor.find('#', offset), anchor.size());
        if (end > offset)
            text += " > " + anchor.substr(offset, end - offset);
        offset = end + 1;
    }
    return text;
}

std::string lastPartOfName(const std::string& name)
{
    const std::size_t slash = name.rfind('/');
    return slash == std::string::npos ? name : name.substr(slash + 1);
}

std::string percentEncodedPath(std::string_view path)
{
    return stringByAddingPercentEncoding(path, UnescapedCharacters::URLQueryHeader);
}

} // namespace tarn
