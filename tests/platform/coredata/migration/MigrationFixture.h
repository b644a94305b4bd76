#pragma once

#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A library of books before and after a change of its model: attributes renamed, of other types, moved between the row
/// and the table of large ones; relationships that became to-many, or moved to the other end; entities that came and
/// went, and a sub-entity.
std::shared_ptr<const NSManagedObjectModel> oldLibraryModel();
std::shared_ptr<const NSManagedObjectModel> newLibraryModel();
/// How one becomes the other. Each "POLICY" is for a policy of the entity mapping, such as `"policy": "Mine",`; the
/// ones of books have to know the function "isLong" (text, most characters).
std::string libraryMappingText(std::string_view bookPolicy = R"("policy": "LibraryFunctions",)",
    std::string_view otherPolicy = {}, std::string_view shelfPolicy = {});

/// Knows the functions of the mapping, and leaves the rest as it is.
class LibraryFunctions : public NSEntityMigrationPolicy {
public:
    Value valueOfFunction(
        std::string_view name, std::span<const Value> arguments, const NSEntityMapping& mapping) override;
};

/// A folder with an old store in it, which other programs fill.
class MigrationFixture : public testing::Test {
protected:
    MigrationFixture();

    std::filesystem::path oldFile() const { return folder_.path() / "old.sqlite"; }
    std::filesystem::path newFile() const { return folder_.path() / "new.sqlite"; }
    /// Runs SQL on the old store, without a look at references.
    void fill(const std::string& sql) const;
    /// Brings the folded values and the search index of the old store up to date.
    void signOldStore() const;
    std::shared_ptr<const NSMappingModel> mapping(const std::string& text) const;
    /// Into `newFile`, or another one.
    bool migrate(const NSMappingModel& mapping, const std::filesystem::path& file = {});
    /// The same, expecting that it works.
    void migrate(const std::string& text = libraryMappingText());
    /// Rows of a statement over the new store, columns joined by "|".
    std::vector<std::string> rows(const std::string& sql) const;
    /// Every row of every table of a store, but for its search index's list of changes; blobs and texts as
    /// hexadecimals.
    static std::map<std::string, std::vector<std::string>> contentsOf(const std::filesystem::path& file);
    /// What the new store finds wrong with itself, its search index included.
    std::vector<std::string> problemsOfNewStore() const;

    TestFolder folder_;
    NSMigrationManager manager_;
    NSError error_;
};

} // namespace tarn
