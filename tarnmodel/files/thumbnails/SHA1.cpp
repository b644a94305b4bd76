#include "tarnmodel/files/thumbnails/SHA1.h"

#include <sha1.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <vector>

namespace tarn {

namespace {

class SHA1Sum {
public:
    SHA1Sum() { SHA1Init(&state_); }

    void add(std::string_view bytes)
    {
        SHA1Update(&state_, reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }

    /// Ends the sum.
    std::string hexadecimal()
    {
        std::array<char, SHA1_DIGEST_STRING_LENGTH> digits;
        return SHA1End(&state_, digits.data());
    }

private:
    SHA1_CTX state_{};
};

} // namespace

std::string sha1OfBytes(std::string_view bytes)
{
    SHA1Sum sum;
    sum.add(bytes);
    return sum.hexadecimal();
}

std::optional<std::string> sha1OfFile(const std::filesystem::path& file)
{
    constexpr std::size_t kBuffer = 64 * 1024;
    std::ifstream stream(file, std::ios::binary);
    std::vector<char> buffer(kBuffer);
    SHA1Sum sum;
    while (stream) {
        stream.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
        sum.add({buffer.data(), static_cast<std::size_t>(stream.gcount())});
    }
    if (!stream.eof())
        return std::nullopt;
    return sum.hexadecimal();
}

} // namespace tarn
