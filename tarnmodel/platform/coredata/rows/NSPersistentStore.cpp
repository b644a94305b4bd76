#include "platform/coredata/NSPersistentStore.h"

namespace tarn {

bool NSPersistentStore::checkSearchIndex(std::vector<std::string>& problems, NSError*)
{
    problems.clear();
    return true;
}

bool NSPersistentStore::repairSearchIndex(std::size_t& repaired, NSError*)
{
    repaired = 0;
    return true;
}

} // namespace tarn
