#include "tarnmodel/backup/archive/MemberName.h"

#include <cstddef>

namespace tarn {

namespace {

constexpr std::size_t kLongestName = 255;

} // namespace

std::vector<std::string> componentsOfMemberName(std::string_view name)
{
    std::vector<std::string> components;
    for (std::size_t end = name.find('/'); end != std::string_view::npos; end = name.find('/')) {
        components.emplace_back(name.substr(0, end));
        name.remove_prefix(end + 1);
    }
    components.emplace_back(name);
    return components;
}

bool isNameInFolder(std::string_view component)
{
    return !component.empty() && component != "." && component != ".." && component.size() <= kLongestName
        && component.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

} // namespace tarn
