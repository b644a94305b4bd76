#include "tarnmodel/backup/archive/BackupHash.h"

namespace tarn {

BackupHash::BackupHash()
{
    crypto_generichash_init(&state_, nullptr, 0, Digest().size());
}

void BackupHash::add(std::span<const std::byte> bytes)
{
    crypto_generichash_update(&state_, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
}

BackupHash::Digest BackupHash::digest()
{
    Digest digest;
    crypto_generichash_final(&state_, digest.data(), digest.size());
    return digest;
}

std::string BackupHash::hexadecimal()
{
    const Digest bytes = digest();
    std::string text(bytes.size() * 2 + 1, '\0');
    sodium_bin2hex(text.data(), text.size(), bytes.data(), bytes.size());
    text.pop_back();
    return text;
}

} // namespace tarn
