#include "tests/notes/AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

// The forms for arrays come to these; those for greater alignments are left alone, each with its own `delete`.

namespace {

std::atomic<std::int64_t> count = 0;

} // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++count;
    return std::malloc(size > 0 ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace tarn {

std::int64_t allocationCount() noexcept
{
    return count;
}

} // namespace tarn
