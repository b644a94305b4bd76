#pragma once

#include "tarnmodel/platform/coredata/sqlite/PrimaryKeySet.h"
#include "tarnmodel/platform/coredata/sqlite/SQLText.h"
#include "tarnmodel/platform/predicate/LiteralFinder.h"
#include "tarnmodel/platform/predicate/StringTest.h"
#include "tarnmodel/platform/predicate/TestFormula.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// Folded texts that are larger would stay in memory for long.
inline constexpr std::size_t kLargestKeptText = std::size_t{1} << 20U;

class SQLiteConnection;

/// All that a statement asks of the texts of one row, as an argument of `texts_hold`: each text is read and folded
/// once, and only where the conditions leave something to ask; many words are looked for in one pass.
///
/// One statement at a time, on one thread.
class RowTextTests {
public:
    /// Where texts of a row come from.
    struct Source {
        std::optional<std::size_t> value; ///< among the values handed over; none: read by the SELECT
        SQLText select;                   ///< texts, one a row; "?1" is the key
        PrimaryKeySetPtr rows;            ///< rows for which some test may hold; null for all
    };
    struct Test {
        std::size_t source;
        StringTest test;
    };

    RowTextTests(
        std::vector<Source> sources, std::vector<Test> tests, TestFormula formula, int conditionCount, int valueCount)
        : sources_(std::move(sources)), tests_(std::move(tests)), formula_(std::move(formula)),
          conditionCount_(conditionCount), valueCount_(valueCount)
    { }

    int conditionCount() const noexcept { return conditionCount_; }
    /// Of `texts_hold`: the tests, the key, conditions, values.
    int argumentCount() const noexcept { return 2 + conditionCount_ + valueCount_; }
    /// For people: "3 tests of texts".
    std::string description() const;

    using ValueAt = std::function<std::optional<std::string_view>(std::size_t place)>;
    /// Bit n of `conditions` tells whether condition n holds. What fails throws a `StoreFailure`.
    bool hold(SQLiteConnection& connection, std::int64_t key, std::uint32_t conditions, const ValueAt& valueAt);

private:
    /// The tests of one source: a few one by one, many at once.
    struct Look {
        std::size_t source = 0;
        std::vector<std::size_t> oneByOne;
        std::vector<std::size_t> byLiteral;
        std::optional<LiteralFinder> finder; ///< of their literals, in the same order
    };
    /// What is left to ask under certain conditions.
    struct Question {
        FormulaOfTests formula;
        std::vector<Look> looks;
    };

    Question& questionFor(std::uint32_t conditions);
    Look lookFor(std::size_t source, const std::vector<std::size_t>& tests) const;
    void lookIntoSource(
        Question& question, Look& look, SQLiteConnection& connection, std::int64_t key, const ValueAt& valueAt);
    void lookInto(Question& question, Look& look, std::string_view text);
    void found(Question& question, std::size_t test);

    std::vector<Source> sources_;
    std::vector<Test> tests_;
    TestFormula formula_;
    int conditionCount_;
    int valueCount_;
    std::map<std::uint32_t, Question> questions_; ///< by the conditions
    std::vector<bool> isFound_;                   ///< by test, for the row at hand
    std::vector<std::size_t> foundTests_;
    std::string folded_;
};

} // namespace tarn
