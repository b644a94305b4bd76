#include "tests/tarn/ForeignWriter.h"
#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sqlite3.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace tarn::test {

namespace fs = std::filesystem;

using ImportCommand = TarnCommandTest;

TEST_F(ImportCommand, MakesNotesOfFilesWithTheirDates)
{
    const auto path = file("in/a.md", "# A\n\nbody");
    const std::array<timespec, 2> times{timespec{1'000'000'000, 0}, timespec{1'000'000'000, 123'456'789}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
    const auto document = nlohmann::ordered_json::parse(run({"--json", "import", folder() / "in"}).output);
    EXPECT_EQ(keysOf(document),
        (std::vector<std::string>{"imported", "updated", "unchanged", "conflicted", "moved", "gone", "goneFiles",
            "attachments", "skipped", "skippedFiles", "failed", "links", "leftLinks", "seconds"}));
    EXPECT_EQ(document.at("imported"), 1);
    EXPECT_EQ(document.at("skipped"), 0);
    EXPECT_TRUE(document.at("failed").empty());
    const nlohmann::json note = json({"show", "A"});
    EXPECT_EQ(note.at("modificationDate"), "2001-09-09T01:46:40.123456Z");
    EXPECT_EQ(note.at("creationDate"), "2001-09-09T01:46:40.123456Z");
    EXPECT_EQ(note.at("text"), "# A\n\nbody");
}

TEST_F(ImportCommand, TakesFrontMatterOff)
{
    file("in/a.md", "---\ntitle: Talk\ntags: [work/talks]\ncreated: 2025-02-11\nlanguage: en\n---\n\nbody\n");
    EXPECT_EQ(json({"import", folder() / "in", "--tag", "old notes"}).at("imported"), 1);
    const nlohmann::json note = json({"show", "Talk"});
    EXPECT_EQ(note.at("text"), "# Talk\n\nbody\n\n```yaml\nlanguage: en\n```\n\n#work/talks #old notes#\n");
    EXPECT_EQ(note.at("creationDate"), "2025-02-11T00:00:00Z");
    EXPECT_EQ(note.at("tags"), nlohmann::json({"old notes", "work", "work/talks"}));
}

TEST_F(ImportCommand, GoesOnBehindFilesThatItCannotRead)
{
    file("in/a.md", "# A");
    file("in/bad.md", "\xFF");
    file("in/c.md", "# C");
    ASSERT_EQ(::mkfifo((folder() / "in" / "pipe.md").c_str(), 0600), 0);
    std::filesystem::create_symlink(folder() / "nowhere", folder() / "in" / "dangling.md");
    const TarnResult result = run({"--json", "import", folder() / "in", folder() / "missing"});
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_EQ(std::ranges::count(result.errors, '\n'), 4) << result.errors;
    const nlohmann::json document = nlohmann::json::parse(result.output);
    EXPECT_EQ(document.at("imported"), 2);
    ASSERT_EQ(document.at("failed").size(), 4U) << document;
    for (const auto& failure : document.at("failed")) {
        EXPECT_FALSE(std::string(failure.at("path")).empty());
        EXPECT_FALSE(std::string(failure.at("error")).empty());
    }
    EXPECT_EQ(json({"list"}).at("count"), 2);
}

TEST_F(ImportCommand, SaysThatAFileOfAnotherEncodingFailed)
{
    file("bad.md", "\xE4");
    EXPECT_EQ(run({"import", folder() / "bad.md"}).exitCode, 1);
}

TEST_F(ImportCommand, WritesNothingInADryRun)
{
    file("in/a.md", "---\ntitle: Dry\n---\n");
    const std::string text = output({"import", "--dry-run", folder() / "in"});
    EXPECT_NE(text.find("a.md: Dry\n"), std::string::npos) << text;
    EXPECT_NE(text.find("would import 1 note "), std::string::npos) << text;
    EXPECT_EQ(json({"import", "--dry-run", folder() / "in"}).at("imported"), 1);
    EXPECT_FALSE(std::filesystem::exists(store()));
}

TEST_F(ImportCommand, FindsNothingInAFolderWithoutNotes)
{
    file("in/a.png", "");
    EXPECT_EQ(run({"import", folder() / "in"}).exitCode, 1);
    EXPECT_EQ(json({"import", folder() / "in"}).at("imported"), 0);
    EXPECT_FALSE(std::filesystem::exists(store()));
}

TEST_F(ImportCommand, SkipsWhatIsNamedTwice)
{
    const auto path = file("in/a.md", "# A");
    const nlohmann::json document = json({"import", path, path, folder() / "in"});
    EXPECT_EQ(document.at("imported"), 1);
    EXPECT_EQ(document.at("skipped"), 2);
}

TEST_F(ImportCommand, NamesWhatItSkips)
{
    const auto path = file("in/a.md", "# A");
    for (const char* name : {"in/.b.md", "in/.git/c.md", "in/p.png", "in/q.JPEG", "in/other.pdf"})
        file(name, "");
    const nlohmann::json document = json({"import", path, folder() / "in"});
    EXPECT_EQ(document.at("skipped"), 5);
    std::vector<std::string> skipped;
    for (const auto& skip : document.at("skippedFiles"))
        skipped.push_back(std::filesystem::path(std::string(skip.at("path"))).filename().string() + ": "
            + std::string(skip.at("reason")));
    EXPECT_EQ(skipped,
        (std::vector<std::string>{
            ".b.md: hidden", ".git: a hidden folder", "a.md: seen before", "p.png: a picture", "q.JPEG: a picture"}));
    const TarnResult quiet = run({"import", path, folder() / "in"});
    EXPECT_EQ(quiet.errors, "");
    EXPECT_TRUE(quiet.output.starts_with("imported 0 notes, 1 unchanged, skipped 5 files (2 pictures) in "))
        << quiet.output;
    const TarnResult told = run({"import", "--verbose", path, folder() / "in"});
    EXPECT_EQ(std::ranges::count(told.errors, '\n'), 5) << told.errors;
    EXPECT_NE(told.errors.find("tarn: skipped: " + (folder() / "in" / ".git").string() + ": a hidden folder\n"),
        std::string::npos)
        << told.errors;
}

/// An import of four batches.
class InterruptedImport : public TarnCommandTest {
protected:
    static constexpr std::size_t kFiles = 10'000;
    static constexpr std::size_t kBatch = 2'500;
    static constexpr int kAttempts = 20;

    /// Where an import is.
    struct Moment {
        std::size_t batches; ///< that are in the store
        bool isWriting;      ///< the next one, else it reads files
        bool operator==(const Moment&) const = default;
    };

    InterruptedImport()
    {
        for (std::size_t index = 0; index < kFiles; ++index) {
            std::string number = std::to_string(index);
            number.insert(0, 4 - number.size(), '0');
            file("in/" + number + ".md", "# Note " + number + "\n\n#shared/" + std::to_string(index % 10) + "\n");
        }
    }
    /// SQLite's, which is there while a batch is written, and stays when its writer dies.
    fs::path journal() const { return database().string() + "-journal"; }
    void removeStore() const { fs::remove_all(store()); }

    /// Whole batches among the notes behind the first; none where the store is locked or is not there.
    std::optional<std::size_t> batchesInStore(std::size_t notesBefore) const
    {
        std::size_t count = 0;
        const auto take = [](void* result, int, char** values, char**) {
            *static_cast<std::size_t*>(result) = std::strtoul(values[0], nullptr, 10);
            return 0;
        };
        sqlite3* connection = nullptr;
        const bool isRead = sqlite3_open_v2(database().c_str(), &connection, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK
            && sqlite3_exec(connection, "SELECT count(*) FROM OVNote", take, &count, nullptr) == SQLITE_OK;
        sqlite3_close(connection);
        return isRead ? std::optional((count - notesBefore) / kBatch) : std::nullopt;
    }
    /// Waits until the import is at the moment, or over, and sends the signal.
    void interruptAt(const TarnProcess& import, const Moment& moment, std::size_t notesBefore, int signal) const
    {
        while (import.isRunning()) {
            if (fs::exists(journal()) == moment.isWriting && batchesInStore(notesBefore) == moment.batches)
                break;
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        import.sendSignal(signal);
    }
    TarnResult importUntil(const Moment& moment, std::size_t notesBefore, int signal, std::vector<std::string> given)
    {
        given.insert(given.end(), {"import", (folder() / "in").string()});
        TarnProcess import(arguments(std::move(given)));
        import.start();
        std::thread killer([&] { interruptAt(import, moment, notesBefore, signal); });
        const TarnResult result = import.finish();
        killer.join();
        return result;
    }
    /// An import that the signal ended when a batch was in the store and others were not. One that was over before
    /// says nothing: it is made again, on a new store.
    TarnResult importUntilABatchIsSaved(int signal, const std::vector<std::string>& given)
    {
        for (int attempt = 0; attempt < kAttempts; ++attempt) {
            removeStore();
            TarnResult result = importUntil({1, false}, 0, signal, given);
            if (result.signal == signal && stored("SELECT count(*) FROM OVNote") != std::to_string(kFiles))
                return result;
        }
        ADD_FAILURE() << "no import was interrupted";
        return {};
    }
    /// Kills imports into new stores, each with one note, until one died at the moment; whether one did.
    bool killAt(const Moment& moment)
    {
        for (int attempt = 0; attempt < kAttempts; ++attempt) {
            removeStore();
            note("# Before");
            const TarnResult result = importUntil(moment, 1, SIGKILL, {});
            const bool wasWriting = fs::exists(journal()); // nobody has opened the store since
            const std::size_t imported = json({"list"}).at("count").get<std::size_t>() - 1;
            EXPECT_EQ(imported % kBatch, 0U) << "a part of a batch is in the store";
            if (result.signal == SIGKILL && Moment{imported / kBatch, wasWriting} == moment)
                return true;
        }
        return false;
    }
};

TEST_F(InterruptedImport, LeavesASoundStoreOfWholeBatchesWhereverItIsKilled)
{
    for (const Moment& moment : {Moment{0, true}, Moment{1, false}, Moment{2, true}, Moment{3, false}}) {
        SCOPED_TRACE(std::to_string(moment.batches) + (moment.isWriting ? " batches, in a write" : " batches"));
        ASSERT_TRUE(killAt(moment)) << "no import died there";
        const TarnResult doctor = run({"doctor"});
        EXPECT_EQ(doctor.exitCode, 0) << doctor.output << doctor.errors;
        EXPECT_EQ(run({"show", "Before"}).output, "# Before");
        EXPECT_EQ(run({"new", "# After"}).exitCode, 0) << "the lock of the dead is free";
    }
}

TEST_F(InterruptedImport, SaysWhatIsInTheStoreAndWhatIsNot)
{
    const TarnResult result = importUntilABatchIsSaved(SIGINT, {});
    EXPECT_EQ(result.signal, SIGINT) << result.exitCode;
    const std::size_t count = json({"list"}).at("count");
    ASSERT_TRUE(count < kFiles && count % 2'500 == 0) << count;
    const auto nameOf
        = [this](std::size_t index) { return (folder() / "in" / (std::to_string(index) + ".md")).string(); };
    EXPECT_EQ(result.errors,
        "tarn: interrupted: the " + std::to_string(count) + " notes up to " + nameOf(count - 1) + " are in the store; "
            + std::to_string(kFiles - count) + " files, from " + nameOf(count) + " on, are not\n");
    EXPECT_TRUE(result.output.starts_with(
        "imported " + std::to_string(count) + " notes, left out " + std::to_string(kFiles - count) + " files in "))
        << result.output;
    EXPECT_EQ(run({"show", "Note " + std::to_string(count - 1)}).exitCode, 0);
    EXPECT_EQ(run({"show", "Note " + std::to_string(count)}).exitCode, 1);
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(InterruptedImport, NamesEachFileThatIsNotInTheStoreToPrograms)
{
    const TarnResult result = importUntilABatchIsSaved(SIGTERM, {"--json"});
    EXPECT_EQ(result.signal, SIGTERM);
    const nlohmann::json document = nlohmann::json::parse(result.output);
    const std::size_t count = json({"list"}).at("count");
    EXPECT_EQ(document.at("imported"), count);
    ASSERT_EQ(document.at("failed").size(), kFiles - count);
    EXPECT_EQ(document.at("failed").at(0).at("path"), (folder() / "in" / (std::to_string(count) + ".md")).string());
    EXPECT_EQ(document.at("failed").at(0).at("error"), "interrupted");
}

TEST_F(InterruptedImport, SaysThatNothingIsInTheStore)
{
    const std::string before = note("# Before");
    TarnProcess import(arguments({"import", folder() / "in"}));
    import.useTerminal();
    ForeignWriter(database()).changeTextWhileLocked(before, "x", [&] {
        import.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(2'500)); // until it wants to save its first batch
        import.setInput("\x03");
        const TarnResult result = import.finish();
        EXPECT_EQ(result.signal, SIGINT) << result.exitCode;
        EXPECT_NE(result.output.find("nothing of it is in the store; 10000 files, from "), std::string::npos)
            << result.output;
    });
    EXPECT_EQ(json({"list"}).at("count"), 1);
}

TEST_F(ImportCommand, TakesHostileNames)
{
    for (const char* name :
        {"in/\n.md", "in/\x1b[2J.md", "in/\xFF\xFE.md", "in/a'\";--.md", "in/ .md", "in/%s%n.md", "in/\xE2\x80\xAE.md"})
        file(name, "# x");
    file("in/\x1b]0;\xFF.txt", "\xFF");
    const TarnResult result = run({"--json", "import", folder() / "in"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(nlohmann::json::parse(result.output).at("imported"), 7);
    EXPECT_EQ(result.errors.find('\x1b'), std::string::npos);
    EXPECT_EQ(run({"import", "--dry-run", folder() / "in"}).output.find('\x1b'), std::string::npos);
}

TEST_F(ImportCommand, SavesInBatchesInTheOrderOfNames)
{
    for (int index = 0; index < 2'601; ++index) {
        std::string number = std::to_string(index);
        number.insert(0, 4 - number.size(), '0');
        file("in/" + number + ".md", "# Note " + number + "\n\n#shared/" + std::to_string(index % 10) + "\n");
    }
    EXPECT_EQ(json({"import", folder() / "in"}).at("imported"), 2'601);
    EXPECT_EQ(json({"list", "--tag", "shared"}).at("count"), 2'601);
    EXPECT_EQ(json({"list", "--tag", "shared/3"}).at("count"), 260);
    EXPECT_EQ(json({"tags"}).at("tags").size(), 11U) << "one tag of each name over all batches";
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(ImportCommand, TakesTheNotesOfTheDemo)
{
    const nlohmann::json document = json({"import", TARN_DEMO_NOTES});
    EXPECT_TRUE(document.at("failed").empty()) << document;
    EXPECT_GT(document.at("imported"), 50);
    EXPECT_EQ(json({"show", "Cello practice"}).at("creationDate"), "2025-03-30T00:00:00Z");
    EXPECT_EQ(run({"doctor"}).exitCode, 0) << run({"doctor"}).output;
}

} // namespace tarn::test
