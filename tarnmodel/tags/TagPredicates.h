#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <string_view>

namespace tarn {

class OVNoteTag;

/// Finds the tag of this name, compared without case and diacritics.
NSPredicate predicateForTagNamed(std::string_view name);
/// Finds the notes that carry the tag of this name; those of the tags below it carry it as well.
NSPredicate predicateForNotesTagged(std::string_view name);
/// Finds the tags that no note carries, be it trashed or archived.
NSPredicate predicateForUnusedTags();
/// Finds the tags anywhere below this one that notes carry, be they trashed or archived.
NSPredicate predicateForUsedTagsBelow(const OVNoteTag& tag);

} // namespace tarn
