#pragma once

#include "tarnmodel/model/_OVNoteTag.h"

#include <cstddef>
#include <span>
#include <vector>

namespace tarn {

class NSPredicate;
struct NSSortDescriptor;

/// One tag, named by its path ("work/clients/acme"). Two tags are the same when their normalized titles are equal.
///
/// Parents and children follow from titles alone. A note of a nested tag belongs to every tag above it as well.
/// Confined to its context's queue.
///
///     OVNoteTag* home = OVNoteTag::getOrCreateTagWithName("home", context);
///     auto count = home->untrashedNotesCount();
class OVNoteTag : public _OVNoteTag {
public:
    using _OVNoteTag::_OVNoteTag;

    /// A new tag without title, with an identifier and a modification date.
    static OVNoteTag* insertInManagedObjectContext(NSManagedObjectContext& context);

    // Finding (tarnmodel/tags/OVNoteTag+Fetching.cpp) ----------------------------------------------------------------
    // The standard order is by title as people sort them: by locale, without case, digits by value. A failed fetch is
    // logged and gives an empty list, null or none.

    /// The tags that the predicate finds (all without one), in the standard order.
    static std::vector<OVNoteTag*> notesTagsInManagedObjectContext(
        NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate);
    /// The tags with these identifiers, in the standard order.
    static std::vector<OVNoteTag*> notesTagsWithUniqueIdentifiers(
        const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context);
    /// Tags of one component with a note that is neither trashed nor archived.
    static NSPredicate rootTagsPredicate();
    /// What `rootTagsPredicate` finds, in the standard order.
    static std::vector<OVNoteTag*> rootTagsInManagedObjectContext(NSManagedObjectContext& context);
    /// Tags with a note that is neither trashed nor archived, in the standard order.
    static std::vector<OVNoteTag*> populatedNotesTagsInManagedObjectContext(NSManagedObjectContext& context);
    /// The first tag whose whole title is `name`, compared without case and diacritics; null when there is none.
    static OVNoteTag* tagWithName(std::string_view name, NSManagedObjectContext& context);

    // Making and removing (tarnmodel/tags/OVNoteTag+Creation.cpp) ----------------------------------------------------
    /// Inserts a tag with the sanitized name as its title; null, and nothing is made, for an unusable name. Does not
    /// look whether there is one already.
    static OVNoteTag* addNewTagWithName(std::string_view name, NSManagedObjectContext& context);
    /// The tag of this name, made when there is none. Null for an unusable name, and when the store could not be asked
    /// (which is logged); then nothing is made.
    static OVNoteTag* getOrCreateTagWithName(std::string_view name, NSManagedObjectContext& context);
    /// The tags of these names, with one fetch for each 100 distinct names: tags that exist in fetch order, then new
    /// ones. Of names that mean the same tag the last one becomes the title. Unusable names are left out; ancestors are
    /// not made. Empty, and nothing is made, when the store could not be asked (which is logged).
    static std::vector<OVNoteTag*> getOrCreateTagWithNames(
        std::span<const std::string> names, NSManagedObjectContext& context);
    /// Deletes every tag without notes; trashed and archived notes count.
    static void deleteAllUnusedTagsInManagedObjectContext(NSManagedObjectContext& context);

    /// Others may have saved a tag of this name meanwhile: a new one gives way to it, with its notes.
    void deriveFromOthers() override;

    // Names and hierarchy (tarnmodel/tags/OVNoteTag+Hierarchy.cpp) ---------------------------------------------------
    /// The parts of the title between slashes; empty without a title.
    std::vector<std::string> tagComponents() const;
    /// The same, folded. Computed once: it does not follow a later change of the title.
    const std::vector<std::string>& tagComponentsLowerCaseDiacritic() const;
    /// The path of these components.
    std::string tagStringFromComponents(const std::vector<std::string>& components) const;
    /// The last component; none for an empty path.
    std::optional<std::string> leafTagName() const;
    /// The path without its last component; none for a path of one.
    std::optional<std::string> fatherTagName() const;
    /// The tag of that name; null when there is no such name or tag.
    OVNoteTag* fatherTag() const;
    /// The tag named by the first of several components; null for a path of one.
    OVNoteTag* rootFatherTag() const;
    /// The components joined by slashes.
    std::string displayTitle() const;
    /// The key by which tags are the same; "" without a title.
    std::string normalizedTitle() const;
    /// The key of `leafTagName`.
    std::optional<std::string> normalizedLeafTagName() const;
    /// The key of `fatherTagName`.
    std::optional<std::string> normalizedFatherTagName() const;
    /// The hashtag as a text writes it, in the closed form where the name needs that.
    std::string hashTagString() const;
    /// Whether this tag stands right below `tag`; compared folded.
    bool isChildOfTag(const OVNoteTag& tag) const;
    /// Whether this tag stands anywhere below `tag`; compared folded. No tag is below itself.
    bool isDescendantOfTag(const OVNoteTag& tag) const;
    /// The tags anywhere below this one that have a note neither trashed nor archived, sorted when descriptors are
    /// given. A failed fetch is logged and gives an empty list.
    std::vector<OVNoteTag*> childsAndSubChildsTagsWithSortDescriptors() const;
    std::vector<OVNoteTag*> childsAndSubChildsTagsWithSortDescriptors(
        const std::vector<NSSortDescriptor>& sortDescriptors) const;
    /// Those of them that stand right below this one.
    std::vector<OVNoteTag*> childTagsWithSortDescriptors() const;
    std::vector<OVNoteTag*> childTagsWithSortDescriptors(const std::vector<NSSortDescriptor>& sortDescriptors) const;

    // The notes of a tag (tarnmodel/tags/OVNoteTag+Fetching.cpp) -----------------------------------------------------
    /// Finds this tag's notes that are neither trashed nor archived, those of the tags below it included. Names this
    /// record: use it while that lives.
    NSPredicate untrashedNotesPredicate() const;
    /// The same; false leaves out notes that also carry a tag below this one.
    NSPredicate untrashedNotesPredicateIncludingNotesFromChildTags(bool includesNotesFromChildTags) const;
    /// How many notes `untrashedNotesPredicate` finds, without loading them. None on failure, which is logged.
    std::optional<std::size_t> untrashedNotesCount() const;
    /// The notes that `untrashedNotesPredicate` finds. A failed fetch is logged and gives an empty list.
    std::vector<OVNote*> activeNotesWithSortDescriptors(const std::vector<NSSortDescriptor>& sortDescriptors) const;

    // Changing the tag in texts (tags/OVNoteTag+Rewriting.cpp, tags/OVNoteTag+Renaming.cpp) --------------------------
    // Texts are rewritten without touching modification dates. Each raises "Invalid accessor", and nothing has changed,
    // when one of the notes is locked.

    /// Adds the hashtag to notes that do not carry the tag: at the bottom, or below the title.
    void addTagToNotes(const std::vector<OVNote*>& notes, bool bottom);
    /// Takes the tag and those below it out of the texts; the records stay until unused tags are deleted.
    void deleteTag();
    void deleteTagInNotes(const std::vector<OVNote*>& notes);
    /// Gives the tag and those below it another name in all its notes, or in these; the tag that has the name now. A
    /// new name takes icon, sorting and pin along (a nested one loses the pin); a name that exists keeps its own.
    /// Pinned notes and icons of tags below always go along. Null, and nothing changes, for an unusable name, for the
    /// same name, when no text can take the name, and when the store could not be asked (which is logged).
    OVNoteTag* renameTagWithTagNamed(std::string_view newName);
    OVNoteTag* renameTagWithTagNamed(std::string_view newName, const std::vector<OVNote*>& notes);

    // Links from outside (tarnmodel/tags/OVNoteTag+XCallbackURL.cpp) -------------------------------------------------
    /// A percent-encoded URL of the application that shows the tag.
    std::string openTagXCallbackURLString() const;

    // State (tarnmodel/tags/OVNoteTag+State.cpp) ---------------------------------------------------------------------
    /// Sets the modification date to now.
    void updateModificationDate();
    /// Both set the date of the pin to now, also when nothing changes.
    void pin();
    void unpin();
    /// Whether the tag stands on top of the sidebar.
    bool isPinned() const;
    // These three set their companion date to now on every call, also when the value stays the same.
    void setTagcon(std::optional<std::string_view> tagcon) override;
    void setSorting(std::optional<std::int16_t> sorting) override;
    void setSortingDirection(std::optional<bool> sortingDirection) override;

private:
    OVNoteTag* rename(std::string_view newName, const std::vector<OVNote*>* notes);
    void giveWayTo(OVNoteTag& tag);
    void moveSettingsTo(OVNoteTag& tag) const;
    void movePinnedNotesTo(OVNoteTag& tag);
    void takeIconsOfSubTags(const std::vector<OVNoteTag*>& oldTags, std::string_view oldTitle);
    static std::vector<OVNoteTag*> tagsMatching(const std::optional<NSPredicate>& predicate,
        const std::vector<NSSortDescriptor>& sortDescriptors, NSManagedObjectContext& context);

    mutable std::optional<std::vector<std::string>> lowerCaseDiacriticComponents_;
};

} // namespace tarn
