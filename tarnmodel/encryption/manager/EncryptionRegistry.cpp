#include "tarnmodel/encryption/manager/EncryptionRegistry.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <atomic>
#include <map>
#include <mutex>

namespace tarn {
namespace {

/// The registry is asked at every access to a protected field, so the usual case, no manager at all, costs one load.
struct Registry {
    struct Service {
        OVEncryptionCoreManagerProtocol* manager = nullptr;
        int hidden = 0; ///< blocks that run without it
    };

    std::mutex mutex;
    std::map<const NSManagedObjectContext*, Service> services;
    std::atomic<bool> anyManager = false;
    std::atomic<bool> fileEncryption = false;

    void forgetIdleServices()
    {
        std::erase_if(services, [](const auto& entry) { return !entry.second.manager && entry.second.hidden == 0; });
        anyManager = !services.empty();
    }
};

Registry& registry()
{
    static auto* const theRegistry = new Registry; // outlives managers that are destroyed at the end of the process
    return *theRegistry;
}

/// Hides the manager of a context while it lives.
class Hiding {
public:
    explicit Hiding(const NSManagedObjectContext& context) : context_(&context) { change(1); }
    ~Hiding() { change(-1); }
    Hiding(const Hiding&) = delete;
    Hiding& operator=(const Hiding&) = delete;

private:
    void change(int difference)
    {
        std::lock_guard lock(registry().mutex);
        registry().services[context_].hidden += difference;
        registry().forgetIdleServices();
    }
    const NSManagedObjectContext* context_;
};

} // namespace

void endEncryptionService(const OVEncryptionCoreManagerProtocol& manager)
{
    std::lock_guard lock(registry().mutex);
    for (auto& [context, service] : registry().services) {
        if (service.manager == &manager)
            service.manager = nullptr;
    }
    registry().forgetIdleServices();
}

OVEncryptionCoreManagerProtocol::~OVEncryptionCoreManagerProtocol()
{
    endEncryptionService(*this);
}

// A manager that protects less than there is leaves it as it was stored.

std::optional<std::string> OVEncryptionCoreManagerProtocol::searchTextForNoteFile(
    const OVEncryptableNoteFile& file, NSError* /*error*/)
{
    return file.storedSearchText();
}

void OVEncryptionCoreManagerProtocol::setSearchText(std::optional<std::string_view> text, OVEncryptableNoteFile& file)
{
    file.updatePrimitiveSearchText(text);
}

bool OVEncryptionCoreManagerProtocol::addEncryptionToNewFile(
    OVEncryptableNoteFile& file, const std::filesystem::path& contents, OVEncryptingPassword& password, NSError* error)
{
    const auto copy = [&](const std::filesystem::path& place, NSError* failure) {
        return NSFileManager::copyItemAtURL(contents, place, failure);
    };
    return file.exchangeStoredFile(file.storedFilename().value_or(""), copy, error)
        && addEncryptionToObject(file, password, error);
}

bool OVEncryptionCoreManagerProtocol::setContents(
    const NSFileWrapper& /*contents*/, OVEncryptableNoteFile& /*file*/, NSError* error)
{
    assignError(error, NSError(TarnEncryptionErrorDomain, OVEncryptionErrorFile, "Nothing here protects files"));
    return false;
}

OVEncryptionCoreManagerProtocol* OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(
    const NSManagedObjectContext& context)
{
    if (!registry().anyManager)
        return nullptr;
    std::lock_guard lock(registry().mutex);
    const auto& services = registry().services;
    if (const auto own = services.find(&context); own != services.end() && own->second.hidden > 0)
        return nullptr;
    // That a parent's is hidden is the parent's business: another thread may be hiding it there.
    for (const auto* asked = &context; asked; asked = asked->parentContext()) {
        if (const auto found = services.find(asked); found != services.end() && found->second.manager)
            return found->second.manager;
    }
    return nullptr;
}

void OVEncryptionCoreManager::setEncryptionCoreManager(
    OVEncryptionCoreManagerProtocol* manager, const NSManagedObjectContext& context)
{
    std::lock_guard lock(registry().mutex);
    registry().services[&context].manager = manager;
    registry().forgetIdleServices();
}

void OVEncryptionCoreManager::performInManagedObjectContext(
    const NSManagedObjectContext& context, const std::function<void()>& withoutEncryptionCoreManager)
{
    Hiding hiding(context);
    withoutEncryptionCoreManager();
}

bool OVEncryptionCoreManager::isFileEncryptionEnabled() noexcept
{
    return registry().fileEncryption;
}

void OVEncryptionCoreManager::setFileEncryptionEnabled(bool enabled) noexcept
{
    registry().fileEncryption = enabled;
}

OVEncryptionCoreManagerProtocol* OVEncryptionCoreManager::managerGuarding(
    const OVEncryptableObject& object, bool isEncrypted)
{
    OVEncryptionCoreManagerProtocol* manager = isEncrypted ? object.encryptionCoreManager() : nullptr;
    if (manager && manager->isObjectLocked(object))
        throw NSException(OVInvalidAccessorException, OVInvalidAccessorReason);
    return manager;
}

} // namespace tarn
