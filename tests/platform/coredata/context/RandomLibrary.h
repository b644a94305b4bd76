#pragma once

#include "tests/platform/coredata/context/ContextFixture.h"

#include <random>
#include <string>
#include <vector>

namespace tarn {

/// Random records, changes and predicates over the library model, from one seed. Values come from small sets, so that
/// predicates hit.
class RandomLibrary {
public:
    RandomLibrary(NSManagedObjectContext& context, unsigned seed) : context_(&context), random_(seed) { }
    void setContext(NSManagedObjectContext& context) { context_ = &context; }

    /// Inserts records and ties them at random.
    void populate(std::size_t count);
    /// Inserts, changes, ties, unties and deletes records.
    void change(std::size_t count);
    /// A predicate over books as a format, with records as arguments.
    NSPredicate predicate();
    std::vector<NSSortDescriptor> order();
    /// A fetch on any entity, with paths over the others in predicate and order, and with limit and offset.
    NSFetchRequest request();
    std::size_t below(std::size_t bound) { return std::uniform_int_distribution<std::size_t>(0, bound - 1)(random_); }

private:
    bool chance(int percent) { return static_cast<int>(below(100)) < percent; }
    NSManagedObject* any(std::string_view entity);
    void setRandomValue(NSManagedObject& record);
    void tie(NSManagedObject& record);
    Value randomText();
    std::string term(int depth, std::vector<Value>& arguments);
    std::string leaf(std::vector<Value>& arguments);
    std::string leafOf(const std::string& entity, std::vector<Value>& arguments);
    std::string bookLeaf(const std::string& prefix, std::vector<Value>& arguments);
    std::string pick(const std::vector<const char*>& choices) { return choices.at(below(choices.size())); }
    std::string pick(std::initializer_list<const char*> choices);

    NSManagedObjectContext* context_;
    std::string entity_ = "Book"; ///< that predicates are made for
    std::mt19937 random_;
};

} // namespace tarn
