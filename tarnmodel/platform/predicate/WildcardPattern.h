#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The right side of LIKE: `?` stands for one code point, `*` for any number; `\` takes the next one's meaning away.
///
/// Takes time in proportion to text times pattern at worst. Immutable; any thread.
class WildcardPattern {
public:
    explicit WildcardPattern(std::string_view pattern);

    /// Whether the whole text has this form.
    bool matches(std::string_view text) const;

private:
    /// What stands between two stars.
    struct Part {
        std::string text;               ///< UTF-8; `?` at the places that `anyCodePoint` marks
        std::vector<bool> anyCodePoint; ///< for each byte of `text`
    };
    static std::size_t lengthOfMatch(const Part& part, std::string_view text, std::size_t offset);

    std::vector<Part> parts_; ///< at least one; a star stands between each two
};

} // namespace tarn
