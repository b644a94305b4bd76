#include "tools/tarn/session/ProtectedStore.h"

#include "tarnmodel/store/OVCoreDataStack.h"
#include "tarnmodel/store/VexMigrationManager.h"

namespace tarn {

void clearAwayClearText(StoreSession& session)
{
    VexMigrationManager::removeBackups();
    session.closeAndCompact();
    for (const std::filesystem::path& store : OVCoreDataStack::storesSetAsideInFolder(session.database().parent_path()))
        tellOnStandardError("an old store was set aside and is left as it is, readable: " + store.string());
}

} // namespace tarn
