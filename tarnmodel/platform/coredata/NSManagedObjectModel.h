#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tarn {

/// The record types of one version. Immutable once its constructors are registered; shared by coordinators, any thread.
///
/// Lives as long as anybody holds it: a coordinator does, and through that each context on its store and each child of
/// one. The model of the record classes (`OVManagedObjectModel::current`) lives until the process ends. What it hands
/// out (entities, properties, their names) is its own, and so object identifiers, fetch requests and records point into
/// it: none of them may be used after it.
class NSManagedObjectModel {
public:
    /// Reads a model file. Null and an error (domain "TarnStore") that names the place when it is malformed.
    static std::shared_ptr<NSManagedObjectModel> modelWithContentsOfFile(
        const std::filesystem::path& file, NSError* error = nullptr);
    /// The same for the text of such a file.
    static std::shared_ptr<NSManagedObjectModel> modelWithText(std::string_view text, NSError* error = nullptr);

    ~NSManagedObjectModel();
    NSManagedObjectModel(const NSManagedObjectModel&) = delete;
    NSManagedObjectModel& operator=(const NSManagedObjectModel&) = delete;

    /// "Model", "Model 2", ...
    const std::string& versionIdentifier() const noexcept { return versionIdentifier_; }
    /// In the order of the file.
    const std::vector<const NSEntityDescription*>& entities() const noexcept { return entities_; }
    /// Null for an unknown name.
    const NSEntityDescription* entityNamed(std::string_view name) const noexcept;
    /// Entity name and hash of every entity, sorted by name.
    std::vector<std::pair<std::string, std::string>> entityVersionHashes() const;

    /// Which class the records of an entity are of. Register before the model is given to a coordinator.
    void setRecordConstructor(std::string_view entityName, RecordConstructor constructor);

private:
    friend class ModelReader;
    NSManagedObjectModel();
    std::string versionIdentifier_;
    std::vector<const NSEntityDescription*> entities_;
    std::vector<std::unique_ptr<NSEntityDescription>> ownedEntities_;
    std::vector<std::unique_ptr<NSPropertyDescription>> ownedProperties_;
    std::unordered_map<std::string_view, NSEntityDescription*> entitiesByName_;
};

} // namespace tarn
