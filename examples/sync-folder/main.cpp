// A small sync engine over a plain folder, as a program: one store, one server folder, one command.
//
//     sync_folder SERVER STORE DEVICE sync
//     sync_folder SERVER STORE DEVICE new TEXT
//     sync_folder SERVER STORE DEVICE append TITLE TEXT
//     sync_folder SERVER STORE DEVICE delete TITLE
//     sync_folder SERVER STORE DEVICE list
//
// Each ends with the exit code 0, or with 1 and a message when something fails, 2 for wrong arguments. Two stores on
// one machine are two devices: DEVICE tells them apart.

#include "examples/sync-folder/FolderServer.h"
#include "examples/sync-folder/SyncEngine.h"

#include <cstdint>
#include <functional>
#include <iostream>
#include <span>

namespace tarn::syncfolder {

namespace {

/// The device of this name, in place of the machine's own identifier.
void becomeDevice(std::string_view name)
{
    HostUUID identifier{HostUUIDStatus::Known, {}};
    std::uint64_t state = 0xCBF29CE484222325U;
    for (std::size_t index = 0; index < identifier.bytes.size(); ++index) {
        for (const char letter : name)
            state = (state ^ static_cast<unsigned char>(letter)) * 0x100000001B3U;
        identifier.bytes[index] = static_cast<std::byte>(state >> 56);
    }
    setHostUUIDProvider([identifier](std::chrono::seconds) { return identifier; });
}

OVNote& noteNamed(std::string_view title, NSManagedObjectContext& context)
{
    OVNote* note = OVNote::noteWithTitle(title, context);
    if (!note)
        throw std::runtime_error("there is no note \"" + std::string(title) + '"');
    return *note;
}

void list(NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("permanentlyDeleted == NO");
    request.sortDescriptors = {{"title", true}, {"uniqueIdentifier", true}};
    for (const NSManagedObject* record : context.executeFetchRequest(request)) {
        const auto& note = *static_cast<const OVNote*>(record);
        std::cout << note.title().value_or("Untitled") << ": " << note.text().value_or("").size() << " bytes"
                  << (note.hasConflictedNotes() ? ", conflicted" : "") << '\n';
    }
}

void synchroniseWith(const FolderServer& server, SyncEngine& engine)
{
    if (!synchronise(engine, [&](const Request& request) { return server.answer(request); }))
        throw std::runtime_error("the server and this device do not come to an end");
    const SyncCounts& counts = engine.counts();
    std::cout << "sent " << counts.sent << ", received " << counts.received << ", conflicts " << counts.conflicts
              << '\n';
}

/// False for a command that there is not.
bool run(const FolderServer& server, NSManagedObjectContext& context, std::span<char* const> words)
{
    SyncEngine engine(context);
    const std::string_view command = words[0];
    // Under the store's lock from the first look to the save, so that nothing of another program is written over.
    const auto edit = [&](const std::function<void()>& change) {
        NSError error;
        if (!context.performExclusive(change, &error))
            throw std::runtime_error(error.localizedDescription());
    };
    if (command == "sync" && words.size() == 1) {
        synchroniseWith(server, engine);
        NSError error;
        if (!context.save(&error))
            throw std::runtime_error(error.localizedDescription());
    } else if (command == "new" && words.size() == 2)
        edit([&] { OVNote::noteWithText(words[1], context); });
    else if (command == "append" && words.size() == 3)
        edit([&] { noteNamed(words[1], context).appendNoteWithText(words[2]); });
    else if (command == "delete" && words.size() == 2)
        edit([&] { engine.deleteNote(noteNamed(words[1], context)); });
    else if (command == "list" && words.size() == 1)
        list(context);
    else
        return false;
    return true;
}

} // namespace

} // namespace tarn::syncfolder

int main(int argc, char** argv)
{
    using namespace tarn;

    const std::span<char* const> words(argv, static_cast<std::size_t>(argc));
    if (words.size() < 5) {
        std::cerr
            << "usage: sync_folder SERVER STORE DEVICE sync | new TEXT | append TITLE TEXT | delete TITLE | list\n";
        return 2;
    }
    try {
        const syncfolder::FolderServer server(words[1]);
        syncfolder::becomeDevice(words[3]);
        NSError error;
        auto coordinator = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
        if (!coordinator->addPersistentStoreWithType(StoreType::SQLite, words[2], {}, &error))
            throw std::runtime_error(error.localizedDescription());
        MainQueue::main();
        NSManagedObjectContext context(NSManagedObjectContext::ConcurrencyType::MainQueue);
        context.setPersistentStoreCoordinator(coordinator);
        if (syncfolder::run(server, context, words.subspan(4)))
            return 0;
        std::cerr << "no such command: " << words[4] << '\n';
        return 2;
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
