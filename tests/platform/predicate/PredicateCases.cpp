#include "tests/platform/predicate/PredicateCases.h"

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <fstream>
#include <string_view>

namespace tarn {

namespace {

/// What stands after "label:" and one blank; null when the line has another label.
const char* fieldOf(const std::string& line, std::string_view label)
{
    if (!line.starts_with(label))
        return nullptr;
    const std::size_t start = label.size();
    return line.c_str() + (line.size() > start && line[start] == ' ' ? start + 1 : start);
}

std::vector<std::string> splitArguments(std::string_view text)
{
    constexpr std::string_view kSeparator = " | ";
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(kSeparator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + kSeparator.size());
    }
}

} // namespace

std::vector<PredicateCase> readPredicateCases()
{
    std::ifstream file(TARN_TEST_CASES "/predicates.cases");
    std::vector<PredicateCase> cases;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (const char* format = fieldOf(line, "format:")) {
            cases.push_back({.line = number, .format = format, .arguments = {}, .fails = false, .expected = {}});
        } else if (const char* arguments = fieldOf(line, "with:")) {
            cases.back().arguments = splitArguments(arguments);
        } else if (const char* printed = fieldOf(line, "prints:")) {
            cases.back().expected = printed;
        } else if (const char* failure = fieldOf(line, "fails:")) {
            cases.back().fails = true;
            cases.back().expected = failure;
        }
    }
    return cases;
}

} // namespace tarn
