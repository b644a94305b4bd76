#include "tarnmodel/platform/coredata/StoreFileCompaction.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <array>
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
        NSError failure;
        // For its owner alone from the beginning; SQLite takes an empty file for its own.
        if (!NSFileManager::createFileAtURL(place, NSData(), &failure))
            throw StoreFailure(failure);
        const std::string name = fs::absolute(place).string();
        SQLiteStatement compact = store.connection().prepare("VACUUM INTO ?1");
        compact.bindText(1, name);
        compact.run();
        writeMetadata(place, metadata);
        if (!NSFileManager::synchronizeItemsAtURLs(std::array{place}, &failure))
            throw StoreFailure(failure);
    });
    if (!isDone)
        removeWithJournal(place);
    return isDone;
}

} // namespace tarn
