#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"

#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteFunctions.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t kCachedStatements = 200;
constexpr std::uint32_t kLongestWait = 20; // milliseconds between two attempts

struct ResultMeaning {
    int result;
    StoreErrorCode code;
    std::string_view description;
};
constexpr std::array kMeanings{
    ResultMeaning{SQLITE_BUSY, StoreErrorBusy, "The store is in use by another process."},
    ResultMeaning{SQLITE_LOCKED, StoreErrorBusy, "The store is in use."},
    ResultMeaning{SQLITE_READONLY, StoreErrorReadOnly, "The store is read-only."},
    ResultMeaning{SQLITE_IOERR, StoreErrorIO, "The store could not be read or written."},
    ResultMeaning{SQLITE_CORRUPT, StoreErrorCorrupt, "The store is damaged."},
    ResultMeaning{SQLITE_FULL, StoreErrorFull, "There is no space left for the store."},
    ResultMeaning{SQLITE_CANTOPEN, StoreErrorCannotOpen, "The store could not be opened."},
    ResultMeaning{SQLITE_PERM, StoreErrorCannotOpen, "The store may not be opened."},
    ResultMeaning{SQLITE_NOTADB, StoreErrorNotAStore, "The file is not a store."},
};

StoreFailure failureOf(int result, int extendedResult, const char* detail, const std::string& doing)
{
    const std::string message = detail ? detail : sqlite3_errstr(result);
    if (extendedResult == SQLITE_READONLY_DBMOVED)
        return {StoreErrorReplaced, "the store was replaced; open it again"};
    for (const auto& meaning : kMeanings) {
        if (meaning.result != (result & 0xFF))
            continue;
        // Which statement came upon it first says nothing about the file.
        if (meaning.code == StoreErrorNotAStore)
            return {meaning.code, meaning.description};
        return {meaning.code, std::string(meaning.description) + " (" + doing + ": " + message + ")"};
    }
    return {StoreErrorGeneric, "The store failed. (" + doing + ": " + message + ")"};
}

bool isWord(std::string_view text)
{
    constexpr std::string_view kAllowed = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";
    return !text.empty() && text.find_first_not_of(kAllowed) == std::string_view::npos;
}

/// Statistics of memory take a lock at every allocation, which makes two threads as slow as one.
void prepareLibrary()
{
    static std::once_flag once;
    std::call_once(once, [] { sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0); });
}

} // namespace

// Statement -----------------------------------------------------------------------------------------------------------

SQLiteStatement::SQLiteStatement(SQLiteConnection& connection, sqlite3_stmt* statement, SQLiteCachedStatement* cached)
    : connection_(&connection), statement_(statement), cached_(cached)
{
    ++connection_->inUse_;
}

SQLiteStatement::SQLiteStatement(SQLiteStatement&& other) noexcept
    : connection_(other.connection_), statement_(std::exchange(other.statement_, nullptr)),
      cached_(std::exchange(other.cached_, nullptr))
{ }

SQLiteStatement::~SQLiteStatement()
{
    if (!statement_)
        return;
    --connection_->inUse_;
    if (!cached_) {
        sqlite3_finalize(statement_);
        return;
    }
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
    cached_->inUse = false;
}

void SQLiteStatement::check(int result) const
{
    if (result != SQLITE_OK)
        connection_->fail(result, sqlite3_sql(statement_));
}

int SQLiteStatement::parameterCount() const
{
    return sqlite3_bind_parameter_count(statement_);
}

void SQLiteStatement::bindNull(int parameter)
{
    check(sqlite3_bind_null(statement_, parameter));
}

void SQLiteStatement::bindInteger(int parameter, std::int64_t value)
{
    check(sqlite3_bind_int64(statement_, parameter, value));
}

void SQLiteStatement::bindDouble(int parameter, double value)
{
    check(sqlite3_bind_double(statement_, parameter, value));
}

void SQLiteStatement::bindText(int parameter, std::string_view text)
{
    // A null pointer would bind NULL, not an empty text.
    const char* bytes = text.data() ? text.data() : "";
    check(sqlite3_bind_text64(statement_, parameter, bytes, text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void SQLiteStatement::bindBlob(int parameter, std::string_view bytes)
{
    const char* start = bytes.data() ? bytes.data() : "";
    check(sqlite3_bind_blob64(statement_, parameter, start, bytes.size(), SQLITE_STATIC));
}

void SQLiteStatement::bindPointer(int parameter, const void* pointer, const char* type)
{
    // The interface takes a mutable pointer; our functions only read through it.
    check(sqlite3_bind_pointer(statement_, parameter, const_cast<void*>(pointer), type, nullptr));
}

bool SQLiteStatement::step()
{
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW)
        return true;
    if (result != SQLITE_DONE)
        connection_->fail(result, sqlite3_sql(statement_));
    return false;
}

void SQLiteStatement::run()
{
    while (step()) { }
    sqlite3_reset(statement_);
}

void SQLiteStatement::reset() noexcept
{
    sqlite3_reset(statement_);
}

bool SQLiteStatement::isNull(int column) const noexcept
{
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

std::int64_t SQLiteStatement::integer(int column) const noexcept
{
    return sqlite3_column_int64(statement_, column);
}

double SQLiteStatement::floating(int column) const noexcept
{
    return sqlite3_column_double(statement_, column);
}

std::string_view SQLiteStatement::bytes(int column) const noexcept
{
    const void* start = sqlite3_column_blob(statement_, column);
    const int length = sqlite3_column_bytes(statement_, column);
    if (!start || length <= 0)
        return {};
    return {static_cast<const char*>(start), static_cast<std::size_t>(length)};
}

// Connection ----------------------------------------------------------------------------------------------------------

SQLiteConnection::SQLiteConnection(const std::filesystem::path& file, const SQLiteConnectionOptions& options)
    : file_(file), options_(options)
{
    prepareLibrary();
    const int flags = SQLITE_OPEN_READWRITE | (options.create ? SQLITE_OPEN_CREATE : 0) | SQLITE_OPEN_NOMUTEX
        | SQLITE_OPEN_EXRESCODE;
    if (file.empty())
        throw StoreFailure(StoreErrorCannotOpen, "A store needs the name of a file.");
    // SQLite would take ":memory:" for a store in memory and "file:" for the beginning of a URI, but no absolute path.
    const int result = sqlite3_open_v2(std::filesystem::absolute(file).c_str(), &handle_, flags, nullptr);
    try {
        if (result != SQLITE_OK)
            fail(result, "open");
        configure();
    } catch (...) {
        sqlite3_close_v2(handle_);
        throw;
    }
}

SQLiteConnection::~SQLiteConnection()
{
    for (const auto& cached : cache_)
        sqlite3_finalize(cached.statement);
    sqlite3_close_v2(handle_);
}

void SQLiteConnection::configure()
{
    jitter_ = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(handle_) >> 4) | 1U;
    sqlite3_busy_handler(handle_, &SQLiteConnection::waitForLock, this);
    registerSQLiteFunctions(*this);
    // synchronous FULL would not sync the folder after the journal is gone: a power cut could undo a reported commit.
    // A spilling cache takes the exclusive lock in the middle of a transaction and shuts readers out until its end.
    execute("PRAGMA synchronous = EXTRA;"
            "PRAGMA secure_delete = ON;"
            "PRAGMA foreign_keys = ON;"
            "PRAGMA cache_size = -12000;"
            "PRAGMA cache_spill = 16384;"
            "PRAGMA temp_store = MEMORY;"
            "PRAGMA mmap_size = 0;"
            "PRAGMA trusted_schema = OFF;");
    // Triggers do for other programs what our own writers do, who are faster at it: a statement with triggers keeps
    // what it takes to undo it alone.
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    for (const auto& [name, value] : options_.pragmas) {
        if (!isWord(name) || !isWord(value))
            throw StoreFailure(StoreErrorGeneric, "\"" + name + "\" is no setting of a store.");
        execute("PRAGMA " + name + " = " + value + ";");
    }
    if (options_.queryOnly)
        execute("PRAGMA query_only = ON;");
}

int SQLiteConnection::waitForLock(void* connection, int attempt)
{
    auto& self = *static_cast<SQLiteConnection*>(connection);
    if (!self.waits_)
        return 0;
    const auto now = std::chrono::steady_clock::now();
    if (attempt == 0)
        self.waitingSince_ = now;
    const auto waited = std::chrono::duration_cast<std::chrono::milliseconds>(now - self.waitingSince_);
    if (waited >= self.options_.patience)
        return 0;
    if (self.options_.whileWaiting && !self.options_.whileWaiting(waited))
        return 0;
    self.jitter_ ^= self.jitter_ << 13; // xorshift: waiting connections must not move in step
    self.jitter_ ^= self.jitter_ >> 17;
    self.jitter_ ^= self.jitter_ << 5;
    const std::uint32_t longest = std::min<std::uint32_t>(kLongestWait, 2U + 2U * static_cast<std::uint32_t>(attempt));
    std::this_thread::sleep_for(std::chrono::milliseconds(1 + self.jitter_ % longest));
    return 1;
}

void SQLiteConnection::fail(int result, std::string_view doing)
{
    const char* detail = handle_ ? sqlite3_errmsg(handle_) : nullptr;
    const int extended = handle_ ? sqlite3_extended_errcode(handle_) : result;
    const StoreFailure failure = failureOf(result, extended, detail, std::string(doing.substr(0, 200)));
    if (handle_ && !isInTransaction())
        failureOutsideOfTransaction_ = failure.error();
    throw StoreFailure(failure);
}

sqlite3_stmt* SQLiteConnection::prepareNew(std::string_view sql)
{
    sqlite3_stmt* statement = nullptr;
    const int result = sqlite3_prepare_v3(
        handle_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result != SQLITE_OK)
        fail(result, sql);
    return statement;
}

SQLiteStatement SQLiteConnection::prepare(std::string_view sql)
{
    const auto found = cachedByText_.find(sql);
    if (found == cachedByText_.end()) {
        forgetOldStatements();
        sqlite3_stmt* statement = prepareNew(sql);
        cache_.push_front({std::string(sql), statement, true});
        cachedByText_.emplace(cache_.front().sql, cache_.begin());
        return {*this, statement, &cache_.front()};
    }
    const auto cached = found->second;
    if (cached->inUse)
        return {*this, prepareNew(sql), nullptr};
    cached->inUse = true;
    cache_.splice(cache_.begin(), cache_, cached);
    return {*this, cached->statement, &*cached};
}

void SQLiteConnection::forgetOldStatements() noexcept
{
    if (cache_.size() < kCachedStatements)
        return;
    for (auto oldest = std::prev(cache_.end()); oldest != cache_.begin(); --oldest) {
        if (oldest->inUse)
            continue;
        cachedByText_.erase(oldest->sql);
        sqlite3_finalize(oldest->statement);
        cache_.erase(oldest);
        return;
    }
}

void SQLiteConnection::execute(const std::string& sql)
{
    const int result = sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        fail(result, sql);
}

std::int64_t SQLiteConnection::integerOf(std::string_view sql)
{
    SQLiteStatement statement = prepare(sql);
    return statement.step() ? statement.integer(0) : 0;
}

std::int64_t SQLiteConnection::changedRowCount() const noexcept
{
    return sqlite3_changes64(handle_);
}

bool SQLiteConnection::isInTransaction() const noexcept
{
    return sqlite3_get_autocommit(handle_) == 0;
}

bool SQLiteConnection::isWriting() const noexcept
{
    return sqlite3_txn_state(handle_, "main") == SQLITE_TXN_WRITE;
}

std::optional<std::int64_t> SQLiteConnection::dataVersionAtOnce()
{
    const WithoutWaiting impatience(*this);
    try {
        return integerOf("PRAGMA data_version");
    } catch (const StoreFailure&) {
        return std::nullopt; // it is asked again
    }
}

bool SQLiteConnection::hasMetCommit() noexcept
{
    unsigned data = 0;
    sqlite3_file_control(handle_, "main", SQLITE_FCNTL_DATA_VERSION, &data);
    return std::exchange(seenData_, data) != data;
}

bool SQLiteConnection::hasMovedFile() const noexcept
{
    int hasMoved = 0;
    return sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &hasMoved) == SQLITE_OK && hasMoved != 0;
}

bool SQLiteConnection::isReadOnly() const noexcept
{
    return sqlite3_db_readonly(handle_, "main") == 1;
}

} // namespace tarn
