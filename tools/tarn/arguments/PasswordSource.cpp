#include "tools/tarn/arguments/PasswordSource.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"

#include <cstdio>

namespace tarn {

namespace {

constexpr int kMostTries = 3;

} // namespace

PasswordSource::PasswordSource(const Invocation& invocation)
{
    if (invocation.passwordOption) {
        if (invocation.passwordOption->empty())
            throw CommandFailure(ExitCode::Usage, "--password-file needs the name of a file");
        file_ = *invocation.passwordOption;
    } else if (const auto file = Environment::current().variable("TARN_PASSWORD_FILE"); file && !file->empty()) {
        file_ = *file;
    }
}

bool PasswordSource::isFile() const
{
    return file_.has_value();
}

bool PasswordSource::canTell() const
{
    return isFile() || isSomebodyAtTheTerminal();
}

bool PasswordSource::isRememberedRight(
    const std::string& identifier, const std::function<bool(const ClearPassword&)>& isRight)
{
    const auto known = remembered_.find(identifier);
    return known != remembered_.end() && isRight(known->second);
}

bool PasswordSource::tryPasswords(const std::string& identifier, const std::string& question,
    const std::function<bool(const ClearPassword&)>& isRight)
{
    if (isRememberedRight(identifier, isRight))
        return true;
    if (file_) {
        if (!ofFile_)
            ofFile_ = passwordInFile(*file_);
        if (isRight(*ofFile_))
            return true;
        throw CommandFailure(ExitCode::Locked, "what is in " + file_->string() + " is not the password");
    }
    if (!isSomebodyAtTheTerminal())
        return false;
    for (int attempt = 0; attempt < kMostTries; ++attempt) {
        auto typed = passwordFromTerminal(question);
        if (!typed)
            return false;
        if (isRight(*typed)) {
            remembered_.insert_or_assign(identifier, std::move(*typed));
            return true;
        }
        std::fputs("This is not the password.\n", stderr);
    }
    throw CommandFailure(ExitCode::Locked, "none of these was the password");
}

ClearPassword PasswordSource::newPassword() const
{
    if (file_)
        return ofFile_ ? ofFile_->copy() : passwordInFile(*file_);
    if (!isSomebodyAtTheTerminal())
        throw CommandFailure(
            ExitCode::Locked, "there is no password; name a file with --password-file whose first line is one");
    return newPasswordFromTerminal();
}

ClearPassword passwordOfOption(const std::string& option, const std::string& file)
{
    if (file.empty())
        throw CommandFailure(ExitCode::Usage, option + " needs the name of a file");
    return passwordInFile(file);
}

} // namespace tarn
