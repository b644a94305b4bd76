#include "tarnmodel/platform/coredata/textsearch/CandidateWalk.h"

#include "tarnmodel/platform/coredata/rows/SaturatingSum.h"
#include "tarnmodel/platform/coredata/sqlite/RowLayout.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/textsearch/ParallelScan.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t kFirstBlock = 64;
constexpr std::size_t kLargestBlock = 512;
/// With fewer candidates left the second thread would come too late.
constexpr std::size_t kEnoughForTwoThreads = 2000;
/// Two threads that go through texts by key take about half as long as one that looks them up in another order.
constexpr double kGainOfTwoThreads = 2;
/// Hits are checked again when they are sorted; more of them than one in so many candidates would eat up the gain.
constexpr std::size_t kFewHits = 10;

StoreFetch withoutBounds(StoreFetch fetch)
{
    fetch.limit = 0;
    fetch.offset = 0;
    return fetch;
}

} // namespace

CandidateWalk::CandidateWalk(const StoreFetch& fetch, const StoreSelects& selects, const SQLGenerator& generator,
    SQLiteConnection& connection, ConnectionPool& pool)
    : fetch_(fetch), generator_(generator), connection_(connection), pool_(pool),
      wanted_(saturatingSum(fetch.offset, fetch.limit))
{
    RowContents contents = fetch.contents;
    block_ = generator.withPlan(SearchPlan::Kind::CheckCandidates, noKeys()).rows(withoutBounds(fetch), contents);
    layout_ = &selects.layout(*fetch.entity, contents);
    blockKeys_ = &*std::find_if(block_.text.bindings.begin(), block_.text.bindings.end(),
        [](const SQLBinding& binding) { return std::holds_alternative<SQLKeyList>(binding); });
}

std::vector<StoreRow> CandidateWalk::rows()
{
    const GeneratedSelect order = generator_.candidatesInOrder(fetch_);
    SQLiteStatement candidates = connection_.prepare(order.text.sql);
    bindAll(candidates, order.text.bindings);
    std::vector<StoreRow> found;
    std::vector<std::int64_t> block;
    std::size_t tried = 0;
    bool isAtEnd = false;
    for (std::size_t size = kFirstBlock; !isAtEnd && found.size() < wanted_; size = std::min(2 * size, kLargestBlock)) {
        block.clear();
        // A step beyond the end would begin again.
        while (block.size() < size && !(isAtEnd = !candidates.step()))
            block.push_back(candidates.integer(0));
        std::sort(block.begin(), block.end()); // texts lie in the order of keys
        auto hits = checked(block);
        found.insert(found.end(), std::make_move_iterator(hits.begin()), std::make_move_iterator(hits.end()));
        tried += block.size();
        if (!isAtEnd && isHardlyEverAHit(tried, found.size()))
            if (auto all = checkedByKey())
                return std::move(*all);
    }
    found.resize(std::min(found.size(), wanted_));
    found.erase(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(std::min(fetch_.offset, found.size())));
    return found;
}

/// In the order asked for.
std::vector<StoreRow> CandidateWalk::checked(std::span<const std::int64_t> keys)
{
    *blockKeys_ = keys;
    return read(block_.text);
}

std::vector<StoreRow> CandidateWalk::read(const SQLText& select) const
{
    std::vector<StoreRow> rows;
    SQLiteStatement statement = connection_.prepare(select.sql);
    bindAll(statement, select.bindings);
    while (statement.step())
        rows.push_back(layout_->read(statement, rows.empty() ? nullptr : &rows.back()));
    return rows;
}

/// Whether the walk is likely to take longer than to check all candidates at once.
bool CandidateWalk::isHardlyEverAHit(std::size_t tried, std::size_t hits) const
{
    if (hits >= wanted_ || (hits + 1) * kFewHits > tried)
        return false;
    const std::size_t count = candidateCount();
    const std::size_t left = count - std::min(tried, count);
    if (left < kEnoughForTwoThreads)
        return false;
    const double expected
        = static_cast<double>(wanted_ - hits) * static_cast<double>(tried) / static_cast<double>(hits + 1);
    return kGainOfTwoThreads * expected > static_cast<double>(left);
}

std::size_t CandidateWalk::candidateCount() const
{
    if (generator_.plan().candidates)
        return generator_.plan().candidates->size();
    if (!rowCount_)
        rowCount_ = static_cast<std::size_t>(
            connection_.integerOf("SELECT count(*) FROM " + quotedIdentifier(fetch_.entity->rootEntity().name())));
    return *rowCount_;
}

std::optional<std::vector<StoreRow>> CandidateWalk::checkedByKey()
{
    const PrimaryKeySetPtr& candidates = generator_.plan().candidates;
    const SQLGenerator scan
        = generator_.withPlan(candidates ? SearchPlan::Kind::Scan : SearchPlan::Kind::NoIndex, candidates);
    auto keys = keysOnTwoThreads(pool_, connection_, scan, fetch_);
    if (!keys && candidates)
        return std::nullopt;
    // Reading all texts in their order is faster than some of them in another, also for one thread.
    if (!keys)
        keys = keysOnOneThread(connection_, scan, fetch_);
    const auto hits = std::make_shared<const PrimaryKeySet>(std::move(*keys));
    RowContents contents = fetch_.contents;
    return read(generator_.withPlan(SearchPlan::Kind::CheckCandidates, hits).rows(fetch_, contents).text);
}

std::string CandidateWalk::explain() const
{
    return explainedStatement(connection_, generator_.candidatesInOrder(fetch_).text) + "then, block by block:\n"
        + explainedStatement(connection_, block_.text);
}

} // namespace tarn
