#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <cstdint>
#include <string_view>

namespace tarn {

enum class TokenKind : std::uint8_t {
    End,
    Key, ///< an identifier that is no reserved word, or one escaped by "#"
    Number,
    String,
    Slot,     ///< `%@`, `%d` or `%K`
    Variable, ///< `$name`
    Function, ///< `@count`
    And,
    Or,
    Not,
    Modifier, ///< ANY, SOME, ALL, NONE
    Operator, ///< a comparison, with its options
    Nil,
    Truth,          ///< YES, NO, TRUE, FALSE
    TruthPredicate, ///< TRUEPREDICATE, FALSEPREDICATE
    Self,
    Subquery,
    Cast,
    LeftParenthesis,
    RightParenthesis,
    LeftBrace,
    RightBrace,
    Comma,
    Dot,
};

/// A reserved word or a sign of the predicate language; which of the last three fields counts depends on the kind.
struct Lexeme {
    std::string_view text;
    TokenKind kind;
    ComparisonOperator operation = ComparisonOperator::EqualTo;
    ComparisonModifier modifier = ComparisonModifier::Direct;
    bool truth = false;
};

/// The reserved word, whatever its case; null when the word is free to be a key.
const Lexeme* reservedWord(std::string_view word);
/// The longest sign at the start of the text; null without one.
const Lexeme* leadingSign(std::string_view text);

/// How the canonical form writes them.
std::string_view canonicalName(ComparisonOperator operation);
std::string_view canonicalName(ComparisonModifier modifier);

bool isKeyStart(char byte) noexcept;
bool isKeyByte(char byte) noexcept;
/// Whether the text can stand as one key of a key path: a letter, "_" or a character beyond ASCII, then digits too.
bool isKey(std::string_view text);

} // namespace tarn
