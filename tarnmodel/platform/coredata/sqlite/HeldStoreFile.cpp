#include "tarnmodel/platform/coredata/HeldStoreFile.h"

#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <sqlite3.h>
#include <string_view>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

StoreFailure failureOf(const std::error_code& reason, const fs::path& file, std::string_view action)
{
    return StoreFailure(NSError(NSPOSIXErrorDomain, reason.value(),
        "\"" + file.string() + "\" cannot be " + std::string(action) + ": " + reason.message()));
}

void synchronize(const fs::path& fileOrFolder)
{
    NSError error;
    if (!NSFileManager::synchronizeItemsAtURLs(std::array{fileOrFolder}, &error))
        throw StoreFailure(error);
}

void giveAccess(const fs::path& file, const fs::path& store)
{
    NSError error;
    if (!NSFileManager::setAccess(file, store, &error))
        throw StoreFailure(error);
}

void moveFile(const fs::path& from, const fs::path& to)
{
    std::error_code failure;
    fs::rename(from, to, failure);
    if (failure)
        throw failureOf(failure, from, "moved to \"" + to.string() + "\"");
}

/// By name alone: what opened and closed a file with two names would drop the store's lock.
void removeName(const fs::path& file) noexcept
{
    std::error_code ignored;
    fs::remove(file, ignored);
}

bool meansThatNoLinkIsPossible(const std::error_code& failure)
{
    return failure == std::errc::cross_device_link || failure == std::errc::operation_not_permitted
        || failure == std::errc::operation_not_supported || failure == std::errc::function_not_supported
        || failure == std::errc::too_many_links;
}

sqlite3_file& fileOf(SQLiteConnection& connection)
{
    sqlite3_file* file = nullptr;
    const int result = sqlite3_file_control(connection.handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (result != SQLITE_OK || !file || !file->pMethods)
        connection.fail(result, "look at the file");
    return *file;
}

std::uintmax_t sizeOf(SQLiteConnection& connection)
{
    sqlite3_file& file = fileOf(connection);
    sqlite3_int64 size = 0;
    const int result = file.pMethods->xFileSize(&file, &size);
    if (result != SQLITE_OK)
        connection.fail(result, "measure the file");
    return static_cast<std::uintmax_t>(size);
}

/// Copies the file of a connection through its own handle: any other would drop its locks when it is closed.
void copyFileOf(SQLiteConnection& connection, const fs::path& destination)
{
    sqlite3_file& file = fileOf(connection);
    const std::uintmax_t size = sizeOf(connection);
    std::uintmax_t offset = 0;
    std::optional<int> failedRead;
    const auto nextPiece = [&](std::span<std::byte> buffer) -> std::optional<std::size_t> {
        const auto count = static_cast<std::size_t>(std::min<std::uintmax_t>(buffer.size(), size - offset));
        if (count == 0)
            return 0;
        const int result
            = file.pMethods->xRead(&file, buffer.data(), static_cast<int>(count), static_cast<sqlite3_int64>(offset));
        if (result != SQLITE_OK) {
            failedRead = result;
            return std::nullopt;
        }
        offset += count;
        return count;
    };
    NSError error;
    if (!NSFileManager::createFileAtURL(destination, nextPiece, &error)) {
        if (failedRead)
            throw StoreFailure(
                StoreErrorIO, std::string("The store could not be read: ") + sqlite3_errstr(*failedRead));
        throw StoreFailure(error);
    }
}

} // namespace

HeldStoreFile::HeldStoreFile(fs::path file) : file_(std::move(file)) { }

HeldStoreFile::~HeldStoreFile() = default;

std::unique_ptr<HeldStoreFile> HeldStoreFile::hold(
    const fs::path& file, const std::function<bool(std::chrono::milliseconds)>& whileWaiting, NSError* error)
{
    std::unique_ptr<HeldStoreFile> held;
    const bool isHeld = reportingFailure(error, [&] {
        std::error_code failure;
        const fs::path realFile = fs::canonical(file, failure);
        if (failure)
            throw StoreFailure(StoreErrorCannotOpen, failureOf(failure, file, "opened").error().localizedDescription());
        held.reset(new HeldStoreFile(realFile));
        for (int attempt = 1; !held->lock(whileWaiting); ++attempt)
            if (attempt == SQLiteConnection::mostReplacements)
                throw StoreFailure(StoreErrorReplaced, "the store was replaced; open it again");
    });
    return isHeld ? std::move(held) : nullptr;
}

/// False when another file took the store's place while the lock was waited for.
bool HeldStoreFile::lock(const std::function<bool(std::chrono::milliseconds)>& whileWaiting)
{
    SQLiteConnectionOptions options;
    options.pragmas = {{"journal_mode", "DELETE"}}; // another mode would keep parts of the store in other files
    options.whileWaiting = whileWaiting;
    connection_ = std::make_unique<SQLiteConnection>(file_, options);
    // Without the right to write SQLite takes the lock of a reader only.
    if (connection_->isReadOnly())
        throw StoreFailure(StoreErrorReadOnly, "The store is read-only.");
    WriteTransaction transaction(*connection_, WriteTransaction::Lock::Exclusive);
    if (connection_->hasMovedFile())
        return false;
    if (contentsOfStoreFile(*connection_) != StoreFileContents::Store)
        throw StoreFailure(StoreErrorNotAStore, "The file is not a store.");
    metadata_ = readStoreMetadata(*connection_);
    size_ = sizeOf(*connection_);
    // From here on the lock outlives each transaction. Any earlier, and an unfinished journal would stay as a file.
    connection_->execute("PRAGMA main.locking_mode = EXCLUSIVE");
    transaction.commit();
    return true;
}

// Exchanging the file -------------------------------------------------------------------------------------------------

bool HeldStoreFile::replaceWith(const fs::path& successor, const fs::path& backup, NSError* error)
{
    return reportingFailure(error, [&] {
        giveAccess(successor, file_);
        synchronize(successor);
        // Nobody writes to the new store either before its name is on disk: it might have to go again.
        SQLiteConnection next(successor, {.pragmas = {{"journal_mode", "DELETE"}}});
        const WriteTransaction nextLock(next, WriteTransaction::Lock::Exclusive);
        if (contentsOfStoreFile(next) != StoreFileContents::Store)
            throw StoreFailure(StoreErrorNotAStore, "\"" + successor.string() + "\" is not a store.");

        keepAs(backup);
        try {
            synchronize(backup.parent_path());
            moveFile(successor, file_);
        } catch (...) {
            removeName(backup);
            throw;
        }
        try {
            synchronize(file_.parent_path());
        } catch (const StoreFailure& failure) {
            putBack(backup, successor, failure);
            throw;
        }
    });
}

/// Gives the store a second name, or makes a copy where it can have none.
void HeldStoreFile::keepAs(const fs::path& backup)
{
    if (NSFileManager::fileExistsAtURL(backup))
        throw failureOf(std::make_error_code(std::errc::file_exists), backup, "made");
    std::error_code failure;
    fs::create_hard_link(file_, backup, failure);
    if (!failure)
        return;
    if (!meansThatNoLinkIsPossible(failure))
        throw failureOf(failure, backup, "made");
    copyFileOf(*connection_, backup);
    try {
        synchronize(backup);
    } catch (...) {
        removeName(backup);
        throw;
    }
}

/// The old store again, in the new one's place; both are whole, so it does not matter which a loss of power leaves.
void HeldStoreFile::putBack(const fs::path& backup, const fs::path& freeName, const StoreFailure& reason)
{
    std::error_code failure;
    fs::rename(backup, file_, failure);
    if (!failure)
        return;
    NSError error;
    if (NSFileManager::copyItemAtURL(backup, freeName, &error)) {
        fs::rename(freeName, file_, failure);
        removeName(failure ? freeName : backup);
        if (!failure)
            return;
    }
    throw StoreFailure(NSError(reason.error().domain(), reason.error().code(),
        reason.error().localizedDescription() + "; the new store is in its place, and the old one lies at \""
            + backup.string() + "\""));
}

} // namespace tarn
