#pragma once

#include "tarnmodel/model/_OVChangeItem.h"

namespace tarn {

/// One record that a save inserted, changed or deleted, named by entity and unique identifier.
///
/// Confined to its context's queue.
class OVChangeItem : public _OVChangeItem {
public:
    using _OVChangeItem::_OVChangeItem;
};

} // namespace tarn
