#include "tarnmodel/platform/coredata/memory/InMemoryStore.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/memory/InMemoryFetch.h"
#include "tarnmodel/platform/coredata/memory/InMemoryTransaction.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"

#include <algorithm>
#include <functional>

namespace tarn {

namespace {

constexpr std::chrono::seconds kPatience{30};

} // namespace

InMemoryStore::InMemoryStore(std::shared_ptr<const NSManagedObjectModel> model) : model_(std::move(model))
{
    auto state = std::make_shared<InMemoryState>();
    state->metadata = newStoreMetadata(*model_);
    identity_ = &StoreIdentity::forUUID(state->metadata.at(std::string(StoreUUIDKey)));
    committed_ = std::move(state);
}

// State ---------------------------------------------------------------------------------------------------------------

InMemoryStore::StatePointer InMemoryStore::state() const
{
    if (turn_.isMine() && working_)
        return working_;
    std::scoped_lock lock(mutex_);
    return committed_;
}

void InMemoryStore::setState(StatePointer state)
{
    std::scoped_lock lock(mutex_);
    committed_ = std::move(state);
}

void InMemoryStore::write(const std::function<void(InMemoryState&)>& work)
{
    if (turn_.isMine()) {
        work(*working_);
        return;
    }
    if (!turn_.take(kPatience))
        throw StoreFailure(StoreErrorBusy, "The store is in use.");
    try {
        auto copy = std::make_shared<InMemoryState>(*state());
        work(*copy);
        setState(std::move(copy));
    } catch (...) {
        turn_.giveBack();
        throw;
    }
    turn_.giveBack();
}

// Reading -------------------------------------------------------------------------------------------------------------

bool InMemoryStore::fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error)
{
    return reportingFailure(error, [&] { rows = rowsOfFetch(fetch, *state(), *identity_); });
}

bool InMemoryStore::count(const StoreFetch& fetch, std::size_t& count, NSError* error)
{
    return reportingFailure(error, [&] {
        StoreFetch keys = fetch;
        keys.contents = RowContents::Keys;
        keys.sortDescriptors = {};
        count = rowsOfFetch(keys, *state(), *identity_).size();
    });
}

bool InMemoryStore::rowsForKeys(const NSEntityDescription& entity, std::span<const std::int64_t> keys,
    RowContents contents, std::vector<StoreRow>& rows, NSError* error)
{
    return reportingFailure(error, [&] {
        rows.clear();
        const StatePointer state = this->state();
        const InMemoryRowReader reader(*identity_, *state);
        for (const std::int64_t key : keys)
            if (auto row = reader.readRow(entity, key, contents))
                rows.push_back(std::move(*row));
    });
}

bool InMemoryStore::relatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key, std::vector<RelatedKey>& related, NSError* error)
{
    return reportingFailure(error, [&] { related = relatedKeysInState(*state(), relationship, key); });
}

bool InMemoryStore::countRelated(
    const NSRelationshipDescription& relationship, std::int64_t key, std::size_t& count, NSError* error)
{
    return reportingFailure(error, [&] { count = state()->countRelated(relationship, key); });
}

// Writing -------------------------------------------------------------------------------------------------------------

std::unique_ptr<StoreTransaction> InMemoryStore::beginTransaction(NSError* error)
{
    std::unique_ptr<StoreTransaction> transaction;
    reportingFailure(error, [&] {
        if (!turn_.take(kPatience))
            throw StoreFailure(
                StoreErrorBusy, turn_.isMine() ? "This thread has a transaction already." : "The store is in use.");
        transaction = std::make_unique<InMemoryTransaction>(*this);
    });
    return transaction;
}

bool InMemoryStore::reserveKeys(const NSEntityDescription& root, std::size_t count, std::int64_t& first, NSError* error)
{
    return reportingFailure(error, [&] {
        write([&](InMemoryState& state) {
            std::int64_t& next = state.nextKeys[root.rootEntity().name()];
            first = std::max<std::int64_t>(next, 1);
            next = first + static_cast<std::int64_t>(count);
        });
    });
}

// Upkeep --------------------------------------------------------------------------------------------------------------

std::map<std::string, std::string> InMemoryStore::metadata(NSError*)
{
    return state()->metadata;
}

bool InMemoryStore::setMetadataValue(std::string_view key, std::string_view value, NSError* error)
{
    return reportingFailure(
        error, [&] { write([&](InMemoryState& state) { state.metadata[std::string(key)] = value; }); });
}

bool InMemoryStore::checkIntegrity(std::vector<std::string>& problems, NSError*)
{
    problems.clear();
    const StatePointer state = this->state();
    for (const NSEntityDescription* entity : model_->entities()) {
        for (const auto& row : state->rowsOfRoot(*entity)) {
            for (const NSRelationshipDescription* relationship : row->entity->relationships()) {
                const bool isColumn = relationship->storage() == RelationshipStorage::Column;
                if (!isColumn || row->values.isNil(relationship->index()))
                    continue;
                if (!state->row(relationship->destinationEntity(), row->values.integer(relationship->index())))
                    problems.push_back("a row of \"" + entity->name() + "\" points at a missing row");
            }
        }
    }
    return true;
}

std::string InMemoryStore::explain(const StoreFetch& fetch)
{
    return explanationOfFetch(fetch, *state());
}

} // namespace tarn
