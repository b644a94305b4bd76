#include "tools/modelgen/GeneratedFile.h"

#include <fstream>
#include <sstream>

namespace tarn::modelgen {
namespace {

std::string contents(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

} // namespace

bool writeFile(const std::filesystem::path& file, const std::string& text)
{
    if (std::filesystem::exists(file) && contents(file) == text)
        return true;
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream << text;
    stream.close();
    return !stream.fail();
}

} // namespace tarn::modelgen
