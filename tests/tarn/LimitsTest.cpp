// What the program does with too little memory and too few threads: it ends, says why, and loses nothing.

#include "tests/tarn/TarnCommandTest.h"

#include <filesystem>
#include <gmock/gmock.h>

#include <cstdlib>

namespace tarn::test {

namespace {

using testing::AnyOf;
using testing::IsSupersetOf;

constexpr std::size_t kMegabyte = 1'024 * 1'024;
constexpr unsigned kLongEnough = 30; // seconds; a hang is ended by then
/// Beyond the smallest that the program starts with; with so much all commands of these tests succeed.
constexpr std::size_t kSweptRange = 16 * kMegabyte;

class Limits : public TarnCommandTest {
protected:
    void SetUp() override
    {
#ifdef TARN_SANITIZED
        GTEST_SKIP() << "sanitizers map more memory, and start more threads, than any limit allows";
#endif
    }

    TarnResult runWithMemory(std::size_t bytes, std::vector<std::string> command) const
    {
        TarnProcess process(std::move(command));
        process.setLimits(bytes, kLongEnough);
        return process.finish();
    }
    TarnResult runWithThreads(int most, std::vector<std::string> command) const
    {
        TarnProcess process(arguments(std::move(command)));
        process.setVariable("LD_PRELOAD", TARN_FEW_THREADS);
        process.setVariable("TARN_TEST_THREADS", std::to_string(most));
        process.setLimits(0, kLongEnough);
        return process.finish();
    }
    std::size_t smallestMemoryToStart() const
    {
        std::size_t tooSmall = kMegabyte;
        std::size_t enough = 1'024 * kMegabyte;
        while (enough - tooSmall > kMegabyte / 8) {
            const std::size_t middle = (tooSmall + enough) / 2;
            (runWithMemory(middle, {"--version"}).exitCode == 0 ? enough : tooSmall) = middle;
        }
        return enough;
    }
    void writeFolder(int files) const
    {
        for (int index = 0; index < files; ++index)
            file("in/" + std::to_string(index) + ".md",
                "# In " + std::to_string(index) + "\n\nsome text #tag" + std::to_string(index % 7) + "\n");
    }
};

void expectEndInWords(const TarnResult& result)
{
    EXPECT_EQ(result.signal, 0) << result.errors;
    EXPECT_THAT(result.exitCode, AnyOf(0, 1, 5, 6)) << result.errors;
    EXPECT_TRUE(result.exitCode == 0 || result.errors.starts_with("tarn: ") || result.output.starts_with("imported "))
        << result.errors;
}

TEST_F(Limits, OfMemoryEndInWordsAndLoseNothing)
{
    writeFolder(20);
    note("# Kept\n\n#tag0");
    const std::size_t step = std::getenv("TARN_EVERY_LIMIT") ? kMegabyte / 16 : 2 * kMegabyte;
    const std::size_t smallest = smallestMemoryToStart();
    std::vector<std::string> saved{"Kept"};
    TarnResult last;
    for (std::size_t memory = smallest; memory <= smallest + kSweptRange; memory += step) {
        SCOPED_TRACE(std::to_string(memory / 1'024) + " KB");
        const std::string title = "New " + std::to_string(saved.size());
        for (const std::vector<std::string>& command :
            std::vector<std::vector<std::string>>{{"new", "# " + title + "\n\n#tag0"}, {"import", folder() / "in"},
                {"list"}, {"search", "text or #tag0"}, {"append", "Kept", "more"}, {"tag", "rename", "tag0", "tag8"},
                {"tag", "rename", "tag8", "tag0"}, {"stats"}, {"doctor"}}) {
            last = runWithMemory(memory, arguments(command));
            SCOPED_TRACE(command.front());
            expectEndInWords(last);
            if (command.front() == "new" && last.exitCode == 0)
                saved.push_back(title);
        }
        EXPECT_EQ(run({"doctor"}).exitCode, 0) << run({"doctor"}).output;
    }
    EXPECT_EQ(last.exitCode, 0) << "the sweep ends where there is enough";
    EXPECT_THAT(titlesOf(json({"list"})), IsSupersetOf(saved));
}

TEST_F(Limits, OfThreadsAreNoMatter)
{
    constexpr int kNotes = 2'100; // enough for a search on two threads
    writeFolder(kNotes);
    for (const int threads : {0, 1, 2}) {
        SCOPED_TRACE(threads);
        const auto place = folder() / ("in " + std::to_string(threads));
        std::filesystem::copy(folder() / "in", place);
        const TarnResult imported = runWithThreads(threads, {"import", place, "--json"});
        EXPECT_EQ(imported.exitCode, 0) << imported.errors;
        EXPECT_EQ(nlohmann::json::parse(imported.output).at("imported"), kNotes) << imported.output;
        EXPECT_EQ(runWithThreads(threads, {"search", "--count", "text"}).output,
            std::to_string(kNotes * (threads + 1)) + "\n");
        for (const std::vector<std::string>& command :
            std::vector<std::vector<std::string>>{{"new", "# N"}, {"list"}, {"tags"}, {"doctor"}})
            EXPECT_EQ(runWithThreads(threads, command).exitCode, 0) << command.front();
    }
}

} // namespace

} // namespace tarn::test
