#pragma once

#include "tools/modelgen/GeneratedNames.h"

namespace tarn::modelgen {

/// `_OVNote.h`: the generated base of an entity's class.
GeneratedFile baseClassHeader(const NSEntityDescription& entity);
/// `_OVNote.cpp`.
GeneratedFile baseClassSource(const NSEntityDescription& entity);

} // namespace tarn::modelgen
