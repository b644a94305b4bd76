#pragma once

#include "tools/tarn/session/StoreSession.h"

namespace tarn {

/// After notes were protected: takes away what of their clear text is left in files of the store and of this program,
/// and names on standard error what is left to people. Ends the session's use of the store.
void clearAwayClearText(StoreSession& session);

} // namespace tarn
