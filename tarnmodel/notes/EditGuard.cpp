#include "tarnmodel/notes/EditGuard.h"

#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/notes/TitleLineGuard.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <unordered_set>

namespace tarn {

namespace {

void requireUnlocked(const std::vector<OVNoteFile*>& files)
{
    for (const OVNoteFile* file : files)
        OVEncryptionCoreManager::managerGuarding(*file, file->encryptedValue());
}

/// By what other notes link to it.
std::string linkedTitleOf(const OVNote& note)
{
    const std::string title = note.title().value_or("");
    return title.empty() ? note.uniqueIdentifier().value_or("") : title;
}

/// Walks over the notes that a changed title reaches. A note may be reached twice, by its body first and by its title
/// line later.
void requireThatTitleCanBeFollowed(const OVNote& note)
{
    std::unordered_set<const OVNote*> sources;
    std::unordered_set<const OVNote*> renamed{&note};
    std::vector<const OVNote*> open{&note};
    while (!open.empty()) {
        const OVNote& target = *open.back();
        open.pop_back();
        const std::string title = linkedTitleOf(target);
        for (const OVNoteBackLink* link : target.linkedBySet().allObjects()) {
            const OVNote* source = link->linkedBy();
            if (!source || source->encryptedValue())
                continue;
            if (sources.insert(source).second)
                requireUnlocked(source->filesSet().allObjects());
            if (!renamed.contains(source) && titleLineLinksTo(*source, title)) {
                renamed.insert(source);
                open.push_back(source);
            }
        }
    }
}

bool isGuarded(const OVNote& note)
{
    return note.encryptionCoreManager() != nullptr;
}

/// Without a manager it counts as locked.
template <typename Record> void requireOpen(const Record& record)
{
    if (record.encryptedValue() && !OVEncryptionCoreManager::managerGuarding(record, true))
        throw NSException(OVInvalidAccessorException, OVInvalidAccessorReason);
}

} // namespace

void EditGuard::requireEditable(const OVNote& note, std::optional<std::string_view> newTitle)
{
    requireOpen(note);
    if (!isGuarded(note))
        return;
    requireUnlocked(note.filesSet().allObjects());
    const auto oldTitle = note.title();
    if (oldTitle && oldTitle != newTitle)
        requireThatTitleCanBeFollowed(note);
}

void EditGuard::requireRewritable(const std::vector<OVNote*>& notes, const Rewriting& rewriting)
{
    for (const OVNote* note : notes) {
        requireOpen(*note);
        const std::string text = note->text().value_or("");
        const std::string title = note->title().value_or("");
        // Only a hashtag in the title can make it another; that spares the rewriting of most texts.
        const bool mayChangeTitle = isGuarded(*note) && title.find('#') != std::string::npos;
        const std::string newTitle = mayChangeTitle ? rewriting(text).textSummary().title : title;
        requireEditable(*note, newTitle);
    }
}

void EditGuard::requireReadable(const std::vector<OVNote*>& notes)
{
    for (const OVNote* note : notes) {
        requireOpen(*note);
        for (const OVNoteFile* file : note->orderedFiles())
            requireOpen(*file);
    }
}

void EditGuard::requireAttachable(const OVNote& note)
{
    requireOpen(note);
}

std::shared_ptr<void> EditGuard::holdUnlocked(const NSManagedObjectContext& context)
{
    auto* const manager = OVEncryptionCoreManager::encryptionCoreManagerForManagedObjectContext(context);
    return manager ? manager->holdUnlocked() : nullptr;
}

bool EditGuard::isUnreadable(const OVNoteFile& file)
{
    return file.encryptedValue() && file.hasEncryptionAndIsLocked();
}

} // namespace tarn
