// Loaded before the C library by a program under test: file systems have as many free bytes as TARN_TEST_FREE_BYTES
// says.

#include <dlfcn.h>
#include <sys/statvfs.h>

#include <cstdlib>

extern "C" int statvfs(const char* path, struct statvfs* answer) noexcept
{
    using Original = int (*)(const char*, struct statvfs*);
    static const auto next = reinterpret_cast<Original>(::dlsym(RTLD_NEXT, "statvfs"));
    const int result = next(path, answer);
    const char* const bytes = std::getenv("TARN_TEST_FREE_BYTES");
    if (result == 0 && bytes) {
        answer->f_bavail = std::strtoull(bytes, nullptr, 10) / answer->f_frsize;
        answer->f_bfree = answer->f_bavail;
    }
    return result;
}
