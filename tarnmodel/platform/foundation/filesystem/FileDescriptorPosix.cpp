#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <string>
#include <system_error>

namespace tarn {

NSError errorOfSystem(int number, const std::filesystem::path& file, std::string_view action)
{
    return NSError(NSPOSIXErrorDomain, number,
        "\"" + file.string() + "\" cannot be " + std::string(action) + ": "
            + std::error_code(number, std::generic_category()).message());
}

bool failWithSystemError(NSError* error, int number, const std::filesystem::path& file, std::string_view action)
{
    assignError(error, errorOfSystem(number, file, action));
    return false;
}

} // namespace tarn
