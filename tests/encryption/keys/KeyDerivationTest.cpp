#include "tarnmodel/encryption/keys/KeyDerivation.h"

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <functional>

namespace tarn {
namespace {

bool areEqual(const SecretBytes& one, const SecretBytes& other)
{
    return std::ranges::equal(one.span(), other.span());
}

#ifndef TARN_SANITIZED
/// What `work` answers in a process that may map so many bytes more than it has.
int answerWithLittleMemory(rlim_t bytes, const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        const rlim_t most = pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + bytes;
        const rlimit limit{most, most};
        ::setrlimit(RLIMIT_AS, &limit);
        ::_exit(work());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}
#endif

TEST(KeyDerivation, MakesOneKeyOfOnePassword)
{
    const auto password = passwordInUse("secret", nullptr);
    const auto derived = deriveNewKey(*password, {1, 8}, nullptr);
    EXPECT_TRUE(areEqual(derived->key, *deriveKey(*password, derived->derivation, nullptr)));
    EXPECT_FALSE(areEqual(derived->key, *deriveKey(*passwordInUse("Secret", nullptr), derived->derivation, nullptr)));
}

TEST(KeyDerivation, DependsOnSaltPassesAndMemory)
{
    const auto password = passwordInUse("secret", nullptr);
    const KeyDerivation derivation{2, 16, {}};
    const auto key = deriveKey(*password, derivation, nullptr);
    KeyDerivation other = derivation;
    other.salt[15] = std::byte{1};
    EXPECT_FALSE(areEqual(*key, *deriveKey(*password, other, nullptr)));
    other = derivation;
    other.passes = 1;
    EXPECT_FALSE(areEqual(*key, *deriveKey(*password, other, nullptr)));
    other = derivation;
    other.memoryInKibibytes = 8;
    EXPECT_FALSE(areEqual(*key, *deriveKey(*password, other, nullptr)));
}

TEST(KeyDerivation, TakesEachTimeAnotherSalt)
{
    const auto password = passwordInUse("secret", nullptr);
    EXPECT_NE(deriveNewKey(*password, {1, 8}, nullptr)->derivation.salt,
        deriveNewKey(*password, {1, 8}, nullptr)->derivation.salt);
}

TEST(KeyDerivation, TakesCostsToTheLimits)
{
    const auto password = passwordInUse("secret", nullptr);
    const auto least = deriveNewKey(*password, {0, 0}, nullptr);
    EXPECT_EQ(least->derivation.passes, 1U);
    EXPECT_EQ(least->derivation.memoryInKibibytes, 8U);
    EXPECT_EQ(deriveNewKey(*password, {4'000'000'000U, 8}, nullptr)->derivation.passes, 10U);
}

#ifndef TARN_SANITIZED
TEST(KeyDerivation, TakesLessMemoryWhereThereIsNotEnough)
{
    const int memory = answerWithLittleMemory(rlim_t{150} << 20U, [] {
        const auto password = passwordInUse("secret", nullptr);
        const auto derived = deriveNewKey(*password, {1, 256U << 10U}, nullptr);
        const bool isSmaller
            = derived && derived->derivation.memoryInKibibytes == 64U << 10U && derived->derivation.passes == 3;
        return isSmaller ? 7 : 1;
    });
    EXPECT_EQ(memory, 7);
}

TEST(KeyDerivation, FailsWithoutMemory)
{
    const int code = answerWithLittleMemory(rlim_t{20} << 20U, [] {
        NSError error;
        const auto password = passwordInUse("secret", nullptr);
        return deriveNewKey(*password, {1, 256U << 10U}, &error) ? 99 : static_cast<int>(error.code());
    });
    EXPECT_EQ(code, OVEncryptionErrorOutOfMemory);
}
#endif

} // namespace
} // namespace tarn
