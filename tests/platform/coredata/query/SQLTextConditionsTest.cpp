// Searches of very many words: they pick what the evaluator picks, read each text once, and keep their limit.

#include "tarnmodel/platform/predicate/PredicateEvaluator.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tests/platform/coredata/RandomDocuments.h"
#include "tests/support/SQLStatistics.h"

#include <algorithm>
#include <cstdlib>
#include <fmt/format.h>
#include <random>

namespace tarn {
namespace {

constexpr std::int64_t kDocuments = 300;

/// Words of few letters resemble each other: many are parts of others, and some fold to the same.
std::string word(std::mt19937_64& random)
{
    static constexpr std::array<std::string_view, 9> kLetters{"a", "b", "A", "ä", "é", "か", "が", "ß", "x"};
    std::string made;
    for (auto count = 1 + random() % 6; count > 0; --count)
        made += kLetters[random() % kLetters.size()];
    return made;
}

std::string text(std::mt19937_64& random, std::size_t words)
{
    std::string made;
    for (; words > 0; --words)
        made += word(random) + (random() % 3 ? " " : "-");
    return made;
}

/// Joined in one list: the parser does so with what is joined in the text.
NSPredicate joined(CompoundType type, const std::vector<NSPredicate>& members)
{
    return type == CompoundType::And ? NSPredicate::andPredicateWithSubpredicates(members)
                                     : NSPredicate::orPredicateWithSubpredicates(members);
}

/// Words joined, negated, repeated and nested, with tags and other conditions between them.
class ManyWords {
public:
    explicit ManyWords(std::mt19937_64& random) : random_(random)
    {
        for (auto count = 1 + below(30); count > 0; --count)
            words_.push_back(word(random));
    }

    NSPredicate predicate(std::size_t leaves)
    {
        const CompoundType type = below(2) ? CompoundType::And : CompoundType::Or;
        std::vector<NSPredicate> members;
        while (leaves > 0) {
            const std::size_t part = below(6) == 0 ? std::min(leaves, 2 + below(leaves)) : 1;
            members.push_back(part < leaves && part > 1 ? predicate(part) : leaf());
            leaves -= part;
        }
        const NSPredicate all = joined(type, members);
        return below(5) == 0 ? NSPredicate::notPredicateWithSubpredicate(all) : all;
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    NSPredicate leaf()
    {
        const NSPredicate positive = positiveLeaf();
        // Mostly negated in an AND, or it would hardly ever hold: both are left to chance.
        return below(2) ? NSPredicate::notPredicateWithSubpredicate(positive) : positive;
    }
    NSPredicate positiveLeaf()
    {
        const std::string wanted = below(4) ? words_[below(words_.size())] : word(random_) + word(random_);
        switch (below(26)) {
        case 0:
            return NSPredicate::predicateWithFormat("ANY labels.name ==[cd] %@", wanted.substr(0, 1));
        case 1:
            return NSPredicate::predicateWithFormat("order > %d", static_cast<int>(below(12)));
        case 2:
            return NSPredicate::predicateWithFormat("title CONTAINS[cd] %@", wanted);
        case 3:
            return NSPredicate::predicateWithFormat("body BEGINSWITH[cd] %@", wanted);
        case 4:
            return NSPredicate::predicateWithFormat("body ENDSWITH[cd] %@", wanted);
        case 5:
            return NSPredicate::predicateWithFormat(below(2) ? "body CONTAINS[c] %@" : "body CONTAINS %@", wanted);
        case 6:
            return NSPredicate::predicateWithFormat("body LIKE[cd] %@", "*" + wanted + "?*");
        case 7:
            return NSPredicate::predicateWithFormat("NONE attachments.caption CONTAINS[cd] %@", wanted);
        case 8:
            return NSPredicate::predicateWithFormat(
                "SUBQUERY(attachments, $f, $f.caption CONTAINS[cd] %@ AND $f.caption CONTAINS[cd] 'a').@count == 0",
                wanted);
        case 10:
            return NSPredicate::predicateWithFormat(
                below(2) ? "ANY labels.name CONTAINS[cd] %@" : "NONE labels.name CONTAINS[cd] %@", wanted.substr(0, 1));
        case 11:
            return NSPredicate::predicateWithFormat(
                "SUBQUERY(labels, $l, $l.weight > 1 AND $l.name CONTAINS[cd] %@).@count > 0", wanted.substr(0, 1));
        case 9:
            return NSPredicate::predicateWithFormat("body CONTAINS[cd] ''");
        default:
            return wordPredicate(wanted, below(5) == 0, below(3) == 0);
        }
    }

    std::mt19937_64& random_;
    std::vector<std::string> words_;
};

int searchesOfTheRun()
{
    const char* wanted = std::getenv("TARN_LONG_SEARCHES");
    return wanted ? std::atoi(wanted) : 50;
}

class SearchOfManyWords : public testing::TestWithParam<std::uint64_t> { };
INSTANTIATE_TEST_SUITE_P(Seeds, SearchOfManyWords, testing::Values(20261122, 5, 6), testing::PrintToStringParamName());

TEST_P(SearchOfManyWords, PicksTheSameRowsAsTheEvaluator)
{
    std::mt19937_64 random(GetParam());
    TestFolder folder;
    const OpenStore sql(StoreType::SQLite, folder.file(), {.pragmas = {{"journal_mode", "MEMORY"}}});
    const OpenStore memory(StoreType::InMemory, {});
    ASSERT_TRUE(sql) << sql.error();
    insertAtRandom({.text = [&](std::size_t words) { return text(random, words); },
                       .labels = {"a", "B", "か", "x"},
                       .documents = kDocuments,
                       .pictures = kDocuments / 3,
                       .joins = kDocuments},
        random, sql, memory);
    int found = 0;
    const int searches = searchesOfTheRun();
    for (int i = 0; i < searches; ++i) {
        const std::size_t leaves = i % 20 == 19 ? 700 : 1 + random() % (random() % 3 ? 12 : 80);
        NSPredicate predicate = ManyWords(random).predicate(leaves);
        auto wanted = memory.keys("Document", predicate);
        for (int more = 0; more < 9 && (wanted.empty() || wanted.size() == kDocuments); ++more) {
            predicate = ManyWords(random).predicate(leaves); // many hold always or never
            wanted = memory.keys("Document", predicate);
        }
        SCOPED_TRACE(fmt::format("seed {} number {}: {}", GetParam(), i, predicate.predicateFormat()));
        ASSERT_EQ(sql.keys("Document", predicate), wanted);
        std::size_t count = 0;
        StoreFetch fetch;
        fetch.entity = &sql.entity("Document");
        fetch.predicate = &predicate;
        ASSERT_TRUE(sql->count(fetch, count, nullptr));
        ASSERT_EQ(count, wanted.size());
        const std::vector<NSSortDescriptor> order = random() % 2
            ? std::vector<NSSortDescriptor>{{"flag", false}, {"modified", false}}
            : std::vector<NSSortDescriptor>{{"title", true}};
        const std::size_t limit = 1 + random() % 20;
        ASSERT_EQ(sql.keys("Document", predicate, order, limit, i % 3),
            memory.keys("Document", predicate, order, limit, i % 3));
        found += wanted.empty() || wanted.size() == kDocuments ? 0 : 1;
    }
    EXPECT_GT(found, searches / 4) << "hardly any search says something";
}

// What they cost ------------------------------------------------------------------------------------------------------

class CostOfManyWords : public testing::Test {
protected:
    static constexpr int kCount = 1500;

    static void SetUpTestSuite()
    {
        statistics_ = std::make_unique<SQLStatistics>();
        folder_ = std::make_unique<TestFolder>();
        store_ = std::make_unique<OpenStore>(
            StoreType::SQLite, folder_->file(), StoreOptions{.pragmas = {{"journal_mode", "MEMORY"}}});
        NSError error;
        std::int64_t first = 0;
        ASSERT_TRUE((*store_)->reserveKeys(store_->entity("Document"), kCount, first, &error)) << error;
        const auto transaction = (*store_)->beginTransaction(&error);
        ASSERT_TRUE(transaction) << error;
        for (int i = 0; i < kCount; ++i) {
            std::string body = fmt::format("number {} ", i);
            for (int at = 0; at < 150; ++at)
                body += fmt::format("filling{} ", (i + at) % 977);
            ASSERT_TRUE(transaction->insertRow(makeRow(store_->entity("Document"), first + i,
                                                   {{"title", fmt::format("Title {}", i)}, {"body", body},
                                                       {"flag", false}, {"order", std::int64_t{i % 7}}}),
                &error))
                << error;
        }
        ASSERT_TRUE(transaction->commit(&error)) << error;
    }
    static void TearDownTestSuite()
    {
        store_.reset();
        folder_.reset();
        statistics_.reset();
    }

    /// Words that no text has but the last, which one in ten has.
    static NSPredicate words(CompoundType type, int count, bool negated)
    {
        std::vector<NSPredicate> members;
        for (int i = 0; i < count; ++i) {
            const NSPredicate one
                = wordPredicate(i + 1 == count ? "er 3" : fmt::format("filled{}absent", i), false, false);
            members.push_back(negated ? NSPredicate::notPredicateWithSubpredicate(one) : one);
        }
        return joined(type, members);
    }
    static StoreFetch fetchOf(const NSPredicate& predicate, std::size_t limit)
    {
        static const std::vector<NSSortDescriptor> sort{{"flag", false}, {"modified", false}};
        StoreFetch fetch;
        fetch.entity = &store_->entity("Document");
        fetch.predicate = &predicate;
        fetch.limit = limit;
        if (limit > 0)
            fetch.sortDescriptors = sort;
        return fetch;
    }
    static std::string explained(const NSPredicate& predicate, std::size_t limit)
    {
        return (*store_)->explain(fetchOf(predicate, limit));
    }
    static SQLStatistics::Counts costOf(const NSPredicate& predicate)
    {
        statistics_->take();
        std::vector<StoreRow> rows;
        EXPECT_TRUE((*store_)->fetch(fetchOf(predicate, 0), rows, nullptr));
        return statistics_->take();
    }
    static std::size_t occurrences(const std::string& text, std::string_view part)
    {
        std::size_t count = 0;
        for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++count;
        return count;
    }
    static const OpenStore& store() { return *store_; }

private:
    static inline std::unique_ptr<SQLStatistics> statistics_;
    static inline std::unique_ptr<TestFolder> folder_;
    static inline std::unique_ptr<OpenStore> store_;
};

TEST_F(CostOfManyWords, OneTestAsksForAllWordsOfARow)
{
    for (const CompoundType type : {CompoundType::And, CompoundType::Or})
        for (const bool negated : {false, true}) {
            const std::string few = explained(words(type, 3, negated), 0);
            EXPECT_EQ(occurrences(few, "texts_hold("), 1U) << few;
            EXPECT_EQ(occurrences(few, "string_test("), 0U) << few;
            const std::string many = explained(words(type, 300, negated), 0);
            EXPECT_LE(many.size(), few.size() + 200) << "the statement does not grow with the words";
        }
}

TEST_F(CostOfManyWords, TheLimitStaysInTheStatementHoweverManyThereAre)
{
    for (const int count : {400, 401, 2500})
        for (const CompoundType type : {CompoundType::And, CompoundType::Or}) {
            const std::string text = explained(words(type, count, type == CompoundType::And), 5);
            EXPECT_EQ(text.find("then evaluated"), std::string::npos) << text.substr(0, 500);
        }
}

TEST_F(CostOfManyWords, WordsThatComeAgainAreOneTest)
{
    std::vector<NSPredicate> members;
    for (int i = 0; i < 200; ++i)
        members.push_back(wordPredicate(i % 2 ? "Filling3" : "fílling3", false, false));
    const std::string text = explained(joined(CompoundType::And, members), 0);
    EXPECT_NE(text.find("2 tests of texts"), std::string::npos) << text.substr(0, 1000);
}

TEST_F(CostOfManyWords, ReadsEachTextOnceHoweverManyThereAre)
{
    for (const auto& [type, negated] :
        {std::pair(CompoundType::Or, false), std::pair(CompoundType::And, true), std::pair(CompoundType::Or, true)}) {
        costOf(words(type, 50, negated)); // opens a connection
        const SQLStatistics::Counts few = costOf(words(type, 50, negated));
        const SQLStatistics::Counts many = costOf(words(type, 400, negated));
        EXPECT_GT(few.pages, kCount) << "a text has a page or more";
        EXPECT_EQ(many.statements, few.statements);
        EXPECT_EQ(many.rows, few.rows);
        EXPECT_EQ(many.steps, few.steps);
        EXPECT_EQ(many.pages, few.pages);
    }
}

TEST_F(CostOfManyWords, FiftyThousandAreFound)
{
    EXPECT_EQ(store().keys("Document", words(CompoundType::Or, 50'000, false)).size(), 111U);
    EXPECT_EQ(store().keys("Document", words(CompoundType::And, 50'000, true), {{"flag", false}}, 7).size(), 7U);
}

} // namespace
} // namespace tarn
