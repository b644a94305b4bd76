#include "tarnmodel/platform/coredata/sqlite/RowTextTests.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarn {

namespace {

/// So few are found faster one by one.
constexpr std::size_t kFewTests = 4;

} // namespace

std::string RowTextTests::description() const
{
    const std::size_t count = formula_.tests().size();
    return fmt::format("{} test{} of texts", count, count == 1 ? "" : "s");
}

// Questions -----------------------------------------------------------------------------------------------------------

RowTextTests::Question& RowTextTests::questionFor(std::uint32_t conditions)
{
    const auto known = questions_.find(conditions);
    if (known != questions_.end())
        return known->second;
    Question question{formula_.given(conditions), {}};
    std::vector<std::vector<std::size_t>> bySource(sources_.size());
    for (const std::size_t test : question.formula.tests())
        bySource[tests_[test].source].push_back(test);
    for (std::size_t source = 0; source < sources_.size(); ++source)
        if (!bySource[source].empty())
            question.looks.push_back(lookFor(source, bySource[source]));
    // What is at hand is looked into before anything is read.
    std::ranges::stable_sort(question.looks, {}, [&](const Look& look) { return sources_[look.source].value ? 0 : 1; });
    return questions_.emplace(conditions, std::move(question)).first->second;
}

RowTextTests::Look RowTextTests::lookFor(std::size_t source, const std::vector<std::size_t>& tests) const
{
    Look look;
    look.source = source;
    std::vector<std::string_view> literals;
    for (const std::size_t test : tests) {
        const auto literal = tests.size() > kFewTests ? tests_[test].test.foldedLiteral() : std::nullopt;
        if (!literal || literal->empty()) {
            look.oneByOne.push_back(test);
            continue;
        }
        look.byLiteral.push_back(test);
        literals.push_back(*literal);
    }
    if (!literals.empty())
        look.finder.emplace(literals);
    return look;
}

// Answers -------------------------------------------------------------------------------------------------------------

bool RowTextTests::hold(
    SQLiteConnection& connection, std::int64_t key, std::uint32_t conditions, const ValueAt& valueAt)
{
    Question& question = questionFor(conditions);
    question.formula.reset();
    for (const std::size_t test : foundTests_)
        isFound_[test] = false;
    foundTests_.clear();
    isFound_.resize(tests_.size());
    for (Look& look : question.looks) {
        if (question.formula.isSettled())
            break;
        lookIntoSource(question, look, connection, key, valueAt);
    }
    if (folded_.capacity() > kLargestKeptText)
        folded_ = {};
    return question.formula.value();
}

void RowTextTests::lookIntoSource(
    Question& question, Look& look, SQLiteConnection& connection, std::int64_t key, const ValueAt& valueAt)
{
    const Source& source = sources_[look.source];
    if (source.rows && !source.rows->contains(key))
        return;
    if (source.value) {
        if (const auto text = valueAt(*source.value))
            lookInto(question, look, *text);
        return;
    }
    SQLiteStatement statement = connection.prepare(source.select.sql);
    bindAll(statement, source.select.bindings);
    statement.bindInteger(1, key);
    while (!question.formula.isSettled() && statement.step())
        if (!statement.isNull(0))
            lookInto(question, look, statement.bytes(0));
}

void RowTextTests::lookInto(Question& question, Look& look, std::string_view text)
{
    const bool sharesFolded = look.finder || look.oneByOne.size() > 1;
    if (sharesFolded) {
        folded_.clear();
        appendFolded(folded_, text);
    }
    for (const std::size_t test : look.oneByOne) {
        const StringTest& wanted = tests_[test].test;
        const bool usesFolded = sharesFolded && wanted.comparesFolded();
        if (usesFolded ? wanted.matchesFolded(folded_) : wanted.matches(text))
            found(question, test);
        if (question.formula.isSettled())
            return;
    }
    if (!look.finder)
        return;
    look.finder->find(folded_, [&](std::size_t literal) {
        const std::size_t test = look.byLiteral[literal];
        const StringTest& wanted = tests_[test].test;
        if (wanted.isOfLiteralAlone() || wanted.matchesFolded(folded_))
            found(question, test);
        return !question.formula.isSettled();
    });
}

/// A row may have several texts of one source.
void RowTextTests::found(Question& question, std::size_t test)
{
    if (isFound_[test])
        return;
    isFound_[test] = true;
    foundTests_.push_back(test);
    question.formula.setHolds(test);
}

} // namespace tarn
