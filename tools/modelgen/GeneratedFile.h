#pragma once

#include <filesystem>
#include <string>

namespace tarn::modelgen {

/// A file to write: its name and its whole text.
struct GeneratedFile {
    std::string name;
    std::string text;
};

/// Writes a file; one that is equal already is left alone, so that nothing is compiled again for it. False when it
/// cannot be written.
bool writeFile(const std::filesystem::path& file, const std::string& text);

} // namespace tarn::modelgen
