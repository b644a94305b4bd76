#include "tarnmodel/backup/snapshot/CompanionSnapshot.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/MemberName.h"
#include "tarnmodel/backup/archive/StagedFile.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <cerrno>
#include <set>
#include <string>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void failToCopy(const fs::path& file, int number)
{
    errno = number;
    failWithSystem(file, "copied");
}

/// Where a companion really lies; empty where there is none.
fs::path placeOfCompanion(const fs::path& file)
{
    std::error_code failure;
    const fs::file_status status = fs::status(file, failure);
    if (status.type() == fs::file_type::not_found)
        return {};
    // Whoever opens a pipe may wait for ever, with the store held.
    if (!failure && !fs::is_regular_file(status))
        failToCopy(file, fs::is_directory(status) ? EISDIR : EINVAL);
    fs::path place = failure ? fs::path() : fs::canonical(file, failure);
    if (failure)
        failToCopy(file, failure.value());
    return place;
}

} // namespace

CompanionSnapshot::CompanionSnapshot(const fs::path& folder, std::span<const BackupCompanion> companions)
{
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (failure)
        failToCopy(folder, failure.value());
    for (const BackupCompanion& companion : companions) {
        const fs::path place = placeOfCompanion(companion.file);
        if (place.empty())
            continue;
        StagedWriter writer(folder / companion.name);
        readStagedFile(place, [&writer](std::span<const std::byte> bytes) { writer.write(bytes); });
        writer.finish();
        copies_.push_back({&companion, writer.url()});
    }
}

void requireNamesOfCompanions(std::span<const BackupCompanion> companions)
{
    std::set<std::string> names;
    for (const BackupCompanion& companion : companions) {
        if (!isNameInFolder(companion.name))
            throw NSException(NSInvalidArgumentException, "\"" + companion.name + "\" cannot name a companion");
        if (!names.insert(companion.name).second)
            throw NSException(NSInvalidArgumentException, "two companions are called \"" + companion.name + "\"");
    }
}

} // namespace tarn
