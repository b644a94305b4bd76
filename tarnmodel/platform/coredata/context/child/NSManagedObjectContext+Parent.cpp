#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/child/ParentContextStore.h"

namespace tarn {

void NSManagedObjectContext::setParentContext(NSManagedObjectContext& parent)
{
    core_->coordinator = parent.core_->coordinator;
    core_->parentContext = &parent;
    core_->parentStore
        = std::make_shared<ParentContextStore>(parent.core_->sharedStore(), ParentHandle::ofContext(*parent.core_));
    core_->mergePolicy = NSMergePolicy::MergeByPropertyObjectTrump;
    core_->knownState = core_->parentStore->stateNumber();
}

} // namespace tarn
