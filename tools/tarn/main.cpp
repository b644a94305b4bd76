#include "platform/foundation/Log.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/StandardStreams.h"

#include <unistd.h>

int main(int count, char** values)
{
    using namespace tarn;
    reserveStandardStreams();
    setLogSink(tellOnStandardError);
    Output output(STDOUT_FILENO);
    CommandLine commandLine(output);
    addCommands(commandLine);
    return static_cast<int>(commandLine.run(std::vector<std::string>(values + (count > 0), values + count)));
}
