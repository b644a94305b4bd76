#include "tarnmodel/corvel/output/HtmlEscaping.h"

#include "tarnmodel/corvel/scanning/CharacterClasses.h"

namespace tarn::corvel {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr ByteSet kEscaped(std::string_view("&<>\"\0", 5));
constexpr ByteSet kURLSafe("!#$%()*+,-./0123456789:;=?@ABCDEFGHIJKLMNOPQRSTUVWXYZ_abcdefghijklmnopqrstuvwxyz~");

} // namespace

void appendHtmlEscaped(std::string& html, std::string_view text)
{
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!kEscaped.contains(text[i]))
            continue;
        html.append(text, begin, i - begin);
        begin = i + 1;
        switch (text[i]) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        default:
            html += kReplacement;
        }
    }
    html.append(text, begin);
}

void appendWithoutNul(std::string& html, std::string_view text)
{
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t nul = text.find('\0', begin);
        html.append(text, begin, nul - begin);
        if (nul == std::string_view::npos)
            return;
        html += kReplacement;
        begin = nul + 1;
    }
}

void appendPercentEncoded(std::string& text, char byte)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += '%';
    text += kHex[value >> 4];
    text += kHex[value & 15];
}

void appendEscapedURL(std::string& html, std::string_view url)
{
    for (const char c : url) {
        if (kURLSafe.contains(c))
            html += c;
        else if (c == '&')
            html += "&amp;";
        else if (c == '\'')
            html += "&#x27;";
        else if (c == '\0')
            html += "%EF%BF%BD";
        else
            appendPercentEncoded(html, c);
    }
}

} // namespace tarn::corvel
