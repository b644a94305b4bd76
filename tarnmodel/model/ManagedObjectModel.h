#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace tarn {

/// The model of this library's records, with the class of each entity. Any thread.
///
///     NSPersistentStoreCoordinator coordinator(OVManagedObjectModel::current());
class OVManagedObjectModel {
public:
    OVManagedObjectModel() = delete;

    /// The current version, read once from the resources. Null and an error when it is missing, malformed, or another
    /// one than the record classes were made for; the next call tries again.
    static std::shared_ptr<const NSManagedObjectModel> current(NSError* error = nullptr);

    /// The folder of all versions, "Model.momd"; none when the resources are not there.
    static std::optional<std::filesystem::path> modelURL();
    /// The file of one version, as "Model 2"; none when there is none.
    static std::optional<std::filesystem::path> modelURLForVersion(std::string_view version);
    /// The version that `modelURL` names as the current one. None and an error when it names none.
    static std::optional<std::string> currentVersion(NSError* error = nullptr);
};

} // namespace tarn
