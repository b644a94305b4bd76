#include "tarnmodel/tags/TagPredicates.h"

#include "tarnmodel/model/OVNoteTag.h"

namespace tarn {

NSPredicate predicateForTagNamed(std::string_view name)
{
    return NSPredicate::predicateWithFormat("title ==[cd] %@", name);
}

NSPredicate predicateForNotesTagged(std::string_view name)
{
    return NSPredicate::predicateWithFormat("SUBQUERY(tags, $tag, $tag.title ==[cd] %@).@count > 0", name);
}

NSPredicate predicateForUnusedTags()
{
    return NSPredicate::predicateWithFormat("notes.@count == 0");
}

NSPredicate predicateForUsedTagsBelow(const OVNoteTag& tag)
{
    return NSPredicate::predicateWithFormat(
        "title BEGINSWITH[cd] %@ AND notes.@count > 0", tag.title().value_or("") + "/");
}

} // namespace tarn
