#include "tarnmodel/platform/coredata/NSPropertyMapping.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <optional>

namespace tarn {

/// Reads one value expression from left to right.
class MappingExpressionParser {
public:
    explicit MappingExpressionParser(std::string_view text) : whole_(text), rest_(text) { }

    MappingExpression parseWhole()
    {
        MappingExpression expression = parseExpression(true);
        skipBlanks();
        if (!rest_.empty())
            fail(fmt::format("\"{}\" is too much", rest_));
        return expression;
    }

private:
    [[noreturn]] void fail(std::string_view what) const
    {
        throw NSException(NSInvalidArgumentException, fmt::format("value expression \"{}\": {}", whole_, what));
    }

    static bool isNameCharacter(char c)
    {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
    }

    void skipBlanks()
    {
        while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\t' || rest_.front() == '\n'))
            rest_.remove_prefix(1);
    }

    bool take(std::string_view token)
    {
        skipBlanks();
        if (!rest_.starts_with(token))
            return false;
        rest_.remove_prefix(token.size());
        return true;
    }

    void expect(std::string_view token)
    {
        if (!take(token))
            fail(fmt::format("\"{}\" is missing before \"{}\"", token, rest_));
    }

    std::string_view takeName()
    {
        std::size_t length = 0;
        while (length < rest_.size() && isNameCharacter(rest_[length]))
            ++length;
        const std::string_view name = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return name;
    }

    /// A word that does not go on as a longer one.
    bool takeWord(std::string_view word)
    {
        skipBlanks();
        if (!rest_.starts_with(word) || (rest_.size() > word.size() && isNameCharacter(rest_[word.size()])))
            return false;
        rest_.remove_prefix(word.size());
        return true;
    }

    MappingExpression parseExpression(bool isOutermost)
    {
        MappingExpression expression;
        if (take("$source.")) {
            const std::string_view key = takeName();
            if (key.empty())
                fail("\"$source.\" needs a key");
            return MappingExpression::sourceKey(key);
        }
        if (isOutermost && takeWord("$default"))
            return expression;
        if (isOutermost && takeWord("FUNCTION"))
            return parseFunction();
        expression.kind_ = MappingExpression::Kind::Constant;
        expression.constant_ = parseConstant();
        return expression;
    }

    MappingExpression parseFunction()
    {
        MappingExpression expression;
        expression.kind_ = MappingExpression::Kind::PolicyFunction;
        expect("(");
        expect("$entityPolicy");
        expect(",");
        skipBlanks();
        expression.name_ = parseText();
        if (expression.name_.empty())
            fail("a function needs a name");
        while (take(","))
            expression.arguments_.push_back(parseExpression(false));
        expect(")");
        return expression;
    }

    /// In single quotes, of which two stand for one.
    std::string parseText()
    {
        expect("'");
        std::string text;
        while (true) {
            const std::size_t end = rest_.find('\'');
            if (end == std::string_view::npos)
                fail("a text does not end");
            text += rest_.substr(0, end);
            rest_.remove_prefix(end + 1);
            if (!rest_.starts_with('\''))
                return text;
            text += '\'';
            rest_.remove_prefix(1);
        }
    }

    Value parseConstant()
    {
        skipBlanks();
        if (rest_.starts_with('\''))
            return Value(parseText());
        if (takeWord("YES"))
            return Value(true);
        if (takeWord("NO"))
            return Value(false);
        if (takeWord("nil"))
            return {};
        return parseNumber();
    }

    Value parseNumber()
    {
        const std::string_view digits = rest_.substr(0, rest_.find_first_of(" \t\n,)"));
        std::int64_t integer = 0;
        const char* const end = digits.data() + digits.size();
        if (const auto [last, problem] = std::from_chars(digits.data(), end, integer);
            problem == std::errc() && last == end) {
            rest_.remove_prefix(digits.size());
            return Value(integer);
        }
        double number = 0;
        const auto [last, problem] = std::from_chars(digits.data(), end, number);
        if (digits.empty() || problem != std::errc() || last != end || !std::isfinite(number))
            fail(fmt::format("\"{}\" is no value", digits));
        rest_.remove_prefix(digits.size());
        return Value(number);
    }

    std::string_view whole_;
    std::string_view rest_;
};

MappingExpression MappingExpression::parse(std::string_view text)
{
    return MappingExpressionParser(text).parseWhole();
}

MappingExpression MappingExpression::sourceKey(std::string_view key)
{
    MappingExpression expression;
    expression.kind_ = Kind::SourceKey;
    expression.name_ = key;
    return expression;
}

} // namespace tarn
