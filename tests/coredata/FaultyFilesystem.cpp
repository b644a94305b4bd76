#include "tests/coredata/FaultyFilesystem.h"

#include <atomic>
#include <sqlite3.h>

namespace tarn {

namespace {

std::atomic<int> writesUntilFailure = 0;
std::atomic<int> failure = SQLITE_FULL;

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
    if (--writesUntilFailure <= 0)
        return failure;
    return realFile(file)->pMethods->xWrite(realFile(file), bytes, count, offset);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size)
{
    return realFile(file)->pMethods->xTruncate(realFile(file), size);
}
int syncFile(sqlite3_file* file, int flags)
{
    return realFile(file)->pMethods->xSync(realFile(file), flags);
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

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* counting = static_cast<CountingFile*>(file);
    counting->real = reinterpret_cast<sqlite3_file*>(counting + 1);
    counting->pMethods = nullptr;
    const int result = realFilesystem()->xOpen(realFilesystem(), name, counting->real, flags, outFlags);
    if (counting->real->pMethods)
        counting->pMethods = &countingMethods();
    return result;
}

sqlite3_vfs& countingFilesystem()
{
    static sqlite3_vfs filesystem = [] {
        sqlite3_vfs made = *realFilesystem();
        made.zName = "tarn-test-faulty";
        made.pNext = nullptr;
        made.szOsFile = static_cast<int>(sizeof(CountingFile)) + realFilesystem()->szOsFile;
        made.xOpen = openFile;
        return made;
    }();
    return filesystem;
}

} // namespace

FaultyFilesystem::FaultyFilesystem(int failingWrite, int result)
{
    writesUntilFailure = failingWrite;
    failure = result;
    sqlite3_vfs_register(&countingFilesystem(), 1);
}

void FaultyFilesystem::failFrom(int failingWrite)
{
    writesUntilFailure = failingWrite;
}

FaultyFilesystem::~FaultyFilesystem()
{
    sqlite3_vfs_unregister(&countingFilesystem());
    sqlite3_vfs_register(realFilesystem(), 1);
}

} // namespace tarn
