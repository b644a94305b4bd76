#pragma once

#include "tarnmodel/model/_OVNoteBackLink.h"

#include <vector>

namespace tarn {

class NSPredicate;

/// One wiki link: stands in the text of `linkedBy` and leads to `linkingTo`, or to nothing while there is no such note.
///
/// Confined to its context's queue.
class OVNoteBackLink : public _OVNoteBackLink {
public:
    using _OVNoteBackLink::_OVNoteBackLink;

    /// A new link with its identifier, version 3 and the date of now.
    static OVNoteBackLink* insertInManagedObjectContext(NSManagedObjectContext& context);
    /// A link whose note was deleted while others made it stands in no text: it goes.
    void deriveFromOthers() override;

    // Fetching (tarnmodel/notes/OVNoteBackLink+Fetching.cpp) ---------------------------------------------------------
    /// The links that the predicate finds; all without one. A failed fetch is logged and gives an empty list.
    static std::vector<OVNoteBackLink*> backlinksInManagedObjectContext(
        NSManagedObjectContext& context, const std::optional<NSPredicate>& predicate);
    /// The links to this title, compared without case and diacritics; with `onlyEmpty` those without a target or with a
    /// trashed one. Empty on failure, which is not logged.
    static std::vector<OVNoteBackLink*> backlinksForTitle(
        std::string_view title, bool onlyEmpty, NSManagedObjectContext& context);
    /// The links with these identifiers. Empty on failure, which is not logged.
    static std::vector<OVNoteBackLink*> backlinksForUUIDs(
        const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context);
};

} // namespace tarn
