#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/notes/OwedCompaction.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>

namespace tarn {

std::optional<std::string> OVNote::text() const
{
    if (auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue()))
        return manager->textForNote(*this, nullptr);
    return storedText();
}

void OVNote::setText(std::optional<std::string_view> text)
{
    auto* manager = OVEncryptionCoreManager::managerGuarding(*this, encryptedValue());
    if (text)
        checkTextLength(*text);
    if (!manager) {
        updatePrimitiveText(text);
        return;
    }
    willChangeValueForKey("text");
    manager->setText(text, *this);
    didChangeValueForKey("text");
}

std::optional<std::string> OVNote::storedText() const
{
    return primitiveText();
}

void OVNote::updatePrimitiveText(std::optional<std::string_view> text)
{
    willChangeValueForKey("text");
    setPrimitiveText(text);
    didChangeValueForKey("text");
}

void OVNote::checkTextLength(std::string_view text)
{
    if (text.size() > maximumTextLength)
        throw NSException(NSInvalidArgumentException,
            "A note cannot hold a text of more than " + std::to_string(maximumTextLength >> 20U) + " MiB.");
}

bool OVNote::hasEncryption() const
{
    if (encryptedValue())
        return true;
    if (isInserted()) { // all its files are here; there is nothing to ask the store for
        const auto files = filesSet().allObjects();
        return std::any_of(files.begin(), files.end(), [](const OVNoteFile* file) { return file->encryptedValue(); });
    }
    NSManagedObjectContext& context = managedObjectContext();
    NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("note == %@ AND encrypted == YES", this);
    request.fetchLimit = 1;
    return context.count(request).value_or(0) > 0;
}

bool OVNote::hasEncryptionAndIsLocked() const
{
    const OVEncryptionCoreManagerProtocol* manager = encryptionCoreManager();
    return manager ? manager->isObjectLocked(*this) : hasEncryption();
}

OVEncryptionCoreManagerProtocol* OVNote::encryptionCoreManager() const
{
    return OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(managedObjectContext());
}

OVEncryptionState OVNote::encryptionState() const
{
    return {encryptedValue(), encryptedData(), encryptionDate(), encryptionUniqueIdentifier(), password()};
}

void OVNote::setEncryptionState(const OVEncryptionState& state)
{
    setEncryptedValue(state.encrypted);
    setEncryptedData(state.encryptedData);
    setEncryptionDate(state.encryptionDate);
    setEncryptionUniqueIdentifier(state.encryptionUniqueIdentifier);
    setPassword(state.password ? static_cast<OVPassword*>(&state.password->passwordRecord()) : nullptr);
}

std::vector<OVEncryptableNoteFile*> OVNote::encryptableFiles() const
{
    const auto files = filesSet().allObjects();
    return {files.begin(), files.end()};
}

bool OVNote::prepareToAddEncryption(NSError* /*error*/)
{
    return true;
}

void OVNote::didAddEncryption()
{
    OwedCompaction::begin(managedObjectContext());
    setSubtitle(std::nullopt);
}

void OVNote::didRemoveEncryption()
{
    deriveSubtitle();
}

void OVNote::deriveSubtitle()
{
    const auto text = encryptedValue() ? std::nullopt : storedText();
    if (text && !hasEncryption())
        setSubtitle(CVKAST::fromMarkdown(std::string_view(*text)).textSummary().subtitle);
}

bool OVNote::allowsAttachments() const
{
    return !hasEncryption() || OVEncryptionCoreManager::isFileEncryptionEnabled();
}

std::vector<std::string> OVNote::activityItems() const
{
    std::vector<std::string> items;
    if (auto shared = text())
        items.push_back(std::move(*shared));
    return items;
}

} // namespace tarn
