#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// The text in canonical composition (NFC). Ill-formed UTF-8 reads as U+FFFD. Any thread.
std::string canonicallyComposed(std::string_view text);

} // namespace tarn
