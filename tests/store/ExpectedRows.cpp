#include "tests/store/ExpectedRows.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <optional>
#include <tuple>

namespace tarn {

namespace {

using Cell = StoreRows::Cell;
using Row = StoreRows::Row;

const Cell kNil(StoreRows::nil);

void renameColumn(Row& row, const std::string& from, const std::string& to)
{
    auto cell = row.extract(from);
    cell.key() = to;
    row.insert(std::move(cell));
}

/// Nearest whole number, a half away from zero; what is too great or too small is the greatest or the least.
Cell wholeNumber(const Cell& cell)
{
    if (cell == kNil)
        return kNil;
    const double number = std::strtod(cell.c_str(), nullptr);
    if (number >= 9223372036854775807.0)
        return std::to_string(std::numeric_limits<std::int64_t>::max());
    if (number <= -9223372036854775808.0)
        return std::to_string(std::numeric_limits<std::int64_t>::min());
    return std::to_string(std::llround(number));
}

void forgetWhatLeadsNowhere(
    StoreRows& rows, const std::string& table, const std::string& column, const std::string& target)
{
    for (auto& [key, row] : rows.tables.at(table)) {
        Cell& cell = row.at(column);
        if (cell != kNil && !rows.tables.at(target).contains(std::stoll(cell)))
            cell = kNil;
    }
}

void forgetMembersOfNothing(
    StoreRows& rows, const std::string& join, const std::string& owner, const std::string& member)
{
    std::erase_if(rows.joins.at(join), [&](const auto& pair) {
        return !rows.tables.at(owner).contains(pair.first) || !rows.tables.at(member).contains(pair.second);
    });
}

void foldTitles(StoreRows& rows, const std::string& table)
{
    for (auto& [key, row] : rows.tables.at(table)) {
        const Cell& title = row.at("title");
        row["title_folded"] = title == kNil ? kNil : StoreRows::cellOfText(fold(StoreRows::textOf(title)));
    }
}

/// What the store says of itself: its identifier and what the host keeps stay.
void becomeStoreOf(StoreRows& rows, const std::string& version)
{
    const auto model
        = NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion(version));
    std::erase_if(rows.metadata, [](const auto& entry) { return entry.first.starts_with("entityHash."); });
    for (const auto& [name, hash] : model->entityVersionHashes())
        rows.metadata["entityHash." + name] = hash;
    // No key is given twice, and each table says so.
    for (const auto& [name, table] : rows.tables)
        rows.keys[name] = std::max(rows.keys[name], table.empty() ? 1 : table.rbegin()->first + 1);
    rows.metadata["modelVersion"] = version;
    rows.metadata["foldingVersion"] = std::to_string(foldingVersion());
}

// Links ---------------------------------------------------------------------------------------------------------------

std::optional<std::string> textOfColumn(const Row& row, const std::string& column)
{
    const Cell& cell = row.at(column);
    return cell == kNil ? std::nullopt : std::optional(StoreRows::textOf(cell));
}

/// Nil stands before every number.
std::pair<bool, std::int64_t> rankOfColumn(const Row& row, const std::string& column)
{
    const Cell& cell = row.at(column);
    return cell == kNil ? std::pair(false, std::int64_t{0}) : std::pair(true, std::int64_t{std::stoll(cell)});
}

/// The first of the notes of this title, or of this identifier where they have no title: untrashed ones first, then
/// those made first.
Cell noteThatIsCalled(const std::string& title, const StoreRows& rows)
{
    using Rank = std::tuple<std::pair<bool, std::int64_t>, std::pair<bool, std::int64_t>, std::int64_t>;
    std::optional<Rank> best;
    for (const auto& [key, row] : rows.tables.at("OVNote")) {
        const std::string ownTitle = textOfColumn(row, "title").value_or("");
        const auto identifier = textOfColumn(row, "uniqueIdentifier");
        const bool isCalledSo = ownTitle.empty() ? identifier && *identifier == title : fold(ownTitle) == fold(title);
        if (!isCalledSo)
            continue;
        const Rank rank{rankOfColumn(row, "trashed"), rankOfColumn(row, "creationDate"), key};
        if (!best || rank < *best)
            best = rank;
    }
    return best ? std::to_string(std::get<2>(*best)) : kNil;
}

void addLinks(StoreRows& rows)
{
    std::map<std::string, Cell> targets;
    auto& links = rows.tables["OVNoteBackLink"];
    for (const auto& [key, row] : rows.tables.at("OVNote")) {
        const CVKAST document = CVKAST::fromMarkdown(textOfColumn(row, "text").value_or(""));
        for (const CVKWikiLink& link : document.textSummary().wikiLinks) {
            const std::string& title = link.decodedTitle();
            if (title.empty())
                continue;
            if (!targets.contains(title))
                targets[title] = noteThatIsCalled(title, rows);
            links[static_cast<std::int64_t>(links.size()) + 1] = {{"rowVersion", row.at("rowVersion")},
                {"title", StoreRows::cellOfText(title)}, {"title_folded", StoreRows::cellOfText(fold(title))},
                {"location", std::to_string(link.offset())}, {"version", "3"}, {"serverData", kNil},
                {"linkedBy", std::to_string(key)}, {"linkingTo", targets[title]}};
        }
    }
}

} // namespace

// Steps ---------------------------------------------------------------------------------------------------------------

StoreRows rowsAfterStepToVersion2(StoreRows rows)
{
    forgetWhatLeadsNowhere(rows, "OVNote", "serverData", "OVNoteServerData");
    forgetWhatLeadsNowhere(rows, "OVNoteFile", "note", "OVNote");
    forgetWhatLeadsNowhere(rows, "OVNoteFile", "serverData", "OVNoteFileServerData");
    forgetWhatLeadsNowhere(rows, "OVChangeItem", "change", "OVChange");
    forgetMembersOfNothing(rows, "OVNote_tags", "OVNote", "OVNoteTag");
    for (auto& [key, row] : rows.tables.at("OVNote")) {
        row.erase("serverModificationDate");
        row["shownInTodayWidget"] = row["encrypted"] = "0";
        row["encryptedData"] = row["encryptionDate"] = row["encryptionUniqueIdentifier"] = kNil;
        row["pinnedInTag"] = row["password"] = kNil;
    }
    for (auto& [key, row] : rows.tables.at("OVNoteTag")) {
        renameColumn(row, "name", "title");
        row.erase("name_folded");
        row["pinnedNotesDate"] = row["icon"] = row["iconDate"] = kNil;
    }
    for (auto& [key, row] : rows.tables.at("OVNoteFile")) {
        row["fileSize"] = wholeNumber(row["fileSize"]);
        row["encrypted"] = "0";
        row["encryptedData"] = row["encryptionDate"] = row["encryptionUniqueIdentifier"] = row["password"] = kNil;
        row["animated"] = row["entity"] == "'OVNoteImage" ? "0" : kNil;
    }
    rows.tables["OVPassword"];
    rows.tables["OVExternalChanges"];
    addLinks(rows);
    foldTitles(rows, "OVNote");
    foldTitles(rows, "OVNoteTag");
    becomeStoreOf(rows, "Model 2");
    return rows;
}

StoreRows rowsAfterStepToVersion3(StoreRows rows)
{
    forgetWhatLeadsNowhere(rows, "OVNote", "serverData", "OVNoteServerData");
    forgetWhatLeadsNowhere(rows, "OVNote", "password", "OVPassword");
    forgetWhatLeadsNowhere(rows, "OVNoteFile", "note", "OVNote");
    forgetWhatLeadsNowhere(rows, "OVNoteFile", "password", "OVPassword");
    forgetWhatLeadsNowhere(rows, "OVNoteFile", "serverData", "OVNoteFileServerData");
    forgetWhatLeadsNowhere(rows, "OVNoteBackLink", "linkedBy", "OVNote");
    forgetWhatLeadsNowhere(rows, "OVNoteBackLink", "linkingTo", "OVNote");
    forgetWhatLeadsNowhere(rows, "OVChangeItem", "change", "OVChange");
    forgetMembersOfNothing(rows, "OVNote_tags", "OVNote", "OVNoteTag");
    auto& pinned = rows.joins["OVNote_pinnedInTags"];
    for (auto& [key, row] : rows.tables.at("OVNote")) {
        const Cell tag = row.at("pinnedInTag");
        if (tag != kNil && rows.tables.at("OVNoteTag").contains(std::stoll(tag)))
            pinned.emplace(key, std::stoll(tag));
        row.erase("pinnedInTag");
        const CVKAST document = CVKAST::fromMarkdown(textOfColumn(row, "text").value_or(""));
        row["hasSourceCode"] = document.textSummary().codeBlockCount > 0 ? "1" : "0";
        row["conflictUniqueIdentifier"] = row["conflictUniqueIdentifierDate"] = row["vectorClock"] = kNil;
    }
    for (auto& [key, row] : rows.tables.at("OVNoteTag")) {
        renameColumn(row, "icon", "tagcon");
        renameColumn(row, "iconDate", "tagconDate");
        row["hideSubtagsNotes"] = row["encrypted"] = "0";
        row["hideSubtagsNotesDate"] = row["encryptedDate"] = kNil;
    }
    for (auto& [key, row] : rows.tables.at("OVNoteFile"))
        row["searchText"] = row["searchTextDate"] = kNil;
    foldTitles(rows, "OVNote");
    foldTitles(rows, "OVNoteTag");
    foldTitles(rows, "OVNoteBackLink");
    becomeStoreOf(rows, "Model 3");
    return rows;
}

} // namespace tarn
