#pragma once

#include "tools/tarn/commandline/Output.h"

#include <nlohmann/json.hpp>

#include <string>

namespace tarn {

/// A JSON document whose keys keep the order in which they were set.
using JSON = nlohmann::ordered_json;

/// The document as text; what is no valid UTF-8 reads as U+FFFD.
std::string textOfJSON(const JSON& document);
/// Writes one document and a line end.
void writeJSON(Output& output, const JSON& document);

} // namespace tarn
