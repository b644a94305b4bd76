#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <charconv>
#include <chrono>

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
      searchIndex_(schema_)
{
    for (int attempt = 1;; ++attempt) {
        pool_ = std::make_unique<ConnectionPool>(file, connectionOptions(options));
        try {
            openFile(options.createIfMissing && !options.readOnly);
            pool_->checkFileIsTheSame();
            return;
        } catch (const StoreFailure&) {
            // Who migrated the store while its lock was waited for has left a new file under its name.
            if (attempt == SQLiteConnection::mostReplacements || !pool_->writer().hasMovedFile())
                throw;
        }
    }
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

// Reading -------------------------------------------------------------------------------------------------------------

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

} // namespace tarn
