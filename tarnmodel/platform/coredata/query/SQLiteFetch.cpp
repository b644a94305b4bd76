#include "tarnmodel/platform/coredata/query/SQLiteFetch.h"

#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>

namespace tarn {

std::vector<StoreRow> SQLiteFetch::rows()
{
    RowContents contents = fetch_.contents;
    const GeneratedSelect select = generator_.rows(fetch_, contents);
    if (select.remainder)
        return evaluatedRows(select, contents);
    const RowLayout& layout = selects_.layout(*fetch_.entity, contents);
    std::vector<StoreRow> rows;
    SQLiteStatement statement = connection_.prepare(select.text.sql);
    bindAll(statement, select.text.bindings);
    while (statement.step())
        rows.push_back(layout.read(statement, rows.empty() ? nullptr : &rows.back()));
    return rows;
}

/// Only what was asked for stays in the row.
static void forget(StoreRow& row, RowContents wanted)
{
    if (wanted == RowContents::Keys) {
        row.values = PropertyValues();
        return;
    }
    if (wanted == RowContents::WholeRow)
        return;
    for (PropertyMask rest = row.entity->largeMask(); rest != 0; rest &= rest - 1)
        row.values.setUnloaded(static_cast<PropertyIndex>(std::countr_zero(rest)));
}

std::vector<StoreRow> SQLiteFetch::evaluatedRows(const GeneratedSelect& select, RowContents contents)
{
    checkKeysOfPredicate(*select.remainder, *fetch_.entity);
    PredicateEvaluator evaluator(*select.remainder);
    RowGraph graph(reader_);
    const RowLayout& layout = selects_.layout(*fetch_.entity, contents);
    std::vector<StoreRow> rows;
    std::size_t skipped = 0;
    SQLiteStatement statement = connection_.prepare(select.text.sql);
    bindAll(statement, select.text.bindings);
    while ((fetch_.limit == 0 || rows.size() < fetch_.limit) && statement.step()) {
        StoreRow row = layout.read(statement);
        if (!evaluator.evaluate(graph.objectForRow(row)))
            continue;
        graph.trim();
        if (skipped < fetch_.offset) {
            ++skipped;
            continue;
        }
        forget(row, fetch_.contents);
        rows.push_back(std::move(row));
    }
    return rows;
}

std::size_t SQLiteFetch::count()
{
    const GeneratedSelect select = generator_.count(fetch_);
    if (select.remainder) {
        StoreFetch keys = fetch_;
        keys.contents = RowContents::Keys;
        keys.sortDescriptors = {};
        return SQLiteFetch(keys, selects_, generator_, reader_, connection_).rows().size();
    }
    SQLiteStatement statement = connection_.prepare(select.text.sql);
    bindAll(statement, select.text.bindings);
    statement.step();
    auto count = static_cast<std::size_t>(statement.integer(0));
    count -= std::min(count, fetch_.offset);
    return fetch_.limit > 0 ? std::min(count, fetch_.limit) : count;
}

std::string SQLiteFetch::explain()
{
    RowContents contents = fetch_.contents;
    const GeneratedSelect select = generator_.rows(fetch_, contents);
    std::string text = explainedStatement(connection_, select.text);
    if (select.remainder)
        text += "then evaluated: " + select.remainder->predicateFormat() + "\n";
    return text;
}

} // namespace tarn
