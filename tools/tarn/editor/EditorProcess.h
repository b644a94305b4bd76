#pragma once

#include <filesystem>
#include <string>

namespace tarn {

/// Runs an editor by the shell, with the file as its last argument, and waits for its end. Control-C on the terminal is
/// the editor's meanwhile. Raises `CommandFailure` when it failed; when a signal came for this process, which is handed
/// on to the editor: Interrupted.
void runEditor(const std::string& editor, const std::filesystem::path& file);

} // namespace tarn
