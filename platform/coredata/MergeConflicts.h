#pragma once

#include "platform/coredata/NSManagedObjectContext.h"
#include "platform/coredata/NSPersistentStore.h"

namespace tarn {

class ContextCore;

/// Whose value stays where both sides changed a property.
enum class MergeWinner : std::uint8_t { Store, Context };

/// Joins a record's unsaved changes with a row that another writer has moved, property by property.
///
/// A property that one side changed goes to that side; one that both changed goes to the winner, and the other
/// value is told to the conflict handler and the log. What derives from a note's text goes as one group
/// with the text. Afterwards the record holds the merged values over the row's version, and only what differs from the
/// row counts as changed.
void mergeRowIntoRecord(ContextCore& core, NSManagedObject& record, StoreRow row, MergeWinner winner);

} // namespace tarn
