#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"

#include <set>
#include <string>
#include <vector>

namespace tarn {

class NSManagedObjectContext;

/// What is amiss with tags, compared with the folded names of the hashtags in all texts that can be read. Raises
/// `DiagnosisFailure`.
std::vector<StoreFinding> findingsInTags(NSManagedObjectContext& context, const std::set<std::string>& tagKeysInTexts);

} // namespace tarn
