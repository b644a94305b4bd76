#include "tests/platform/coredata/context/RandomLibrary.h"

#include "tarnmodel/platform/coredata/context/reading/SortOrder.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>

namespace tarn {
namespace {

/// What a fetch means, without any store: every live record, judged one by one, put in order.
std::vector<NSManagedObject*> judgedOneByOne(
    const std::vector<NSManagedObject*>& records, const NSFetchRequest& request)
{
    std::vector<NSManagedObject*> found;
    const PredicateEvaluator evaluator(*request.predicate);
    for (NSManagedObject* record : records)
        if (evaluator.evaluate(*record))
            found.push_back(record);
    const SortOrder order(request.sortDescriptors, *request.entity);
    std::sort(found.begin(), found.end(),
        [&](const NSManagedObject* left, const NSManagedObject* right) { return order.comesBefore(*left, *right); });
    const std::size_t begin = std::min(request.fetchOffset, found.size());
    const std::size_t end = request.fetchLimit ? std::min(begin + request.fetchLimit, found.size()) : found.size();
    return {found.begin() + static_cast<std::ptrdiff_t>(begin), found.begin() + static_cast<std::ptrdiff_t>(end)};
}

class Differential : public ContextTest {
protected:
    NSFetchRequest randomRequest(RandomLibrary& library)
    {
        NSFetchRequest request(*model_->entityNamed("Book"));
        request.predicate = library.predicate();
        request.sortDescriptors = library.order();
        request.fetchLimit = library.below(3) == 0 ? 1 + library.below(5) : 0;
        request.fetchOffset = library.below(4) == 0 ? library.below(3) : 0;
        return request;
    }

    void beginWithAnEmptyStore()
    {
        restart();
        for (const std::string_view entity : {"Item", "Book", "Shelf", "Chapter", "Cover"})
            for (NSManagedObject* record : all(entity))
                context_->deleteObject(*record);
        save();
    }

    void expectAgreement(const NSFetchRequest& request, unsigned seed)
    {
        const auto found = fetch(request); // first: judging reads everything
        const auto expected = judgedOneByOne(all("Book"), request);
        StoreFetch stored;
        stored.entity = request.entity;
        stored.predicate = &*request.predicate;
        ASSERT_EQ(found, expected) << "seed " << seed << ": " << request.predicate->predicateFormat() << "\n"
                                   << coordinator_->rowStore()->explain(stored);
        ASSERT_EQ(context_->count(request), expected.size())
            << "seed " << seed << ": " << request.predicate->predicateFormat();
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, Differential, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(Differential, FetchesWithPendingChangesMeanWhatJudgingEveryRecordMeans)
{
    // 25 stores with 4 states of unsaved changes and 100 predicates each: 10,000 predicates.
    for (unsigned seed = 1; seed <= 25; ++seed) {
        beginWithAnEmptyStore();
        RandomLibrary library(*context_, seed);
        library.populate(40);
        save();
        for (int state = 0; state < 4; ++state) {
            for (int query = 0; query < 100 && !HasFatalFailure(); ++query)
                expectAgreement(randomRequest(library), seed);
            if (HasFatalFailure())
                return;
            if (state == 1) {
                save();
                restart();
                library.setContext(*context_);
            }
            library.change(8);
        }
    }
}

TEST_P(Differential, FetchesOfAChildMeanWhatJudgingEveryRecordMeans)
{
    // What parent and child have not saved lies over the store in two layers.
    for (unsigned seed = 201; seed <= 210; ++seed) {
        beginWithAnEmptyStore();
        RandomLibrary library(*context_, seed);
        library.populate(30);
        save();
        for (int state = 0; state < 3; ++state) {
            library.change(8);
            context_->processPendingChanges();
            auto child = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
            child->setParentContext(*context_);
            std::swap(context_, child);
            library.setContext(*context_);
            for (int layer = 0; layer < 2; ++layer) {
                for (int query = 0; query < 25 && !HasFatalFailure(); ++query)
                    expectAgreement(randomRequest(library), seed);
                library.change(6);
            }
            save();
            std::swap(context_, child);
            library.setContext(*context_);
            for (int query = 0; query < 25 && !HasFatalFailure(); ++query)
                expectAgreement(randomRequest(library), seed);
            if (HasFatalFailure())
                return;
        }
    }
}

TEST_P(Differential, WhatIsSavedIsWhatWasThere)
{
    for (unsigned seed = 100; seed < 110; ++seed) {
        RandomLibrary library(*context_, seed);
        library.populate(30);
        library.change(60);
        save();
        library.change(40);
        const auto snapshot = [&](const std::vector<NSManagedObject*>& books) {
            std::vector<std::vector<std::string>> rows;
            for (const NSManagedObject* record : books) {
                std::vector<std::string> row = texts(set(*record, "shelves").members(), "name");
                std::sort(row.begin(), row.end());
                for (const char* key : {"title", "code", "body"})
                    row.push_back(text(*record, key));
                row.push_back(std::to_string(set(*record, "chapters").count()) + "/"
                    + std::to_string(set(*record, "items").count()));
                const Value cover = record->storedValueForKey("cover");
                row.push_back(
                    cover.isNil() ? "no cover" : text(static_cast<const NSManagedObject&>(cover.asObject()), "color"));
                rows.push_back(std::move(row));
            }
            std::sort(rows.begin(), rows.end());
            return rows;
        };
        const auto expected = snapshot(all("Book"));
        save();
        restart();
        ASSERT_EQ(snapshot(all("Book")), expected) << "seed " << seed;
    }
}

} // namespace
} // namespace tarn
