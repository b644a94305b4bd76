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

    // Under the store's lock from the reading of the text to its saving, so no line of another program gets lost. One
    // transaction: the note, the news for the application, and the entry in the change log.
    const auto addPlums = [&](NSManagedObjectContext&) { note->appendNoteWithText("- [ ] plums"); };
    if (!stack->write(addPlums, &error)) {
        std::cerr << error << '\n';
        return NoStore;
    }
    return Done;
}

} // namespace tarn::sharedstore
