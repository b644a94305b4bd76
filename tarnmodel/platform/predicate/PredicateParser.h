#pragma once

#include "tarnmodel/platform/predicate/PredicateTokenizer.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Reads one predicate format into a tree, filling its slots from left to right.
///
/// Truth values become the integers 1 and 0, a collection of constants becomes one constant array, and nested AND and
/// OR of one kind become one node. So the tree is the same as that of its canonical form. Use once.
class PredicateParser {
public:
    PredicateParser(std::string_view format, std::span<const Value> arguments);

    /// Raises an `NSInvalidArgumentException` with the byte offset where the format goes wrong.
    PredicateNode parse();

private:
    struct Nesting;

    PredicateNode parseCompound(CompoundType type);
    PredicateNode parseNegation();
    PredicateNode parsePrimary();
    PredicateNode parseComparison();
    ExpressionPtr parseExpression();
    Expression parseOperand();
    Expression parseKeyPath(Expression base, std::vector<std::string> keys);
    Expression parsePathSlot();
    Expression parseVariable();
    Expression parseSubquery();
    Expression parseCast();
    Expression parseAggregate();
    Expression parseCountOf(Expression collection);
    Expression parseNumber();
    Value fillSlot();

    const Value& nextArgument(const Token& slot);
    std::string_view nextPath(const Token& slot);
    static void appendKeys(std::vector<std::string>& keys, std::string_view path, const Token& slot);
    std::string takeKey();
    Token take();
    bool accept(TokenKind kind);
    Token expect(TokenKind kind, std::string_view expected);
    [[noreturn]] void fail(std::string_view expected) const;
    [[noreturn]] static void fail(const Token& token, std::string_view expected);

    PredicateTokenizer tokenizer_;
    Token token_; // the one to be read next
    std::span<const Value> arguments_;
    std::size_t argumentsUsed_ = 0;
    std::vector<std::string> variables_; // bound by the SUBQUERYs around, innermost last
    int depth_ = 0;
};

} // namespace tarn
