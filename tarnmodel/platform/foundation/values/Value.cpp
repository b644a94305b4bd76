#include "tarnmodel/platform/foundation/values/Value.h"

namespace tarn {

bool operator==(const Value& left, const Value& right)
{
    if (left.kind() != right.kind())
        return false;
    switch (left.kind()) {
    case Value::Kind::Object:
        return &left.asObject() == &right.asObject() || left.asObject().isEqualToObject(right.asObject());
    case Value::Kind::Array:
        return &left.asArray() == &right.asArray() || left.asArray() == right.asArray();
    default:
        return left.storage_ == right.storage_;
    }
}

} // namespace tarn
