// A program of somebody else: adds a note to a store in its working folder and tells how many there are.
#include <tarnmodel/TarnModel.h>

#include <iostream>
#include <memory>

using namespace tarn;

int main()
{
    NSError error;
    auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
    if (!coordinator->addPersistentStoreWithType(StoreType::SQLite, "notes.sqlite", {}, &error))
        return 2;
    MainQueue::main();
    NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
    context.setPersistentStoreCoordinator(coordinator);

    const OVNote* note = OVNote::noteWithText("# Pears\n\n#home", context);
    if (!context.save(&error))
        return 3;
    const auto notes = OVNote::notesInManagedObjectContext(context, NSPredicate::predicateWithFormat("trashed == NO"));
    std::cout << notes.size() << (notes.size() == 1 ? " note" : " notes")
              << ", the last one: " << note->title().value_or("")
              << "\nmodel: " << OVManagedObjectModel::modelURL().value_or("").string() << '\n';
    return 0;
}
