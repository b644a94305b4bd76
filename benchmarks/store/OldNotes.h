#pragma once

#include <cstddef>
#include <filesystem>

namespace tarn {

/// Makes a store of version 1 with so many made-up notes: tags, wiki links, to-dos, and two attachments to every tenth;
/// records are written by names alone. Always the same but for identifiers and dates. What fails ends the program.
void makeStoreOfFirstVersion(const std::filesystem::path& file, std::size_t notes);

} // namespace tarn
