#include "tarnmodel/platform/foundation/filesystem/PrivateFolder.h"

#include <cerrno>
#include <sys/stat.h>

namespace tarn {

std::error_code createPrivateFolder(const std::filesystem::path& folder)
{
    std::error_code failure;
    if (std::filesystem::is_directory(folder, failure))
        return {};
    failure.clear();
    std::filesystem::path path;
    for (const std::filesystem::path& part : std::filesystem::absolute(folder, failure)) {
        path /= part;
        if (::mkdir(path.c_str(), 0700) != 0 && errno != EEXIST && !failure)
            failure = std::error_code(errno, std::generic_category());
    }
    // A folder on the way that may not be written to is no failure when the next one is there.
    std::error_code ignored;
    if (std::filesystem::is_directory(folder, ignored))
        return {};
    return failure ? failure : std::make_error_code(std::errc::not_a_directory);
}

} // namespace tarn
