#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/tags/TagLookupInternal.h"

#include <algorithm>

namespace tarn {

// Components --------------------------------------------------------------------------------------------------------

std::vector<std::string> OVNoteTag::tagComponents() const
{
    return CVKHashtag::componentsForForTagName(title().value_or(""));
}

const std::vector<std::string>& OVNoteTag::tagComponentsLowerCaseDiacritic() const
{
    if (!lowerCaseDiacriticComponents_) {
        std::vector<std::string> components = tagComponents();
        for (std::string& component : components)
            component = fold(component);
        lowerCaseDiacriticComponents_ = std::move(components);
    }
    return *lowerCaseDiacriticComponents_;
}

std::string OVNoteTag::tagStringFromComponents(const std::vector<std::string>& components) const
{
    return CVKHashtag::tagNameFromComponents(components);
}

// Names -------------------------------------------------------------------------------------------------------------

std::optional<std::string> OVNoteTag::leafTagName() const
{
    const std::vector<std::string> components = tagComponents();
    if (components.empty())
        return std::nullopt;
    return components.back();
}

std::optional<std::string> OVNoteTag::fatherTagName() const
{
    std::vector<std::string> components = tagComponents();
    if (components.size() < 2)
        return std::nullopt;
    components.pop_back();
    return tagStringFromComponents(components);
}

std::string OVNoteTag::displayTitle() const
{
    std::string display;
    for (const std::string& component : tagComponents()) {
        if (!display.empty())
            display += '/';
        display += component;
    }
    return display;
}

std::string OVNoteTag::normalizedTitle() const
{
    return CVKHashtag::normalizeTagName(title().value_or(""));
}

std::optional<std::string> OVNoteTag::normalizedLeafTagName() const
{
    const auto name = leafTagName();
    return name ? std::optional(CVKHashtag::normalizeTagName(*name)) : std::nullopt;
}

std::optional<std::string> OVNoteTag::normalizedFatherTagName() const
{
    const auto name = fatherTagName();
    return name ? std::optional(CVKHashtag::normalizeTagName(*name)) : std::nullopt;
}

std::string OVNoteTag::hashTagString() const
{
    return CVKHashtag::hashtagStringForTagName(title().value_or(""));
}

// Ancestors ---------------------------------------------------------------------------------------------------------

OVNoteTag* OVNoteTag::fatherTag() const
{
    const auto name = fatherTagName();
    return name ? tagWithName(*name, managedObjectContext()) : nullptr;
}

OVNoteTag* OVNoteTag::rootFatherTag() const
{
    const std::vector<std::string> components = tagComponents();
    return components.size() < 2 ? nullptr : tagWithName(components.front(), managedObjectContext());
}

bool OVNoteTag::isChildOfTag(const OVNoteTag& tag) const
{
    const auto& components = tagComponentsLowerCaseDiacritic();
    const auto& father = tag.tagComponentsLowerCaseDiacritic();
    return components.size() == father.size() + 1 && std::equal(father.begin(), father.end(), components.begin());
}

bool OVNoteTag::isDescendantOfTag(const OVNoteTag& tag) const
{
    const auto& components = tagComponentsLowerCaseDiacritic();
    const auto& ancestor = tag.tagComponentsLowerCaseDiacritic();
    return !ancestor.empty() && components.size() > ancestor.size()
        && std::equal(ancestor.begin(), ancestor.end(), components.begin());
}

// Descendants -------------------------------------------------------------------------------------------------------

std::vector<OVNoteTag*> OVNoteTag::childsAndSubChildsTagsWithSortDescriptors() const
{
    return childsAndSubChildsTagsWithSortDescriptors({});
}

std::vector<OVNoteTag*> OVNoteTag::childTagsWithSortDescriptors() const
{
    return childTagsWithSortDescriptors({});
}

std::vector<OVNoteTag*> OVNoteTag::childsAndSubChildsTagsWithSortDescriptors(
    const std::vector<NSSortDescriptor>& sortDescriptors) const
{
    const auto below = NSPredicate::predicateWithFormat(
        "title BEGINSWITH[cd] %@ AND self != %@ AND "
        "SUBQUERY(notes, $note, $note.trashed == NO AND $note.archived == NO).@count > 0",
        title().value_or("") + "/", this);
    return tagsMatching(below, sortDescriptors, managedObjectContext());
}

std::vector<OVNoteTag*> OVNoteTag::childTagsWithSortDescriptors(
    const std::vector<NSSortDescriptor>& sortDescriptors) const
{
    std::vector<OVNoteTag*> tags = childsAndSubChildsTagsWithSortDescriptors(sortDescriptors);
    const std::size_t depth = tagComponents().size() + 1;
    std::erase_if(tags, [depth](const OVNoteTag* tag) { return tag->tagComponents().size() > depth; });
    return tags;
}

} // namespace tarn
