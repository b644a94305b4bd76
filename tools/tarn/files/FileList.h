#pragma once

#include "tarnmodel/model/OVNoteFile.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commandline/Output.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>

namespace tarn {

/// An attachment as JSON. `width` and `height` are null for what is no image, `path` is null where the bytes are not
/// here; of a locked one so are its name and size.
JSON jsonOfFile(const OVNoteFile& file);
/// {"files": [...]}
JSON jsonOfFiles(std::span<OVNoteFile* const> files);

/// One line for an attachment: kind, size, pixels, marks, name, and the title of its note.
///
/// Marks: `u` unused, `^` to be uploaded, `v` to be downloaded, `e` encrypted, `!` not on disk although it should be.
void writeFileLine(Output& output, const OVNoteFile& file);

/// Whether its name cannot be read.
bool isLocked(const OVNoteFile& file);
/// Its name; what is stored of a locked one, which is no name.
std::string nameOfFile(const OVNoteFile& file);
/// Where its bytes lie; none where they are not here.
std::optional<std::filesystem::path> pathOfFile(const OVNoteFile& file);
/// "816 B", "1.2 MB"
std::string displaySize(std::uintmax_t bytes);
/// Bytes of all of them, as they say.
std::uintmax_t bytesOfFiles(std::span<OVNoteFile* const> files);

} // namespace tarn
