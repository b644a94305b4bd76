#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tools/modelgen/GeneratedFile.h"

namespace tarn::modelgen {

/// `OVNoteAttributes.h`: one class function per attribute that returns its key.
GeneratedFile attributeNamesHeader(const NSEntityDescription& entity);
/// `OVNoteRelationships.h`; not for an entity without relationships.
GeneratedFile relationshipNamesHeader(const NSEntityDescription& entity);
/// `OVNoteID.h`: the typed object identifier.
GeneratedFile objectIDHeader(const NSEntityDescription& entity);

} // namespace tarn::modelgen
