#include "tarnmodel/TarnModel.h"
#include "tests/tarn/TarnCommandTest.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <memory>
#include <set>
#include <thread>

namespace tarn::test {

namespace {

/// "OVNote <identifier>", sorted.
std::vector<std::string> updatedIn(const nlohmann::json& document)
{
    std::vector<std::string> updated;
    for (const auto& record : document.at("updated"))
        updated.push_back(std::string(record.at("entity")) + " " + std::string(record.at("uniqueIdentifier")));
    std::sort(updated.begin(), updated.end());
    return updated;
}

using Strings = std::vector<std::string>;

/// Makes notes on a store, one save each and as fast as it can, as another program would; their identifiers.
/// It opens the store of the command line by itself, on a thread of its own.
Strings saveNotesUntil(const std::atomic<bool>& shallEnd, const std::filesystem::path& database)
{
    Strings identifiers;
    NSError error;
    const auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current(&error));
    const StoreOptions options{.pragmas = {{"journal_mode", "DELETE"}, {"synchronous", "OFF"}}};
    EXPECT_TRUE(coordinator->addPersistentStoreWithType(StoreType::SQLite, database, options, &error)) << error;
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    context.setPersistentStoreCoordinator(coordinator);
    context.performBlockAndWait([&] {
        const auto recording
            = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification, &context,
                [&](const NSNotification&) { OVChange::updateChangesInInManagedObjectContext(context); });
        while (!shallEnd) {
            identifiers.push_back(OVNote::insertInManagedObjectContext(context)->uniqueIdentifier().value());
            EXPECT_TRUE(context.save(&error)) << error;
            std::this_thread::sleep_for(std::chrono::milliseconds(1)); // readers want a turn as well
        }
    });
    return identifiers;
}

} // namespace

using ChangesCommand = TarnCommandTest;

TEST_F(ChangesCommand, ListsWhatWasSavedSinceAToken)
{
    const std::string first = note("first");
    const auto begin = json({"changes"});
    EXPECT_EQ(updatedIn(begin), Strings{"OVNote " + first});
    EXPECT_EQ(begin.at("deleted"), nlohmann::json::array());
    const std::string token = begin.at("token");
    EXPECT_EQ(token.size(), 36U);

    const auto nothing = json({"changes", "--since", token});
    EXPECT_EQ(nothing.at("token"), token);
    EXPECT_EQ(updatedIn(nothing), Strings());
    EXPECT_EQ(run({"changes", "--since", token}).exitCode, 0) << "being up to date is no failure";

    const std::string second = note("second");
    run({"pin", first});
    const auto both = json({"changes", "--since", token});
    EXPECT_NE(both.at("token"), token);
    Strings expected{"OVNote " + first, "OVNote " + second};
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(updatedIn(both), expected);
    EXPECT_EQ(updatedIn(json({"changes", "--since", both.at("token")})), Strings());
}

TEST_F(ChangesCommand, KeepsItsKeysInOrder)
{
    EXPECT_EQ(run({"--json", "changes"}).exitCode, 1) << "there is no store";
    note("first");
    const auto document = nlohmann::ordered_json::parse(run({"--json", "changes"}).output);
    EXPECT_EQ(keysOf(document), (Strings{"token", "updated", "deleted"}));
    EXPECT_EQ(keysOf(document.at("updated").at(0)), (Strings{"entity", "uniqueIdentifier"}));
}

TEST_F(ChangesCommand, ListsADeletedNoteOnlyAsDeleted)
{
    const std::string identifier = note("first");
    const std::string token = json({"changes"}).at("token");
    run({"pin", identifier});
    run({"delete", "--yes", identifier});

    const auto document = json({"changes", "--since", token});
    EXPECT_EQ(document.at("deleted"), nlohmann::json::array({identifier}));
    EXPECT_EQ(updatedIn(document), Strings());
}

TEST_F(ChangesCommand, ListsTheTagsOfANote)
{
    note("text #home/kitchen");
    const auto document = json({"changes"});
    EXPECT_EQ(std::count_if(document.at("updated").begin(), document.at("updated").end(),
                  [](const auto& record) { return record.at("entity") == "OVNoteTag"; }),
        2);
}

TEST_F(ChangesCommand, FailsForAnUnknownToken)
{
    note("first");
    const TarnResult result = run({"changes", "--since", "2B0C3A4E-6D5F-4E8A-9C1B-7A8D9E0F1A2B"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_NE(result.errors.find("tarn baseline"), std::string::npos) << result.errors;
}

TEST_F(ChangesCommand, WritesLinesForPeople)
{
    const std::string identifier = note("first");
    const std::string token = json({"changes"}).at("token");
    EXPECT_EQ(output({"changes"}), "updated OVNote " + identifier + "\ntoken " + token + "\n");
}

TEST_F(ChangesCommand, RecordsNothingForACommandThatOnlyReads)
{
    note("first");
    const std::string token = json({"changes"}).at("token");
    run({"list"});
    run({"search", "first"});
    run({"doctor"});
    EXPECT_EQ(json({"changes"}).at("token"), token);
}

TEST_F(ChangesCommand, FindsNoLogThatCannotBeRead)
{
    note("first");
    damage("ALTER TABLE \"OVChange\" RENAME TO \"hidden\"");
    EXPECT_NE(run({"changes"}).exitCode, 0);
}

TEST_F(ChangesCommand, FoldsTheLogIntoABaseline)
{
    const std::string first = note("first");
    const std::string second = note("second");
    const std::string before = json({"changes"}).at("token");
    run({"pin", first});
    run({"delete", "--yes", second});

    const auto baseline = json({"baseline"});
    EXPECT_EQ(updatedIn(baseline), Strings{"OVNote " + first});
    EXPECT_EQ(baseline.at("deleted"), nlohmann::json::array({second}));
    EXPECT_EQ(run({"changes", "--since", before}).exitCode, 1) << "its token is gone";
    const auto since = json({"changes", "--since", baseline.at("token")});
    EXPECT_EQ(since.at("token"), baseline.at("token"));
    EXPECT_EQ(updatedIn(since), Strings());

    const std::string third = note("third");
    EXPECT_EQ(updatedIn(json({"changes", "--since", baseline.at("token")})), Strings{"OVNote " + third});
}

TEST_F(ChangesCommand, BeginsAnEmptyLogWithEveryRecord)
{
    const std::string identifier = note("first");
    run({"trash", identifier});
    damage("DELETE FROM \"OVChangeItem\"");
    damage("DELETE FROM \"OVChange\"");
    EXPECT_EQ(json({"changes"}).at("token"), nlohmann::json());

    EXPECT_EQ(updatedIn(json({"baseline"})), Strings{"OVNote " + identifier});
}

TEST_F(ChangesCommand, PassesOverNothingThatIsSavedWhileItReads)
{
    note("first");
    std::string token = json({"changes"}).at("token");
    std::set<std::string> listed;
    const auto poll = [&] {
        const auto document = json({"changes", "--since", token});
        for (const auto& record : document.at("updated"))
            listed.insert(std::string(record.at("uniqueIdentifier")));
        token = document.at("token");
    };
    Strings saved;
    std::atomic<bool> shallEnd = false;
    std::thread writer([&] { saved = saveNotesUntil(shallEnd, database()); });
    for (int count = 0; count < 25; ++count)
        poll();
    shallEnd = true;
    writer.join();
    poll();

    EXPECT_GT(saved.size(), 25U);
    for (const std::string& identifier : saved)
        EXPECT_TRUE(listed.contains(identifier)) << identifier;
}

TEST_F(ChangesCommand, LeavesNoChangeBehindASaveThatFailed)
{
    const std::string identifier = note("first");
    const std::string token = json({"changes"}).at("token");
    // An index that overflows once the note is pinned.
    damage("CREATE INDEX \"refuse\" ON \"OVNote\" (abs(-9223372036854775807 - \"pinned\"))");
    EXPECT_NE(run({"pin", identifier}).exitCode, 0);
    EXPECT_EQ(json({"changes"}).at("token"), token);
}

} // namespace tarn::test
