#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarn {

class BackupExtraction;
class NSManagedObjectContext;
class NSManagedObjectModel;

/// One record of a backup, on its way into a store.
struct BackupRecord {
    std::string entityName;
    std::int64_t number = 0; ///< unique within the root entity
    std::map<std::string, Value, std::less<>> attributes;
    std::map<std::string, std::vector<std::int64_t>, std::less<>> related; ///< numbers, by relationship

    const Value& attribute(std::string_view name) const;
    /// Empty where there is none.
    std::string text(std::string_view name) const;
    /// 0 for none.
    std::int64_t toOne(std::string_view name) const;
};

/// The records of a backup in a temporary store of the version that they are of, which may then be brought forward.
/// What fails throws a `BackupFailure`.
class BackupRecords {
public:
    /// Fills a new store at `file` with what was extracted.
    static void fill(const std::filesystem::path& file, const BackupExtraction& extraction,
        const std::string& modelVersion, std::uint64_t maximumLineLength, const std::function<void()>& madeSome);

    /// Opens such a store, which is of the current model.
    explicit BackupRecords(const std::filesystem::path& file);
    ~BackupRecords();
    BackupRecords(const BackupRecords&) = delete;
    BackupRecords& operator=(const BackupRecords&) = delete;

    /// All records of just this entity, some at a time.
    void forEachPage(std::string_view entityName, const std::function<void(const std::vector<BackupRecord>&)>& take);

private:
    std::shared_ptr<NSManagedObjectModel> model_;
    std::unique_ptr<NSManagedObjectContext> context_;
};

} // namespace tarn
