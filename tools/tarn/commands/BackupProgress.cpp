#include "tools/tarn/commands/BackupProgress.h"

#include "tarnmodel/backup/BackupErrors.h"
#include "tarnmodel/store/VexMigrationManager.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/Progress.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::size_t kWholeBackup = 100;

ExitCode exitCodeForBackupError(const NSError& error)
{
    switch (error.code()) {
    case BackupErrorNotABackup:
    case BackupErrorDamaged:
        return ExitCode::Corrupt;
    case BackupErrorNewer:
    case BackupErrorNoPath:
        return ExitCode::NeedsMigration;
    case BackupErrorCancelled:
        return ExitCode::Interrupted;
    default:
        return ExitCode::Failed;
    }
}

} // namespace

CommandFailure failureOfBackup(const std::string& what, const NSError& error)
{
    if (Interruption::requested())
        return {ExitCode::Interrupted, what + ": interrupted"};
    const std::string message = what + ": " + singleLine(error.localizedDescription());
    if (error.domain() == TarnBackupErrorDomain)
        return {exitCodeForBackupError(error), message};
    if (error.domain() == NSPOSIXErrorDomain)
        return {ExitCode::InputOutput, message};
    if (error.domain() == MigrationErrorDomain)
        return {error.code() == MigrationErrorNoSpace ? ExitCode::InputOutput : ExitCode::NeedsMigration, message};
    return failureForStoreError(what, error);
}

BackupProgress::BackupProgress(std::string label) : label_(std::move(label)) { }

BackupProgress::~BackupProgress() = default;

std::function<bool(std::uint64_t, std::uint64_t)> BackupProgress::handler()
{
    return [this](std::uint64_t done, std::uint64_t total) { return advance(done, total); };
}

bool BackupProgress::advance(std::uint64_t done, std::uint64_t total)
{
    if (!bar_)
        bar_ = std::make_unique<Progress>(label_, kWholeBackup);
    const double part = total == 0 ? 0 : static_cast<double>(done) / static_cast<double>(total);
    const auto percent = static_cast<std::size_t>(std::min(part, 1.0) * static_cast<double>(kWholeBackup));
    bar_->advance(percent - std::min(percent, shown_));
    shown_ = std::max(percent, shown_);
    return !Interruption::requested();
}

} // namespace tarn
