// What images cost in memory, by what is left of the address space.

#include "tests/platform/imaging/Loading.h"
#include "tests/platform/imaging/TestPictures.h"
#include "tests/platform/imaging/makers/JPEGMaker.h"
#include "tests/platform/imaging/makers/PNGMaker.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
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

TEST(MemoryOfImages, FollowsTheWidthOfAPNG)
{
    if (kHasShadow)
        GTEST_SKIP();
    const PNGKind flat{16'000, 16'000, 1, 0};
    const ImageOnDisk file(pngOf(flat, [](std::uint32_t) { return ImageBytes(2'000, 0xA5); }));

    // A gigabyte of pixels.
    EXPECT_EQ(answerWithin(8 * kMegabyte, [&] { return drawnCode(file.path()); }), kLoaded);
}

TEST(MemoryOfImages, FollowsTheWidthOfAJPEG)
{
    if (kHasShadow)
        GTEST_SKIP();
    const ImageOnDisk file(jpegOf(aPlainPicture(4'000, 3'000, 90, 120, 30)));

    EXPECT_EQ(answerWithin(8 * kMegabyte, [&] { return drawnCode(file.path()); }), kLoaded);
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

    EXPECT_EQ(answerWithin(4 * kMegabyte, [&] { return drawnCode(file.path()); }), kLoaded);
}

TEST(MemoryOfImages, ThatIsNotThereIsAnError)
{
    if (kHasShadow)
        GTEST_SKIP();
    const ImageOnDisk png(pngOf(PNGKind{4'000, 4'000, 1, 0}, [](std::uint32_t) { return ImageBytes(500, 0xA5); }));
    const ImageOnDisk progressive(jpegOf(aPlainPicture(2'000, 2'000, 90, 120, 30), {.isProgressive = true}));

    EXPECT_EQ(answerWithin(8 * kMegabyte,
                  [&] {
                      NSError error;
                      return loadImage(png.path(), &error) ? kLoaded : static_cast<int>(error.code());
                  }),
        ImagingErrorOutOfMemory);
    // Its library has no other word for it.
    EXPECT_EQ(answerWithin(4 * kMegabyte, [&] { return drawnCode(progressive.path()); }), ImagingErrorDamaged);
}

} // namespace
} // namespace tarn
