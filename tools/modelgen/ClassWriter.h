#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tools/modelgen/GeneratedFile.h"

namespace tarn::modelgen {

/// `_OVNote.h`: the generated base of an entity's class.
GeneratedFile baseClassHeader(const NSEntityDescription& entity);
/// `_OVNote.cpp`.
GeneratedFile baseClassSource(const NSEntityDescription& entity);

} // namespace tarn::modelgen
