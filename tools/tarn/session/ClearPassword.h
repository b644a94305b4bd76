#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tarn {

/// A password as somebody wrote it; its bytes are wiped when it goes.
class ClearPassword {
public:
    /// Copies at once: whatever held the text before is its owner's to wipe.
    explicit ClearPassword(std::string_view text) : text_(text) { }
    ~ClearPassword();
    ClearPassword(ClearPassword&& other) noexcept;
    ClearPassword& operator=(ClearPassword&& other) noexcept;
    ClearPassword(const ClearPassword&) = delete;
    ClearPassword& operator=(const ClearPassword&) = delete;

    ClearPassword copy() const { return ClearPassword(text_); }
    std::string_view text() const noexcept { return text_; }

private:
    std::string text_;
};

/// The first line of a file, which may be a pipe. Raises `CommandFailure` when it cannot be read or there is no
/// password in it.
ClearPassword passwordInFile(const std::filesystem::path& file);

/// Whether there is somebody who can be asked.
bool isSomebodyAtTheTerminal();
/// Asks on standard error and reads a line from the terminal, which shows nothing of it. None for an empty line and at
/// the end of the input. Raises `CommandFailure` when a signal ended the wait; the terminal is then as it was.
std::optional<ClearPassword> passwordFromTerminal(const std::string& question);
/// Asks twice for a new password, until both are the same. Raises `CommandFailure` where none is given.
ClearPassword newPasswordFromTerminal();

} // namespace tarn
