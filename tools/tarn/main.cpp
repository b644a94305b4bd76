#include "platform/foundation/Log.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/StandardStreams.h"

#include <unistd.h>

int main(int count, char** values)
{
    tarn::reserveStandardStreams();
    tarn::setLogSink(tarn::tellOnStandardError);
    tarn::Output output(STDOUT_FILENO);
    tarn::CommandLine commandLine(output);
    tarn::addCommands(commandLine);
    return static_cast<int>(commandLine.run(std::vector<std::string>(values + (count > 0), values + count)));
}
