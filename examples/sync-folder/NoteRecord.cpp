#include "examples/sync-folder/NoteRecord.h"

#include <array>

namespace tarn::syncfolder {

namespace {

// Keys are the model's, so that a value is found under one name on both sides.
constexpr std::string_view kText = "text";
constexpr std::string_view kClock = "vectorClock";
constexpr std::string_view kDeleted = "permanentlyDeleted";

/// What is written together with the text, or once and for all.
constexpr std::array<std::string_view, 3> kTextFields{"creationDate", "modificationDate", "lastEditingDevice"};

/// A state of a note, and the date that says when it was last set.
struct DatedField {
    std::string_view key;
    std::string_view dateKey;
};
constexpr std::array kDatedFields{
    DatedField{"archived", "archivedDate"},
    DatedField{"trashed", "trashedDate"},
    DatedField{"pinned", "pinnedDate"},
    DatedField{"locked", "lockedDate"},
    DatedField{"conflictUniqueIdentifier", "conflictUniqueIdentifierDate"},
};

CKRecord systemFieldsOf(const OVNote& note, const CKRecordZoneID& zone)
{
    if (const OVNoteServerData* data = note.serverData())
        if (const auto record = data->ckRecord())
            return *record;
    return CKRecord("Note", {note.uniqueIdentifier().value_or(""), zone});
}

/// An order of the values of one state, so that two devices that set it at the same moment agree on one of them.
bool comesBefore(const Value& left, const Value& right)
{
    if (left.kind() != right.kind())
        return left.kind() < right.kind();
    switch (left.kind()) {
    case Value::Kind::Bool:
        return left.asBool() < right.asBool();
    case Value::Kind::String:
        return left.asString() < right.asString();
    case Value::Kind::Date:
        return left.asDate() < right.asDate();
    default:
        return false;
    }
}

} // namespace

CKRecord recordOfNote(const OVNote& note, const CKRecordZoneID& zone)
{
    CKRecord record = systemFieldsOf(note, zone);
    record.setValueForKey(kClock, note.vectorClock());
    if (note.permanentlyDeletedValue()) {
        record.setValueForKey(kDeleted, true);
        return record;
    }
    record.setValueForKey(kText, note.text());
    for (const std::string_view key : kTextFields)
        record.setValueForKey(key, note.valueForKey(key));
    for (const DatedField& field : kDatedFields) {
        record.setValueForKey(field.key, note.valueForKey(field.key));
        record.setValueForKey(field.dateKey, note.valueForKey(field.dateKey));
    }
    return record;
}

std::string identifierOf(const CKRecord& record)
{
    return record.recordID().recordName;
}

std::optional<std::string> textOf(const CKRecord& record)
{
    const Value text = record.valueForKey(kText);
    return text.kind() == Value::Kind::String ? std::optional(text.asString()) : std::nullopt;
}

TolVectorClock clockOf(const CKRecord& record)
{
    const Value data = record.valueForKey(kClock);
    if (data.kind() != Value::Kind::Data)
        return {};
    return TolVectorClock::initWithData(data.asData()).value_or(TolVectorClock());
}

bool isTombstone(const CKRecord& record)
{
    return record.valueForKey(kDeleted) == Value(true);
}

bool haveEqualValues(const CKRecord& left, const CKRecord& right)
{
    const std::vector<std::string> keys = left.allKeys();
    if (keys != right.allKeys())
        return false;
    for (const std::string& key : keys)
        if (!(left.valueForKey(key) == right.valueForKey(key)))
            return false;
    return true;
}

void takeText(OVNote& note, const CKRecord& record, const TolVectorClock& clock)
{
    note.setPermanentlyDeletedValue(isTombstone(record));
    const auto text = textOf(record);
    if (text && text != note.text())
        note.updateNoteWithText(*text, false);
    for (const std::string_view key : kTextFields)
        if (const Value value = record.valueForKey(key); !value.isNil())
            note.setValueForKey(key, value);
    note.setVectorClock(clock.data());
}

void takeLaterStates(OVNote& note, const CKRecord& record)
{
    for (const DatedField& field : kDatedFields) {
        const Value value = record.valueForKey(field.key);
        const Value date = record.valueForKey(field.dateKey);
        const Value ownDate = note.valueForKey(field.dateKey);
        const bool isLater
            = comesBefore(ownDate, date) || (ownDate == date && comesBefore(note.valueForKey(field.key), value));
        if (!isLater)
            continue;
        note.setValueForKey(field.key, value);
        note.setValueForKey(field.dateKey, date);
    }
}

} // namespace tarn::syncfolder
