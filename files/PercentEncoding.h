#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The text with every "%" and two hexadecimal digits replaced by the byte that they name. None when a "%" stands
/// without two digits or the result is not valid UTF-8.
std::optional<std::string> stringByRemovingPercentEncoding(std::string_view text);

} // namespace tarn
