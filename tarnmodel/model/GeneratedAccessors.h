#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <set>
#include <string>
#include <string_view>

// What the generated bases of the record classes share.

namespace tarn {

/// The record as its class. Raises `NSInternalInconsistencyException` when the model has another class for the entity.
template <std::derived_from<NSManagedObject> Record> Record& recordOfClass(NSManagedObject& record)
{
    if (auto* typed = dynamic_cast<Record*>(&record))
        return *typed;
    throw NSException(
        NSInternalInconsistencyException, "no class is registered for the entity \"" + record.entity().name() + "\"");
}

/// Raises `NSInvalidArgumentException` when the model has no such entity.
const NSEntityDescription& entityInModel(std::string_view entityName, const NSManagedObjectModel& model);

/// "x" when `key` is "xValue" and x is one of the scalar attributes; else nothing.
std::set<std::string> keysAffectingScalarKey(
    std::string_view key, std::initializer_list<std::string_view> scalarAttributes);

// Boxed values for setters; nil gives none. Numbers are cut to the width asked for. A value of another kind raises
// `NSInvalidArgumentException`.
std::optional<bool> unboxedBoolean(const Value& value);
std::optional<std::int64_t> unboxedNumber(const Value& value);
std::optional<double> unboxedDouble(const Value& value);
/// A view of the text in `value`.
std::optional<std::string_view> unboxedString(const Value& value);
std::optional<NSDate> unboxedDate(const Value& value);
std::optional<NSData> unboxedData(const Value& value);

/// A whole number as it is stored, cut to the width of its attribute.
template <std::integral Integer> std::optional<Integer> narrowed(std::optional<std::int64_t> number)
{
    return number ? std::optional<Integer>(static_cast<Integer>(*number)) : std::nullopt;
}

} // namespace tarn
