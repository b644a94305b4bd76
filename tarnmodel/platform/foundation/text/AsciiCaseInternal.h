#pragma once

#include <cstddef>

namespace tarn {

/// Copies bytes in lower case up to the first one that is not ASCII, and returns how many there were.
/// `destination` has room for `size` bytes and `kAsciiSlack` more, which may be overwritten.
using LowerAsciiRun = std::size_t (*)(const char* source, std::size_t size, char* destination) noexcept;

inline constexpr std::size_t kAsciiSlack = 32;

std::size_t lowerAsciiRunScalar(const char* source, std::size_t size, char* destination) noexcept;
#if defined(__x86_64__)
std::size_t lowerAsciiRunSSE2(const char* source, std::size_t size, char* destination) noexcept;
/// Only where `hasAVX2()`.
std::size_t lowerAsciiRunAVX2(const char* source, std::size_t size, char* destination) noexcept;
bool hasAVX2() noexcept;
#endif

/// The fastest one of this machine.
LowerAsciiRun lowerAsciiRun() noexcept;

} // namespace tarn
