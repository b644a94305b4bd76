#include "tarnmodel/platform/coredata/StoreFileCompaction.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"
#include "tarnmodel/platform/foundation/filesystem/FileDescriptorInternal.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

void removeWithJournal(const fs::path& file) noexcept
{
    for (const char* ending : {"", "-journal"}) {
        std::error_code ignored;
        fs::remove(fs::path(file) += ending, ignored);
    }
}

/// For its owner alone from the beginning, under its own name, so that nothing else is left of it; SQLite takes an
/// empty file for its own.
void makeEmptyFile(const fs::path& file)
{
    const FileDescriptor made(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (made)
        return;
    NSError error;
    failWithSystemError(&error, errno, file, "made");
    throw StoreFailure(error);
}

void writeMetadata(const fs::path& file, const std::map<std::string, std::string>& metadata)
{
    SQLiteConnection connection(file, {.pragmas = {{"journal_mode", "DELETE"}}});
    WriteTransaction transaction(connection, WriteTransaction::Lock::Exclusive);
    for (const auto& [key, value] : metadata)
        writeStoreMetadataValue(connection, key, value);
    transaction.commit();
}

} // namespace

bool compactStoreFile(
    HeldStoreFile& store, const fs::path& place, const std::map<std::string, std::string>& metadata, NSError* error)
{
    removeWithJournal(place);
    const bool isDone = reportingFailure(error, [&] {
        makeEmptyFile(place);
        const std::string name = fs::absolute(place).string();
        SQLiteStatement compact = store.connection().prepare("VACUUM INTO ?1");
        compact.bindText(1, name);
        compact.run();
        writeMetadata(place, metadata);
        NSError failure;
        if (!NSFileManager::synchronizeItemsAtURLs(std::array{place}, &failure))
            throw StoreFailure(failure);
    });
    if (!isDone)
        removeWithJournal(place);
    return isDone;
}

} // namespace tarn
