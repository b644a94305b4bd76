#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/rows/RowObject.h"

#include <span>
#include <string>
#include <vector>

namespace tarn {

/// The order that sort descriptors ask for, over rows: nil first when ascending, ties as `completeOrder` settles them.
class RowOrder {
public:
    /// What one row is sorted by; made once for each row.
    struct Place {
        struct Part {
            bool isNil = true;
            std::int64_t integer = 0;
            double floating = 0;
            std::string bytes; ///< a text, a sort key of the locale, or data
        };
        std::vector<Part> parts; ///< one for each descriptor of the complete order
        std::int64_t key = 0;
    };

    /// Raises `NSUndefinedKeyException` or `NSInvalidArgumentException` for a key that rows cannot be sorted by.
    RowOrder(std::span<const NSSortDescriptor> descriptors, const NSEntityDescription& entity);

    Place placeOf(const StoreRow& row, const RowReader& reader) const;
    bool comesBefore(const Place& left, const Place& right) const;

private:
    struct SortKey {
        std::vector<const NSRelationshipDescription*> way; ///< the to-ones on the way to the attribute
        const NSAttributeDescription* attribute = nullptr;
        bool isAscending = true;
        bool isLocalized = false;
    };
    static SortKey sortKey(const NSSortDescriptor& descriptor, const NSEntityDescription& entity);
    static Place::Part partOf(const SortKey& key, const StoreRow& row, const RowReader& reader);

    std::vector<SortKey> keys_;
    bool keysAscend_;
};

} // namespace tarn
