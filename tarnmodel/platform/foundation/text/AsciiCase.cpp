#include "tarnmodel/platform/foundation/text/AsciiCaseInternal.h"

#include <bit>
#include <cstdint>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace tarn {

std::size_t lowerAsciiRunScalar(const char* source, std::size_t size, char* destination) noexcept
{
    for (std::size_t index = 0; index < size; ++index) {
        const auto byte = static_cast<unsigned char>(source[index]);
        if (byte >= 0x80)
            return index;
        const bool isCapital = byte >= 'A' && byte <= 'Z';
        destination[index] = static_cast<char>(isCapital ? byte + ('a' - 'A') : byte);
    }
    return size;
}

#if defined(__x86_64__)

namespace {

__m128i lowered(__m128i bytes) noexcept
{
    // Bytes above 0x7F count as negative and are no capitals.
    const __m128i isCapital
        = _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8('A' - 1)), _mm_cmplt_epi8(bytes, _mm_set1_epi8('Z' + 1)));
    return _mm_or_si128(bytes, _mm_and_si128(isCapital, _mm_set1_epi8('a' - 'A')));
}

__attribute__((target("avx2"))) __m256i lowered(__m256i bytes) noexcept
{
    const __m256i isCapital = _mm256_and_si256(
        _mm256_cmpgt_epi8(bytes, _mm256_set1_epi8('A' - 1)), _mm256_cmpgt_epi8(_mm256_set1_epi8('Z' + 1), bytes));
    return _mm256_or_si256(bytes, _mm256_and_si256(isCapital, _mm256_set1_epi8('a' - 'A')));
}

} // namespace

std::size_t lowerAsciiRunSSE2(const char* source, std::size_t size, char* destination) noexcept
{
    constexpr std::size_t kBlock = sizeof(__m128i);
    std::size_t index = 0;
    for (; index + kBlock <= size; index += kBlock) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(source + index));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(destination + index), lowered(bytes));
        const auto others = static_cast<std::uint32_t>(_mm_movemask_epi8(bytes));
        if (others != 0)
            return index + static_cast<std::size_t>(std::countr_zero(others));
    }
    return index + lowerAsciiRunScalar(source + index, size - index, destination + index);
}

__attribute__((target("avx2"))) std::size_t lowerAsciiRunAVX2(
    const char* source, std::size_t size, char* destination) noexcept
{
    constexpr std::size_t kBlock = sizeof(__m256i);
    std::size_t index = 0;
    for (; index + kBlock <= size; index += kBlock) {
        const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(source + index));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(destination + index), lowered(bytes));
        const auto others = static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes));
        if (others != 0)
            return index + static_cast<std::size_t>(std::countr_zero(others));
    }
    return index + lowerAsciiRunSSE2(source + index, size - index, destination + index);
}

bool hasAVX2() noexcept
{
    return __builtin_cpu_supports("avx2") != 0;
}

LowerAsciiRun lowerAsciiRun() noexcept
{
    static const LowerAsciiRun fastest = hasAVX2() ? lowerAsciiRunAVX2 : lowerAsciiRunSSE2;
    return fastest;
}

#else

LowerAsciiRun lowerAsciiRun() noexcept
{
    return lowerAsciiRunScalar;
}

#endif

} // namespace tarn
