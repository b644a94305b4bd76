#include "tools/tarn/import/ImportBatch.h"

#include "tarnmodel/notes/OVNoteCacheLoan.h"
#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/import/links/LinkComparison.h"
#include "tools/tarn/import/record/RecordSettling.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

void count(const std::vector<RewrittenLink>& links, LinkCounts& counts)
{
    using Outcome = RewrittenLink::Outcome;
    for (const RewrittenLink& link : links) {
        const bool leads = link.outcome == Outcome::Wiki || link.outcome == Outcome::ByIdentifier;
        counts.ambiguous += leads && link.isOneOfSeveral ? 1 : 0;
        counts.anchors += leads && link.hasAnchor ? 1 : 0;
        counts.wiki += link.outcome == Outcome::Wiki ? 1 : 0;
        counts.byIdentifier += link.outcome == Outcome::ByIdentifier ? 1 : 0;
        counts.waiting += link.outcome == Outcome::Waiting ? 1 : 0;
        counts.outside += link.outcome == Outcome::Outside ? 1 : 0;
        counts.missing += link.outcome == Outcome::Missing ? 1 : 0;
        counts.kept += link.outcome == Outcome::Kept ? 1 : 0;
    }
}

bool hasWaitingLinks(const ComposedNote& composed)
{
    return std::ranges::any_of(composed.links, [](const RewrittenLink& link) {
        return link.outcome == RewrittenLink::Outcome::Waiting || link.outcome == RewrittenLink::Outcome::Missing;
    });
}

/// Whether links lead nowhere from the place of the file that it had led to notes and attachments before: it has moved
/// away from them, or they are gone. The note keeps them.
bool losesLinks(const OVNote& note, const ComposedNote& composed)
{
    using Outcome = RewrittenLink::Outcome;
    const std::vector<LinkTarget> old = linkTargetsOf(CVKAST::fromMarkdown(note.text().value_or("")));
    const std::vector<LinkTarget> now = linkTargetsOf(CVKAST::fromMarkdown(composed.text));
    if (old.size() != now.size() || now.size() != composed.links.size())
        return true;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const Outcome outcome = composed.links[i].outcome;
        const bool leadsNowhere = outcome == Outcome::Waiting || outcome == Outcome::Missing
            || outcome == Outcome::Outside || outcome == Outcome::Kept;
        if (leadsNowhere && old[i] != now[i])
            return true;
    }
    return false;
}

} // namespace

OVNote* ImportBatch::noteOf(const PlannedFile& planned) const
{
    const bool isThere = import_.session && import_.session->exists();
    return isThere ? noteWithIdentifier(planned.identifier, *import_.session) : nullptr;
}

void ImportBatch::begin(const std::vector<const PlannedFile*>& files)
{
    std::vector<OVNote*> retitled;
    for (const PlannedFile* planned : files) {
        OVNote* note = planned->known ? noteOf(*planned) : nullptr;
        const bool isFree = note && obstacleOf(note).empty() && isAsImported(*note, planned->known->text);
        if (isFree)
            asImported_.insert(planned->identifier);
        if (isFree && note->title() != planned->title && retitled_.insert(planned->identifier).second)
            retitled.push_back(note);
    }
    if (!import_.writes)
        return;
    for (OVNote* note : retitled) {
        // No other note is called so, and no new text links it by that.
        const std::string aside = "# " + note->uniqueIdentifier().value_or("") + "\n\n";
        note->updateNoteWithText(aside + note->text().value_or(""), false);
    }
}

void ImportBatch::apply(const PlannedFile& planned, const ComposedNote& composed)
{
    OVNote* note = noteOf(planned);
    if (planned.known || note)
        changeNote(planned, composed, note);
    else
        insertNote(planned, composed);
}

void ImportBatch::insertNote(const PlannedFile& planned, const ComposedNote& composed)
{
    ++result_.imported;
    tell(planned, composed, FileOutcome::Imported);
    if (!import_.writes)
        return files_.count(composed);
    OVNote& note = *OVNote::insertInManagedObjectContext(import_.session->context());
    note.setUniqueIdentifier(planned.identifier);
    const std::string text = setText(note, composed);
    note.setCreationDate(composed.creationDate);
    if (composed.isPinned)
        note.pin();
    if (composed.isArchived)
        note.archive();
    if (composed.exported)
        setExportedState(note, planned, *composed.exported);
    note.setModificationDate(composed.modificationDate);
    announce(planned, sourceOf(planned, composed, text));
}

void ImportBatch::setExportedState(OVNote& note, const PlannedFile& planned, const ExportedIdentity& exported)
{
    if (planned.takenIdentifier)
        tellOnStandardError(
            planned.file.path + ": became a new note, since another one is " + *planned.takenIdentifier + " already");
    if (exported.isTrashed)
        note.trash();
    if (exported.isReadOnly)
        note.makeReadOnly();
    // A version that is alone has nothing to be in conflict with.
    if (!exported.conflict.empty() && !planned.takenIdentifier
        && import_.plan.versionsInConflict(exported.conflict) > 1) {
        note.setConflictUniqueIdentifier(exported.conflict);
        note.setConflictUniqueIdentifierDate(now());
    }
}

void ImportBatch::changeNote(const PlannedFile& planned, const ComposedNote& composed, OVNote* note)
{
    const bool isUnchanged = planned.known && planned.known->file == composed.bytes;
    if (composed.exported && note && !note->hasEncryption() && isUnchangedBy(composed, *note))
        return keep(planned, composed, note);
    const std::string obstacle = obstacleOf(note);
    if (!obstacle.empty())
        return isUnchanged ? keep(planned, composed, nullptr) : skip(planned, obstacle);
    const bool isOurs = planned.known && asImported_.contains(planned.identifier);
    if (isUnchanged && !isOurs)
        return keep(planned, composed, nullptr);
    if (isUnchangedBy(composed, *note))
        return keep(planned, composed, note);
    // One that gave up its title gets a text in any case: the file may have changed since the plan was made.
    if (isUnchanged && !isRetitled(planned) && losesLinks(*note, composed))
        return keep(planned, composed, nullptr);
    if (isOurs)
        return updateNote(planned, composed, *note);
    addCopy(planned, composed, *note);
}

bool ImportBatch::isUnchangedBy(const ComposedNote& composed, OVNote& note)
{
    const auto text = files_.textIfAttached(composed, note);
    return text && text == note.text();
}

bool ImportBatch::isAsImported(const OVNote& note, const std::optional<TextFingerprint>& imported)
{
    return tarn::isAsImported(note, imported, [this](const std::string& title, const std::string& target) {
        return import_.plan.onlyNoteOf(title) == target || import_.storeTitles.onlyNoteOf(title) == target;
    });
}

/// The note stays as it is; what is known of it may change.
void ImportBatch::keep(const PlannedFile& planned, const ComposedNote& composed, const OVNote* note)
{
    ++result_.unchanged;
    result_.moved += planned.hasMoved ? 1 : 0;
    tell(planned, composed, FileOutcome::Unchanged);
    const bool isKnown = planned.known && planned.known->file == composed.bytes;
    if (isKnown && !planned.hasMoved)
        return;
    ImportedSource source = planned.known ? *planned.known : ImportedSource{};
    if (!isKnown && note)
        source = sourceOf(planned, composed, note->text().value_or(""));
    source.path = planned.path;
    announce(planned, std::move(source));
}

void ImportBatch::updateNote(const PlannedFile& planned, const ComposedNote& composed, OVNote& note)
{
    ++result_.updated;
    tell(planned, composed, FileOutcome::Updated);
    if (!import_.writes)
        return;
    // A link that found its note is no change of what the file says.
    const bool isMended = planned.known->file == composed.bytes;
    const NSDate date = note.modificationDate().value_or(composed.modificationDate);
    const std::string text = setText(note, composed);
    note.setModificationDate(isMended ? date : composed.modificationDate);
    announce(planned, sourceOf(planned, composed, text));
}

/// Both were changed: what the file says now becomes a copy beside the note, once for each state of the file.
void ImportBatch::addCopy(const PlannedFile& planned, const ComposedNote& composed, OVNote& note)
{
    ++result_.conflicted;
    tell(planned, composed, FileOutcome::Conflicted);
    if (!import_.writes)
        return;
    OVNote* copy = planned.known ? noteWithIdentifier(planned.known->copy, *import_.session) : nullptr;
    if (!copy || copy->isTrashed() || !isAsImported(*copy, planned.known->copyText)) {
        copy = OVNote::insertInManagedObjectContext(import_.session->context());
        copy->setCreationDate(composed.creationDate);
    }
    const std::string text = setText(*copy, composed);
    copy->markAsConflictedFromNote(note);
    ImportedSource source = sourceOf(planned, composed, text);
    source.copy = copy->uniqueIdentifier().value_or("");
    source.copyText = std::exchange(source.text, planned.known ? planned.known->text : std::nullopt);
    announce(planned, std::move(source));
}

/// Gives the note the text of the file, with its attachments.
std::string ImportBatch::setText(OVNote& note, const ComposedNote& composed)
{
    const std::string text = files_.attach(composed, note);
    const OVNoteCacheLoan loan(note, tags_, notes_);
    note.updateNoteWithText(text);
    note.setModificationDate(composed.modificationDate);
    return text;
}

ImportedSource ImportBatch::sourceOf(const PlannedFile& planned, const ComposedNote& composed, const std::string& text)
{
    return {.path = planned.path,
        .note = planned.identifier,
        .file = composed.bytes,
        .stamp = {},
        .text = TextFingerprint::of(text, [this](const std::string& title) { return import_.plan.onlyNoteOf(title); }),
        .titleRule = planned.titleRule,
        .titleSuffix = planned.titleSuffix,
        .hasWaitingLinks = hasWaitingLinks(composed),
        .copy = {}};
}

void ImportBatch::announce(const PlannedFile& planned, ImportedSource source)
{
    if (planned.hasMoved)
        moved_.push_back(planned.known->path);
    announced_.push_back(std::move(source));
}

void ImportBatch::skip(const PlannedFile& planned, const std::string& reason)
{
    result_.skippedNotes.push_back({planned.file.path, reason});
    import_.handler({planned.file.path, planned.title, FileOutcome::Skipped});
}

void ImportBatch::tell(const PlannedFile& planned, const ComposedNote& composed, FileOutcome outcome)
{
    import_.handler({planned.file.path, planned.title, outcome});
    if (outcome == FileOutcome::Unchanged)
        return;
    count(composed.links, result_.links);
    for (const RewrittenLink& link : composed.links) {
        if (link.outcome != RewrittenLink::Outcome::Other && link.outcome != RewrittenLink::Outcome::File)
            result_.toldLinks.push_back({planned.file.path, link});
    }
}

} // namespace tarn
