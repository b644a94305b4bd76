#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace tarn {

/// The order that people expect in lists: by the rules of the environment's locale, without case, numbers by their
/// value
/// ("file2" before "file10"). Texts that are equal by these rules stand in the order of their bytes. Any thread.
std::strong_ordering localizedStandardCompare(std::string_view left, std::string_view right);

/// A key whose bytes compare as `localizedStandardCompare` does; faster where many texts are sorted. Keys of different
/// locales do not compare; never store one.
std::string localizedStandardSortKey(std::string_view text);

} // namespace tarn
