#include "tests/support/FaultyDisk.h"

#include <array>
#include <atomic>
#include <csignal>
#include <sqlite3.h>
#include <unistd.h>

namespace tarn {

namespace {

std::atomic<int> counted = 0;
std::atomic<int> failed = 0;
std::atomic<int> faultyOperation = 0;
std::atomic<DiskFault> armedFault = DiskFault::None;
std::atomic<DiskFailure> armedFailure = DiskFailure::Broken;

/// What a system answers, by failure and operation; SQLITE_OK where it goes on working.
constexpr std::array<std::array<int, 5>, 3> kResults{{
    // CreateFile, Write, Sync, Truncate, Delete
    {SQLITE_OK, SQLITE_FULL, SQLITE_OK, SQLITE_OK, SQLITE_OK},
    {SQLITE_CANTOPEN, SQLITE_IOERR_WRITE, SQLITE_IOERR_FSYNC, SQLITE_IOERR_TRUNCATE, SQLITE_IOERR_DELETE},
    {SQLITE_READONLY_DIRECTORY, SQLITE_READONLY, SQLITE_OK, SQLITE_READONLY, SQLITE_IOERR_DELETE},
}};

int resultOf(DiskFailure failure, DiskOperation operation)
{
    return kResults[static_cast<std::size_t>(failure)][static_cast<std::size_t>(operation)];
}

[[noreturn]] void dieAtOnce()
{
    ::kill(::getpid(), SIGKILL);
    for (;;)
        ::pause();
}

/// Counts the operation, and does it with `work` unless it meets with the fault. `half` does a part of it.
template <typename Work, typename Half> int perform(DiskOperation operation, Work work, Half half)
{
    const int number = ++counted;
    const DiskFault fault = armedFault;
    const bool isStruck = number == faultyOperation || (fault == DiskFault::FailsFromNowOn && number > faultyOperation);
    if (!isStruck || fault == DiskFault::None)
        return work();
    if (fault == DiskFault::Fails || fault == DiskFault::FailsFromNowOn || fault == DiskFault::FailsThoughDone) {
        const int result = resultOf(armedFailure, operation);
        failed += result != SQLITE_OK;
        const int done = result == SQLITE_OK || fault == DiskFault::FailsThoughDone ? work() : result;
        return result == SQLITE_OK ? done : result;
    }
    if (fault == DiskFault::KilledHalfway)
        half();
    if (fault == DiskFault::KilledAfter)
        work();
    dieAtOnce();
}
template <typename Work> int perform(DiskOperation operation, Work work)
{
    return perform(operation, work, [] {});
}

/// A file of the real file system behind one that counts writes.
struct CountingFile : sqlite3_file {
    sqlite3_file* real;
};

sqlite3_vfs* realFilesystem()
{
    return static_cast<sqlite3_vfs*>(sqlite3_vfs_find("unix"));
}
sqlite3_file* realFile(sqlite3_file* file)
{
    return static_cast<CountingFile*>(file)->real;
}

int closeFile(sqlite3_file* file)
{
    return realFile(file)->pMethods->xClose(realFile(file));
}
int readFile(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset)
{
    return realFile(file)->pMethods->xRead(realFile(file), bytes, count, offset);
}
int writeFile(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset)
{
    sqlite3_file* real = realFile(file);
    return perform(
        DiskOperation::Write, [=] { return real->pMethods->xWrite(real, bytes, count, offset); },
        [=] { real->pMethods->xWrite(real, bytes, count / 2, offset); });
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size)
{
    sqlite3_file* real = realFile(file);
    return perform(DiskOperation::Truncate, [=] { return real->pMethods->xTruncate(real, size); });
}
int syncFile(sqlite3_file* file, int flags)
{
    sqlite3_file* real = realFile(file);
    return perform(DiskOperation::Sync, [=] { return real->pMethods->xSync(real, flags); });
}
int sizeOfFile(sqlite3_file* file, sqlite3_int64* size)
{
    return realFile(file)->pMethods->xFileSize(realFile(file), size);
}
int lockFile(sqlite3_file* file, int level)
{
    return realFile(file)->pMethods->xLock(realFile(file), level);
}
int unlockFile(sqlite3_file* file, int level)
{
    return realFile(file)->pMethods->xUnlock(realFile(file), level);
}
int checkReserved(sqlite3_file* file, int* result)
{
    return realFile(file)->pMethods->xCheckReservedLock(realFile(file), result);
}
int controlFile(sqlite3_file* file, int operation, void* argument)
{
    return realFile(file)->pMethods->xFileControl(realFile(file), operation, argument);
}
int sectorSize(sqlite3_file* file)
{
    return realFile(file)->pMethods->xSectorSize(realFile(file));
}
int characteristics(sqlite3_file* file)
{
    return realFile(file)->pMethods->xDeviceCharacteristics(realFile(file));
}

const sqlite3_io_methods& countingMethods()
{
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods made{};
        made.iVersion = 1;
        made.xClose = closeFile;
        made.xRead = readFile;
        made.xWrite = writeFile;
        made.xTruncate = truncateFile;
        made.xSync = syncFile;
        made.xFileSize = sizeOfFile;
        made.xLock = lockFile;
        made.xUnlock = unlockFile;
        made.xCheckReservedLock = checkReserved;
        made.xFileControl = controlFile;
        made.xSectorSize = sectorSize;
        made.xDeviceCharacteristics = characteristics;
        return made;
    }();
    return methods;
}

int openReally(const char* name, CountingFile* counting, int flags, int* outFlags)
{
    const int result = realFilesystem()->xOpen(realFilesystem(), name, counting->real, flags, outFlags);
    if (counting->real->pMethods)
        counting->pMethods = &countingMethods();
    return result;
}
int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* counting = static_cast<CountingFile*>(file);
    counting->real = reinterpret_cast<sqlite3_file*>(counting + 1);
    counting->pMethods = nullptr;
    const auto open = [=] { return openReally(name, counting, flags, outFlags); };
    // The one file that comes and goes with every transaction.
    const bool makesJournal = (flags & SQLITE_OPEN_MAIN_JOURNAL) && (flags & SQLITE_OPEN_CREATE);
    return makesJournal ? perform(DiskOperation::CreateFile, open) : open();
}
int deleteFile(sqlite3_vfs*, const char* name, int syncFolder)
{
    return perform(
        DiskOperation::Delete, [=] { return realFilesystem()->xDelete(realFilesystem(), name, syncFolder); });
}

sqlite3_vfs& countingFilesystem()
{
    static sqlite3_vfs filesystem = [] {
        sqlite3_vfs made = *realFilesystem();
        made.zName = "tarn-test-faulty";
        made.pNext = nullptr;
        made.szOsFile = static_cast<int>(sizeof(CountingFile)) + realFilesystem()->szOsFile;
        made.xOpen = openFile;
        made.xDelete = deleteFile;
        return made;
    }();
    return filesystem;
}

} // namespace

FaultyDisk::FaultyDisk()
{
    arm(0, DiskFault::None);
    sqlite3_vfs_register(&countingFilesystem(), 1);
}

FaultyDisk::~FaultyDisk()
{
    sqlite3_vfs_unregister(&countingFilesystem());
    sqlite3_vfs_register(realFilesystem(), 1);
}

void FaultyDisk::arm(int at, DiskFault fault, DiskFailure failure)
{
    armedFault = DiskFault::None;
    counted = failed = 0;
    faultyOperation = at;
    armedFailure = failure;
    armedFault = fault;
}

void FaultyDisk::heal()
{
    armedFault = DiskFault::None;
}

int FaultyDisk::operations() const
{
    return counted;
}

int FaultyDisk::failures() const
{
    return failed;
}

} // namespace tarn
