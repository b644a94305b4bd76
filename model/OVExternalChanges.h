#pragma once

#include "model/_OVExternalChanges.h"

namespace tarn {

/// News for the main application: a record that another process saved.
///
/// Confined to its context's queue.
class OVExternalChanges : public _OVExternalChanges {
public:
    using _OVExternalChanges::_OVExternalChanges;
};

} // namespace tarn
