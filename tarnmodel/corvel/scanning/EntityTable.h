#pragma once

#include <span>
#include <string_view>

namespace tarn::corvel {

/// `&name;` and the UTF-8 text that it stands for.
struct NamedEntity {
    std::string_view name;
    std::string_view text;
};

/// All of them, sorted by name in byte order.
std::span<const NamedEntity> namedEntities() noexcept;

} // namespace tarn::corvel
