#pragma once

#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteCaches.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tarn {

/// Finds the notes that wiki links lead to: by title, or by identifier where a note has no title.
///
/// Of several notes with one title an untrashed one counts before a trashed one, and of these the one made first. Rests
/// on a cache that an operation on many notes lends; without one it has a cache of its own.
///
///     LinkTargets targets(context, note.notesCache());
///     if (targets.lookUp(links))
///         link->setLinkingTo(targets.targetOf("Groceries"));
class LinkTargets {
public:
    /// `lent` may be null and must outlive this.
    LinkTargets(NSManagedObjectContext& context, OVNote::NotesCache* lent) : context_(context), lent_(lent) { }
    LinkTargets(const LinkTargets&) = delete;
    LinkTargets& operator=(const LinkTargets&) = delete;

    /// Fetches what the cache does not know, at once for all links. False when the store could not be asked (which is
    /// logged).
    bool lookUp(std::span<const CVKWikiLink> links);
    /// The note of this title; null when there is none, or when it was not looked up.
    OVNote* targetOf(std::string_view title) const;

private:
    const OVNote::NotesCache& cache() const { return lent_ ? *lent_ : own_; }
    OVNote::NotesCache& cache() { return lent_ ? *lent_ : own_; }
    OVNote* knownTarget(const std::string& key) const;

    NSManagedObjectContext& context_;
    OVNote::NotesCache* lent_;
    OVNote::NotesCache own_;
};

/// By which links find the note: its folded title, or its folded identifier where it has none.
std::string linkKeyOf(const OVNote& note);
/// The same for a note of this title and this identifier.
std::string linkKeyOf(const std::optional<std::string>& title, const std::optional<std::string>& uniqueIdentifier);

} // namespace tarn
