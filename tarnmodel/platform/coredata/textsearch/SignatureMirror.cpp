#include "tarnmodel/platform/coredata/textsearch/SignatureMirror.h"

#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SubstringSignature.h"

#include <algorithm>
#include <mutex>

namespace tarn {

namespace {

/// Stands among the changes for "all of them".
constexpr std::int64_t kEveryRow = 0;
/// Offsets count 32 bits.
constexpr std::size_t kMostBytes = 0xF0000000;
constexpr std::size_t kLeastWaste = std::size_t{1} << 20U;

} // namespace

SignatureMirror::SignatureMirror(const SignatureTable& table)
    : table_(table), sql_([&] {
          const std::string signatures = quotedIdentifier(table.name);
          const std::string changes = quotedIdentifier(table.changesName);
          Statements made;
          made.all = "SELECT \"pk\", \"signature\" FROM " + signatures + " ORDER BY \"pk\"";
          made.lastChange = "SELECT \"change\", \"pk\" FROM " + changes + " ORDER BY \"change\" DESC LIMIT 1";
          made.change = "SELECT \"pk\" FROM " + changes + " WHERE \"change\" = ?1";
          made.changesAfter = "SELECT c.\"change\", c.\"pk\", s.\"pk\", s.\"signature\" FROM " + changes
              + " AS c LEFT JOIN " + signatures
              + " AS s ON s.\"pk\" = c.\"pk\" WHERE c.\"change\" > ?1 ORDER BY c.\"change\"";
          made.keysAfter = "SELECT DISTINCT \"pk\" FROM " + changes + " WHERE \"change\" > ?1 ORDER BY \"pk\"";
          made.exists = "SELECT 1 FROM " + quotedIdentifier(table.columnTable()) + " WHERE \"pk\" = ?1";
          return made;
      }())
{ }

std::size_t SignatureMirror::rowCount() const
{
    const std::shared_lock lock(mutex_);
    return slots_.size();
}

std::vector<std::int64_t> SignatureMirror::takeStaleKeys(std::size_t most)
{
    const std::unique_lock lock(mutex_);
    std::vector<std::int64_t> keys;
    if (staleCount_ == 0)
        return keys;
    for (; slotsSearchedForStale_ < slots_.size() && keys.size() < most; ++slotsSearchedForStale_)
        if (slots_[slotsSearchedForStale_].length == kStale)
            keys.push_back(slots_[slotsSearchedForStale_].key);
    return keys;
}

// Asking --------------------------------------------------------------------------------------------------------------

PrimaryKeySetPtr SignatureMirror::rowsWithGrams(SQLiteConnection& connection, std::span<const std::uint32_t> hashes)
{
    if (hashes.empty())
        return nullptr;
    if (connection.isWriting()) {
        const std::shared_lock lock(mutex_);
        if (!isLoaded_ || !isAnchored(connection))
            return nullptr;
        return withUncommitted(connection, std::make_shared<const PrimaryKeySet>(probe(hashes)));
    }
    catchUp(connection);
    const std::shared_lock lock(mutex_);
    return std::make_shared<const PrimaryKeySet>(probe(hashes));
}

std::vector<std::int64_t> SignatureMirror::probe(std::span<const std::uint32_t> hashes) const
{
    std::vector<std::int64_t> keys;
    for (const Slot& slot : slots_) {
        const bool isCandidate = slot.length == kStale
            || (slot.length != kAbsent && hasGrams(bytes_.data() + slot.offset, slot.length, hashes));
        if (isCandidate)
            keys.push_back(slot.key);
    }
    return keys;
}

/// The writing connection sees what it has not committed; others must not, so it does not go into the mirror.
PrimaryKeySetPtr SignatureMirror::withUncommitted(SQLiteConnection& connection, PrimaryKeySetPtr committed) const
{
    SQLiteStatement statement = connection.prepare(sql_.keysAfter);
    statement.bindInteger(1, lastChange_);
    std::vector<std::int64_t> changed;
    while (statement.step()) {
        if (statement.integer(0) == kEveryRow)
            return nullptr;
        changed.push_back(statement.integer(0));
    }
    return unionOf(committed, std::make_shared<const PrimaryKeySet>(std::move(changed)));
}

// Catching up ---------------------------------------------------------------------------------------------------------

/// Nobody can commit during the caller's transaction, so whatever is found committed is what the caller sees.
void SignatureMirror::catchUp(SQLiteConnection& connection)
{
    const std::int64_t version = connection.integerOf("PRAGMA data_version");
    {
        const std::shared_lock lock(mutex_);
        const auto seen = seenVersions_.find(&connection);
        if (isLoaded_ && seen != seenVersions_.end() && seen->second == version)
            return;
    }
    const std::unique_lock lock(mutex_);
    const bool isTooWasteful = wastedBytes_ > kLeastWaste && wastedBytes_ > bytes_.size() / 2;
    if (!isLoaded_ || isTooWasteful || !isAnchored(connection) || follow(connection) == Progress::Lost)
        load(connection);
    slotsSearchedForStale_ = 0;
    seenVersions_[&connection] = version;
}

/// Whether the change that it came to last is still there: if not, someone has emptied the list of changes.
bool SignatureMirror::isAnchored(SQLiteConnection& connection) const
{
    if (lastChange_ == 0)
        return true;
    SQLiteStatement statement = connection.prepare(sql_.change);
    statement.bindInteger(1, lastChange_);
    return statement.step() && statement.integer(0) == lastKey_;
}

void SignatureMirror::load(SQLiteConnection& connection)
{
    isLoaded_ = false;
    seenVersions_.clear();
    slots_.clear();
    bytes_.clear();
    wastedBytes_ = staleCount_ = 0;
    lastChange_ = lastKey_ = 0;
    {
        SQLiteStatement statement = connection.prepare(sql_.lastChange);
        if (statement.step()) {
            lastChange_ = statement.integer(0);
            lastKey_ = statement.integer(1);
        }
    }
    SQLiteStatement statement = connection.prepare(sql_.all);
    while (statement.step())
        slots_.push_back(made(statement.integer(0), statement.bytes(1)));
    isLoaded_ = true;
}

SignatureMirror::Progress SignatureMirror::follow(SQLiteConnection& connection)
{
    isLoaded_ = false; // should the walk fail half-way
    SQLiteStatement statement = connection.prepare(sql_.changesAfter);
    statement.bindInteger(1, lastChange_);
    while (statement.step()) {
        const std::int64_t key = statement.integer(1);
        if (key == kEveryRow)
            return Progress::Lost;
        setSlot(connection, key, !statement.isNull(2), statement.bytes(3));
        lastChange_ = statement.integer(0);
        lastKey_ = key;
    }
    isLoaded_ = true;
    return Progress::Done;
}

bool SignatureMirror::rowExists(SQLiteConnection& connection, std::int64_t key) const
{
    SQLiteStatement statement = connection.prepare(sql_.exists);
    statement.bindInteger(1, key);
    return statement.step();
}

SignatureMirror::Slot SignatureMirror::made(std::int64_t key, std::string_view signature)
{
    Slot slot{key, static_cast<std::uint32_t>(bytes_.size()), kStale};
    if (!isCurrentSignature(signature) || bytes_.size() + signature.size() > kMostBytes) {
        ++staleCount_;
        return slot;
    }
    signature.remove_prefix(signatureHeaderSize);
    slot.length = static_cast<std::uint32_t>(signature.size());
    bytes_.insert(bytes_.end(), signature.begin(), signature.end());
    return slot;
}

void SignatureMirror::setSlot(SQLiteConnection& connection, std::int64_t key, bool hasRow, std::string_view signature)
{
    const auto place = std::lower_bound(
        slots_.begin(), slots_.end(), key, [](const Slot& slot, std::int64_t wanted) { return slot.key < wanted; });
    const bool isKnown = place != slots_.end() && place->key == key;
    if (isKnown && place->length == kStale)
        --staleCount_;
    else if (isKnown && place->length != kAbsent)
        wastedBytes_ += place->length;
    Slot slot{key, 0, kAbsent};
    if (hasRow || rowExists(connection, key))
        slot = made(key, signature);
    if (isKnown)
        *place = slot;
    else
        slots_.insert(place, slot);
}

} // namespace tarn
