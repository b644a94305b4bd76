#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

struct sqlite3;

namespace tarn::test {

/// A program on the store that knows nothing of the command line's lock file, as an application is one: it opens
/// the store of the command line by itself.
class ForeignWriter {
public:
    explicit ForeignWriter(std::filesystem::path database) : database_(std::move(database)) { }

    void changeText(std::string_view note, std::string_view text) const
    {
        changeTextWhileLocked(note, text, [] {});
    }
    /// Holds the lock of the database, runs the block, and then changes the text and saves.
    void changeTextWhileLocked(std::string_view note, std::string_view text, const std::function<void()>& block) const;

private:
    std::filesystem::path database_;
};

/// The lock of the database, held by the test: nobody reads it, nobody writes it.
class LockedDatabase {
public:
    explicit LockedDatabase(const std::filesystem::path& database);
    ~LockedDatabase();
    LockedDatabase(const LockedDatabase&) = delete;
    LockedDatabase& operator=(const LockedDatabase&) = delete;

private:
    sqlite3* connection_ = nullptr;
};

/// The lock file of the command line, held by the test.
class HeldLock {
public:
    explicit HeldLock(const std::filesystem::path& file);
    ~HeldLock();
    HeldLock(const HeldLock&) = delete;
    HeldLock& operator=(const HeldLock&) = delete;

private:
    int descriptor_;
};

} // namespace tarn::test
