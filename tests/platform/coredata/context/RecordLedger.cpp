#include "tests/platform/coredata/context/RecordLedger.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <algorithm>

namespace tarn {

namespace {

/// What the ledger keeps of an entity.
struct Kind {
    std::vector<const char*> texts;
    const char* column = nullptr; ///< the to-one that stands in the row
    const char* target = nullptr;
    const char* inverse = nullptr; ///< at the target
};

const std::map<std::string, Kind>& kinds()
{
    static const std::map<std::string, Kind> all = {
        {"Book", {{"title", "body"}, "cover", "Cover", "book"}},
        {"Shelf", {{"name"}}},
        {"Chapter", {{"heading"}, "book", "Book", "chapters"}},
        {"Cover", {{"color"}}},
        {"Map", {{"label"}, "book", "Book", "items"}},
        {"Disc", {{"label"}, "book", "Book", "items"}},
    };
    return all;
}

const std::set<std::string> entitiesWithColumn = {"Book", "Chapter", "Map", "Disc"};
const std::set<std::string> everyEntity = {"Book", "Shelf", "Chapter", "Cover", "Map", "Disc"};

} // namespace

unsigned RecordLedger::numberOfWalks(unsigned usual)
{
    const auto number = Environment::current().variable("TARN_RECORD_WALKS");
    return number ? static_cast<unsigned>(std::stoul(*number)) : usual;
}

void RecordLedger::begin(unsigned seed)
{
    random_.seed(seed);
    child_.reset();
    restart();
    for (const std::string_view entity : {"Item", "Book", "Shelf", "Chapter", "Cover"})
        for (NSManagedObject* left : all(entity))
            context_->deleteObject(*left);
    save();
    restart();
    records_.clear();
    now_.clear();
    for (int number = 0; number < 16; ++number)
        insertOne();
    for (int times = 0; times < 12; ++times) {
        relate();
        shelve();
    }
    saveAll();
    startAgain();
}

void RecordLedger::walk()
{
    static constexpr void (RecordLedger::*steps[])() = {&RecordLedger::setText, &RecordLedger::setText,
        &RecordLedger::relate, &RecordLedger::relate, &RecordLedger::relate, &RecordLedger::relateFromTheOtherEnd,
        &RecordLedger::relateFromTheOtherEnd, &RecordLedger::shelve, &RecordLedger::shelve, &RecordLedger::insertOne,
        &RecordLedger::removeOne, &RecordLedger::giveKeys};
    const int choice = below(24);
    if (choice < static_cast<int>(std::size(steps)))
        return (this->*steps[choice])();
    if (choice < 17)
        return refreshOne(false);
    if (choice < 20)
        return refreshOne(true);
    if (choice == 20)
        return context_->refreshAllObjects();
    if (choice == 21)
        return below(2) == 0 ? saveAll() : startAgain();
    if (choice == 22)
        return failToSave();
    rollBack();
}

int RecordLedger::any(const std::set<std::string>& entities)
{
    std::vector<int> numbers;
    for (const auto& [number, row] : now_)
        if (entities.contains(row.entity))
            numbers.push_back(number);
    return numbers.empty() ? kNone : numbers.at(static_cast<std::size_t>(below(numbers.size())));
}

// Steps ---------------------------------------------------------------------------------------------------------------

void RecordLedger::insertOne()
{
    const auto kind = std::next(kinds().begin(), below(kinds().size()));
    const int number = static_cast<int>(records_.size());
    records_.push_back(&insert(kind->first));
    now_[number] = {kind->first, std::vector<std::string>(kind->second.texts.size(), "(none)"), kNone, {}};
}

void RecordLedger::setText()
{
    const int number = any(everyEntity);
    if (number == kNone)
        return;
    Row& row = now_.at(number);
    const auto which = static_cast<std::size_t>(below(row.texts.size()));
    row.texts[which] = "text " + std::to_string(below(4));
    record(number).setValueForKey(kinds().at(row.entity).texts[which], Value(row.texts[which]));
}

void RecordLedger::relate()
{
    const int holder = any(entitiesWithColumn);
    if (holder == kNone)
        return;
    const Kind& kind = kinds().at(now_.at(holder).entity);
    const int target = below(4) == 0 ? kNone : any({kind.target});
    record(holder).setValueForKey(kind.column, target == kNone ? Value() : Value(&record(target)));
    setTarget(holder, target);
}

void RecordLedger::relateFromTheOtherEnd()
{
    const int holder = any(entitiesWithColumn);
    const int target = holder == kNone ? kNone : any({kinds().at(now_.at(holder).entity).target});
    if (target == kNone)
        return;
    const char* inverse = kinds().at(now_.at(holder).entity).inverse;
    const bool isTakenOut = below(3) == 0;
    if (now_.at(holder).entity != "Book" && isTakenOut) {
        set(record(target), inverse).remove(record(holder));
        if (now_.at(holder).target == target)
            setTarget(holder, kNone);
    } else if (now_.at(holder).entity != "Book") {
        set(record(target), inverse).add(record(holder));
        setTarget(holder, target);
    } else if (isTakenOut) {
        record(target).setValueForKey(inverse, Value());
        for (auto& [number, row] : now_)
            if (row.entity == "Book" && row.target == target)
                row.target = kNone;
    } else {
        record(target).setValueForKey(inverse, Value(&record(holder)));
        setTarget(holder, target);
    }
}

void RecordLedger::shelve()
{
    const int book = any({"Book"});
    const int shelf = any({"Shelf"});
    if (book == kNone || shelf == kNone)
        return;
    const bool isAdded = below(3) != 0;
    const bool isFromTheShelf = below(2) == 0;
    ToManySet& changed = isFromTheShelf ? set(record(shelf), "books") : set(record(book), "shelves");
    NSManagedObject& member = record(isFromTheShelf ? book : shelf);
    isAdded ? changed.add(member) : changed.remove(member);
    isAdded ? void(now_.at(book).shelves.insert(shelf)) : void(now_.at(book).shelves.erase(shelf));
}

void RecordLedger::removeOne()
{
    const int number = any(everyEntity);
    const auto lends = [&](const auto& row) {
        return kinds().at(row.second.entity).column && row.second.entity != "Book" && row.second.entity != "Chapter"
            && row.second.target == number;
    };
    // A book that lends things cannot be saved as deleted.
    if (number == kNone || std::any_of(now_.begin(), now_.end(), lends))
        return;
    context_->deleteObject(record(number));
    const Row row = now_.at(number);
    if (row.entity == "Book") {
        for (const auto& [other, part] : Rows(now_))
            if (part.entity == "Chapter" && part.target == number)
                forget(other);
        if (row.target != kNone)
            forget(row.target);
    }
    forget(number);
}

void RecordLedger::refreshOne(bool keeps)
{
    const int number = any(everyEntity);
    if (number == kNone)
        return;
    context_->refreshObject(record(number), keeps);
    if (keeps || !isSaved(number))
        return;
    EXPECT_FALSE(record(number).hasChanges()) << number;
    dropChanges(number);
}

void RecordLedger::saveAll()
{
    save();
    EXPECT_FALSE(context_->hasChanges());
    saved_ = now_;
}

/// Another writer has changed a record that is changed here: nothing is saved, and everything is as it was.
void RecordLedger::failToSave()
{
    const int number = any({"Book"});
    if (number == kNone || !isSaved(number))
        return;
    text(record(number), "title"); // read before the other writer changes it
    const auto other = contextOn(coordinator_);
    other->objectWithID(record(number).objectID())->setValueForKey("pages", Value(++lastPages_));
    EXPECT_TRUE(other->save());
    record(number).setValueForKey("pages", Value(++lastPages_));
    context_->processPendingChanges(); // for a child, new records get the identifiers that stay
    std::map<int, NSManagedObjectID> before;
    for (const auto& [some, row] : now_)
        before[some] = record(some).objectID();
    NSError error;
    EXPECT_FALSE(context_->save(&error));
    EXPECT_EQ(error.code(), StoreErrorMergeConflict) << error;
    for (const auto& [some, identifier] : before)
        EXPECT_EQ(record(some).objectID(), identifier) << some;
    const LogSink former = setLogSink([](std::string_view) {});
    context_->refreshObject(record(number), true);
    setLogSink(former);
}

void RecordLedger::rollBack()
{
    context_->rollback();
    EXPECT_FALSE(context_->hasChanges());
    now_ = saved_;
}

void RecordLedger::startAgain()
{
    saveAll();
    std::map<int, NSManagedObjectID> identifiers;
    for (const auto& [number, row] : now_)
        identifiers[number] = record(number).objectID();
    child_.reset();
    restart();
    std::fill(records_.begin(), records_.end(), nullptr);
    for (const auto& [number, identifier] : identifiers)
        records_.at(static_cast<std::size_t>(number)) = context_->objectWithID(identifier);
}

void RecordLedger::giveKeys()
{
    const int number = any(everyEntity);
    if (below(3) == 0) {
        child_ = child_ ? nullptr
                        : std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
        if (child_)
            child_->setParentContext(*context_);
    } else if (number != kNone) {
        NSManagedObject* const records[] = {&record(number)};
        EXPECT_TRUE(context_->obtainPermanentIDsForObjects(records));
    }
}

// The ledger ----------------------------------------------------------------------------------------------------------

void RecordLedger::setTarget(int holder, int target)
{
    for (auto& [number, row] : now_)
        if (target != kNone && row.entity == "Book" && now_.at(holder).entity == "Book" && row.target == target)
            row.target = kNone;
    now_.at(holder).target = target;
}

void RecordLedger::restoreTarget(int holder)
{
    const int target = isSaved(holder) ? saved_.at(holder).target : kNone;
    setTarget(holder, now_.contains(target) ? target : kNone);
}

void RecordLedger::forget(int number)
{
    now_.erase(number);
    for (auto& [other, row] : now_) {
        if (row.target == number)
            row.target = kNone;
        row.shelves.erase(number);
    }
}

/// The record goes back to what was saved, and so do the relationships of others to it.
void RecordLedger::dropChanges(int number)
{
    now_.at(number).texts = saved_.at(number).texts;
    if (kinds().at(now_.at(number).entity).column)
        restoreTarget(number);
    for (const auto& [other, row] : Rows(now_))
        if (row.target == number || (isSaved(other) && saved_.at(other).target == number))
            restoreTarget(other);
    for (auto& [other, row] : now_) {
        if (row.entity != "Book")
            continue;
        for (const auto& [shelf, shelfRow] : now_) {
            if (shelfRow.entity != "Shelf" || (shelf != number && other != number))
                continue;
            const bool isThere = isSaved(other) && saved_.at(other).shelves.contains(shelf);
            isThere ? void(row.shelves.insert(shelf)) : void(row.shelves.erase(shelf));
        }
    }
}

// Comparison ----------------------------------------------------------------------------------------------------------

std::string RecordLedger::described(int number) const
{
    const Row& row = now_.at(number);
    std::string description = row.entity;
    for (const std::string& text : row.texts)
        description += ' ' + text;
    const auto list = [&](const char* name, const auto& holds) {
        std::string numbers;
        for (const auto& [other, otherRow] : now_)
            if (holds(other, otherRow))
                numbers += ' ' + std::to_string(other);
        description += std::string("; ") + name + numbers;
    };
    const auto isTarget = [&](int other, const Row&) { return row.target == other; };
    const auto holdsThis = [&](std::set<std::string> entities) {
        return
            [&, entities](int, const Row& other) { return entities.contains(other.entity) && other.target == number; };
    };
    if (row.entity == "Book") {
        list("cover", isTarget);
        list("chapters", holdsThis({"Chapter"}));
        list("items", holdsThis({"Map", "Disc"}));
        list("shelves", [&](int other, const Row&) { return row.shelves.contains(other); });
    } else if (row.entity == "Shelf") {
        list("books", [&](int, const Row& other) { return other.shelves.contains(number); });
    } else if (row.entity == "Cover") {
        list("book", holdsThis({"Book"}));
    } else {
        list("book", isTarget);
    }
    return description;
}

std::string RecordLedger::numbersOf(const std::vector<NSManagedObject*>& records) const
{
    std::set<int> numbers;
    for (const NSManagedObject* record : records)
        numbers.insert(static_cast<int>(std::find(records_.begin(), records_.end(), record) - records_.begin()));
    std::string list;
    for (const int number : numbers)
        list += ' ' + std::to_string(number);
    return list;
}

std::string RecordLedger::described(const NSManagedObject& record) const
{
    std::string description = record.entity().name();
    for (const char* name : kinds().at(record.entity().name()).texts)
        description += ' ' + text(record, name);
    for (const char* name : {"cover", "chapters", "items", "shelves", "books", "book"}) {
        const NSRelationshipDescription* relationship = record.entity().relationshipNamed(name);
        if (!relationship)
            continue;
        std::vector<NSManagedObject*> related;
        if (relationship->isToMany()) {
            related = record.toManyAt(relationship->index()).members();
            EXPECT_EQ(record.toManyAt(relationship->index()).count(), related.size());
        } else if (NSManagedObject* target = record.toOneAt(relationship->index())) {
            related = {target};
        }
        description += std::string("; ") + name + numbersOf(related);
    }
    return description;
}

void RecordLedger::expectLedger(bool whole)
{
    for (int times = 0; times < 3; ++times) {
        const int number = any(everyEntity);
        EXPECT_EQ(number == kNone ? "" : described(record(number)), number == kNone ? "" : described(number)) << number;
    }
    if (!whole)
        return;
    for (const auto& [number, row] : now_)
        EXPECT_EQ(described(record(number)), described(number)) << number;
    for (const std::string& entity : everyEntity) {
        std::vector<NSManagedObject*> expected;
        for (const auto& [number, row] : now_)
            if (row.entity == entity)
                expected.push_back(&record(number));
        EXPECT_EQ(numbersOf(all(entity)), numbersOf(expected)) << entity;
    }
}

} // namespace tarn
