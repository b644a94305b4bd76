#pragma once

#include "tools/tarn/session/StoreSession.h"

#include <string_view>

namespace tarn {

/// What a title stands for that several notes have.
enum class SharedTitle {
    LatestToRead,   ///< the latest modified; standard error says that there are more
    LatestToChange, ///< the latest modified, as was asked for
    Refused,        ///< none: the command ends with its arguments being wrong, and lists the notes
};

/// The note that an argument names: by its identifier, by the first 8 or more characters of one (in any case), by its
/// title (compared without case and diacritics; notes in the trash count where no other has it), or by the URL that
/// opens it. Raises `CommandFailure` when there is none, when a beginning of an identifier fits several, and for an
/// empty argument, which is no title.
OVNote& noteForArgument(
    std::string_view argument, StoreSession& session, SharedTitle sharedTitle = SharedTitle::LatestToRead);

/// The same; null when there is none.
OVNote* findNoteForArgument(std::string_view argument, StoreSession& session, SharedTitle sharedTitle);

/// The note with exactly this identifier; null when there is none.
OVNote* noteWithIdentifier(std::string_view identifier, StoreSession& session);

} // namespace tarn
