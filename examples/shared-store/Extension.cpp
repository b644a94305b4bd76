#include "examples/shared-store/Roles.h"

#include <tarnmodel/TarnModel.h>

#include <iostream>

namespace tarn::sharedstore {

ExitCode runExtension()
{
    NSError error;
    const auto stack = OVCoreDataStackForExtensions::initStackOutputError(&error);
    if (!stack) {
        std::cerr << error << '\n';
        return NoStore;
    }
    NSManagedObjectContext& context = *stack->managedObjectContext();

    // The application may have been started at the same moment.
    OVNote* note = nullptr;
    const auto isThere = [&] { return (note = OVNote::noteWithTitle("Groceries", context)) != nullptr; };
    if (!MainQueue::main().runUntil(isThere, std::chrono::seconds(10)))
        return NothingHeard;

    note->appendNoteWithText("- [ ] plums");
    // One transaction: the note, the news for the application, and the entry in the change log.
    if (!context.save(&error)) {
        std::cerr << error << '\n';
        return NoStore;
    }
    return Done;
}

} // namespace tarn::sharedstore
