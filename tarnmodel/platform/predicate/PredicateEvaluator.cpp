#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include "tarnmodel/platform/predicate/PredicateNesting.h"
#include "tarnmodel/platform/predicate/PreparedPredicate.h"

namespace tarn {

struct PredicateEvaluator::State {
    PreparedPredicate predicate;
    std::size_t variableCount = 0;
};

PredicateEvaluator::PredicateEvaluator(const NSPredicate& predicate) : state_(std::make_unique<State>())
{
    requireNestingWithinLimit(predicate.node());
    state_->predicate = preparedPredicate(predicate.node(), state_->variableCount);
}

PredicateEvaluator::~PredicateEvaluator() = default;
PredicateEvaluator::PredicateEvaluator(PredicateEvaluator&&) noexcept = default;
PredicateEvaluator& PredicateEvaluator::operator=(PredicateEvaluator&&) noexcept = default;

bool PredicateEvaluator::evaluate(const NSKeyValueCoding& object) const
{
    EvaluationScope scope{.root = Value(&object), .variables = std::vector<Value>(state_->variableCount)};
    return evaluatePrepared(state_->predicate, scope);
}

} // namespace tarn
