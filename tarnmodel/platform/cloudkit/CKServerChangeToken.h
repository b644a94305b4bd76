#pragma once

#include "tarnmodel/platform/cloudkit/NSKeyedArchiver.h"

namespace tarn {

/// How far the server's changes were read: bytes that only the server understands. A plain value; any thread.
class CKServerChangeToken {
public:
    /// The bytes as the server gave them.
    explicit CKServerChangeToken(NSData data) : data_(std::move(data)) { }
    /// The bytes.
    const NSData& data() const noexcept { return data_; }
    friend bool operator==(const CKServerChangeToken&, const CKServerChangeToken&) = default;

    /// None when it is too large to archive.
    std::optional<NSData> archivedData() const;
    /// None for anything but an archive of this class.
    static std::optional<CKServerChangeToken> unarchivedFromData(std::span<const std::byte> bytes);

private:
    NSData data_;
};

} // namespace tarn
