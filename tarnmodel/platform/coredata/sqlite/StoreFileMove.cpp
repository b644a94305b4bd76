#include "tarnmodel/platform/coredata/StoreFileMove.h"

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"

#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

fs::path journalOf(const fs::path& file)
{
    fs::path journal = file;
    journal += "-journal";
    return journal;
}

void renameFile(const fs::path& source, const fs::path& destination)
{
    std::error_code failure;
    fs::rename(source, destination, failure);
    if (failure)
        throw StoreFailure(StoreErrorIO, source.string() + " could not be moved: " + failure.message());
}

} // namespace

bool moveStoreFile(const fs::path& source, const fs::path& destination, NSError* error)
{
    return reportingFailure(error, [&] {
        // Another mode of journal would keep parts of the store in other files.
        SQLiteConnection connection(source, {.pragmas = {{"journal_mode", "DELETE"}}});
        const WriteTransaction lock(connection, WriteTransaction::Lock::Exclusive);
        if (fs::exists(destination) || fs::exists(journalOf(destination)))
            throw StoreFailure(StoreErrorIO, destination.string() + " is there already");
        // The journal goes first: a store that were made under the old name must never meet it.
        if (fs::exists(journalOf(source)))
            renameFile(journalOf(source), journalOf(destination));
        renameFile(source, destination);
    });
}

} // namespace tarn
