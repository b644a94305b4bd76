// What the index of texts must never do: hide a row that a search should find.

#include "tarnmodel/platform/coredata/textsearch/SearchIndex.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/textsearch/StoreSearch.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <atomic>
#include <fmt/format.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class SearchedStore : public testing::Test {
protected:
    OpenStore open(const StoreOptions& options = {}) const { return {StoreType::SQLite, folder.file(), options}; }
    static std::int64_t document(const OpenStore& store, const Value& body)
    {
        return store.insert("Document", {{"title", "t"}, {"body", body}});
    }
    static std::vector<std::int64_t> found(const OpenStore& store, std::string_view needle)
    {
        return store.keysWhere("Document", "body CONTAINS[cd] %@", needle);
    }
    /// How a search was answered: "search: check candidates, 1 candidates of 3 rows, ...".
    static std::string explained(const OpenStore& store, std::string_view needle)
    {
        const NSPredicate predicate = NSPredicate::predicateWithFormat("body CONTAINS[cd] %@", needle);
        StoreFetch fetch;
        fetch.entity = &store.entity("Document");
        fetch.predicate = &predicate;
        return store->explain(fetch);
    }
    std::vector<std::string> staleKeys() const
    {
        return OtherProgram(folder.file())
            .run("SELECT pk FROM Document_body_signature WHERE signature IS NULL ORDER BY pk");
    }
    std::vector<std::string> problems(const OpenStore& store) const
    {
        std::vector<std::string> found;
        NSError error;
        EXPECT_TRUE(store->checkSearchIndex(found, &error)) << error;
        return found;
    }

    TestFolder folder;
};

// Narrowing -----------------------------------------------------------------------------------------------------------

TEST_F(SearchedStore, LooksOnlyAtRowsThatMayHaveTheText)
{
    const OpenStore store = open();
    const auto pears = document(store, "Ripe pears and plums");
    document(store, "Nothing of that kind");
    const auto other = document(store, "PÉARS");
    EXPECT_THAT(found(store, "pears"), ElementsAre(pears, other));
    EXPECT_THAT(explained(store, "pears"), HasSubstr("search: check candidates, 2 candidates of 3 rows"));
    EXPECT_THAT(explained(store, "nowhere at all"), HasSubstr("check candidates, 0 candidates of 3 rows"));
}

TEST_F(SearchedStore, AnswersNeedlesOfOneTwoAndThreeCodePoints)
{
    const OpenStore store = open();
    const auto latin = document(store, "abc");
    const auto han = document(store, "日本語");
    document(store, nullptr);
    document(store, "");
    EXPECT_THAT(found(store, "b"), ElementsAre(latin));
    EXPECT_THAT(found(store, "bc"), ElementsAre(latin));
    EXPECT_THAT(found(store, "ABC"), ElementsAre(latin));
    EXPECT_THAT(found(store, "abcd"), IsEmpty());
    EXPECT_THAT(found(store, "本"), ElementsAre(han));
    EXPECT_THAT(found(store, "本語"), ElementsAre(han));
    EXPECT_THAT(explained(store, "本語"), HasSubstr("1 candidates of 3 rows")) << "nil has no row among the texts";
    EXPECT_THAT(explained(store, "bc"), HasSubstr("every row is a candidate"));
    EXPECT_THAT(found(store, "日本語"), ElementsAre(han));
}

TEST_F(SearchedStore, FindsNothingByMarksAloneAndByNothing)
{
    const OpenStore store = open();
    document(store, "Äpfel e\xCC\x81");
    EXPECT_THAT(found(store, ""), IsEmpty());
    EXPECT_THAT(found(store, "\xCC\x81\xCC\x88"), IsEmpty()) << "marks on nothing stay, and stand nowhere alone";
    EXPECT_THAT(found(store, "\xC2\xAD"), IsEmpty()) << "a soft hyphen folds to nothing";
    const auto marks = document(store, "\xCC\x81\xCC\x88\xCC\x80 alone");
    EXPECT_THAT(found(store, "\xCC\x81\xCC\x88\xCC\x80"), ElementsAre(marks));
}

TEST_F(SearchedStore, AnswersOnNoRowsAtAll)
{
    const OpenStore store = open();
    EXPECT_THAT(found(store, "anything"), IsEmpty());
    EXPECT_EQ(store.count("Document", "body CONTAINS[cd] 'anything' OR flag == YES"), 0U);
    EXPECT_EQ(store.count("Document", "NOT body CONTAINS[cd] 'anything'"), 0U);
    EXPECT_THAT(problems(store), IsEmpty());
}

TEST_F(SearchedStore, SearchesATextOfTenMegabytes)
{
    const OpenStore store = open();
    std::string text;
    for (int i = 0; text.size() < 10'000'000; ++i)
        text += fmt::format("line {} of many\n", i);
    const auto key = document(store, text + "the Needle at its end");
    document(store, "small");
    EXPECT_THAT(found(store, "needle at its"), ElementsAre(key));
    EXPECT_THAT(found(store, "line 312345 of"), ElementsAre(key));
}

TEST_F(SearchedStore, FindsWholeWordsByTheirLiteral)
{
    const OpenStore store = open();
    const auto alone = document(store, "say (C++) loudly");
    document(store, "xC++x");
    const auto dotted = document(store, "end in a.b");
    const auto matching = [&](const std::string& escaped) {
        return store.keysWhere(
            "Document", "body MATCHES[cd] %@", R"((?mis).*?(?:^|[^\w]))" + escaped + R"((?:[^\w]|$).*)");
    };
    EXPECT_THAT(matching(R"(c\+\+)"), ElementsAre(alone)) << "ends in what is no letter";
    EXPECT_THAT(matching(R"(\(c\+\+\))"), ElementsAre(alone));
    EXPECT_THAT(matching(R"(a\.b)"), ElementsAre(dotted));
    EXPECT_THAT(matching("loud"), IsEmpty()) << "a part of a word";
    EXPECT_THAT(matching("loudly"), ElementsAre(alone));
    EXPECT_THAT(matching("lou?dly"), ElementsAre(alone)) << "any other pattern is for the matcher";
}

TEST_F(SearchedStore, SearchesMembersAndLeadsToTheirOwners)
{
    const OpenStore store = open();
    const auto with = document(store, "no word of it");
    document(store, "nothing");
    store.insert("Picture", {{"caption", "Ripe pears"}, {"unused", false}, {"document", with}});
    store.insert("Recording", {{"caption", "Ripe pears"}, {"unused", true}});
    EXPECT_THAT(store.keysWhere("Document", "ANY attachments.caption CONTAINS[cd] 'PEARS'"), ElementsAre(with));
    EXPECT_THAT(store.keysWhere("Document", "NONE attachments.caption CONTAINS[cd] 'PEARS'"), ElementsAre(with + 1));
    EXPECT_THAT(store.keysWhere("Document",
                    "SUBQUERY(attachments, $a, $a.unused == NO AND $a.caption CONTAINS[cd] 'pears').@count != 0"),
        ElementsAre(with));
    const NSPredicate predicate
        = NSPredicate::predicateWithFormat("body CONTAINS[cd] 'pears' OR ANY attachments.caption CONTAINS[cd] 'pears'");
    StoreFetch fetch;
    fetch.entity = &store.entity("Document");
    fetch.predicate = &predicate;
    EXPECT_THAT(store->explain(fetch), HasSubstr("check candidates, 1 candidates of 2 rows"));
}

// The title drops markup that the text has, so a title may hold what the text does not.
TEST_F(SearchedStore, NeverTestsTitlesByTheSignatureOfTheText)
{
    const OpenStore store = open();
    const auto flagged = store.insert("Document", {{"title", "bold move"}, {"body", nullptr}, {"flag", true}});
    const auto plain = store.insert("Document", {{"title", "bold move"}, {"body", "**bold** move"}, {"flag", false}});
    for (int i = 0; i < 5; ++i)
        store.insert("Document", {{"title", "other"}, {"body", "other"}, {"flag", i == 0}});
    constexpr auto* kSearch
        = "(flag == YES AND title CONTAINS[cd] %@) OR (flag == NO AND (body CONTAINS[cd] %@ OR (0 == 1 AND "
          "SUBQUERY(attachments, $a, $a.caption CONTAINS[cd] %@).@count != 0)))";
    const NSPredicate predicate = NSPredicate::predicateWithFormat(kSearch, "bold move", "bold move", "bold move");
    EXPECT_THAT(store.keys("Document", predicate), ElementsAre(flagged));
    EXPECT_THAT(store.keysWhere("Document", "title CONTAINS[cd] 'bold move'"), ElementsAre(flagged, plain));
    StoreFetch fetch;
    fetch.entity = &store.entity("Document");
    fetch.predicate = &predicate;
    const std::string text = store->explain(fetch);
    EXPECT_THAT(text, HasSubstr("check candidates, 1 candidates of")) << "0 == 1 is nothing, the flag has its index";
}

// Who writes ----------------------------------------------------------------------------------------------------------

TEST_F(SearchedStore, KeepsStepWithEveryKindOfWrite)
{
    const OpenStore store = open();
    const auto key = document(store, "pears");
    EXPECT_THAT(found(store, "pears"), ElementsAre(key));
    ASSERT_TRUE(store.update("Document", key, "body", "plums"));
    EXPECT_THAT(found(store, "pears"), IsEmpty());
    EXPECT_THAT(found(store, "plums"), ElementsAre(key));
    const auto later = store.insert("Document", {{"title", "without a text"}});
    ASSERT_TRUE(store.update("Document", later, "body", "late plums"));
    EXPECT_THAT(found(store, "plums"), ElementsAre(key, later));
    store.remove("Document", key);
    EXPECT_THAT(found(store, "plums"), ElementsAre(later));
    EXPECT_THAT(explained(store, "plums"), HasSubstr("1 candidates"));
    EXPECT_THAT(staleKeys(), IsEmpty());
    EXPECT_THAT(problems(store), IsEmpty());
    EXPECT_THAT(
        OtherProgram(folder.file()).run("SELECT pk FROM Document_body_signature"), ElementsAre(std::to_string(later)));
}

TEST_F(SearchedStore, SeesTheTransactionThatItSearchesIn)
{
    const OpenStore store = open();
    const auto kept = document(store, "pears");
    const auto changed = document(store, "figs");
    EXPECT_THAT(found(store, "pears"), ElementsAre(kept)); // the signatures are in memory now
    {
        NSError error;
        const auto transaction = store->beginTransaction(&error);
        ASSERT_TRUE(transaction) << error;
        const auto added = store.newKey("Document");
        ASSERT_TRUE(transaction->insertRow(
            makeRow(store.entity("Document"), added, {{"title", "t"}, {"body", "new pears"}}), &error));
        StoreRow row = store.row("Document", changed);
        row.values.setAttributeValue(store.entity("Document").propertyNamed("body")->index(), Value("more pears"));
        ASSERT_EQ(
            transaction->updateRow(row, propertyBit(store.entity("Document").propertyNamed("body")->index()), &error),
            RowWriteResult::Written);
        EXPECT_THAT(found(store, "pears"), ElementsAre(kept, changed, added));
        EXPECT_THAT(found(store, "figs"), IsEmpty());
        std::thread([&] { EXPECT_THAT(found(store, "pears"), ElementsAre(kept)) << "not committed"; }).join();
    }
    EXPECT_THAT(found(store, "pears"), ElementsAre(kept)) << "rolled back";
    EXPECT_THAT(found(store, "figs"), ElementsAre(changed));
}

TEST_F(SearchedStore, FindsWhatAnotherProgramWrote)
{
    const OpenStore store = open();
    const auto changed = document(store, "figs");
    const auto removed = document(store, "pears");
    const auto replaced = document(store, "pears");
    EXPECT_THAT(found(store, "pears"), ElementsAre(removed, replaced));
    {
        const OtherProgram shell(folder.file());
        shell.run(fmt::format("UPDATE Document_large SET body = 'Ripe Pears' WHERE pk = {}", changed));
        shell.run(fmt::format("DELETE FROM Document_large WHERE pk = {}", removed));
        shell.run(fmt::format("INSERT OR REPLACE INTO Document_large (pk, body) VALUES ({}, 'apples')", replaced));
        shell.run("INSERT INTO Document (pk, rowVersion, title) VALUES (900, 1, 'x')");
        shell.run("INSERT OR IGNORE INTO Document_large (pk, body) VALUES (900, 'Foreign pears')");
    }
    EXPECT_THAT(found(store, "pears"), ElementsAre(changed, 900));
    EXPECT_THAT(found(store, "apples"), ElementsAre(replaced));
    EXPECT_THAT(staleKeys(), ElementsAre(std::to_string(changed), std::to_string(replaced), "900"));
}

TEST_F(SearchedStore, FindsRowsWhoseKeyAnotherProgramChanged)
{
    const OpenStore store = open();
    const auto key = document(store, "pears");
    EXPECT_THAT(found(store, "pears"), ElementsAre(key));
    const OtherProgram shell(folder.file());
    shell.run("UPDATE Document_large SET pk = 77");
    shell.run("UPDATE Document SET pk = 77");
    EXPECT_THAT(found(store, "pears"), ElementsAre(77));
    EXPECT_THAT(shell.run("SELECT pk FROM Document_body_signature"), ElementsAre("77"));
}

TEST_F(SearchedStore, TakesARowWithoutASignatureForACandidate)
{
    const OpenStore store = open();
    const auto first = document(store, "pears");
    const auto second = document(store, "pears too");
    const OtherProgram shell(folder.file());
    shell.run("DELETE FROM Document_body_signature");
    EXPECT_THAT(found(store, "pears"), ElementsAre(first, second)) << "before anything was in memory";
    EXPECT_THAT(explained(store, "zygomorphic"), HasSubstr("2 candidates of 2 rows"));
    shell.run(fmt::format("UPDATE Document_body_signature SET signature = x'00' WHERE pk = {}", first));
    shell.run("DELETE FROM Document_body_changes");
    EXPECT_THAT(found(store, "pears"), ElementsAre(first, second));
}

TEST_F(SearchedStore, LoadsAnewWhenTheListOfChangesWasEmptied)
{
    const OpenStore store = open();
    const auto key = document(store, "figs");
    for (int i = 0; i < 20; ++i)
        document(store, "others");
    EXPECT_THAT(found(store, "pears"), IsEmpty());
    const OtherProgram shell(folder.file());
    shell.run("DELETE FROM Document_body_changes");
    shell.run(fmt::format("UPDATE Document_large SET body = 'pears' WHERE pk = {}", key));
    EXPECT_THAT(found(store, "pears"), ElementsAre(key));
}

TEST_F(SearchedStore, KeepsTheListOfChangesShort)
{
    const OpenStore store = open();
    const auto key = document(store, "figs");
    EXPECT_THAT(found(store, "pears"), IsEmpty());
    OtherProgram(folder.file())
        .run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 9000) "
             "INSERT INTO Document_body_changes (pk) SELECT 1 FROM n");
    ASSERT_TRUE(store.update("Document", key, "body", "pears"));
    EXPECT_THAT(found(store, "pears"), ElementsAre(key));
    const auto rows = OtherProgram(folder.file()).run("SELECT count(*) < 3000 FROM Document_body_changes");
    EXPECT_THAT(rows, ElementsAre("1"));
    ASSERT_TRUE(store.update("Document", key, "body", "figs"));
    EXPECT_THAT(found(store, "pears"), IsEmpty());
    EXPECT_THAT(found(store, "figs"), ElementsAre(key));
}

TEST_F(SearchedStore, TwoStoresOnOneFileSeeEachOther)
{
    const OpenStore first = open();
    const OpenStore second = open();
    const auto key = document(first, "pears");
    EXPECT_THAT(found(second, "pears"), ElementsAre(key));
    ASSERT_TRUE(second.update("Document", key, "body", "figs"));
    EXPECT_THAT(found(first, "pears"), IsEmpty());
    EXPECT_THAT(found(first, "figs"), ElementsAre(key));
    first.remove("Document", key);
    EXPECT_THAT(found(second, "figs"), IsEmpty());
}

// What is protected ---------------------------------------------------------------------------------------------------

TEST_F(SearchedStore, ForgetsTheSignatureOfATextThatIsTakenAway)
{
    const OpenStore store = open();
    const auto key = document(store, "a secret word");
    EXPECT_THAT(found(store, "secret"), ElementsAre(key));
    const OtherProgram shell(folder.file());
    const auto before = shell.run("SELECT hex(signature) FROM Document_body_signature");
    ASSERT_TRUE(store.update("Document", key, "body", nullptr));
    EXPECT_THAT(found(store, "secret"), IsEmpty());
    EXPECT_THAT(shell.run("SELECT length(signature) FROM Document_body_signature"), ElementsAre("4"))
        << "nothing of the text is left in it";
    std::ifstream file(folder.file(), std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    EXPECT_THAT(bytes, Not(HasSubstr("a secret word")));
}

// Versions ------------------------------------------------------------------------------------------------------------

TEST_F(SearchedStore, MakesEverythingStaleThatAnOlderFoldingMade)
{
    std::int64_t key = 0;
    {
        const OpenStore store = open();
        key = document(store, "pears");
        ASSERT_TRUE(store->setMetadataValue("foldingVersion", "1", nullptr));
    }
    {
        const OpenStore reader = open({.readOnly = true});
        EXPECT_THAT(found(reader, "pears"), ElementsAre(key));
    }
    const OpenStore store = open();
    EXPECT_THAT(staleKeys(), ElementsAre(std::to_string(key)));
    EXPECT_EQ(store->metadata(nullptr).at("foldingVersion"), std::to_string(foldingVersion()));
    EXPECT_THAT(found(store, "pears"), ElementsAre(key)) << "without waiting for anything to be made again";
}

TEST_F(SearchedStore, FollowsAnotherFoldingAgainAfterARollback)
{
    const OpenStore store = open();
    const auto key = document(store, "pears");
    OtherProgram(folder.file()).run("UPDATE store_metadata SET value = '1' WHERE key = 'foldingVersion'");
    OtherProgram(folder.file()).run("UPDATE Document SET title_folded = 'as it was folded once'");
    ASSERT_TRUE(store->beginTransaction(nullptr)) << "and rolled back at once";
    ASSERT_EQ(store->metadata(nullptr).at("foldingVersion"), "1");

    document(store, "apples");
    EXPECT_EQ(store->metadata(nullptr).at("foldingVersion"), std::to_string(foldingVersion()));
    EXPECT_THAT(store.keysWhere("Document", "title ==[cd] 'T'"), testing::Contains(key));
}

TEST_F(SearchedStore, IgnoresSignaturesOfAnotherVersion)
{
    const OpenStore store = open();
    const auto key = document(store, "pears");
    OtherProgram(folder.file()).run("UPDATE Document_body_signature SET signature = x'01FFFFFF00'");
    EXPECT_THAT(found(store, "pears"), ElementsAre(key));
    EXPECT_THAT(problems(store), ElementsAre(HasSubstr("not in the search index")));
}

TEST_F(SearchedStore, LeavesWhatItWritesStaleInAStoreOfANewerFolding)
{
    const OpenStore running = open();
    const auto early = document(running, "early pears");
    OtherProgram(folder.file()).run("UPDATE store_metadata SET value = '999999999' WHERE key = 'foldingVersion'");
    const auto late = document(running, "late pears");
    EXPECT_THAT(staleKeys(), ElementsAre(std::to_string(late))) << "noticed while it was open";
    EXPECT_THAT(found(running, "pears"), ElementsAre(early, late));
    EXPECT_THAT(OtherProgram(folder.file()).run(fmt::format("SELECT title_folded FROM Document WHERE pk = {}", late)),
        ElementsAre("NULL"));
    EXPECT_THAT(running.keysWhere("Document", "title ==[cd] 'T'"), ElementsAre(early, late));

    const OpenStore later = open();
    EXPECT_EQ(later->metadata(nullptr).at("foldingVersion"), "999999999") << "an older program does not take it back";
    const auto third = document(later, "pears of a third");
    EXPECT_THAT(found(later, "pears"), ElementsAre(early, late, third));
    std::size_t repaired = 1;
    EXPECT_TRUE(later->repairSearchIndex(repaired, nullptr));
    EXPECT_EQ(repaired, 0U) << "they are for the newer program to make";
}

TEST_F(SearchedStore, GivesAStoreOfAnEarlierBuildItsTables)
{
    std::int64_t key = 0;
    {
        const OpenStore store = open();
        key = document(store, "pears");
    }
    {
        const OtherProgram shell(folder.file());
        for (const char* table : {"Document_body", "Attachment_caption"}) {
            for (const char* event : {"insert", "update", "delete"})
                shell.run(fmt::format("DROP TRIGGER {}_signature_{}", table, event));
            shell.run(fmt::format("DROP TABLE {}_signature", table));
            shell.run(fmt::format("DROP TABLE {}_changes", table));
        }
        shell.run("DROP INDEX Document_flag_flagged");
        shell.run("INSERT INTO Document (pk, rowVersion, title) VALUES (5, 1, 'x')");
        shell.run("INSERT INTO Document_large (pk, body) VALUES (5, 'old pears')");
    }
    {
        const OpenStore reader = open({.readOnly = true});
        EXPECT_THAT(found(reader, "pears"), ElementsAre(key, 5)) << "without any index";
    }
    const OpenStore store = open();
    EXPECT_THAT(staleKeys(), ElementsAre(std::to_string(key), "5"));
    EXPECT_THAT(found(store, "pears"), ElementsAre(key, 5));
    ASSERT_TRUE(store.update("Document", key, "body", "figs"));
    EXPECT_THAT(found(store, "pears"), ElementsAre(5));
}

// Making good ---------------------------------------------------------------------------------------------------------

TEST_F(SearchedStore, FillsStaleSignaturesInLaterWrites)
{
    const OpenStore store = open();
    const auto first = document(store, "pears");
    OtherProgram(folder.file()).run("UPDATE Document_large SET body = 'figs'");
    EXPECT_THAT(found(store, "figs"), ElementsAre(first));
    EXPECT_THAT(staleKeys(), ElementsAre(std::to_string(first)));
    document(store, "something else");
    EXPECT_THAT(staleKeys(), IsEmpty());
    EXPECT_THAT(explained(store, "figs"), HasSubstr("1 candidates of 2 rows"));
    EXPECT_THAT(problems(store), IsEmpty());
}

TEST_F(SearchedStore, ReportsAndRepairsWhatIsMissingAndWhatIsWrong)
{
    const OpenStore store = open();
    const auto missing = document(store, "pears");
    const auto wrong = document(store, "pears");
    const OtherProgram shell(folder.file());
    EXPECT_THAT(problems(store), IsEmpty());
    shell.run(fmt::format("UPDATE Document_body_signature SET signature = NULL WHERE pk = {}", missing));
    shell.run(fmt::format(
        "UPDATE Document_body_signature SET signature = substr(signature, 1, 4) || x'00' WHERE pk = {}", wrong));
    EXPECT_THAT(problems(store),
        ElementsAre(HasSubstr(fmt::format("row {} of \"Document\": \"body\" is not in", missing)),
            HasSubstr(fmt::format("row {} of \"Document\": \"body\" is not as", wrong))));
    std::size_t repaired = 0;
    NSError error;
    ASSERT_TRUE(store->repairSearchIndex(repaired, &error)) << error;
    EXPECT_EQ(repaired, 2U);
    EXPECT_THAT(problems(store), IsEmpty());
    EXPECT_THAT(found(store, "pears"), ElementsAre(missing, wrong));
}

TEST_F(SearchedStore, CanBeCheckedDumpedAndVacuumedByAnyProgram)
{
    const OpenStore store = open();
    const auto key = document(store, "pears");
    const OtherProgram shell(folder.file());
    EXPECT_THAT(shell.run("PRAGMA integrity_check"), ElementsAre("ok"));
    shell.run("VACUUM");
    EXPECT_THAT(found(store, "pears"), ElementsAre(key));
    EXPECT_THAT(problems(store), IsEmpty());
}

// Processes and threads -----------------------------------------------------------------------------------------------

constexpr const char* kSearchedFileVariable = "TARN_TEST_SEARCHED_FILE";
constexpr int kWrittenWords = 60;

/// Runs in a process of its own for the test below; by itself it writes to a store of its own.
TEST(SearchProcess, WritesTextsToTheStoreThatItIsGiven)
{
    const auto given = Environment::current().variable(kSearchedFileVariable);
    const TestFolder folder;
    const OpenStore store(StoreType::SQLite, given ? std::filesystem::path(*given) : folder.file());
    ASSERT_TRUE(store) << store.error();
    for (int i = 0; i < kWrittenWords; ++i)
        EXPECT_GT(store.insert("Document", {{"title", "t"}, {"body", fmt::format("the word{}end stands here", i)}}), 0);
}

TEST_F(SearchedStore, FollowsAnotherProcessWhileItWrites)
{
    const OpenStore store = open();
    EXPECT_THAT(found(store, "word"), IsEmpty());
    const pid_t process = fork();
    if (process == 0) {
        setenv(kSearchedFileVariable, folder.file().c_str(), 1);
        execl("/proc/self/exe", "test_coredata", "--gtest_filter=SearchProcess.*", "--gtest_brief=1", nullptr);
        _exit(127);
    }
    // What was found once is found again, and all of it in the end.
    std::size_t seen = 0;
    int status = -1;
    bool isRunning = true;
    while (isRunning) {
        isRunning = waitpid(process, &status, WNOHANG) == 0;
        const std::size_t now = found(store, "the word").size();
        EXPECT_GE(now, seen);
        seen = now;
        if (seen > 0) {
            EXPECT_EQ(found(store, fmt::format("word{}end", seen - 1)).size(), 1U);
        }
    }
    EXPECT_EQ(status, 0);
    EXPECT_EQ(seen, std::size_t{kWrittenWords});
}

TEST_F(SearchedStore, IsSearchedByThreadsWhileOneWrites)
{
    const OpenStore store = open({.pragmas = {{"journal_mode", "MEMORY"}}});
    constexpr int kNotes = 40;
    std::atomic<int> written = 0;
    const auto reader = [&] {
        while (written < kNotes) {
            const int before = written;
            const auto hits = found(store, "shared words");
            EXPECT_GE(static_cast<int>(hits.size()), before);
            EXPECT_EQ(store.count("Document", "NOT body CONTAINS[cd] 'shared words'"), 0U);
        }
    };
    std::thread first(reader);
    std::thread second(reader);
    for (; written < kNotes; ++written)
        document(store, fmt::format("shared words, number {}", written.load()));
    first.join();
    second.join();
    EXPECT_EQ(found(store, "shared words").size(), std::size_t{kNotes});
}

} // namespace
} // namespace tarn
