#include "tests/tarn/ForeignWriter.h"
#include "tests/tarn/TarnCommandTest.h"

#include <chrono>
#include <csignal>
#include <fstream>
#include <memory>
#include <sys/stat.h>
#include <thread>

namespace tarn::test {

using StoreSafety = TarnCommandTest;

namespace fs = std::filesystem;

TEST_F(StoreSafety, TwentyFourWritersAtOnceKeepAllNotes)
{
    std::vector<std::unique_ptr<TarnProcess>> writers;
    for (int index = 0; index < 24; ++index) {
        writers.push_back(std::make_unique<TarnProcess>(
            arguments({"new", "# Note " + std::to_string(index) + "\n\n#same #tag" + std::to_string(index % 3)})));
        writers.back()->start();
    }
    for (const auto& writer : writers) {
        const TarnResult result = writer->finish();
        EXPECT_EQ(result.exitCode, 0) << result.errors;
    }
    EXPECT_EQ(json({"list"}).at("count"), 24);
    EXPECT_EQ(json({"tags"}).at("tags").size(), 4U) << "one tag of each name";
    EXPECT_EQ(run({"doctor"}).exitCode, 0);
}

TEST_F(StoreSafety, TwoImportsAtOnceMakeOneTagOfEachName)
{
    for (int index = 0; index < 150; ++index)
        for (const char* place : {"in/", "also/"})
            file(place + std::to_string(index) + ".md",
                "# N" + std::to_string(index) + "\n\n#a #b/" + std::to_string(index % 50) + "\n");
    TarnProcess first(arguments({"import", folder() / "in"}));
    TarnProcess second(arguments({"import", folder() / "also"}));
    first.start();
    second.start();
    EXPECT_EQ(first.finish().exitCode, 0);
    EXPECT_EQ(second.finish().exitCode, 0);
    EXPECT_EQ(json({"list"}).at("count"), 300);
    EXPECT_EQ(json({"tags"}).at("tags").size(), 52U);
}

TEST_F(StoreSafety, AReaderTakesAnEmptyFileForAStoreThatIsNotThereYet)
{
    fs::create_directories(database().parent_path());
    std::ofstream(database()).flush();
    for (const char* command : {"list", "changes", "tags"}) {
        const TarnResult result = run({command});
        EXPECT_EQ(result.exitCode, 1) << command;
        EXPECT_NE(result.errors.find("there is no store"), std::string::npos) << result.errors;
    }
    EXPECT_EQ(fs::file_size(database()), 0U) << "looking makes nothing";
    note("# A");
    EXPECT_EQ(json({"list"}).at("count"), 1);
}

TEST_F(StoreSafety, AWriterGivesUpWhenTheStoreStaysLocked)
{
    note("# A");
    const HeldLock lock(database().parent_path() / "tarn.lock");
    TarnProcess writer(arguments({"new", "# B"}));
    writer.setVariable("TARN_LOCK_WAIT", "0");
    const TarnResult result = writer.finish();
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.errors.find("another tarn"), std::string::npos) << result.errors;
    EXPECT_EQ(json({"list"}).at("count"), 1) << "readers do not wait";
}

TEST_F(StoreSafety, AWriterWaitsForAnother)
{
    note("# A");
    TarnProcess writer(arguments({"new", "# B"}));
    {
        const HeldLock lock(database().parent_path() / "tarn.lock");
        writer.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        EXPECT_TRUE(writer.isRunning());
    }
    EXPECT_EQ(writer.finish().exitCode, 0);
    EXPECT_EQ(json({"list"}).at("count"), 2);
}

TEST_F(StoreSafety, AWriterSaysForWhomItWaits)
{
    note("# A");
    TarnProcess quick(arguments({"new", "# B"}));
    TarnProcess patient(arguments({"new", "# C"}));
    {
        const HeldLock lock(database().parent_path() / "tarn.lock");
        std::ofstream(database().parent_path() / "tarn.lock") << "4711\n";
        patient.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(2'500));
        quick.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    }
    EXPECT_EQ(quick.finish().errors, "");
    EXPECT_EQ(patient.finish().errors, "tarn: waiting for another tarn (process 4711), which is writing the store\n");
    EXPECT_EQ(fs::file_size(database().parent_path() / "tarn.lock"), 0U) << "nobody holds it";
}

TEST_F(StoreSafety, AProgramSaysThatItWaitsForAnApplication)
{
    const std::string identifier = note("# A");
    TarnProcess writer(arguments({"append", identifier, "ours"}));
    ForeignWriter(database()).changeTextWhileLocked(identifier, "theirs", [&] {
        writer.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(2'500));
    });
    const TarnResult result = writer.finish();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "tarn: waiting for another program, which is using " + database().string() + "\n");
    EXPECT_EQ(output({"show", identifier}), "theirs\nours");
}

TEST_F(StoreSafety, AFileThatIsNoStoreIsCorrupt)
{
    fs::create_directories(database().parent_path());
    std::ofstream(database()) << std::string(8192, 'n') << "o database at all";
    for (const char* command : {"list", "stats", "doctor"}) {
        const TarnResult result = run({command});
        EXPECT_EQ(result.exitCode, 5) << command << ": " << result.errors;
        EXPECT_NE(result.errors.find("tarn: "), std::string::npos);
    }
    EXPECT_EQ(run({"new", "# A"}).exitCode, 5);
    EXPECT_EQ(json({"doctor"}).at("checks").at(0).at("ok"), false);
}

TEST_F(StoreSafety, ADamagedPageIsCorrupt)
{
    for (int index = 0; index < 40; ++index)
        file("in/" + std::to_string(index) + ".md", "# N" + std::to_string(index) + "\n\n" + std::string(4'000, 'x'));
    output({"import", folder() / "in"});
    std::fstream stream(database(), std::ios::in | std::ios::out | std::ios::binary);
    const auto size = static_cast<std::streamoff>(fs::file_size(database()));
    for (std::streamoff offset = 8192; offset + 200 < size; offset += 8192) {
        stream.seekp(offset);
        stream << std::string(200, '\xEE');
    }
    stream.close();
    const TarnResult result = run({"doctor"});
    EXPECT_EQ(result.exitCode, 5) << result.output << result.errors;
}

TEST_F(StoreSafety, AStoreOfAnotherModelIsNotRead)
{
    note("# A");
    // As another version would have left it.
    damage("UPDATE store_metadata SET value = '0000000000000000' WHERE key LIKE '%OVNoteTag%'");
    const TarnResult result = run({"list"});
    EXPECT_EQ(result.exitCode, 4) << result.errors;
    EXPECT_NE(result.errors.find("the store is of a version"), std::string::npos) << result.errors;
}

TEST_F(StoreSafety, AFolderThatCannotBeWrittenIsAFailureOfOutput)
{
    file("taken", "a file");
    TarnProcess inFile({"--store", folder() / "taken", "new", "# A"});
    EXPECT_EQ(inFile.finish().exitCode, 6);
    TarnProcess nowhere({"--store", "/proc/nowhere", "new", "# A"});
    EXPECT_EQ(nowhere.finish().exitCode, 6);
}

TEST_F(StoreSafety, NotesArePrivate)
{
    note("# A");
    struct stat status { };
    ASSERT_EQ(::stat(store().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 077U, 0U);
}

} // namespace tarn::test
