#pragma once

#include "tarnmodel/platform/coredata/NSEntityMapping.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObjectModel;

/// How stores of one version of a model become stores of another: an entity mapping for each entity of either.
///
/// Its file, "<name>.mapping.json", lies beside those of the models and is JSON with comments. It names the versions
/// and lists the entities:
///
///     {"source": "Model", "destination": "Model 2", "entities": [
///         {"kind": "copy", "source": "Tag", "destination": "Tag"},
///         {"kind": "transform", "source": "Note", "destination": "Note", "policy": "NotePolicy",
///          "attributes": [{"name": "title", "value": "$source.name"}, {"name": "size", "value": "$default"}],
///          "relationships": [{"name": "tags", "value": "$source.tag"}],
///          "dropped": ["lastOpened"]},
///         {"kind": "add", "destination": "Link"},
///         {"kind": "remove", "source": "Setting"}]}
///
/// What has the same name and kind on both sides stays without being mentioned. Everything else has to be: a property
/// that is new (its value), one that goes ("dropped"), one whose type changes. So nothing is lost by forgetting it.
/// Only with `"partial": true` may entities be left out, whose records are then not touched by this mapping model; what
/// has relationships with each other belongs into one.
///
/// Immutable; any thread.
class NSMappingModel {
public:
    /// The first mapping model in these folders (and in the "momd" folders of each) that leads from one to the other,
    /// in the order of the files' names; null when there is none. A file that cannot be read is logged and passed over.
    static std::shared_ptr<const NSMappingModel> mappingModelFromBundles(std::span<const std::filesystem::path> folders,
        const NSManagedObjectModel& source, const NSManagedObjectModel& destination);
    /// Reads a file for two models. Null and an error (domain "TarnStore", `StoreErrorInvalidModel`) that names the
    /// place when it is malformed, names what the models do not have, or forgets what they have.
    static std::shared_ptr<const NSMappingModel> mappingModelWithContentsOfFile(const std::filesystem::path& file,
        const NSManagedObjectModel& source, const NSManagedObjectModel& destination, NSError* error = nullptr);
    /// The same for the text of such a file.
    static std::shared_ptr<const NSMappingModel> mappingModelWithText(std::string_view text,
        const NSManagedObjectModel& source, const NSManagedObjectModel& destination, NSError* error = nullptr);

    ~NSMappingModel();
    NSMappingModel(const NSMappingModel&) = delete;
    NSMappingModel& operator=(const NSMappingModel&) = delete;

    /// The version identifiers that it leads from and to.
    const std::string& sourceVersion() const noexcept { return sourceVersion_; }
    const std::string& destinationVersion() const noexcept { return destinationVersion_; }
    /// Whether it leaves entities out on purpose.
    bool isPartial() const noexcept { return isPartial_; }
    /// In the order of the file, which is the order in which they are migrated.
    const std::vector<std::unique_ptr<const NSEntityMapping>>& entityMappings() const noexcept { return mappings_; }
    /// Null for an unknown name.
    const NSEntityMapping* entityMappingNamed(std::string_view name) const noexcept;

private:
    friend class MappingModelReader;
    NSMappingModel();
    std::string sourceVersion_;
    std::string destinationVersion_;
    bool isPartial_ = false;
    std::vector<std::unique_ptr<const NSEntityMapping>> mappings_;
};

} // namespace tarn
