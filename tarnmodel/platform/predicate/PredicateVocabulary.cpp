#include "tarnmodel/platform/predicate/PredicateVocabulary.h"

#include "tarnmodel/platform/foundation/text/UTF.h"

#include <algorithm>
#include <array>

namespace tarn {

namespace {

using enum TokenKind;
using Compare = ComparisonOperator;
using Modify = ComparisonModifier;

constexpr std::array kReservedWords{
    Lexeme{.text = "AND", .kind = And},
    Lexeme{.text = "OR", .kind = Or},
    Lexeme{.text = "NOT", .kind = Not},
    Lexeme{.text = "ANY", .kind = Modifier, .modifier = Modify::Any},
    Lexeme{.text = "SOME", .kind = Modifier, .modifier = Modify::Any},
    Lexeme{.text = "ALL", .kind = Modifier, .modifier = Modify::All},
    Lexeme{.text = "NONE", .kind = Modifier, .modifier = Modify::None},
    Lexeme{.text = "CONTAINS", .kind = Operator, .operation = Compare::Contains},
    Lexeme{.text = "BEGINSWITH", .kind = Operator, .operation = Compare::BeginsWith},
    Lexeme{.text = "ENDSWITH", .kind = Operator, .operation = Compare::EndsWith},
    Lexeme{.text = "LIKE", .kind = Operator, .operation = Compare::Like},
    Lexeme{.text = "MATCHES", .kind = Operator, .operation = Compare::Matches},
    Lexeme{.text = "IN", .kind = Operator, .operation = Compare::In},
    Lexeme{.text = "BETWEEN", .kind = Operator, .operation = Compare::Between},
    Lexeme{.text = "NIL", .kind = Nil},
    Lexeme{.text = "NULL", .kind = Nil},
    Lexeme{.text = "YES", .kind = Truth, .truth = true},
    Lexeme{.text = "NO", .kind = Truth, .truth = false},
    Lexeme{.text = "TRUE", .kind = Truth, .truth = true},
    Lexeme{.text = "FALSE", .kind = Truth, .truth = false},
    Lexeme{.text = "TRUEPREDICATE", .kind = TruthPredicate, .truth = true},
    Lexeme{.text = "FALSEPREDICATE", .kind = TruthPredicate, .truth = false},
    Lexeme{.text = "SELF", .kind = Self},
    Lexeme{.text = "SUBQUERY", .kind = Subquery},
    Lexeme{.text = "CAST", .kind = Cast},
};
constexpr std::size_t kLongestReservedWord = 14;

// Longer signs first: the first row that the text begins with wins.
constexpr std::array kSigns{
    Lexeme{.text = "&&", .kind = And},
    Lexeme{.text = "||", .kind = Or},
    Lexeme{.text = "==", .kind = Operator, .operation = Compare::EqualTo},
    Lexeme{.text = "!=", .kind = Operator, .operation = Compare::NotEqualTo},
    Lexeme{.text = "<>", .kind = Operator, .operation = Compare::NotEqualTo},
    Lexeme{.text = "<=", .kind = Operator, .operation = Compare::LessThanOrEqualTo},
    Lexeme{.text = "=<", .kind = Operator, .operation = Compare::LessThanOrEqualTo},
    Lexeme{.text = ">=", .kind = Operator, .operation = Compare::GreaterThanOrEqualTo},
    Lexeme{.text = "=>", .kind = Operator, .operation = Compare::GreaterThanOrEqualTo},
    Lexeme{.text = "=", .kind = Operator, .operation = Compare::EqualTo},
    Lexeme{.text = "<", .kind = Operator, .operation = Compare::LessThan},
    Lexeme{.text = ">", .kind = Operator, .operation = Compare::GreaterThan},
    Lexeme{.text = "!", .kind = Not},
    Lexeme{.text = "(", .kind = LeftParenthesis},
    Lexeme{.text = ")", .kind = RightParenthesis},
    Lexeme{.text = "{", .kind = LeftBrace},
    Lexeme{.text = "}", .kind = RightBrace},
    Lexeme{.text = ",", .kind = Comma},
    Lexeme{.text = ".", .kind = Dot},
};

char upper(char byte)
{
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

} // namespace

const Lexeme* reservedWord(std::string_view word)
{
    if (word.size() > kLongestReservedWord)
        return nullptr;
    const auto same = [word](const Lexeme& lexeme) {
        return std::ranges::equal(word, lexeme.text, [](char left, char right) { return upper(left) == right; });
    };
    const auto found = std::ranges::find_if(kReservedWords, same);
    return found == kReservedWords.end() ? nullptr : &*found;
}

const Lexeme* leadingSign(std::string_view text)
{
    const auto found
        = std::ranges::find_if(kSigns, [text](const Lexeme& lexeme) { return text.starts_with(lexeme.text); });
    return found == kSigns.end() ? nullptr : &*found;
}

std::string_view canonicalName(ComparisonOperator operation)
{
    switch (operation) {
    case Compare::EqualTo:
        return "==";
    case Compare::NotEqualTo:
        return "!=";
    case Compare::LessThan:
        return "<";
    case Compare::LessThanOrEqualTo:
        return "<=";
    case Compare::GreaterThan:
        return ">";
    case Compare::GreaterThanOrEqualTo:
        return ">=";
    case Compare::Contains:
        return "CONTAINS";
    case Compare::BeginsWith:
        return "BEGINSWITH";
    case Compare::EndsWith:
        return "ENDSWITH";
    case Compare::Like:
        return "LIKE";
    case Compare::Matches:
        return "MATCHES";
    case Compare::In:
        return "IN";
    case Compare::Between:
        return "BETWEEN";
    }
    return "";
}

std::string_view canonicalName(ComparisonModifier modifier)
{
    switch (modifier) {
    case Modify::Direct:
        return "";
    case Modify::Any:
        return "ANY";
    case Modify::All:
        return "ALL";
    case Modify::None:
        return "NONE";
    }
    return "";
}

bool isKeyStart(char byte) noexcept
{
    const char letter = upper(byte);
    return (letter >= 'A' && letter <= 'Z') || byte == '_' || static_cast<unsigned char>(byte) >= 0x80;
}

bool isKeyByte(char byte) noexcept
{
    return isKeyStart(byte) || (byte >= '0' && byte <= '9');
}

bool isKey(std::string_view text)
{
    if (text.empty() || !isKeyStart(text.front()) || !std::ranges::all_of(text, isKeyByte) || !isValidUTF8(text))
        return false;
    for (std::size_t offset = 0; offset < text.size();) {
        const DecodedCodePoint decoded = decodeCodePoint(text, offset);
        if (isWhiteSpace(decoded.codePoint))
            return false;
        offset += decoded.length;
    }
    return true;
}

} // namespace tarn
