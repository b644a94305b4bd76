#include "tarnmodel/model/OVNoteTag.h"

#include "tarnmodel/platform/foundation/values/NSDate.h"

namespace tarn {

void OVNoteTag::updateModificationDate()
{
    setModificationDate(now());
}

void OVNoteTag::pin()
{
    setPinnedValue(true);
    setPinnedDate(now());
}

void OVNoteTag::unpin()
{
    setPinnedValue(false);
    setPinnedDate(now());
}

bool OVNoteTag::isPinned() const
{
    return pinnedValue();
}

// The companion dates stand inside the notices, so that whoever hears of the value sees its date as well.

void OVNoteTag::setTagcon(std::optional<std::string_view> tagcon)
{
    willChangeValueForKey("tagcon");
    setPrimitiveTagcon(tagcon);
    setTagconDate(now());
    didChangeValueForKey("tagcon");
}

void OVNoteTag::setSorting(std::optional<std::int16_t> sorting)
{
    willChangeValueForKey("sorting");
    setPrimitiveSorting(sorting);
    setSortingDate(now());
    didChangeValueForKey("sorting");
}

void OVNoteTag::setSortingDirection(std::optional<bool> sortingDirection)
{
    willChangeValueForKey("sortingDirection");
    setPrimitiveSortingDirection(sortingDirection);
    setSortingDirectionDate(now());
    didChangeValueForKey("sortingDirection");
}

} // namespace tarn
