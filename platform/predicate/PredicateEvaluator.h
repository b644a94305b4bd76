#pragma once

#include "platform/predicate/NSPredicate.h"

#include <memory>

namespace tarn {

/// Evaluates one predicate over many objects: constants are folded and patterns compiled once.
///
/// Two-valued: a comparison with nil is YES or NO, never unknown. `nil == nil` is YES, `nil != 'x'` is YES, every other
/// comparison with nil is NO. Values of different kinds are unequal and in no order; truth values and numbers compare
/// as numbers. Use one at a time on one thread.
class PredicateEvaluator {
public:
    /// Raises `NSInvalidArgumentException` for a MATCHES pattern that is no regular expression.
    explicit PredicateEvaluator(const NSPredicate& predicate);
    ~PredicateEvaluator();
    PredicateEvaluator(PredicateEvaluator&&) noexcept;
    PredicateEvaluator& operator=(PredicateEvaluator&&) noexcept;

    bool evaluate(const NSKeyValueCoding& object) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tarn
