// JSON of attachments and passwords of any bytes: a record whose own JSON reads back as the same, or nothing.

#include "fuzz/search/Require.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/events/Queue.h"

#include <cstdint>

using namespace tarn;

namespace {

std::unique_ptr<NSManagedObjectContext> aContext()
{
    MainQueue::main();
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
    require(coordinator->addPersistentStoreWithType(StoreType::InMemory, {}, {}));
    auto context = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context->setPersistentStoreCoordinator(std::move(coordinator));
    return context;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const auto context = aContext();
    const NSData json(std::span(reinterpret_cast<const std::byte*>(data), size));
    if (const OVNoteFile* file = OVNoteFile::noteFileFromJsonRepresentation(json, *context)) {
        const auto first = file->jsonRepresentation();
        require(first.has_value());
        context->rollback();
        const OVNoteFile* again = OVNoteFile::noteFileFromJsonRepresentation(first, *context);
        require(again && again->jsonRepresentation() == first);
    }
    context->rollback();
    if (const OVPassword* password = OVPassword::passwordFromJsonRepresentation(json, *context))
        require(password->jsonRepresentation().has_value());
    context->rollback();
    return 0;
}
