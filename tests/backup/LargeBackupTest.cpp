#include "tests/backup/BackupFixture.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <sys/resource.h>

namespace tarn {
namespace {

/// How many notes; a tenth as many have an attachment.
int sizeOfNotebook()
{
    const auto wanted = Environment::current().variable("TARN_LARGE_NOTEBOOK");
    return wanted ? std::stoi(*wanted) : 600;
}

class LargeBackup : public BackupFixture {
protected:
    void fillLargeNotebook(int count)
    {
        for (int number = 0; number < count; ++number) {
            const std::string title = "Note " + std::to_string(number);
            OVNote& made = note("# " + title + "\n\n#tag" + std::to_string(number % 50) + " [[Note "
                + std::to_string(number * 7 % count) + "]]\n\n"
                + std::string(static_cast<std::size_t>(number % 3'000), 'x'));
            if (number % 10 == 0)
                attach(made, "file.txt", "bytes of " + title);
            if (number % 500 == 499)
                save();
        }
        save();
    }
    static long peak()
    {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    }
};

// First, since the peak of a process only rises.
TEST_F(LargeBackup, OfALargeFileTakesNoMemoryForIt)
{
    const bool isLong = Environment::current().variable("TARN_LARGE_NOTEBOOK").has_value();
    const std::uintmax_t size = std::uintmax_t(isLong ? 1'024 : 96) << 20;
    OVNote& only = note("# One");
    OVNoteFile& file = attach(only, "large.bin", "x");
    save();
    std::filesystem::resize_file(*file.fileURL(), size);
    [[maybe_unused]] const long before = peak();
    EXPECT_EQ(backUp().fileBytes, size);
    TestStore& other = otherStore();
    EXPECT_EQ(restore(other).bytes, size);
#ifndef TARN_SANITIZED // sanitizers keep what was freed for a while
    EXPECT_LT(peak() - before, 48 << 10);
#endif
    EXPECT_EQ(
        std::filesystem::file_size(*noteOf(other.context(), "One").filesSet().allObjects().front()->fileURL()), size);
}

TEST_F(LargeBackup, ComesBackAsItWas)
{
    const int count = sizeOfNotebook();
    fillLargeNotebook(count);
    reopen();
    const BackupManifest manifest = backUp();
    EXPECT_EQ(manifest.noteCount(), static_cast<std::uint64_t>(count));
    EXPECT_EQ(manifest.fileCount, static_cast<std::uint64_t>(count) / 10);
    const auto records = contentsOfStore(context());
    const auto files = filesBelow(filesRoot());
    TestStore& other = otherStore();
    const BackupRestoration restoration = restore(other);
    EXPECT_EQ(restoration.restored, static_cast<std::uint64_t>(count));
    EXPECT_EQ(restoration.files, static_cast<std::uint64_t>(count) / 10);
    EXPECT_TRUE(contentsOfStore(other.context()) == records);
    EXPECT_TRUE(filesBelow(otherRoot()) == files);
    const BackupRestoration again = restore(other);
    EXPECT_EQ(again.restored, 0U);
    EXPECT_EQ(again.kept, static_cast<std::uint64_t>(count));
}

} // namespace
} // namespace tarn
