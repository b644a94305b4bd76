#include "tarnmodel/notes/LinkTargets.h"

#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/notes/NotePredicates.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <unordered_set>

namespace tarn {

namespace {

std::optional<std::vector<OVNote*>> fetchTargets(
    const std::vector<std::string>& titlesOrUUIDs, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    request.predicate = predicateForTitlesOrUUIDs(titlesOrUUIDs);
    request.sortDescriptors = {{"trashed", true}, {"creationDate", true}};
    return fetchRecords<OVNote>(request, context);
}

} // namespace

std::string linkKeyOf(const OVNote& note)
{
    return linkKeyOf(note.title(), note.uniqueIdentifier());
}

std::string linkKeyOf(const std::optional<std::string>& title, const std::optional<std::string>& uniqueIdentifier)
{
    return fold(title && !title->empty() ? *title : uniqueIdentifier.value_or(""));
}

OVNote* LinkTargets::knownTarget(const std::string& key) const
{
    const auto found = cache().find(key);
    if (found == cache().end() || !found->second)
        return nullptr;
    // A lent cache lives through many edits, and each may change a title.
    OVNote* note = found->second;
    return !note->isDeleted() && linkKeyOf(*note) == key ? note : nullptr;
}

bool LinkTargets::lookUp(std::span<const CVKWikiLink> links)
{
    std::vector<std::string> wanted;
    std::unordered_set<std::string> keys;
    for (const CVKWikiLink& link : links) {
        std::string key = fold(link.decodedTitle());
        if (!knownTarget(key) && keys.insert(std::move(key)).second)
            wanted.push_back(link.decodedTitle());
    }
    if (wanted.empty())
        return true;
    const auto notes = fetchTargets(wanted, context_);
    if (!notes)
        return false;
    // Backwards, so that the first of several with one title has the last word.
    for (auto note = notes->rbegin(); note != notes->rend(); ++note)
        cache()[linkKeyOf(**note)] = *note;
    return true;
}

OVNote* LinkTargets::targetOf(std::string_view title) const
{
    return knownTarget(fold(title));
}

} // namespace tarn
