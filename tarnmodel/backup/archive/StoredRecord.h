#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSAttributeDescription;
class NSEntityDescription;
class NSManagedObject;
class NSManagedObjectModel;
class NSRelationshipDescription;
class Value;

// Which records a backup holds, and each as a line of JSON; docs/backups.md tells of the form.

/// The entities whose records a backup holds, each behind those that its relationships lead to. What only this store
/// has to do with, its change log and what the server said, is none of them.
std::vector<const NSEntityDescription*> backedUpEntities(const NSManagedObjectModel& model);
/// The attributes of such an entity that a backup holds.
std::vector<const NSAttributeDescription*> backedUpAttributes(const NSEntityDescription& entity);
/// The relationships that it holds: of the two ends the one that the store keeps.
std::vector<const NSRelationshipDescription*> backedUpRelationships(const NSEntityDescription& entity);

/// The record as one line, without a line feed: stored values, never guarded ones.
std::string lineOfRecord(const NSManagedObject& record);

/// Finds the record of that number in the chain of an entity; null for none.
using RecordOfNumber = std::function<NSManagedObject*(const NSEntityDescription& root, std::int64_t number)>;
/// Writes what a line says into a new record, and gives its number. A number that no record has is passed over. Throws
/// a `BackupFailure` for what is no such line.
std::int64_t readLineIntoRecord(std::string_view line, NSManagedObject& record, const RecordOfNumber& recordOfNumber);

} // namespace tarn
