#include "tarnmodel/platform/coredata/context/reading/SortOrder.h"

#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/foundation/time/Collation.h"

#include <algorithm>

namespace tarn {

namespace {

Value valueAtPath(const NSManagedObject& record, const std::vector<std::string>& path)
{
    Value value = record.storedValueForKey(path.front());
    for (std::size_t step = 1; step < path.size() && value.kind() == Value::Kind::Object; ++step)
        value = value.asObject().storedValueForKey(path[step]);
    return value;
}

std::weak_ordering compareNumbers(const Value& left, const Value& right)
{
    const auto integer = [](const Value& value) {
        return value.kind() == Value::Kind::Bool ? std::int64_t{value.asBool()} : value.asInteger();
    };
    if (left.kind() != Value::Kind::Double && right.kind() != Value::Kind::Double)
        return integer(left) <=> integer(right);
    const auto floating = [&](const Value& value) {
        return value.kind() == Value::Kind::Double ? value.asDouble() : static_cast<double>(integer(value));
    };
    const double a = floating(left);
    const double b = floating(right);
    return a < b ? std::weak_ordering::less : b < a ? std::weak_ordering::greater : std::weak_ordering::equivalent;
}

} // namespace

std::vector<std::string> keysOfPath(std::string_view path)
{
    std::vector<std::string> keys;
    for (std::size_t begin = 0; begin <= path.size();) {
        const std::size_t end = std::min(path.find('.', begin), path.size());
        keys.emplace_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return keys;
}

std::weak_ordering compareForSort(const Value& left, const Value& right, SortComparison comparison)
{
    if (left.isNil() || right.isNil())
        return right.isNil() <=> left.isNil();
    if (left.isNumber() && right.isNumber())
        return compareNumbers(left, right);
    if (left.kind() != right.kind())
        return left.kind() <=> right.kind();
    switch (left.kind()) {
    case Value::Kind::Date:
        return left.asDate() <=> right.asDate();
    case Value::Kind::Data:
        return left.asData() <=> right.asData();
    case Value::Kind::String:
        return comparison == SortComparison::LocalizedStandard
            ? std::weak_ordering(localizedStandardCompare(left.asString(), right.asString()))
            : std::weak_ordering(left.asString() <=> right.asString());
    default:
        return std::weak_ordering::equivalent;
    }
}

SortOrder::SortOrder(std::span<const NSSortDescriptor> descriptors, const NSEntityDescription& entity)
{
    const CompleteOrder order = completeOrder(descriptors, entity);
    keysAscend_ = order.keysAscend;
    for (const NSSortDescriptor& descriptor : order.descriptors)
        keys_.push_back({keysOfPath(descriptor.key), descriptor.ascending, descriptor.comparison});
}

bool SortOrder::comesBefore(const NSManagedObject& left, const NSManagedObject& right) const
{
    for (const Key& key : keys_) {
        const std::weak_ordering order
            = compareForSort(valueAtPath(left, key.path), valueAtPath(right, key.path), key.comparison);
        if (order != std::weak_ordering::equivalent)
            return key.ascending ? order == std::weak_ordering::less : order == std::weak_ordering::greater;
    }
    return keysAscend_ ? hasLowerKey(left, right) : hasLowerKey(right, left);
}

bool SortOrder::hasLowerKey(const NSManagedObject& left, const NSManagedObject& right)
{
    if (left.isInserted() != right.isInserted())
        return right.isInserted();
    if (left.isInserted())
        return left.insertionOrder() < right.insertionOrder();
    return left.objectID().key() < right.objectID().key();
}

} // namespace tarn
