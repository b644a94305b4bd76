#include "tarnmodel/platform/cloudkit/CKServerChangeToken.h"

namespace tarn {
namespace {

constexpr std::string_view kTokenClass = "CKServerChangeToken";

} // namespace

std::optional<NSData> CKServerChangeToken::archivedData() const
{
    NSKeyedArchiver archiver(kTokenClass);
    archiver.encode("data", data_);
    return archiver.finishEncoding();
}

std::optional<CKServerChangeToken> CKServerChangeToken::unarchivedFromData(std::span<const std::byte> bytes)
{
    const auto unarchiver = NSKeyedUnarchiver::unarchiverForReadingFromData(bytes, kTokenClass);
    auto data = unarchiver ? unarchiver->decodeData("data") : std::nullopt;
    return data ? std::optional(CKServerChangeToken(std::move(*data))) : std::nullopt;
}

} // namespace tarn
