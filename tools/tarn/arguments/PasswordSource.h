#pragma once

#include "tools/tarn/session/ClearPassword.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace tarn {

struct Invocation;

/// Where one command gets the clear passwords from: the file of --password-file, else of $TARN_PASSWORD_FILE, else
/// whoever sits at the terminal, who is asked for each password once.
class PasswordSource {
public:
    explicit PasswordSource(const Invocation& invocation);

    /// Whether a file says the password, so that nobody is asked.
    bool isFile() const;
    /// Whether there is any way to a password.
    bool canTell() const;
    /// Tries passwords until `isRight` takes one: that of the file once, those of the terminal up to three times. False
    /// where nobody gave one. Raises `CommandFailure` when none was right. What was right is remembered under the
    /// identifier, and tried first the next time.
    bool tryPasswords(const std::string& identifier, const std::string& question,
        const std::function<bool(const ClearPassword&)>& isRight);
    /// A password for something new: that of the file, else what is typed twice. Raises `CommandFailure` where there is
    /// none.
    ClearPassword newPassword() const;

private:
    bool isRememberedRight(const std::string& identifier, const std::function<bool(const ClearPassword&)>& isRight);

    std::optional<std::filesystem::path> file_;
    std::map<std::string, ClearPassword> remembered_;
    std::optional<ClearPassword> ofFile_; ///< read once: it may be a pipe
};

/// The password in a file of another option; raises `CommandFailure` for an empty name.
ClearPassword passwordOfOption(const std::string& option, const std::string& file);

} // namespace tarn
