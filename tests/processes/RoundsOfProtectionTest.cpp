// Notes are protected, edited, copied and opened again, passwords are changed and keys exchanged, by processes of which
// some die on the way: nothing is lost, every note opens with the last password that was confirmed or the one before,
// and what is protected stands readable in no file.

#include "tests/processes/RoundsOfProtection.h"
#include "tests/processes/Worker.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <system_error>
#include <vector>

namespace tarn {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 7> kStepsOnDisk{
    "fsync", "fdatasync", "rename", "renameat2", "unlink", "link", "pwrite64"};

/// What a round does, and what the store is to be when it was done.
struct Round {
    std::string work;
    PlayedStore after;
    std::string passwordAfter;
    bool isOnProtected = false; ///< on a note that was protected before
};

class RoundsOfProtection : public testing::Test {
protected:
    void SetUp() override
    {
        if (!WorkerProcess::canBeTraced())
            GTEST_SKIP() << "this system does not let one process look at another";
        for (const char* folder : {"Data", "Cache", "Runtime"})
            fs::create_directories(root_ / folder);
        fs::permissions(root_ / "Runtime", fs::perms::owner_all);
        const WorkerResult made = run("make", "");
        ASSERT_EQ(made.exitCode, 0) << made.output;
        for (int number = 0; number < 4; ++number)
            store_[number].filename = number % 2 == 0 ? "file-0.txt" : "";
        nextNumber_ = 4;
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }

    static int rounds()
    {
        const auto number = Environment::current().variable("TARN_ROUNDS");
        return number ? std::stoi(*number) : 60;
    }

    WorkerResult run(const std::string& work, const std::string& passwords, const std::string& injection = {}) const
    {
        return WorkerProcess({"round", root_.string(), passwords, work},
            injection.empty() ? std::vector<std::string>() : std::vector{injection})
            .finish();
    }

    int pick(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    int anyNote() { return std::next(store_.begin(), pick(static_cast<int>(store_.size())))->first; }

    Round nextRound()
    {
        Round round{.work = {}, .after = store_, .passwordAfter = password_};
        const int number = anyNote();
        PlayedNote& note = round.after[number];
        round.isOnProtected = note.isProtected;
        ++revision_;
        const auto say = [&](std::string_view word) { round.work = fmt::format("{} {} {}", word, number, revision_); };
        switch (pick(11)) {
        case 0:
        case 1:
            say(note.isProtected && pick(3) == 0 ? "unprotect" : "protect");
            note.isProtected = round.work.starts_with("p");
            break;
        case 2:
        case 3:
            say("edit");
            note.revision = revision_;
            break;
        case 4:
            if (store_.size() > 9)
                return nextRound();
            round.work = fmt::format("duplicate {} {}", number, nextNumber_);
            round.after[nextNumber_++] = PlayedNote(note);
            break;
        case 5:
            if (!note.filename.empty())
                return nextRound();
            say("attach");
            note.filename = fmt::format("file-{}.txt", revision_);
            note.fileRevision = revision_;
            break;
        case 6:
            if (note.filename.empty())
                return nextRound();
            say("rename");
            note.filename = fmt::format("renamed-{}.txt", revision_);
            break;
        case 7:
            if (note.filename.empty())
                return nextRound();
            say("bytes");
            note.fileRevision = revision_;
            break;
        case 8:
            round.passwordAfter = fmt::format("password-{}", revision_);
            round.work = "change " + round.passwordAfter;
            round.isOnProtected = true;
            break;
        case 9:
            round.work = "rotate";
            round.isOnProtected = true;
            break;
        default:
            if (store_.size() < 4)
                return nextRound();
            say("delete");
            round.after.erase(number);
        }
        return round;
    }

    /// Nothing of what is protected stands in these folders, names of files included.
    void expectNoClearText(
        const PlayedStore& store, const std::vector<std::string_view>& folders, const std::string& when) const
    {
        for (const std::string_view folder : folders)
            expectNoClearTextIn(root_ / folder, store, when);
    }

    static void expectNoClearTextIn(const fs::path& folder, const PlayedStore& store, const std::string& when)
    {
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            std::string bytes = entry.path().filename().string() + "\n";
            if (entry.is_regular_file()) {
                std::ifstream stream(entry.path(), std::ios::binary);
                bytes.append(std::istreambuf_iterator<char>(stream), {});
            }
            for (const auto& [number, note] : store)
                if (note.isProtected) {
                    EXPECT_EQ(bytes.find(markerOfPlayedNote(number)), std::string::npos)
                        << "of note " << number << " in " << entry.path() << " " << when;
                    if (note.filename.starts_with("renamed") && !isNameOfOpenFile(note.filename, store)) {
                        EXPECT_EQ(bytes.find(note.filename), std::string::npos) << entry.path() << " " << when;
                    }
                }
        }
    }

    /// A copy that was made before a note was protected has the same name.
    static bool isNameOfOpenFile(const std::string& name, const PlayedStore& store)
    {
        return std::ranges::any_of(
            store, [&](const auto& entry) { return !entry.second.isProtected && entry.second.filename == name; });
    }

    /// What the next start finds is what was before the round, or what was to be after it; it is what is from now on.
    void takeOver(const Round& round, bool isDone, const std::string& when)
    {
        const WorkerResult shown = run("show", round.passwordAfter + "," + password_);
        ASSERT_EQ(shown.exitCode, 0) << when << "\n" << shown.output;
        const std::size_t begin = shown.output.find("opened by ");
        ASSERT_NE(begin, std::string::npos) << shown.output;
        const std::size_t end = shown.output.find('\n', begin);
        const std::string word = shown.output.substr(begin + 10, end - begin - 10);
        const std::string state = shown.output.substr(end + 1);
        const bool isAfter = state == describe(round.after);
        EXPECT_TRUE(isAfter || state == describe(store_)) << when << "\n"
                                                          << state << "is neither\n"
                                                          << describe(store_) << "nor\n"
                                                          << describe(round.after);
        EXPECT_TRUE(!isDone || (isAfter && word == round.passwordAfter)) << when << "\n" << state << word;
        store_ = isAfter ? round.after : store_;
        password_ = word;
        expectNoClearText(store_, {"Data", "Cache", "Runtime"}, "after " + when);
    }

    fs::path root_ = fs::temp_directory_path() / ("tarn schütz " + newUUIDString());
    std::mt19937 random_{20'261'122};
    PlayedStore store_;
    std::string password_ = "first";
    int nextNumber_ = 0;
    int revision_ = 0;
};

TEST_F(RoundsOfProtection, LosesNothingAndLeavesNothingReadable)
{
    int deaths = 0;
    for (int count = 0; count < rounds() && !HasFailure(); ++count) {
        const Round round = nextRound();
        std::string injection;
        if (pick(3) > 0)
            injection = fmt::format(
                "inject={}:signal=KILL:when={}", kStepsOnDisk[random_() % kStepsOnDisk.size()], 1 + pick(12));
        const std::string when = fmt::format("round {}: {} {}", count, round.work, injection);
        const WorkerResult result = run(round.work, password_, injection);
        const bool isDone = result.signal == 0;
        deaths += !isDone;
        ASSERT_TRUE(!isDone || result.exitCode == 0) << when << "\n" << result.output;
        if (round.isOnProtected && !round.work.starts_with("unprotect"))
            // What was decrypted to be looked at lies in memory until the next start.
            expectNoClearText(store_, {"Data", "Cache"}, "right after " + when);
        takeOver(round, isDone, when);
    }
    EXPECT_GT(deaths, rounds() / 30);
}

} // namespace
} // namespace tarn
