#include "tarnmodel/model/Resources.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <dlfcn.h>

#include <system_error>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kInstalledFolder = "../share/tarnmodel";

std::optional<fs::path> folderOfProgram()
{
    std::error_code failure;
    fs::path program = fs::read_symlink("/proc/self/exe", failure);
    return failure ? std::nullopt : std::optional<fs::path>(program.parent_path());
}

/// The folder of the shared library, or of the program again when the library is a part of it.
std::optional<fs::path> folderOfLibrary()
{
    static const char anchor = 0;
    Dl_info information{};
    if (dladdr(&anchor, &information) == 0 || information.dli_fname == nullptr)
        return std::nullopt;
    return fs::absolute(information.dli_fname).parent_path();
}

std::vector<fs::path> resourceFolders()
{
    if (auto chosen = Environment::current().variable("TARN_RESOURCES"); chosen && !chosen->empty())
        return {*chosen};
    std::vector<fs::path> folders;
    for (const auto& folder : {folderOfProgram(), folderOfLibrary()}) {
        if (folder)
            folders.push_back(*folder / kInstalledFolder);
    }
    folders.emplace_back(TARN_BUILD_RESOURCES);
    folders.emplace_back(TARN_INSTALLED_RESOURCES);
    return folders;
}

} // namespace

std::optional<fs::path> resourceNamed(std::string_view name)
{
    for (const fs::path& folder : resourceFolders()) {
        fs::path path = folder / name;
        std::error_code failure;
        if (fs::exists(path, failure))
            return path.lexically_normal();
    }
    return std::nullopt;
}

std::optional<fs::path> resourceFolder()
{
    if (const auto models = resourceNamed("Model.momd"))
        return models->parent_path();
    for (const fs::path& folder : resourceFolders()) {
        std::error_code failure;
        if (fs::is_directory(folder, failure))
            return folder;
    }
    return std::nullopt;
}

} // namespace tarn
