#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <string>

namespace tarn::modelgen {

/// The record types of a model as a document for people, in Markdown: entity by entity, then how they lie in tables.
std::string schemaDocument(const NSManagedObjectModel& model);

} // namespace tarn::modelgen
