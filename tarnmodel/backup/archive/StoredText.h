#pragma once

#include <nlohmann/json_fwd.hpp>

#include <string>
#include <string_view>

namespace tarn {

/// What records and the list of contents are made of: objects whose keys keep their order.
using JSON = nlohmann::ordered_json;

/// A text as JSON: a string, or where it is no UTF-8 an object with its bytes in base64.
JSON jsonOfStoredText(std::string_view text);
/// The other way. Throws one of the JSON library's exceptions for anything else.
std::string storedTextOfJSON(const JSON& json);

} // namespace tarn
