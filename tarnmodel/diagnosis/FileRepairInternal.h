#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"

#include <cstddef>
#include <span>

namespace tarn {

class NSManagedObjectContext;

/// Looks at each of them again and mends what is still amiss; how many there were. Unsaved, what records are told; on
/// disk nothing is deleted but what was never whole. Raises `DiagnosisFailure`.
std::size_t mendFiles(std::span<const FileToMend> files, NSManagedObjectContext& context);

} // namespace tarn
