#include "tests/processes/Worker.h"

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tests/processes/AttachmentWork.h"
#include "tests/processes/CommonLife.h"
#include "tests/processes/KnownWorld.h"
#include "tests/processes/MigrationWork.h"
#include "tests/processes/ProtectionWork.h"
#include "tests/processes/RoundsOfProtection.h"
#include "tests/processes/SharedStore.h"
#include "tests/processes/Workload.h"
#include "tests/support/FaultyDisk.h"

#include <array>
#include <charconv>
#include <iostream>

namespace tarn {

namespace {

using Arguments = std::span<const std::string_view>;

/// save FILE WORKLOAD FAULT AT: one save as an extension makes it, on a disk that strikes during it. Says how many
/// operations the save took.
void save(Arguments arguments)
{
    const KnownWorld world(2);
    FaultyDisk disk;
    SharedStore store(arguments[0], StoreRole::Extension);
    require(bool(store), store.error());
    workloadNamed(arguments[1])->edit(store.context());
    disk.arm(numberOf(arguments[3]), static_cast<DiskFault>(numberOf(arguments[2])));
    NSError error;
    require(store.context().save(&error), error);
    std::cout << disk.operations();
}

/// open FILE FAULT AT: opens and reads, which brings back what a dead process left half-way, on a disk that strikes.
/// Says how many operations that took.
void open(Arguments arguments)
{
    const KnownWorld world(3);
    FaultyDisk disk;
    disk.arm(numberOf(arguments[2]), static_cast<DiskFault>(numberOf(arguments[1])));
    SharedStore store(arguments[0], StoreRole::Extension);
    require(bool(store), store.error());
    OVNote::allNotesInManagedObjectContext(store.context());
    std::cout << disk.operations();
}

/// append FOLDER LINE: a program that adds one line to the note "Groceries", as an extension.
void append(Arguments arguments)
{
    OVLocalFileManager::setApplicationPersistentDataTestURL(std::filesystem::path(arguments[0]));
    MainQueue::main();
    NSError error;
    const auto stack = OVCoreDataStackForExtensions::initStackOutputError(&error);
    require(stack != nullptr, error);
    const bool isWritten = stack->write(
        [&](NSManagedObjectContext& context) {
            OVNote* note = OVNote::noteWithTitle("Groceries", context);
            require(note != nullptr, NSError("", 0, "the note is gone"));
            note->appendNoteWithText(arguments[1]);
        },
        &error);
    require(isWritten, error);
}

struct Part {
    std::string_view name;
    std::size_t arguments;
    void (*play)(Arguments);
};
constexpr std::array kParts{
    Part{"save", 4, save},
    Part{"open", 3, open},
    Part{"application", 3, liveAsApplication},
    Part{"extension", 3, liveAsExtension},
    Part{"reader", 3, liveAsReader},
    Part{"append", 2, append},
    Part{"attachments", 2, workWithAttachments},
    Part{"migration", 2, workOnMigration},
    Part{"protection", 2, workWithProtection},
    Part{"round", 3, playRoundOfProtection},
};

} // namespace

void require(bool condition, const NSError& error)
{
    if (!condition)
        throw WorkerFailure{error.localizedDescription()};
}

int numberOf(std::string_view argument)
{
    int number = -1;
    std::from_chars(argument.data(), argument.data() + argument.size(), number);
    return number;
}

int runWorker(Arguments arguments)
{
    for (const Part& part : kParts) {
        if (arguments.empty() || arguments[0] != part.name || arguments.size() != part.arguments + 1)
            continue;
        try {
            part.play(arguments.subspan(1));
            return 0;
        } catch (const WorkerFailure& failure) {
            std::cerr << failure.message << '\n';
            return 3;
        }
    }
    std::cerr << "no such part\n";
    return 3;
}

} // namespace tarn
