#pragma once

#include <string_view>

namespace tarn {

/// Domain of the errors below; what the system or the object store refuses has their domains.
inline constexpr std::string_view TarnBackupErrorDomain = "TarnBackup";
/// What can be amiss with a backup. The numbers are kept.
enum BackupErrorCode : long {
    BackupErrorNotABackup = 1, ///< the file is something else
    BackupErrorDamaged = 2,    ///< it was cut or changed since it was made, or is not what it says
    BackupErrorNewer = 3,      ///< a later version of the library made it
    BackupErrorTooLarge = 4,   ///< it holds more than the limits allow
    BackupErrorCancelled = 5,  ///< who asked for it gave up
    BackupErrorExists = 6,     ///< a file has the name, and may not be replaced
    BackupErrorNoPath = 7,     ///< it is of an older model, and nothing was given that brings it forward
};

} // namespace tarn
