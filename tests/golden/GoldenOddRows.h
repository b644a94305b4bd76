#pragma once

#include <string>
#include <string_view>

namespace tarn {

/// The identifier of every golden store.
inline constexpr std::string_view goldenStoreUUID = "6F1C0B1E-7A52-4B0D-9E57-0C5A9C3D1E20";

/// Statements that insert rows which no record was written for: what other programs and old mistakes leave behind, and
/// the records of which the library keeps lists. `version` is 1 or 2. Their keys begin at 1001; 77777 and above lead
/// nowhere.
std::string oddRows(int version);

} // namespace tarn
