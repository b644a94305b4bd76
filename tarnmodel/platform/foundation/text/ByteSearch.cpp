#include "tarnmodel/platform/foundation/text/ByteSearch.h"

#include "tarnmodel/platform/foundation/text/AsciiCaseInternal.h"
#include "tarnmodel/platform/foundation/text/ByteSearchInternal.h"

#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace tarn {

namespace {

/// Whether one of the places, a bit each, begins with the needle; its first and last bytes are known to be there.
bool anyHolds(const char* start, std::uint32_t places, std::string_view needle) noexcept
{
    if (needle.size() == 2)
        return places != 0;
    for (; places != 0; places &= places - 1)
        if (std::memcmp(start + std::countr_zero(places) + 1, needle.data() + 1, needle.size() - 2) == 0)
            return true;
    return false;
}

ContainsShort containsShort() noexcept
{
#if defined(__x86_64__)
    static const ContainsShort fastest = hasAVX2() ? containsShortAVX2 : containsShortSSE2;
    return fastest;
#else
    return containsShortScalar;
#endif
}

} // namespace

bool containsShortScalar(std::string_view bytes, std::string_view needle) noexcept
{
    return ::memmem(bytes.data(), bytes.size(), needle.data(), needle.size()) != nullptr;
}

#if defined(__x86_64__)

bool containsShortSSE2(std::string_view bytes, std::string_view needle) noexcept
{
    constexpr std::size_t kBlock = sizeof(__m128i);
    const std::size_t toLast = needle.size() - 1;
    const __m128i first = _mm_set1_epi8(needle.front());
    const __m128i last = _mm_set1_epi8(needle.back());
    std::size_t index = 0;
    for (; index + toLast + kBlock <= bytes.size(); index += kBlock) {
        const char* const start = bytes.data() + index;
        const __m128i begins = _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(start)), first);
        const __m128i ends = _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(start + toLast)), last);
        if (anyHolds(start, static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_and_si128(begins, ends))), needle))
            return true;
    }
    return containsShortScalar(bytes.substr(index), needle);
}

__attribute__((target("avx2"))) bool containsShortAVX2(std::string_view bytes, std::string_view needle) noexcept
{
    constexpr std::size_t kBlock = sizeof(__m256i);
    const std::size_t toLast = needle.size() - 1;
    const __m256i first = _mm256_set1_epi8(needle.front());
    const __m256i last = _mm256_set1_epi8(needle.back());
    std::size_t index = 0;
    for (; index + toLast + kBlock <= bytes.size(); index += kBlock) {
        const char* const start = bytes.data() + index;
        const __m256i begins = _mm256_cmpeq_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(start)), first);
        const __m256i ends
            = _mm256_cmpeq_epi8(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(start + toLast)), last);
        if (anyHolds(start, static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_and_si256(begins, ends))), needle))
            return true;
    }
    return containsShortSSE2(bytes.substr(index), needle);
}

#endif

bool containsBytes(std::string_view bytes, std::string_view needle) noexcept
{
    if (needle.empty())
        return true;
    if (bytes.size() < needle.size())
        return false; // also where there is no address
    if (needle.size() == 1)
        return bytes.find(needle.front()) != std::string_view::npos;
    if (needle.size() <= kLongestShortNeedle)
        return containsShort()(bytes, needle);
    return ::memmem(bytes.data(), bytes.size(), needle.data(), needle.size()) != nullptr;
}

} // namespace tarn
