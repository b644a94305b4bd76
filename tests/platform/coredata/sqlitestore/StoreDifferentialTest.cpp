// Random predicates over random stores pick the same rows in SQL and by the evaluator.

#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/query/SQLiteFetch.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <fmt/format.h>
#include <map>
#include <random>

namespace tarn {
namespace {

constexpr std::array<std::string_view, 14> kTexts{"", "a", "A", "\xC3\xA1", "ab", "AB c", "b",
    "Stra\xC3\x9F"
    "e",
    "STRASSE", "\xE3\x81\x8B", "\xE3\x81\x8C", "a?c*", "file1", "a b"};

/// The attributes of each entity by kind, with the to-one and to-many ways on from it.
struct Shape {
    std::vector<std::string> texts;
    std::vector<std::string> numbers;
    std::vector<std::string> dates;
    std::vector<std::pair<std::string, std::string>> toOne;
    std::vector<std::pair<std::string, std::string>> toMany;
};
const std::map<std::string, Shape>& shapes()
{
    static const std::map<std::string, Shape> all{
        {"Document",
            {{"title", "code", "body", "summary"}, {"flag", "order", "size", "ratio"}, {"created", "modified"},
                {{"owner", "Person"}, {"record", "Record"}}, {{"labels", "Label"}, {"attachments", "Attachment"}}}},
        {"Label",
            {{"name"}, {"weight"}, {}, {{"parent", "Label"}}, {{"documents", "Document"}, {"children", "Label"}}}},
        {"Attachment", {{"name"}, {"unused"}, {}, {{"document", "Document"}}, {}}},
        {"Picture", {{"name"}, {"unused", "width"}, {}, {{"document", "Document"}}, {}}},
        {"Person", {{"name"}, {}, {}, {}, {{"documents", "Document"}}}},
        {"Record", {{}, {"state"}, {}, {{"document", "Document"}}, {}}},
    };
    return all;
}

class PredicateMaker {
public:
    explicit PredicateMaker(std::mt19937_64& random) : random_(random) { }

    std::string predicate(const std::string& entity, const std::string& base, int depth)
    {
        switch (depth > 0 ? below(8) : 7) {
        case 0:
        case 1:
            return joined(entity, base, depth, " AND ");
        case 2:
        case 3:
            return joined(entity, base, depth, " OR ");
        case 4:
            return "NOT (" + predicate(entity, base, depth - 1) + ")";
        default:
            return leaf(entity, base, depth);
        }
    }

private:
    int below(int bound) { return static_cast<int>(random_() % static_cast<std::uint64_t>(bound)); }
    template <typename List> const auto& any(const List& list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

    std::string joined(const std::string& entity, const std::string& base, int depth, const std::string& connective)
    {
        std::string text;
        for (int i = 2 + below(2); i > 0; --i)
            text += (text.empty() ? "(" : connective + "(") + predicate(entity, base, depth - 1) + ")";
        return text;
    }

    std::string options() { return any(std::array<std::string, 6>{"", "", "[cd]", "[cd]", "[c]", "[d]"}); }
    std::string text() { return below(8) == 0 ? "nil" : '"' + std::string(any(kTexts)) + '"'; }
    std::string number()
    {
        return any(std::array<std::string, 12>{
            "nil", "0", "1", "2", "-1", "3", "0.5", "2.0", "YES", "NO", "1e3", "9007199254740993"});
    }
    std::string date() { return below(6) == 0 ? "nil" : fmt::format("CAST({}, \"NSDate\")", below(4)); }
    std::string order() { return any(std::array<std::string, 6>{"==", "!=", "<", "<=", ">", ">="}); }

    std::string textComparison(const std::string& left)
    {
        switch (below(6)) {
        case 0:
        case 1:
            return left + " " + order() + options() + " " + text();
        case 2:
            return fmt::format("{} IN {{{}, {}, {}}}", left, text(), text(), text());
        case 3:
            return fmt::format("{} BETWEEN {{{}, {}}}", left, text(), text());
        default: {
            const auto name = any(std::array<std::string, 5>{"CONTAINS", "BEGINSWITH", "ENDSWITH", "LIKE", "MATCHES"});
            return left + " " + name + options() + " \"" + (name == "MATCHES" ? "a.*|b" : std::string(any(kTexts)))
                + '"';
        }
        }
    }

    std::string numberComparison(const std::string& left)
    {
        switch (below(5)) {
        case 0:
            return fmt::format("{} IN {{{}, {}}}", left, number(), number());
        case 1:
            return fmt::format("{} BETWEEN {{{}, {}}}", left, number(), number());
        case 2:
            return number() + " " + order() + " " + left;
        default:
            return left + " " + order() + " " + number();
        }
    }

    /// A comparison whose left side may be an attribute of a member or of the object itself.
    std::string comparison(const std::string& left, const std::string& entity)
    {
        const Shape& shape = shapes().at(entity);
        const int kind = below(4);
        if (kind == 0 && !shape.numbers.empty())
            return numberComparison(left + any(shape.numbers));
        if (kind == 1 && !shape.dates.empty())
            return left + any(shape.dates) + " " + order() + " " + date();
        if (kind == 2 && !shape.toOne.empty())
            return left + any(shape.toOne).first + any(std::array<std::string, 2>{" == nil", " != nil"});
        if (!shape.texts.empty())
            return textComparison(left + any(shape.texts));
        return numberComparison(left + any(shape.numbers));
    }

    std::string pair(const std::string& entity, const std::string& base)
    {
        const Shape& shape = shapes().at(entity);
        const auto& names = below(2) && !shape.numbers.empty() ? shape.numbers : shape.texts;
        if (names.empty())
            return comparison(base, entity);
        return base + any(names) + " " + order() + " " + base + any(names);
    }

    std::string quantified(const std::string& entity, const std::string& base)
    {
        const auto& [way, member] = any(shapes().at(entity).toMany);
        const auto quantifier = any(std::array<std::string, 4>{"ANY ", "ANY ", "NONE ", "ALL "});
        const Shape& shape = shapes().at(member);
        std::string left = base + way + ".";
        const std::string* at = &member;
        if (below(3) == 0 && !shape.toOne.empty()) {
            const auto& next = any(shape.toOne);
            left += next.first + ".";
            at = &next.second;
        } else if (below(4) == 0 && !shape.toMany.empty()) {
            const auto& next = any(shape.toMany);
            left += next.first + ".";
            at = &next.second;
        }
        const Shape& end = shapes().at(*at);
        if (end.texts.empty() || (below(2) && !end.numbers.empty()))
            return quantifier + left + any(end.numbers) + " " + order() + " " + number();
        return quantifier + left + any(end.texts) + " "
            + any(std::array<std::string, 3>{"==[cd]", "!=", "CONTAINS[cd]"}) + " \"" + std::string(any(kTexts)) + '"';
    }

    std::string counted(const std::string& entity, const std::string& base, int depth)
    {
        const auto& [way, member] = any(shapes().at(entity).toMany);
        const std::string test = ".@count " + order() + " " + any(std::array<std::string, 5>{"0", "0", "1", "2", "-1"});
        if (depth <= 0 || below(3) == 0)
            return base + way + test;
        const std::string variable = fmt::format("$v{}", variables_++);
        std::string inner = predicate(member, variable + ".", depth - 1);
        if (below(4) == 0 && !shapes().at(member).texts.empty() && base.empty() && !shapes().at(entity).texts.empty())
            inner += fmt::format(
                " OR {}.{} == SELF.{}", variable, any(shapes().at(member).texts), any(shapes().at(entity).texts));
        return fmt::format("SUBQUERY({}{}, {}, {}){}", base, way, variable, inner, test);
    }

    std::string leaf(const std::string& entity, const std::string& base, int depth)
    {
        const Shape& shape = shapes().at(entity);
        switch (below(10)) {
        case 0:
            return pair(entity, base);
        case 1:
        case 2:
            if (!shape.toMany.empty())
                return quantified(entity, base);
            break;
        case 3:
        case 4:
            if (!shape.toMany.empty())
                return counted(entity, base, depth);
            break;
        case 5:
        case 6:
            if (!shape.toOne.empty()) {
                const auto& [way, next] = any(shape.toOne);
                const std::string on = base + way + ".";
                if (below(2) || shapes().at(next).toMany.empty())
                    return comparison(on, next);
                return below(2) ? quantified(next, on) : counted(next, on, depth);
            }
            break;
        case 7:
            return any(std::array<std::string, 4>{"TRUEPREDICATE", "FALSEPREDICATE", "1 == 1", "\"a\" == nil"});
        default:
            break;
        }
        return comparison(base, entity);
    }

    std::mt19937_64& random_;
    int variables_ = 0;
};

/// Fills both stores with the same random rows.
class RandomRows {
public:
    RandomRows(std::mt19937_64& random, const OpenStore& sql, const OpenStore& memory)
        : random_(random), stores_{&sql, &memory}
    { }

    void fill()
    {
        const auto people = rows("Person", 3, [&] { return Values{{"name", text()}}; });
        const auto labels = rows("Label", 6, [&] { return Values{{"name", text()}, {"weight", number()}}; });
        for (const auto label : labels)
            if (random_() % 2)
                set("Label", label, "parent", one(labels));
        const auto documents = rows("Document", 14, [&] {
            return Values{{"title", text()}, {"code", text()}, {"body", text()}, {"summary", text()},
                {"flag", maybe(random_() % 2 == 0)}, {"order", number()}, {"size", number()},
                {"ratio", maybe(static_cast<double>(random_() % 5) / 2)}, {"created", date()}, {"modified", date()},
                {"owner", random_() % 2 ? one(people) : Value()}};
        });
        rows("Record", 5, [&] {
            return Values{{"state", number()}, {"document", random_() % 4 ? one(documents) : Value()}};
        });
        rows("Picture", 6, [&] {
            return Values{{"name", text()}, {"unused", maybe(random_() % 2 == 0)}, {"width", number()},
                {"document", random_() % 4 ? one(documents) : Value()}};
        });
        rows("Recording", 4, [&] { return Values{{"name", text()}, {"document", one(documents)}}; });
        for (int i = 0; i < 20; ++i) {
            const auto document = one(documents).asInteger();
            const auto label = one(labels).asInteger();
            for (const OpenStore* store : stores_)
                store->join("Document", "labels", document, label);
        }
    }

private:
    using Values = std::vector<std::pair<std::string, Value>>;
    using Keys = std::vector<std::int64_t>;

    template <typename Make> Keys rows(std::string_view entity, int count, Make make)
    {
        Keys keys;
        for (int i = 0; i < count; ++i) {
            const Values values = make();
            for (const OpenStore* store : stores_)
                keys.push_back(store->insert(entity, values));
            EXPECT_EQ(keys.back(), keys[keys.size() - 2]);
            keys.pop_back();
        }
        return keys;
    }
    void set(std::string_view entity, std::int64_t key, const std::string& name, const Value& value)
    {
        for (const OpenStore* store : stores_)
            EXPECT_TRUE(store->update(entity, key, name, value));
    }
    Value one(const Keys& keys) { return keys[random_() % keys.size()]; }
    Value maybe(const Value& value) { return random_() % 4 ? value : Value(); }
    Value text() { return maybe(Value(kTexts[random_() % kTexts.size()])); }
    Value number() { return maybe(Value(static_cast<std::int64_t>(random_() % 5) - 1)); }
    Value date()
    {
        return maybe(
            Value(dateWithMicrosecondsSinceReferenceDate(static_cast<std::int64_t>(random_() % 4) * 1'000'000)));
    }

    std::mt19937_64& random_;
    std::vector<const OpenStore*> stores_;
};

/// What a predicate picks from the SQLite file when its plans are chosen at random.
class RandomPlans {
public:
    RandomPlans(std::mt19937_64& random, const OpenStore& store)
        : random_(random), store_(store), connection_(store->file(), {}),
          reader_(store->identity(), selects_, connection_)
    { }

    std::vector<std::int64_t> keys(const StoreFetch& fetch)
    {
        SQLConditionOptions options;
        options.store = &store_->identity();
        options.usesShadows = random_() % 4 != 0;
        options.walksOrder = random_() % 2 == 0;
        options.isLargeSet = [this](const SQLText& select) {
            SQLiteStatement statement = connection_.prepare(select.sql);
            bindAll(statement, select.bindings);
            statement.step();
            return random_() % 2 == 0;
        };
        options.isCommonFlag = options.isLargeSet;
        const SQLGenerator generator(selects_, options);
        std::vector<std::int64_t> keys;
        for (const StoreRow& row : SQLiteFetch(fetch, selects_, generator, reader_, connection_).rows())
            keys.push_back(row.key);
        EXPECT_EQ(connection_.statementsInUse(), 0U);
        isExact_ = !generator.count(fetch).remainder;
        return keys;
    }
    /// Whether SQL alone answered the last one.
    bool isExact() const { return isExact_; }

private:
    std::mt19937_64& random_;
    const OpenStore& store_;
    StoreSchema schema_{*storeTestModel()};
    StoreSelects selects_{schema_, *storeTestModel()};
    SQLiteConnection connection_;
    SQLiteRowReader reader_;
    bool isExact_ = false;
};

std::vector<NSSortDescriptor> randomSort(std::mt19937_64& random, const std::string& entity)
{
    const std::map<std::string, std::vector<std::string>> keys{
        {"Document", {"title", "flag", "modified", "ratio", "owner.name", "record.state", "body"}},
        {"Label", {"name", "weight", "parent.name", "parent.parent.weight"}},
        {"Attachment", {"name", "document.owner.name", "document.created"}},
    };
    std::vector<NSSortDescriptor> sort;
    for (auto count = random() % 3; count > 0; --count)
        sort.push_back({keys.at(entity)[random() % keys.at(entity).size()], random() % 2 == 0,
            random() % 4 ? SortComparison::Standard : SortComparison::LocalizedStandard});
    return sort;
}

class StoreDifferential : public testing::TestWithParam<std::uint64_t> { };
INSTANTIATE_TEST_SUITE_P(
    Seeds, StoreDifferential, testing::Values(20260101, 2, 3, 4, 5), testing::PrintToStringParamName());

TEST_P(StoreDifferential, PicksTheSameRowsInSQLAndByTheEvaluator)
{
    constexpr int kPredicates = 2500;
    std::mt19937_64 random(GetParam());
    TestFolder folder;
    const OpenStore sql(StoreType::SQLite, folder.file(), {.pragmas = {{"journal_mode", "MEMORY"}}});
    const OpenStore memory(StoreType::InMemory, {});
    ASSERT_TRUE(sql) << sql.error();
    RandomRows(random, sql, memory).fill();
    RandomPlans plans(random, sql);
    const std::array<std::string, 4> entities{"Document", "Document", "Label", "Attachment"};
    int exact = 0;
    int found = 0;
    for (int i = 0; i < kPredicates; ++i) {
        const std::string& entity = entities[random() % entities.size()];
        const std::string format = PredicateMaker(random).predicate(entity, "", 3);
        SCOPED_TRACE(fmt::format("seed {} number {}: {} WHERE {}", GetParam(), i, entity, format));
        const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
        StoreFetch fetch;
        fetch.entity = &sql.entity(entity);
        fetch.predicate = &predicate;
        const auto wanted = memory.keys(entity, predicate);
        ASSERT_EQ(sql.keys(entity, predicate), wanted) << sql->explain(fetch);
        ASSERT_EQ(plans.keys(fetch), wanted);
        std::size_t count = 0;
        NSError error;
        ASSERT_TRUE(sql->count(fetch, count, &error)) << error;
        ASSERT_EQ(count, wanted.size());
        const auto sort = randomSort(random, entity);
        const std::size_t limit = random() % 5;
        const std::size_t offset = random() % 3;
        ASSERT_EQ(
            sql.keys(entity, predicate, sort, limit, offset), memory.keys(entity, predicate, sort, limit, offset));
        exact += plans.isExact() ? 1 : 0;
        found += wanted.empty() ? 0 : 1;
    }
    // The test says something only while SQL answers most of them, and many of them find something.
    EXPECT_GT(exact, kPredicates * 6 / 10);
    EXPECT_GT(found, kPredicates / 3);
}

} // namespace
} // namespace tarn
