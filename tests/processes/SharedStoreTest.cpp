// An application, an extension and two readers share one store for some seconds, as processes.

#include "tests/processes/SharedStore.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tests/processes/CommonLife.h"
#include "tests/processes/Worker.h"

#include <charconv>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <set>
#include <sstream>

namespace tarn {
namespace {

using testing::IsEmpty;

/// What the processes told of their lives.
struct Told {
    std::map<std::string, std::string> notes; ///< serial by identifier, of notes that were not deleted
    std::set<std::string> deleted;
    std::vector<std::pair<std::string, std::string>> lines; ///< title of the shared note, line
    std::map<std::string, std::size_t> saves;               ///< count of records by token
    std::size_t queued = 0;
    std::size_t news = 0;
    std::size_t read = 0;
    long longestWait = 0; ///< microseconds

    void add(const std::string& output)
    {
        std::istringstream stream(output);
        for (std::string line; std::getline(stream, line);)
            addLine(line);
    }

private:
    void addLine(const std::string& line)
    {
        std::istringstream words(line);
        std::string what;
        std::string first;
        std::string second;
        std::string third;
        words >> what >> first >> second >> third;
        if (what == "made")
            notes[first] = second;
        else if (what == "deleted") {
            notes.erase(first);
            deleted.insert(first);
        } else if (what == "added")
            lines.emplace_back(first + ' ' + second, third);
        else if (what == "saved")
            EXPECT_TRUE(saves.emplace(first, std::stoul(second)).second) << "one name for two saves";
        else if (what == "queued")
            queued += std::stoul(first);
        else if (what == "news")
            news += std::stoul(first);
        else if (what == "read")
            read += std::stoul(first);
        else if (what == "waited")
            longestWait = std::max(longestWait, std::stol(first));
        else
            ADD_FAILURE() << "unexpected: " << line;
    }
};

class CommonStore : public testing::Test {
protected:
    void SetUp() override
    {
        SharedStore store(folder_.file(), StoreRole::Application);
        ASSERT_TRUE(store) << store.error();
        for (int number = 0; number < sharedNotes; ++number)
            OVNote::noteWithText("# Shared " + std::to_string(number) + "\n\n#shared serial", store.context());
        NSError error;
        ASSERT_TRUE(store.context().save(&error)) << error;
    }

    /// Lets them live, and hears what they did.
    Told live(const std::vector<std::pair<std::string, std::string>>& partsAndNames)
    {
        int milliseconds = 3'000;
        if (const auto given = Environment::current().variable("TARN_SHARED_MILLISECONDS"))
            std::from_chars(given->data(), given->data() + given->size(), milliseconds);
        std::vector<WorkerProcess> processes;
        for (const auto& [part, name] : partsAndNames)
            processes.emplace_back(
                std::vector<std::string>{part, folder_.file().string(), name, std::to_string(milliseconds)});
        // All are heard at once: one that waits for room in its pipe would not go on.
        std::vector<std::future<WorkerResult>> ends;
        for (WorkerProcess& process : processes)
            ends.push_back(std::async(std::launch::async, [&process] { return process.finish(); }));
        Told told;
        for (std::size_t index = 0; index < ends.size(); ++index) {
            const WorkerResult result = ends[index].get();
            EXPECT_EQ(result.exitCode, 0) << partsAndNames[index].second << ": " << result.output;
            told.add(result.output);
        }
        return told;
    }

    static void expectNotes(const Told& told, NSManagedObjectContext& context)
    {
        for (const auto& [identifier, serial] : told.notes) {
            const OVNote* note = OVNote::noteWithUniqueIdentifier(identifier, context);
            ASSERT_TRUE(note) << identifier;
            EXPECT_THAT(note->text().value_or(""), testing::HasSubstr("serial " + serial + '\n'));
        }
        for (const std::string& identifier : told.deleted)
            EXPECT_FALSE(OVNote::noteWithUniqueIdentifier(identifier, context)) << identifier;
        EXPECT_EQ(OVNote::allNotesInManagedObjectContext(context).size(), told.notes.size() + sharedNotes);
    }

    static void expectLines(const Told& told, NSManagedObjectContext& context)
    {
        std::multiset<std::pair<std::string, std::string>> found;
        for (int number = 0; number < sharedNotes; ++number) {
            const std::string title = "Shared " + std::to_string(number);
            std::istringstream text(OVNote::noteWithTitle(title, context)->text().value());
            for (std::string line; std::getline(text, line);)
                if (line.find('-') != std::string::npos)
                    found.emplace(title, line);
        }
        EXPECT_EQ(found, std::multiset(told.lines.begin(), told.lines.end()));
    }

    /// Each save is in the log, once, under an order of its own, with as many records as it had.
    static void expectLog(const Told& told, NSManagedObjectContext& context)
    {
        std::set<std::int64_t> orders;
        const auto changes
            = context.executeFetchRequest(NSFetchRequest(OVChange::entityInManagedObjectContext(context)));
        for (NSManagedObject* record : changes)
            orders.insert(static_cast<OVChange*>(record)->orderValue());
        EXPECT_EQ(changes.size(), told.saves.size() + 1) << "one for each, and the one before all of them";
        EXPECT_EQ(orders.size(), changes.size());
        EXPECT_EQ(*orders.rbegin(), static_cast<std::int64_t>(changes.size()) - 1);
        for (const auto& [token, count] : told.saves) {
            OVChange* change = OVChange::changeWithToken(token, context);
            ASSERT_TRUE(change) << token;
            EXPECT_EQ(change->itemsSet().count(), count) << token;
        }
    }

    StoreFolder folder_;
};

TEST_F(CommonStore, LosesNothingOfAnApplicationAndAnExtensionThatWriteWhileOthersRead)
{
    const Told told = live({{"application", "application"}, {"extension", "extension"}, {"reader", "first reader"},
        {"reader", "second reader"}});
    std::cout << told.saves.size() << " saves, " << told.lines.size() << " lines in common notes, " << told.read
              << " notes read, longest wait " << told.longestWait / 1000 << " ms\n";
    EXPECT_GT(told.saves.size(), 5U);
    EXPECT_GT(told.news, 0U);
    EXPECT_GT(told.read, 0U);

    SharedStore store(folder_.file(), StoreRole::Application, 500);
    ASSERT_TRUE(store) << store.error();
    expectNotes(told, store.context());
    expectLines(told, store.context());
    expectLog(told, store.context());
    EXPECT_EQ(
        told.queued, told.news + OVExternalChanges::externalChangesInManagedObjectContext(store.context()).size());
    EXPECT_THAT(store.problems(), IsEmpty());
    OVNote::noteWithText("# Nobody holds the lock", store.context());
    NSError error;
    EXPECT_TRUE(store.context().save(&error)) << error;
    EXPECT_THAT(folder_.otherFiles(), IsEmpty());
}

TEST(ManyPrograms, ThatAppendToOneNoteThroughTheirStacksKeepEachLine)
{
    const StoreFolder folder;
    {
        SharedStore store(folder.file(), StoreRole::Application);
        ASSERT_TRUE(store) << store.error();
        OVNote::noteWithText("# Groceries", store.context());
        NSError error;
        ASSERT_TRUE(store.context().save(&error)) << error;
    }
    constexpr int kPrograms = 30;
    std::vector<WorkerProcess> programs;
    std::set<std::string> expected;
    for (int number = 1; number <= kPrograms; ++number) {
        const std::string line = "- item " + std::to_string(number);
        expected.insert(line);
        programs.emplace_back(std::vector<std::string>{"append", folder.file().parent_path().string(), line});
    }
    for (WorkerProcess& program : programs) {
        const WorkerResult result = program.finish();
        EXPECT_EQ(result.exitCode, 0) << result.output;
        EXPECT_EQ(result.output, "") << "no conflict is logged";
    }

    SharedStore store(folder.file(), StoreRole::Application);
    ASSERT_TRUE(store) << store.error();
    std::istringstream text(OVNote::noteWithTitle("Groceries", store.context())->text().value_or(""));
    std::set<std::string> found;
    for (std::string line; std::getline(text, line);)
        if (line.starts_with("- ")) {
            EXPECT_TRUE(found.insert(line).second) << line;
        }
    EXPECT_EQ(found, expected);
}

} // namespace
} // namespace tarn
