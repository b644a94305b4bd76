#include "tarnmodel/platform/coredata/sqlite/FlagStatistics.h"

#include "tarnmodel/platform/coredata/sqlite/SQLText.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"

#include <utility>

namespace tarn {

namespace {

constexpr std::int64_t kMany = 2000;
/// How often an answer is used before it is asked for again.
constexpr int kUses = 100;
/// A model has a few flags; what else is asked for is not worth keeping.
constexpr std::size_t kMostAnswers = 64;

} // namespace

bool givesManyRows(SQLiteConnection& connection, const SQLText& select)
{
    SQLiteStatement statement
        = connection.prepare("SELECT count(*) FROM (" + select.sql + " LIMIT " + std::to_string(kMany) + ")");
    bindAll(statement, select.bindings);
    return statement.step() && statement.integer(0) >= kMany;
}

bool FlagStatistics::contains(SQLiteConnection& connection, const SQLText& select)
{
    std::string question = select.sql;
    for (const SQLBinding& binding : select.bindings)
        question += '\n' + describeBinding(binding);
    {
        const std::lock_guard lock(mutex_);
        const auto known = answers_.find(question);
        if (known != answers_.end() && known->second.usesLeft-- > 0)
            return known->second.isCommon;
    }
    const bool isCommon = givesManyRows(connection, select); // not under the lock: it reads
    const std::lock_guard lock(mutex_);
    if (answers_.size() >= kMostAnswers)
        answers_.clear();
    answers_[std::move(question)] = {isCommon, kUses};
    return isCommon;
}

} // namespace tarn
