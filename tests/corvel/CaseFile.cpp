#include "tests/corvel/CaseFile.h"

#include <fstream>

namespace tarn {

namespace {

std::string unescapedValue(std::string_view written)
{
    std::string value;
    for (std::size_t i = 0; i < written.size(); ++i) {
        if (written[i] != '\\' || i + 1 == written.size()) {
            value += written[i];
            continue;
        }
        switch (written[++i]) {
        case 'n':
            value += '\n';
            break;
        case 'r':
            value += '\r';
            break;
        case 's':
            value += ' ';
            break;
        default:
            value += written[i];
        }
    }
    return value;
}

} // namespace

std::optional<std::string> TextCase::value(std::string_view key) const
{
    for (const auto& [field, text] : fields) {
        if (field == key)
            return text;
    }
    return std::nullopt;
}

std::vector<std::string> TextCase::values(std::string_view key) const
{
    std::vector<std::string> found;
    for (const auto& [field, text] : fields) {
        if (field == key)
            found.push_back(text);
    }
    return found;
}

std::vector<TextCase> readCases(const std::string& file)
{
    std::vector<TextCase> cases;
    std::ifstream stream(std::string(TARN_TEST_CASES) + "/" + file);
    for (std::string line; std::getline(stream, line);) {
        if (line.empty() || line.starts_with('#'))
            continue;
        const std::size_t colon = line.find(':');
        const std::string key = line.substr(0, colon);
        const std::size_t begin = colon + 1 < line.size() && line[colon + 1] == ' ' ? colon + 2 : colon + 1;
        const std::string value = unescapedValue(std::string_view(line).substr(begin));
        if (key == "case")
            cases.push_back({value, {}});
        else
            cases.back().fields.emplace_back(key, value);
    }
    return cases;
}

} // namespace tarn
