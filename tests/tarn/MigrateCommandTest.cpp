#include "tests/support/GoldenStore.h"
#include "tests/support/PlainStore.h"
#include "tests/tarn/ForeignWriter.h"
#include "tests/tarn/TarnCommandTest.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <sys/stat.h>
#include <thread>
#include <utility>

namespace tarn::test {

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

std::string bytesOfFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Every file below a folder with its bytes.
std::map<std::string, std::string> filesBelow(const fs::path& folder)
{
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder))
        files.emplace(entry.path().string(), entry.is_regular_file() ? bytesOfFile(entry.path()) : "");
    return files;
}

/// A model that no installed one leads to, or that none leads from: today's with one thing more.
std::shared_ptr<const NSManagedObjectModel> modelOfVersion(const std::string& version)
{
    std::string text = bytesOfFile(OVManagedObjectModel::modelURLForVersion("Model 3").value());
    const auto replace
        = [&text](const std::string& from, const std::string& to) { text.replace(text.find(from), from.size(), to); };
    replace(R"("version": "Model 3")", R"("version": ")" + version + "\"");
    replace(R"({"name": "subtitle",)", R"({"name": "mood", "type": "string"}, {"name": "subtitle",)");
    NSError error;
    auto model = NSManagedObjectModel::modelWithText(text, &error);
    EXPECT_TRUE(model) << error;
    return model;
}

/// Each command that opens a store, with arguments that it would have an answer to. A reading one comes first.
const std::vector<std::vector<std::string>> kCommandsOnStores{{"list"}, {"search", "pears"}, {"show", "Old 0"},
    {"tags"}, {"links", "Old 0"}, {"backlinks", "Old 0"}, {"unresolved"}, {"orphans"}, {"url", "Old 0"}, {"conflicts"},
    {"files"}, {"thumb", "Old 0", "--size", "20x20"}, {"changes"}, {"stats"}, {"doctor"},
    {"file", "prune", "--dry-run"}, {"new", "# A"}, {"import", "notes"}, {"append", "Old 0", "pears"},
    {"prepend", "Old 0", "pears"}, {"replace", "Old 0", "pears"}, {"edit", "Old 0"}, {"duplicate", "Old 0"},
    {"merge", "Old 0", "Old 1"}, {"tag", "add", "x", "Old 0"}, {"tag", "remove", "x", "Old 0"},
    {"tag", "rename", "x", "y"}, {"tag", "delete", "--yes", "x"}, {"tag", "pin", "x"}, {"tag", "unpin", "x"},
    {"tag", "prune"}, {"conflict", "resolve", "Old 0"}, {"trash", "Old 0"}, {"restore", "Old 0"}, {"archive", "Old 0"},
    {"unarchive", "Old 0"}, {"pin", "Old 0"}, {"unpin", "Old 0"}, {"readonly", "Old 0"}, {"editable", "Old 0"},
    {"delete", "--yes", "Old 0"}, {"attach", "Old 0", "notes/a.md"}, {"file", "rename", "Old 0", "a.md", "b.md"},
    {"file", "prune"}, {"export", "out"}, {"backup", "b.tarnbackup"}, {"restore-backup", "b.tarnbackup"}, {"baseline"},
    {"doctor", "--repair"}};

/// Those that need none.
const std::set<std::string> kCommandsWithoutStore{"parse", "predicate", "highlight", "migrate"};

} // namespace

class MigrateCommand : public TarnCommandTest {
protected:
    MigrateCommand() { file("notes/a.md", "# A"); }

    /// A store of an installed version, "Model 2", with notes that are called "Old 0" and so on.
    void makeStore(std::string_view version, int notes = 3) const
    {
        const auto model = OVManagedObjectModel::modelURLForVersion(version);
        makeStore(NSManagedObjectModel::modelWithContentsOfFile(model.value()), notes);
    }
    void makeStore(std::shared_ptr<const NSManagedObjectModel> model, int notes) const
    {
        fs::create_directories(database().parent_path());
        PlainStore store(database(), std::move(model));
        for (int number = 0; number < notes; ++number) {
            NSManagedObject& note = store.insert("OVNote");
            const std::string title = "Old " + std::to_string(number);
            note.setValueForKey(
                "uniqueIdentifier", "0000000A-0000-4000-8000-" + std::to_string(100'000'000'000 + number));
            note.setValueForKey("title", title);
            note.setValueForKey("text", "# " + title + "\n\npears " + std::string(2'000, 'x'));
            note.setValueForKey("version", 1);
        }
        store.save();
    }
    TarnResult runIn(const fs::path& current, std::vector<std::string> command) const
    {
        TarnProcess process(arguments(std::move(command)));
        prepare(process);
        process.setFolder(current);
        return process.finish();
    }
    void prepare(TarnProcess& process) const
    {
        process.setVariable("TMPDIR", folder().string());
        process.setVariable("XDG_CACHE_HOME", (folder() / "cache").string());
        process.setVariable("EDITOR", "true");
    }
    std::string versionOfStore() const { return stored("SELECT value FROM store_metadata WHERE key = 'modelVersion'"); }
    std::vector<std::string> namesBesideStore() const
    {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(database().parent_path()))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }
    /// Each command ends with 4 and these words, and leaves the folder as it is.
    void expectRefusedByAllCommands(const std::string& words) const
    {
        const auto before = filesBelow(store());
        for (const std::vector<std::string>& command : kCommandsOnStores) {
            SCOPED_TRACE(testing::PrintToString(command));
            const TarnResult result = runIn(folder(), command);
            EXPECT_EQ(result.exitCode, 4) << result.output;
            EXPECT_EQ(result.output, "");
            EXPECT_EQ(result.errors, "tarn: " + database().string() + ": " + words + "\n");
            EXPECT_TRUE(filesBelow(store()) == before) << "something was changed or made";
        }
    }
};

// What other commands say --------------------------------------------------------------------------------------------

TEST_F(MigrateCommand, EveryOtherCommandIsKnownToOpenAStoreOrNot)
{
    std::set<std::string> known = kCommandsWithoutStore;
    for (const std::vector<std::string>& command : kCommandsOnStores)
        known.insert(command.front());
    std::istringstream help(output({"--help"}).substr(output({"--help"}).find("Subcommands:")));
    std::set<std::string> listed;
    for (std::string line; std::getline(help, line) && !line.starts_with("Examples");)
        if (line.starts_with("  ") && line.size() > 2 && line[2] != ' ')
            listed.insert(line.substr(2, line.find(' ', 2) - 2));
    EXPECT_EQ(listed, known);
}

TEST_F(MigrateCommand, IsWhatEveryOtherCommandAsksForOnAnOlderStore)
{
    for (const std::string version : {"Model", "Model 2"}) {
        SCOPED_TRACE(version);
        makeStore(version);
        expectRefusedByAllCommands("the store is of version " + version + "; run 'tarn migrate' first");
        fs::remove_all(store());
    }
}

TEST_F(MigrateCommand, IsNotAskedForOnANewerStore)
{
    makeStore(modelOfVersion("Model 4"), 1);
    const std::string words
        = "the store is of a newer version (Model 4) than this tarn reads (Model 3), and is left as "
          "it is; use a newer tarn";
    expectRefusedByAllCommands(words);
    const auto before = filesBelow(store());
    for (const std::vector<std::string>& command : {std::vector<std::string>{"migrate"}, {"migrate", "--dry-run"}}) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 4);
        EXPECT_EQ(result.errors, "tarn: " + database().string() + ": " + words + "\n");
        EXPECT_TRUE(filesBelow(store()) == before);
    }
}

TEST_F(MigrateCommand, IsNotAskedForOnAStoreOfAnotherFormat)
{
    note("# A");
    damage("UPDATE store_metadata SET value = '2' WHERE key = 'formatVersion'");
    fs::remove(database().parent_path() / "tarn.lock");
    expectRefusedByAllCommands("the store is of version Model 3 in a newer format than this tarn reads, and is left as "
                               "it is; use a newer tarn");
    EXPECT_EQ(run({"migrate"}).exitCode, 4);
}

TEST_F(MigrateCommand, IsNotAskedForOnAStoreWithoutAPath)
{
    makeStore(modelOfVersion("Other"), 1);
    const std::string words
        = "the store is of a version (Other) that this tarn neither reads nor can bring forward, and "
          "is left as it is; name another with --store";
    expectRefusedByAllCommands(words);
    const auto before = filesBelow(store());
    const TarnResult result = run({"migrate"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.errors, "tarn: " + database().string() + ": " + words + "\n");
    EXPECT_TRUE(filesBelow(store()) == before);
}

TEST_F(MigrateCommand, IsNotAskedForByCommandsThatNeedNoStore)
{
    makeStore("Model 2");
    for (const std::vector<std::string>& command : {std::vector<std::string>{"parse", "notes/a.md"},
             {"predicate", "pears"}, {"highlight", "pears"}, {"--version"}, {"list", "--help"}}) {
        const TarnResult result = runIn(folder(), command);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
    }
}

// A migration ---------------------------------------------------------------------------------------------------------

TEST_F(MigrateCommand, BringsAStoreForward)
{
    makeStore("Model");
    const TarnResult result = run({"migrate"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "");
    EXPECT_THAT(result.output, StartsWith("migrated the store from Model to Model 3, by way of Model 2 in "));
    EXPECT_EQ(versionOfStore(), "Model 3");
    EXPECT_THAT(namesBesideStore(), ElementsAre("database.sqlite", "tarn.lock"));
    EXPECT_THAT(titlesOf(json({"list"})), SizeIs(3));
    EXPECT_THAT(output({"show", "Old 2"}), StartsWith("# Old 2\n\npears x"));
    EXPECT_EQ(json({"search", "pears"}).at("count"), 3);
    note("# New");
    EXPECT_EQ(json({"list"}).at("total"), 4);
}

TEST_F(MigrateCommand, LeavesNothingForTheDoctorToFind)
{
    for (const std::string version : {"Model", "Model 2"}) {
        SCOPED_TRACE(version);
        fs::create_directories(database().parent_path());
        makeGoldenStore(database(), version);
        EXPECT_EQ(run({"migrate"}).exitCode, 0);
        const nlohmann::json report = json({"doctor"});
        for (const auto& check : report.at("checks"))
            EXPECT_TRUE(check.at("ok") || check.at("name") == "files") << check;
        EXPECT_GT(json({"stats"}).at("notes"), 100);
        fs::remove_all(store());
    }
}

TEST_F(MigrateCommand, AnswersInJSON)
{
    makeStore("Model");
    const TarnResult result = run({"--json", "migrate"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    const auto document = nlohmann::ordered_json::parse(result.output);
    EXPECT_THAT(keysOf(document), ElementsAre("from", "to", "versions", "path", "bytes", "seconds"));
    EXPECT_EQ(document.at("from"), "Model");
    EXPECT_EQ(document.at("to"), "Model 3");
    EXPECT_EQ(document.at("versions"), (std::vector<std::string>{"Model 2", "Model 3"}));
    EXPECT_EQ(document.at("path"), database().string());
    EXPECT_EQ(document.at("bytes"), fs::file_size(database()));
}

TEST_F(MigrateCommand, HasNothingToDoOnACurrentStore)
{
    note("# A");
    const auto before = filesBelow(store());
    EXPECT_EQ(output({"migrate"}), "the store is of version Model 3, which is the current one\n");
    EXPECT_EQ(output({"migrate", "--dry-run"}), "the store is of version Model 3, which is the current one\n");
    const nlohmann::json document = json({"migrate"});
    EXPECT_EQ(document.at("from"), "Model 3");
    EXPECT_EQ(document.at("to"), "Model 3");
    EXPECT_THAT(document.at("versions"), IsEmpty());
    EXPECT_TRUE(filesBelow(store()) == before);
}

TEST_F(MigrateCommand, FindsNoStore)
{
    for (const std::vector<std::string>& command : {std::vector<std::string>{"migrate"}, {"migrate", "--dry-run"}}) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_EQ(result.errors,
            "tarn: there is no store in " + store().string() + " yet; 'tarn new' and 'tarn import' make one\n");
    }
    EXPECT_THAT(json({"migrate"}).at("versions"), IsEmpty());
    EXPECT_FALSE(fs::exists(store())) << "looking makes nothing";
}

TEST_F(MigrateCommand, TellsWhatItWouldDo)
{
    makeStore("Model");
    const auto before = filesBelow(store());
    const TarnResult result = run({"migrate", "--dry-run"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("would migrate   " + database().string() + "\nfrom            Model\n"));
    EXPECT_THAT(result.output, HasSubstr("\nto              Model 2\nto              Model 3\nsize            "));
    EXPECT_THAT(result.output, HasSubstr("\nneeded space    "));
    EXPECT_THAT(result.output, HasSubstr("\nfree space      "));
    const auto document = nlohmann::ordered_json::parse(run({"--json", "migrate", "--dry-run"}).output);
    EXPECT_THAT(
        keysOf(document), ElementsAre("from", "to", "versions", "path", "bytes", "needed", "available", "fits"));
    EXPECT_EQ(document.at("to"), "Model 3");
    EXPECT_EQ(document.at("versions"), (std::vector<std::string>{"Model 2", "Model 3"}));
    EXPECT_EQ(document.at("bytes"), fs::file_size(database()));
    EXPECT_GE(document.at("needed"), document.at("bytes"));
    EXPECT_EQ(document.at("fits"), true);
    EXPECT_TRUE(filesBelow(store()) == before);
}

TEST_F(MigrateCommand, ShowsABarForEachStepOnATerminal)
{
    makeStore("Model", 500);
    TarnProcess process(arguments({"migrate"}));
    prepare(process);
    process.useTerminal();
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.output, HasSubstr("\rMigrating to Model 2 ["));
    EXPECT_THAT(result.output, HasSubstr("\rMigrating to Model 3 ["));
    EXPECT_THAT(result.output, HasSubstr("] 100 of 100"));
    EXPECT_THAT(result.output, HasSubstr("\r\x1b[Kmigrated the store from Model to Model 3"));
}

TEST_F(MigrateCommand, RefusesWhatItDoesNotKnow)
{
    EXPECT_EQ(run({"migrate", "Model 3"}).exitCode, 2);
    EXPECT_EQ(run({"migrate", "--dry-run=yes"}).exitCode, 2);
    EXPECT_EQ(run({"migrate", "--force"}).exitCode, 2);
    EXPECT_THAT(output({"migrate", "--help"}), HasSubstr("\n  tarn migrate --dry-run\n"));
}

// What may go wrong ---------------------------------------------------------------------------------------------------

TEST_F(MigrateCommand, LetsOneOfTwoDoTheWork)
{
    makeStore("Model", 300);
    std::vector<std::unique_ptr<TarnProcess>> processes;
    for (int number = 0; number < 4; ++number) {
        processes.push_back(std::make_unique<TarnProcess>(arguments({"--json", "migrate"})));
        prepare(*processes.back());
        processes.back()->start();
    }
    std::size_t workers = 0;
    for (const auto& process : processes) {
        const TarnResult result = process->finish();
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        const nlohmann::json document = nlohmann::json::parse(result.output);
        EXPECT_EQ(document.at("to"), "Model 3");
        workers += document.at("versions").empty() ? 0 : 1;
    }
    EXPECT_EQ(workers, 1U);
    EXPECT_EQ(json({"list"}).at("total"), 300);
    EXPECT_THAT(namesBesideStore(), ElementsAre("database.sqlite", "tarn.lock"));
}

TEST_F(MigrateCommand, WaitsForAnotherProgram)
{
    makeStore("Model 2");
    TarnProcess migration(arguments({"migrate"}));
    prepare(migration);
    {
        const LockedDatabase lock(database());
        migration.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(2'500));
        EXPECT_TRUE(migration.isRunning());
    }
    const TarnResult result = migration.finish();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.errors, "tarn: waiting for another program, which is using " + database().string() + "\n");
    EXPECT_EQ(versionOfStore(), "Model 3");
}

TEST_F(MigrateCommand, EndsWhileItWaits)
{
    makeStore("Model 2");
    const std::string before = bytesOfFile(database());
    for (const bool isAnother : {false, true}) {
        SCOPED_TRACE(isAnother ? "for another tarn" : "for another program");
        TarnProcess migration(arguments({"migrate"}));
        prepare(migration);
        std::unique_ptr<LockedDatabase> other;
        std::unique_ptr<HeldLock> tarn;
        if (isAnother) {
            std::ofstream(database().parent_path() / "tarn.lock").flush();
            tarn = std::make_unique<HeldLock>(database().parent_path() / "tarn.lock");
        } else {
            other = std::make_unique<LockedDatabase>(database());
        }
        migration.start();
        std::this_thread::sleep_for(std::chrono::milliseconds(1'500));
        migration.sendSignal(SIGINT);
        const TarnResult result = migration.finish();
        EXPECT_EQ(result.signal, SIGINT) << result.errors;
        EXPECT_THAT(result.errors, HasSubstr("interrupted"));
        other.reset();
        EXPECT_TRUE(bytesOfFile(database()) == before);
    }
}

TEST_F(MigrateCommand, IsInterruptedWithAStoreThatIsWhole)
{
    constexpr int kNotes = 3'000;
    makeStore("Model", kNotes);
    const std::string before = bytesOfFile(database());
    for (const std::chrono::milliseconds moment : {std::chrono::milliseconds(20), std::chrono::milliseconds(60),
             std::chrono::milliseconds(120), std::chrono::milliseconds(200)}) {
        TarnProcess migration(arguments({"migrate"}));
        prepare(migration);
        migration.start();
        std::this_thread::sleep_for(moment);
        migration.sendSignal(SIGINT);
        const TarnResult result = migration.finish();
        const std::string version = versionOfStore();
        SCOPED_TRACE(std::to_string(moment.count()) + " ms: " + result.errors + version);
        if (result.signal == SIGINT && !result.errors.empty()) {
            EXPECT_THAT(result.errors, HasSubstr(version));
        }
        EXPECT_EQ(version == "Model", bytesOfFile(database()) == before);
        EXPECT_THAT(namesBesideStore(), Not(testing::Contains(HasSubstr("database.Model"))));
    }
    EXPECT_EQ(run({"migrate"}).exitCode, 0);
    EXPECT_EQ(json({"list"}).at("total"), kNotes);
    EXPECT_EQ(stored("SELECT count(*) FROM OVNote"), std::to_string(kNotes));
}

TEST_F(MigrateCommand, SaysBeforehandThatThereIsNoRoom)
{
#ifdef TARN_SANITIZED
    GTEST_SKIP() << "nothing can be loaded before a sanitizer";
#endif
    makeStore("Model");
    const auto before = filesBelow(store());
    const auto runOnSmallDisk = [this](std::vector<std::string> command) {
        TarnProcess process(arguments(std::move(command)));
        prepare(process);
        process.setVariable("LD_PRELOAD", TARN_SMALL_DISK);
        process.setVariable("TARN_TEST_FREE_BYTES", "500000");
        return process.finish();
    };
    const TarnResult rehearsal = runOnSmallDisk({"--json", "migrate", "--dry-run"});
    EXPECT_EQ(rehearsal.exitCode, 6);
    EXPECT_THAT(rehearsal.errors, HasSubstr("there is not enough room"));
    const nlohmann::json plan = nlohmann::json::parse(rehearsal.output);
    EXPECT_EQ(plan.at("fits"), false);
    EXPECT_GT(plan.at("needed"), plan.at("available"));
    EXPECT_TRUE(filesBelow(store()) == before);

    const TarnResult result = runOnSmallDisk({"migrate"});
    EXPECT_EQ(result.exitCode, 6);
    EXPECT_THAT(result.errors, HasSubstr(" needs "));
    EXPECT_THAT(result.errors, HasSubstr("make room and try again; the store is as it was, of version Model\n"));
    EXPECT_EQ(bytesOfFile(database()), before.at(database().string()));
    EXPECT_THAT(namesBesideStore(), ElementsAre("database.sqlite", "tarn.lock"));
}

TEST_F(MigrateCommand, SaysThatTheFileIsNoStore)
{
    fs::create_directories(database().parent_path());
    std::ofstream(database()) << std::string(8'192, 'n') << "o database at all";
    const auto before = filesBelow(store());
    for (const std::vector<std::string>& command : {std::vector<std::string>{"migrate"}, {"migrate", "--dry-run"}}) {
        const TarnResult result = run(command);
        EXPECT_EQ(result.exitCode, 5);
        EXPECT_THAT(result.errors, StartsWith("tarn: " + database().string() + ": The file is not a store; "));
        EXPECT_TRUE(filesBelow(store()) == before);
    }
}

TEST_F(MigrateCommand, SaysThatTheDiskIsFull)
{
    makeStore("Model 2", 300);
    const std::string before = bytesOfFile(database());
    TarnProcess process(arguments({"migrate"}));
    prepare(process);
    process.setLargestFile(200'000);
    const TarnResult result = process.finish();
    EXPECT_EQ(result.exitCode, 6) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("the store is as it was, of version Model 2\n"));
    EXPECT_TRUE(bytesOfFile(database()) == before);
    EXPECT_THAT(namesBesideStore(), ElementsAre("database.sqlite", "tarn.lock"));
    EXPECT_EQ(run({"migrate"}).exitCode, 0);
}

TEST_F(MigrateCommand, SaysThatItMayNotWrite)
{
    makeStore("Model 2");
    const std::string before = bytesOfFile(database());
    ASSERT_EQ(::chmod(folder().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(store().c_str(), 0755), 0);
    for (const auto& [folderMode, fileMode] : {std::pair<mode_t, mode_t>{0555, 0666}, {0777, 0444}}) {
        ASSERT_EQ(::chmod(database().parent_path().c_str(), folderMode), 0);
        ASSERT_EQ(::chmod(database().c_str(), fileMode), 0);
        TarnProcess process(arguments({"migrate"}));
        prepare(process);
        process.runAsOrdinaryUser();
        const TarnResult result = process.finish();
        EXPECT_EQ(result.exitCode, 6) << result.errors;
        EXPECT_THAT(result.errors, StartsWith("tarn: "));
        EXPECT_TRUE(bytesOfFile(database()) == before);
    }
}

} // namespace tarn::test
