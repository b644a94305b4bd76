#include "tools/tarn/Commands.h"

namespace tarn {

void addCommands(CommandLine& commandLine)
{
    addImportCommand(commandLine);
    addNewCommand(commandLine);
    addShowCommand(commandLine);
    addListCommand(commandLine);
    addSearchCommand(commandLine);
    addTagsCommand(commandLine);
    addStateCommands(commandLine);
    addDeleteCommand(commandLine);
    addStatsCommand(commandLine);
    addDoctorCommand(commandLine);
    addParseCommand(commandLine);
}

} // namespace tarn
