#include "tarnmodel/encryption/manager/Vault.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <array>

namespace tarn {
namespace {

/// Of the names of sealed files.
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kBytesOfName = 16;

/// Observers are of the main queue; `manager` tells them who it is, and is not followed.
void post(std::string_view name, const void* manager)
{
    MainQueue& queue = MainQueue::main();
    const auto tell = [name, manager] { NSNotificationCenter::defaultCenter().postNotification(name, manager); };
    if (queue.isCurrent())
        tell();
    else
        queue.async(tell);
}

} // namespace

RecordKind kindOf(const OVEncryptableObject& object)
{
    return dynamic_cast<const OVEncryptableNote*>(&object) ? RecordKind::Note : RecordKind::Attachment;
}

bool isYetToBeFilled(const OVEncryptableObject& object)
{
    return kindOf(object) == RecordKind::Attachment && !object.sealedFields()
        && object.encryptableRecord().isInserted();
}

std::string opaqueFileName()
{
    std::string name;
    for (const std::byte byte : randomArray<std::array<std::byte, kBytesOfName>>()) {
        name += kDigits[std::to_integer<std::size_t>(byte) >> 4U];
        name += kDigits[std::to_integer<std::size_t>(byte) & 15U];
    }
    return name;
}

bool isOpaqueFileName(std::string_view name)
{
    return name.size() == 2 * kBytesOfName && name.find_first_not_of(kDigits) == std::string_view::npos;
}

OVEncryptionCoreManager::Vault::Vault(const OVEncryptionCoreManager& manager, const OVEncryptionOptions& wanted)
    : options(wanted), keys(std::make_shared<UnlockedKeys>(options.timeLimit,
                           UnlockedKeys::Events{
                               .didUnlock =
                                   [this] {
                                       if (options.timeLimit > std::chrono::seconds(0))
                                           watch_.begin();
                                       post(OVEncryptionCoreManagerDidUnlockNotification, manager_);
                                   },
                               .didLock =
                                   [this] {
                                       verified_.clear();
                                       post(OVEncryptionCoreManagerDidLockNotification, manager_);
                                   },
                               .didForget =
                                   [this](const std::string& password) {
                                       verified_.clear();
                                       copies.removeOfPassword(password);
                                   },
                           })),
      copies(options.scratchDirectory), manager_(&manager),
      watch_(options.timeLimit, [this] { return keys->lockWhatIsDue(); })
{
    MainQueue::main(); // its thread is to own it, not the one that watches
}

OVEncryptionCoreManager::Vault::~Vault()
{
    keys->close();
}

std::optional<MasterKey> OVEncryptionCoreManager::Vault::newestKeyOf(
    const OVEncryptingPassword& record, NSError* error) const
{
    const auto verifier = record.verifier();
    if (!verifier) {
        failEncryption(error, OVEncryptionErrorLocked);
        return std::nullopt;
    }
    // None but what the record keeps: a key that is not in there would be lost with the next lock.
    const auto blob = PasswordBlob::read(*verifier, error);
    if (!blob)
        return std::nullopt;
    auto key = keys->key(blob->newestKey());
    if (!key || !blob->isVouchedForBy(*key)) {
        failEncryption(error, OVEncryptionErrorLocked);
        return std::nullopt;
    }
    return key;
}

OVEncryptionCoreManager::Vault::Record OVEncryptionCoreManager::Vault::open(
    const OVEncryptableObject& object, NSError* error) const
{
    return open(object.sealedFields(), object.encryptionIdentifier(), kindOf(object), error);
}

OVEncryptionCoreManager::Vault::Record OVEncryptionCoreManager::Vault::open(
    std::optional<NSData> data, const std::optional<std::string>& identifier, RecordKind kind, NSError* error) const
{
    if (!data || !identifier) {
        failEncryption(error, OVEncryptionErrorDamaged, "The encrypted data is not here");
        return nullptr;
    }
    const auto masterKey = SealedRecord::masterKeyOf(*data, kind, error);
    if (!masterKey)
        return nullptr;
    const auto key = keys->key(*masterKey);
    if (!key) {
        failEncryption(error, OVEncryptionErrorLocked);
        return nullptr;
    }
    if (Record known = verified_.find(*data, kind, *identifier))
        return known;
    auto opened = SealedRecord::open(std::move(*data), kind, *identifier, *key, error);
    if (!opened)
        return nullptr;
    auto record = std::make_shared<const SealedRecord>(std::move(*opened));
    verified_.add(record);
    if (!keys->key(*masterKey)) // locked meanwhile by another thread, which has cleared what was there before
        verified_.clear();
    return record;
}

std::optional<ClearFields> OVEncryptionCoreManager::Vault::fields(
    const OVEncryptableObject& object, NSError* error) const
{
    const Record record = open(object, error);
    return record ? record->fields(error) : std::nullopt;
}

void OVEncryptionCoreManager::Vault::change(
    OVEncryptableObject& object, const std::function<void(ClearFields&)>& change)
{
    NSError failure;
    const Record record = open(object, &failure);
    auto clear = record ? record->fields(&failure) : std::nullopt;
    if (!clear) {
        if (!isYetToBeFilled(object))
            logMessage("A protected field was not stored: " + failure.localizedDescription());
        return;
    }
    change(*clear);
    auto changed = std::make_shared<const SealedRecord>(record->withFields(*clear));
    object.setSealedFields(changed->data());
    remember(std::move(changed));
}

} // namespace tarn
