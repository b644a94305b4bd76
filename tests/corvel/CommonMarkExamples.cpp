#include "tests/corvel/CommonMarkExamples.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace tarn {

namespace {

constexpr std::string_view kFence = "````````````````````````````````";
constexpr std::string_view kTabSign = "\xE2\x86\x92";

std::string withTabs(std::string text)
{
    for (std::size_t at = text.find(kTabSign); at != std::string::npos; at = text.find(kTabSign, at))
        text.replace(at, kTabSign.size(), "\t");
    return text;
}

std::filesystem::path fetchedText()
{
    const std::filesystem::path folder = TARN_TEST_DATA;
    const std::filesystem::path text = folder / "node_modules/commonmark-spec/spec.txt";
    if (!std::filesystem::exists(text)) {
        const std::string script = std::string(TARN_TEST_CASES) + "/../../scripts/fetch-test-data.sh";
        const std::string command = "'" + script + "' '" + folder.string() + "'";
        if (std::system(command.c_str()) != 0)
            return {};
    }
    return text;
}

std::vector<CommonMarkExample> readExamples(const std::filesystem::path& path)
{
    std::vector<CommonMarkExample> examples;
    std::ifstream file(path);
    std::string section;
    CommonMarkExample* current = nullptr;
    bool inHtml = false;
    for (std::string line; std::getline(file, line);) {
        if (line == std::string(kFence) + " example") {
            current = &examples.emplace_back();
            current->number = static_cast<int>(examples.size());
            current->section = section;
            inHtml = false;
        } else if (!current && line.starts_with('#')) {
            section = line.substr(line.find_first_not_of("# "));
        } else if (current && line == kFence) {
            current->markdown = withTabs(current->markdown);
            current->html = withTabs(current->html);
            current = nullptr;
        } else if (current && line == "." && !inHtml) {
            inHtml = true;
        } else if (current) {
            (inHtml ? current->html : current->markdown) += line + '\n';
        }
    }
    return examples;
}

} // namespace

const std::vector<CommonMarkExample>& commonMarkExamples()
{
    static const std::vector<CommonMarkExample> examples = readExamples(fetchedText());
    return examples;
}

} // namespace tarn
