// The SQL of predicates, as text, and how SQLite walks it: tests/cases/sql.cases.

#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/query/SQLiteFetch.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tests/platform/coredata/StoreFixture.h"

#include <fmt/format.h>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

namespace tarn {
namespace {

using testing::HasSubstr;

/// One block of the file: lines "name: value" up to an empty line.
struct Case {
    int line = 0;
    std::string entity;
    std::string predicate;
    std::string sort;
    std::size_t limit = 0;
    std::string sql;
    std::string bindings;
    std::string remainder;
    std::string search; ///< the plan of a search in texts, with two candidates; empty: no index
    std::vector<std::string> plans;
};
void PrintTo(const Case& one, std::ostream* stream)
{
    *stream << "line " << one.line;
}

void setField(Case& one, const std::string& name, const std::string& value)
{
    if (name == "entity")
        one.entity = value;
    else if (name == "predicate")
        one.predicate = value;
    else if (name == "sort")
        one.sort = value;
    else if (name == "limit")
        one.limit = std::stoul(value);
    else if (name == "sql")
        one.sql = value;
    else if (name == "bindings")
        one.bindings = value;
    else if (name == "remainder")
        one.remainder = value;
    else if (name == "search")
        one.search = value;
    else if (name == "plan")
        one.plans.push_back(value);
    else
        ADD_FAILURE() << "line " << one.line << ": unknown field " << name;
}

std::vector<Case> readCases()
{
    std::ifstream file(TARN_TEST_CASES "/sql.cases");
    EXPECT_TRUE(file) << "no sql.cases";
    std::vector<Case> cases;
    std::string line;
    bool inCase = false;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.starts_with("#"))
            continue;
        if (line.empty()) {
            inCase = false;
            continue;
        }
        if (!inCase)
            cases.emplace_back().line = number;
        inCase = true;
        const std::size_t colon = line.find(": ");
        setField(cases.back(), line.substr(0, colon), colon == std::string::npos ? "" : line.substr(colon + 2));
    }
    return cases;
}

std::vector<NSSortDescriptor> sortOf(const std::string& text)
{
    std::vector<NSSortDescriptor> sort;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const bool descending = word.starts_with("-");
        sort.push_back({descending ? word.substr(1) : word, !descending});
    }
    return sort;
}

SearchPlan::Kind planNamed(const std::string& name)
{
    for (const auto kind : {SearchPlan::Kind::NoIndex, SearchPlan::Kind::CheckCandidates,
             SearchPlan::Kind::SortCandidates, SearchPlan::Kind::WalkOrder, SearchPlan::Kind::Scan})
        if (name == nameOfPlan(kind))
            return kind;
    ADD_FAILURE() << "no plan is called " << name;
    return SearchPlan::Kind::NoIndex;
}

SQLGenerator generatorFor(const Case& one, const StoreSelects& selects, const StoreIdentity& store)
{
    SQLConditionOptions options;
    options.store = &store;
    SearchPlan plan;
    if (!one.search.empty()) {
        const auto candidates = std::make_shared<const PrimaryKeySet>(std::vector<std::int64_t>{3, 8});
        options.rowsThatMayMatch = [candidates](const NSAttributeDescription&, const StringTest& test) {
            return test.foldedLiteral() ? candidates : nullptr;
        };
        plan.kind = planNamed(one.search);
        plan.candidates = plan.kind == SearchPlan::Kind::NoIndex ? nullptr : candidates;
    }
    return {selects, options, plan};
}

/// What follows the list of columns.
std::string afterColumns(const std::string& sql)
{
    return sql.substr(sql.find(" FROM ") + 1);
}

/// One store for all cases: they only read.
class SQLOfAFetch : public testing::TestWithParam<Case> {
protected:
    struct Shared {
        TestFolder folder;
        OpenStore store{StoreType::SQLite, folder.file()};
        StoreSchema schema{*storeTestModel()};
        StoreSelects selects{schema, *storeTestModel()};
        SQLiteConnection connection{folder.file(), {}};
        SQLiteRowReader reader{store->identity(), selects, connection};
    };
    static void SetUpTestSuite() { shared = new Shared; }
    static void TearDownTestSuite()
    {
        delete shared;
        shared = nullptr;
    }
    inline static Shared* shared = nullptr;
};

TEST_P(SQLOfAFetch, IsAsItsCaseSaysAndSQLiteWalksTheNamedIndexes)
{
    const Case& one = GetParam();
    SCOPED_TRACE(fmt::format("sql.cases line {}: {}", one.line, one.predicate));
    const OpenStore& store = shared->store;
    ASSERT_TRUE(store) << store.error();
    const NSPredicate predicate = NSPredicate::predicateWithFormat(one.predicate);
    const auto sort = sortOf(one.sort);
    StoreFetch fetch;
    fetch.entity = &store.entity(one.entity);
    fetch.predicate = &predicate;
    fetch.sortDescriptors = sort;
    fetch.limit = one.limit;
    fetch.contents = RowContents::Keys;
    const SQLGenerator generator = generatorFor(one, shared->selects, store->identity());
    RowContents contents = RowContents::Keys;
    const GeneratedSelect select = generator.rows(fetch, contents);
    EXPECT_EQ(afterColumns(select.text.sql), one.sql);
    std::string bindings;
    for (const SQLBinding& binding : select.text.bindings)
        bindings += (bindings.empty() ? "" : " | ") + describeBinding(binding);
    EXPECT_EQ(bindings, one.bindings);
    EXPECT_EQ(select.remainder ? select.remainder->predicateFormat() : "", one.remainder);
    const std::string explained
        = SQLiteFetch(fetch, shared->selects, generator, shared->reader, shared->connection).explain();
    for (const std::string& plan : one.plans)
        EXPECT_THAT(explained, HasSubstr(plan));
}

INSTANTIATE_TEST_SUITE_P(Cases, SQLOfAFetch, testing::ValuesIn(readCases()),
    [](const testing::TestParamInfo<Case>& info) { return "Line" + std::to_string(info.param.line); });

TEST(SQLGenerator, HasManyCases)
{
    EXPECT_GT(readCases().size(), 40U);
}

} // namespace
} // namespace tarn
