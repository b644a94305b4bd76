#include "tests/backup/ForgedBackup.h"

#include "tarnmodel/backup/archive/ManifestText.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <thread>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;

/// Files of the host's that go along with its store.
class CompanionBackup : public ForgedBackup {
protected:
    using Companions = std::map<std::string, std::string>;

    std::filesystem::path beside(const std::string& name) const { return place() / "beside" / name; }
    BackupCompanion companion(const std::string& name, std::string_view bytes) const
    {
        writeBytes(beside(name), bytes);
        return {.name = name, .file = beside(name)};
    }
    /// Collects what a restore hands over.
    static BackupReadOptions collecting(Companions& taken)
    {
        BackupReadOptions options;
        options.takeCompanion = [&taken](const std::string& name, const std::filesystem::path& file) {
            taken.emplace(name, bytesOf(file));
        };
        return options;
    }
    NSError errorOfBackup(const BackupOptions& options) const
    {
        NSError error;
        EXPECT_FALSE(StoreBackup(storeFile()).writeToURL(archive(), options, &error));
        EXPECT_FALSE(std::filesystem::exists(archive()));
        return error;
    }
    std::string unfinishedRestoreOf(TestStore& store)
    {
        NSError error;
        const auto metadata = store.openAgain()->persistentStore()->metadata(&error);
        EXPECT_FALSE(metadata.empty()) << error;
        const auto found = metadata.find("unfinishedRestore");
        return found == metadata.end() ? "" : found->second;
    }
};

TEST_F(CompanionBackup, ComesBackByteByByte)
{
    fillNotebook();
    const std::string bytes("{\"a\": 1}\n\0\xFF", 12);
    backUp({.companions = {companion("Liste ü.jsonl", bytes), companion("empty", ""),
                {.name = "not there", .file = beside("not there")}}});
    EXPECT_TRUE(BackupRestore(archive()).examine()->damaged.empty());
    Companions taken;
    EXPECT_EQ(restore(otherStore(), collecting(taken)).restored, 4U);
    EXPECT_THAT(taken, ElementsAre(Pair("Liste ü.jsonl", bytes), Pair("empty", "")));
    taken.clear();
    EXPECT_EQ(restore(otherStore(), collecting(taken)).restored, 0U);
    EXPECT_EQ(taken.size(), 2U) << "a restore that is repeated gives them again";
    EXPECT_EQ(restore(otherStore()).kept, 4U) << "who does not ask for them gets none";
}

TEST_F(CompanionBackup, LiesBetweenRecordsAndFiles)
{
    OVNote& only = note("# One");
    attach(only, "a.txt", "bytes");
    save();
    backUp({.companions = {companion("imports", "lines")}});
    std::vector<std::string> folders;
    for (const auto& [name, bytes] : membersOfArchive())
        if (const std::string folder = name.substr(0, name.find('/')); folders.empty() || folders.back() != folder)
            folders.push_back(folder);
    EXPECT_THAT(folders, ElementsAre("manifest.json", "records", "companions", "files"));
}

TEST_F(CompanionBackup, IsOfTheMomentOfTheStore)
{
    const std::filesystem::path counter = companion("counter", "0").file;
    const auto coordinator = openAgain();
    std::atomic<bool> isDone = false;
    std::atomic<int> saved = 0;
    std::thread writer([&] {
        NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
        context.setPersistentStoreCoordinator(coordinator);
        while (!isDone) {
            context.performBlockAndWait([&] {
                NSError error;
                EXPECT_TRUE(context.performExclusive(
                    [&] {
                        OVNote::noteWithText("# Note", context);
                        writeBytes(counter, std::to_string(saved + 1));
                    },
                    &error))
                    << error;
                ++saved;
                context.reset();
            });
            std::this_thread::sleep_for(std::chrono::milliseconds(2)); // so that others get the lock
        }
    });
    while (saved < 3)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    for (int round = 0; round < 10; ++round) {
        const BackupManifest manifest
            = backUp({.replacesFile = true, .companions = {{.name = "counter", .file = counter}}});
        for (const auto& [name, bytes] : membersOfArchive())
            if (name == "companions/counter") {
                EXPECT_EQ(bytes, std::to_string(manifest.noteCount()));
            }
    }
    isDone = true;
    writer.join();
}

TEST_F(CompanionBackup, IsPreparedByTheHostWithoutHoldingTheStore)
{
    note("# One");
    save();
    BackupCompanion list = companion("list", "secret and plain");
    list.prepare = [&](const std::filesystem::path& copy) {
        EXPECT_EQ(bytesOf(copy), "secret and plain");
        note("# Written meanwhile");
        save();
        writeBytes(copy, "plain");
    };
    EXPECT_EQ(backUp({.companions = {list}}).noteCount(), 1U);
    EXPECT_EQ(bytesOf(beside("list")), "secret and plain");
    Companions taken;
    restore(otherStore(), collecting(taken));
    EXPECT_THAT(taken, ElementsAre(Pair("list", "plain")));
}

TEST_F(CompanionBackup, IsNotMadeWhereACompanionCannotBeHad)
{
    note("# One");
    save();
    BackupCompanion list = companion("list", "bytes");
    list.prepare = [](const std::filesystem::path&) { throw std::runtime_error("the list cannot be read"); };
    EXPECT_THAT(errorOfBackup({.companions = {list}}).localizedDescription(), HasSubstr("the list cannot be read"));
    std::filesystem::create_directories(beside("folder"));
    const NSError error = errorOfBackup({.companions = {{.name = "folder", .file = beside("folder")}}});
    EXPECT_EQ(error.domain(), NSPOSIXErrorDomain);
    EXPECT_EQ(error.code(), EISDIR);
}

TEST_F(CompanionBackup, FollowsALink)
{
    note("# One");
    save();
    companion("real", "bytes");
    std::filesystem::create_symlink("real", beside("link"));
    backUp({.companions = {{.name = "link", .file = beside("link")}}});
    Companions taken;
    restore(otherStore(), collecting(taken));
    EXPECT_THAT(taken, ElementsAre(Pair("link", "bytes")));
}

TEST_F(CompanionBackup, RefusesNamesThatAreNone)
{
    note("# One");
    save();
    for (const std::string& name : {std::string(), std::string("."), std::string(".."), std::string("a/b"),
             std::string("a\0b", 3), std::string(256, 'a')}) {
        const BackupOptions options{.companions = {{.name = name, .file = beside("list")}}};
        EXPECT_THROW(StoreBackup(storeFile()).writeToURL(archive(), options), NSException) << name;
    }
    const BackupCompanion list = companion("list", "bytes");
    EXPECT_THROW(StoreBackup(storeFile()).writeToURL(archive(), {.companions = {list, list}}), NSException);
    EXPECT_FALSE(std::filesystem::exists(archive()));
}

TEST_F(CompanionBackup, IsGivenWhenTheStoreHasEverything)
{
    fillNotebook();
    backUp({.companions = {companion("list", "bytes")}});
    TestStore& other = otherStore();
    std::optional<std::size_t> count;
    BackupReadOptions options;
    options.takeCompanion = [&](const std::string&, const std::filesystem::path&) {
        const auto context = TestStore::contextOn(other.openAgain());
        context->performBlockAndWait([&] { count = OVNote::notesInManagedObjectContext(*context, {}).size(); });
        EXPECT_EQ(unfinishedRestoreOf(other), "1");
    };
    restore(other, options);
    EXPECT_EQ(count, 4U);
    EXPECT_EQ(unfinishedRestoreOf(other), "");
}

TEST_F(CompanionBackup, IsGivenAgainWhereTheHostCouldNotTakeIt)
{
    fillNotebook();
    backUp({.companions = {companion("list", "bytes")}});
    TestStore& other = otherStore();
    BackupReadOptions failing;
    failing.migrate = bringForward;
    failing.takeCompanion
        = [](const std::string&, const std::filesystem::path&) { throw std::runtime_error("no room for the list"); };
    EXPECT_THAT(errorOfRestore(other, failing).localizedDescription(), HasSubstr("no room for the list"));
    EXPECT_EQ(unfinishedRestoreOf(other), "1");
    Companions taken;
    EXPECT_EQ(restore(other, collecting(taken)).kept, 4U);
    EXPECT_THAT(taken, ElementsAre(Pair("list", "bytes")));
    EXPECT_EQ(unfinishedRestoreOf(other), "");
}

TEST_F(CompanionBackup, IsRefusedDamagedAndLeftOutWhereTheRestIsSalvaged)
{
    note("# One");
    save();
    backUp({.companions = {companion("list", "bytes"), companion("other", "whole")}});
    Members members = membersOfArchive();
    const std::string manifest = members.front().second;
    members.erase(members.begin());
    for (auto& [name, bytes] : members)
        if (name == "companions/list")
            bytes = "bytez";
    writeArchive(manifest, members);
    Companions taken;
    EXPECT_THAT(errorOfRestore(otherStore(), collecting(taken)).localizedDescription(),
        HasSubstr("companions/list is not what it was"));
    EXPECT_THAT(taken, IsEmpty());
    BackupReadOptions salvaging = collecting(taken);
    salvaging.salvages = true;
    const BackupRestoration restoration = restore(otherStore(), salvaging);
    EXPECT_EQ(restoration.restored, 1U);
    ASSERT_EQ(restoration.skipped.size(), 1U);
    EXPECT_EQ(restoration.skipped.front().title, "companions/list");
    EXPECT_THAT(taken, ElementsAre(Pair("other", "whole")));
}

TEST_F(CompanionBackup, OfANameThatLeadsOutIsRefused)
{
    for (const char* name : {"companions/../evil", "companions/..", "companions/.", "companions/", "companions",
             "companions/a/b", "companions/a/", "companions//a"}) {
        writeArchive({{name, ""}});
        Companions taken;
        EXPECT_EQ(errorOfRestore(otherStore(), collecting(taken)).code(), BackupErrorDamaged) << name;
        EXPECT_THAT(taken, IsEmpty()) << name;
    }
    EXPECT_FALSE(std::filesystem::exists(filesRoot() / "evil"));
}

} // namespace
} // namespace tarn
