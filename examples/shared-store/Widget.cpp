#include "examples/shared-store/Roles.h"

#include <tarnmodel/TarnModel.h>

#include <iostream>

namespace tarn::sharedstore {

ExitCode runWidget()
{
    NSError error;
    const auto stack = OVCoreDataStackForWidgets::initStack(&error);
    if (!stack) {
        std::cerr << error << '\n';
        return NoStore;
    }
    // The context of a widget works on a queue of its own.
    ExitCode end = NothingHeard;
    NSManagedObjectContext& context = *stack->managedObjectContext();
    context.performBlockAndWait([&] {
        const OVNote* note = OVNote::noteWithTitle("Groceries", context);
        if (!note)
            return;
        std::cout << "Groceries: " << note->todoIncompletedValue() << " of "
                  << note->todoIncompletedValue() + note->todoCompletedValue() << " to be done\n";
        end = Done;
    });
    return end;
}

} // namespace tarn::sharedstore
