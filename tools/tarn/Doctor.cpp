#include "tools/tarn/Doctor.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/TagRepair.h"

#include <algorithm>
#include <cstdint>

namespace tarn {

namespace {

constexpr std::size_t kPage = 500;
constexpr std::size_t kShownProblems = 20;
constexpr std::size_t kLargestCount = 32'767; ///< where the counts of a note stop

std::int16_t countInNote(std::size_t count)
{
    return static_cast<std::int16_t>(std::min(count, kLargestCount));
}

/// How people find the note again.
std::string nameOf(const OVNote& note)
{
    return note.uniqueIdentifier().value_or("?") + " \"" + note.title().value_or("") + "\"";
}

std::set<std::string> keysOf(const std::vector<std::string>& tags)
{
    std::set<std::string> keys;
    for (const std::string& tag : tags)
        keys.insert(CVKHashtag::normalizeTagName(tag));
    return keys;
}

std::set<std::string> tagKeysOf(const OVNote& note)
{
    std::set<std::string> keys;
    for (const OVNoteTag* tag : note.tagsSet().allObjects())
        keys.insert(tag->normalizedTitle());
    return keys;
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

} // namespace

Doctor::Doctor(StoreSession& session) : session_(session) { }

std::vector<DoctorCheck> Doctor::examine()
{
    constexpr std::array<const char*, CheckCount> kNames{
        "integrity", "searchIndex", "title", "subtitle", "todos", "flags", "noteTags", "links", "tags"};
    for (std::size_t index = 0; index < CheckCount; ++index)
        checks_[index] = {.name = kNames[index], .found = 0, .problems = {}};
    keysInTexts_.clear();
    notesToRepair_.clear();
    examineFile();
    if (!fileIsDamaged())
        examineSearchIndex();
    examineNotes();
    examineTags();
    return {checks_.begin(), checks_.end()};
}

bool Doctor::fileIsDamaged() const noexcept
{
    return !checks_[Integrity].ok();
}

void Doctor::report(Check check, const std::string& problem)
{
    ++checks_[check].found;
    if (checks_[check].problems.size() < kShownProblems)
        checks_[check].problems.push_back(problem);
}

void Doctor::examineFile()
{
    NSError error;
    std::vector<std::string> problems;
    if (!session_.store().checkIntegrity(problems, &error))
        throw failureForStoreError("cannot check the file of the store", error);
    for (const std::string& problem : problems)
        report(Integrity, problem);
}

void Doctor::examineSearchIndex()
{
    NSError error;
    std::vector<std::string> problems;
    if (!session_.store().checkSearchIndex(problems, &error))
        throw failureForStoreError("cannot check the search index", error);
    for (const std::string& problem : problems)
        report(SearchIndex, problem);
}

void Doctor::examineNotes()
{
    for (std::size_t offset = 0;; offset += kPage) {
        const std::vector<OVNote*> notes = session_.notesPage(offset, kPage);
        for (const OVNote* note : notes)
            examineNote(*note);
        const bool last = notes.size() < kPage;
        session_.context().reset();
        if (last)
            return;
    }
}

void Doctor::examineNote(const OVNote& note)
{
    if (note.encryptedValue()) {
        if (!hasTagsAbove(note))
            report(NoteTags, nameOf(note) + ": it does not have every tag above its tags");
        return;
    }
    const CVKAST document = CVKAST::fromMarkdown(note.text().value_or(""));
    const CVKTextSummary& summary = document.textSummary();
    const std::set<std::string> keys = keysOf(summary.tags);
    keysInTexts_.insert(keys.begin(), keys.end());

    const std::string name = nameOf(note);
    bool sound = true;
    const auto check = [&](Check which, bool equal, std::string_view field) {
        sound = sound && equal;
        if (!equal)
            report(which, name + ": " + std::string(field) + " is not what the text says");
    };
    check(Title, note.title().value_or("") == summary.title, "the title");
    // A note with a protected attachment has no subtitle; that costs a look-up, so it is asked last.
    const bool subtitleFits
        = note.subtitle().value_or("") == summary.subtitle || (!note.subtitle() && note.hasEncryption());
    check(Subtitle, subtitleFits, "the subtitle");
    check(Todos, note.todoIncompletedValue() == countInNote(summary.todoCount), "the number of open to-dos");
    check(Todos, note.todoCompletedValue() == countInNote(summary.doneCount), "the number of completed to-dos");
    check(Flags, note.hasSourceCodeValue() == (summary.codeBlockCount != 0), "the flag for source code");
    const AttachmentFlags attachments = attachmentFlagsOf(note);
    check(Flags, note.hasImagesValue() == attachments.images, "the flag for images");
    check(Flags, note.hasFilesValue() == attachments.files, "the flag for files");
    check(NoteTags, tagKeysOf(note) == keys, "the set of tags");
    check(Links, placesOfRecords(note) == placesOf(summary.wikiLinks), "the set of links");
    check(Links, targetsHaveTheirTitles(note), "where a link leads");
    if (!sound)
        notesToRepair_.push_back(note.uniqueIdentifier().value_or(""));
}

void Doctor::examineTags()
{
    // Hashtags of protected texts cannot be read, so tags that only such notes have are taken on trust.
    const auto hasReadableNotes
        = NSPredicate::predicateWithFormat("SUBQUERY(notes, $note, $note.encrypted == NO).@count > 0");
    std::set<std::string> keysOfTags;
    for (const OVNoteTag* tag : session_.tags(hasReadableNotes)) {
        const std::string key = tag->normalizedTitle();
        if (!keysOfTags.insert(key).second)
            report(Tags, "#" + tag->displayTitle() + ": there are two such tags");
        if (!keysInTexts_.contains(key))
            report(Tags, "#" + tag->displayTitle() + ": no text names it, but it has notes");
    }
    for (const std::string& key : keysInTexts_) {
        if (!keysOfTags.contains(key))
            report(Tags, "#" + key + ": a text names it, but no tag with notes is so called");
    }
    for (const OVNoteTag* tag : session_.tags(std::nullopt)) {
        if (!hasCanonicalTitle(*tag))
            report(Tags, "#" + tag->title().value_or("") + ": no text can give a tag this name");
    }
    session_.context().reset();
}

namespace {

/// A wrong title is no old one: nobody's links are rewritten for it.
void deriveAnew(OVNote& note)
{
    const CVKAST document = CVKAST::fromMarkdown(note.text().value_or(""));
    note.setTitle(document.textSummary().title);
    note.updateNoteWithAST(document, false);
    note.updateLinkedByNoteForNewTitle(document.textSummary().title, std::nullopt);
}

} // namespace

std::size_t Doctor::repairTags()
{
    const std::size_t mended = TagRepair(session_).run();
    session_.save();
    session_.context().reset();
    return mended;
}

std::size_t Doctor::repair()
{
    std::size_t repaired = 0;
    for (const std::string& identifier : notesToRepair_) {
        for (OVNote* note : session_.notes(NSPredicate::predicateWithFormat("uniqueIdentifier == %@", identifier))) {
            deriveAnew(*note);
            ++repaired;
        }
        if (repaired % kPage == 0) {
            session_.save();
            session_.context().reset();
        }
    }
    session_.save();
    session_.context().reset();
    return repaired;
}

std::size_t Doctor::repairSearchIndex()
{
    NSError error;
    std::size_t repaired = 0;
    if (!session_.store().repairSearchIndex(repaired, &error))
        throw failureForStoreError("cannot repair the search index", error);
    return repaired;
}

} // namespace tarn
