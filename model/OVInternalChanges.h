#pragma once

#include "model/_OVInternalChanges.h"

namespace tarn {

/// A record that waits in one of the application's own queues.
///
/// Confined to its context's queue.
class OVInternalChanges : public _OVInternalChanges {
public:
    using _OVInternalChanges::_OVInternalChanges;
};

} // namespace tarn
