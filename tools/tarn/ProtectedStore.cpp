#include "tools/tarn/ProtectedStore.h"

namespace tarn {

void clearAwayClearText(StoreSession& /*session*/) { }

} // namespace tarn
