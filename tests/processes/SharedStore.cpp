#include "tests/processes/SharedStore.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <stdexcept>

namespace tarn {

namespace fs = std::filesystem;

// Folder --------------------------------------------------------------------------------------------------------------

StoreFolder::StoreFolder()
{
    // Not a random name of our own: in a known world two processes would come to the same one.
    std::string name = (fs::temp_directory_path() / "tarn störe XXXXXX").string();
    if (!::mkdtemp(name.data()))
        throw std::runtime_error("no folder for a store");
    path_ = name;
}

StoreFolder::~StoreFolder()
{
    std::error_code error;
    fs::remove_all(path_, error);
}

void StoreFolder::copyFrom(const StoreFolder& other) const
{
    fs::remove_all(path_);
    fs::copy(other.path_, path_);
}

std::vector<std::string> StoreFolder::otherFiles() const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path_))
        if (entry.path() != file())
            names.push_back(entry.path().filename().string());
    return names;
}

// Store ---------------------------------------------------------------------------------------------------------------

SharedStore::SharedStore(const fs::path& file, StoreRole role, int patienceInMilliseconds)
    : coordinator_(std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current()))
{
    StoreOptions options;
    options.pragmas["busy_timeout"] = std::to_string(patienceInMilliseconds);
    options.readOnly = role == StoreRole::Reader;
    if (!coordinator_->addPersistentStoreWithType(StoreType::SQLite, file, options, &error_))
        return;
    MainQueue::main();
    context_ = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context_->setPersistentStoreCoordinator(coordinator_);
    context_->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    if (role == StoreRole::Reader)
        return;
    willSave_ = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextWillSaveNotification, context_.get(), [this, role](const NSNotification&) {
            if (role == StoreRole::Extension)
                OVExternalChanges::updateExternalChangesInManagedObjectContext(*context_);
            OVChange::updateChangesInInManagedObjectContext(*context_);
        });
}

std::vector<std::string> SharedStore::problems()
{
    std::vector<std::string> problems;
    NSError error;
    if (!store().checkIntegrity(problems, &error) || !store().checkSearchIndex(problems, &error))
        problems.push_back(error.localizedDescription());
    return problems;
}

// Contents ------------------------------------------------------------------------------------------------------------

namespace {

using Rows = std::vector<std::string>;

Rows rowsOf(sqlite3* database, const std::string& sql)
{
    Rows rows;
    const auto collect = [](void* pointer, int count, char** values, char**) {
        std::string row;
        for (int column = 0; column < count; ++column)
            row += std::string(column ? "|" : "") + (values[column] ? values[column] : "NULL");
        static_cast<Rows*>(pointer)->push_back(std::move(row));
        return 0;
    };
    char* message = nullptr;
    EXPECT_EQ(sqlite3_exec(database, sql.c_str(), collect, &rows, &message), SQLITE_OK)
        << sql << ": " << (message ? message : "");
    sqlite3_free(message);
    return rows;
}

std::string textOfTable(sqlite3* database, const std::string& table)
{
    std::string columns;
    for (const std::string& column : rowsOf(database, "SELECT name FROM pragma_table_info('" + table + "')"))
        columns += (columns.empty() ? "quote(\"" : " || ',' || quote(\"") + column + "\")";
    std::string text = table + '\n';
    for (const std::string& row : rowsOf(database, "SELECT " + columns + " AS row FROM \"" + table + "\" ORDER BY row"))
        text += row + '\n';
    return text;
}

template <typename Record> std::vector<Record*> all(NSManagedObjectContext& context)
{
    std::vector<Record*> records;
    for (NSManagedObject* record :
        context.executeFetchRequest(NSFetchRequest(Record::entityInManagedObjectContext(context))))
        records.push_back(static_cast<Record*>(record));
    return records;
}

std::string joined(std::vector<std::string> lines)
{
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

std::string portraitOf(const OVNote& note)
{
    std::vector<std::string> tags = note.tagsStrings();
    std::sort(tags.begin(), tags.end());
    std::string text = "note " + note.uniqueIdentifier().value_or("-") + ' ' + note.title().value_or("-") + " [";
    for (const std::string& tag : tags)
        text += tag + ' ';
    text += "] ->";
    std::vector<std::string> targets;
    for (const OVNote* target : note.linkedNotes())
        targets.push_back(target->uniqueIdentifier().value_or("-"));
    std::sort(targets.begin(), targets.end());
    for (const std::string& target : targets)
        text += ' ' + target;
    return text + (note.isTrashed() ? " trashed " : " ") + note.text().value_or("-");
}

std::string portraitOf(const OVChange& change)
{
    std::vector<std::string> items;
    for (const OVChangeItem* item : change.itemsSet().allObjects())
        items.push_back("  " + item->itemEntity().value_or("-") + ' ' + item->uniqueIdentifier().value_or("-")
            + (item->itemDeletedValue() ? " deleted" : ""));
    return "change " + std::to_string(change.orderValue()) + '\n' + joined(std::move(items));
}

} // namespace

std::string contentsOfStore(const fs::path& file, const std::set<std::string>& leftOut)
{
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK);
    std::string text;
    for (const std::string& table : rowsOf(database, "SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY 1"))
        if (!leftOut.contains(table))
            text += textOfTable(database, table);
    sqlite3_close(database);
    return text;
}

std::string portraitOf(NSManagedObjectContext& context)
{
    std::vector<std::string> notes;
    for (const OVNote* note : all<OVNote>(context))
        notes.push_back(portraitOf(*note));
    std::vector<std::string> tags;
    for (const OVNoteTag* tag : all<OVNoteTag>(context))
        tags.push_back("tag " + tag->title().value_or("-"));
    std::vector<std::string> changes;
    for (const OVChange* change : all<OVChange>(context))
        changes.push_back(portraitOf(*change));
    std::vector<std::string> news;
    for (const OVExternalChanges* change : all<OVExternalChanges>(context))
        news.push_back("news " + change->itemEntity().value_or("-") + ' ' + std::to_string(change->itemChangeValue()));
    return joined(std::move(notes)) + joined(std::move(tags)) + joined(std::move(changes)) + joined(std::move(news));
}

} // namespace tarn
