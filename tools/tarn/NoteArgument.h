#pragma once

#include "tools/tarn/StoreSession.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The note that an argument names: by its identifier, by the first 8 or more characters of one (in any case), or by
/// its title (compared without case and diacritics; an untrashed note first, then a pinned one, then the latest
/// modified). Raises `CommandFailure` when there is none, when a beginning of an identifier fits several, and for an
/// empty argument, which is no title.
OVNote& noteForArgument(std::string_view argument, StoreSession& session);

/// All of them, each once, before anything is done to any: one that is not found ends the command.
std::vector<OVNote*> notesForArguments(const std::vector<std::string>& arguments, StoreSession& session);

} // namespace tarn
