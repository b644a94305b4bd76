#include "tarnmodel/platform/foundation/values/Value.h"

#include <atomic>

namespace tarn {

struct SharedValues::Counted {
    std::vector<Value> values;
    std::atomic<std::size_t> owners{1};
};

SharedValues::SharedValues(std::vector<Value> values) : counted_(new Counted{std::move(values)}) { }

SharedValues::SharedValues(const SharedValues& other) noexcept : counted_(other.counted_)
{
    if (counted_)
        counted_->owners.fetch_add(1, std::memory_order_relaxed);
}

SharedValues::~SharedValues()
{
    if (counted_ && counted_->owners.fetch_sub(1, std::memory_order_acq_rel) == 1)
        delete counted_;
}

const std::vector<Value>& SharedValues::values() const noexcept
{
    return counted_->values;
}

bool operator==(const Value& left, const Value& right)
{
    if (left.kind() != right.kind())
        return false;
    switch (left.kind()) {
    case Value::Kind::Object:
        return &left.asObject() == &right.asObject() || left.asObject().isEqualToObject(right.asObject());
    case Value::Kind::Array:
        return &left.asArray() == &right.asArray() || left.asArray() == right.asArray();
    case Value::Kind::Nil:
        return true;
    case Value::Kind::Bool:
        return left.asBool() == right.asBool();
    case Value::Kind::Integer:
        return left.asInteger() == right.asInteger();
    case Value::Kind::Double:
        return left.asDouble() == right.asDouble();
    case Value::Kind::String:
        return left.asString() == right.asString();
    case Value::Kind::Date:
        return left.asDate() == right.asDate();
    case Value::Kind::Data:
        return left.asData() == right.asData();
    }
    return false;
}

} // namespace tarn
