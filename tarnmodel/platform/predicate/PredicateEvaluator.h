#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <memory>

namespace tarn {

/// Evaluates one predicate over many objects: constants are folded and patterns compiled once.
///
/// Two-valued: a comparison with nil is true or false, never unknown. `nil == nil` is true, `nil != 'x'` is true, every
/// other comparison with nil is false. Values of different kinds are unequal and in no order; truth values and numbers
/// compare as numbers, exactly. Strings are in order by code points, after folding where the options ask for it.
///
/// A key path gives nil beyond a nil, and over a to-many relationship one flat array, in which a member without a value
/// counts as nil. Compared directly, an array equals another one with the same members in any order, however often, and
/// nothing else. ANY, ALL and NONE look at each member; a single value is its own only member, nil has none.
/// Inside a SUBQUERY, SELF and plain keys still mean the object that is evaluated.
///
/// Raises `NSUndefinedKeyException` for a key that an object does not have. Use one at a time on one thread.
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
