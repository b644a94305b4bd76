#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <list>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

struct sqlite3;
struct sqlite3_stmt;

namespace tarn {

class SQLiteConnection;

/// A prepared statement that its connection keeps.
struct SQLiteCachedStatement {
    std::string sql;
    sqlite3_stmt* statement = nullptr;
    bool inUse = false;
};

/// A prepared statement on loan from its connection.
///
/// Leaving scope resets it, clears its bindings and gives it back. Parameters count from 1, columns from 0. What fails
/// throws a `StoreFailure`.
class SQLiteStatement {
public:
    SQLiteStatement(SQLiteStatement&& other) noexcept;
    SQLiteStatement& operator=(SQLiteStatement&&) = delete;
    ~SQLiteStatement();

    /// How many parameters the text names.
    int parameterCount() const;
    void bindNull(int parameter);
    void bindInteger(int parameter, std::int64_t value);
    void bindDouble(int parameter, double value);
    /// The bytes must stay in place until the statement is reset.
    void bindText(int parameter, std::string_view text);
    void bindBlob(int parameter, std::string_view bytes);
    /// An object for one of our own functions, which asks for it by `type`; borrowed like bytes.
    void bindPointer(int parameter, const void* pointer, const char* type);

    /// Goes to the next row; false after the last one.
    bool step();
    /// Steps a statement that gives no rows.
    void run();
    /// Makes ready for another round; bindings stay.
    void reset() noexcept;

    bool isNull(int column) const noexcept;
    std::int64_t integer(int column) const noexcept;
    double floating(int column) const noexcept;
    /// Text or blob; valid until the next step.
    std::string_view bytes(int column) const noexcept;

private:
    friend class SQLiteConnection;
    SQLiteStatement(SQLiteConnection& connection, sqlite3_stmt* statement, SQLiteCachedStatement* cached);

    void check(int result) const;

    SQLiteConnection* connection_;
    sqlite3_stmt* statement_;
    SQLiteCachedStatement* cached_; ///< null for a twin, which goes when it is done
};

/// How a connection is opened.
struct SQLiteConnectionOptions {
    bool create = false;                          ///< makes an empty file where there is none
    bool queryOnly = false;                       ///< refuses writes, but may bring back an unfinished journal
    std::chrono::milliseconds patience{30'000};   ///< how long it waits for locks of others
    std::map<std::string, std::string> pragmas{}; ///< set last; names and values are words
    std::function<bool(std::chrono::milliseconds)> whileWaiting{}; ///< see `StoreOptions`
};

/// One connection to a store file, set up as every connection of a store is. One thread at a time.
///
/// What fails throws a `StoreFailure` whose code is one of StoreErrors.h.
class SQLiteConnection {
public:
    SQLiteConnection(const std::filesystem::path& file, const SQLiteConnectionOptions& options);
    ~SQLiteConnection();
    SQLiteConnection(const SQLiteConnection&) = delete;
    SQLiteConnection& operator=(const SQLiteConnection&) = delete;

    /// Prepared once for each text and kept; an equal statement that is in use gets a twin.
    SQLiteStatement prepare(std::string_view sql);
    /// Runs statements that give no rows, or whose rows do not matter.
    void execute(const std::string& sql);
    /// The first column of the first row; 0 without a row.
    std::int64_t integerOf(std::string_view sql);

    /// Rows that the last INSERT, UPDATE or DELETE changed.
    std::int64_t changedRowCount() const noexcept;
    bool isInTransaction() const noexcept;
    /// Whether it holds the lock for writing.
    bool isWriting() const noexcept;
    /// Whether the system lets this process only read the file. SQLite would begin a "write" transaction all the same.
    bool isReadOnly() const noexcept;
    /// Whether the file has another name by now, or none: another one may have taken its place.
    bool hasMovedFile() const noexcept;
    /// So often may migrations exchange the file of a store while somebody waits for its lock, who then opens it again.
    static constexpr int mostReplacements = 16;
    /// "PRAGMA data_version", which moves for commits of others; none where that would mean to wait.
    std::optional<std::int64_t> dataVersionAtOnce();
    /// Whether a commit came in below what this connection has read since it was last asked.
    bool hasMetCommit() noexcept;
    /// While one lives, what meets a lock fails at once.
    class WithoutWaiting {
    public:
        explicit WithoutWaiting(SQLiteConnection& connection) : connection_(connection) { connection_.waits_ = false; }
        ~WithoutWaiting() { connection_.waits_ = true; }
        WithoutWaiting(const WithoutWaiting&) = delete;
        WithoutWaiting& operator=(const WithoutWaiting&) = delete;

    private:
        SQLiteConnection& connection_;
    };
    /// How many prepared statements are on loan.
    std::size_t statementsInUse() const noexcept { return inUse_; }

    sqlite3* handle() const noexcept { return handle_; }
    /// The last result of this connection as a failure.
    [[noreturn]] void fail(int result, std::string_view doing);
    /// What a transaction came to its end by when SQLite rolled it back by itself. Of no meaning while one is open.
    const std::optional<NSError>& failureOutsideOfTransaction() const noexcept { return failureOutsideOfTransaction_; }

private:
    friend class SQLiteStatement;
    using Cache = std::list<SQLiteCachedStatement>;

    static int waitForLock(void* connection, int attempt);
    void configure();
    sqlite3_stmt* prepareNew(std::string_view sql);
    void forgetOldStatements() noexcept;

    std::filesystem::path file_;
    SQLiteConnectionOptions options_;
    sqlite3* handle_ = nullptr;
    std::chrono::steady_clock::time_point waitingSince_{};
    std::uint32_t jitter_ = 0;
    std::size_t inUse_ = 0;
    bool waits_ = true;
    unsigned seenData_ = 0;
    std::optional<NSError> failureOutsideOfTransaction_; ///< since the last transaction began
    Cache cache_;                                        ///< the latest used first
    std::unordered_map<std::string_view, Cache::iterator> cachedByText_;
};

} // namespace tarn
