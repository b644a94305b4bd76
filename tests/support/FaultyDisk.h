#pragma once

#include <cstdint>

namespace tarn {

/// What SQLite asks of a disk, as far as it changes something there.
enum class DiskOperation : std::uint8_t { CreateFile, Write, Sync, Truncate, Delete };

/// How a disk refuses; each operation has its own result (see FaultyDisk.cpp), and some go on working.
enum class DiskFailure : std::uint8_t {
    Full,     ///< no space for what is new
    Broken,   ///< nothing works
    ReadOnly, ///< file and folder may not be written any more
};

/// What befalls an operation.
enum class DiskFault : std::uint8_t {
    None,
    KilledBefore,    ///< the process ends by SIGKILL, and nothing was done
    KilledHalfway,   ///< half of the bytes of a write are there; other operations: as before
    KilledAfter,     ///< all was done, but nobody hears of it
    Fails,           ///< this operation answers with a failure
    FailsFromNowOn,  ///< this one and all that come after it
    FailsThoughDone, ///< this one answers with a failure, but was done
};

/// While it lives, SQLite's files are those of a disk whose operations are counted, and of which one comes to harm. One
/// at a time; stores have to be opened after it was made and closed before it goes.
///
///     FaultyDisk disk;
///     disk.arm(3, DiskFault::Fails, DiskFailure::Full); // the third operation from now on
class FaultyDisk {
public:
    FaultyDisk();
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// Starts counting anew: operation number `at`, from 1, meets with the fault. `failure` is for those that fail.
    void arm(int at, DiskFault fault, DiskFailure failure = DiskFailure::Broken);
    /// The disk is sound again; counting goes on.
    void heal();
    /// Operations since `arm`.
    int operations() const;
    /// Operations since `arm` that failed.
    int failures() const;
};

} // namespace tarn
