#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <string_view>

namespace tarn {

/// Assigns an error of this kind; false.
bool failEncryption(NSError* error, OVEncryptionErrorCode code, std::string_view description);
/// The same, with what is usually to be said of this kind.
bool failEncryption(NSError* error, OVEncryptionErrorCode code);
NSError encryptionError(OVEncryptionErrorCode code);

} // namespace tarn
