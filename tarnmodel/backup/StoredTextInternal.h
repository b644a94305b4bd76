#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace tarn {

/// A text as JSON: a string, or where it is no UTF-8 an object with its bytes in base64.
nlohmann::ordered_json jsonOfStoredText(std::string_view text);
/// The other way. Throws one of the JSON library's exceptions for anything else.
std::string storedTextOfJSON(const nlohmann::ordered_json& json);

} // namespace tarn
