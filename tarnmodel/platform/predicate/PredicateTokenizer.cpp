#include "tarnmodel/platform/predicate/PredicateTokenizer.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tarn {

namespace {

// Enough to find the place by; a format may hold a megabyte of somebody's text.
constexpr std::size_t kLongestFoundText = 24;

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}
bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

int hexValue(char byte)
{
    if (isDigit(byte))
        return byte - '0';
    if (byte >= 'a' && byte <= 'f')
        return byte - 'a' + 10;
    if (byte >= 'A' && byte <= 'F')
        return byte - 'A' + 10;
    return -1;
}

constexpr std::array kEscapes{
    std::pair{'"', '"'},
    std::pair{'\'', '\''},
    std::pair{'\\', '\\'},
    std::pair{'/', '/'},
    std::pair{'a', '\a'},
    std::pair{'b', '\b'},
    std::pair{'f', '\f'},
    std::pair{'n', '\n'},
    std::pair{'r', '\r'},
    std::pair{'t', '\t'},
    std::pair{'v', '\v'},
};

} // namespace

void failToParsePredicate(std::size_t offset, std::string_view expected, std::string_view found)
{
    std::string shown = validUTF8(found.substr(0, kLongestFoundText));
    shown = found.empty() ? "the end" : fmt::format("\"{}\"", shown);
    throw NSException(NSInvalidArgumentException,
        fmt::format("Unable to parse the predicate format: expected {} at byte {}, found {}", expected, offset, shown));
}

PredicateTokenizer::PredicateTokenizer(std::string_view format) : format_(format) { }

Token PredicateTokenizer::next()
{
    skipBlanks();
    if (offset_ == format_.size())
        return tokenAt(offset_, TokenKind::End, 0, {});
    const char first = format_[offset_];
    if (isKeyStart(first))
        return readWord();
    if (isDigit(first) || (first == '-' && isDigit(byteAt(offset_ + 1))))
        return readNumber();
    switch (first) {
    case '"':
    case '\'':
        return readString();
    case '%':
        return readSlot();
    case '$':
        return readPrefixedName(TokenKind::Variable, "the name of a variable");
    case '@':
        return readPrefixedName(TokenKind::Function, "@count");
    case '#':
        return readEscapedKey();
    default:
        return readSign();
    }
}

void PredicateTokenizer::skipBlanks()
{
    while (offset_ < format_.size()) {
        const DecodedCodePoint decoded = decodeCodePoint(format_, offset_);
        if (!decoded.valid || !isWhiteSpace(decoded.codePoint))
            return;
        offset_ += decoded.length;
    }
}

Token PredicateTokenizer::tokenAt(std::size_t start, TokenKind kind, std::size_t length, std::string text)
{
    offset_ = start + length;
    Token token;
    token.kind = kind;
    token.offset = start;
    token.written = format_.substr(start, length);
    token.text = std::move(text);
    return token;
}

std::string_view PredicateTokenizer::wordAt(std::size_t offset) const
{
    std::size_t end = offset;
    while (end < format_.size() && isKeyByte(format_[end])) {
        const DecodedCodePoint decoded = decodeCodePoint(format_, end);
        if (!decoded.valid || isWhiteSpace(decoded.codePoint))
            break;
        end += decoded.length;
    }
    return format_.substr(offset, end - offset);
}

Token PredicateTokenizer::readWord()
{
    const std::string_view word = wordAt(offset_);
    if (word.empty())
        failToParsePredicate(offset_, "valid UTF-8", format_.substr(offset_, 1));
    Token token = tokenAt(offset_, TokenKind::Key, word.size(), std::string(word));
    if (const Lexeme* lexeme = reservedWord(word))
        readLexeme(token, *lexeme);
    return token;
}

Token PredicateTokenizer::readEscapedKey()
{
    const std::string_view word = wordAt(offset_ + 1);
    if (!isKey(word))
        failToParsePredicate(offset_, "a key after \"#\"", format_.substr(offset_, 1));
    return tokenAt(offset_, TokenKind::Key, word.size() + 1, std::string(word));
}

Token PredicateTokenizer::readPrefixedName(TokenKind kind, std::string_view expected)
{
    const std::string_view word = wordAt(offset_ + 1);
    if (!isKey(word))
        failToParsePredicate(offset_, expected, format_.substr(offset_, 1));
    return tokenAt(offset_, kind, word.size() + 1, std::string(word));
}

Token PredicateTokenizer::readNumber()
{
    std::size_t end = offset_ + 1;
    const auto skipDigits = [&] {
        while (isDigit(byteAt(end)))
            ++end;
    };
    skipDigits();
    if (byteAt(end) == '.' && isDigit(byteAt(end + 1))) {
        ++end;
        skipDigits();
    }
    if (byteAt(end) == 'e' || byteAt(end) == 'E') {
        const std::size_t sign = byteAt(end + 1) == '+' || byteAt(end + 1) == '-' ? 1 : 0;
        if (isDigit(byteAt(end + 1 + sign))) {
            end += 1 + sign;
            skipDigits();
        }
    }
    if (isKeyByte(byteAt(end)))
        failToParsePredicate(end, "the end of a number", format_.substr(end, 1));
    return tokenAt(offset_, TokenKind::Number, end - offset_, std::string(format_.substr(offset_, end - offset_)));
}

Token PredicateTokenizer::readString()
{
    const std::size_t start = offset_;
    const char stops[] = {format_[start], '\\'};
    std::string content;
    for (++offset_;;) {
        const std::size_t stop = format_.find_first_of(std::string_view(stops, 2), offset_);
        if (stop == std::string_view::npos)
            failToParsePredicate(start, "a closing quote for the string", format_.substr(start));
        content.append(format_.substr(offset_, stop - offset_));
        offset_ = stop + 1;
        if (format_[stop] == stops[0])
            break;
        readEscape(content);
    }
    if (!isValidUTF8(content))
        content = validUTF8(content);
    return tokenAt(start, TokenKind::String, offset_ - start, std::move(content));
}

// Reads what follows a backslash.
void PredicateTokenizer::readEscape(std::string& content)
{
    const char letter = byteAt(offset_);
    if (const auto* found = std::ranges::find(kEscapes, letter, &std::pair<char, char>::first);
        found != kEscapes.end()) {
        content += found->second;
        ++offset_;
        return;
    }
    if (letter != 'u' && letter != 'U')
        failToParsePredicate(offset_ - 1, "an escape that the language has", format_.substr(offset_ - 1, 2));
    ++offset_;
    char32_t codePoint = readHexDigits(letter == 'u' ? 4 : 8);
    if (isHighSurrogate(codePoint) && format_.substr(offset_, 2) == "\\u") {
        const std::size_t second = offset_;
        offset_ += 2;
        const char32_t low = readHexDigits(4);
        if (isLowSurrogate(low))
            codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (low - 0xDC00);
        else
            offset_ = second;
    }
    appendCodePoint(content, codePoint);
}

char32_t PredicateTokenizer::readHexDigits(std::size_t count)
{
    char32_t value = 0;
    for (std::size_t read = 0; read < count; ++read, ++offset_) {
        const int digit = hexValue(byteAt(offset_));
        if (digit < 0)
            failToParsePredicate(offset_, fmt::format("{} hexadecimal digits", count), format_.substr(offset_, 1));
        value = value << 4 | static_cast<char32_t>(digit);
    }
    return value;
}

Token PredicateTokenizer::readSlot()
{
    const char letter = byteAt(offset_ + 1);
    if ((letter != '@' && letter != 'd' && letter != 'K') || (letter != '@' && isKeyByte(byteAt(offset_ + 2))))
        failToParsePredicate(offset_, "%@, %d or %K", format_.substr(offset_, 2));
    return tokenAt(offset_, TokenKind::Slot, 2, std::string(1, letter));
}

Token PredicateTokenizer::readSign()
{
    const Lexeme* lexeme = leadingSign(format_.substr(offset_));
    if (!lexeme)
        failToParsePredicate(offset_, "a predicate", format_.substr(offset_, 1));
    Token token = tokenAt(offset_, lexeme->kind, lexeme->text.size(), std::string(lexeme->text));
    readLexeme(token, *lexeme);
    return token;
}

void PredicateTokenizer::readLexeme(Token& token, const Lexeme& lexeme)
{
    token.kind = lexeme.kind;
    token.operation = lexeme.operation;
    token.modifier = lexeme.modifier;
    token.truth = lexeme.truth;
    if (lexeme.kind == TokenKind::Operator)
        token.options = readOptions();
}

// "[cd]" after an operator, blanks before it allowed.
ComparisonOptions PredicateTokenizer::readOptions()
{
    const std::size_t before = offset_;
    skipBlanks();
    if (byteAt(offset_) != '[') {
        offset_ = before;
        return {};
    }
    ComparisonOptions options;
    for (++offset_;; ++offset_) {
        switch (byteAt(offset_)) {
        case 'c':
        case 'C':
            options.caseInsensitive = true;
            break;
        case 'd':
        case 'D':
            options.diacriticInsensitive = true;
            break;
        case ']':
            if (format_[offset_ - 1] != '[') {
                ++offset_;
                return options;
            }
            [[fallthrough]];
        default:
            failToParsePredicate(offset_, "the options c and d, then \"]\"", format_.substr(offset_, 1));
        }
    }
}

} // namespace tarn
