#pragma once

#include <cstdint>

namespace tarn {

// Numbers from bytes of files.
inline std::uint32_t bigEndian16(const std::uint8_t* bytes)
{
    return static_cast<std::uint32_t>(bytes[0] << 8 | bytes[1]);
}
inline std::uint32_t bigEndian32(const std::uint8_t* bytes)
{
    return bigEndian16(bytes) << 16 | bigEndian16(bytes + 2);
}
inline std::uint32_t littleEndian16(const std::uint8_t* bytes)
{
    return static_cast<std::uint32_t>(bytes[1] << 8 | bytes[0]);
}
inline std::uint32_t littleEndian24(const std::uint8_t* bytes)
{
    return littleEndian16(bytes) | static_cast<std::uint32_t>(bytes[2]) << 16;
}
inline std::uint32_t littleEndian32(const std::uint8_t* bytes)
{
    return littleEndian16(bytes) | littleEndian16(bytes + 2) << 16;
}

} // namespace tarn
