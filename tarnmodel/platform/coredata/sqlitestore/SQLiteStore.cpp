#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/coredata/query/SQLiteFetch.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteTransaction.h"
#include "tarnmodel/platform/coredata/textsearch/CandidateWalk.h"
#include "tarnmodel/platform/coredata/textsearch/ParallelScan.h"
#include "tarnmodel/platform/coredata/textsearch/StoreSearch.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <limits>

namespace tarn {

namespace {

constexpr std::string_view kPatiencePragma = "busy_timeout";

/// The settings of all connections; "busy_timeout" (milliseconds) is how long our own handler waits.
SQLiteConnectionOptions connectionOptions(const StoreOptions& options)
{
    SQLiteConnectionOptions made;
    made.create = options.createIfMissing && !options.readOnly;
    made.queryOnly = options.readOnly;
    made.pragmas = options.pragmas;
    made.whileWaiting = options.whileWaiting;
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
      pool_(std::make_unique<ConnectionPool>(file, connectionOptions(options))), searchIndex_(schema_)
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
    refreshDerivedValues(metadata);
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

void SQLiteStore::refreshDerivedValues(const StoreMetadata& metadata)
{
    SQLiteConnection& connection = pool_->writer();
    const bool isCurrent = foldingVersionOf(metadata) == foldingVersion();
    if (readOnly_) {
        usesShadows_ = isCurrent;
        hasSearchIndex_ = hasSearchTables(connection, schema_);
    } else if (!isCurrent || !holdsAll(connection, schema_.laterStatements()) || hasStaleShadows(connection, schema_)) {
        write([&](SQLiteConnection& writer) {
            if (derivedValues_ == DerivedValues::Written)
                foldStale(writer, schema_);
        });
    }
}

/// Folded values and signatures are made by the newest version that writes to the store: whoever is newer makes those
/// of others stale, whoever is older leaves its own stale. At the beginning of a transaction that writes.
void SQLiteStore::followDerivedValues(SQLiteConnection& connection)
{
    const std::int64_t version = connection.integerOf("PRAGMA data_version");
    dataVersion_ = static_cast<std::uint64_t>(version);
    if (version == writerVersion_)
        return;
    if (!holdsAll(connection, schema_.laterStatements())) {
        addVersionTriggers(connection, schema_);
        if (!hasSearchTables(connection, schema_))
            addSearchTables(connection, schema_);
    }
    const int stored = foldingVersionOf(readStoreMetadata(connection));
    if (stored < foldingVersion()) {
        foldAgain(connection, schema_);
        forgetSignatures(connection, schema_);
    }
    const bool isOlder = stored > foldingVersion();
    derivedValues_ = isOlder ? DerivedValues::LeftStale : DerivedValues::Written;
    usesShadows_ = !isOlder;
    writerVersion_ = version;
}

// Reading -------------------------------------------------------------------------------------------------------------

SQLConditionOptions SQLiteStore::conditionOptions(const StoreFetch& fetch, SQLiteConnection& connection) const
{
    SQLConditionOptions options;
    options.store = identity_;
    options.usesShadows = usesShadows_;
    options.isLargeSet = [&connection](const SQLText& select) { return givesManyRows(connection, select); };
    options.isCommonFlag
        = [this, &connection](const SQLText& select) { return flagStatistics_.contains(connection, select); };
    options.walksOrder = fetch.limit > 0 && !fetch.sortDescriptors.empty();
    if (!options.walksOrder)
        return options;
    options.firstSortKey = fetch.sortDescriptors.front().key;
    const CompleteOrder order = completeOrder(fetch.sortDescriptors, *fetch.entity);
    for (std::size_t i = fetch.sortDescriptors.size(); i < order.descriptors.size(); ++i)
        options.tieKeys.push_back(order.descriptors[i].key);
    return options;
}

bool SQLiteStore::fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        SQLiteConnection& connection = access.connection();
        const StoreSearch search(hasSearchIndex_ ? &searchIndex_ : nullptr, selects_, connection, fetch,
            FetchPurpose::Rows, conditionOptions(fetch, connection));
        rows = rowsOf(fetch, search, connection);
    });
}

std::vector<StoreRow> SQLiteStore::rowsOf(
    const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection)
{
    if (search.goesByOrder())
        if (CandidateWalk walk(fetch, selects_, search.generator(), connection, *pool_); walk.isWhole())
            return walk.rows();
    const SQLiteRowReader reader(*identity_, selects_, connection);
    return SQLiteFetch(fetch, selects_, search.generator(), reader, connection).rows();
}

std::string SQLiteStore::explanationOf(const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection)
{
    if (search.goesByOrder())
        if (const CandidateWalk walk(fetch, selects_, search.generator(), connection, *pool_); walk.isWhole())
            return walk.explain();
    const SQLiteRowReader reader(*identity_, selects_, connection);
    return SQLiteFetch(fetch, selects_, search.generator(), reader, connection).explain();
}

bool SQLiteStore::count(const StoreFetch& fetch, std::size_t& count, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        SQLiteConnection& connection = access.connection();
        const SQLiteRowReader reader(*identity_, selects_, connection);
        const StoreSearch search(hasSearchIndex_ ? &searchIndex_ : nullptr, selects_, connection, fetch,
            FetchPurpose::Count, conditionOptions(fetch, connection));
        if (const auto counted = countInParallel(fetch, search, connection))
            count = *counted;
        else
            count = SQLiteFetch(fetch, selects_, search.generator(), reader, connection).count();
    });
}

/// Only what reads most of the texts is worth a second thread.
std::optional<std::size_t> SQLiteStore::countInParallel(
    const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection)
{
    const bool isWhole = fetch.limit == 0 && fetch.offset == 0;
    if (!search.searchesTexts() || !isWhole || search.generator().plan().kind == SearchPlan::Kind::CheckCandidates)
        return std::nullopt;
    return countOnTwoThreads(*pool_, connection, search.generator(), fetch);
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

std::uint64_t SQLiteStore::stateNumber()
{
    constexpr int kVersionShift = 32;
    if (pool_->turn().isMine())
        dataVersion_ = static_cast<std::uint64_t>(pool_->writer().integerOf("PRAGMA data_version"));
    else
        dataVersion();
    return (dataVersion_ << kVersionShift) + commits_;
}

std::optional<std::uint64_t> SQLiteStore::dataVersion()
{
    // The writing connection's version moves for the commits of others only. While this thread's transaction is open
    // nobody else can commit, so what it found at its beginning still holds.
    if (pool_->turn().isMine())
        return dataVersion_;
    if (!pool_->turn().takeAtOnce())
        return std::nullopt;
    const auto version = pool_->writer().dataVersionAtOnce();
    if (version)
        dataVersion_ = static_cast<std::uint64_t>(*version);
    pool_->turn().giveBack();
    return version ? std::optional<std::uint64_t>(dataVersion_) : std::nullopt;
}

std::string SQLiteStore::explain(const StoreFetch& fetch)
{
    std::string text;
    NSError error;
    const bool explained = reportingFailure(&error, [&] {
        const ReadAccess access = pool_->read();
        SQLiteConnection& connection = access.connection();
        const StoreSearch search(hasSearchIndex_ ? &searchIndex_ : nullptr, selects_, connection, fetch,
            FetchPurpose::Rows, conditionOptions(fetch, connection));
        text = explanationOf(fetch, search, connection);
        if (!search.searchesTexts())
            return;
        const auto start = std::chrono::steady_clock::now();
        const std::size_t found = rowsOf(fetch, search, connection).size();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        text += search.description() + fmt::format("; {} found in {:.2f} ms\n", found, taken.count());
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
        writing_.emplace(pool_->writer(), WriteTransaction::Lock::Immediate);
        // Another process may have swapped the file while this one waited for the lock.
        pool_->checkFileIsTheSame();
        raiseNextKeys(pool_->writer());
        followDerivedValues(pool_->writer());
    } catch (...) {
        endWriting(WritingEnd::RolledBack);
        throw;
    }
}

void SQLiteStore::endWriting(WritingEnd end) noexcept
{
    writing_.reset();
    // What followed the derived values was taken back with the rest.
    if (end == WritingEnd::RolledBack)
        writerVersion_ = -1;
    else
        reservedKeys_.clear();
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
        writing_->commit();
    } catch (...) {
        endWriting(WritingEnd::RolledBack);
        throw;
    }
    endWriting(WritingEnd::Committed);
}

/// What other programs have made stale is made good a little at a time, in transactions that write texts anyway.
void SQLiteStore::fillSomeSignatures(SQLiteConnection& connection)
{
    constexpr std::size_t kSome = 32;
    for (const auto& mirror : searchIndex_.mirrors()) {
        if (derivedValues_ == DerivedValues::Written)
            rewriteSignatures(connection, mirror->table(), mirror->takeStaleKeys(kSome));
        trimChanges(connection, mirror->table());
    }
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
            reservedKeys_[&top] = first + static_cast<std::int64_t>(count);
    });
}

/// No key below those that were reserved is given out from here on.
void SQLiteStore::raiseNextKeys(SQLiteConnection& connection)
{
    for (const auto& [root, next] : reservedKeys_) {
        SQLiteStatement statement
            = connection.prepare("INSERT INTO \"store_keys\" (\"entity\", \"nextKey\") VALUES (?1, ?2) "
                                 "ON CONFLICT (\"entity\") DO UPDATE SET \"nextKey\" = max(\"nextKey\", ?2)");
        statement.bindText(1, root->name());
        statement.bindInteger(2, next);
        statement.run();
    }
}

/// Takes back all that the transaction wrote but the keys that it reserved: these are out in the world, in identifiers
/// of records. The lock is held until they are safe, or another process could take them in between. Where they cannot
/// be written, the next transaction tries again.
void SQLiteStore::rollBack() noexcept
{
    const auto keepKeys = [&] {
        raiseNextKeys(pool_->writer());
        writing_->commit();
        reservedKeys_.clear();
    };
    const auto takeBack = [&] {
        writing_->startAgain();
        keepKeys();
    };
    if (!reservedKeys_.empty() && writing_->isOpen() && reportingFailure(nullptr, takeBack))
        return;
    writing_.reset();
    // After some failures SQLite has given up the lock by itself.
    const auto beginAgain = [&] {
        writing_.emplace(pool_->writer(), WriteTransaction::Lock::Immediate);
        keepKeys();
    };
    if (!reservedKeys_.empty() && !reportingFailure(nullptr, beginAgain))
        writing_.reset();
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

/// Calls `visit` with what is wrong, page by page, so that writers find gaps.
template <typename Visit> static void forEachPageOfProblems(ConnectionPool& pool, const SearchIndex& index, Visit visit)
{
    constexpr std::size_t kPage = 1000;
    for (const auto& mirror : index.mirrors()) {
        SignatureProblems problems;
        for (std::int64_t key = std::numeric_limits<std::int64_t>::min(); !problems.isLast; key = problems.lastKey) {
            {
                const ReadAccess access = pool.read();
                problems = problemsOfSignatures(access.connection(), mirror->table(), key, kPage);
            }
            visit(mirror->table(), problems);
        }
    }
}

bool SQLiteStore::checkSearchIndex(std::vector<std::string>& problems, NSError* error)
{
    return reportingFailure(error, [&] {
        problems.clear();
        if (!hasSearchTables(pool_->read().connection(), schema_)) {
            problems.emplace_back("the tables of the search index are missing");
            return;
        }
        forEachPageOfProblems(*pool_, searchIndex_, [&](const SignatureTable& table, const SignatureProblems& found) {
            const auto add = [&](std::int64_t key, std::string_view what) {
                problems.push_back("row " + std::to_string(key) + " of " + quotedIdentifier(table.table->name) + ": \""
                    + table.attribute->name() + "\" " + std::string(what));
            };
            for (const std::int64_t key : found.staleKeys)
                add(key, "is not in the search index");
            for (const std::int64_t key : found.wrongKeys)
                add(key, "is not as the search index has it");
        });
    });
}

bool SQLiteStore::repairSearchIndex(std::size_t& repaired, NSError* error)
{
    repaired = 0;
    return reportingFailure(error, [&] {
        forEachPageOfProblems(*pool_, searchIndex_, [&](const SignatureTable& table, const SignatureProblems& found) {
            std::vector<std::int64_t> keys = found.staleKeys;
            keys.insert(keys.end(), found.wrongKeys.begin(), found.wrongKeys.end());
            if (keys.empty())
                return;
            write([&](SQLiteConnection& connection) {
                if (derivedValues_ == DerivedValues::LeftStale)
                    return;
                rewriteSignatures(connection, table, keys);
                trimChanges(connection, table);
                repaired += keys.size();
            });
        });
    });
}

} // namespace tarn
