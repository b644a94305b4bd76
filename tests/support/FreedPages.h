#pragma once

#include <filesystem>
#include <string_view>

namespace tarn {

/// Leaves a text in free pages of a store, as versions did that did not wipe what they freed. No connection may be
/// open.
void leaveInFreedPages(const std::filesystem::path& store, std::string_view text);

} // namespace tarn
