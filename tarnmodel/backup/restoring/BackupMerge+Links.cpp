#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/restoring/BackupMerge.h"
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteFile.h"

#include <algorithm>
#include <span>

namespace tarn {

namespace {

constexpr std::size_t kNotesAtATime = 100;

bool hasLink(const OVNote& note, const BackupRecord& record)
{
    return std::ranges::any_of(note.linkingToSet().allObjects(), [&](const OVNoteBackLink* link) {
        return link->storedValueForKey("title") == record.attribute("title")
            && link->storedValueForKey("location") == record.attribute("location");
    });
}

} // namespace

void BackupMerge::mergeLinks(const Page& page)
{
    const Existing existing = existingRecords("OVNoteBackLink", page);
    for (const BackupRecord& record : page)
        if (!existingRecord(existing, record))
            mergeLink(record);
}

void BackupMerge::mergeLink(const BackupRecord& record)
{
    const auto from = notes_.find(record.toOne("linkedBy"));
    OVNote* note = nullptr;
    if (from != notes_.end()) {
        const Fate fate = from->second.fate;
        if (fate == Fate::Newer || (fate == Fate::Same && !isResumed_))
            return;
        note = static_cast<OVNote*>(context_.existingObjectWithID(from->second.record));
        if (!note || hasLink(*note, record))
            return;
    }
    auto& link = static_cast<OVNoteBackLink&>(insertRecord(record));
    link.setLinkedBy(note);
    if (const auto to = notes_.find(record.toOne("linkingTo")); to != notes_.end())
        link.setLinkingTo(static_cast<OVNote*>(context_.existingObjectWithID(to->second.target)));
}

/// Beside notes that the backup does not know, what follows from the texts may be something else than it was.
void BackupMerge::deriveNotes()
{
    if (wasEmpty_)
        return;
    std::span<const NSManagedObjectID> rest = toDerive_;
    while (!rest.empty()) {
        const auto page = rest.first(std::min(rest.size(), kNotesAtATime));
        save([&] {
            for (const NSManagedObjectID& objectID : page)
                if (auto* note = static_cast<OVNote*>(context_.existingObjectWithID(objectID)))
                    deriveNote(*note);
        });
        rest = rest.subspan(page.size());
    }
}

/// Neither a date nor a clock moves: nobody has edited the note.
void BackupMerge::deriveNote(OVNote& note)
{
    const auto text = note.storedText();
    if (!text || note.encryptedValue())
        return;
    const CVKAST document = CVKAST::fromMarkdown(*text);
    const CVKTextSummary& summary = document.textSummary();
    note.setTagsFromStrings(summary.tags);
    note.setLinkedNotesFromWikiLinks(summary.wikiLinks);
    note.updateLinkedByNoteForNewTitle(note.title(), std::nullopt);
    // The stored name of a protected attachment is not the one that the text knows it by.
    if (!note.hasEncryption())
        note.updateFilesFromTextSummary(summary);
}

} // namespace tarn
