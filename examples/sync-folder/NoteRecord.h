#pragma once

#include <tarnmodel/TarnModel.h>

#include <optional>
#include <string>

// Notes as the server keeps them.

namespace tarn::syncfolder {

/// What a note says to other devices, over the system fields that the server last gave it. A note that is deleted for
/// good says no more than that.
CKRecord recordOfNote(const OVNote& note, const CKRecordZoneID& zone);

/// The note's unique identifier.
std::string identifierOf(const CKRecord& record);
std::optional<std::string> textOf(const CKRecord& record);
TolVectorClock clockOf(const CKRecord& record);
/// Whether the note was deleted for good.
bool isTombstone(const CKRecord& record);
/// Whether both say the same, whatever the server thinks of them.
bool haveEqualValues(const CKRecord& left, const CKRecord& right);

/// The text and what goes with it, with the clock given; nothing is counted as an edit of this device.
void takeText(OVNote& note, const CKRecord& record, const TolVectorClock& clock);
/// State by state (in the trash, pinned, ...) the value that was set later, here or there.
void takeLaterStates(OVNote& note, const CKRecord& record);

} // namespace tarn::syncfolder
