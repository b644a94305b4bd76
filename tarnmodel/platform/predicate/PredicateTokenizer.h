#pragma once

#include "tarnmodel/platform/predicate/PredicateVocabulary.h"

#include <string>
#include <string_view>

namespace tarn {

struct Token {
    TokenKind kind = TokenKind::End;
    /// Byte offset into the format, and the bytes as written.
    std::size_t offset = 0;
    std::string_view written;
    /// The key, the digits of a number, the content of a string (always valid UTF-8), the letter of a slot, the name of
    /// a variable or function.
    std::string text;
    ComparisonOperator operation = ComparisonOperator::EqualTo;
    ComparisonOptions options;
    ComparisonModifier modifier = ComparisonModifier::Direct;
    bool truth = false;
};

/// Cuts a predicate format into tokens, one at a time. It borrows the format.
class PredicateTokenizer {
public:
    explicit PredicateTokenizer(std::string_view format);

    /// The next token, `End` again and again at the end. Raises an `NSInvalidArgumentException` where none can be read.
    Token next();

private:
    void skipBlanks();
    Token tokenAt(std::size_t start, TokenKind kind, std::size_t length, std::string text);
    Token readWord();
    Token readEscapedKey();
    Token readNumber();
    Token readString();
    Token readPrefixedName(TokenKind kind, std::string_view expected);
    Token readSlot();
    Token readSign();
    void readLexeme(Token& token, const Lexeme& lexeme);
    ComparisonOptions readOptions();
    void readEscape(std::string& content);
    char32_t readHexDigits(std::size_t count);
    std::string_view wordAt(std::size_t offset) const;
    char byteAt(std::size_t offset) const { return offset < format_.size() ? format_[offset] : '\0'; }

    std::string_view format_;
    std::size_t offset_ = 0;
};

/// Raises the exception of a malformed format; `found` is the bytes that stand at `offset`, empty for the end.
[[noreturn]] void failToParsePredicate(std::size_t offset, std::string_view expected, std::string_view found);

} // namespace tarn
