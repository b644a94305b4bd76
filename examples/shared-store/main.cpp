// An application, an extension and a widget on one store:
//
//     shared_store FOLDER application|extension|widget
//
// FOLDER is the folder that they share. What the exit code means stands in Roles.h.

#include "examples/shared-store/Roles.h"

#include <tarnmodel/TarnModel.h>

#include <array>
#include <iostream>
#include <string_view>

int main(int argc, char** argv)
{
    using namespace tarn;
    using namespace tarn::sharedstore;

    struct Role {
        std::string_view name;
        ExitCode (*run)();
    };
    constexpr std::array roles{
        Role{"application", runApplication}, Role{"extension", runExtension}, Role{"widget", runWidget}};

    if (argc == 3) {
        OVLocalFileManager::setApplicationGroupURL(argv[1]);
        MainQueue::main(); // belongs to this thread
        for (const Role& role : roles)
            if (role.name == argv[2])
                return role.run();
    }
    std::cerr << "usage: shared_store FOLDER application|extension|widget\n";
    return WrongArguments;
}
