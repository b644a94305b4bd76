#include "tarnmodel/store/MigrationSpaceInternal.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/VexMigrationManager.h"

#include <array>
#include <string>
#include <string_view>

namespace tarn {

namespace {

// The new store holds the same rows without the free pages of the old one, and grows by new columns, their indexes and
// the records of links: by a tenth for 30,000 notes, by a sixth for 1,000. An almost empty one grows by some pages.
constexpr std::uintmax_t kGrowthDivisor = 2;
constexpr std::uintmax_t kLeastGrowth = 1'000'000;

/// "12.3 MB", in steps of a thousand.
std::string readableSize(std::uintmax_t bytes)
{
    constexpr std::array<std::string_view, 4> kUnits{"kB", "MB", "GB", "TB"};
    if (bytes < 1'000)
        return std::to_string(bytes) + " bytes";
    std::size_t unit = 0;
    std::uintmax_t tenths = (bytes + 50) / 100;
    for (; tenths >= 10'000 && unit + 1 < kUnits.size(); ++unit)
        tenths = (tenths + 500) / 1'000;
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " " + std::string(kUnits.at(unit));
}

} // namespace

MigrationSpace MigrationSpace::forStore(std::uintmax_t size, std::size_t steps, bool isBackupCopied)
{
    const std::uintmax_t newStore = size + size / kGrowthDivisor + kLeastGrowth;
    if (isBackupCopied)
        return {.besideStore = newStore, .forBackups = newStore * (steps - 1) + size};
    return {.besideStore = newStore * steps, .forBackups = 0};
}

bool hasSpace(std::uintmax_t need, const std::filesystem::path& folder, NSError* error)
{
    const auto room = Environment::current().availableSpace(folder);
    if (!room || *room >= need)
        return true;
    assignError(error,
        NSError(MigrationErrorDomain, MigrationErrorNoSpace,
            "The migration of the store needs " + readableSize(need) + " in \"" + folder.string() + "\", where "
                + readableSize(*room) + " are left; nothing was written"));
    return false;
}

} // namespace tarn
