// The SQL of predicates, as text, and how SQLite walks it: tests/cases/sql.cases.

#include "platform/coredata/SQLGenerator.h"
#include "tests/coredata/StoreFixture.h"

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
    std::vector<std::string> plans;
};

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

/// What follows the list of columns.
std::string afterColumns(const std::string& sql)
{
    return sql.substr(sql.find(" FROM ") + 1);
}

TEST(SQLGenerator, MakesTheTextsOfTheCasesAndSQLiteWalksTheNamedIndexes)
{
    TestFolder folder;
    const OpenStore store(StoreType::SQLite, folder.file());
    ASSERT_TRUE(store) << store.error();
    const StoreSchema schema(*storeTestModel());
    const StoreSelects selects(schema, *storeTestModel());
    SQLConditionOptions options;
    options.store = &store->identity();
    const SQLGenerator generator(selects, options);
    const auto cases = readCases();
    EXPECT_GT(cases.size(), 40U);
    for (const Case& one : cases) {
        SCOPED_TRACE(fmt::format("sql.cases line {}: {}", one.line, one.predicate));
        const NSPredicate predicate = NSPredicate::predicateWithFormat(one.predicate);
        const auto sort = sortOf(one.sort);
        StoreFetch fetch;
        fetch.entity = &store.entity(one.entity);
        fetch.predicate = &predicate;
        fetch.sortDescriptors = sort;
        fetch.limit = one.limit;
        RowContents contents = RowContents::Keys;
        const GeneratedSelect select = generator.rows(fetch, contents);
        EXPECT_EQ(afterColumns(select.text.sql), one.sql);
        std::string bindings;
        for (const SQLBinding& binding : select.text.bindings)
            bindings += (bindings.empty() ? "" : " | ") + describeBinding(binding);
        EXPECT_EQ(bindings, one.bindings);
        EXPECT_EQ(select.remainder ? select.remainder->predicateFormat() : "", one.remainder);
        const std::string explained = store->explain(fetch);
        for (const std::string& plan : one.plans)
            EXPECT_THAT(explained, HasSubstr(plan));
    }
}

} // namespace
} // namespace tarn
