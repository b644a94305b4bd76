#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManagerProtocol.h"

#include <functional>
#include <string_view>

namespace tarn {

class NSManagedObjectContext;

/// Name and reason of the exception that a guarded accessor raises on a locked record.
inline constexpr std::string_view OVInvalidAccessorException = "Invalid accessor";
inline constexpr std::string_view OVInvalidAccessorReason
    = "Called an encrypted accessor with Encryption Manager available and the object locked. Unlock the object using "
      "the "
      "Encryption Manager first, or use the primitive accessor (primitive accessors should be used in very special "
      "cases, "
      "so be fully aware of what you are doing).";

/// Which encryption manager serves which context.
///
/// Any thread. Managers are borrowed: one that is destroyed serves no context any more. A host takes the manager back
/// before it destroys the context.
///
///     OVEncryptionCoreManager::setEncryptionCoreManager(&manager, context);
class OVEncryptionCoreManager {
public:
    OVEncryptionCoreManager() = delete;

    /// The manager serving a context; null when protection is not active there.
    static OVEncryptionCoreManagerProtocol* encryptionCoreManagerForManagedObjectContext(
        const NSManagedObjectContext& context);
    /// Null ends the service.
    static void setEncryptionCoreManager(
        OVEncryptionCoreManagerProtocol* manager, const NSManagedObjectContext& context);

    /// Runs the block at once, with no manager visible for the context: guarded accessors then read and write what is
    /// stored. Nests. Call on the context's queue.
    static void performInManagedObjectContext(
        const NSManagedObjectContext& context, const std::function<void()>& withoutEncryptionCoreManager);

    /// Whether attachments of protected notes can be protected. False until a host says otherwise.
    static bool isFileEncryptionEnabled() noexcept;
    static void setFileEncryptionEnabled(bool enabled) noexcept;

    /// The manager that has to be asked for a protected field; null when the stored value is to be used, because no
    /// manager serves the record's context or the record is not protected. Raises "Invalid accessor" when it is locked.
    static OVEncryptionCoreManagerProtocol* managerGuarding(const OVEncryptableObject& object, bool isEncrypted);
};

} // namespace tarn
