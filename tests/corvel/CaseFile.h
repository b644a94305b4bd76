#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn {

/// One case of a case file: its keys and values in order.
struct TextCase {
    std::string name;
    std::vector<std::pair<std::string, std::string>> fields;

    std::optional<std::string> value(std::string_view key) const;
    /// The value, or "" for an absent key.
    std::string text(std::string_view key) const { return value(key).value_or(std::string()); }
    std::vector<std::string> values(std::string_view key) const;
    friend std::ostream& operator<<(std::ostream& stream, const TextCase& textCase) { return stream << textCase.name; }
};

/// Reads tests/cases/<file>; empty when it cannot be read.
std::vector<TextCase> readCases(const std::string& file);

} // namespace tarn
