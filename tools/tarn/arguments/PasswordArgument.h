#pragma once

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVPassword.h"
#include "tools/tarn/session/StoreSession.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// The password record that an argument names: by its identifier, or by the beginning of one (in any case). Raises
/// `CommandFailure` when there is none, and when the beginning fits several.
OVPassword& passwordForArgument(const std::string& argument, StoreSession& session);
/// The one password of the store. Raises `CommandFailure` when there is none; where there are several it lists them
/// and gives the advice.
OVPassword& onlyPassword(StoreSession& session, const std::string& advice);

/// Inserts a password record. Raises `CommandFailure` where the password cannot be used.
OVPassword& addPassword(StoreSession& session, const ClearPassword& clear, const std::optional<std::string>& hint);

/// What --memory says, in MiB; the kit's own for 0.
OVKeyDerivationCost costOfMemory(std::size_t mebibytes);
inline constexpr const char* kMemoryDescription
    = "How much memory, in MiB, each try of the password takes (default: 256); less for machines that have less";

} // namespace tarn
