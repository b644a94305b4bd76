#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObjectContext;
class OVNoteTag;

// Look-ups to which failure is not emptiness: none says that the store could not be asked (which is logged), and then
// nothing was made and nothing may be changed for want of a tag.

/// The first tag with this title, compared folded; null when there is none.
std::optional<OVNoteTag*> lookUpTag(std::string_view name, NSManagedObjectContext& context);
/// The tag of this name, made when there is none; null when the name is unusable.
std::optional<OVNoteTag*> findOrCreateTag(std::string_view name, NSManagedObjectContext& context);
/// The tags of these names, one fetch for each 100 distinct ones: those that exist in fetch order, then new ones.
/// Of names that mean the same tag the last one is the title of a new tag. Unusable names are left out.
std::optional<std::vector<OVNoteTag*>> findOrCreateTags(
    std::span<const std::string> names, NSManagedObjectContext& context);

} // namespace tarn
