#pragma once

#include "model/_OVServerMetadata.h"

namespace tarn {

/// What the server told about the store as a whole. One record of a store.
///
/// Confined to its context's queue.
class OVServerMetadata : public _OVServerMetadata {
public:
    using _OVServerMetadata::_OVServerMetadata;
};

} // namespace tarn
