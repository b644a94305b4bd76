#include "tarnmodel/notes/TitlePropagation.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/notes/EditGuard.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tarn {

namespace {

/// The notes that link to this one, each once, the first made first: what comes of a change does not depend on the
/// order in which links came and went.
std::vector<OVNote*> sourcesOf(const OVNote& note)
{
    std::vector<OVNote*> sources;
    std::unordered_set<const OVNote*> known;
    for (const OVNoteBackLink* link : note.linkedBySet().allObjects()) {
        OVNote* source = link->linkedBy();
        if (source && known.insert(source).second)
            sources.push_back(source);
    }
    std::ranges::stable_sort(sources, {},
        [](const OVNote* source) { return std::pair(source->creationDate(), source->uniqueIdentifier()); });
    return sources;
}

/// A note without title is linked by its identifier.
std::optional<std::string> linkedTitle(const OVNote& note, std::optional<std::string_view> title)
{
    if (!title)
        return std::nullopt;
    return title->empty() ? note.uniqueIdentifier().value_or("") : std::string(*title);
}

/// Whether a record of the source leads to the note by a title that the note no longer has.
bool hasOutdatedLink(const OVNote& source, const OVNote& note, std::string_view newTitle)
{
    const std::string key = fold(newTitle);
    const std::vector<OVNoteBackLink*> links = source.linkingToSet().allObjects();
    return std::ranges::any_of(links, [&](const OVNoteBackLink* link) {
        return link->linkingTo() == &note && fold(link->title().value_or("")) != key;
    });
}

} // namespace

thread_local TitlePropagation* TitlePropagation::current_ = nullptr;

TitlePropagation::TitlePropagation() : outer_(current_)
{
    current_ = this;
}

TitlePropagation::~TitlePropagation()
{
    current_ = outer_;
}

void TitlePropagation::titleChanged(
    OVNote& note, std::optional<std::string_view> newTitle, std::optional<std::string_view> oldTitle)
{
    if (newTitle == oldTitle)
        return;
    auto linkedNew = linkedTitle(note, newTitle);
    auto linkedOld = linkedTitle(note, oldTitle);
    if (isRewriting(note)) {
        current_->add(note, std::move(linkedNew), std::move(linkedOld));
        return;
    }
    const auto held = EditGuard::holdUnlocked(note.managedObjectContext());
    TitlePropagation propagation;
    propagation.add(note, std::move(linkedNew), std::move(linkedOld));
    propagation.run();
}

void TitlePropagation::forget(const OVNote& note)
{
    for (TitlePropagation* propagation = current_; propagation; propagation = propagation->outer_)
        propagation->guard_.forget(note);
}

void TitlePropagation::add(OVNote& note, std::optional<std::string> newTitle, std::optional<std::string> oldTitle)
{
    // Named now: a source that another chain parses first drops its link to the old title, and its text has it still.
    const bool isFollowed = newTitle && oldTitle;
    changes_.push_back(
        {&note, std::move(newTitle), std::move(oldTitle), isFollowed ? sourcesOf(note) : std::vector<OVNote*>()});
}

void TitlePropagation::run()
{
    while (!changes_.empty()) {
        Change& change = changes_.back();
        if (change.next == change.sources.size()) {
            const Change done = std::move(change);
            changes_.pop_back();
            if (done.newTitle && !done.note->isDeleted())
                attachWaitingLinks(*done.note, *done.newTitle);
            continue;
        }
        OVNote* source = change.sources[change.next++];
        if (!source->isDeleted() && !source->encryptedValue())
            rewrite(*source, change);
    }
}

/// A changed title of the source is put on top of the stack, so that its chain is followed before the next source.
void TitlePropagation::rewrite(OVNote& source, const Change& change)
{
    const bool mayChangeTitleLine = guard_.allows(source, *change.oldTitle);
    const std::string text = source.text().value_or("");
    const CVKAST document
        = CVKWikiLink::updateWikiLinkWithTitle(*change.oldTitle, *change.newTitle, !mayChangeTitleLine, text);
    // A link that cannot be rewritten keeps the old title in the text, so its record must not lead to the note.
    if (mayChangeTitleLine && document.markdown() == text && !hasOutdatedLink(source, *change.note, *change.newTitle))
        return;
    beingRewritten_ = &source;
    source.updateNoteWithAST(document, false);
    beingRewritten_ = nullptr;
}

void TitlePropagation::attachWaitingLinks(OVNote& note, const std::string& title)
{
    for (OVNoteBackLink* link : OVNoteBackLink::backlinksForTitle(title, true, note.managedObjectContext())) {
        if (const OVNote* former = link->linkingTo())
            forget(*former);
        forget(note);
        link->setLinkingTo(&note);
    }
}

} // namespace tarn
