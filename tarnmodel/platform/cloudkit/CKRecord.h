#pragma once

#include "tarnmodel/platform/cloudkit/CKRecordZoneID.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <map>
#include <vector>

namespace tarn {

/// Names a record of the server: its name within a zone. A plain value; any thread.
struct CKRecordID {
    std::string recordName; ///< unique in its zone
    CKRecordZoneID zoneID;  ///< where the record lies
    friend bool operator==(const CKRecordID&, const CKRecordID&) = default;
};

/// A record as the server keeps it: system fields, which the server sets, and values, which a client sets. A plain
/// value; any thread.
///
/// The archived system fields are what a client keeps between two uploads: with them the server tells whether the
/// upload was made against its latest version.
///
///     CKRecord record("Note", {.recordName = uniqueIdentifier, .zoneID = zone});
///     record.setValueForKey("title", title);
class CKRecord {
public:
    /// A record without values that the server has not seen.
    CKRecord(std::string_view recordType, CKRecordID recordID) : recordType_(recordType), recordID_(std::move(recordID))
    { }

    // System fields.
    /// The name of its type.
    const std::string& recordType() const noexcept { return recordType_; }
    /// Its name and its zone.
    const CKRecordID& recordID() const noexcept { return recordID_; }
    /// Which version of the record this is; none before the server has seen it.
    std::optional<std::string> recordChangeTag;
    /// By the server's clock; none before it has seen the record.
    std::optional<NSDate> creationDate;
    /// When the server last stored it, by its clock; none before it has seen the record.
    std::optional<NSDate> modificationDate;

    // Values. Strings, numbers, dates, data and arrays of them; objects cannot be held.
    /// Nil when there is none.
    Value valueForKey(std::string_view key) const;
    /// Nil takes the value away. Raises `NSInvalidArgumentException` for an object.
    void setValueForKey(std::string_view key, const Value& value);
    /// The names of the values, in ascending order.
    std::vector<std::string> allKeys() const;

    // Archives of the system fields alone.
    /// Writes the system fields into an archive.
    void encodeSystemFieldsWithCoder(NSKeyedArchiver& archiver) const;
    /// A record without values; none when a field is missing or of another kind.
    static std::optional<CKRecord> initWithCoder(const NSKeyedUnarchiver& unarchiver);
    /// None when the fields are too large to archive.
    std::optional<NSData> archivedSystemFields() const;
    /// None for anything but an archive of system fields.
    static std::optional<CKRecord> recordWithArchivedSystemFields(std::span<const std::byte> bytes);

    friend bool operator==(const CKRecord&, const CKRecord&) = default;

private:
    std::string recordType_;
    CKRecordID recordID_;
    std::map<std::string, Value, std::less<>> values_;
};

} // namespace tarn
