#include "tarnmodel/platform/predicate/PredicateParser.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/ConstantText.h"
#include "tarnmodel/platform/predicate/PredicateNesting.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

namespace tarn {

namespace {

constexpr std::string_view kCountSuffix = ".@count";

ExpressionPtr shared(Expression expression)
{
    return std::make_shared<const Expression>(std::move(expression));
}
Expression constant(Value value)
{
    Expression expression;
    std::get<ConstantExpression>(expression.form).value = std::move(value);
    return expression;
}

[[noreturn]] void refuse(std::string_view reason)
{
    throw NSException(NSInvalidArgumentException, reason);
}

/// The argument as it stands in a tree: truth values as integers, text as valid UTF-8.
Value constantFromArgument(const Value& argument, int depth)
{
    switch (argument.kind()) {
    case Value::Kind::Bool:
        return Value(argument.asBool() ? 1 : 0);
    case Value::Kind::Double:
        if (!std::isfinite(argument.asDouble()))
            refuse("A number given to a predicate is not finite");
        return argument;
    case Value::Kind::String:
        return isValidUTF8(argument.asString()) ? argument : Value(validUTF8(argument.asString()));
    case Value::Kind::Array: {
        if (depth >= maximumPredicateDepth)
            refuse("A collection given to a predicate is nested too deeply");
        Value::Array members;
        members.reserve(argument.asArray().size());
        for (const Value& member : argument.asArray())
            members.push_back(constantFromArgument(member, depth + 1));
        return Value(std::move(members));
    }
    case Value::Kind::Nil:
    case Value::Kind::Integer:
    case Value::Kind::Date:
    case Value::Kind::Data:
    case Value::Kind::Object:
        break;
    }
    return argument;
}

/// Joins a nested AND into an AND, a nested OR into an OR.
void appendMember(CompoundPredicate& compound, PredicateNode member)
{
    auto* nested = std::get_if<CompoundPredicate>(&member.form);
    if (!nested || nested->type != compound.type) {
        compound.members.push_back(std::make_shared<const PredicateNode>(std::move(member)));
    } else if (compound.members.empty()) {
        compound.members = std::move(nested->members);
    } else {
        compound.members.insert(compound.members.end(), std::make_move_iterator(nested->members.begin()),
            std::make_move_iterator(nested->members.end()));
    }
}

/// Whether the expression can have members: what is known to be one value cannot.
bool isCollection(const Expression& expression)
{
    if (const auto* value = std::get_if<ConstantExpression>(&expression.form))
        return value->value.isNil() || value->value.kind() == Value::Kind::Array;
    return std::holds_alternative<KeyPathExpression>(expression.form)
        || std::holds_alternative<SubqueryExpression>(expression.form)
        || std::holds_alternative<AggregateExpression>(expression.form);
}

bool isConstant(const ExpressionPtr& expression)
{
    return std::holds_alternative<ConstantExpression>(expression->form);
}

/// Whether BETWEEN can have this on its right: what is known only later may turn out as two bounds.
bool mayBeBounds(const Expression& right)
{
    if (const auto* aggregate = std::get_if<AggregateExpression>(&right.form))
        return aggregate->members.size() == 2;
    if (const auto* value = std::get_if<ConstantExpression>(&right.form))
        return value->value.kind() == Value::Kind::Array && value->value.asArray().size() == 2;
    return true;
}

} // namespace

/// One level of parentheses, NOT, SUBQUERY or braces, for as long as it lives.
struct PredicateParser::Nesting {
    explicit Nesting(PredicateParser& owner) : parser(owner)
    {
        if (parser.depth_ >= maximumPredicateDepth)
            parser.fail(fmt::format("at most {} levels of nesting", maximumPredicateDepth));
        ++parser.depth_;
    }
    ~Nesting() { --parser.depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

    PredicateParser& parser;
};

PredicateParser::PredicateParser(std::string_view format, std::span<const Value> arguments)
    : tokenizer_(format), arguments_(arguments)
{ }

PredicateNode PredicateParser::parse()
{
    take();
    PredicateNode node = parseCompound(CompoundType::Or);
    if (token_.kind != TokenKind::End)
        fail("AND, OR or the end");
    if (argumentsUsed_ != arguments_.size()) {
        refuse(fmt::format(
            "The predicate format has {} slots, {} arguments were given", argumentsUsed_, arguments_.size()));
    }
    // AND inside OR needs parentheses in the canonical form, which must be readable too.
    requireNestingWithinLimit(node);
    return node;
}

// Predicates ----------------------------------------------------------------------------------------------------------

PredicateNode PredicateParser::parseCompound(CompoundType type)
{
    const bool isOr = type == CompoundType::Or;
    const TokenKind conjunction = isOr ? TokenKind::Or : TokenKind::And;
    const auto parseMember = [&] { return isOr ? parseCompound(CompoundType::And) : parseNegation(); };

    PredicateNode first = parseMember();
    if (token_.kind != conjunction)
        return first;
    CompoundPredicate compound{.type = type, .members = {}};
    appendMember(compound, std::move(first));
    while (accept(conjunction))
        appendMember(compound, parseMember());
    return {std::move(compound)};
}

PredicateNode PredicateParser::parseNegation()
{
    if (token_.kind != TokenKind::Not)
        return parsePrimary();
    const Nesting nesting(*this);
    take();
    return {NotPredicate{std::make_shared<const PredicateNode>(parseNegation())}};
}

PredicateNode PredicateParser::parsePrimary()
{
    if (token_.kind == TokenKind::TruthPredicate)
        return {ConstantPredicate{take().truth}};
    if (token_.kind != TokenKind::LeftParenthesis)
        return parseComparison();
    const Nesting nesting(*this);
    take();
    PredicateNode node = parseCompound(CompoundType::Or);
    expect(TokenKind::RightParenthesis, "AND, OR or \")\"");
    return node;
}

PredicateNode PredicateParser::parseComparison()
{
    ComparisonPredicate comparison;
    if (token_.kind == TokenKind::Modifier)
        comparison.modifier = take().modifier;
    comparison.left = parseExpression();
    const Token operation = expect(TokenKind::Operator, "a comparison operator");
    comparison.operation = operation.operation;
    comparison.options = operation.options;
    const Token start = token_;
    comparison.right = parseExpression();
    if (comparison.operation == ComparisonOperator::Between && !mayBeBounds(*comparison.right))
        fail(start, "a collection of two bounds");
    return {std::move(comparison)};
}

// Expressions ---------------------------------------------------------------------------------------------------------

ExpressionPtr PredicateParser::parseExpression()
{
    Expression operand = parseOperand();
    if (token_.kind == TokenKind::Dot) {
        if (!isCollection(operand))
            fail("the end of the value");
        take();
        operand = parseCountOf(std::move(operand));
    }
    return shared(std::move(operand));
}

Expression PredicateParser::parseOperand()
{
    switch (token_.kind) {
    case TokenKind::Key:
        return parseKeyPath({SelfExpression{}}, {take().text});
    case TokenKind::Self:
        take();
        return parseKeyPath({SelfExpression{}}, {});
    case TokenKind::Variable:
        return parseVariable();
    case TokenKind::Slot:
        return token_.text == "K" ? parsePathSlot() : constant(fillSlot());
    case TokenKind::Number:
        return parseNumber();
    case TokenKind::String:
        return constant(Value(take().text));
    case TokenKind::Nil:
        take();
        return constant(Value());
    case TokenKind::Truth:
        return constant(Value(take().truth ? 1 : 0));
    case TokenKind::Subquery:
        return parseSubquery();
    case TokenKind::Cast:
        return parseCast();
    case TokenKind::LeftBrace:
        return parseAggregate();
    default:
        fail("a key or a value");
    }
}

// Reads what follows the first keys: ".key.key", and ".@count" at the end.
Expression PredicateParser::parseKeyPath(Expression base, std::vector<std::string> keys)
{
    while (token_.kind == TokenKind::Dot) {
        take();
        if (token_.kind == TokenKind::Function) {
            if (keys.empty())
                fail("a key");
            return parseCountOf({KeyPathExpression{shared(std::move(base)), std::move(keys)}});
        }
        if (token_.kind == TokenKind::Slot && token_.text == "K") {
            const Token slot = take();
            appendKeys(keys, nextPath(slot), slot);
        } else {
            keys.push_back(takeKey());
        }
    }
    if (keys.empty())
        return base;
    return {KeyPathExpression{shared(std::move(base)), std::move(keys)}};
}

Expression PredicateParser::parsePathSlot()
{
    const Token slot = take();
    std::string_view path = nextPath(slot);
    const bool counts = path.ends_with(kCountSuffix);
    if (counts)
        path.remove_suffix(kCountSuffix.size());
    std::vector<std::string> keys;
    const Lexeme* first = reservedWord(path.substr(0, path.find('.')));
    const bool isFromSelf = first && first->kind == TokenKind::Self;
    if (isFromSelf)
        path.remove_prefix(std::min(path.size(), first->text.size() + 1));
    if (!path.empty() || !isFromSelf || counts)
        appendKeys(keys, path, slot);
    if (!counts)
        return parseKeyPath({SelfExpression{}}, std::move(keys));
    return {CountExpression{shared({KeyPathExpression{shared({SelfExpression{}}), std::move(keys)}})}};
}

Expression PredicateParser::parseVariable()
{
    const Token variable = take();
    if (std::ranges::find(variables_, variable.text) == variables_.end())
        fail(variable, "a variable of a SUBQUERY around it");
    return parseKeyPath({VariableExpression{variable.text}}, {});
}

Expression PredicateParser::parseSubquery()
{
    const Nesting nesting(*this);
    take();
    expect(TokenKind::LeftParenthesis, "\"(\"");
    const Token start = token_;
    SubqueryExpression subquery;
    subquery.collection = parseExpression();
    if (!isCollection(*subquery.collection))
        fail(start, "a collection");
    expect(TokenKind::Comma, "\",\"");
    subquery.variable = expect(TokenKind::Variable, "a variable").text;
    expect(TokenKind::Comma, "\",\"");
    variables_.push_back(subquery.variable);
    subquery.predicate = std::make_shared<const PredicateNode>(parseCompound(CompoundType::Or));
    variables_.pop_back();
    expect(TokenKind::RightParenthesis, "AND, OR or \")\"");
    return {std::move(subquery)};
}

Expression PredicateParser::parseCast()
{
    take();
    expect(TokenKind::LeftParenthesis, "\"(\"");
    const Token source = take();
    if (source.kind != TokenKind::Number && source.kind != TokenKind::String)
        fail(source, "the number of a date or the digits of data");
    expect(TokenKind::Comma, "\",\"");
    const Token type = expect(TokenKind::String, "the name of a type");
    expect(TokenKind::RightParenthesis, "\")\"");

    const bool isDate = type.text == kDateType && source.kind == TokenKind::Number;
    if (!isDate && (type.text != kDataType || source.kind != TokenKind::String))
        fail(type, "\"NSDate\" after a number or \"NSData\" after a string");
    std::optional<Value> value = isDate ? dateFromReferenceSeconds(source.text) : dataFromHexDigits(source.text);
    if (!value)
        fail(source, isDate ? "decimal seconds within the range of dates" : "pairs of hexadecimal digits");
    return constant(std::move(*value));
}

Expression PredicateParser::parseAggregate()
{
    const Nesting nesting(*this);
    take();
    AggregateExpression aggregate;
    if (token_.kind != TokenKind::RightBrace) {
        do {
            aggregate.members.push_back(parseExpression());
        } while (accept(TokenKind::Comma));
    }
    expect(TokenKind::RightBrace, "\",\" or \"}\"");
    if (!std::ranges::all_of(aggregate.members, isConstant))
        return {std::move(aggregate)};
    Value::Array values;
    values.reserve(aggregate.members.size());
    for (const ExpressionPtr& member : aggregate.members)
        values.push_back(std::get<ConstantExpression>(member->form).value);
    return constant(Value(std::move(values)));
}

// Reads "@count"; the dot has been read.
Expression PredicateParser::parseCountOf(Expression collection)
{
    if (token_.kind != TokenKind::Function || token_.text != "count")
        fail("@count");
    take();
    return {CountExpression{shared(std::move(collection))}};
}

Expression PredicateParser::parseNumber()
{
    const Token number = take();
    std::optional<Value> value = numberFromText(number.text);
    if (!value)
        fail(number, "a number within 64 bits");
    return constant(std::move(*value));
}

// Slots and tokens ----------------------------------------------------------------------------------------------------

Value PredicateParser::fillSlot()
{
    const Token slot = take();
    const Value& argument = nextArgument(slot);
    const bool isInteger = argument.kind() == Value::Kind::Integer || argument.kind() == Value::Kind::Bool;
    if (slot.text == "d" && !isInteger)
        fail(slot, "an integer or a truth value as the argument of %d");
    return constantFromArgument(argument, depth_);
}

const Value& PredicateParser::nextArgument(const Token& slot)
{
    if (argumentsUsed_ == arguments_.size())
        fail(slot, fmt::format("only {} slots, as many as there are arguments,", arguments_.size()));
    return arguments_[argumentsUsed_++];
}

std::string_view PredicateParser::nextPath(const Token& slot)
{
    const Value& path = nextArgument(slot);
    if (path.kind() != Value::Kind::String)
        fail(slot, "a key path as the argument of %K");
    return path.asString();
}

void PredicateParser::appendKeys(std::vector<std::string>& keys, std::string_view path, const Token& slot)
{
    for (;;) {
        const std::size_t dot = path.find('.');
        const std::string_view key = path.substr(0, dot);
        if (!isKey(key))
            fail(slot, "a key path as the argument of %K");
        keys.emplace_back(key);
        if (dot == std::string_view::npos)
            return;
        path.remove_prefix(dot + 1);
    }
}

// After a dot a reserved word can only be a key.
std::string PredicateParser::takeKey()
{
    if (token_.kind != TokenKind::Key && !reservedWord(token_.written))
        fail("a key or @count");
    return take().text;
}

Token PredicateParser::take()
{
    return std::exchange(token_, tokenizer_.next());
}

bool PredicateParser::accept(TokenKind kind)
{
    if (token_.kind != kind)
        return false;
    take();
    return true;
}

Token PredicateParser::expect(TokenKind kind, std::string_view expected)
{
    if (token_.kind != kind)
        fail(expected);
    return take();
}

void PredicateParser::fail(std::string_view expected) const
{
    fail(token_, expected);
}

void PredicateParser::fail(const Token& token, std::string_view expected)
{
    failToParsePredicate(token.offset, expected, token.written);
}

} // namespace tarn
