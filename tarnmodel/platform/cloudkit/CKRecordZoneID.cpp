#include "tarnmodel/platform/cloudkit/CKRecordZoneID.h"

namespace tarn {
namespace {

constexpr std::string_view kZoneClass = "CKRecordZoneID";

} // namespace

std::optional<NSData> CKRecordZoneID::archivedData() const
{
    NSKeyedArchiver archiver(kZoneClass);
    archiver.encode("zoneName", zoneName);
    archiver.encode("ownerName", ownerName);
    return archiver.finishEncoding();
}

std::optional<CKRecordZoneID> CKRecordZoneID::unarchivedFromData(std::span<const std::byte> bytes)
{
    const auto unarchiver = NSKeyedUnarchiver::unarchiverForReadingFromData(bytes, kZoneClass);
    if (!unarchiver)
        return std::nullopt;
    auto zoneName = unarchiver->decodeString("zoneName");
    auto ownerName = unarchiver->decodeString("ownerName");
    if (!zoneName || !ownerName)
        return std::nullopt;
    return CKRecordZoneID{std::move(*zoneName), std::move(*ownerName)};
}

} // namespace tarn
