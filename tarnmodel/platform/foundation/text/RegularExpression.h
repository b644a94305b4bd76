#pragma once

#include "tarnmodel/platform/foundation/values/NSRange.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// One place where a pattern matched.
struct RegularExpressionMatch {
    NSRange range; ///< the whole match, in UTF-16 units
    /// The capture groups from the first on; location `NSNotFound` for one that took no part.
    std::vector<NSRange> groups;
};

/// A compiled regular expression in ICU syntax.
///
/// Immutable; copies share the compiled pattern, which any number of threads may use at once.
///
///     RegularExpression expression("#[a-z]+", {.caseInsensitive = true});
class RegularExpression {
public:
    /// How a pattern is read, and how much work it may make.
    struct Options {
        bool caseInsensitive = false;          ///< letters match in either case
        bool anchorsMatchLines = false;        ///< "^" and "$" match at line ends too
        bool dotMatchesLineSeparators = false; ///< a dot matches line ends too
        /// Steps of the matcher's clock (about 0.16 ms each) after which it gives up; 0 for no limit.
        std::int32_t timeLimit = 5000;
        /// Bytes of backtracking state after which it gives up; 0 for no limit.
        std::int32_t stackLimit = 8'000'000;
    };

    /// Raises `NSInvalidArgumentException` that names the offset when the pattern is malformed.
    explicit RegularExpression(std::string_view pattern);
    RegularExpression(std::string_view pattern, Options options);

    /// Whether the pattern matches the whole text. None when a limit was hit.
    std::optional<bool> matches(std::string_view text) const;
    /// Whether it matches somewhere in the text. None when a limit was hit.
    std::optional<bool> matchesSomewhere(std::string_view text) const;

    /// The first match at or after `from`, in UTF-16 units of `text`. None without one, or when a limit was hit.
    std::optional<RegularExpressionMatch> firstMatch(std::string_view text, std::size_t from = 0) const;
    /// All matches, from left to right, not overlapping; an empty match advances by one code point. Those found so far
    /// when a limit was hit, which `limitExceeded` then says.
    std::vector<RegularExpressionMatch> allMatches(std::string_view text, bool* limitExceeded = nullptr) const;

    /// The text with a backslash in front of each of `* ? + [ ( ) { } ^ $ | \ . /`: as a pattern it matches itself.
    static std::string escapedPattern(std::string_view text);

private:
    struct Compiled;
    std::shared_ptr<const Compiled> compiled_;
};

} // namespace tarn
