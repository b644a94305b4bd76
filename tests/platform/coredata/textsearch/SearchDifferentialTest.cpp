// Searches in texts of many scripts: with the index, without it, and in memory they pick the same rows, whatever the
// plan.

#include "tarnmodel/platform/coredata/query/SQLiteFetch.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/textsearch/CandidateFinder.h"
#include "tarnmodel/platform/coredata/textsearch/StoreSearch.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tests/platform/coredata/RandomDocuments.h"
#include "tests/support/CaseName.h"

#include <fmt/format.h>
#include <limits>
#include <random>

namespace tarn {
namespace {

/// Words that resemble each other: with marks and without, one inside another, composed and decomposed.
constexpr std::array<std::string_view, 44> kWords{"apple", "Äpfel", "apfelkuchen", "cafe\xCC\x81", "café", "CAFE",
    "Straße", "strasse", "ﬁn", "İstanbul", "istanbul", "Đổi", "mới", "Ёлка", "елка", "работа", "РАБОТАЕТ", "Йод",
    "会議", "会議室", "日本語", "日本", "か", "が", "か\xE3\x82\x99", "ハンバーガー", "각", "가", "한국어", "한국",
    "中文", "ภาษาไทย", "ไทย", "العربية", "عربي", "😀", "👩\xE2\x80\x8D💻", "a.b", "c++", "#tag", "x_y",
    "soft\xC2\xADhyphen", "\xEF\xBC\xA1\xEF\xBC\xA2", "zygomorphic"};
constexpr std::array<std::string_view, 7> kGaps{" ", " ", " ", "\n", ", ", "", "-"};

class TextMaker {
public:
    explicit TextMaker(std::mt19937_64& random) : random_(random) { }

    std::size_t below(std::size_t bound) { return random_() % bound; }
    template <typename List> auto any(const List& list) { return list[below(list.size())]; }

    std::string text(std::size_t words)
    {
        std::string text;
        for (; words > 0; --words) {
            text += any(kWords);
            text += any(kGaps);
        }
        return text;
    }
    /// A word, a part of one, or what two leave between them.
    std::string needle()
    {
        std::string text(any(kWords));
        if (below(4) == 0)
            text += std::string(any(kGaps)) + std::string(any(kWords));
        if (below(3) == 0)
            text = part(text);
        return text;
    }

private:
    /// Whole code points of it.
    std::string part(const std::string& text)
    {
        std::vector<std::size_t> starts;
        for (std::size_t i = 0; i < text.size(); ++i)
            if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80)
                starts.push_back(i);
        const std::size_t first = starts[below(starts.size())];
        std::size_t last = first;
        for (auto count = 1 + below(3); count > 0 && last < text.size(); --count)
            do
                ++last;
            while (last < text.size() && (static_cast<unsigned char>(text[last]) & 0xC0) == 0x80);
        return text.substr(first, last - first);
    }

    std::mt19937_64& random_;
};

class SearchMaker {
public:
    explicit SearchMaker(std::mt19937_64& random) : random_(random), texts_(random) { }

    NSPredicate predicate(int depth)
    {
        switch (depth > 0 ? below(7) : 6) {
        case 0:
        case 1:
            return NSPredicate::andPredicateWithSubpredicates(some(depth));
        case 2:
            return NSPredicate::orPredicateWithSubpredicates(some(depth));
        case 3:
            return NSPredicate::notPredicateWithSubpredicate(predicate(depth - 1));
        default:
            return leaf();
        }
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }
    std::vector<NSPredicate> some(int depth)
    {
        std::vector<NSPredicate> members;
        for (auto count = 2 + below(2); count > 0; --count)
            members.push_back(predicate(depth - 1));
        return members;
    }

    NSPredicate leaf()
    {
        const std::string needle = texts_.needle();
        const bool looksIntoAttachments = below(2) != 0;
        switch (below(13)) {
        case 0:
        case 1: // what the search field makes of a word
            return wordPredicate(needle, false, looksIntoAttachments);
        case 2: // and of a quoted one
            return wordPredicate(needle, true, looksIntoAttachments);
        case 3:
            return NSPredicate::predicateWithFormat("body MATCHES[cd] %@", wholeWordPattern(needle));
        case 4:
            return NSPredicate::predicateWithFormat("title CONTAINS[cd] %@", needle);
        case 5:
            return NSPredicate::predicateWithFormat(
                below(2) ? "ANY labels.name ==[cd] %@" : "NONE labels.name ==[cd] %@", needle);
        case 6:
            return NSPredicate::predicateWithFormat(
                below(2) ? "ANY attachments.caption CONTAINS[cd] %@" : "NONE attachments.caption CONTAINS[cd] %@",
                needle);
        case 7:
            return NSPredicate::predicateWithFormat(below(2) ? "flag == YES" : "order > 1");
        case 8:
            return NSPredicate::predicateWithFormat(
                below(2) ? "body BEGINSWITH[cd] %@" : "body ENDSWITH[cd] %@", needle);
        case 9:
            return NSPredicate::predicateWithFormat(below(2) ? "body CONTAINS[c] %@" : "body CONTAINS %@", needle);
        default:
            return NSPredicate::predicateWithFormat("body CONTAINS[cd] %@", needle);
        }
    }

    std::mt19937_64& random_;
    TextMaker texts_;
};

void fill(std::mt19937_64& random, const OpenStore& sql, const OpenStore& memory)
{
    TextMaker texts(random);
    std::vector<std::string> labels(8);
    for (std::string& label : labels)
        label = texts.any(kWords);
    insertAtRandom({.text = [&](std::size_t words) { return texts.text(words); },
                       .labels = labels,
                       .documents = 48,
                       .pictures = 20,
                       .joins = 60},
        random, sql, memory);
}

/// Answers fetches from the file by a plan of the caller's choice.
class Plans {
public:
    explicit Plans(const OpenStore& store) : store_(store), connection_(store->file(), {}) { }

    std::vector<std::int64_t> withoutIndex(const StoreFetch& fetch)
    {
        return keys(fetch, SQLGenerator(selects_, options()));
    }

    std::vector<std::int64_t> withIndex(const StoreFetch& fetch, SearchPlan::Kind kind)
    {
        const ReadTransaction pass(connection_);
        SearchIndexReader look(index_, connection_);
        SQLConditionOptions options = this->options();
        options.rowsThatMayMatch = [&](const NSAttributeDescription& attribute, const StringTest& test) {
            return look.rowsThatMayMatch(attribute, test);
        };
        SearchPlan plan;
        plan.candidates
            = CandidateFinder(schema_, look, connection_, options).candidates(*fetch.predicate, *fetch.entity);
        if (plan.candidates) {
            plan.kind = kind;
            left_ += plan.candidates->size();
            ++narrowed_;
        }
        return keys(fetch, SQLGenerator(selects_, options, plan));
    }
    /// How often candidates were found, and how many they were together.
    int narrowedCount() const { return narrowed_; }
    std::size_t candidateCount() const { return left_; }

private:
    SQLConditionOptions options() const
    {
        SQLConditionOptions options;
        options.store = &store_->identity();
        return options;
    }
    std::vector<std::int64_t> keys(const StoreFetch& fetch, const SQLGenerator& generator)
    {
        const SQLiteRowReader reader(store_->identity(), selects_, connection_);
        std::vector<std::int64_t> keys;
        for (const StoreRow& row : SQLiteFetch(fetch, selects_, generator, reader, connection_).rows())
            keys.push_back(row.key);
        return keys;
    }

    const OpenStore& store_;
    StoreSchema schema_{*storeTestModel()};
    StoreSelects selects_{schema_, *storeTestModel()};
    SQLiteConnection connection_;
    SearchIndex index_{schema_};
    int narrowed_ = 0;
    std::size_t left_ = 0;
};

class SearchDifferential : public testing::TestWithParam<std::uint64_t> { };
INSTANTIATE_TEST_SUITE_P(
    Seeds, SearchDifferential, testing::Values(20261121, 2, 3, 4), testing::PrintToStringParamName());

TEST_P(SearchDifferential, PicksTheSameRowsByEveryPlanWithoutTheIndexAndInMemory)
{
    constexpr int kSearches = 2500;
    std::mt19937_64 random(GetParam());
    TestFolder folder;
    const OpenStore sql(StoreType::SQLite, folder.file(), {.pragmas = {{"journal_mode", "MEMORY"}}});
    const OpenStore memory(StoreType::InMemory, {});
    ASSERT_TRUE(sql) << sql.error();
    fill(random, sql, memory);
    Plans plans(sql);
    int found = 0;
    for (int i = 0; i < kSearches; ++i) {
        const NSPredicate predicate = SearchMaker(random).predicate(2);
        SCOPED_TRACE(fmt::format("seed {} number {}: {}", GetParam(), i, predicate.predicateFormat()));
        StoreFetch fetch;
        fetch.entity = &sql.entity("Document");
        fetch.predicate = &predicate;
        fetch.contents = RowContents::Keys;
        const auto wanted = memory.keys("Document", predicate);
        ASSERT_EQ(sql.keys("Document", predicate), wanted) << sql->explain(fetch);
        ASSERT_EQ(plans.withoutIndex(fetch), wanted);
        for (const auto kind : {SearchPlan::Kind::CheckCandidates, SearchPlan::Kind::WalkOrder, SearchPlan::Kind::Scan})
            ASSERT_EQ(plans.withIndex(fetch, kind), wanted) << nameOfPlan(kind);
        std::size_t count = 0;
        ASSERT_TRUE(sql->count(fetch, count, nullptr));
        ASSERT_EQ(count, wanted.size());
        found += wanted.empty() ? 0 : 1;
        // Now and then a text changes, so that the index has something to follow.
        if (i % 50 == 0) {
            const auto key = static_cast<std::int64_t>(1 + random() % 48);
            const std::string text = TextMaker(random).text(random() % 20);
            ASSERT_TRUE(sql.update("Document", key, "body", text));
            ASSERT_TRUE(memory.update("Document", key, "body", text));
        }
    }
    // The test says something only while many searches find something and the index leaves rows out.
    EXPECT_GT(found, kSearches / 3);
    EXPECT_GT(plans.narrowedCount(), kSearches);
    EXPECT_LT(plans.candidateCount(), static_cast<std::size_t>(plans.narrowedCount()) * 48 / 2);
}

// Many rows -----------------------------------------------------------------------------------------------------------

/// Enough rows for every plan: a common word, a rare one, and an order with an index.
class ManyDocuments : public testing::Test {
protected:
    static constexpr int kCount = 3000;

    static void SetUpTestSuite()
    {
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
            body += i % 3 == 0 ? "common pears" : i % 5 == 0 ? "often plums" : "nothing special";
            body += i == 1234 ? " rarest" : i % 40 == 7 ? " sometimes" : "";
            ASSERT_TRUE(transaction->insertRow(
                makeRow(store_->entity("Document"), first + i,
                    {{"title", fmt::format("Title {}", i)}, {"body", body}, {"flag", i % 700 == 0},
                        {"modified", Value(dateWithMicrosecondsSinceReferenceDate((i * 7919) % kCount))}}),
                &error))
                << error;
        }
        ASSERT_TRUE(transaction->commit(&error)) << error;
    }
    static void TearDownTestSuite()
    {
        store_.reset();
        folder_.reset();
    }

    static std::string explained(const std::string& format, std::size_t limit)
    {
        const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
        const std::vector<NSSortDescriptor> sort{{"flag", false}, {"modified", false}};
        StoreFetch fetch;
        fetch.entity = &store_->entity("Document");
        fetch.predicate = &predicate;
        fetch.limit = limit;
        if (limit > 0)
            fetch.sortDescriptors = sort;
        return (*store_)->explain(fetch);
    }
    /// The plan that an explanation names, when the candidates are not far more than the hits.
    static std::string plan(const std::string& explained, std::size_t hits)
    {
        const std::size_t start = explained.find("search: ") + 8;
        const std::size_t comma = explained.find(", ", start);
        const std::size_t candidates = std::stoul(explained.substr(comma + 2));
        EXPECT_GE(candidates, hits) << explained;
        EXPECT_LE(candidates, hits + 150) << explained;
        EXPECT_NE(explained.find(" candidates of 3000 rows"), std::string::npos) << explained;
        return explained.substr(start, comma - start);
    }
    static const OpenStore& store() { return *store_; }

private:
    static inline std::unique_ptr<TestFolder> folder_;
    static inline std::unique_ptr<OpenStore> store_;
};

TEST_F(ManyDocuments, AreCheckedOneByOneWhenFewAreCandidates)
{
    const std::string text = explained("body CONTAINS[cd] 'rarest'", 50);
    EXPECT_EQ(plan(text, 1), "check candidates");
    EXPECT_NE(text.find("plan: SEARCH t0 USING INTEGER PRIMARY KEY"), std::string::npos) << text;
}

TEST_F(ManyDocuments, AreWalkedInTheirOrderWhenManyAreCandidates)
{
    const std::string text = explained("body CONTAINS[cd] 'pears'", 50);
    EXPECT_EQ(plan(text, 1000), "walk the order");
    const std::string walk = text.substr(0, text.find("then, block by block:"));
    EXPECT_NE(walk.find("plan: SCAN t0 USING COVERING INDEX Document_flag_modified"), std::string::npos) << text;
    EXPECT_EQ(walk.find("TEMP B-TREE"), std::string::npos) << text;
    EXPECT_NE(text.find("plan: SEARCH t0 USING INTEGER PRIMARY KEY", walk.size()), std::string::npos) << text;
}

TEST_F(ManyDocuments, AreScannedWhenMoreThanAFifthAreCandidatesAndAllAreWanted)
{
    EXPECT_EQ(plan(explained("body CONTAINS[cd] 'pears'", 0), 1000), "scan");
    EXPECT_EQ(plan(explained("body CONTAINS[cd] 'plums'", 0), 400), "check candidates");
}

TEST_F(ManyDocuments, AreCountedTheSameByOneThreadAndByTwo)
{
    EXPECT_EQ(store().count("Document", "body CONTAINS[cd] 'pears'"), 1000U);
    EXPECT_EQ(store().count("Document", "NOT body CONTAINS[cd] 'pears'"), 2000U);
    EXPECT_EQ(store().count("Document", "body CONTAINS[cd] 'e'"), 3000U) << "no gram in the needle";
    EXPECT_EQ(store().count("Document", "body CONTAINS[cd] 'plums'"), 400U);
    EXPECT_EQ(store().count("Document", "body CONTAINS[cd] 'pears' AND flag == YES"), 2U);
    NSError error;
    const auto transaction = store()->beginTransaction(&error);
    ASSERT_TRUE(transaction) << error;
    EXPECT_EQ(store().count("Document", "body CONTAINS[cd] 'pears'"), 1000U) << "within a transaction by one";
}

// First rows of many --------------------------------------------------------------------------------------------------

using Order = std::vector<NSSortDescriptor>;

/// The first rows that a search finds, against a part of all that it finds.
struct FirstRows {
    std::string format;
    std::size_t hits;
    std::string plan; ///< for a limit of 50 in the order that has an index
};

void PrintTo(const FirstRows& rows, std::ostream* stream)
{
    *stream << rows.format;
}

class FirstOfManyDocuments : public ManyDocuments, public testing::WithParamInterface<FirstRows> { };

INSTANTIATE_TEST_SUITE_P(Searches, FirstOfManyDocuments,
    testing::Values( //
        FirstRows{"body CONTAINS[cd] 'rarest'", 1, "check candidates"},
        FirstRows{"body CONTAINS[cd] 'sometimes'", 75, "sort candidates"},
        FirstRows{"body CONTAINS[cd] 'plums'", 400, "walk the order"},
        FirstRows{"body CONTAINS[cd] 'pears'", 1000, "walk the order"},
        FirstRows{"body CONTAINS[cd] 'number'", 3000, "walk the order"},
        // Many candidates, hardly any of them a hit.
        FirstRows{"body CONTAINS[cd] 'number' AND title LIKE[cd] '*77'", 30, "walk the order"},
        FirstRows{"body CONTAINS[cd] 'number' AND title ENDSWITH[cd] '77'", 30, "check candidates"},
        FirstRows{"body CONTAINS[cd] 'number' AND title == 'Title 2999'", 1, "walk the order"},
        FirstRows{"body CONTAINS[cd] 'number' AND title == 'nothing'", 0, "walk the order"},
        // No gram to look for: all rows are candidates.
        FirstRows{"body CONTAINS[cd] 'zz'", 0, "no index"}, FirstRows{"body CONTAINS[cd] 'st'", 1, "no index"},
        FirstRows{"body CONTAINS[cd] '77'", 57, "no index"}, FirstRows{"body CONTAINS[cd] 'e'", 3000, "no index"},
        // Titles are found by the index of their folded values.
        FirstRows{"(flag == YES AND title CONTAINS[cd] 'E 77') OR (flag == NO AND (title CONTAINS[cd] 'E 77' OR (1 == "
                  "0 AND body CONTAINS[cd] 'x')))",
            11, "check candidates"},
        // Half of it is beyond SQL.
        FirstRows{"body CONTAINS[cd] 'pears' AND title IN[c] {'TITLE 3', 'Title 6', 'title 7'}", 2, "walk the order"}),
    [](const testing::TestParamInfo<FirstRows>& info) { return nameOfCase(info.param.format); });

TEST_P(FirstOfManyDocuments, ArePartOfAll)
{
    const auto predicate = NSPredicate::predicateWithFormat(GetParam().format);
    const Order indexed{{"flag", false}, {"modified", false}};
    const std::string text = explained(GetParam().format, 50);
    EXPECT_NE(text.find("search: " + GetParam().plan + ","), std::string::npos) << text;
    for (const Order& order : {indexed, Order{{"title", true}}, Order{}, Order{{"flag", true}, {"modified", true}}}) {
        const auto all = store().keys("Document", predicate, order);
        ASSERT_EQ(all.size(), GetParam().hits);
        for (const std::size_t limit : {std::size_t{1}, std::size_t{9}, std::size_t{50}, std::size_t{64},
                 std::size_t{65}, std::size_t{700}, std::size_t{5000}, std::numeric_limits<std::size_t>::max()})
            for (const std::size_t offset : {0, 3, 63, 999, 2500}) {
                const std::size_t first = std::min(offset, all.size());
                const std::size_t last = first + std::min(limit, all.size() - first);
                ASSERT_EQ(store().keys("Document", predicate, order, limit, offset),
                    std::vector<std::int64_t>(all.begin() + static_cast<std::ptrdiff_t>(first),
                        all.begin() + static_cast<std::ptrdiff_t>(last)))
                    << limit << " from " << offset;
            }
    }
}

TEST_P(FirstOfManyDocuments, AreTheSameWithinATransaction)
{
    const auto predicate = NSPredicate::predicateWithFormat(GetParam().format);
    const Order order{{"flag", false}, {"modified", false}};
    const auto wanted = store().keys("Document", predicate, order, 20, 5);
    NSError error;
    const auto transaction = store()->beginTransaction(&error);
    ASSERT_TRUE(transaction) << error;
    EXPECT_EQ(store().keys("Document", predicate, order, 20, 5), wanted);
}

} // namespace
} // namespace tarn
