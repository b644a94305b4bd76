#include "platform/coredata/SQLiteStore.h"

#include "platform/coredata/SQLiteFetch.h"
#include "platform/coredata/SQLiteStoreFile.h"
#include "platform/coredata/SQLiteTransaction.h"
#include "platform/coredata/StoreFailure.h"
#include "platform/foundation/Folding.h"

#include <algorithm>
#include <charconv>

namespace tarn {

namespace {

constexpr std::string_view kPatiencePragma = "busy_timeout";
/// Collecting and sorting so many rows costs more than looking at them one by one until a list is full.
constexpr std::int64_t kLargeSet = 2000;

/// How many rows a SELECT gives; at most `limit` are counted.
std::int64_t countUpTo(SQLiteConnection& connection, const SQLText& select, std::int64_t limit)
{
    SQLiteStatement statement
        = connection.prepare("SELECT count(*) FROM (" + select.sql + " LIMIT " + std::to_string(limit) + ")");
    bindAll(statement, select.bindings);
    return statement.step() ? statement.integer(0) : 0;
}

/// The settings of all connections; "busy_timeout" (milliseconds) is how long our own handler waits.
SQLiteConnectionOptions connectionOptions(const StoreOptions& options)
{
    SQLiteConnectionOptions made;
    made.create = options.createIfMissing && !options.readOnly;
    made.queryOnly = options.readOnly;
    made.pragmas = options.pragmas;
    const auto patience = made.pragmas.find(std::string(kPatiencePragma));
    if (patience != made.pragmas.end()) {
        long milliseconds = 0;
        const std::string& text = patience->second;
        std::from_chars(text.data(), text.data() + text.size(), milliseconds);
        made.patience = std::chrono::milliseconds(milliseconds);
        made.pragmas.erase(patience);
    }
    if (options.readOnly)
        made.pragmas.erase("journal_mode");
    return made;
}

} // namespace

// Opening -------------------------------------------------------------------------------------------------------------

SQLiteStore::SQLiteStore(
    std::shared_ptr<const NSManagedObjectModel> model, const std::filesystem::path& file, const StoreOptions& options)
    : model_(std::move(model)), file_(file), readOnly_(options.readOnly), schema_(*model_), selects_(schema_, *model_),
      pool_(std::make_unique<ConnectionPool>(file, connectionOptions(options)))
{
    openFile(options.createIfMissing && !options.readOnly);
}

void SQLiteStore::openFile(bool createIfMissing)
{
    SQLiteConnection& connection = pool_->writer();
    readOnly_ = readOnly_ || connection.isReadOnly();
    StoreFileContents contents = contentsOfStoreFile(connection);
    if (contents == StoreFileContents::Nothing && createIfMissing) {
        createStoreTables(connection, schema_, *model_);
        contents = contentsOfStoreFile(connection);
    }
    if (contents != StoreFileContents::Store)
        throw StoreFailure(StoreErrorNotAStore, "The file is not a store.");
    const StoreMetadata metadata = readStoreMetadata(connection);
    checkMetadata(metadata);
    identity_ = &StoreIdentity::forUUID(metadata.at(std::string(StoreUUIDKey)));
    refreshShadows(metadata);
    dataVersion_ = static_cast<std::uint64_t>(connection.integerOf("PRAGMA data_version"));
}

void SQLiteStore::checkMetadata(const StoreMetadata& metadata)
{
    const auto format = metadata.find(std::string(StoreFormatVersionKey));
    if (format == metadata.end() || !metadata.contains(std::string(StoreUUIDKey)))
        throw StoreFailure(StoreErrorNotAStore, "The file is not a store.");
    if (format->second != currentStoreFormatVersion || !isMetadataOfModel(*model_, metadata))
        throw StoreFailure(StoreErrorIncompatible, "The store was written with another version of the model.");
}

void SQLiteStore::refreshShadows(const StoreMetadata& metadata)
{
    SQLiteConnection& connection = pool_->writer();
    const auto version = metadata.find(std::string(StoreFoldingVersionKey));
    const bool isCurrent = version != metadata.end() && version->second == std::to_string(foldingVersion());
    if (!isCurrent && readOnly_)
        usesShadows_ = false;
    else if (!isCurrent)
        foldAgain(connection, schema_);
    else if (!readOnly_ && hasStaleShadows(connection, schema_))
        foldStale(connection, schema_);
}

// Reading -------------------------------------------------------------------------------------------------------------

SQLGenerator SQLiteStore::generator(const StoreFetch& fetch, SQLiteConnection& connection) const
{
    SQLConditionOptions options;
    options.store = identity_;
    options.usesShadows = usesShadows_;
    options.isLargeSet
        = [&connection](const SQLText& select) { return countUpTo(connection, select, kLargeSet) >= kLargeSet; };
    options.walksOrder = fetch.limit > 0 && !fetch.sortDescriptors.empty();
    if (options.walksOrder)
        options.firstSortKey = fetch.sortDescriptors.front().key;
    return {selects_, std::move(options)};
}

bool SQLiteStore::fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        const SQLiteRowReader reader(*identity_, selects_, access.connection());
        const SQLGenerator generator = this->generator(fetch, access.connection());
        rows = SQLiteFetch(fetch, selects_, generator, reader, access.connection()).rows();
    });
}

bool SQLiteStore::count(const StoreFetch& fetch, std::size_t& count, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        const SQLiteRowReader reader(*identity_, selects_, access.connection());
        const SQLGenerator generator = this->generator(fetch, access.connection());
        count = SQLiteFetch(fetch, selects_, generator, reader, access.connection()).count();
    });
}

bool SQLiteStore::rowsForKeys(const NSEntityDescription& entity, std::span<const std::int64_t> keys,
    RowContents contents, std::vector<StoreRow>& rows, NSError* error)
{
    return reportingFailure(error, [&] {
        rows.clear();
        if (keys.empty())
            return;
        const ReadAccess access = pool_->read();
        selects_.appendRows(access.connection(), entity, keys, contents, rows);
    });
}

bool SQLiteStore::relatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key, std::vector<RelatedKey>& related, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        related = selects_.related(access.connection(), relationship, key);
    });
}

bool SQLiteStore::countRelated(
    const NSRelationshipDescription& relationship, std::int64_t key, std::size_t& count, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        count = selects_.countOfRelated(access.connection(), relationship, key);
    });
}

std::uint64_t SQLiteStore::dataVersion()
{
    // The writing connection's version moves for the commits of others only. While a transaction is open nobody else
    // can commit, so the last answer still holds.
    if (!pool_->turn().takeAtOnce())
        return dataVersion_;
    reportingFailure(
        nullptr, [&] { dataVersion_ = static_cast<std::uint64_t>(pool_->writer().integerOf("PRAGMA data_version")); });
    pool_->turn().giveBack();
    return dataVersion_;
}

std::string SQLiteStore::explain(const StoreFetch& fetch)
{
    std::string text;
    NSError error;
    const bool explained = reportingFailure(&error, [&] {
        const ReadAccess access = pool_->read();
        const SQLiteRowReader reader(*identity_, selects_, access.connection());
        const SQLGenerator generator = this->generator(fetch, access.connection());
        text = SQLiteFetch(fetch, selects_, generator, reader, access.connection()).explain();
    });
    return explained ? text : error.localizedDescription();
}

// Writing -------------------------------------------------------------------------------------------------------------

void SQLiteStore::beginWriting()
{
    if (readOnly_)
        throw StoreFailure(StoreErrorReadOnly, "The store is read-only.");
    pool_->checkFileIsTheSame();
    if (!pool_->turn().take(pool_->patience()))
        throw StoreFailure(
            StoreErrorBusy, pool_->turn().isMine() ? "This thread has a transaction already." : "The store is in use.");
    try {
        reservedInTransaction_.clear();
        pool_->writer().execute("BEGIN IMMEDIATE");
        // Another process may have swapped the file while this one waited for the lock.
        pool_->checkFileIsTheSame();
    } catch (...) {
        pool_->writer().rollBack();
        pool_->turn().giveBack();
        throw;
    }
}

void SQLiteStore::endWriting() noexcept
{
    pool_->turn().giveBack();
}

std::unique_ptr<StoreTransaction> SQLiteStore::beginTransaction(NSError* error)
{
    std::unique_ptr<StoreTransaction> transaction;
    reportingFailure(error, [&] { transaction = std::make_unique<SQLiteTransaction>(*this); });
    return transaction;
}

void SQLiteStore::write(const std::function<void(SQLiteConnection&)>& work)
{
    SQLiteConnection& connection = pool_->writer();
    if (pool_->turn().isMine()) {
        work(connection);
        return;
    }
    beginWriting();
    try {
        work(connection);
        connection.execute("COMMIT");
    } catch (...) {
        connection.rollBack();
        endWriting();
        throw;
    }
    endWriting();
}

// Keys ----------------------------------------------------------------------------------------------------------------

/// Rows that another program added without asking count too.
std::int64_t SQLiteStore::takeKeys(SQLiteConnection& connection, const NSEntityDescription& root, std::size_t count)
{
    const std::string table = quotedIdentifier(schema_.table(root).name);
    std::int64_t first = connection.integerOf("SELECT coalesce(max(\"pk\"), 0) + 1 FROM " + table);
    {
        SQLiteStatement statement = connection.prepare("SELECT \"nextKey\" FROM \"store_keys\" WHERE \"entity\" = ?1");
        statement.bindText(1, root.name());
        if (statement.step())
            first = std::max(first, statement.integer(0));
    }
    SQLiteStatement statement
        = connection.prepare("INSERT INTO \"store_keys\" (\"entity\", \"nextKey\") VALUES (?1, ?2) "
                             "ON CONFLICT (\"entity\") DO UPDATE SET \"nextKey\" = ?2");
    statement.bindText(1, root.name());
    statement.bindInteger(2, first + static_cast<std::int64_t>(count));
    statement.run();
    return first;
}

bool SQLiteStore::reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error)
{
    const NSEntityDescription& top = root.rootEntity();
    return reportingFailure(error, [&] {
        const bool joinsTransaction = pool_->turn().isMine();
        write([&](SQLiteConnection& connection) { first = takeKeys(connection, top, count); });
        if (joinsTransaction)
            reservedInTransaction_[&top] = first + static_cast<std::int64_t>(count);
    });
}

/// Keys that a transaction reserved are out in the world, in identifiers of records, also when it fails.
void SQLiteStore::keepReservedKeys() noexcept
{
    if (reservedInTransaction_.empty())
        return;
    SQLiteConnection& connection = pool_->writer();
    const bool kept = reportingFailure(nullptr, [&] {
        connection.execute("BEGIN IMMEDIATE");
        for (const auto& [root, next] : reservedInTransaction_) {
            SQLiteStatement statement
                = connection.prepare("INSERT INTO \"store_keys\" (\"entity\", \"nextKey\") VALUES (?1, ?2) "
                                     "ON CONFLICT (\"entity\") DO UPDATE SET \"nextKey\" = max(\"nextKey\", ?2)");
            statement.bindText(1, root->name());
            statement.bindInteger(2, next);
            statement.run();
        }
        connection.execute("COMMIT");
    });
    if (!kept)
        connection.rollBack();
    reservedInTransaction_.clear();
}

// Upkeep --------------------------------------------------------------------------------------------------------------

std::map<std::string, std::string> SQLiteStore::metadata(NSError* error)
{
    StoreMetadata metadata;
    reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        metadata = readStoreMetadata(access.connection());
    });
    return metadata;
}

bool SQLiteStore::setMetadataValue(std::string_view key, std::string_view value, NSError* error)
{
    return reportingFailure(
        error, [&] { write([&](SQLiteConnection& connection) { writeStoreMetadataValue(connection, key, value); }); });
}

bool SQLiteStore::checkIntegrity(std::vector<std::string>& problems, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        problems = problemsOfStoreFile(access.connection(), schema_);
    });
}

} // namespace tarn
