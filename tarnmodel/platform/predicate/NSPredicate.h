#pragma once

#include "tarnmodel/platform/foundation/values/Value.h"

#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

struct PredicateNode;
using PredicateNodePtr = std::shared_ptr<const PredicateNode>;

/// A query over objects, written in predicate format syntax.
///
/// An immutable value, cheap to copy; any thread. It borrows the objects that were given as arguments.
///
/// Texts, numbers, dates and data that were given as arguments are copied. Objects are not: a predicate over a record
/// is good for as long as that record, which is its context's life at most.
///
///     auto wanted = NSPredicate::predicateWithFormat("title ==[cd] %@ AND trashed == NO", title);
class NSPredicate {
public:
    /// Parses `format`. Slots: `%@` takes any value (records and collections too), `%d` an integer or a truth value,
    /// `%K` a key path given as a string. Between quotes they are plain text. Raises an `NSInvalidArgumentException`
    /// that names position and expectation when the format is malformed or the arguments do not fit its slots.
    template <typename... Arguments>
    static NSPredicate predicateWithFormat(std::string_view format, const Arguments&... arguments)
    {
        const std::initializer_list<Value> values{Value(arguments)...};
        return predicateWithFormatAndArguments(format, std::span<const Value>(values.begin(), values.size()));
    }
    static NSPredicate predicateWithFormatAndArguments(std::string_view format, std::span<const Value> arguments);

    /// Finds all, or nothing.
    static NSPredicate predicateWithValue(bool value);
    /// What all of them find; everything for none.
    static NSPredicate andPredicateWithSubpredicates(std::span<const NSPredicate> predicates);
    /// What any of them finds; nothing for none.
    static NSPredicate orPredicateWithSubpredicates(std::span<const NSPredicate> predicates);
    /// What the predicate does not find.
    static NSPredicate notPredicateWithSubpredicate(const NSPredicate& predicate);
    /// A predicate of this tree; `node` is not null.
    explicit NSPredicate(PredicateNodePtr node);

    /// The canonical form; parsing it gives the same tree again.
    /// Records print as `<object>`, which the parser refuses: such a predicate is for the store, not for printing.
    std::string predicateFormat() const;
    /// Evaluates over stored values. A loop over many objects makes one `PredicateEvaluator` instead.
    bool evaluateWithObject(const NSKeyValueCoding& object) const;

    /// Its tree; shared and immutable.
    const PredicateNode& node() const noexcept { return *node_; }
    const PredicateNodePtr& nodePtr() const noexcept { return node_; }
    /// The same tree: operators, options, keys and constants.
    friend bool operator==(const NSPredicate& left, const NSPredicate& right);

private:
    PredicateNodePtr node_;
};

/// The key paths that a predicate reads from its root object, those inside SUBQUERY joined to the collection's path:
/// `SUBQUERY(files, $f, $f.unused == NO).@count > 0` reads `files` and `files.unused`. Each once, in order of
/// appearance.
std::vector<std::vector<std::string>> keyPathsReadByPredicate(const NSPredicate& predicate);

} // namespace tarn
