#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// One string operator with its right side made ready: the needle folded, the pattern compiled.
///
/// The evaluator and the store's SQL functions share it, so that both agree. Copies share the compiled pattern;
/// `matches` may run on several threads at once.
class StringTest {
public:
    /// EqualTo, NotEqualTo, the orders, Contains, BeginsWith, EndsWith, Like or Matches.
    /// Raises `NSInvalidArgumentException` for a pattern that is no regular expression.
    StringTest(ComparisonOperator operation, ComparisonOptions options, std::string_view right);

    /// Contains, BeginsWith and EndsWith of an empty needle are false. A pattern that runs over its time or stack limit
    /// does not match, and is logged once.
    bool matches(std::string_view left) const;
    /// Whether texts are compared in their folded form, so that several tests of one text can share it.
    bool comparesFolded() const noexcept;
    /// The same as `matches` for a text that is folded already; of a test that compares folded.
    bool matchesFolded(std::string_view folded) const;
    /// What an index may look for: every text that matches has it in its folded form. None when nothing like that is
    /// known. Lives as long as the test.
    std::optional<std::string_view> foldedLiteral() const;
    /// Whether that says it all: every text that has it in its folded form matches.
    bool isOfLiteralAlone() const noexcept;

private:
    struct State;
    std::shared_ptr<const State> state_;
};

} // namespace tarn
