#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/diagnosis/ClearTextInternal.h"
#include "tarnmodel/diagnosis/NoteExaminationInternal.h"
#include "tarnmodel/diagnosis/TagRepairInternal.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/notes/ToDoCount.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarn {

namespace {

using Kind = StoreFinding::Kind;
using TagKeys = std::set<std::string>;

TagKeys keysOf(const std::vector<std::string>& tags)
{
    TagKeys keys;
    for (const std::string& tag : tags)
        keys.insert(CVKHashtag::normalizeTagName(tag));
    return keys;
}

TagKeys tagKeysOf(const OVNote& note)
{
    TagKeys keys;
    for (const OVNoteTag* tag : note.tagsSet().allObjects())
        keys.insert(tag->normalizedTitle());
    return keys;
}

Value boxed(const TagKeys& keys)
{
    return Value::Array(keys.begin(), keys.end());
}

/// Where links stand, and the folded titles that they name.
using LinkPlaces = std::multiset<std::pair<std::int64_t, std::string>>;

LinkPlaces placesOf(const std::vector<CVKWikiLink>& links)
{
    LinkPlaces places;
    for (const CVKWikiLink& link : links)
        places.emplace(static_cast<std::int64_t>(link.offset()), fold(link.decodedTitle()));
    return places;
}

LinkPlaces placesOfRecords(const OVNote& note)
{
    LinkPlaces places;
    for (const OVNoteBackLink* link : note.linkingToSet().allObjects())
        places.emplace(link->locationValue(), fold(link->title().value_or("")));
    return places;
}

/// Whether each link that leads somewhere leads to a note of the title that it names.
bool targetsHaveTheirTitles(const OVNote& note)
{
    const std::vector<OVNoteBackLink*> links = note.linkingToSet().allObjects();
    return std::ranges::all_of(links, [](const OVNoteBackLink* link) {
        const OVNote* target = link->linkingTo();
        if (!target)
            return true;
        const std::string title = target->title().value_or("");
        const std::string linked = title.empty() ? target->uniqueIdentifier().value_or("") : title;
        return fold(linked) == fold(link->title().value_or(""));
    });
}

struct AttachmentFlags {
    bool images = false;
    bool files = false;
};

AttachmentFlags attachmentFlagsOf(const OVNote& note)
{
    AttachmentFlags flags;
    for (const OVNoteFile* file : note.filesSet().allObjects()) {
        if (file->isUnused())
            continue;
        const bool image = dynamic_cast<const OVNoteImage*>(file) != nullptr;
        flags.images = flags.images || image;
        flags.files = flags.files || !image;
    }
    return flags;
}

/// Compares a note with what its text says.
class Comparison {
public:
    explicit Comparison(const OVNote& note) : note_(note) { }

    void require(bool holds, Kind kind, Value stored = {}, Value derived = {})
    {
        if (holds)
            return;
        StoreFinding& finding = findings_.emplace_back();
        finding.kind = kind;
        finding.objectID = note_.objectID();
        finding.uniqueIdentifier = note_.uniqueIdentifier();
        finding.title = note_.title();
        finding.stored = std::move(stored);
        finding.derived = std::move(derived);
    }
    template <typename Field> void requireEqual(Kind kind, const Field& stored, const Field& derived)
    {
        require(stored == derived, kind, Value(stored), Value(derived));
    }
    std::vector<StoreFinding> takeFindings() { return std::move(findings_); }

private:
    const OVNote& note_;
    std::vector<StoreFinding> findings_;
};

void compareFields(Comparison& comparison, const OVNote& note, const CVKTextSummary& summary)
{
    comparison.requireEqual(Kind::WrongTitle, note.title().value_or(""), summary.title);
    const std::optional<std::string> subtitle = note.subtitle();
    // A note with a protected attachment has no subtitle; that costs a look-up, so it is asked last.
    comparison.require(subtitle.value_or("") == summary.subtitle || (!subtitle && note.hasEncryption()),
        Kind::WrongSubtitle, subtitle, summary.subtitle);
    comparison.requireEqual(Kind::WrongOpenToDos, note.todoIncompletedValue(), storedToDoCount(summary.todoCount));
    comparison.requireEqual(Kind::WrongDoneToDos, note.todoCompletedValue(), storedToDoCount(summary.doneCount));
    comparison.requireEqual(Kind::WrongCodeFlag, note.hasSourceCodeValue(), summary.codeBlockCount != 0);
    const AttachmentFlags attachments = attachmentFlagsOf(note);
    comparison.requireEqual(Kind::WrongImagesFlag, note.hasImagesValue(), attachments.images);
    comparison.requireEqual(Kind::WrongFilesFlag, note.hasFilesValue(), attachments.files);
}

} // namespace

std::vector<StoreFinding> findingsInNote(const OVNote& note, std::set<std::string>& tagKeysInTexts)
{
    Comparison comparison(note);
    if (note.encryptedValue()) {
        comparison.require(hasParentTags(note), Kind::MissingParentTags);
        std::vector<StoreFinding> findings = comparison.takeFindings();
        std::ranges::move(clearTextsOfNote(note), std::back_inserter(findings));
        return findings;
    }
    const CVKAST document = CVKAST::fromMarkdown(note.text().value_or(""));
    const CVKTextSummary& summary = document.textSummary();
    const TagKeys keys = keysOf(summary.tags);
    tagKeysInTexts.insert(keys.begin(), keys.end());

    compareFields(comparison, note, summary);
    const TagKeys storedKeys = tagKeysOf(note);
    comparison.require(storedKeys == keys, Kind::WrongNoteTags, boxed(storedKeys), boxed(keys));
    comparison.require(placesOfRecords(note) == placesOf(summary.wikiLinks), Kind::WrongLinks);
    comparison.require(targetsHaveTheirTitles(note), Kind::WrongLinkTarget);
    return comparison.takeFindings();
}

} // namespace tarn
