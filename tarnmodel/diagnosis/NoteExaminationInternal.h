#pragma once

#include "tarnmodel/diagnosis/StoreFinding.h"

#include <set>
#include <string>
#include <vector>

namespace tarn {

class OVNote;

/// What is amiss with the fields of a note: of a readable one against a fresh parse of its text, of a protected one
/// only what can be told without its text. Adds the folded names of the hashtags in its text to `tagKeysInTexts`.
std::vector<StoreFinding> findingsInNote(const OVNote& note, std::set<std::string>& tagKeysInTexts);

} // namespace tarn
