#include "tarnmodel/platform/coredata/StoreFileCopy.h"

#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"

#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Thrown where the caller gave up, who has an error of its own.
struct GivenUp { };

void copyHeldStore(const fs::path& store, const fs::path& copy, const std::function<bool()>& underLock,
    const std::function<bool(std::chrono::milliseconds)>& whileWaiting)
{
    // The copy is made in a transaction of its own connection, which begins and ends within the statement; what nobody
    // can write meanwhile is the same before and after it.
    SQLiteConnection holder(store, {.whileWaiting = whileWaiting});
    const WriteTransaction lock(holder, WriteTransaction::Lock::Immediate);
    SQLiteConnection reader(store, {});
    SQLiteStatement statement = reader.prepare("VACUUM INTO ?");
    statement.bindText(1, copy.native());
    statement.run();
    if (underLock && !underLock())
        throw GivenUp();
}

} // namespace

bool copyStoreFile(const fs::path& store, const fs::path& copy, const std::function<bool()>& underLock,
    const std::function<bool(std::chrono::milliseconds)>& whileWaiting, NSError* error)
{
    std::error_code failure;
    if (fs::exists(copy, failure)) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorIO, copy.string() + " is there already"));
        return false;
    }
    bool isGivenUp = false;
    const bool isCopied = reportingFailure(error, [&] {
        try {
            copyHeldStore(store, copy, underLock, whileWaiting);
        } catch (const GivenUp&) {
            isGivenUp = true;
        }
    }) && !isGivenUp;
    if (!isCopied)
        fs::remove(copy, failure);
    return isCopied;
}

} // namespace tarn
