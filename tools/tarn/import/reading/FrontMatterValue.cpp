#include "tools/tarn/import/reading/FrontMatter.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <array>
#include <charconv>

namespace tarn {

namespace {

bool isBlankCharacter(char character)
{
    return character == ' ' || character == '\t';
}

/// Reads texts and lists of texts from one line of YAML.
class ValueReader {
public:
    explicit ValueReader(std::string_view text) : text_(text) { }

    /// The whole line is one value; false when it is none of the simple kind.
    bool readLine(FrontMatterValue& value);
    /// The whole line is one text; false otherwise. Nothing appended for an empty one.
    bool readSingleText(FrontMatterValue& value);

private:
    bool readList(FrontMatterValue& value);
    bool readText(std::string& result, bool inList);
    bool readPlainText(std::string& result, bool inList);
    bool readSingleQuoted(std::string& result);
    bool readDoubleQuoted(std::string& result);
    bool readEscape(std::string& result);
    bool readHexadecimal(std::string& result, std::size_t digits);
    /// Whether nothing but blanks and a comment is left.
    bool atEndOfLine(FrontMatterValue& value);

    void skipBlanks()
    {
        while (position_ < text_.size() && isBlankCharacter(text_[position_]))
            ++position_;
    }
    bool atEnd() const { return position_ >= text_.size(); }
    char current() const { return text_[position_]; }
    bool startsComment() const
    {
        return !atEnd() && current() == '#' && (position_ == 0 || isBlankCharacter(text_[position_ - 1]));
    }

    std::string_view text_;
    std::size_t position_ = 0;
};

bool ValueReader::readLine(FrontMatterValue& value)
{
    skipBlanks();
    if (!atEnd() && current() == '[')
        return readList(value) && atEndOfLine(value);
    return readSingleText(value);
}

bool ValueReader::readSingleText(FrontMatterValue& value)
{
    skipBlanks();
    if (atEndOfLine(value))
        return true;
    const bool quoted = current() == '"' || current() == '\'';
    std::string text;
    if (!readText(text, false) || !atEndOfLine(value))
        return false;
    if (quoted || (text != "~" && text != "null"))
        value.items.push_back(std::move(text));
    return true;
}

bool ValueReader::readList(FrontMatterValue& value)
{
    value.isList = true;
    ++position_;
    for (;;) {
        skipBlanks();
        if (atEnd())
            return false;
        if (current() == ']') {
            ++position_;
            return true;
        }
        std::string item;
        if (!readText(item, true))
            return false;
        value.items.push_back(std::move(item));
        skipBlanks();
        if (!atEnd() && current() == ',')
            ++position_;
        else if (atEnd() || current() != ']')
            return false;
    }
}

bool ValueReader::readText(std::string& result, bool inList)
{
    if (current() == '"')
        return readDoubleQuoted(result);
    if (current() == '\'')
        return readSingleQuoted(result);
    return readPlainText(result, inList);
}

bool ValueReader::readPlainText(std::string& result, bool inList)
{
    // These begin something that is more than a text: anchors, references, tags of types, block texts, maps.
    constexpr std::string_view kIndicators = "&*!|>%@`{}[],?";
    if (kIndicators.find(current()) != std::string_view::npos)
        return false;
    const std::size_t begin = position_;
    while (!atEnd() && !startsComment()) {
        if (inList && std::string_view(",[]{}").find(current()) != std::string_view::npos)
            break;
        ++position_;
    }
    std::string_view text = text_.substr(begin, position_ - begin);
    while (!text.empty() && isBlankCharacter(text.back()))
        text.remove_suffix(1);
    result = text;
    return !text.empty();
}

bool ValueReader::readSingleQuoted(std::string& result)
{
    for (++position_; !atEnd(); ++position_) {
        if (current() != '\'') {
            result += current();
            continue;
        }
        ++position_;
        if (atEnd() || current() != '\'')
            return true;
        result += '\'';
    }
    return false;
}

bool ValueReader::readDoubleQuoted(std::string& result)
{
    ++position_;
    while (!atEnd()) {
        const char character = text_[position_++];
        if (character == '"')
            return true;
        if (character != '\\')
            result += character;
        else if (!readEscape(result))
            return false;
    }
    return false;
}

bool ValueReader::readEscape(std::string& result)
{
    struct Escape {
        char letter;
        char meaning;
    };
    constexpr std::array kEscapes{Escape{'"', '"'}, Escape{'\\', '\\'}, Escape{'/', '/'}, Escape{' ', ' '},
        Escape{'n', '\n'}, Escape{'t', '\t'}, Escape{'r', '\r'}};
    if (atEnd())
        return false;
    const char letter = text_[position_++];
    if (letter == 'x')
        return readHexadecimal(result, 2);
    if (letter == 'u')
        return readHexadecimal(result, 4);
    if (letter == 'U')
        return readHexadecimal(result, 8);
    for (const Escape& escape : kEscapes) {
        if (escape.letter != letter)
            continue;
        result += escape.meaning;
        return true;
    }
    return false;
}

bool ValueReader::readHexadecimal(std::string& result, std::size_t digits)
{
    const std::string_view number = text_.substr(position_, digits);
    std::uint32_t codePoint = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), codePoint, 16);
    if (number.size() != digits || error != std::errc() || end != number.data() + digits)
        return false;
    position_ += digits;
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    if (surrogate || codePoint > 0x10FFFF || codePoint == 0)
        return false;
    appendCodePoint(result, codePoint);
    return true;
}

bool ValueReader::atEndOfLine(FrontMatterValue& value)
{
    skipBlanks();
    if (startsComment()) {
        value.hasComment = true;
        return true;
    }
    return atEnd();
}

/// "- text" lines, all equally deep, comments between.
bool readBlockList(const std::vector<std::string_view>& lines, FrontMatterValue& value)
{
    value.isList = true;
    std::optional<std::size_t> depth;
    for (std::string_view line : lines) {
        const std::size_t indentation = line.find_first_not_of(" \t");
        if (line[indentation] == '#') {
            value.hasComment = true;
            continue;
        }
        const std::string_view item = line.substr(indentation);
        if (depth.value_or(indentation) != indentation || !(item == "-" || item.starts_with("- ")))
            return false;
        depth = indentation;
        const std::string_view content = item.substr(1);
        const std::size_t begin = content.find_first_not_of(' ');
        // A list within the list, or a map: "- - a", "- key: value".
        const std::string_view text = begin == std::string_view::npos ? std::string_view() : content.substr(begin);
        const bool plain = !text.empty() && text.front() != '"' && text.front() != '\'';
        if (plain && (text.starts_with("- ") || text.find(": ") != std::string_view::npos || text.ends_with(':')))
            return false;
        if (!ValueReader(content).readSingleText(value))
            return false;
    }
    return true;
}

} // namespace

std::optional<FrontMatterValue> readFrontMatterValue(
    std::string_view inlineText, const std::vector<std::string_view>& deeperLines)
{
    FrontMatterValue value;
    if (!ValueReader(inlineText).readLine(value))
        return std::nullopt;
    if (deeperLines.empty())
        return value;
    const bool hasInlineValue = value.isList || !value.items.empty();
    if (hasInlineValue || !readBlockList(deeperLines, value))
        return std::nullopt;
    return value;
}

} // namespace tarn
