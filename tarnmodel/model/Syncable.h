#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <array>
#include <string_view>

namespace tarn {

/// Entity names of the record classes that are synchronised, in the order in which the change log walks them.
inline constexpr std::array<std::string_view, 5> syncableClasses{
    "OVNote", "OVNoteGenericFile", "OVNoteImage", "OVNoteTag", "OVNoteBackLink"};

/// Whether the record is of a syncable class, or of one derived from it, and has a unique identifier.
bool isSyncable(const NSManagedObject& record);

} // namespace tarn
