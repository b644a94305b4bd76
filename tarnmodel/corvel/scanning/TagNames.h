#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::corvel {

/// How names of tags are written; see `CVKHashtag`, which offers the same to the outside.
std::string sanitizedTagName(std::string_view name);
std::string normalizedTagName(std::string_view name);
std::vector<std::string> tagComponents(std::string_view name);
std::string hashtagForName(std::string_view name);

} // namespace tarn::corvel
