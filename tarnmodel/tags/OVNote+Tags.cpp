#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/tags/TagLookupInternal.h"

#include <algorithm>
#include <unordered_set>

namespace tarn {

namespace {

/// Resolves names through the cache and puts what it had to look up into it; none when a look-up failed.
std::optional<std::vector<OVNoteTag*>> tagsThroughCache(
    std::span<const std::string> names, OVNote::TagsCache& cache, NSManagedObjectContext& context)
{
    std::vector<OVNoteTag*> tags;
    for (const std::string& name : names) {
        if (const auto cached = cache.find(fold(name)); cached != cache.end()) {
            tags.push_back(cached->second);
            continue;
        }
        const auto tag = findOrCreateTag(name, context);
        if (!tag)
            return std::nullopt;
        if (*tag == nullptr)
            continue;
        cache[(*tag)->normalizedTitle()] = *tag;
        tags.push_back(*tag);
    }
    return tags;
}

} // namespace

std::vector<std::string> OVNote::tagsStrings() const
{
    std::vector<std::string> titles;
    for (const OVNoteTag* tag : tagsSet().allObjects()) {
        if (auto title = tag->title())
            titles.push_back(std::move(*title));
    }
    return titles;
}

void OVNote::setTagsFromStrings(std::span<const std::string> names)
{
    NSManagedObjectContext& context = managedObjectContext();
    auto tags = tagsCache_ ? tagsThroughCache(names, *tagsCache_, context) : findOrCreateTags(names, context);
    if (!tags)
        return;
    // Two processes may have made the same tag; the older one counts.
    std::unordered_set<std::string> known;
    std::erase_if(*tags, [&](const OVNoteTag* tag) { return !known.insert(tag->normalizedTitle()).second; });
    tagsSet().setObjects(*tags);
}

OVNoteTag* OVNote::tagForName(std::string_view name) const
{
    const std::string key = fold(name);
    const std::vector<OVNoteTag*> tags = tagsSet().allObjects();
    const auto found = std::find_if(
        tags.begin(), tags.end(), [&key](const OVNoteTag* tag) { return tag->normalizedTitle() == key; });
    return found == tags.end() ? nullptr : *found;
}

bool OVNote::hasTag(std::string_view name) const
{
    return tagForName(name) != nullptr;
}

} // namespace tarn
