#include "tarnmodel/tags/TagLookupInternal.h"

#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/tags/TagPredicates.h"

#include <algorithm>
#include <map>
#include <set>

namespace tarn {

namespace {

/// Keeps the predicate of one fetch small.
constexpr std::size_t maximumKeysOfAFetch = 100;

/// What a name means, and how it is written.
struct WantedTag {
    std::string key;
    std::string name;
};

/// One for each distinct key, in order of first appearance, with the last of its names.
std::vector<WantedTag> wantedTags(std::span<const std::string> names)
{
    std::vector<WantedTag> wanted;
    std::map<std::string, std::size_t, std::less<>> positions;
    for (const std::string& name : names) {
        std::string key = CVKHashtag::normalizeTagName(CVKHashtag::sanitizeTagName(name));
        if (key.empty())
            continue;
        const auto [position, isNew] = positions.try_emplace(key, wanted.size());
        if (isNew)
            wanted.push_back({std::move(key), name});
        else
            wanted[position->second].name = name;
    }
    return wanted;
}

std::optional<std::vector<NSManagedObject*>> fetchTags(
    std::span<const WantedTag> wanted, NSManagedObjectContext& context)
{
    std::vector<NSPredicate> titles;
    titles.reserve(wanted.size());
    for (const WantedTag& tag : wanted)
        titles.push_back(predicateForTagNamed(tag.key));
    NSFetchRequest request(OVNoteTag::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::orPredicateWithSubpredicates(titles);

    NSError error;
    auto tags = context.fetch(request, &error);
    if (!tags) {
        const std::string& description = error.localizedDescription();
        logMessage("Error while fetching: " + (description.empty() ? "Unknown Error" : description));
    }
    return tags;
}

} // namespace

std::optional<OVNoteTag*> lookUpTag(std::string_view name, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNoteTag::entityInManagedObjectContext(context));
    request.predicate = predicateForTagNamed(name);
    const auto tags = fetchRecords<OVNoteTag>(request, context);
    if (!tags)
        return std::nullopt;
    return tags->empty() ? nullptr : tags->front();
}

std::optional<OVNoteTag*> findOrCreateTag(std::string_view name, NSManagedObjectContext& context)
{
    const std::string sanitized = CVKHashtag::sanitizeTagName(name);
    const auto existing = lookUpTag(sanitized, context);
    if (!existing || *existing)
        return existing;
    return OVNoteTag::addNewTagWithName(sanitized, context);
}

std::optional<std::vector<OVNoteTag*>> findOrCreateTags(
    std::span<const std::string> names, NSManagedObjectContext& context)
{
    const std::vector<WantedTag> wanted = wantedTags(names);
    std::vector<OVNoteTag*> tags;
    std::set<std::string, std::less<>> found;
    for (std::size_t first = 0; first < wanted.size(); first += maximumKeysOfAFetch) {
        const std::size_t count = std::min(maximumKeysOfAFetch, wanted.size() - first);
        const auto existing = fetchTags(std::span(wanted).subspan(first, count), context);
        if (!existing)
            return std::nullopt;
        for (NSManagedObject* record : *existing) {
            tags.push_back(static_cast<OVNoteTag*>(record));
            found.insert(tags.back()->normalizedTitle());
        }
    }
    for (const WantedTag& tag : wanted) {
        if (found.contains(tag.key))
            continue;
        if (OVNoteTag* made = OVNoteTag::addNewTagWithName(tag.name, context))
            tags.push_back(made);
    }
    return tags;
}

} // namespace tarn
