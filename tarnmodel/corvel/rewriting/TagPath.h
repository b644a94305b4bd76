#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarn::corvel {

/// A tag's path as a key to find the hashtags of the tag and of those below it.
class TagPath {
public:
    explicit TagPath(std::string_view name);

    bool isUsable() const noexcept { return !key_.empty(); }
    /// What follows this path in a (sanitized) path that is it or lies below it: "" or "/tail". Else nothing.
    std::optional<std::string> tailOf(std::string_view path) const;

private:
    std::string key_;
};

} // namespace tarn::corvel
