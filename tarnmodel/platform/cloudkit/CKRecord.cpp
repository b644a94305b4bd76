#include "tarnmodel/platform/cloudkit/CKRecord.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>

namespace tarn {
namespace {

constexpr std::string_view kRecordClass = "CKRecord";

bool holdsObject(const Value& value)
{
    if (value.kind() == Value::Kind::Array)
        return std::any_of(value.asArray().begin(), value.asArray().end(), holdsObject);
    return value.kind() == Value::Kind::Object;
}

/// Whether a date is there and is one, or is not there at all.
bool readOptionalDate(const NSKeyedUnarchiver& unarchiver, std::string_view key, std::optional<NSDate>& date)
{
    date = unarchiver.decodeDate(key);
    return date || !unarchiver.containsValueForKey(key);
}

} // namespace

Value CKRecord::valueForKey(std::string_view key) const
{
    const auto found = values_.find(key);
    return found == values_.end() ? Value() : found->second;
}

void CKRecord::setValueForKey(std::string_view key, const Value& value)
{
    if (holdsObject(value))
        throw NSException(NSInvalidArgumentException, "\"" + std::string(key) + "\" of a server record is an object");
    if (value.isNil())
        values_.erase(std::string(key));
    else
        values_.insert_or_assign(std::string(key), value);
}

std::vector<std::string> CKRecord::allKeys() const
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : values_)
        keys.push_back(key);
    return keys;
}

void CKRecord::encodeSystemFieldsWithCoder(NSKeyedArchiver& archiver) const
{
    archiver.encode("recordType", recordType_);
    archiver.encode("recordName", recordID_.recordName);
    archiver.encode("zoneName", recordID_.zoneID.zoneName);
    archiver.encode("ownerName", recordID_.zoneID.ownerName);
    archiver.encode("recordChangeTag", recordChangeTag);
    archiver.encode("creationDate", creationDate);
    archiver.encode("modificationDate", modificationDate);
}

std::optional<CKRecord> CKRecord::initWithCoder(const NSKeyedUnarchiver& unarchiver)
{
    const auto recordType = unarchiver.decodeString("recordType");
    auto recordName = unarchiver.decodeString("recordName");
    auto zoneName = unarchiver.decodeString("zoneName");
    auto ownerName = unarchiver.decodeString("ownerName");
    if (!recordType || !recordName || !zoneName || !ownerName)
        return std::nullopt;
    CKRecord record(*recordType, {std::move(*recordName), {std::move(*zoneName), std::move(*ownerName)}});
    record.recordChangeTag = unarchiver.decodeString("recordChangeTag");
    const bool isWhole = (record.recordChangeTag || !unarchiver.containsValueForKey("recordChangeTag"))
        && readOptionalDate(unarchiver, "creationDate", record.creationDate)
        && readOptionalDate(unarchiver, "modificationDate", record.modificationDate);
    return isWhole ? std::optional(std::move(record)) : std::nullopt;
}

std::optional<NSData> CKRecord::archivedSystemFields() const
{
    NSKeyedArchiver archiver(kRecordClass);
    encodeSystemFieldsWithCoder(archiver);
    return archiver.finishEncoding();
}

std::optional<CKRecord> CKRecord::recordWithArchivedSystemFields(std::span<const std::byte> bytes)
{
    const auto unarchiver = NSKeyedUnarchiver::unarchiverForReadingFromData(bytes, kRecordClass);
    return unarchiver ? initWithCoder(*unarchiver) : std::nullopt;
}

} // namespace tarn
