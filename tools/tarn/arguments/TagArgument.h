#pragma once

#include "tools/tarn/session/StoreSession.h"

#include <string>

namespace tarn {

/// The sanitized form of a tag's name, with or without "#". Raises `CommandFailure` for an unusable one.
std::string tagNameForArgument(const std::string& argument);
/// The tag that an argument names, compared without case and diacritics. Raises `CommandFailure` when there is none.
OVNoteTag& tagForArgument(const std::string& argument, StoreSession& session);

} // namespace tarn
