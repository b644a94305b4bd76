#pragma once

namespace tarn {

/// While it lives, SQLite's files are those of a disk whose k-th write, and all after it, fail. One at a time.
class FaultyFilesystem {
public:
    /// `result` is the failure: SQLITE_FULL, SQLITE_IOERR_WRITE, ...
    FaultyFilesystem(int failingWrite, int result);
    ~FaultyFilesystem();
    FaultyFilesystem(const FaultyFilesystem&) = delete;
    FaultyFilesystem& operator=(const FaultyFilesystem&) = delete;
    /// Starts counting anew: the k-th write from now on fails, and all after it.
    void failFrom(int failingWrite);
};

} // namespace tarn
