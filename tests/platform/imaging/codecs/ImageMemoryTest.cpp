// What images cost in memory, by what is left of the address space.

#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/BMPMaker.h"
#include "tests/platform/imaging/makers/JPEGMaker.h"
#include "tests/platform/imaging/makers/PNGMaker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tarn {
namespace {

std::uint64_t addressSpaceInUse()
{
    std::ifstream statistics("/proc/self/statm");
    std::uint64_t pages = 0;
    statistics >> pages;
    return pages * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

/// What the work answers in a process of its own that may take so many bytes more, 0 to 255.
int answerWithin(std::uint64_t bytes, const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const rlim_t most = addressSpaceInUse() + bytes;
        const rlimit limit{most, most};
        ::setrlimit(RLIMIT_AS, &limit);
        ::_exit(work());
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// How many megabytes of address space the work takes more at its peak, in a process of its own; 255 when it fails.
int megabytesFor(const std::function<bool()>& work)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const std::uint64_t before = addressSpaceInUse();
        const bool isDone = work();
        std::ifstream status("/proc/self/status");
        std::uint64_t peak = 0;
        for (std::string word; status >> word && word != "VmPeak:";) { }
        status >> peak;
        ::_exit(isDone ? static_cast<int>(std::min<std::uint64_t>(254, (peak * 1'024 - before) / 1'000'000)) : 255);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 255;
}

bool isDrawn(const std::filesystem::path& path)
{
    return loadImageForDrawing(path, 200, 150).has_value();
}

constexpr int kLoaded = 100;

/// `kLoaded`, or the code of the error.
int drawnCode(const std::filesystem::path& path)
{
    NSError error;
    return loadImageForDrawing(path, 200, 150, &error) ? kLoaded : static_cast<int>(error.code());
}

#ifdef TARN_SANITIZED
constexpr bool kHasShadow = true; // The address space is all in use.
#else
constexpr bool kHasShadow = false;
#endif

constexpr std::uint64_t kMegabyte = 1'000'000;

int wholeCode(const std::filesystem::path& path)
{
    NSError error;
    return loadImage(path, &error) ? kLoaded : static_cast<int>(error.code());
}

TEST(MemoryOfImages, FollowsTheWidthOfAPNG)
{
    if (kHasShadow)
        GTEST_SKIP();
    const PNGKind flat{16'000, 16'000, 1, 0};
    const ImageOnDisk file(pngOf(flat, [](std::uint32_t) { return ImageBytes(2'000, 0xA5); }));

    // A gigabyte of pixels.
    EXPECT_LT(megabytesFor([&] { return isDrawn(file.path()); }), 8);
}

TEST(MemoryOfImages, FollowsTheWidthOfAJPEG)
{
    if (kHasShadow)
        GTEST_SKIP();
    const ImageOnDisk file(jpegOf(aPlainPicture(4'000, 3'000, 90, 120, 30)));

    EXPECT_LT(megabytesFor([&] { return isDrawn(file.path()); }), 8);
}

TEST(MemoryOfImages, IsNotTakenForProfilesAndTexts)
{
    if (kHasShadow)
        GTEST_SKIP();
    ImageBytes text;
    append(text, std::string_view("Comment\0\0", 9));
    append(text, compressedZeros(7'000'000));
    ImageBytes bytes = pngOf(aPhotograph(8, 8));
    for (int chunk = 0; chunk < 20; ++chunk)
        bytes = pngWithChunk(bytes, "zTXt", text);
    ImageBytes profile;
    append(profile, std::string_view("Profile\0\0", 9));
    append(profile, compressedZeros(60'000'000));
    const ImageOnDisk file(pngWithChunk(bytes, "iCCP", profile));

    EXPECT_LT(megabytesFor([&] { return isDrawn(file.path()); }), 8);
}

TEST(MemoryOfImages, IsNotTakenForRowsThatAFileCannotHold)
{
    if (kHasShadow)
        GTEST_SKIP();
    const ImageOnDisk file(bmpOf({9'000, 9'000, 24, 0, 40, {}, {}, {{1, 2, 3}}}));

    EXPECT_EQ(answerWithin(8 * kMegabyte, [&] { return wholeCode(file.path()); }), ImagingErrorDamaged);
}

TEST(MemoryOfImages, IsMeasuredAtAll)
{
    if (kHasShadow)
        GTEST_SKIP();
    const ImageOnDisk file(pngOf(PNGKind{4'000, 4'000, 1, 0}, [](std::uint32_t) { return ImageBytes(500, 0xA5); }));
    const int megabytes = megabytesFor([&] { return loadImage(file.path()).has_value(); });
    EXPECT_GE(megabytes, 64);
    EXPECT_LT(megabytes, 80);
}

TEST(MemoryOfImages, ThatIsNotThereIsAnError)
{
    if (kHasShadow)
        GTEST_SKIP();
    const ImageOnDisk png(pngOf(PNGKind{4'000, 4'000, 1, 0}, [](std::uint32_t) { return ImageBytes(500, 0xA5); }));
    const ImageOnDisk progressive(jpegOf(aPlainPicture(2'000, 2'000, 90, 120, 30), {.isProgressive = true}));

    EXPECT_EQ(answerWithin(8 * kMegabyte, [&] { return wholeCode(png.path()); }), ImagingErrorOutOfMemory);
    // Its library has no other word for it.
    EXPECT_EQ(answerWithin(4 * kMegabyte, [&] { return drawnCode(progressive.path()); }), ImagingErrorDamaged);
}

} // namespace
} // namespace tarn
