#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace tarn {

class SQLiteConnection;
class StoreFailure;

/// The file of a store under the exclusive lock of one connection, which does all the reading: from when it is held to
/// its end no other process or thread reads or writes the store. For exchanging a store's file for another.
///
/// SQLite's locks belong to the process: while one is held, no file descriptor of the store may be opened and closed
/// beside SQLite's own, or the lock would be gone. One thread.
class HeldStoreFile {
public:
    /// Takes the lock, which brings back what an unfinished transaction left. Waits up to 30 seconds for others; see
    /// `StoreOptions::whileWaiting`. Null and an error when it cannot be had or the file is no store.
    static std::unique_ptr<HeldStoreFile> hold(const std::filesystem::path& file,
        const std::function<bool(std::chrono::milliseconds)>& whileWaiting = {}, NSError* error = nullptr);
    /// Gives the lock back. Who waited for it, and has opened the file before it was replaced, meets
    /// `StoreErrorReplaced`.
    ~HeldStoreFile();
    HeldStoreFile(const HeldStoreFile&) = delete;
    HeldStoreFile& operator=(const HeldStoreFile&) = delete;

    /// Where the file really lies: links are followed.
    const std::filesystem::path& file() const noexcept { return file_; }
    /// As it was read under the lock.
    const std::map<std::string, std::string>& metadata() const noexcept { return metadata_; }
    /// In bytes.
    std::uintmax_t size() const noexcept { return size_; }

    /// Puts another file in the store's place; the store stays as `backup`, which must not exist. There is no moment
    /// without a store: first the store gets a second name (on another file system: a copy, read through the connection
    /// that holds the lock), then one renaming puts the successor over it. The successor, the copy and the folders are
    /// on disk when it comes back with true. Until then the successor's lock is held as well. It gets the store's
    /// permissions.
    ///
    /// False and an error when a step fails; the store is then where it was, and `backup` is gone again. (When neither
    /// the store's folder can be made durable nor the old store be put back, the new one stays and the error says where
    /// the old one lies.) `successor` is a store in the store's folder that no connection has open.
    bool replaceWith(const std::filesystem::path& successor, const std::filesystem::path& backup, NSError* error);

    /// For the store's own rooms: the connection, whose main database is the store. It makes no files, so what is to
    /// be attached has to be there (and is let go of before `replaceWith`).
    SQLiteConnection& connection() noexcept { return *connection_; }

private:
    explicit HeldStoreFile(std::filesystem::path file);
    bool lock(const std::function<bool(std::chrono::milliseconds)>& whileWaiting);
    void keepAs(const std::filesystem::path& backup);
    void putBack(
        const std::filesystem::path& backup, const std::filesystem::path& freeName, const StoreFailure& reason);

    std::filesystem::path file_;
    std::unique_ptr<SQLiteConnection> connection_;
    std::map<std::string, std::string> metadata_;
    std::uintmax_t size_ = 0;
};

} // namespace tarn
