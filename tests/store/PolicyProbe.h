#pragma once

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tests/support/StoreFixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

namespace tarn {

/// One step of a store of an older version, with a policy of the test's own in place of an installed one.
class PolicyProbe : public testing::Test, protected StillWorld {
protected:
    PolicyProbe(std::string_view from, std::string_view to)
        : from_(modelOfVersion(from)), to_(modelOfVersion(to)),
          mappingText_(bytesOf(
              *OVManagedObjectModel::modelURL() / (std::string(from) + " to " + std::string(to) + ".mapping.json")))
    {
        std::filesystem::create_directories(folder_);
    }
    ~PolicyProbe() override { std::filesystem::remove_all(folder_); }

    /// Changes the mapping file's text.
    void replace(std::string_view part, std::string_view replacement)
    {
        const std::size_t place = mappingText_.find(part);
        ASSERT_NE(place, std::string::npos) << part;
        mappingText_.replace(place, part.size(), replacement);
    }
    /// Whether the store became one of the later version.
    bool migrate(NSError* error)
    {
        const auto mapping = NSMappingModel::mappingModelWithText(mappingText_, *from_, *to_, error);
        if (!mapping)
            return false;
        NSMigrationManager manager(from_, to_);
        return manager.migrateStoreFromURL(
            source_, StoreType::SQLite, *mapping, destination_, StoreType::SQLite, error);
    }

    static std::shared_ptr<const NSManagedObjectModel> modelOfVersion(std::string_view version)
    {
        return NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion(version));
    }
    static std::string bytesOf(const std::filesystem::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    const std::filesystem::path folder_ = filesRoot() / "probe";
    const std::filesystem::path source_ = folder_ / "source.sqlite";
    const std::filesystem::path destination_ = folder_ / "destination.sqlite";
    std::shared_ptr<const NSManagedObjectModel> from_;
    std::shared_ptr<const NSManagedObjectModel> to_;
    std::string mappingText_;
};

} // namespace tarn
