#pragma once

#include <filesystem>
#include <string_view>

namespace tarn {

/// Makes a store of an older version of the model ("Model", "Model 2") at `file`, where there must be none: several
/// hundred notes of every kind, as tests/cases/golden-stores keeps them. What fails fails the test.
void makeGoldenStore(const std::filesystem::path& file, std::string_view version);

} // namespace tarn
