#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarn {

/// Stops the fuzzer where something that must hold does not.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

/// Names and a text, cut from the bytes of a fuzzer: each name ends with its line.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : rest_(data, data + size) { }

    std::string takeLine()
    {
        const std::size_t end = std::min(rest_.find('\n'), rest_.size());
        std::string line = rest_.substr(0, end);
        rest_.erase(0, end + 1);
        return line;
    }
    std::string rest() const { return rest_; }

private:
    std::string rest_;
};

} // namespace tarn
