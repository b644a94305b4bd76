#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What stands between the slashes of a name.
std::vector<std::string> componentsOfMemberName(std::string_view name);
/// Whether it names something in a folder, and nothing elsewhere.
bool isNameInFolder(std::string_view component);

} // namespace tarn
