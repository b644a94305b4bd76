#include "tarnmodel/diagnosis/RecordReadingInternal.h"
#include "tarnmodel/diagnosis/TagExaminationInternal.h"
#include "tarnmodel/diagnosis/TagRepairInternal.h"
#include "tarnmodel/model/OVNoteTag.h"

#include <utility>

namespace tarn {

namespace {

using Kind = StoreFinding::Kind;

StoreFinding findingOf(const OVNoteTag& tag, Kind kind, std::string title)
{
    StoreFinding finding;
    finding.kind = kind;
    finding.objectID = tag.objectID();
    finding.uniqueIdentifier = tag.uniqueIdentifier();
    finding.title = std::move(title);
    return finding;
}

StoreFinding findingOfMissingTag(const std::string& key)
{
    StoreFinding finding;
    finding.kind = Kind::MissingTag;
    finding.title = key;
    return finding;
}

} // namespace

std::vector<StoreFinding> findingsInTags(NSManagedObjectContext& context, const std::set<std::string>& tagKeysInTexts)
{
    std::vector<StoreFinding> findings;
    // Hashtags of protected texts cannot be read, so tags that only such notes have are taken on trust.
    const auto hasReadableNotes
        = NSPredicate::predicateWithFormat("SUBQUERY(notes, $note, $note.encrypted == NO).@count > 0");
    std::set<std::string> keysOfTags;
    for (const OVNoteTag* tag : readRecords<OVNoteTag>(context, hasReadableNotes)) {
        const std::string key = tag->normalizedTitle();
        if (!keysOfTags.insert(key).second)
            findings.push_back(findingOf(*tag, Kind::DuplicateTag, tag->displayTitle()));
        if (!tagKeysInTexts.contains(key))
            findings.push_back(findingOf(*tag, Kind::TagWithoutText, tag->displayTitle()));
    }
    for (const std::string& key : tagKeysInTexts) {
        if (!keysOfTags.contains(key))
            findings.push_back(findingOfMissingTag(key));
    }
    for (const OVNoteTag* tag : readRecords<OVNoteTag>(context)) {
        if (!hasUsableTitle(*tag))
            findings.push_back(findingOf(*tag, Kind::UnusableTagTitle, tag->title().value_or("")));
    }
    return findings;
}

} // namespace tarn
