#include "tarnmodel/store/MigrationSpaceInternal.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/text/ByteCount.h"
#include "tarnmodel/store/VexMigrationManager.h"

#include <string>

namespace tarn {

namespace {

// The new store holds the same rows without the free pages of the old one, and grows by new columns, their indexes and
// the records of links: by a tenth for 30,000 notes, by a sixth for 1,000. An almost empty one grows by some pages.
constexpr std::uintmax_t kGrowthDivisor = 2;
constexpr std::uintmax_t kLeastGrowth = 1'000'000;

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
            "The migration of the store needs " + stringFromByteCount(need) + " in \"" + folder.string() + "\", where "
                + stringFromByteCount(*room) + " are left; nothing was written"));
    return false;
}

} // namespace tarn
