#include "tests/platform/coredata/context/RandomLibrary.h"

#include "tarnmodel/platform/coredata/context/reading/SortOrder.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>

namespace tarn {
namespace {

using Contexts = std::vector<std::unique_ptr<NSManagedObjectContext>>;

/// Fetches of contexts that lie over each other and beside each other, with unsaved changes in all of them.
///
/// What a fetch means is asked from a child that is made for the question: it judges every record one by one, so that
/// the context itself has read no more than its fetches read.
class LayeredFetch : public ContextTest {
protected:
    void TearDown() override
    {
        while (!layers_.empty())
            layers_.pop_back();
        ContextTest::TearDown();
    }

    /// A context with unsaved changes over the store (null) or over another context. The parent comes first.
    NSManagedObjectContext& layer(NSManagedObjectContext* parent, RandomLibrary& library, std::size_t changes)
    {
        if (parent) {
            layers_.push_back(
                std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue));
            layers_.back()->setParentContext(*parent);
        } else {
            layers_.push_back(contextOn(coordinator_));
        }
        library.setContext(*layers_.back());
        library.change(changes);
        layers_.back()->processPendingChanges();
        return *layers_.back();
    }

    static std::vector<std::string> identifiersOf(const std::vector<NSManagedObject*>& records)
    {
        std::vector<std::string> identifiers;
        for (const NSManagedObject* record : records)
            identifiers.push_back(record->objectID().URIRepresentation());
        return identifiers;
    }

    static std::vector<std::string> judgedOneByOne(NSManagedObjectContext& context, const NSFetchRequest& request)
    {
        NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child.setParentContext(context);
        NSFetchRequest everything(*request.entity);
        everything.includesSubentities = request.includesSubentities;
        std::vector<NSManagedObject*> found = child.executeFetchRequest(everything);
        const PredicateEvaluator evaluator(*request.predicate);
        std::erase_if(found, [&](const NSManagedObject* record) { return !evaluator.evaluate(*record); });
        const SortOrder order(request.sortDescriptors, *request.entity);
        std::stable_sort(found.begin(), found.end(), [&](const NSManagedObject* left, const NSManagedObject* right) {
            return order.comesBefore(*left, *right);
        });
        const std::size_t begin = std::min(request.fetchOffset, found.size());
        const std::size_t end = request.fetchLimit ? std::min(begin + request.fetchLimit, found.size()) : found.size();
        return identifiersOf(
            {found.begin() + static_cast<std::ptrdiff_t>(begin), found.begin() + static_cast<std::ptrdiff_t>(end)});
    }

    void expectAgreement(NSManagedObjectContext& context, RandomLibrary& library, const char* which)
    {
        library.setContext(context);
        const NSFetchRequest request = library.request();
        // The count first: it must not need what the fetch has read.
        const bool isCountedFirst = library.below(2) == 0;
        const auto count = isCountedFirst ? context.count(request) : std::nullopt;
        NSError error;
        const auto found = context.fetch(request, &error);
        ASSERT_TRUE(found) << error << request.predicate->predicateFormat();
        const auto expected = judgedOneByOne(context, request);
        ASSERT_EQ(identifiersOf(*found), expected) << which << ": " << request.entity->name() << ' '
                                                   << request.predicate->predicateFormat() << orderOf(request);
        ASSERT_EQ(isCountedFirst ? count : context.count(request), expected.size())
            << which << ": " << request.entity->name() << ' ' << request.predicate->predicateFormat();
    }

    static std::string orderOf(const NSFetchRequest& request)
    {
        std::string text;
        for (const NSSortDescriptor& descriptor : request.sortDescriptors)
            text += (descriptor.ascending ? " by " : " down by ") + descriptor.key;
        return text + " limit " + std::to_string(request.fetchLimit) + " offset " + std::to_string(request.fetchOffset);
    }

    Contexts layers_; ///< parents before their children
};
INSTANTIATE_TEST_SUITE_P(Stores, LayeredFetch, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(LayeredFetch, OfParentsChildrenAndGrandchildrenMeansWhatJudgingEveryRecordMeans)
{
    const auto given = Environment::current().variable("TARN_LAYERED_STORES");
    const unsigned stores
        = given ? static_cast<unsigned>(std::stoul(*given)) : (GetParam() == StoreType::SQLite ? 8 : 200);
    for (unsigned seed = 1; seed <= stores; ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        restart();
        for (const std::string_view entity : {"Item", "Book", "Shelf", "Chapter", "Cover"})
            for (NSManagedObject* record : all(entity))
                context_->deleteObject(*record);
        save();
        RandomLibrary library(*context_, seed);
        library.populate(40);
        save();
        restart();

        NSManagedObjectContext& parent = layer(nullptr, library, 8);
        NSManagedObjectContext& child = layer(&parent, library, 6);
        NSManagedObjectContext& grandchild = layer(&child, library, 6);
        NSManagedObjectContext& sibling = layer(&parent, library, 4);
        NSManagedObjectContext& stranger = layer(nullptr, library, 4);
        const std::pair<NSManagedObjectContext*, const char*> all[] = {{&parent, "the parent"}, {&child, "its child"},
            {&grandchild, "its grandchild"}, {&sibling, "another child"}, {&stranger, "a stranger"}};
        for (int query = 0; query < 25; ++query)
            for (const auto& [context, name] : all)
                ASSERT_NO_FATAL_FAILURE(expectAgreement(*context, library, name));
        NSError error;
        ASSERT_TRUE(grandchild.save(&error)) << error;
        for (int query = 0; query < 15; ++query)
            for (const auto& [context, name] : {all[0], all[1], all[2]})
                ASSERT_NO_FATAL_FAILURE(expectAgreement(*context, library, name));
        ASSERT_TRUE(child.save(&error)) << error;
        for (int query = 0; query < 15; ++query)
            for (const auto& [context, name] : {all[0], all[1], all[2]})
                ASSERT_NO_FATAL_FAILURE(expectAgreement(*context, library, name));
        ASSERT_TRUE(parent.save(&error)) << error;
        for (int query = 0; query < 10; ++query)
            for (const auto& [context, name] : {all[0], all[1], all[2]})
                ASSERT_NO_FATAL_FAILURE(expectAgreement(*context, library, name));
        while (!layers_.empty())
            layers_.pop_back();
    }
}

} // namespace
} // namespace tarn
