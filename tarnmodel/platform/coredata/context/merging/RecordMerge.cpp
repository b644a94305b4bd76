#include "tarnmodel/platform/coredata/RecordMerge.h"

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

PropertyMask RecordMerge::bitOf(std::string_view key) const
{
    const NSAttributeDescription* attribute = record_->entity().attributeNamed(key);
    if (!attribute)
        throw NSException(NSUndefinedKeyException,
            "\"" + record_->entity().name() + "\" has no attribute \"" + std::string(key) + "\"");
    return propertyBit(attribute->index());
}

Value RecordMerge::value(const PropertyValues& values, std::string_view key) const
{
    const auto index = static_cast<PropertyIndex>(std::countr_zero(bitOf(key)));
    return values.isEmpty() || !values.isLoaded(index) ? Value() : values.attributeValue(index);
}

bool RecordMerge::isDecided(std::string_view key) const
{
    return decided_ & bitOf(key);
}

MergeSide RecordMerge::winner(std::string_view key) const
{
    return keptByContext_ & bitOf(key) ? MergeSide::Context : MergeSide::Store;
}

Value RecordMerge::formerValue(std::string_view key) const
{
    return value(former_, key);
}

Value RecordMerge::valueOfContext(std::string_view key) const
{
    return value(ofContext_, key);
}

Value RecordMerge::valueOfStore(std::string_view key) const
{
    return value(ofStore_, key);
}

Value RecordMerge::losingValue(std::string_view key) const
{
    return winner(key) == MergeSide::Store ? valueOfContext(key) : valueOfStore(key);
}

void RecordMerge::redoneInWinner(std::string_view key)
{
    const PropertyMask bit = bitOf(key);
    lost_ &= ~bit;
    for (const MergeGroup& group : record_->entity().mergeGroups())
        if (group.members & bit)
            lost_ &= ~group.members;
}

} // namespace tarn
