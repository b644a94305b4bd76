#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Models that differ as versions do, each with an entity "Thing" that has a label and an attribute of that version's
/// own, and mappings between them: resources for a test, which makes them its own by TARN_RESOURCES.
class ScratchVersions {
public:
    explicit ScratchVersions(std::filesystem::path folder);
    ~ScratchVersions();
    ScratchVersions(const ScratchVersions&) = delete;
    ScratchVersions& operator=(const ScratchVersions&) = delete;

    const std::filesystem::path& folder() const { return folder_; }
    /// Writes "Model 2.json", or any other name of a file, into "Model.momd" or elsewhere below the resources.
    void addModel(std::string_view version, const std::filesystem::path& file) const;
    void addModel(std::string_view version) const;
    /// Writes the mapping from one version to another; with a policy for its things.
    void addMapping(std::string_view from, std::string_view to, std::string_view policy = {}) const;
    /// The text of such a mapping.
    static std::string mapping(std::string_view from, std::string_view to, std::string_view policy = {});
    static std::shared_ptr<const NSManagedObjectModel> model(std::string_view version);

    static void makeStore(
        const std::filesystem::path& file, std::string_view version, const std::vector<std::string>& labels);
    /// In the order in which they were made.
    static std::vector<std::string> labels(const std::filesystem::path& file);

private:
    std::filesystem::path folder_;
};

} // namespace tarn
