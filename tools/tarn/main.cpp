#include "tarnmodel/platform/foundation/system/Log.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/MemoryShortage.h"
#include "tools/tarn/commandline/StandardStreams.h"
#include "tools/tarn/commands/Commands.h"

#include <unistd.h>

#include <new>

namespace {

tarn::ExitCode run(int count, char** values)
{
    tarn::setLogSink(tarn::tellOnStandardError);
    tarn::Output output(STDOUT_FILENO);
    tarn::CommandLine commandLine(output);
    tarn::addCommands(commandLine);
    return commandLine.run(std::vector<std::string>(values + (count > 0), values + count));
}

} // namespace

int main(int count, char** values)
{
    tarn::reserveStandardStreams();
    tarn::endInWordsWhenMemoryIsShort();
    try {
        const tarn::ExitCode code = run(count, values);
        return code == tarn::ExitCode::Interrupted ? tarn::Interruption::endProgram() : static_cast<int>(code);
    } catch (const std::bad_alloc&) { // before there was a command line to say so
        tarn::tellOfMemoryShortage();
        return static_cast<int>(tarn::ExitCode::Failed);
    }
}
