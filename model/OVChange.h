#pragma once

#include "model/_OVChange.h"

namespace tarn {

/// One save, as the change log remembers it: a token, an order, and what was saved.
///
/// Confined to its context's queue.
class OVChange : public _OVChange {
public:
    using _OVChange::_OVChange;
};

} // namespace tarn
