// Loaded before the C library by a program under test: threads beyond the number in TARN_TEST_THREADS cannot be made.

#include <dlfcn.h>
#include <pthread.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>

extern "C" int pthread_create(
    pthread_t* thread, const pthread_attr_t* attributes, void* (*work)(void*), void* argument) noexcept
{
    static std::atomic<int> made = 0;
    static const auto next = reinterpret_cast<decltype(&pthread_create)>(::dlsym(RTLD_NEXT, "pthread_create"));
    const char* const most = std::getenv("TARN_TEST_THREADS");
    if (most && made++ >= std::atoi(most))
        return EAGAIN;
    return next(thread, attributes, work, argument);
}
