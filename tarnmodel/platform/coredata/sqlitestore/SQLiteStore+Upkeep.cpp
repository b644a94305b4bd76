#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlite/SearchTables.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"

#include <limits>

namespace tarn {

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
